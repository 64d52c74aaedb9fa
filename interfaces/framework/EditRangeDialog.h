#pragma once

#include "PlatformExport.h"

#include <QDialog>
#include <QVector>

namespace tolvik {

/// Base of the dialogs with which a host edits a vector of numbers that belongs to a model's presentation.
/// The base shows nothing and leaves layout and widgets to the dialog of the model.
class TOLVIK_PLATFORM_EXPORT EditRangeDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param ranges the numbers to edit
    /// \param parent window that the dialog belongs to, or null
    explicit EditRangeDialog(const QVector<double>& ranges, QWidget* parent = nullptr);
    ~EditRangeDialog() override;

    /// The numbers as they stand in the dialog, whether it was accepted or not. Here those given at
    /// construction.
    virtual QVector<double> getRanges();

private:
    QVector<double> initialRanges;
};

} // namespace tolvik
