#include "UI/Models/CityGMLModel/properties/ValueConversionDefinition.h"

#include "core/doubleBetween0and1.hxx"
#include "core/integerBetween0and4.hxx"
#include "gml/AngleType.hxx"
#include "gml/AreaType.hxx"
#include "gml/CodeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/doubleList.hxx"
#include "gml/doubleOrNull.hxx"
#include "gml/doubleOrNullList.hxx"
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

#include <QDate>
#include <QDateTime>
#include <QTime>
#include <QUrl>

#include <limits>
#include <type_traits>

namespace tolvik {

using namespace schema;

namespace {

std::string text(const QVariant& value)
{
    return value.toString().toStdString();
}

/// A number that an editor of 32-bit numbers can give; 0 for any other, where Qt would leave its low bits.
int wholeNumber(const QVariant& value)
{
    // Qt would give the upper half of the unsigned numbers as negative ones.
    const bool isUnsigned = value.userType() == QMetaType::ULongLong || value.userType() == QMetaType::ULong;
    if (isUnsigned && value.toULongLong() > std::numeric_limits<int>::max()) {
        return 0;
    }
    const qlonglong number = value.toLongLong();
    return static_cast<int>(number) == number ? static_cast<int>(number) : 0;
}

unsigned unsignedNumber(const QVariant& value)
{
    const qulonglong number = value.toULongLong();
    return static_cast<unsigned>(number) == number ? static_cast<unsigned>(number) : 0;
}

/// Calendar fields and a time of day as a variant. Seconds lose their fraction, and a zone is not looked at.
QVariant momentVariant(const QDate& day, int hours, int minutes, double seconds)
{
    // 60 and more are no seconds of a time of day, however many they are.
    const int wholeSeconds = static_cast<int>(qBound(-1.0, seconds, 60.0));
    return QVariant(QDateTime(day, QTime(hours, minutes, wholeSeconds), Qt::LocalTime));
}

template <typename T>
constexpr bool isMeasure = std::is_base_of_v<gml::MeasureType, T>;

/// Types that are a text with attributes at most.
template <typename T>
constexpr bool isText = std::is_base_of_v<string, T>;

} // namespace

template <>
struct Conversion<double>
{
    static QVariant show(double value) { return QVariant(value); }
    static double read(const QVariant& value, const uri&) { return value.toDouble(); }
    static QVariant start() { return QVariant(0.0); }
};

template <>
struct Conversion<bool>
{
    static QVariant show(bool value) { return QVariant(value); }
    static bool read(const QVariant& value, const uri&) { return value.toBool(); }
    static QVariant start() { return QVariant(false); }
};

template <>
struct Conversion<int>
{
    static QVariant show(int value) { return QVariant(value); }
    static int read(const QVariant& value, const uri&) { return wholeNumber(value); }
    static QVariant start() { return QVariant(0); }
};

/// Shows all 64 bits and reads 32 of them, as editors of whole numbers give no more.
template <>
struct Conversion<long long>
{
    static QVariant show(long long value) { return QVariant(value); }
    static long long read(const QVariant& value, const uri&) { return wholeNumber(value); }
    static QVariant start() { return QVariant(0); }
};

template <>
struct Conversion<unsigned long long>
{
    static QVariant show(unsigned long long value) { return QVariant(value); }
    static unsigned long long read(const QVariant& value, const uri&) { return unsignedNumber(value); }
    static QVariant start() { return QVariant(qulonglong(0)); }
};

template <>
struct Conversion<core::integerBetween0and4>
{
    static QVariant show(const core::integerBetween0and4& value)
    {
        return QVariant(static_cast<int>(static_cast<long long>(value)));
    }
    static core::integerBetween0and4 read(const QVariant& value, const uri&) { return wholeNumber(value); }
    static QVariant start() { return QVariant(0); }
};

template <>
struct Conversion<core::doubleBetween0and1>
{
    static QVariant show(const core::doubleBetween0and1& value)
    {
        return QVariant(static_cast<double>(value));
    }
    static core::doubleBetween0and1 read(const QVariant& value, const uri&) { return value.toDouble(); }
    static QVariant start() { return QVariant(0.0); }
};

/// The variant holds the number; the unit goes another way.
template <typename T>
struct Conversion<T, std::enable_if_t<isMeasure<T>>>
{
    static QVariant show(const T& value) { return QVariant(static_cast<double>(value)); }
    static T read(const QVariant& value, const uri& uom) { return T(value.toDouble(), uom); }
    static QVariant start() { return QVariant(std::is_same_v<T, gml::ScaleType> ? 1.0 : 0.0); }
};

/// The attributes of the old text, such as a code space, are not those of the new one.
template <typename T>
struct Conversion<T, std::enable_if_t<isText<T>>>
{
    static QVariant show(const T& value) { return textVariant(value); }
    static T read(const QVariant& value, const uri&) { return T(text(value)); }
    static QVariant start() { return QVariant(QString()); }
};

template <>
struct Conversion<uri>
{
    static QVariant show(const uri& value) { return textVariant(value); }
    static uri read(const QVariant& value, const uri&) { return uri(text(value)); }
    static QVariant start() { return QVariant(QString()); }
};

/// An optional uri shows as a link, where a required one shows as text.
template <>
struct Conversion<optional<uri>>
{
    static QVariant show(const optional<uri>& value)
    {
        return value.present() ? QVariant(QUrl(QString::fromStdString(value.get()), QUrl::TolerantMode))
                               : QVariant();
    }
    static optional<uri> read(const QVariant& value, const uri&) { return optional<uri>(uri(text(value))); }
    static QVariant start() { return QVariant(QString()); }
};

template <>
struct Conversion<gml::UnitOfMeasureType>
{
    static QVariant show(const gml::UnitOfMeasureType& value) { return shown(value.uom()); }
    static gml::UnitOfMeasureType read(const QVariant& value, const uri&)
    {
        return gml::UnitOfMeasureType(uri(text(value)));
    }
    static QVariant start() { return QVariant(QString()); }
};

template <>
struct Conversion<date>
{
    static QVariant show(const date& value)
    {
        return QVariant(QDate(value.year(), value.month(), value.day()));
    }
    static date read(const QVariant& value, const uri&)
    {
        const QDate day = value.toDate();
        return date(static_cast<unsigned short>(day.year()), static_cast<unsigned short>(day.month()),
                    static_cast<unsigned short>(day.day()));
    }
    static QVariant start() { return QVariant(QDate::currentDate()); }
};

template <>
struct Conversion<gyear>
{
    static QVariant show(const gyear& value) { return QVariant(value.year()); }
    static gyear read(const QVariant& value, const uri&) { return gyear(wholeNumber(value)); }
    static QVariant start() { return QVariant(QDate::currentDate().year()); }
};

template <>
struct Conversion<date_time>
{
    static QVariant show(const date_time& value)
    {
        return momentVariant(QDate(value.year(), value.month(), value.day()), value.hours(), value.minutes(),
                             value.seconds());
    }
    static date_time read(const QVariant& value, const uri&)
    {
        const QDate day = value.toDateTime().date();
        const QTime time = value.toDateTime().time();
        return date_time(day.year(), static_cast<unsigned short>(day.month()),
                         static_cast<unsigned short>(day.day()), static_cast<unsigned short>(time.hour()),
                         static_cast<unsigned short>(time.minute()), time.second());
    }
    static QVariant start() { return QVariant(QDateTime::currentDateTime()); }
};

/// Shows a length of time as if it were a moment; an edit of that cannot be told from one, and removes the
/// attribute.
template <>
struct Conversion<optional<duration>>
{
    static QVariant show(const optional<duration>& value)
    {
        if (!value.present()) {
            return QVariant();
        }
        return momentVariant(QDate(static_cast<int>(value->years()), static_cast<int>(value->months()),
                                   static_cast<int>(value->days())),
                             static_cast<int>(value->hours()), static_cast<int>(value->minutes()),
                             value->seconds());
    }
    static optional<duration> read(const QVariant&, const uri&) { return optional<duration>(); }
    static QVariant start() { return QVariant(QDateTime::currentDateTime()); }
};

/// Repeated values: each entry of the list converts like a single one.
template <typename T>
struct Conversion<sequence<T>>
{
    static QVariant show(const sequence<T>& value)
    {
        QVariantList list;
        list.reserve(static_cast<int>(value.size()));
        for (const T& entry : value) {
            list.append(shown(entry));
        }
        return list;
    }
    static sequence<T> read(const QVariant& value, const uri& uom)
    {
        sequence<T> result;
        const QVariantList entries = value.toList();
        for (const QVariant& entry : entries) {
            result.push_back(Conversion<T>::read(entry, uom));
        }
        return result;
    }
    static QVariant start() { return QVariantList(); }
};

namespace {

QVariant entryVariant(double value)
{
    return QVariant(value);
}

QVariant entryVariant(long long value)
{
    return QVariant(value);
}

QVariant entryVariant(const gml::doubleOrNull& value)
{
    return textVariant(value);
}

/// A schema list as a list of variants.
template <typename List>
QVariant listVariant(const List& values)
{
    QVariantList list;
    list.reserve(static_cast<int>(values.size()));
    for (const auto& value : values) {
        list.append(entryVariant(value));
    }
    return list;
}

gml::doubleOrNullList doubleOrNullList(const QVariant& value)
{
    gml::doubleOrNullList result;
    const QVariantList entries = value.toList();
    for (const QVariant& entry : entries) {
        result.push_back(gml::doubleOrNull(text(entry)));
    }
    return result;
}

} // namespace

template <>
struct Conversion<gml::MeasureListType>
{
    static QVariant show(const gml::MeasureListType& value) { return listVariant(value); }
    static gml::MeasureListType read(const QVariant& value, const uri& uom)
    {
        gml::doubleList numbers;
        const QVariantList entries = value.toList();
        for (const QVariant& entry : entries) {
            numbers.push_back(entry.toDouble());
        }
        return gml::MeasureListType(numbers, uom);
    }
    static QVariant start() { return QVariantList(); }
};

/// Shows coordinates and takes none: there is no reference system for new ones. An edit removes the position.
template <>
struct Conversion<optional<gml::DirectPositionType>>
{
    static QVariant show(const optional<gml::DirectPositionType>& value)
    {
        return value.present() ? listVariant(value.get()) : QVariant();
    }
    static optional<gml::DirectPositionType> read(const QVariant&, const uri&)
    {
        return optional<gml::DirectPositionType>();
    }
    static QVariant start() { return QVariantList(); }
};

template <>
struct Conversion<optional<gml::integerList>>
{
    static QVariant show(const optional<gml::integerList>& value)
    {
        return value.present() ? listVariant(value.get()) : QVariantList();
    }
    static optional<gml::integerList> read(const QVariant& value, const uri&)
    {
        gml::integerList numbers;
        const QVariantList entries = value.toList();
        for (const QVariant& entry : entries) {
            numbers.push_back(wholeNumber(entry));
        }
        return optional<gml::integerList>(numbers);
    }
    static QVariant start() { return QVariantList(); }
};

/// Entries are numbers or the reason why there is none, so that they stay text both ways.
template <typename T>
struct NullableListConversion
{
    static QVariant show(const optional<T>& value)
    {
        return value.present() ? listVariant(value.get()) : QVariantList();
    }
    static optional<T> read(const QVariant& value, const uri& uom)
    {
        return optional<T>(T(doubleOrNullList(value), uom));
    }
};

template <>
struct Conversion<optional<gml::MeasureOrNullListType>> : NullableListConversion<gml::MeasureOrNullListType>
{
    static QVariant start() { return QVariantList(); }
};

template <>
struct Conversion<optional<gml::QuantityExtentType>> : NullableListConversion<gml::QuantityExtentType>
{
    static QVariant start() { return QVariant(); }
};

/// A value of any simple type cannot be shown, and an edit leaves an empty one.
template <>
struct Conversion<optional<simple_type>>
{
    static QVariant show(const optional<simple_type>&) { return QVariant(); }
    static optional<simple_type> read(const QVariant&, const uri&)
    {
        return optional<simple_type>(simple_type());
    }
    static QVariant start() { return QVariant(); }
};

TOLVIK_INSTANTIATE_CONVERSION(double);
TOLVIK_INSTANTIATE_CONVERSION(optional<double>);
TOLVIK_INSTANTIATE_CONVERSION(bool);
TOLVIK_INSTANTIATE_CONVERSION(optional<bool>);
TOLVIK_INSTANTIATE_CONVERSION(optional<int>);
TOLVIK_INSTANTIATE_CONVERSION(long long);
TOLVIK_INSTANTIATE_CONVERSION(optional<long long>);
TOLVIK_INSTANTIATE_CONVERSION(optional<unsigned long long>);
TOLVIK_INSTANTIATE_CONVERSION(core::integerBetween0and4);
TOLVIK_INSTANTIATE_CONVERSION(optional<core::doubleBetween0and1>);
TOLVIK_INSTANTIATE_CONVERSION(gml::MeasureType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::MeasureType>);
TOLVIK_INSTANTIATE_CONVERSION(gml::LengthType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::LengthType>);
TOLVIK_INSTANTIATE_CONVERSION(gml::AreaType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::AreaType>);
TOLVIK_INSTANTIATE_CONVERSION(gml::VolumeType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::VolumeType>);
TOLVIK_INSTANTIATE_CONVERSION(gml::AngleType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::AngleType>);
TOLVIK_INSTANTIATE_CONVERSION(gml::ScaleType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::ScaleType>);
TOLVIK_INSTANTIATE_CONVERSION(string);
TOLVIK_INSTANTIATE_CONVERSION(optional<string>);
TOLVIK_INSTANTIATE_CONVERSION(gml::CodeType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::CodeType>);
TOLVIK_INSTANTIATE_CONVERSION(gml::TimeUnitType);
TOLVIK_INSTANTIATE_CONVERSION(pivotEnergy::LifeCycleStageType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::StringOrRefType>);
TOLVIK_INSTANTIATE_CONVERSION(uri);
TOLVIK_INSTANTIATE_CONVERSION(optional<uri>);
TOLVIK_INSTANTIATE_CONVERSION(gml::UnitOfMeasureType);
TOLVIK_INSTANTIATE_CONVERSION(date);
TOLVIK_INSTANTIATE_CONVERSION(optional<date>);
TOLVIK_INSTANTIATE_CONVERSION(gyear);
TOLVIK_INSTANTIATE_CONVERSION(optional<gyear>);
TOLVIK_INSTANTIATE_CONVERSION(optional<date_time>);
TOLVIK_INSTANTIATE_CONVERSION(optional<duration>);
TOLVIK_INSTANTIATE_CONVERSION(sequence<string>);
TOLVIK_INSTANTIATE_CONVERSION(sequence<gml::CodeType>);
TOLVIK_INSTANTIATE_CONVERSION(sequence<gml::AreaType>);
TOLVIK_INSTANTIATE_CONVERSION(sequence<gml::VolumeType>);
TOLVIK_INSTANTIATE_CONVERSION(gml::MeasureListType);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::DirectPositionType>);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::integerList>);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::MeasureOrNullListType>);
TOLVIK_INSTANTIATE_CONVERSION(optional<gml::QuantityExtentType>);
TOLVIK_INSTANTIATE_CONVERSION(optional<simple_type>);

// Has a default and is bound by no attribute.
template CITYGMLMODEL_EXPORT QVariant defaultValue<gml::NullEnumeration>();

} // namespace tolvik
