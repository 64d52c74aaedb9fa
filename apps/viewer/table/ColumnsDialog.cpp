#include "apps/viewer/table/ColumnsDialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tolvik::viewer {

ColumnsDialog::ColumnsDialog(const QVector<PropertyPath>& all, const QVector<PropertyPath>& chosen,
                             QWidget* parent)
    : QDialog(parent), paths(all), list(new QListWidget)
{
    setWindowTitle(tr("Columns"));
    list->setObjectName(QStringLiteral("columns"));
    list->setAccessibleName(tr("Columns"));
    for (const PropertyPath& path : all) {
        auto* const item = new QListWidgetItem(toString(path), list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(chosen.contains(path) ? Qt::Checked : Qt::Unchecked);
    }
    auto* const filterLine = new QLineEdit;
    filterLine->setPlaceholderText(tr("Filter columns"));
    filterLine->setAccessibleName(tr("Filter columns"));
    filterLine->setClearButtonEnabled(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* const everything = buttons->addButton(tr("&All"), QDialogButtonBox::ActionRole);
    auto* const none = buttons->addButton(tr("&None"), QDialogButtonBox::ActionRole);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(filterLine);
    layout->addWidget(list);
    layout->addWidget(buttons);
    connect(filterLine, &QLineEdit::textChanged, this, &ColumnsDialog::filter);
    connect(everything, &QPushButton::clicked, this, [this] { setAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { setAll(false); });
    connect(buttons, &QDialogButtonBox::accepted, this, &ColumnsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ColumnsDialog::reject);
    resize(380, 420);
}

QVector<PropertyPath> ColumnsDialog::chosen() const
{
    QVector<PropertyPath> result;
    for (int i = 0; i < paths.size(); ++i) {
        if (list->item(i)->checkState() == Qt::Checked) {
            result.append(paths[i]);
        }
    }
    return result;
}

void ColumnsDialog::filter(const QString& text)
{
    for (int i = 0; i < list->count(); ++i) {
        list->item(i)->setHidden(!list->item(i)->text().contains(text, Qt::CaseInsensitive));
    }
}

/// Chooses all columns that the filter leaves, or none of them.
void ColumnsDialog::setAll(bool chosen)
{
    for (int i = 0; i < list->count(); ++i) {
        if (!list->item(i)->isHidden()) {
            list->item(i)->setCheckState(chosen ? Qt::Checked : Qt::Unchecked);
        }
    }
}

} // namespace tolvik::viewer
