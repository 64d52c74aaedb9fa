#include "framework/ModelInterface.h"
#include "framework/PropertyProvider.h"
#include "support/TestClass.h"
#include "support/TestModel.h"

#include <limits>
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace testsupport;

using Fondo::RefPtr;
using tolvik::CoreModel;
using tolvik::CoreProperty;
using tolvik::ModelInterface;
using tolvik::PropertyProvider;

namespace {

class Plugin : public ModelInterface
{
public:
    bool envelope(const CoreModel& model, double (&lower)[3], double (&upper)[3]) const override
    {
        asked = &model;
        const double values[2][3] = {{10.0, 20.0, 5.0}, {30.0, 60.0, 25.0}};
        std::copy(std::begin(values[0]), std::end(values[0]), lower);
        std::copy(std::begin(values[1]), std::end(values[1]), upper);
        return known;
    }

    bool known = true;
    mutable const CoreModel* asked = nullptr;
};

class Provider : public PropertyProvider
{
public:
    Provider(const QString& name, int* deaths) : name(name), deaths(deaths) {}
    ~Provider() override { ++*deaths; }

    void addProperties(const QModelIndex& index, CoreProperty& root) override
    {
        root.addProperty(new CoreProperty(name, index.row()));
        if (onCall) {
            onCall();
        }
    }

    std::function<void()> onCall;

private:
    QString name;
    int* deaths;
};

/// Can put a tree in front of the others, with the signals of a row.
class InsertingModel : public TestModel
{
public:
    using TestModel::TestModel;

    void insertFirst(const QString& name)
    {
        beginInsertRows(QModelIndex(), 0, 0);
        properties.prepend(RefPtr<CoreProperty>(new CoreProperty(name, QVariant())));
        endInsertRows();
    }
};

QStringList childNames(const CoreProperty* property)
{
    QStringList names;
    for (const auto& child : property->properties()) {
        names.append(child->name());
    }
    return names;
}

} // namespace

class CoreModelTest : public QObject
{
    Q_OBJECT

private slots:
    void freshModel()
    {
        TestModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        QVERIFY(!model.dirty());
        QVERIFY(model.getFileName().isEmpty());
        QVERIFY(model.getUrl().isEmpty());
        QVERIFY(model.getModelPlugin() == nullptr);
        QVERIFY(model.getProperty(QModelIndex()) == nullptr);
        QVERIFY(model.visibility.isEmpty());
    }

    void classNames()
    {
        const TestModel model;
        QVERIFY(model.inherits("tolvik::Model"));
        QVERIFY(model.inherits("tolvik::CoreModel"));
        QVERIFY(model.inherits("QAbstractListModel"));
    }

    void dirtyIsRemembered()
    {
        TestModel model;
        model.dirty(true);
        QVERIFY(model.dirty());
        model.dirty(false);
        QVERIFY(!model.dirty());
    }

    void fileNameIsStored()
    {
        TestModel model;
        model.setFileName("/somewhere/city.gml");
        QCOMPARE(model.getFileName(), QString("/somewhere/city.gml"));
    }

    void freshRowIsVisible()
    {
        TestModel model({"a", "b"});
        QCOMPARE(model.visibility, QVector<bool>({false, false}));
        QVERIFY(model.isVisible(model.index(0, 0)));
        QVERIFY(model.isVisible(model.index(1, 1)));
    }

    void visibilityIsKeptForTheRowAndSendsNothing()
    {
        TestModel model({"a", "b", "c"});
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const QSignalSpy visibility(&model,
                                    QOverload<const QModelIndex&>::of(&tolvik::Model::visibilityChanged));
        model.setVisibility(model.index(1, 1), false);
        QCOMPARE(model.visibleRows(), QString("+-+"));
        QCOMPARE(model.visibility, QVector<bool>({false, true, false}));
        model.setVisibility(model.index(1, 0), true);
        QCOMPARE(model.visibleRows(), QString("+++"));
        QVERIFY(changed.isEmpty());
        QVERIFY(visibility.isEmpty());
    }

    void rowThatIsNotThereIsNotVisible()
    {
        TestModel model({"a", "b"});
        const QModelIndex last = model.index(1, 0);
        QVERIFY(!model.isVisible(QModelIndex()));
        model.setVisibility(QModelIndex(), false);
        model.visibility.removeLast();
        QVERIFY(!model.isVisible(last));
        model.setVisibility(last, false);
        QCOMPARE(model.visibility, QVector<bool>({false}));
    }

