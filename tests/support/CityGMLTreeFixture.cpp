#include "support/CityGMLTreeFixture.h"

#include <algorithm>
#include <QAbstractItemModelTester>
#include <QStringList>
#include <QtTest>
#include <sstream>

namespace testsupport {

QByteArray cityDocument(const QByteArray& members)
{
    return "<CityModel xmlns=\"http://www.opengis.net/citygml/2.0\" gml:id=\"city\"\n"
           "    xmlns:gml=\"http://www.opengis.net/gml\" "
           "xmlns:app=\"http://www.opengis.net/citygml/appearance/2.0\"\n"
           "    xmlns:bldg=\"http://www.opengis.net/citygml/building/2.0\">\n" +
           members + "</CityModel>\n";
}

QByteArray village()
{
    return cityDocument(R"(
  <app:appearanceMember><app:Appearance gml:id="a1"/></app:appearanceMember>
  <cityObjectMember>
    <bldg:Building gml:id="b1">
      <gml:name>Town hall</gml:name>
      <gml:name>Mairie</gml:name>
      <bldg:boundedBy>
        <bldg:WallSurface gml:id="w1">
          <gml:name>South</gml:name>
          <bldg:opening><bldg:Door gml:id="d1"><gml:name>Gate</gml:name></bldg:Door></bldg:opening>
          <bldg:opening><bldg:Door gml:id="d2"/></bldg:opening>
        </bldg:WallSurface>
      </bldg:boundedBy>
      <bldg:boundedBy><bldg:RoofSurface gml:id="w2"/></bldg:boundedBy>
    </bldg:Building>
  </cityObjectMember>
  <cityObjectMember><bldg:Building gml:id="b2"><gml:name>Church</gml:name></bldg:Building></cityObjectMember>
)");
}

void addInsertionRows()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("tree");
    QTest::newRow("second level") << 1 << "0:0 2 2"
                                  << "city(b1(w1(d1 d2) w2) b2 new)";
    QTest::newRow("third level") << 2 << "0/0:0 2 2"
                                 << "city(b1(w1(d1 d2) w2 new) b2)";
    QTest::newRow("fourth level") << 3 << "0/0/0:0 2 2"
                                  << "city(b1(w1(d1 d2 new) w2) b2)";
}

void addToVillage(tolvik::CityGMLModel& model, int level)
{
    const auto feature = [&model](const char* id) { return model.getFeature(std::string(id)); };
    gml::AbstractFeatureType* added = nullptr;
    switch (level) {
    case 1:
        added = addMember(*model.cityGML(), makeBuilding("new"));
        break;
    case 2:
        added = addSurface(dynamic_cast<bldg::AbstractBuildingType&>(*feature("b1")), makeWall("new"));
        break;
    default:
        added = addOpening(dynamic_cast<bldg::AbstractBoundarySurfaceType&>(*feature("w1")), makeDoor("new"));
        break;
    }
    model.addFeature(added);
}

CityTree::CityTree(const QByteArray& document)
{
    tree.setSourceModel(&model);
    load(document);
}

void CityTree::load(const QByteArray& document)
{
    std::istringstream stream(document.toStdString());
    model.load(stream);
}

QString CityTree::dump() const
{
    QList<QModelIndex> roots;
    for (int i = 0; i < tree.rowCount(); ++i) {
        roots.append(tree.index(i, 0));
    }
    std::stable_sort(roots.begin(), roots.end(), [this](const QModelIndex& a, const QModelIndex& b) {
        return tree.mapToSource(a).row() < tree.mapToSource(b).row();
    });
    QStringList parts;
    for (const QModelIndex& root : qAsConst(roots)) {
        parts.append(dump(root));
    }
    return parts.join(' ');
}

QString CityTree::dump(const QModelIndex& index) const
{
    QStringList below;
    for (int i = 0; i < tree.rowCount(index); ++i) {
        below.append(dump(tree.index(i, 0, index)));
    }
    const QString id = idOf(tolvik::CityGMLProxyModel::getFeature(index));
    return below.isEmpty() ? id : id + '(' + below.join(' ') + ')';
}

QString CityTree::idOf(const gml::AbstractFeatureType* feature)
{
    return feature->id().present() ? QString::fromStdString(feature->id().get()) : QStringLiteral("?");
}

void CityTree::check()
{
    const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::Fatal);
}

} // namespace testsupport
