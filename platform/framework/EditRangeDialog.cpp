#include "framework/EditRangeDialog.h"

namespace tolvik {

EditRangeDialog::EditRangeDialog(const QVector<double>& ranges, QWidget* parent)
    : QDialog(parent), initialRanges(ranges)
{
}

EditRangeDialog::~EditRangeDialog() = default;

QVector<double> EditRangeDialog::getRanges()
{
    return initialRanges;
}

} // namespace tolvik
