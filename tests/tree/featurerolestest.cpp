#include "support/CityGMLTreeFixture.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/CityGMLFeatureList.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"
#include "UI/Models/CityGMLModel/FeaturePropertyModel.h"

#include <memory>
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>
#include <sstream>

using namespace testsupport;

namespace {

/// The list, and above it the two models that answer the roles of features.
struct Models
{
    Models()
    {
        list.setSourceModel(&source);
        tree.setSourceModel(&source);
        load(village());
    }

    void load(const QByteArray& document)
    {
        std::istringstream stream(document.toStdString());
        source.load(stream);
    }

    gml::AbstractFeatureType* feature(const char* id) const { return source.getFeature(std::string(id)); }

    /// The index of a feature in the list or in the tree.
    QModelIndex at(bool inTree, const char* id, int column = 0) const
    {
        const QModelIndex index = source.index(source.getRow(feature(id)), column);
        return inTree ? tree.mapFromSource(index) : list.mapFromSource(index);
    }

    QAbstractItemModel& model(bool isTree)
    {
        return isTree ? static_cast<QAbstractItemModel&>(tree) : static_cast<QAbstractItemModel&>(list);
    }

    tolvik::CityGMLModel source{nullptr, nullptr};
    tolvik::CityGMLFeatureList list;
    tolvik::CityGMLTreeModel tree;
    QAbstractItemModelTester listTester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QAbstractItemModelTester treeTester{&tree, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

/// What an index answers for a role that scripts know by name.
QVariant answer(const QModelIndex& index, const char* role)
{
    return index.data(index.model()->roleNames().key(role));
}

} // namespace

/// What scripts and QML get to know of features.
class FeatureRolesTest : public QObject
{
    Q_OBJECT

private:
    static void bothModels()
    {
        QTest::addColumn<bool>("isTree");
        QTest::newRow("list") << false;
        QTest::newRow("tree") << true;
    }

private slots:
    void rolesHaveNames_data() { bothModels(); }
    void rolesHaveNames()
    {
        QFETCH(bool, isTree);
        Models models;
        const auto names = models.model(isTree).roleNames().values();
        for (const char* const name : {"display", "edit", "decoration", "identifier", "type", "name",
                                       "visibility", "disabled", "feature", "properties"}) {
            QVERIFY2(names.contains(name), name);
        }
    }

    void theListItselfAnswersNone()
    {
        Models models;
        for (int role = tolvik::FeatureIdentifierRole; role <= tolvik::FeaturePropertiesRole; ++role) {
            QVERIFY(!models.source.index(1, 0).data(role).isValid());
        }
    }

    void aFeatureTellsWhatItIs_data() { bothModels(); }
    void aFeatureTellsWhatItIs()
    {
        QFETCH(bool, isTree);
        Models models;
        for (const int column : {0, 1}) {
            const QModelIndex hall = models.at(isTree, "b1", column);
            QCOMPARE(answer(hall, "identifier"), QVariant("b1"));
            QCOMPARE(answer(hall, "type"), QVariant("Building"));
            QCOMPARE(answer(hall, "name"), QVariant("Town hall"));
            QCOMPARE(answer(hall, "visibility"), QVariant(true));
            QCOMPARE(answer(hall, "disabled"), QVariant(false));
            QVERIFY(answer(hall, "feature").value<gml::AbstractFeatureType*>() == models.feature("b1"));
        }
    }

    void whatAFeatureLacksIsAnEmptyText_data() { bothModels(); }
    void whatAFeatureLacksIsAnEmptyText()
    {
        QFETCH(bool, isTree);
        Models models;
        QCOMPARE(answer(models.at(isTree, "d2"), "name"), QVariant(QString("")));
        models.load(cityModel(building("")));
        QCOMPARE(answer(models.model(isTree).index(0, 0), "identifier"), QVariant(QString("")));
    }

    void visibilityAndDisabledCanBeSet_data() { bothModels(); }
    void visibilityAndDisabledCanBeSet()
    {
        QFETCH(bool, isTree);
        Models models;
        QAbstractItemModel& model = models.model(isTree);
        const QModelIndex wall = models.at(isTree, "w1");
        QVERIFY(model.setData(wall, false, tolvik::FeatureVisibilityRole));
        QCOMPARE(answer(wall, "visibility"), QVariant(false));
        QCOMPARE(answer(models.at(isTree, "d1"), "visibility"), QVariant(true));
        QVERIFY(model.setData(wall, true, tolvik::FeatureVisibilityRole));
        QCOMPARE(answer(wall, "visibility"), QVariant(true));
        QVERIFY(model.setData(wall, true, tolvik::FeatureDisabledRole));
        QCOMPARE(answer(wall, "disabled"), QVariant(true));
        QVERIFY(model.setData(wall, false, tolvik::FeatureDisabledRole));
        QCOMPARE(answer(wall, "disabled"), QVariant(false));
    }

