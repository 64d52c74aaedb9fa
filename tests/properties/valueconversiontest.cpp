#include "UI/Models/CityGMLModel/properties/ValueConversion.h"
#include "core/doubleBetween0and1.hxx"
#include "core/integerBetween0and4.hxx"
#include "gml/AngleType.hxx"
#include "gml/AreaType.hxx"
#include "gml/CodeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/integerList.hxx"
#include "gml/LengthType.hxx"
#include "gml/MeasureListType.hxx"
#include "gml/MeasureOrNullListType.hxx"
#include "gml/MeasureType.hxx"
#include "gml/NullEnumeration.hxx"
#include "gml/QuantityExtentType.hxx"
#include "gml/ScaleType.hxx"
#include "gml/StringOrRefType.hxx"
#include "gml/TimeUnitType.hxx"
#include "gml/UnitOfMeasureType.hxx"
#include "gml/VolumeType.hxx"
#include "pivotEnergy/LifeCycleStageType.hxx"
#include "support/TestClass.h"
#include "support/VariantText.h"
#include "UI/Models/CityGMLModel/properties/SchemaValues.h"

#include <cmath>
#include <limits>
#include <QDateTime>
#include <QtTest>
#include <QUrl>

using namespace testsupport;

using namespace tolvik;
using namespace tolvik::schema;

namespace {

const uri metre("m");

/// What a value shows after it was made from a variant.
template <typename T>
QString edited(const QVariant& value, const uri& uom = metre)
{
    return typedText(toQVariant<T>(fromQVariant<T>(value, uom)));
}

/// Variants that stand for nothing of a kind that has a number, a date or a list.
const QVariantList wrongVariants{QVariant(), QString(), "abc", QUrl("a b"), QVariantMap(), QByteArray("x")};

/// All of them make the same value, which shows as \a expected.
#define COMPARE_WRONG(T, expected)                                                                           \
    for (const QVariant& wrong : wrongVariants) {                                                            \
        QVERIFY2((edited<T>(wrong)) == (expected),                                                           \
                 qPrintable(typedText(wrong) + " makes " + edited<T>(wrong)));                               \
    }

} // namespace

class ValueConversionTest : public QObject
{
    Q_OBJECT

private:
    template <typename T>
    void compareMeasure(double start)
    {
        QCOMPARE(typedText(toQVariant<T>(T(12.5, metre))), QString("double 12.5"));
        QCOMPARE(typedText(toQVariant<optional<T>>(optional<T>(T(12.5, metre)))), QString("double 12.5"));
        QCOMPARE(typedText(toQVariant<optional<T>>(optional<T>())), QString("invalid"));
        const T value = fromQVariant<T>("-0.125", uri("cm"));
        QCOMPARE(static_cast<double>(value), -0.125);
        QCOMPARE(value.uom(), std::string("cm"));
        const optional<T> present = fromQVariant<optional<T>>(QVariant(), uri(""));
        QCOMPARE(static_cast<double>(present.get()), 0.0);
        QCOMPARE(present->uom(), std::string());
        COMPARE_WRONG(T, "double 0")
        QCOMPARE(defaultValue<T>(), QVariant(start));
        QCOMPARE(defaultValue<optional<T>>(), QVariant(start));
        QCOMPARE(defaultValue<T>().userType(), int(QMetaType::Double));
    }

    template <typename T>
    void compareText()
    {
        QCOMPARE(typedText(toQVariant<T>(T("Höhe\n<&>"))), QString("QString Höhe\n<&>"));
        QCOMPARE(edited<T>("日本 𝄞"), QString("QString 日本 𝄞"));
        QCOMPARE(edited<T>(12.5), QString("QString 12.5"));
        QCOMPARE(edited<T>(QVariant()), QString("QString "));
        QCOMPARE(edited<T>(QVariantList{1}), QString("QString "));
        QCOMPARE(typedText(defaultValue<T>()), QString("QString "));
    }

