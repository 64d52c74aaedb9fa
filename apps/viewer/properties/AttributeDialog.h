#pragma once

#include "apps/viewer/edits/GenericAttributes.h"
#include "apps/viewer/properties/ValueText.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;

namespace tolvik::viewer {

/// Asks for a new generic attribute: its type, name, value and, of a measure, unit.
class AttributeDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AttributeDialog(QWidget* parent = nullptr);

    /// Type, name, value and unit, as PropertyEdit::AddAttribute takes them. Valid when the dialog was
    /// accepted.
    QVariantList attribute() const;

public slots:
    /// Stays open, and says why, where there is no name or the value is none of the type.
    void accept() override;

private:
    AttributeType type() const;
    QVariant example() const;
    void showType();

    ValueText text;
    QComboBox* types;
    QLineEdit* name;
    QLineEdit* value;
    QLabel* valueLabel;
    QLineEdit* unit;
    QLabel* unitLabel;
    QLabel* message;
};

} // namespace tolvik::viewer
