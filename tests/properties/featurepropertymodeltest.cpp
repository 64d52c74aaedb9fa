#include "UI/Models/CityGMLModel/FeaturePropertyModel.h"
#include "support/CityGMLModelFixture.h"
#include "support/SignalRecorder.h"
#include "support/TestClass.h"

#include <memory>
#include <QAbstractItemModelTester>
#include <QtTest>

using namespace testsupport;
using tolvik::FeaturePropertyModel;

namespace {

QByteArray hall()
{
    return cityModel(building("b1", "<gml:description>Old</gml:description><gml:name>Hall</gml:name>"
                                    "<bldg:measuredHeight uom=\"m\">12.5</bldg:measuredHeight>"
                                    "<bldg:storeysAboveGround>3</bldg:storeysAboveGround>") +
                     namedBuilding("b2", "Church"));
}

/// A document and the properties of its building b1.
struct Properties
{
    Properties()
    {
        list.loadText(hall());
        model.setFeature(&list, list.index(1, 0));
    }

    /// The property of that name, anywhere in the tree; of its column.
    QModelIndex at(const QString& name, int column = 0) const
    {
        const QModelIndexList found =
            model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.first().siblingAtColumn(column);
    }

    OpenModel list;
    FeaturePropertyModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

/// The properties of a feature for views, scripts and QML.
class FeaturePropertyModelTest : public QObject
{
    Q_OBJECT

private slots:
    void nameValueAndUnitStandInColumns()
    {
        const Properties properties;
        QCOMPARE(properties.model.columnCount(), 3);
        QCOMPARE(properties.at("MeasuredHeight").data(), QVariant("MeasuredHeight"));
        QCOMPARE(properties.at("MeasuredHeight", 1).data(), QVariant(12.5));
        QCOMPARE(properties.at("MeasuredHeight", 2).data(), QVariant("m"));
        QVERIFY2(properties.at("MeasuredHeight").parent().isValid(), "it does not stand in a group");
        const auto title = [&](int column) { return properties.model.headerData(column, Qt::Horizontal); };
        QCOMPARE(title(0), QVariant("Name"));
        QCOMPARE(title(1), QVariant("Value"));
        QCOMPARE(title(2), QVariant("Unit"));
    }

    void theSameStandsInRoles()
    {
        const Properties properties;
        const auto answer = [&](const char* role) {
            return properties.at("MeasuredHeight").data(properties.model.roleNames().key(role));
        };
        QCOMPARE(answer("name"), QVariant("MeasuredHeight"));
        QCOMPARE(answer("value"), QVariant(12.5));
        QCOMPARE(answer("unit"), QVariant("m"));
        QCOMPARE(answer("editable"), QVariant(true));
        QCOMPARE(answer("choices"), QVariant(QVariantList()));
    }

    void onlyValuesCanBeEdited()
    {
        Properties properties;
        QVERIFY(properties.at("MeasuredHeight", 1).flags() & Qt::ItemIsEditable);
        QVERIFY(!(properties.at("MeasuredHeight", 0).flags() & Qt::ItemIsEditable));
        QVERIFY(!(properties.at("Fields", 1).flags() & Qt::ItemIsEditable));
        QVERIFY(!properties.model.setData(properties.at("MeasuredHeight", 0), "Height"));
        QVERIFY(!properties.model.setData(properties.at("Fields", 1), 1));
        QVERIFY(!properties.model.setData(QModelIndex(), 1));
    }

    void anEditReachesTheDocumentAndIsAnnounced()
    {
        Properties properties;
        SignalRecorder recorder(&properties.list);
        QVERIFY(!properties.list.dirty());
        QVERIFY(properties.model.setData(properties.at("MeasuredHeight", 1), "20.25"));
        QCOMPARE(properties.at("MeasuredHeight", 1).data(), QVariant(20.25));
        QVERIFY(properties.list.dirty());
        QCOMPARE(recorder.take(), QStringList("dataChanged 1:0 1:0 [256]"));
        FeaturePropertyModel another;
        another.setFeature(&properties.list, properties.list.index(1, 0));
        QCOMPARE(another.match(another.index(0, 0), Qt::DisplayRole, "MeasuredHeight", 1, Qt::MatchRecursive)
                     .first()
                     .siblingAtColumn(1)
                     .data(),
                 QVariant(20.25));
    }

