#pragma once

#include <cstddef>
#include <QColor>
#include <QString>
#include <QVariant>
#include <vector>

namespace tolvik::scene {

/// Colours for the values of an attribute, with a legend: a scale in classes where all values are numbers,
/// else a colour for each of the most frequent values. People who see few colours can tell them apart.
class AttributeColours
{
public:
    struct Entry
    {
        QColor colour;
        /// A value, a class such as "3 – 5", or that the value is another one or missing.
        QString text;
        /// Number of features.
        std::size_t count = 0;
    };

    AttributeColours() = default;
    /// \param values of all features; an invalid one is that of a feature without the attribute
    explicit AttributeColours(const std::vector<QVariant>& values);

    /// That of the first legend entry that fits.
    QColor colourOf(const QVariant& value) const;
    /// In the order in which it is to be shown; entries that no feature has are left out.
    const std::vector<Entry>& legend() const { return entries; }
    /// Whether the values are shown in classes.
    bool isScale() const { return hasScale; }

private:
    void makeScale(const std::vector<QVariant>& values);
    void makeCategories(const std::vector<QVariant>& values);
    std::size_t classOf(double value) const;
    void countValues(const std::vector<QVariant>& values);

    bool hasScale = false;
    /// Of a scale: the lower bound of each class, and the upper one of the last.
    std::vector<double> bounds;
    /// Of categories: the values that have a colour of their own.
    QStringList names;
    std::vector<Entry> entries;
};

} // namespace tolvik::scene