    void theOthersCannotBeSet_data() { bothModels(); }
    void theOthersCannotBeSet()
    {
        QFETCH(bool, isTree);
        Models models;
        for (const int role :
             {tolvik::FeatureIdentifierRole, tolvik::FeatureTypeRole, tolvik::FeatureNameRole,
              tolvik::FeaturePointerRole, tolvik::FeaturePropertiesRole}) {
            QVERIFY(!models.model(isTree).setData(models.at(isTree, "b1"), "x", role));
        }
        QVERIFY(!models.model(isTree).setData(QModelIndex(), false, tolvik::FeatureVisibilityRole));
    }

    /// A delegate of QML asks again only for what a change names.
    void aChangeOfVisibilityNamesItsRole_data() { bothModels(); }
    void aChangeOfVisibilityNamesItsRole()
    {
        QFETCH(bool, isTree);
        Models models;
        QVERIFY(announces(models, isTree, tolvik::FeatureVisibilityRole,
                          [&] { models.source.hide(models.source.index(models.feature("w1"))); }));
    }

    void anEditNamesTheRolesOfNameAndIdentifier_data() { bothModels(); }
    void anEditNamesTheRolesOfNameAndIdentifier()
    {
        QFETCH(bool, isTree);
        Models models;
        const QModelIndex hall = models.source.index(models.feature("b1"));
        for (const int role : {tolvik::FeatureNameRole, tolvik::FeatureIdentifierRole}) {
            QVERIFY(announces(models, isTree, role, [&] { models.source.propertyChanged(hall, false); }));
        }
    }

    void propertiesAreAModelThatStays_data() { bothModels(); }
    void propertiesAreAModelThatStays()
    {
        QFETCH(bool, isTree);
        Models models;
        const QVariant properties = answer(models.at(isTree, "b1"), "properties");
        auto* const model = qobject_cast<tolvik::FeaturePropertyModel*>(properties.value<QObject*>());
        if (model == nullptr) {
            QFAIL("the properties are no model");
        }
        QVERIFY(model->rowCount() > 0);
        QCOMPARE(answer(models.at(isTree, "b1", 1), "properties"), properties);
        QVERIFY(answer(models.at(isTree, "b2"), "properties") != properties);
    }

    void propertiesEndWithTheirRow_data() { bothModels(); }
    void propertiesEndWithTheirRow()
    {
        QFETCH(bool, isTree);
        Models models;
        const auto propertiesOf = [&](const char* id) {
            return QPointer<QObject>(answer(models.at(isTree, id), "properties").value<QObject*>());
        };
        const QPointer<QObject> removed = propertiesOf("b2");
        const QPointer<QObject> left = propertiesOf("b1");
        models.source.removeFeature(models.feature("b2"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(removed.isNull());
        QVERIFY(!left.isNull());
        models.load(village());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(left.isNull());
        QVERIFY(!propertiesOf("b1").isNull());
    }

    void withoutASourceThereIsNoAnswer()
    {
        auto source = std::make_unique<tolvik::CityGMLModel>(nullptr, nullptr);
        tolvik::CityGMLFeatureList list;
        list.setSourceModel(source.get());
        source.reset();
        QCOMPARE(list.rowCount(), 0);
        list.setSourceModel(nullptr);
        QVERIFY(!list.data(QModelIndex(), tolvik::FeatureNameRole).isValid());
        QVERIFY(!list.setData(QModelIndex(), true, tolvik::FeatureDisabledRole));
    }

private:
    /// Whether a change is announced for a role.
    template <class Change>
    static bool announces(Models& models, bool isTree, int role, Change change)
    {
        QSignalSpy spy(&models.model(isTree), &QAbstractItemModel::dataChanged);
        change();
        for (const auto& signal : spy) {
            const auto roles = signal.at(2).value<QVector<int>>();
            if (roles.isEmpty() || roles.contains(role)) {
                return true;
            }
        }
        return false;
    }
};

TEST_CLASS(FeatureRolesTest, Core)
#include "featurerolestest.moc"
