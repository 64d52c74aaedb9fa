#include "framework/CoreProperty.h"
#include "fondo/ClassType.h"
#include "framework/SingleUnit.h"
#include "framework/UnitCreator.h"
#include "support/TestClass.h"

#include <QMenu>
#include <QtTest>

using namespace testsupport;

using Fondo::RefPtr;
using tolvik::CoreProperty;
using tolvik::SingleUnit;
using tolvik::UnitCreator;

namespace {

class Mortal : public CoreProperty
{
public:
    Mortal(const QString& name, int* deaths) : CoreProperty(name, QVariant()), deaths(deaths) {}
    ~Mortal() override { ++*deaths; }

private:
    int* deaths;
};

/// Reads its value elsewhere, as a property that is bound to something does.
class Bound : public CoreProperty
{
public:
    explicit Bound(double* number) : CoreProperty("bound", QVariant()), number(number) {}
    QVariant value() override { return *number; }
    void setValue(const QVariant& value) override { *number = value.toDouble(); }
    void offer(const QList<QVariant>& values) { m_potentialValues = values; }

private:
    double* number;
};

} // namespace

class CorePropertyTest : public QObject
{
    Q_OBJECT

private slots:
    void plainProperty()
    {
        const RefPtr<CoreProperty> property = new CoreProperty("Height", 12.5);
        QCOMPARE(property->name(), QString("Height"));
        QCOMPARE(property->value(), QVariant(12.5));
        QVERIFY(property->unit() == nullptr);
        QVERIFY(property->properties().isEmpty());
        QVERIFY(property->potentialValues().isEmpty());
        QVERIFY(!property->defaultValue().isValid());
        QVERIFY(!property->editable());
        QVERIFY(!property->shared());
        QVERIFY(!property->unshare());
        QCOMPARE(property->propertyType(), 0);
        property->setValue("text");
        QCOMPARE(property->value(), QVariant("text"));
    }

    void contextMenuOfAPlainPropertyIsEmpty()
    {
        const RefPtr<CoreProperty> property = new CoreProperty("Height", 12.5);
        QMenu menu;
        QVERIFY(!property->handleContextMenuEvent());
        property->addContextMenuEventAction(&menu);
        QVERIFY(menu.isEmpty());
    }

    void typeRecord()
    {
        const RefPtr<CoreProperty> property = new CoreProperty("", QVariant());
        QCOMPARE(property->type(), std::string("tolvik::CoreProperty"));
        QVERIFY(property->isOfType(CoreProperty::classType()));
        QVERIFY(property->isOfType(Fondo::Referenced::classType()));
        const RefPtr<Fondo::Referenced> other = new Fondo::Referenced;
        QVERIFY(!other->isOfType(CoreProperty::classType()));
    }

    void childrenStandInOrderAndMayShareAName()
    {
        const RefPtr<CoreProperty> root = new CoreProperty("", QVariant());
        QVERIFY(root->addProperty(new CoreProperty("floorArea", 1)));
        QVERIFY(root->addProperty(new CoreProperty("other", 2)));
        QVERIFY(root->addProperty(new CoreProperty("floorArea", 3)));
        QCOMPARE(root->properties().size(), 3);
        QCOMPARE(root->properties()[2]->value(), QVariant(3));
        QCOMPARE(root->getProperty("floorArea", false)->value(), QVariant(1));
        QVERIFY(root->getProperty("nothing", false) == nullptr);
        QVERIFY(root->getProperty("nothing", true) == nullptr);
    }

    void addPropertyRefusesNullAndItself()
    {
        const RefPtr<CoreProperty> root = new CoreProperty("", QVariant());
        QVERIFY(!root->addProperty(nullptr));
        QVERIFY(!root->addProperty(root.get()));
        QVERIFY(root->properties().isEmpty());
    }

