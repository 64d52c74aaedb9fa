#include "apps/viewer/properties/ValueText.h"

#include <cmath>
#include <limits>
#include <QDateTime>
#include <QStringList>
#include <QUrl>

namespace tolvik::viewer {

namespace {

constexpr int mostEntriesInCell = 12;

/// A short format of a locale often has two digits for the year, which says too little of a building.
QString withWholeYear(QString format)
{
    return format.contains(QLatin1String("yyyy"))
               ? format
               : format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
}

template <typename Number>
std::optional<QVariant> ifRead(bool isRead, Number number)
{
    return isRead ? std::optional<QVariant>(QVariant::fromValue(number)) : std::nullopt;
}

} // namespace

ValueKind kindOf(const QVariant& value, const QVariantList& choices)
{
    if (!choices.isEmpty()) {
        return ValueKind::Choice;
    }
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::Bool:
        return ValueKind::Truth;
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return ValueKind::Whole;
    case QMetaType::Double:
        return ValueKind::Real;
    case QMetaType::QDate:
        return ValueKind::Date;
    case QMetaType::QDateTime:
        return ValueKind::DateTime;
    case QMetaType::QString:
        return ValueKind::Text;
    case QMetaType::QUrl:
        return ValueKind::Link;
    case QMetaType::QVariantList:
        return ValueKind::List;
    default:
        return ValueKind::None;
    }
}

QString ValueText::textOf(const QVariant& value) const
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::Double:
        return textOfReal(value.toDouble());
    case QMetaType::Bool:
        return value.toBool() ? tr("yes") : tr("no");
    case QMetaType::QDate:
        return locale.toString(value.toDate(), dateFormat());
    case QMetaType::QDateTime:
        return locale.toString(value.toDateTime(), dateTimeFormat());
    case QMetaType::QVariantList: {
        QStringList texts;
        const QVariantList entries = value.toList();
        for (const QVariant& entry : entries) {
            texts += textOf(entry);
        }
        return texts.join(QStringLiteral("; "));
    }
    default:
        return value.toString();
    }
}

QString ValueText::previewOf(const QVariant& value) const
{
    const int size = value.userType() == QMetaType::QVariantList ? value.toList().size() : 0;
    return size <= mostEntriesInCell ? textOf(value)
                                     : tr("%n entries: %1\u2026", nullptr, size)
                                           .arg(textOf(value.toList().mid(0, mostEntriesInCell)));
}

std::optional<QVariant> ValueText::valueOf(const QString& text, const QVariant& like, QString& reason) const
{
    bool isRead = false;
    std::optional<QVariant> value;
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    switch (static_cast<QMetaType::Type>(like.userType())) {
    case QMetaType::Double:
        if (const std::optional<double> number = realOf(text.trimmed())) {
            return QVariant(*number);
        }
        reason = tr("\"%1\" is not a number.").arg(text);
        return std::nullopt;
    case QMetaType::Int: {
        const int number = plain.toInt(text.trimmed(), &isRead);
        value = ifRead(isRead, number);
        break;
    }
    case QMetaType::LongLong: {
        const qlonglong number = plain.toLongLong(text.trimmed(), &isRead);
        value = ifRead(isRead, number);
        break;
    }
    case QMetaType::ULongLong: {
        const qulonglong number = plain.toULongLong(text.trimmed(), &isRead);
        if (!isRead) {
            reason = tr("\"%1\" is not a whole number from 0 up.").arg(text);
        }
        return ifRead(isRead, number);
    }
    case QMetaType::QDate: {
        // A year with fewer digits would be taken for one of another century.
        const QDate date = locale.toDate(text.trimmed(), dateFormat());
        const QDate isoDate = QDate::fromString(text.trimmed(), Qt::ISODate);
        if (!date.isValid() && !isoDate.isValid()) {
            reason = tr("\"%1\" is not a date such as %2.").arg(text, textOf(QDate::currentDate()));
            return std::nullopt;
        }
        return QVariant(date.isValid() ? date : isoDate);
    }
    case QMetaType::QUrl:
        return QVariant(QUrl(text, QUrl::TolerantMode));
    default:
        return QVariant(text);
    }
    if (!value) {
        reason = tr("\"%1\" is not a whole number.").arg(text);
    }
    return value;
}

QString ValueText::dateFormat() const
{
    return withWholeYear(locale.dateFormat(QLocale::ShortFormat));
}

QString ValueText::dateTimeFormat() const
{
    return dateFormat() + QStringLiteral(" HH:mm:ss");
}

QString ValueText::textOfReal(double value) const
{
    if (std::isnan(value)) {
        return QStringLiteral("NaN");
    }
    if (std::isinf(value)) {
        return value > 0 ? QStringLiteral("INF") : QStringLiteral("-INF");
    }
    const double size = std::abs(value);
    const bool isPlain = size == 0.0 || (size >= 1e-5 && size < 1e15);
    QLocale ungrouped = locale;
    ungrouped.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return ungrouped.toString(value, isPlain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

/// The number that a text means to people, or to XML.
std::optional<double> ValueText::realOf(const QString& text) const
{
    if (text == QLatin1String("INF")) {
        return std::numeric_limits<double>::infinity();
    }
    if (text == QLatin1String("-INF")) {
        return -std::numeric_limits<double>::infinity();
    }
    if (text == QLatin1String("NaN")) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    // With separators of groups, 12.5 would be 125 in some countries.
    for (QLocale each : {locale, QLocale::c()}) {
        each.setNumberOptions(QLocale::RejectGroupSeparator);
        bool isRead = false;
        const double number = each.toDouble(text, &isRead);
        if (isRead && std::isfinite(number)) {
            return number;
        }
    }
    return std::nullopt;
}

} // namespace tolvik::viewer
