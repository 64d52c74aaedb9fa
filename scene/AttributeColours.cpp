#include "scene/AttributeColours.h"

#include <algorithm>
#include <cmath>
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

AttributeColours::AttributeColours(std::vector<QVariant> values)
{
    AttributeColouring colouring(std::move(values));
    for (std::size_t step = 0; step < colouring.steps(); ++step) {
        colouring.doStep(step);
    }
    *this = colouring.takeColours();
}

void AttributeColours::makeScale(double lowest, double highest)
{
    hasScale = true;
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

void AttributeColours::makeCategories(const QStringList& mostFrequent)
{
    names = mostFrequent;
    for (int i = 0; i < names.size(); ++i) {
        entries.push_back({QColor(categoryColours[i]), names[i], 0});
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

std::size_t AttributeColours::entryOf(const QVariant& value) const
{
    if (!value.isValid()) {
        return entries.size() - 1;
    }
    if (hasScale) {
        return classOf(value.toDouble());
    }
    const int index = names.indexOf(textOf(value));
    return index >= 0 ? static_cast<std::size_t>(index) : entries.size() - 2;
}

void AttributeColours::leaveOutUnused()
{
    const auto isUnused = [](const Entry& entry) { return entry.count == 0; };
    entries.erase(std::remove_if(entries.begin(), entries.end(), isUnused), entries.end());
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

AttributeColouring::AttributeColouring(std::vector<QVariant> values)
    : values(std::move(values)), entryOf(this->values.size())
{
    if (this->values.empty()) {
        makeEntries();
    }
}

void AttributeColouring::doStep(std::size_t step)
{
    const std::size_t index = step % values.size();
    switch (step / values.size()) {
    case 0:
        return look(values[index]);
    case 1:
        return count(values[index]);
    default:
        if (index == 0) {
            makeEntries();
        }
        return colour(index);
    }
}

void AttributeColouring::look(const QVariant& value)
{
    if (value.isValid()) {
        hasValue = true;
        areNumbers = areNumbers && isNumber(value);
        lowest = std::min(lowest, value.toDouble());
        highest = std::max(highest, value.toDouble());
    }
}

void AttributeColouring::count(const QVariant& value)
{
    if (areNumbers || !value.isValid()) {
        return;
    }
    const QString name = textOf(value);
    const std::size_t number = ++counts[name];
    const auto same = std::find_if(mostFrequent.begin(), mostFrequent.end(),
                                   [&name](const auto& each) { return each.second == name; });
    if (same != mostFrequent.end()) {
        mostFrequent.erase(same);
    }
    // Whoever is less frequent than all of these will not become one of them without being counted again.
    const auto place = std::find_if(mostFrequent.begin(), mostFrequent.end(), [&](const auto& each) {
        return each.first < number || (each.first == number && name < each.second);
    });
    mostFrequent.insert(place, {number, name});
    if (mostFrequent.size() > categoryCount) {
        mostFrequent.pop_back();
    }
}

void AttributeColouring::makeEntries()
{
    if (hasValue && areNumbers) {
        found.makeScale(lowest, highest);
    } else {
        QStringList names;
        for (const auto& each : mostFrequent) {
            names << each.second;
        }
        found.makeCategories(names);
    }
    found.entries.push_back({QColor(missingColour),
                             QCoreApplication::translate("tolvik::scene::AttributeColours", "no value"), 0});
}

void AttributeColouring::colour(std::size_t index)
{
    const std::size_t entry = found.entryOf(values[index]);
    entryOf[index] = static_cast<std::uint8_t>(entry);
    ++found.entries[entry].count;
    // Both may be so many that nobody should wait for their end.
    values[index].clear();
    if (!counts.empty()) {
        counts.erase(counts.begin());
    }
}

AttributeColours AttributeColouring::takeColours()
{
    if (!found.hasScale) {
        found.leaveOutUnused();
    }
    return std::move(found);
}

} // namespace tolvik::scene