    void parentOwnsItsChildren()
    {
        int deaths = 0;
        RefPtr<CoreProperty> root = new Mortal("root", &deaths);
        auto* const child = new Mortal("child", &deaths);
        root->addProperty(child);
        QCOMPARE(child->referenceCount(), 1);
        child->addProperty(new Mortal("below", &deaths));
        const RefPtr<CoreProperty> kept = new Mortal("kept", &deaths);
        root->addProperty(kept.get());
        root = nullptr;
        QCOMPARE(deaths, 3);
        QCOMPARE(kept->referenceCount(), 1);
    }

    void recursiveSearchGoesDownBeforeOn()
    {
        const RefPtr<CoreProperty> root = new CoreProperty("", QVariant());
        auto* const first = new CoreProperty("first", QVariant());
        first->addProperty(new CoreProperty("wanted", "below first"));
        root->addProperty(first);
        root->addProperty(new CoreProperty("wanted", "second"));
        QCOMPARE(root->getProperty("wanted", false)->value(), QVariant("second"));
        QCOMPARE(root->getProperty("wanted", true)->value(), QVariant("below first"));
    }

    void recursiveSearchGoesToTheBottom()
    {
        const RefPtr<CoreProperty> root = new CoreProperty("", QVariant());
        CoreProperty* deepest = root.get();
        for (int level = 0; level < 5; ++level) {
            auto* const below = new CoreProperty(QString::number(level), level);
            deepest->addProperty(below);
            deepest = below;
        }
        QCOMPARE(root->getProperty("4", true), deepest);
        QVERIFY(root->getProperty("4", false) == nullptr);
    }

    /// One of that name further down is another one.
    void getOrCreateMakesAChild()
    {
        const RefPtr<CoreProperty> root = new CoreProperty("", QVariant());
        auto* const group = new CoreProperty("group", QVariant());
        root->addProperty(group);
        group->addProperty(new CoreProperty("Year", 1990));
        QCOMPARE(root->getOrCreateProperty("Year", 2000)->value(), QVariant(2000));
        QCOMPARE(root->properties().size(), 2);
    }

    void getOrCreateFindsBeforeItMakes()
    {
        const RefPtr<CoreProperty> root = new CoreProperty("", QVariant());
        CoreProperty* const made = root->getOrCreateProperty("Year", 1990);
        QCOMPARE(made->value(), QVariant(1990));
        QCOMPARE(root->getOrCreateProperty("Year", 2000), made);
        QCOMPARE(made->value(), QVariant(1990));
        CoreProperty* const group = root->getOrCreateProperty("Fields");
        QVERIFY(!group->value().isValid());
        QCOMPARE(root->properties().size(), 2);
    }

    void potentialValuesAreThoseOfTheSubclass()
    {
        double number = 0.0;
        const RefPtr<Bound> property = new Bound(&number);
        property->offer({1.0, 2.0});
        QCOMPARE(property->potentialValues(), QList<QVariant>({1.0, 2.0}));
    }

    void unitsAreSharedByName()
    {
        SingleUnit* const metre = UnitCreator::getOrCreateSingleUnit("test-m", 0, 1);
        QCOMPARE(metre->name(), QString("test-m"));
        QCOMPARE(UnitCreator::getOrCreateSingleUnit("test-m", 0, 1), metre);
        QCOMPARE(UnitCreator::getOrCreateSingleUnit("test-m", 3, 2), metre);
        QCOMPARE(metre->exponent(), 0);
        QCOMPARE(metre->power(), 1);
        QVERIFY(UnitCreator::getOrCreateSingleUnit("test-M", 0, 1) != metre);
    }

