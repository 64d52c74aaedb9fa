#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <QColor>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <utility>
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
    explicit AttributeColours(std::vector<QVariant> values);

    /// That of the first legend entry that fits.
    QColor colourOf(const QVariant& value) const;
    /// In the order in which it is to be shown; entries that no feature has are left out.
    const std::vector<Entry>& legend() const { return entries; }
    /// Whether the values are shown in classes.
    bool isScale() const { return hasScale; }

private:
    friend class AttributeColouring;

    void makeScale(double lowest, double highest);
    void makeCategories(const QStringList& mostFrequent);
    void leaveOutUnused();
    std::size_t classOf(double value) const;
    /// Which of the entries, as long as unused ones are among them. The value is one of those that were
    /// looked at.
    std::size_t entryOf(const QVariant& value) const;

    bool hasScale = false;
    /// Of a scale: the lower bound of each class, and the upper one of the last.
    std::vector<double> bounds;
    /// Of categories: the values that have a colour of their own.
    QStringList names;
    std::vector<Entry> entries;
};

/// Finds the colours of features in short steps, for a thread that has other things to do meanwhile.
/// \code
/// AttributeColouring colouring(values);
/// for (std::size_t step = 0; step < colouring.steps(); ++step) {
///     colouring.doStep(step);
/// }
/// colouring.colourOf(3);    // of the fourth value
/// colouring.takeColours();  // with the legend
/// \endcode
class AttributeColouring
{
public:
    /// \param values of all features; an invalid one is that of a feature without the attribute
    explicit AttributeColouring(std::vector<QVariant> values);

    std::size_t steps() const { return 3 * values.size(); }
    /// \param step from 0 on, each once
    void doStep(std::size_t step);

    /// How many values there are.
    std::size_t size() const { return values.size(); }
    /// The colour of a value, when all steps are done.
    const QColor& colourOf(std::size_t index) const { return found.entries[entryOf[index]].colour; }
    /// All colours and what they mean, when all steps are done. colourOf() has no answer then any more.
    AttributeColours takeColours();

private:
    void look(const QVariant& value);
    void count(const QVariant& value);
    void colour(std::size_t index);
    void makeEntries();

    std::vector<QVariant> values;
    bool hasValue = false;
    bool areNumbers = true;
    double lowest = HUGE_VAL;
    double highest = -HUGE_VAL;
    /// Of categories.
    std::map<QString, std::size_t> counts;
    /// The most frequent ones so far, the most frequent first, and of equally frequent ones the first by
    /// name.
    std::vector<std::pair<std::size_t, QString>> mostFrequent;
    AttributeColours found;
    std::vector<std::uint8_t> entryOf;
};

} // namespace tolvik::scene