    void indexRef()
    {
        TestModel model({"a", "b"});
        QCOMPARE(model.indexRef(1), model.index(1, 0));
        QVERIFY(!model.indexRef(2).isValid());
        QVERIFY(!model.indexRef(-1).isValid());
        QVERIFY(!model.indexRef(std::numeric_limits<long>::max()).isValid());
        if constexpr (sizeof(long) > sizeof(int)) {
            // The lower half of the number is that of a row.
            QVERIFY(!model.indexRef((1L << (8 * sizeof(int))) + 1).isValid());
        }
    }

    void rowsAndIdentifiers()
    {
        TestModel model({"a", "b", "c"});
        QCOMPARE(model.getRowFromId(model.getIdFromRow(2)), 2);
        QVERIFY(!model.getIdFromRow(3).isValid());
        QVERIFY(!model.getIdFromRow(std::numeric_limits<unsigned>::max()).isValid());
        QCOMPARE(model.getRowFromId("1"), 1);
        QCOMPARE(model.getRowFromId(3), -1);
        QCOMPARE(model.getRowFromId(-1), -1);
        QCOMPARE(model.getRowFromId("x"), -1);
        QCOMPARE(model.getRowFromId(QVariant()), -1);
    }

    void walkDistance()
    {
        const TestModel model({"a", "b", "c"});
        QCOMPARE(model.getWalkDistance(0, 2), 2.0);
        QCOMPARE(model.getWalkDistance(2, 0), 2.0);
        QCOMPARE(model.getWalkDistance(1, 1), 0.0);
        QCOMPARE(model.getWalkDistance(0, 3), -1.0);
        QCOMPARE(model.getWalkDistance(-1, 0), -1.0);
    }

    void placeComesFromThePlugin()
    {
        Plugin plugin;
        TestModel model({}, &plugin);
        QCOMPARE(model.getModelPlugin(), &plugin);
        const CoreModel::_geoPoint anchor = model.anchor();
        QCOMPARE(plugin.asked, &model);
        QCOMPARE(anchor.x, 20.0);
        QCOMPARE(anchor.y, 40.0);
        QCOMPARE(anchor.z, 5.0);

        const QList<QList<CoreModel::_geoPoint>> footprint = model.footprint();
        QCOMPARE(footprint.size(), 1);
        QStringList corners;
        for (const CoreModel::_geoPoint& corner : footprint.first()) {
            corners.append(QStringLiteral("%1 %2 %3").arg(corner.x).arg(corner.y).arg(corner.z));
        }
        QCOMPARE(corners, QStringList({"10 20 5", "30 20 5", "30 60 5", "10 60 5"}));
    }

    void placeIsUnknown_data()
    {
        QTest::addColumn<bool>("withPlugin");
        QTest::newRow("no plug-in") << false;
        QTest::newRow("no envelope") << true;
    }

    void placeIsUnknown()
    {
        QFETCH(bool, withPlugin);
        Plugin plugin;
        plugin.known = false;
        TestModel model({}, withPlugin ? &plugin : nullptr);
        QCOMPARE(model.anchor().x, 0.0);
        QCOMPARE(model.anchor().y, 0.0);
        QCOMPARE(model.anchor().z, 0.0);
        QVERIFY(model.footprint().isEmpty());
    }

    void plainPluginKnowsNoEnvelope()
    {
        ModelInterface plugin;
        TestModel model({}, &plugin);
        QVERIFY(model.footprint().isEmpty());
    }

    void propertiesOfARow()
    {
        const TestModel model({"a", "b"});
        QCOMPARE(model.getProperty(model.index(1, 0))->name(), QString("b"));
        QVERIFY(model.getProperty(QModelIndex()) == nullptr);
    }

    void providersAddInTheirOrder()
    {
        int deaths = 0;
        TestModel model({"a", "b"});
        const RefPtr<Provider> first = new Provider("first", &deaths);
        model.addPropertyProvider(first.get());
        model.addPropertyProvider(new Provider("second", &deaths));
        model.addPropertyProvider(first.get());
        model.addPropertyProvider(nullptr);

        QCOMPARE(childNames(model.getProperty(model.index(1, 0))), QStringList({"first", "second"}));
        QCOMPARE(model.getProperty(model.index(1, 0))->properties()[0]->value(), QVariant(1));

        model.removePropertyProvider(first.get());
        model.removePropertyProvider(first.get());
        QCOMPARE(childNames(model.getProperty(model.index(0, 0))), QStringList({"second"}));
        model.reapplyPropertiesFromProviders(model.index(1, 0));
        QCOMPARE(childNames(model.getProperty(model.index(1, 0))),
                 QStringList({"first", "second", "second"}));
    }

