#include "apps/viewer/properties/ListEditor.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace tolvik::viewer {

ListEditor::ListEditor(const ValueText& text, QWidget* parent)
    : QFrame(parent), text(text), table(new QTableWidget(0, 1))
{
    setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Raised));
    setAutoFillBackground(true);
    table->setAccessibleName(tr("Entries of the list"));
    table->horizontalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    setFocusProxy(table);
    // A click beside the table, or on a button, is no click on the view behind.
    setFocusPolicy(Qt::ClickFocus);

    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(2);
    auto* const add = addButton(QStringLiteral("+"), tr("Add an entry"), QStringLiteral("addEntry"));
    auto* const remove =
        addButton(QStringLiteral("\u2212"), tr("Remove the entry"), QStringLiteral("removeEntry"));
    auto* const up = addButton(QStringLiteral("\u2191"), tr("Move the entry up"), QStringLiteral("moveUp"));
    auto* const down =
        addButton(QStringLiteral("\u2193"), tr("Move the entry down"), QStringLiteral("moveDown"));
    auto* const done =
        addButton(QStringLiteral("\u2713"), tr("Take the list over"), QStringLiteral("finish"));
    for (QToolButton* const button : {add, remove, up, down}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    buttons->addWidget(done);
    connect(add, &QToolButton::clicked, this, &ListEditor::addEntry);
    connect(remove, &QToolButton::clicked, this, &ListEditor::removeEntry);
    connect(up, &QToolButton::clicked, this, [this] { moveEntry(-1); });
    connect(down, &QToolButton::clicked, this, [this] { moveEntry(1); });
    connect(done, &QToolButton::clicked, this, &ListEditor::finished);
    connect(qApp, &QApplication::focusChanged, this, &ListEditor::noteFocus);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(table);
    layout->addLayout(buttons);
}

void ListEditor::setValue(const QVariant& value)
{
    given = value.toList();
    example = given.isEmpty() ? QVariant(QString()) : given.first();
    table->setRowCount(0);
    for (const QVariant& entry : qAsConst(given)) {
        insertRow(table->rowCount(), text.textOf(entry));
    }
    givenTexts = texts();
    table->setCurrentCell(0, 0);
}

std::optional<QVariant> ListEditor::value(QString& reason) const
{
    const QStringList now = texts();
    QVariantList entries;
    for (int row = 0; row < now.size(); ++row) {
        // An entry that nobody touched stays as it is, and not as its text reads.
        const int former = givenTexts.value(row) == now[row] ? row : givenTexts.indexOf(now[row]);
        const std::optional<QVariant> entry =
            former >= 0 ? std::optional<QVariant>(given[former]) : text.valueOf(now[row], example, reason);
        if (!entry) {
            return std::nullopt;
        }
        entries += *entry;
    }
    return QVariant(entries);
}

bool ListEditor::isChanged() const
{
    return texts() != givenTexts;
}

void ListEditor::addEntry()
{
    const int row = table->currentRow() >= 0 ? table->currentRow() + 1 : table->rowCount();
    insertRow(row, QString());
    table->setCurrentCell(row, 0);
    table->editItem(table->item(row, 0));
}

void ListEditor::removeEntry()
{
    if (table->currentRow() >= 0) {
        table->removeRow(table->currentRow());
    }
}

void ListEditor::moveEntry(int step)
{
    const int row = table->currentRow();
    const int target = row + step;
    if (row < 0 || target < 0 || target >= table->rowCount()) {
        return;
    }
    QTableWidgetItem* const entry = table->takeItem(row, 0);
    table->setItem(row, 0, table->takeItem(target, 0));
    table->setItem(target, 0, entry);
    table->setCurrentCell(target, 0);
}

void ListEditor::noteFocus(QWidget* from, QWidget* to)
{
    // The cell's own editor goes when its entry is taken over; the keyboard goes nowhere for a moment then.
    if (from != nullptr && to != nullptr && isAncestorOf(from) && !isAncestorOf(to)) {
        emit finished();
    }
}

QToolButton* ListEditor::addButton(const QString& sign, const QString& name, const QString& objectName)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setText(sign);
    button->setToolTip(name);
    button->setAccessibleName(name);
    return button;
}

QStringList ListEditor::texts() const
{
    QStringList all;
    for (int row = 0; row < table->rowCount(); ++row) {
        all += table->item(row, 0)->text();
    }
    return all;
}

void ListEditor::insertRow(int row, const QString& entry)
{
    table->insertRow(row);
    table->setItem(row, 0, new QTableWidgetItem(entry));
}

} // namespace tolvik::viewer
