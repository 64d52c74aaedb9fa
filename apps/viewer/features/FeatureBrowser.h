#pragma once

#include "apps/viewer/features/FeatureSearch.h"
#include "apps/viewer/features/SlicedWork.h"

#include <QWidget>
#include <vector>

class QAbstractProxyModel;
class QComboBox;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QTabWidget;
class QToolButton;
class QTreeView;

namespace tolvik::viewer {

class Document;
class FeatureListModel;
class FilteredTreeModel;
class RowSelectionModel;
class SelectionLink;

/// The features of a document as a tree and as a list, with a search over both.
class FeatureBrowser : public QWidget
{
    Q_OBJECT

public:
    /// \param document lives longer
    explicit FeatureBrowser(Document& document, QWidget* parent = nullptr);
    ~FeatureBrowser() override;

    /// The tree of all features. While a filter is on it is hidden behind another one.
    QTreeView* tree() const { return wholeTree; }
    QTreeView* list() const { return flatList; }
    FeatureSearch& search() { return finder; }

    /// Whether what the user has asked for does not show yet.
    bool isSearching() const { return typing.isActive() || finder.isRunning() || filtering.isRunning(); }

    /// Makes a feature the current one and brings it into sight; a filter that hides it is given up.
    /// \param row row of the list of features
    void goTo(int row);

public slots:
    void focusSearch();
    void goToNextHit();
    void goToPreviousHit();
    void expandAll();
    void collapseAll();

signals:
    /// A context menu is asked for.
    /// \param row row of the feature under the pointer, -1 if there is none
    void menuRequested(int row, const QPoint& globalPosition);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget* makeSearchBar();
    QWidget* makeFilterBar();
    QTreeView* makeView(const QString& name, QAbstractProxyModel& model);
    void linkSelection(QTreeView& view, QAbstractProxyModel& proxy);
    void showTypes();
    void showHits();
    void showFilter();
    void showFilteredTree();
    void showWhole();
    void jumpTo(int row);
    void startSearch();
    void showCurrent();
    void repaintViews();
    QTreeView* shownTree() const;

    Document& document;
    FeatureSearch finder;
    SlicedWork filtering;
    FeatureListModel* rows;
    FilteredTreeModel* branches;
    QLineEdit* searchLine = nullptr;
    QLabel* hitCount = nullptr;
    QComboBox* typeChoice = nullptr;
    QToolButton* onlyHits = nullptr;
    QTabWidget* tabs = nullptr;
    QStackedWidget* trees = nullptr;
    QTreeView* wholeTree = nullptr;
    QTreeView* filteredTree = nullptr;
    QTreeView* flatList = nullptr;
    RowSelectionModel* treeSelection = nullptr;
    std::vector<SelectionLink*> links;
    QTimer typing;
    bool isJumpWanted = false;
};

} // namespace tolvik::viewer
