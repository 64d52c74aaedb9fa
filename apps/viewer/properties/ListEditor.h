#pragma once

#include "apps/viewer/properties/ValueEditors.h"

#include <QFrame>

class QTableWidget;
class QToolButton;

namespace tolvik::viewer {

/// Edits a list in a small table, one entry a row: entries can be changed, added, removed and moved.
class ListEditor : public QFrame, public ValueEditor
{
    Q_OBJECT

public:
    ListEditor(const ValueText& text, QWidget* parent);

    void setValue(const QVariant& value) override;
    std::optional<QVariant> value(QString& reason) const override;
    bool isChanged() const override;
    bool hasLines() const override { return true; }

public slots:
    void addEntry();
    void removeEntry();
    /// \param step -1 for up, 1 for down
    void moveEntry(int step);

signals:
    /// The user is done with the list: the button for that, or the keyboard went elsewhere.
    void finished();

private:
    void noteFocus(QWidget* from, QWidget* to);
    QToolButton* addButton(const QString& sign, const QString& name, const QString& objectName);
    QStringList texts() const;
    void insertRow(int row, const QString& entry);

    ValueText text;
    QTableWidget* table;
    /// Of what type an entry is, as far as the list told.
    QVariant example = QString();
    QVariantList given;
    QStringList givenTexts;
};

} // namespace tolvik::viewer
