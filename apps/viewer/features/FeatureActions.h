#pragma once

#include <QObject>
#include <QVector>

class QAction;
class QMenu;

namespace tolvik::viewer {

class Document;

/// What can be done with the selected features, for menus and keys.
///
/// Hiding, showing, enabling and disabling take in everything below a feature.
class FeatureActions : public QObject
{
    Q_OBJECT

public:
    explicit FeatureActions(Document& document, QObject* parent = nullptr);
    ~FeatureActions() override;

    /// Adds all actions to a menu.
    void addTo(QMenu& menu) const;
    /// Shows a menu with the actions.
    /// \param row the feature under the pointer: where it is not selected, as a disabled one never is, the
    /// actions are for it alone. -1 for the selected features.
    void popUp(int row, const QPoint& globalPosition);

    QAction* hide;
    QAction* show;
    QAction* showOnly;
    QAction* hideAll;
    QAction* showAll;
    QAction* enable;
    QAction* disable;
    QAction* enableAll;
    QAction* selectSiblings;
    QAction* copyIdentifier;
    QAction* goToReferenced;
    QAction* findReferring;
    QAction* remove;

signals:
    /// The features of the rows are to be removed from the document.
    void removalRequested(const QVector<int>& rows);
    /// The features are asked for to which that of the row refers.
    void referencesRequested(int row);
    /// The features are asked for that refer to that of the row.
    void referrersRequested(int row);

private:
    QAction* make(const QString& name, const QString& text, const QKeySequence& key,
                  void (FeatureActions::*slot)());
    QVector<int> targets() const;
    QVector<int> branches() const;
    int target() const;
    void update();

    void hideSelected();
    void showSelected();
    void showOnlySelected();
    void hideEverything();
    void showEverything();
    void enableSelected();
    void disableSelected();
    void enableEverything();
    void selectLikeSiblings();
    void copyIdentifiers();
    void requestReferences();
    void requestReferrers();
    void requestRemoval();

    Document& document;
    QVector<QAction*> groups; // in the order of the menu, null for a line between
    int pointed = -1;
};

} // namespace tolvik::viewer
