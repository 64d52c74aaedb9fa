#include "apps/viewer/properties/AttributeDialog.h"

#include <QComboBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QUrl>

namespace tolvik::viewer {

AttributeDialog::AttributeDialog(QWidget* parent)
    : QDialog(parent), types(new QComboBox), name(new QLineEdit), value(new QLineEdit),
      valueLabel(new QLabel(tr("&Value:"))), unit(new QLineEdit), unitLabel(new QLabel(tr("&Unit:"))),
      message(new QLabel)
{
    setWindowTitle(tr("Add an Attribute"));
    const auto add = [this](const QString& label, AttributeType type) {
        types->addItem(label, static_cast<int>(type));
    };
    add(tr("Text"), AttributeType::Text);
    add(tr("Whole number"), AttributeType::Whole);
    add(tr("Number"), AttributeType::Real);
    add(tr("Date"), AttributeType::Date);
    add(tr("Link"), AttributeType::Link);
    add(tr("Measure"), AttributeType::Measure);
    add(tr("Set of attributes"), AttributeType::Set);
    types->setObjectName(QStringLiteral("type"));
    name->setObjectName(QStringLiteral("name"));
    value->setObjectName(QStringLiteral("value"));
    unit->setObjectName(QStringLiteral("unit"));
    message->setObjectName(QStringLiteral("message"));
    message->setWordWrap(true);
    valueLabel->setBuddy(value);
    unitLabel->setBuddy(unit);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &AttributeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &AttributeDialog::reject);
    connect(types, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &AttributeDialog::showType);
    auto* const layout = new QFormLayout(this);
    layout->addRow(tr("&Type:"), types);
    layout->addRow(tr("&Name:"), name);
    layout->addRow(valueLabel, value);
    layout->addRow(unitLabel, unit);
    layout->addRow(message);
    layout->addRow(buttons);
    showType();
    name->setFocus();
}

QVariantList AttributeDialog::attribute() const
{
    QString reason;
    const std::optional<QVariant> read = text.valueOf(value->text(), example(), reason);
    return {static_cast<int>(type()), name->text(), read.value_or(QVariant()), unit->text()};
}

void AttributeDialog::accept()
{
    QString reason;
    if (name->text().isEmpty()) {
        message->setText(tr("An attribute needs a name."));
        name->setFocus();
    } else if (!text.valueOf(value->text(), example(), reason)) {
        message->setText(reason);
        value->setFocus();
    } else {
        QDialog::accept();
    }
}

AttributeType AttributeDialog::type() const
{
    return static_cast<AttributeType>(types->currentData().toInt());
}

/// A value of the type.
QVariant AttributeDialog::example() const
{
    switch (type()) {
    case AttributeType::Whole:
        return 0;
    case AttributeType::Real:
    case AttributeType::Measure:
        return 0.0;
    case AttributeType::Date:
        return QDate::currentDate();
    case AttributeType::Link:
        return QUrl();
    case AttributeType::Text:
    case AttributeType::Set:
        break;
    }
    return QString();
}

void AttributeDialog::showType()
{
    valueLabel->setVisible(type() != AttributeType::Set);
    value->setVisible(type() != AttributeType::Set);
    unitLabel->setVisible(type() == AttributeType::Measure);
    unit->setVisible(type() == AttributeType::Measure);
    value->setText(text.textOf(example()));
    message->clear();
}

} // namespace tolvik::viewer