    void firstRequestAsksTheProviders()
    {
        int deaths = 0;
        int calls = 0;
        TestModel model({"a", "b"});
        auto* const provider = new Provider("p", &deaths);
        // A provider may ask for the tree that it adds to.
        provider->onCall = [&] {
            ++calls;
            QCOMPARE(model.getProperty(model.index(1, 0))->name(), QString("b"));
        };
        model.addPropertyProvider(provider);
        QCOMPARE(calls, 0);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(childNames(model.getProperty(model.index(1, 1))), QStringList("p"));
        }
        QCOMPARE(calls, 1);
    }

    void requestedTreesStayKnownWhenRowsComeAndGo()
    {
        int deaths = 0;
        InsertingModel model({"a", "b", "c"});
        model.addPropertyProvider(new Provider("p", &deaths));
        model.getProperty(model.index(1, 0));
        model.insertFirst("new");
        QCOMPARE(model.getProperty(model.index(2, 0))->name(), QString("b"));
        QCOMPARE(childNames(model.getProperty(model.index(2, 0))), QStringList("p"));
        QCOMPARE(childNames(model.getProperty(model.index(0, 0))), QStringList("p"));
    }

    void requestedTreesStayKnownWhenRowsGo()
    {
        int deaths = 0;
        TestModel model({"a", "b", "c"});
        model.addPropertyProvider(new Provider("p", &deaths));
        model.getProperty(model.index(1, 0));
        model.removeItem(0);
        QCOMPARE(childNames(model.getProperty(model.index(0, 0))), QStringList("p"));
        QCOMPARE(childNames(model.getProperty(model.index(1, 0))), QStringList("p"));
        // The trees of other rows may come to lie where those that are gone lay.
        for (int i = 0; i < 20; ++i) {
            model.removeItem(1);
            model.addItem("d", nullptr);
            QCOMPARE(childNames(model.getProperty(model.index(1, 0))), QStringList("p"));
        }
        for (int i = 0; i < 20; ++i) {
            model.replaceAll({"a"});
            QCOMPARE(childNames(model.getProperty(model.index(0, 0))), QStringList("p"));
        }
    }

    void providersAddToATreeOfTheCaller()
    {
        int deaths = 0;
        TestModel model({"a"});
        model.addPropertyProvider(new Provider("p", &deaths));
        const RefPtr<CoreProperty> root = new CoreProperty(QString(), QVariant());
        model.addPropertiesFromProviders(model.index(0, 0), *root);
        QCOMPARE(childNames(root.get()), QStringList("p"));
        QCOMPARE(childNames(model.getProperty(model.index(0, 0))), QStringList("p"));
    }

    void modelKeepsItsProviders()
    {
        int deaths = 0;
        {
            TestModel model;
            auto* const provider = new Provider("p", &deaths);
            model.addPropertyProvider(provider);
            model.addPropertyProvider(provider);
            QCOMPARE(deaths, 0);
        }
        QCOMPARE(deaths, 1);
    }

    void strangeProviderIsNotTouchedByRemoval()
    {
        int deaths = 0;
        TestModel model;
        auto* const provider = new Provider("p", &deaths);
        model.removePropertyProvider(provider);
        QCOMPARE(deaths, 0);
        model.addPropertyProvider(provider);
    }

    void providerMayUnregisterItself()
    {
        int deaths = 0;
        TestModel model({"a"});
        auto* const provider = new Provider("once", &deaths);
        provider->onCall = [&] { model.removePropertyProvider(provider); };
        model.addPropertyProvider(provider);
        model.addPropertyProvider(new Provider("second", &deaths));
        model.addPropertyProvider(new Provider("third", &deaths));
        QCOMPARE(childNames(model.getProperty(model.index(0, 0))), QStringList({"once", "second", "third"}));
        QCOMPARE(deaths, 1);
        model.reapplyPropertiesFromProviders(model.index(0, 0));
        QCOMPARE(childNames(model.getProperty(model.index(0, 0))),
                 QStringList({"once", "second", "third", "second", "third"}));
    }

    void providersAreNotAskedForAnInvalidIndex()
    {
        int deaths = 0;
        bool asked = false;
        TestModel model({"a"});
        auto* const provider = new Provider("p", &deaths);
        provider->onCall = [&] { asked = true; };
        model.addPropertyProvider(provider);
        model.reapplyPropertiesFromProviders(QModelIndex());
        QVERIFY(!asked);
    }
};

TEST_CLASS(CoreModelTest, Core)
#include "coremodeltest.moc"
