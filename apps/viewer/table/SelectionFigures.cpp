#include "apps/viewer/table/SelectionFigures.h"

#include <algorithm>
#include <cmath>

namespace tolvik::viewer {

void SelectionFigures::add(double number, const QString& unit)
{
    const double next = total + number;
    if (std::isfinite(next)) {
        lost += std::abs(total) >= std::abs(number) ? (total - next) + number : (number - next) + total;
    }
    total = next;
    least = numbers == 0 ? number : std::min(least, number);
    greatest = numbers == 0 ? number : std::max(greatest, number);
    if (numbers == 0) {
        commonUnit = unit;
    } else if (commonUnit != unit) {
        commonUnit.clear();
    }
    ++numbers;
}

} // namespace tolvik::viewer
