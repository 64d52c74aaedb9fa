#include "scene/AttributeColours.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <QCoreApplication>

namespace tolvik::scene {

namespace {

/// From dark to light, so that the order is seen without the hue.
constexpr QRgb scaleColours[] = {0x440154, 0x443983, 0x31688e, 0x21918c, 0x35b779, 0x90d743, 0xfde725};
constexpr std::size_t classCount = sizeof(scaleColours) / sizeof(*scaleColours);

constexpr QRgb categoryColours[] = {0x0072b2, 0xe69f00, 0x009e73, 0xcc79a7, 0x56b4e9, 0xd55e00, 0xf0e442};
constexpr int categoryCount = sizeof(categoryColours) / sizeof(*categoryColours);

constexpr QRgb otherColour = 0x5c5c66;
constexpr QRgb missingColour = 0xb4b4b4;

bool isNumber(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return std::isfinite(value.toDouble());
    default:
        return false;
    }
}

QString textOf(const QVariant& value)
{
    return value.userType() == QMetaType::QStringList || value.userType() == QMetaType::QVariantList
               ? value.toStringList().join(QStringLiteral(", "))
               : value.toString();
}

/// The smallest round step that cuts a range into at most that many classes.
double roundStep(double range, double count)
{
    const double raw = range / count;
    const double power = std::pow(10, std::floor(std::log10(raw)));
    for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
        if (factor * power >= raw) {
            return factor * power;
        }
    }
    return 10 * power;
}

} // namespace

AttributeColours::AttributeColours(const std::vector<QVariant>& values)
{
    bool hasValue = false;
    bool areNumbers = true;
    for (const QVariant& value : values) {
        hasValue = hasValue || value.isValid();
        areNumbers = areNumbers && (!value.isValid() || isNumber(value));
    }
    hasScale = hasValue && areNumbers;
    if (hasScale) {
        makeScale(values);
    } else {
        makeCategories(values);
    }
    entries.push_back({QColor(missingColour),
                       QCoreApplication::translate("tolvik::scene::AttributeColours", "no value"), 0});
    countValues(values);
}

void AttributeColours::makeScale(const std::vector<QVariant>& values)
{
    double lowest = HUGE_VAL;
    double highest = -HUGE_VAL;
    for (const QVariant& value : values) {
        if (value.isValid()) {
            lowest = std::min(lowest, value.toDouble());
            highest = std::max(highest, value.toDouble());
        }
    }
    if (!(highest > lowest)) {
        bounds = {lowest, lowest};
        entries.push_back({QColor(scaleColours[classCount / 2]), QString::number(lowest), 0});
        return;
    }
    // A step that begins below the lowest value may need one class more.
    double step = roundStep(highest - lowest, classCount);
    double first = std::floor(lowest / step) * step;
    if (first + step * classCount < highest) {
        step = roundStep(step * 1.01, 1);
        first = std::floor(lowest / step) * step;
    }
    bounds = {first};
    while (bounds.back() < highest && bounds.size() <= classCount) {
        bounds.push_back(first + step * static_cast<double>(bounds.size()));
    }
    const std::size_t count = bounds.size() - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t colour = count > 1 ? i * (classCount - 1) / (count - 1) : classCount / 2;
        entries.push_back(
            {QColor(scaleColours[colour]), QStringLiteral("%1 – %2").arg(bounds[i]).arg(bounds[i + 1]), 0});
    }
}

void AttributeColours::makeCategories(const std::vector<QVariant>& values)
{
    std::map<QString, std::size_t> counts;
    for (const QVariant& value : values) {
        if (value.isValid()) {
            ++counts[textOf(value)];
        }
    }
    std::vector<std::pair<QString, std::size_t>> byCount(counts.begin(), counts.end());
    std::stable_sort(byCount.begin(), byCount.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    for (const auto& [name, count] : byCount) {
        if (names.size() < categoryCount) {
            entries.push_back({QColor(categoryColours[names.size()]), name, 0});
            names << name;
        }
    }
    entries.push_back({QColor(otherColour),
                       QCoreApplication::translate("tolvik::scene::AttributeColours", "other values"), 0});
}

std::size_t AttributeColours::classOf(double value) const
{
    const auto above = std::upper_bound(bounds.begin(), bounds.end(), value);
    const auto index = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, above - bounds.begin() - 1));
    return std::min(index, entries.size() - 2);
}

QColor AttributeColours::colourOf(const QVariant& value) const
{
    if (!value.isValid() || entries.empty() || (hasScale && !isNumber(value))) {
        return QColor(missingColour);
    }
    if (hasScale) {
        return QColor(entries[classOf(value.toDouble())].colour);
    }
    const int index = names.indexOf(textOf(value));
    return QColor(index >= 0 ? categoryColours[index] : otherColour);
}

void AttributeColours::countValues(const std::vector<QVariant>& values)
{
    for (const QVariant& value : values) {
        const QColor colour = colourOf(value);
        const auto entry = std::find_if(entries.begin(), entries.end(),
                                        [&colour](const Entry& entry) { return entry.colour == colour; });
        ++entry->count;
    }
    if (!hasScale) {
        const auto isUnused = [](const Entry& entry) { return entry.count == 0; };
        entries.erase(std::remove_if(entries.begin(), entries.end(), isUnused), entries.end());
    }
}

} // namespace tolvik::scene
