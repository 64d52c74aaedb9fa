#pragma once

#include "apps/viewer/edits/PropertyEdit.h"
#include "apps/viewer/features/SlicedWork.h"
#include "apps/viewer/properties/PropertyNode.h"

#include <memory>
#include <QTimer>
#include <QUrl>
#include <QWidget>

class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;

namespace tolvik::viewer {

class Document;
class PropertyFilterModel;
class PropertyTreeModel;
class PropertyView;
class ValueDelegate;

/// The properties of the selected features: those that all of them have, with the value where it is the same
/// in all. An edit goes to all of them, as one step of the document's history.
///
/// Of many features the properties are read in slices; until all are read nothing can be edited.
class PropertyPanel : public QWidget
{
    Q_OBJECT

public:
    /// \param document shown; lives longer than the panel
    explicit PropertyPanel(Document& document, QWidget* parent = nullptr);
    ~PropertyPanel() override;

    /// Whether what is shown is of all selected features.
    bool isComplete() const;

public slots:
    /// Makes the current attribute absent; a generic attribute leaves the feature.
    void removeCurrent();
    /// Asks for an attribute, and adds it to the features, or to the set of attributes that is current.
    void addAttribute();
    /// Asks for a name for the generic attribute that is current.
    void renameCurrent();
    /// Asks for a text, and adds it to a list of texts of the features.
    /// \param list name of the list's element
    /// \param occurrence which of the lists of that name, from 1 up
    void addEntry(const QString& list, int occurrence = 1);

signals:
    /// A link was clicked. One that is a fragment alone names a feature.
    void linkActivated(const QUrl& link);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeHeader();
    void makeView();
    void follow();
    void refreshSoon();
    void refresh();
    void readFeature(int row);
    void showAll();
    void refreshExpansion(const QModelIndex& parent, int first, int last);
    void fillAddMenu();
    void showContextMenu(const QPoint& place);

    PropertyEdit::Features selectedFeatures() const;
    const PropertyNode* currentNode() const;
    QString edit(PropertyEdit::Action action, const MemberPlace& place, const QVariant& value);
    void editOrTell(PropertyEdit::Action action, const MemberPlace& place, const QVariant& value);
    void tell(const QString& message);
    QString titleOf(const PropertyEdit::Features& features) const;

    Document& document;
    PropertyTreeModel* properties;
    PropertyFilterModel* filter;
    PropertyView* view;
    ValueDelegate* delegate;
    QLabel* title;
    QLineEdit* filterLine;
    QToolButton* absentButton;
    QMenu* addMenu;
    QLabel* message;

    QTimer refreshTimer;
    SlicedWork reading;
    QVector<int> rowsToRead;
    std::unique_ptr<PropertyNode> merged;
};

} // namespace tolvik::viewer
