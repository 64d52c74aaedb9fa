#include "apps/viewer/view/PictureDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>

namespace tolvik::viewer {

namespace {

constexpr int largestSide = 16384;

QSpinBox* makeSide(int value)
{
    auto* const side = new QSpinBox;
    side->setRange(1, largestSide);
    side->setValue(value);
    return side;
}

} // namespace

PictureDialog::PictureDialog(const QSize& size, QWidget* parent)
    : QDialog(parent), width(makeSide(size.width())), height(makeSide(size.height())),
      clear(new QCheckBox(tr("Leave the background out")))
{
    setWindowTitle(tr("Save Picture"));
    auto* const form = new QFormLayout(this);
    form->addRow(tr("&Width in pixels"), width);
    form->addRow(tr("&Height in pixels"), height);
    form->addRow(clear);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

PictureDialog::~PictureDialog() = default;

QSize PictureDialog::pictureSize() const
{
    return QSize(width->value(), height->value());
}

bool PictureDialog::isClear() const
{
    return clear->isChecked();
}

} // namespace tolvik::viewer