    template <typename T>
    void compareMeasureSequence()
    {
        sequence<T> values;
        values.push_back(T(1.5, uri("a")));
        values.push_back(T(2.5, uri("b")));
        const QVariant list = toQVariant<sequence<T>>(values);
        QCOMPARE(typedText(list), QString("[double 1.5, double 2.5]"));
        for (const T& value : fromQVariant<sequence<T>>(list, uri("c"))) {
            QCOMPARE(value.uom(), std::string("c"));
        }
        QCOMPARE(edited<sequence<T>>(QVariantList{"x", QVariant()}), QString("[double 0, double 0]"));
        COMPARE_WRONG(sequence<T>, "[]")
        QCOMPARE(typedText(defaultValue<sequence<T>>()), QString("[]"));
    }

    template <typename T>
    void compareNullableList()
    {
        QCOMPARE(typedText(toQVariant<optional<T>>(optional<T>())), QString("[]"));
        const QVariantList entries{"3.50", "unknown", 2};
        const optional<T> list = fromQVariant<optional<T>>(entries, uri("m"));
        QCOMPARE(list->uom(), std::string("m"));
        QCOMPARE(typedText(toQVariant<optional<T>>(list)),
                 QString("[QString 3.50, QString unknown, QString 2]"));
        QVERIFY(fromQVariant<optional<T>>(QVariant(), metre).present());
        COMPARE_WRONG(optional<T>, "[]")
    }

    /// An editor starts from the present moment.
    template <typename T>
    void compareStartMoment()
    {
        const QDateTime before = QDateTime::currentDateTime();
        const QVariant start = defaultValue<T>();
        const QDateTime after = QDateTime::currentDateTime();
        QCOMPARE(start.userType(), int(QMetaType::QDateTime));
        QVERIFY(before <= start.toDateTime() && start.toDateTime() <= after);
        QCOMPARE(start.toDateTime().timeSpec(), Qt::LocalTime);
    }

private slots:
    void realNumbers()
    {
        QCOMPARE(typedText(toQVariant<double>(-2.5)), QString("double -2.5"));
        QCOMPARE(typedText(toQVariant<optional<double>>(optional<double>(1e300))), QString("double 1e+300"));
        QCOMPARE(typedText(toQVariant<optional<double>>(optional<double>())), QString("invalid"));
        QCOMPARE(edited<double>("12.5"), QString("double 12.5"));
        QCOMPARE(edited<double>(7), QString("double 7"));
        QCOMPARE(fromQVariant<double>(std::numeric_limits<double>::denorm_min(), metre),
                 std::numeric_limits<double>::denorm_min());
        QVERIFY(std::isnan(fromQVariant<double>(std::numeric_limits<double>::quiet_NaN(), metre)));
        QVERIFY(
            std::isinf(fromQVariant<optional<double>>(std::numeric_limits<double>::infinity(), metre).get()));
        COMPARE_WRONG(double, "double 0")
        COMPARE_WRONG(optional<double>, "double 0")
        QCOMPARE(typedText(defaultValue<double>()), QString("double 0"));
        QCOMPARE(typedText(defaultValue<optional<double>>()), QString("double 0"));
    }

    void truthValues()
    {
        QCOMPARE(typedText(toQVariant<bool>(true)), QString("bool true"));
        QCOMPARE(typedText(toQVariant<optional<bool>>(optional<bool>())), QString("invalid"));
        QCOMPARE(edited<bool>("true"), QString("bool true"));
        QCOMPARE(edited<optional<bool>>(false), QString("bool false"));
        QCOMPARE(edited<optional<bool>>(2), QString("bool true"));
        for (const QVariant& wrong : {QVariant(), QVariant(QString()), QVariant(QVariantMap())}) {
            QCOMPARE(edited<optional<bool>>(wrong), QString("bool false"));
        }
        QCOMPARE(typedText(defaultValue<bool>()), QString("bool false"));
        QCOMPARE(typedText(defaultValue<optional<bool>>()), QString("bool false"));
    }

