#pragma once

#include "apps/viewer/properties/ValueText.h"

#include <functional>
#include <QStyledItemDelegate>
#include <QUrl>

namespace tolvik::viewer {

/// Draws values and offers an editor for each kind of them, over any model that answers the roles of
/// ValueRoles.h. What is absent is grey, what cannot be changed has the ground of the window, a link looks
/// like one and a truth value is a check box.
///
/// An entered value goes to the function that the delegate is given. Where that refuses the value, or the
/// text in the editor is none of its kind, refused() says why, and the editor stays open unless the user has
/// left it.
class ValueDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Gives a value to what an index stands for.
    /// \return why it cannot be; empty if it is done
    using Enter = std::function<QString(const QModelIndex& index, const QVariant& value)>;

    explicit ValueDelegate(Enter enter, QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Without effect: what is entered goes to the function.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

signals:
    /// A value was not taken.
    void refused(const QString& reason);
    /// A value was taken.
    void entered();
    /// A link was clicked.
    void linkActivated(const QUrl& link);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    bool handleKey(QWidget* editor, int key, Qt::KeyboardModifiers modifiers);
    bool enterFrom(QWidget* editor, bool evenUnchanged);
    void enterAndClose(QWidget* editor, EndEditHint hint);
    void leave(QWidget* editor);
    bool enterTruth(const QModelIndex& index);

    Enter enter;
    ValueText text;
};

/// Where a value leads to when it is clicked; empty for one that is no link. A text that begins with `#`
/// leads to the feature of that identifier.
QUrl linkOf(const QVariant& value);

} // namespace tolvik::viewer
