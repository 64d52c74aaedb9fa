#include "apps/viewer/properties/ValueDelegate.h"

#include "apps/viewer/properties/ListEditor.h"
#include "apps/viewer/properties/ValueEditors.h"
#include "apps/viewer/properties/ValueRoles.h"

#include <algorithm>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QToolTip>
#include <utility>

namespace tolvik::viewer {

namespace {

constexpr const char* indexName = "valueIndex";
constexpr int linesWidth = 240;
constexpr int linesHeight = 190;

bool isEditable(const QModelIndex& index)
{
    return (index.flags() & Qt::ItemIsEditable) != 0;
}

bool isTruth(const QModelIndex& index)
{
    return index.data(Qt::CheckStateRole).isValid();
}

bool isLink(const QModelIndex& index)
{
    return !linkOf(index.data(ValueRole)).isEmpty();
}

ValueEditor& editorIn(QWidget* widget)
{
    return dynamic_cast<ValueEditor&>(*widget);
}

QRect checkRect(const QStyleOptionViewItem& option)
{
    const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    return style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, option.widget);
}

/// Where the text of a cell is drawn, no wider than it is.
QRect textRect(const QStyleOptionViewItem& option)
{
    const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    QRect rect = style->subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget);
    rect.setWidth(
        std::min(rect.width(), option.fontMetrics.horizontalAdvance(option.text) + 2 * rect.height() / 3));
    return rect;
}

} // namespace

QUrl linkOf(const QVariant& value)
{
    if (value.userType() == QMetaType::QUrl) {
        return value.toUrl();
    }
    const QString text = value.userType() == QMetaType::QString ? value.toString() : QString();
    const bool isReference = text.size() > 1 && text.startsWith('#');
    const bool isAddress =
        text.startsWith(QLatin1String("http://")) || text.startsWith(QLatin1String("https://"));
    return isReference || isAddress ? QUrl(text, QUrl::TolerantMode) : QUrl();
}

ValueDelegate::ValueDelegate(Enter enter, QObject* parent)
    : QStyledItemDelegate(parent), enter(std::move(enter))
{
}

QWidget* ValueDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                     const QModelIndex& index) const
{
    QWidget* const editor = makeValueEditor(index.data(OfferedRole), index.data(ChoicesRole).toList(),
                                            index.data(SuggestionsRole).toStringList(), text, parent);
    if (editor == nullptr) {
        return nullptr;
    }
    editor->setProperty(indexName, QVariant::fromValue(QPersistentModelIndex(index)));
    editor->setAutoFillBackground(true);
    auto* const self = const_cast<ValueDelegate*>(this);
    if (auto* const choice = qobject_cast<QComboBox*>(editor)) {
        connect(choice, QOverload<int>::of(&QComboBox::activated), self,
                [self, choice] { self->enterAndClose(choice, NoHint); });
    }
    if (auto* const list = qobject_cast<ListEditor*>(editor)) {
        connect(list, &ListEditor::finished, self, [self, list] { self->enterAndClose(list, NoHint); });
    }
    return editor;
}

void ValueDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    // What the user has typed stays when the value changes elsewhere.
    ValueEditor& valueEditor = editorIn(editor);
    if (!valueEditor.isChanged() || !editor->isVisible()) {
        valueEditor.setValue(index.data(OfferedRole));
    }
}

void ValueDelegate::setModelData(QWidget* /*editor*/, QAbstractItemModel* /*model*/,
                                 const QModelIndex& /*index*/) const
{
}

void ValueDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    if (!editorIn(editor).hasLines()) {
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
        if (qobject_cast<QComboBox*>(editor) != nullptr) {
            // A narrow column, such as that of the units, would leave no room beside the arrow.
            QRect rect = editor->geometry();
            rect.setLeft(std::min(rect.left(), rect.right() - editor->minimumSizeHint().width()));
            editor->setGeometry(rect);
        }
        return;
    }
    const QRect around = editor->parentWidget()->rect();
    QRect rect = option.rect;
    rect.setWidth(std::min(std::max(rect.width(), linesWidth), around.width()));
    rect.setHeight(std::min(linesHeight, around.height()));
    rect.moveLeft(std::max(0, std::min(rect.left(), around.right() - rect.width())));
    rect.moveTop(std::max(0, std::min(rect.top(), around.bottom() - rect.height())));
    editor->setGeometry(rect);
}

void ValueDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->textElideMode = Qt::ElideRight;
    const auto paint = [option](QPalette::ColorRole role, const QColor& color) {
        option->palette.setColor(QPalette::Active, role, color);
        option->palette.setColor(QPalette::Inactive, role, color);
    };
    if (index.data(AbsentRole).toBool()) {
        paint(QPalette::Text, option->palette.color(QPalette::Disabled, QPalette::Text));
    }
    if (!index.data(OfferedRole).isValid()) {
        return;
    }
    if (index.data(DifferingRole).toBool()) {
        option->font.setItalic(true);
    } else if (isLink(index)) {
        option->font.setUnderline(true);
        paint(QPalette::Text, option->palette.color(QPalette::Link));
    }
    if (!isEditable(index)) {
        option->backgroundBrush = option->palette.brush(QPalette::Window);
    }
}

bool ValueDelegate::eventFilter(QObject* watched, QEvent* event)
{
    auto* const editor = qobject_cast<QWidget*>(watched);
    if (editor == nullptr || dynamic_cast<ValueEditor*>(editor) == nullptr) {
        return QStyledItemDelegate::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (handleKey(editor, key->key(), key->modifiers())) {
            return true;
        }
    } else if (event->type() == QEvent::FocusOut) {
        // A calendar or a list that pops up takes the keyboard for a while.
        const bool isPoppingUp = QApplication::activePopupWidget() != nullptr;
        if (!isPoppingUp && !editor->isAncestorOf(QApplication::focusWidget()) && editor->isVisible()) {
            leave(editor);
        }
        return false;
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

/// \return whether the key ends the editing, or would
bool ValueDelegate::handleKey(QWidget* editor, int key, Qt::KeyboardModifiers modifiers)
{
    const bool isEnter = key == Qt::Key_Enter || key == Qt::Key_Return;
    if (isEnter && (!editorIn(editor).hasLines() || (modifiers & Qt::ControlModifier) != 0)) {
        enterAndClose(editor, SubmitModelCache);
        return true;
    }
    if (!editorIn(editor).hasLines() && (key == Qt::Key_Tab || key == Qt::Key_Backtab)) {
        enterAndClose(editor, key == Qt::Key_Tab ? EditNextItem : EditPreviousItem);
        return true;
    }
    return false;
}

/// \param evenUnchanged whether a value that was only offered is entered too
/// \return false where the value was refused
bool ValueDelegate::enterFrom(QWidget* editor, bool evenUnchanged)
{
    const auto index = editor->property(indexName).value<QPersistentModelIndex>();
    if (!index.isValid() || (!evenUnchanged && !editorIn(editor).isChanged())) {
        return true;
    }
    const QPointer<QWidget> held = editor;
    QString reason;
    const std::optional<QVariant> value = editorIn(editor).value(reason);
    if (value) {
        reason = enter(index, *value);
    }
    if (value && reason.isEmpty()) {
        emit entered();
        return true;
    }
    if (held != nullptr && held->isVisible()) {
        QToolTip::showText(editor->mapToGlobal(QPoint(0, editor->height())), reason, editor);
    }
    emit refused(reason);
    return false;
}

void ValueDelegate::enterAndClose(QWidget* editor, EndEditHint hint)
{
    if (!editor->property(indexName).isValid()) {
        // It is being closed, and so loses the keyboard.
        return;
    }
    const QPointer<QWidget> held = editor;
    if (enterFrom(editor, true) && held != nullptr) {
        editor->setProperty(indexName, QVariant());
        emit closeEditor(editor, hint);
    }
}

/// The user went elsewhere: what is refused is lost, and only then is it said.
void ValueDelegate::leave(QWidget* editor)
{
    const QPointer<QWidget> held = editor;
    enterFrom(editor, false);
    if (held != nullptr) {
        emit closeEditor(editor, NoHint);
    }
}

bool ValueDelegate::editorEvent(QEvent* event, QAbstractItemModel* /*model*/,
                                const QStyleOptionViewItem& option, const QModelIndex& index)
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* const mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton) {
            return false;
        }
        if (isTruth(index) && isEditable(index) && checkRect(cell).contains(mouse->pos())) {
            return enterTruth(index);
        }
        if (isLink(index) && textRect(cell).contains(mouse->pos())) {
            emit linkActivated(linkOf(index.data(ValueRole)));
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress && isTruth(index) && isEditable(index)) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        return (key == Qt::Key_Space || key == Qt::Key_Select) && enterTruth(index);
    }
    return false;
}

/// Turns a truth value over; several that differ become true.
bool ValueDelegate::enterTruth(const QModelIndex& index)
{
    const QString reason = enter(index, index.data(Qt::CheckStateRole).toInt() != Qt::Checked);
    if (reason.isEmpty()) {
        emit entered();
    } else {
        emit refused(reason);
    }
    return true;
}

} // namespace tolvik::viewer