    void wholeNumbers()
    {
        QCOMPARE(typedText(toQVariant<optional<int>>(optional<int>(-5))), QString("int -5"));
        QCOMPARE(typedText(toQVariant<optional<int>>(optional<int>())), QString("invalid"));
        QCOMPARE(edited<optional<int>>("2147483647"), QString("int 2147483647"));
        QCOMPARE(edited<optional<int>>(2147483648LL), QString("int 0"));
        COMPARE_WRONG(optional<int>, "int 0")
        QCOMPARE(typedText(defaultValue<optional<int>>()), QString("int 0"));

        QCOMPARE(typedText(toQVariant<long long>(9007199254740993LL)), QString("qlonglong 9007199254740993"));
        QCOMPARE(edited<long long>(-7), QString("qlonglong -7"));
        QCOMPARE(edited<optional<long long>>("-2147483648"), QString("qlonglong -2147483648"));
        COMPARE_WRONG(long long, "qlonglong 0")
        COMPARE_WRONG(optional<long long>, "qlonglong 0")
        QCOMPARE(typedText(defaultValue<long long>()), QString("int 0"));
        QCOMPARE(typedText(defaultValue<optional<long long>>()), QString("int 0"));

        using Unsigned = optional<unsigned long long>;
        QCOMPARE(typedText(toQVariant<Unsigned>(Unsigned(18446744073709551615ULL))),
                 QString("qulonglong 18446744073709551615"));
        QCOMPARE(edited<Unsigned>(4294967295U), QString("qulonglong 4294967295"));
        QCOMPARE(edited<Unsigned>("4294967296"), QString("qulonglong 0"));
        QCOMPARE(edited<Unsigned>(-1), QString("qulonglong 0"));
        QCOMPARE(edited<Unsigned>("-1"), QString("qulonglong 0"));
        COMPARE_WRONG(Unsigned, "qulonglong 0")
        QCOMPARE(typedText(defaultValue<Unsigned>()), QString("qulonglong 0"));
    }

    /// The edit has 32 bits, where the display has 64.
    void longNumbersAreNotEdited()
    {
        for (const QVariant& number :
             {QVariant(5000000000LL), QVariant("5000000000"), QVariant(-2147483649LL), QVariant(1e10),
              QVariant("99999999999999999999"), QVariant(18446744073709551611ULL),
              QVariant(9223372036854775808ULL), QVariant::fromValue(18446744073709551615UL)}) {
            QCOMPARE(fromQVariant<long long>(number, metre), 0LL);
            QCOMPARE(fromQVariant<optional<long long>>(number, metre).get(), 0LL);
            QCOMPARE(fromQVariant<optional<int>>(number, metre).get(), 0);
            QCOMPARE(static_cast<int>(fromQVariant<gyear>(number, metre).year()), 0);
            QCOMPARE(fromQVariant<optional<gml::integerList>>(QVariantList{number}, metre).get().front(),
                     0LL);
            QCOMPARE(fromQVariant<optional<unsigned long long>>(number, metre).get(), 0ULL);
        }
        QCOMPARE(typedText(toQVariant<long long>(5000000000LL)), QString("qlonglong 5000000000"));
        QCOMPARE(edited<optional<int>>(2147483647ULL), QString("int 2147483647"));
    }

    void boundedNumbers()
    {
        using Integer = core::integerBetween0and4;
        QCOMPARE(typedText(toQVariant<Integer>(Integer(3))), QString("int 3"));
        QCOMPARE(typedText(toQVariant<Integer>(Integer((1LL << 32) + 2))), QString("int 2"));
        QCOMPARE(edited<Integer>(9), QString("int 9"));
        COMPARE_WRONG(Integer, "int 0")
        QCOMPARE(typedText(defaultValue<Integer>()), QString("int 0"));

        using Real = optional<core::doubleBetween0and1>;
        QCOMPARE(typedText(toQVariant<Real>(Real(core::doubleBetween0and1(0.25)))), QString("double 0.25"));
        QCOMPARE(typedText(toQVariant<Real>(Real())), QString("invalid"));
        QCOMPARE(edited<Real>(-3.5), QString("double -3.5"));
        COMPARE_WRONG(Real, "double 0")
        QCOMPARE(typedText(defaultValue<Real>()), QString("double 0"));
    }

    void measures()
    {
        compareMeasure<gml::MeasureType>(0.0);
        compareMeasure<gml::LengthType>(0.0);
        compareMeasure<gml::AreaType>(0.0);
        compareMeasure<gml::VolumeType>(0.0);
        compareMeasure<gml::AngleType>(0.0);
        compareMeasure<gml::ScaleType>(1.0);
    }

