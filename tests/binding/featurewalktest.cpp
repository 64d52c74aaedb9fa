#include "support/SchemaObjects.h"

#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "citygml/CityModel.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <QtTest>

#include <memory>
#include <sstream>
#include <stdexcept>

using namespace testsupport;

namespace {

class Recorder : public tolvik::CityGMLFeaturesVisitor
{
public:
    QVector<const xml_schema::type*> visited;

    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override
    {
        visited << feature;
        return tolvik::CityGMLFeaturesVisitor::visit_gml_AbstractFeatureType(feature);
    }
};

/// Refuses the features with the given identifiers, and stops a walk at one that throws.
class Refusing : public tolvik::CityGMLFeaturesVisitor
{
public:
    explicit Refusing(QStringList refused) : refused(std::move(refused)) {}

    QStringList visited;
    QString throwsAt;

    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override
    {
        const QString id = QString::fromStdString(*feature->id());
        visited << id;
        if (id == throwsAt) {
            throw std::runtime_error("stop");
        }
        return !refused.contains(id) &&
               tolvik::CityGMLFeaturesVisitor::visit_gml_AbstractFeatureType(feature);
    }

private:
    QStringList refused;
};

QVector<const TypeRecord*> listedTypes()
{
    QVector<const TypeRecord*> result;
    const QString names = QString::fromUtf8(contentOf(dataFile("feature_visits.txt")));
    for (const QString& name : names.split('\n', Qt::SkipEmptyParts)) {
        result << recordByClass(name.section('_', 0, 0) + "::" + name.section('_', 1));
    }
    return result;
}

const QByteArray house =
    "<core:cityObjectMember><bldg:Building gml:id='house'>"
    "<app:appearance><app:Appearance gml:id='look'><app:surfaceDataMember><app:X3DMaterial gml:id='paint'/>"
    "</app:surfaceDataMember></app:Appearance></app:appearance>"
    "<bldg:boundedBy><bldg:WallSurface gml:id='wall'><bldg:opening><bldg:Door gml:id='door'><bldg:address>"
    "<core:Address "
    "gml:id='hidden'><core:xalAddress><xAL:AddressDetails/></core:xalAddress></core:Address></bldg:address></"
    "bldg:Door></bldg:opening>"
    "</bldg:WallSurface></bldg:boundedBy>"
    "<bldg:consistsOfBuildingPart><bldg:BuildingPart gml:id='part'/></bldg:consistsOfBuildingPart>"
    "<bldg:address><core:Address "
    "gml:id='address'><core:xalAddress><xAL:AddressDetails/></core:xalAddress></core:Address></bldg:address>"
    "</bldg:Building></core:cityObjectMember>"
    "<gml:featureMember><bldg:Building gml:id='second'/></gml:featureMember>"
    "<core:cityObjectMember><grp:CityObjectGroup gml:id='group'><grp:groupMember><bldg:Building "
    "gml:id='member'/>"
    "</grp:groupMember></grp:CityObjectGroup></core:cityObjectMember>";

Document readHouse()
{
    return readStrictly(
        documentText(house, " xmlns:grp='http://www.opengis.net/citygml/cityobjectgroup/2.0' gml:id='root'"));
}

template <typename Features>
QStringList idsOf(const Features& features)
{
    QStringList result;
    for (const auto* feature : features) {
        result << QString::fromStdString(*dynamic_cast<const gml::AbstractFeatureType*>(feature)->id());
    }
    return result;
}

} // namespace