    void anEditByRoleNeedsNoColumn()
    {
        Properties properties;
        QVERIFY(properties.model.setData(properties.at("StoreysAboveGround"), 5, tolvik::PropertyValueRole));
        QCOMPARE(properties.at("StoreysAboveGround", 1).data().toInt(), 5);
    }

    void whatIsNoValueOfThePropertyIsRefused_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("no number") << "MeasuredHeight" << QVariant("high");
        QTest::newRow("nothing") << "MeasuredHeight" << QVariant();
        QTest::newRow("no character of XML") << "Description" << QVariant(QString("a\vb"));
        QTest::newRow("no character of XML in a list") << "Name" << QVariant(QVariantList{"a", "\v"});
        QTest::newRow("half a character") << "Description" << QVariant(QString(QChar(0xD800)));
    }
    void whatIsNoValueOfThePropertyIsRefused()
    {
        QFETCH(QString, property);
        QFETCH(QVariant, value);
        Properties properties;
        const QModelIndex index = properties.at(property, 1);
        QVERIFY(index.isValid());
        const QVariant before = index.data();
        QVERIFY(!properties.model.setData(index, value));
        QCOMPARE(index.data(), before);
        QVERIFY(!properties.list.dirty());
    }

    void aCharacterOfTwoHalvesIsTaken()
    {
        Properties properties;
        const QString clef = QString::fromUtf8("\xF0\x9D\x84\x9E");
        QVERIFY(properties.model.setData(properties.at("Description", 1), clef));
        QCOMPARE(properties.at("Description", 1).data(), QVariant(clef));
    }

    void aListIsShownInOneLineAndEditedAsAList()
    {
        Properties properties;
        const QModelIndex names = properties.at("Name", 1);
        QVERIFY(properties.model.setData(names, QVariantList({"Hall", "Mairie"})));
        QCOMPARE(names.data(), QVariant("Hall Mairie"));
        QCOMPARE(names.data(Qt::EditRole), QVariant(QVariantList({"Hall", "Mairie"})));
    }

    void aTreeThatIsBuiltAnewIsShownAnew()
    {
        Properties properties;
        SignalRecorder recorder(&properties.model);
        properties.list.propertyChanged(properties.list.index(1, 0), true);
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(properties.at("MeasuredHeight", 1).data(), QVariant(12.5));
    }

    void otherRowsDoNotConcernIt()
    {
        Properties properties;
        SignalRecorder recorder(&properties.model);
        properties.list.propertyChanged(properties.list.index(2, 0), true);
        properties.list.removeFeature(properties.list.getFeature(2));
        QCOMPARE(recorder.take(), QStringList());
    }

    void itFollowsItsRow()
    {
        Properties properties;
        properties.list.removeFeature(properties.list.getFeature(0));
        QVERIFY(properties.model.setData(properties.at("MeasuredHeight", 1), 1.5));
        QCOMPARE(properties.at("MeasuredHeight", 1).data(), QVariant(1.5));
    }

    void itIsEmptyWhenTheRowHasGone()
    {
        Properties properties;
        properties.list.removeFeature(properties.list.getFeature(1));
        QCOMPARE(properties.model.rowCount(), 0);
    }

    void itIsEmptyFromAReloadOn()
    {
        Properties properties;
        int rows = -1;
        connect(&properties.list, &QAbstractItemModel::modelReset, this,
                [&] { rows = properties.model.rowCount(); });
        properties.list.loadText(hall());
        QCOMPARE(rows, 0);
        QCOMPARE(properties.model.rowCount(), 0);
    }

    void itIsEmptyWithoutAList()
    {
        FeaturePropertyModel model;
        QCOMPARE(model.rowCount(), 0);
        auto list = std::make_unique<OpenModel>();
        list->loadText(hall());
        model.setFeature(list.get(), list->index(1, 0));
        QVERIFY(model.rowCount() > 0);
        list.reset();
        QCOMPARE(model.rowCount(), 0);
    }
};

TEST_CLASS(FeaturePropertyModelTest, Core)
#include "featurepropertymodeltest.moc"