    void texts()
    {
        compareText<string>();
        compareText<gml::CodeType>();
        compareText<gml::TimeUnitType>();
        compareText<pivotEnergy::LifeCycleStageType>();
        QCOMPARE(typedText(toQVariant<optional<string>>(optional<string>())), QString("invalid"));
        QCOMPARE(typedText(toQVariant<optional<gml::CodeType>>(optional<gml::CodeType>())),
                 QString("invalid"));
        QCOMPARE(edited<optional<gml::CodeType>>("x"), QString("QString x"));
        QCOMPARE(edited<optional<gml::StringOrRefType>>("x"), QString("QString x"));
        QCOMPARE(typedText(defaultValue<optional<gml::StringOrRefType>>()), QString("QString "));
        QCOMPARE(typedText(defaultValue<gml::NullEnumeration>()), QString("QString "));
    }

    /// An empty edit leaves an empty text, and does not remove the attribute.
    void anInvalidVariantMakesAnEmptyText()
    {
        const optional<string> value = fromQVariant<optional<string>>(QVariant(), metre);
        QVERIFY(value.present());
        QVERIFY(value->empty());
    }

    void aCodeHasNoCodeSpace()
    {
        QVERIFY(!fromQVariant<gml::CodeType>("x", uri("a")).codeSpace().present());
        QVERIFY(!fromQVariant<optional<gml::CodeType>>("x", uri("a"))->codeSpace().present());
        QVERIFY(!fromQVariant<optional<gml::StringOrRefType>>("x", uri("a"))->href().present());
    }

    void uris()
    {
        QCOMPARE(typedText(toQVariant<uri>(uri("http://a/ä b"))), QString("QString http://a/ä b"));
        const QVariant link = toQVariant<optional<uri>>(optional<uri>(uri("http://a/b c")));
        QCOMPARE(link.userType(), int(QMetaType::QUrl));
        QCOMPARE(link.toUrl(), QUrl("http://a/b c", QUrl::TolerantMode));
        // What is no address as it stands is understood, and not lost.
        QCOMPARE(toQVariant<optional<uri>>(optional<uri>(uri("http://a/50% off"))).toUrl().toEncoded(),
                 QByteArray("http://a/50%25%20off"));
        QCOMPARE(typedText(toQVariant<optional<uri>>(optional<uri>())), QString("invalid"));
        QCOMPARE(fromQVariant<uri>(QUrl("http://a/b"), metre), std::string("http://a/b"));
        QCOMPARE(fromQVariant<optional<uri>>("b c", metre).get(), std::string("b c"));
        QCOMPARE(fromQVariant<optional<uri>>(QVariant(), metre).get(), std::string());
        QCOMPARE(typedText(defaultValue<uri>()), QString("QString "));
        QCOMPARE(typedText(defaultValue<optional<uri>>()), QString("QString "));
    }

    void units()
    {
        using Unit = gml::UnitOfMeasureType;
        QCOMPARE(typedText(toQVariant<Unit>(Unit(uri("kWh")))), QString("QString kWh"));
        QCOMPARE(fromQVariant<Unit>("W", metre).uom(), std::string("W"));
        QCOMPARE(fromQVariant<Unit>(QVariant(), metre).uom(), std::string());
        QCOMPARE(typedText(defaultValue<Unit>()), QString("QString "));
    }

    void dates()
    {
        QCOMPARE(typedText(toQVariant<date>(date(2020, 2, 29, 2, 0))), QString("QDate 2020-02-29"));
        QCOMPARE(typedText(toQVariant<optional<date>>(optional<date>())), QString("invalid"));
        QCOMPARE(edited<date>(QDate(2001, 2, 3)), QString("QDate 2001-02-03"));
        QCOMPARE(edited<optional<date>>("2001-02-03"), QString("QDate 2001-02-03"));
        QVERIFY(!fromQVariant<date>(QDate(2001, 2, 3), metre).zone_present());
        // A year before the common era is cut to 16 bits.
        QCOMPARE(fromQVariant<date>(QDate(-44, 3, 15), metre).year(), 65536 - 44);
        for (const QVariant& wrong : wrongVariants) {
            const optional<date> value = fromQVariant<optional<date>>(wrong, metre);
            QVERIFY(value->year() == 0 && value->month() == 0 && value->day() == 0);
            QVERIFY(!toQVariant<optional<date>>(value).toDate().isValid());
        }
        QCOMPARE(defaultValue<date>().userType(), int(QMetaType::QDate));
        QVERIFY(qAbs(defaultValue<optional<date>>().toDate().daysTo(QDate::currentDate())) <= 1);
    }