/// The walk from features to the features below them.
class FeatureWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void thereIsAnOverrideForEveryListedType()
    {
        const auto types = listedTypes();
        QCOMPARE(types.size(), 89);
        QVERIFY(!types.contains(nullptr));
    }

    // A member leads to a feature itself or through the objects that its value holds.
    void everyMemberThatLeadsToAFeatureIsWalked()
    {
        int walked = 0;
        for (const TypeRecord* type : listedTypes()) {
            const TypeRecord* ownerType = concrete(type);
            QVERIFY2(ownerType != nullptr, type->name);
            if (!isFeature(ownerType)) {
                continue;
            }
            for (std::size_t i = 0; i < type->memberCount; ++i) {
                const Member& member = type->members[i];
                if (member.isAttribute || member.type == nullptr) {
                    continue;
                }
                for (const TypeRecord* holder = member.type; holder != nullptr; holder = holder->base) {
                    for (std::size_t j = 0; j < holder->memberCount; ++j) {
                        walked += checkWalk(*ownerType, member, holder->members[j]);
                    }
                }
            }
        }
        QVERIFY2(walked > 120, qPrintable(QString::number(walked)));
    }

    void aDeepWalkListsTheDocumentInItsOrder()
    {
        const auto document = readHouse();
        tolvik::CityGMLFeaturesFillVisitor visitor;
        QVERIFY(document->accept(&visitor));
        QCOMPARE(idsOf(visitor.getModelFeatures()),
                 QStringList({"root", "house", "look", "wall", "door", "part", "address", "second", "group",
                              "member"}));
        // Each feature once, however often the visitor is started.
        document->accept(&visitor);
        QCOMPARE(visitor.getModelFeatures().size(), std::size_t(10));
    }

    void aWalkFromAStartGoesOneLevelDown()
    {
        const auto document = readHouse();
        auto& building = *document->featureMember().front()._Feature();
        Recorder visitor;
        visitor.walkChildren = visitor.walkStart = true;
        QVERIFY(building.accept(&visitor));
        QCOMPARE(idsOf(visitor.visited), QStringList({"wall", "part", "address", "look", "house"}));
        QVERIFY(visitor.walkChildren && visitor.walkStart);
    }

    void aCopyWalksAsItsOriginal()
    {
        const auto document = readHouse();
        auto& building = *document->featureMember().front()._Feature();
        for (const bool children : {true, false}) {
            for (const bool start : {true, false}) {
                Recorder original;
                original.walkChildren = children;
                original.walkStart = start;
                Recorder copy(original);
                Recorder assigned;
                assigned.walkChildren = !children;
                assigned.walkStart = !start;
                assigned = original;
                QCOMPARE(copy.walkChildren, children);
                QCOMPARE(copy.walkStart, start);
                QCOMPARE(assigned.walkChildren, children);
                QCOMPARE(assigned.walkStart, start);
                building.accept(&original);
                building.accept(&copy);
                building.accept(&assigned);
                QCOMPARE(copy.visited, original.visited);
                QCOMPARE(assigned.visited, original.visited);
            }
        }
    }

    void withoutChildrenAVisitStaysInside()
    {
        const auto document = readHouse();
        for (const bool start : {true, false}) {
            Recorder visitor;
            visitor.walkChildren = false;
            visitor.walkStart = start;
            QVERIFY(document->accept(&visitor));
            QCOMPARE(idsOf(visitor.visited), QStringList("root"));
        }
    }

    void belowARefusedFeatureNothingIsWalked()
    {
        const auto document = readHouse();
        Refusing visitor({"wall", "group"});
        QVERIFY(document->accept(&visitor));
        QCOMPARE(visitor.visited,
                 QStringList({"root", "house", "look", "wall", "part", "address", "second", "group"}));
    }

    void anotherWalkDoesNotGoOnWithARefusedFeature()
    {
        const auto document = readHouse();
        Refusing visitor({"house", "look"});
        QVERIFY(!document->featureMember().front()._Feature()->accept(&visitor));
        QCOMPARE(visitor.visited, QStringList("house"));
        visitor.visited.clear();
        QVERIFY(document->featureMember().back()._Feature()->accept(&visitor));
        QCOMPARE(visitor.visited, QStringList({"group", "member"}));
        // Nor does it read what is gone.
        QVERIFY(!readHouse()->featureMember().front()._Feature()->accept(&visitor));
        visitor.visited.clear();
        QVERIFY(document->accept(&visitor));
        QCOMPARE(visitor.visited, QStringList({"root", "house", "second", "group", "member"}));
    }

    void anotherWalkDoesNotGoOnWithAnEndedOne()
    {
        const auto document = readHouse();
        Refusing visitor({});
        visitor.throwsAt = "wall";
        QVERIFY_EXCEPTION_THROWN(document->accept(&visitor), std::runtime_error);
        visitor.visited.clear();
        QVERIFY(document->featureMember().back()._Feature()->accept(&visitor));
        QCOMPARE(visitor.visited, QStringList({"group", "member"}));
        visitor.visited.clear();
        visitor.walkStart = true;
        QVERIFY_EXCEPTION_THROWN(document->featureMember().front()._Feature()->accept(&visitor),
                                 std::runtime_error);
        QVERIFY(visitor.walkChildren && visitor.walkStart);
    }

private:
    /// Puts a feature into a member of an owner and walks; the number of features that had to be met.
    static int checkWalk(const TypeRecord& ownerType, const Member& member, const Member& content)
    {
        if (content.isAttribute || content.type == nullptr || !isFeature(content.type)) {
            return 0;
        }
        const TypeRecord* featureType = concrete(content.type);
        if (featureType == nullptr) {
            return 0;
        }
        const std::unique_ptr<xml_schema::type> owner(ownerType.create());
        xml_schema::type* property = member.type->create();
        xml_schema::type* feature = featureType->create();
        content.ops->add(*property, feature);
        member.ops->add(*owner, property);
        Recorder visitor;
        visitor.walkChildren = visitor.walkStart = true;
        owner->accept(&visitor);
        if (visitor.visited.count(feature) != 1) {
            qWarning("%s.%s does not lead to its %s", ownerType.name, member.name, featureType->name);
        }
        [&] { QCOMPARE(visitor.visited.count(feature), 1); }();
        return 1;
    }
};

TEST_CLASS(FeatureWalkTest, Core)
#include "featurewalktest.moc"
