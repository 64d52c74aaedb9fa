#include "apps/common/MemberText.h"

#include "UI/Models/CityGMLModel/properties/BoundProperty.h"

#include <algorithm>
#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

namespace tolvik::apps {

namespace {

/// The time zone at the end of a date or time; empty where it has none.
QString zoneOf(const QString& text)
{
    static const QRegularExpression zone(QStringLiteral("(Z|[+-]\\d\\d:\\d\\d)$"));
    return zone.match(text).captured();
}

QString textOfReal(double number)
{
    if (qIsNaN(number)) {
        return QStringLiteral("NaN");
    }
    if (qIsInf(number)) {
        return number > 0 ? QStringLiteral("INF") : QStringLiteral("-INF");
    }
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

/// A value in the words of the schema.
/// \param former text of the value that it replaces
QString textOf(const QVariant& value, const QString& former)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::Double:
        return textOfReal(value.toDouble());
    case QMetaType::Int:
        // Of numbers only a year has a zone.
        return value.toString() + zoneOf(former);
    case QMetaType::QDate:
        return value.toDate().toString(Qt::ISODate) + zoneOf(former);
    case QMetaType::QDateTime:
        return value.toDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")) + zoneOf(former);
    case QMetaType::QVariantList: {
        QStringList words;
        const QVariantList entries = value.toList();
        for (const QVariant& entry : entries) {
            words += textOf(entry, QString());
        }
        return words.join(' ');
    }
    default:
        return value.toString();
    }
}

/// The text of the document behind a property of one value; empty where there is none.
QString textOf(const CoreProperty& property)
{
    const auto* const bound = dynamic_cast<const BoundProperty*>(&property);
    return bound != nullptr ? QString::fromStdString(bound->member().text().value_or(std::string()))
                            : QString();
}

/// Whether a property is of a length of time, which it offers a moment for while it is absent.
bool isDuration(const CoreProperty& property)
{
    const auto* const bound = dynamic_cast<const BoundProperty*>(&property);
    // The one element of that type in all schemas.
    return bound != nullptr && bound->member().name() == "duration";
}

/// Changes as few entries as can be: those at the beginning and at the end that stay are not touched.
bool setEntries(citygml::Member& list, const QVariantList& former, const QVariantList& wanted)
{
    // A new entry gets a text and nothing else, while a measure needs a unit.
    const auto isText = [](const QVariant& entry) { return entry.userType() == QMetaType::QString; };
    const bool canGrow = std::all_of(wanted.begin(), wanted.end(), isText);
    if (static_cast<int>(list.size()) != former.size() || (wanted.size() > former.size() && !canGrow)) {
        return false;
    }
    const int most = std::min(former.size(), wanted.size());
    int first = 0;
    while (first < most && former[first] == wanted[first]) {
        ++first;
    }
    int last = 0;
    while (last < most - first && former[former.size() - 1 - last] == wanted[wanted.size() - 1 - last]) {
        ++last;
    }
    const int formerEnd = former.size() - last;
    const int wantedEnd = wanted.size() - last;
    bool isDone = true;
    for (int i = first; i < std::min(formerEnd, wantedEnd); ++i) {
        isDone =
            list.entryAt(static_cast<std::size_t>(i)).setText(textOf(wanted[i], QString()).toStdString()) &&
            isDone;
    }
    for (int i = formerEnd; i > wantedEnd; --i) {
        list.take(static_cast<std::size_t>(i - 1));
    }
    for (int i = formerEnd; i < wantedEnd; ++i) {
        isDone = list.add(wanted[i].toString().toStdString()) && isDone;
        list.put(static_cast<std::size_t>(i), list.take(list.size() - 1));
    }
    return isDone;
}

} // namespace

QVariant editedValueOf(CoreProperty& property)
{
    QVariant value = property.value();
    if (value.userType() != QMetaType::QDateTime) {
        return value;
    }
    const QString text = textOf(property);
    const bool isDuration = text.startsWith('P') || text.startsWith(QLatin1String("-P"));
    return isDuration ? QVariant(text) : value;
}

QVariant offeredValueOf(CoreProperty& property)
{
    const QVariant value = editedValueOf(property);
    if (!value.isValid()) {
        return isDuration(property) ? QVariant(QStringLiteral("P1Y")) : property.defaultValue();
    }
    return value.userType() == QMetaType::QUrl && property.editable() ? QVariant(textOf(property)) : value;
}

bool setKept(citygml::Member& member, const QVariant& former, const QVariant& value)
{
    if (member.isList()) {
        return setEntries(member, former.toList(), value.toList());
    }
    const QString formerText = QString::fromStdString(member.text().value_or(std::string()));
    return member.setText(textOf(value, formerText).toStdString());
}

} // namespace tolvik::apps