    void unitsConvertToSi_data()
    {
        QTest::addColumn<int>("exponent");
        QTest::addColumn<int>("power");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("si");
        QTest::newRow("itself") << 0 << 1 << 12.5 << 12.5;
        QTest::newRow("km") << 3 << 1 << 2.5 << 2500.0;
        QTest::newRow("km2") << 3 << 2 << 2.0 << 2e6;
        QTest::newRow("cm") << -2 << 1 << 7.0 << 0.07;
        // Seven and the like come out the same either way; this one shows whether it is divided.
        QTest::newRow("exact cm") << -2 << 1 << 35.0 << 0.35;
        QTest::newRow("cm2") << -2 << 2 << 30.0 << 0.003;
        QTest::newRow("1/km") << 3 << -1 << 5.0 << 0.005;
    }

    void unitsConvertToSi()
    {
        QFETCH(int, exponent);
        QFETCH(int, power);
        QFETCH(double, value);
        QFETCH(double, si);
        const SingleUnit unit("u", exponent, power);
        QVERIFY(unit.toSI(value) == si);
        QCOMPARE(unit.fromSI(si), value);
    }

    void numbersGoThroughTheUnit()
    {
        double number = 2.5;
        const RefPtr<CoreProperty> property = new Bound(&number);
        QCOMPARE(property->SIValue(), QVariant(2.5));
        QCOMPARE(property->displayValue(), QVariant(2.5));
        property->setUnit(UnitCreator::getOrCreateSingleUnit("test-km", 3, 1));
        QCOMPARE(property->value(), QVariant(2.5));
        QCOMPARE(property->SIValue(), QVariant(2500.0));
        QCOMPARE(property->filterValue(), QVariant(2500.0));
        QCOMPARE(property->displayValue(), QVariant("2.5 test-km"));
        property->setValue(4);
        QCOMPARE(property->SIValue(), QVariant(4000.0));
        property->setUnit(nullptr);
        QCOMPARE(property->SIValue(), QVariant(4.0));
    }

    void everyKindOfNumberGoesThroughTheUnit_data()
    {
        QTest::addColumn<QVariant>("number");
        QTest::newRow("int") << QVariant::fromValue<int>(2);
        QTest::newRow("unsigned") << QVariant::fromValue<unsigned>(2);
        QTest::newRow("long") << QVariant::fromValue<long>(2);
        QTest::newRow("unsigned long") << QVariant::fromValue<unsigned long>(2);
        QTest::newRow("long long") << QVariant::fromValue<qlonglong>(2);
        QTest::newRow("unsigned long long") << QVariant::fromValue<qulonglong>(2);
        QTest::newRow("short") << QVariant::fromValue<short>(2);
        QTest::newRow("unsigned short") << QVariant::fromValue<unsigned short>(2);
        QTest::newRow("float") << QVariant::fromValue<float>(2);
        QTest::newRow("double") << QVariant::fromValue<double>(2);
    }

    void everyKindOfNumberGoesThroughTheUnit()
    {
        QFETCH(QVariant, number);
        const RefPtr<CoreProperty> property = new CoreProperty("p", number);
        property->setUnit(UnitCreator::getOrCreateSingleUnit("test-km", 3, 1));
        QCOMPARE(property->SIValue(), QVariant(2000.0));
        QCOMPARE(property->displayValue(), QVariant("2 test-km"));
    }

    void whatIsNoNumberHasNoUnit_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("text") << QVariant("12");
        QTest::newRow("boolean") << QVariant(true);
        QTest::newRow("invalid") << QVariant();
        QTest::newRow("list") << QVariant(QVariantList{1.0, 2.0});
    }

    void whatIsNoNumberHasNoUnit()
    {
        QFETCH(QVariant, value);
        const RefPtr<CoreProperty> property = new CoreProperty("p", value);
        property->setUnit(UnitCreator::getOrCreateSingleUnit("test-km", 3, 1));
        QCOMPARE(property->SIValue(), value);
        QCOMPARE(property->filterValue(), value);
        QCOMPARE(property->displayValue(), value);
    }

    // A document with millions of attributes holds a property for each.
    void propertyIsSmall() { QVERIFY(sizeof(CoreProperty) <= 64); }
};

TEST_CLASS(CorePropertyTest, Widgets)
#include "corepropertytest.moc"