    void years()
    {
        QCOMPARE(typedText(toQVariant<gyear>(gyear(1789, 1, 0))), QString("int 1789"));
        QCOMPARE(typedText(toQVariant<optional<gyear>>(optional<gyear>())), QString("invalid"));
        QCOMPARE(edited<gyear>(-44), QString("int -44"));
        QCOMPARE(edited<optional<gyear>>("12345"), QString("int 12345"));
        QVERIFY(!fromQVariant<gyear>(1789, metre).zone_present());
        COMPARE_WRONG(gyear, "int 0")
        QCOMPARE(defaultValue<gyear>().userType(), int(QMetaType::Int));
        QVERIFY(qAbs(defaultValue<optional<gyear>>().toInt() - QDate::currentDate().year()) <= 1);
    }

    /// Fractions of a second and the zone do not come through.
    void moments()
    {
        using Moment = optional<date_time>;
        const QVariant value = toQVariant<Moment>(Moment(date_time(2020, 2, 29, 13, 14, 12.75, 5, 0)));
        QCOMPARE(value, QVariant(QDateTime(QDate(2020, 2, 29), QTime(13, 14, 12), Qt::LocalTime)));
        QCOMPARE(value.toDateTime().timeSpec(), Qt::LocalTime);
        const Moment back = fromQVariant<Moment>(value, metre);
        QVERIFY(back->year() == 2020 && back->month() == 2 && back->day() == 29);
        QVERIFY(back->hours() == 13 && back->minutes() == 14);
        QCOMPARE(back->seconds(), 12.0);
        QVERIFY(!back->zone_present());
        QCOMPARE(fromQVariant<Moment>(QDate(-44, 3, 15), metre)->year(), -44);
        QCOMPARE(typedText(toQVariant<Moment>(Moment())), QString("invalid"));
        for (const QVariant& wrong : wrongVariants) {
            const Moment made = fromQVariant<Moment>(wrong, metre);
            QVERIFY(made->year() == 0 && made->month() == 0 && made->day() == 0);
            QVERIFY(!toQVariant<Moment>(made).toDateTime().isValid());
        }
        compareStartMoment<Moment>();
    }

    void durations()
    {
        using Duration = optional<duration>;
        const QVariant value = toQVariant<Duration>(Duration(duration(true, 2, 3, 4, 5, 6, 7.9)));
        QCOMPARE(value, QVariant(QDateTime(QDate(2, 3, 4), QTime(5, 6, 7))));
        const QVariant none = toQVariant<Duration>(Duration(duration(false, 0, 0, 0, 1, 0, 0.0)));
        QCOMPARE(none.userType(), int(QMetaType::QDateTime));
        QVERIFY(!none.toDateTime().isValid());
        QVERIFY(!toQVariant<Duration>(Duration(duration(false, 1, 1, 1, 0, 0, 1e18)))
                     .toDateTime()
                     .time()
                     .second());
        QCOMPARE(typedText(toQVariant<Duration>(Duration())), QString("invalid"));
        QVERIFY(!fromQVariant<Duration>(QDateTime::currentDateTime(), metre).present());
        QVERIFY(!fromQVariant<Duration>(QVariant(), metre).present());
        compareStartMoment<Duration>();
    }

    void textLists()
    {
        sequence<string> texts;
        texts.push_back(string("a"));
        texts.push_back(string(""));
        QCOMPARE(typedText(toQVariant<sequence<string>>(texts)), QString("[QString a, QString ]"));
        QCOMPARE(edited<sequence<string>>(QVariantList{1.5, "x"}), QString("[QString 1.5, QString x]"));
        QCOMPARE(edited<sequence<string>>(QStringList{"p", "q"}), QString("[QString p, QString q]"));
        COMPARE_WRONG(sequence<string>, "[]")
        QCOMPARE(typedText(defaultValue<sequence<string>>()), QString("[]"));

        gml::CodeType code("a");
        code.codeSpace(uri("space"));
        sequence<gml::CodeType> codes;
        codes.push_back(code);
        const QVariant list = toQVariant<sequence<gml::CodeType>>(codes);
        QCOMPARE(typedText(list), QString("[QString a]"));
        QVERIFY(!fromQVariant<sequence<gml::CodeType>>(list, metre).front().codeSpace().present());
        QCOMPARE(typedText(defaultValue<sequence<gml::CodeType>>()), QString("[]"));
    }

