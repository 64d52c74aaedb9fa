#pragma once

#include <QString>

namespace tolvik::viewer {

/// Sum, mean, smallest and largest of numbers that come one by one.
class SelectionFigures
{
public:
    /// \param unit of the number, empty for none
    void add(double number, const QString& unit);

    int count() const { return numbers; }
    double sum() const { return total + lost; }
    double mean() const { return sum() / numbers; }
    double smallest() const { return least; }
    double largest() const { return greatest; }
    /// The unit of all the numbers; empty where they have none, or different ones.
    const QString& unit() const { return commonUnit; }

private:
    int numbers = 0;
    // Kept in two parts, so that small numbers count beside large ones.
    double total = 0.0;
    double lost = 0.0;
    double least = 0.0;
    double greatest = 0.0;
    QString commonUnit;
};

} // namespace tolvik::viewer
