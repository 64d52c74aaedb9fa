#include "support/ValueType.h"

#include "support/Tables.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QUrl>

namespace testsupport {

ValueType::ValueType(const QString& name)
{
    static const QRegularExpression pattern("^(?:(optional|sequence)<)?(.*?)>?$");
    const auto match = pattern.match(name);
    form = match.captured(1);
    base = form.isEmpty() ? name : match.captured(2);
}

bool ValueType::isMeasure() const
{
    static const QStringList measures{"gml::MeasureType", "gml::LengthType", "gml::AreaType",
                                      "gml::VolumeType",  "gml::AngleType",  "gml::ScaleType"};
    return measures.contains(base);
}

bool ValueType::isText() const
{
    static const QStringList texts{"string", "gml::CodeType", "gml::TimeUnitType", "gml::StringOrRefType",
                                   "pivotEnergy::LifeCycleStageType"};
    return texts.contains(base);
}

bool ValueType::isNullableList() const
{
    return base == "gml::MeasureOrNullListType" || base == "gml::QuantityExtentType";
}

bool ValueType::isEnumeration() const
{
    return enumerationLiterals().contains(base);
}

QVariant ValueType::fromText(const QString& text) const
{
    if (isNumber()) {
        return text.toDouble();
    }
    if (base == "bool") {
        return text == "true";
    }
    if (base == "int" || base == "core::integerBetween0and4") {
        return text.toInt();
    }
    if (base == "long long") {
        return QVariant(text.toLongLong());
    }
    if (base == "unsigned long long") {
        return QVariant(text.toULongLong());
    }
    if (base == "uri" && form == "optional") {
        return QUrl(text, QUrl::TolerantMode);
    }
    if (isText() || base == "uri" || base == "gml::UnitOfMeasureType") {
        return text;
    }
    if (isEnumeration()) {
        return enumerationLiterals().value(base).contains(text) ? QVariant(text) : QVariant();
    }
    if (base == "date") {
        return QDate::fromString(text, Qt::ISODate);
    }
    if (base == "gyear") {
        return text.toInt();
    }
    if (base == "date_time") {
        return QDateTime::fromString(text, Qt::ISODate);
    }
    if (base == "duration") {
        static const QRegularExpression pattern(
            "^P(?:(\\d+)Y)?(?:(\\d+)M)?(?:(\\d+)D)?(?:T(?:(\\d+)H)?(?:(\\d+)M)?(?:(\\d+)S)?)?$");
        const auto match = pattern.match(text);
        const auto field = [&](int i) { return match.captured(i).toInt(); };
        return QDateTime(QDate(field(1), field(2), field(3)), QTime(field(4), field(5), field(6)));
    }
    QVariantList entries;
    for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
        if (isNullableList()) {
            entries += word;
        } else if (base == "gml::integerList") {
            entries += QVariant(word.toLongLong());
        } else {
            entries += word.toDouble();
        }
    }
    return entries;
}

QVariant ValueType::fromTexts(const QStringList& texts) const
{
    if (base == "simple_type") {
        return QVariant();
    }
    if (form == "sequence") {
        QVariantList entries;
        for (const QString& text : texts) {
            entries += fromText(text);
        }
        return entries;
    }
    if (texts.isEmpty()) {
        const bool isList = isNullableList() || base == "gml::integerList";
        return isList ? QVariant(QVariantList()) : QVariant();
    }
    return fromText(texts.first());
}

QVariant ValueType::defaultValue() const
{
    if (isEnumeration() || base == "simple_type" || base == "gml::QuantityExtentType") {
        return QVariant();
    }
    if (form == "sequence" || base == "gml::MeasureListType" || base == "gml::DirectPositionType" ||
        base == "gml::integerList" || base == "gml::MeasureOrNullListType") {
        return QVariantList();
    }
    if (base == "gml::ScaleType") {
        return 1.0;
    }
    if (isNumber()) {
        return 0.0;
    }
    if (base == "bool") {
        return false;
    }
    if (base == "unsigned long long") {
        return QVariant(qulonglong(0));
    }
    if (base == "int" || base == "long long" || base == "core::integerBetween0and4") {
        return 0;
    }
    if (base == "gyear") {
        return QDate::currentDate().year();
    }
    if (base == "date") {
        return QDate::currentDate();
    }
    if (base == "date_time" || base == "duration") {
        return QDateTime::currentDateTime();
    }
    return QString();
}

} // namespace testsupport