    void measureSequences()
    {
        compareMeasureSequence<gml::AreaType>();
        compareMeasureSequence<gml::VolumeType>();
    }

    void numberLists()
    {
        using List = gml::MeasureListType;
        const List list = fromQVariant<List>(QVariantList{1, "2.5", "x"}, uri("W"));
        QCOMPARE(list.uom(), std::string("W"));
        QCOMPARE(typedText(toQVariant<List>(list)), QString("[double 1, double 2.5, double 0]"));
        COMPARE_WRONG(List, "[]")
        QCOMPARE(typedText(defaultValue<List>()), QString("[]"));
    }

    void integerLists()
    {
        using List = optional<gml::integerList>;
        gml::integerList numbers;
        numbers.push_back(9007199254740993LL);
        QCOMPARE(typedText(toQVariant<List>(List(numbers))), QString("[qlonglong 9007199254740993]"));
        QCOMPARE(typedText(toQVariant<List>(List())), QString("[]"));
        QCOMPARE(edited<List>(QVariantList{-1, "7", "5000000000"}),
                 QString("[qlonglong -1, qlonglong 7, qlonglong 0]"));
        QVERIFY(fromQVariant<List>(QVariant(), metre).present());
        COMPARE_WRONG(List, "[]")
        QCOMPARE(typedText(defaultValue<List>()), QString("[]"));
    }

    void nullableLists()
    {
        compareNullableList<gml::MeasureOrNullListType>();
        compareNullableList<gml::QuantityExtentType>();
        QCOMPARE(typedText(defaultValue<optional<gml::MeasureOrNullListType>>()), QString("[]"));
        QCOMPARE(typedText(defaultValue<optional<gml::QuantityExtentType>>()), QString("invalid"));
    }

    /// Shown, and never written: an edit removes the position.
    void positions()
    {
        using Position = optional<gml::DirectPositionType>;
        gml::DirectPositionType position;
        position.push_back(458868.5);
        position.push_back(-1.0);
        QCOMPARE(typedText(toQVariant<Position>(Position(position))),
                 QString("[double 458868.5, double -1]"));
        QCOMPARE(typedText(toQVariant<Position>(Position())), QString("invalid"));
        QVERIFY(!fromQVariant<Position>(QVariantList(), metre).present());
        QVERIFY(!fromQVariant<Position>(QVariantList{1.0, 2.0}, metre).present());
        QCOMPARE(typedText(defaultValue<Position>()), QString("[]"));
    }

    /// Values of any simple type do not show, and come back as an empty one.
    void placeholders()
    {
        using Placeholder = optional<simple_type>;
        QCOMPARE(typedText(toQVariant<Placeholder>(Placeholder(simple_type("x")))), QString("invalid"));
        QCOMPARE(typedText(toQVariant<Placeholder>(Placeholder())), QString("invalid"));
        const Placeholder value = fromQVariant<Placeholder>("x", metre);
        QVERIFY(value.present());
        QCOMPARE(typedText(defaultValue<Placeholder>()), QString("invalid"));
    }

    void absenceOfTheLists()
    {
        QVERIFY(!toQVariant<optional<gml::LengthType>>(optional<gml::LengthType>()).isValid());
        const QVariant list =
            toQVariant<optional<gml::MeasureOrNullListType>>(optional<gml::MeasureOrNullListType>());
        QCOMPARE(list.userType(), int(QMetaType::QVariantList));
        QVERIFY(list.toList().isEmpty());
        QVERIFY(fromQVariant<optional<double>>("abc", metre).present());
    }
};

TEST_CLASS(ValueConversionTest, Core)
#include "valueconversiontest.moc"
