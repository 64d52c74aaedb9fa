#include "apps/viewer/features/FeatureBrowser.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureListModel.h"
#include "apps/viewer/features/FeatureTreeView.h"
#include "apps/viewer/features/FilteredTreeModel.h"
#include "apps/viewer/selection/SelectionLink.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace tolvik::viewer {

namespace {

// As long as a user types on, nothing is looked for.
constexpr int typingPause = 120;
// A filtered tree of more nodes stays closed at first: it would not be read to its end anyway.
constexpr int mostOpened = 20000;

/// Marks the hits of a search.
class HitDelegate : public QStyledItemDelegate
{
public:
    HitDelegate(const FeatureSearch& search, const QAbstractProxyModel& proxy, QObject* parent)
        : QStyledItemDelegate(parent), search(search), proxy(proxy)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (search.hasQuery() && search.isHit(rowOf(index))) {
            QColor mark = option->palette.color(QPalette::Highlight);
            mark.setAlpha(70);
            option->backgroundBrush = mark;
        }
    }

private:
    int rowOf(const QModelIndex& index) const
    {
        QModelIndex source = index;
        const QAbstractItemModel* model = &proxy;
        while (const auto* const each = qobject_cast<const QAbstractProxyModel*>(model)) {
            source = each->mapToSource(source);
            model = each->sourceModel();
        }
        return source.row();
    }

    const FeatureSearch& search;
    const QAbstractProxyModel& proxy;
};

QToolButton* makeButton(const QString& text, const QString& tip, Qt::ArrowType arrow)
{
    auto* const button = new QToolButton;
    button->setText(text);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

FeatureBrowser::FeatureBrowser(Document& document, QWidget* parent)
    : QWidget(parent), document(document), finder(document),
      rows(new FeatureListModel(document.model(), this)),
      branches(new FilteredTreeModel(document.tree(), this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(makeSearchBar());
    layout->addWidget(makeFilterBar());

    wholeTree = makeView(QStringLiteral("featureTree"), document.tree());
    wholeTree->setAccessibleName(tr("Feature tree"));
    filteredTree = makeView(QStringLiteral("filteredTree"), *branches);
    filteredTree->setAccessibleName(tr("Filtered feature tree"));
    trees = new QStackedWidget;
    trees->addWidget(wholeTree);
    trees->addWidget(filteredTree);
    flatList = makeView(QStringLiteral("featureList"), *rows);
    flatList->setAccessibleName(tr("Feature list"));
    flatList->setRootIsDecorated(false);
    flatList->header()->setSortIndicator(-1, Qt::AscendingOrder);
    flatList->setSortingEnabled(true);
    for (QTreeView* const view : {wholeTree, filteredTree}) {
        view->header()->setStretchLastSection(false);
        view->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        view->setColumnWidth(1, 120);
    }
    flatList->setColumnWidth(0, 150);
    flatList->setColumnWidth(1, 110);

    tabs = new QTabWidget;
    tabs->setDocumentMode(true);
    tabs->addTab(trees, tr("&Tree"));
    tabs->addTab(flatList, tr("&List"));
    layout->addWidget(tabs);

    document.tree().setSelectionModel(wholeTree->selectionModel());
    typing.setSingleShot(true);
    typing.setInterval(typingPause);
    connect(&typing, &QTimer::timeout, this, &FeatureBrowser::startSearch);
    connect(&finder, &FeatureSearch::typesChanged, this, &FeatureBrowser::showTypes);
    connect(&finder, &FeatureSearch::done, this, [this] {
        showHits();
        showFilter();
    });
    // A large selection is replaced without telling the views what is no longer selected.
    connect(&document.selection(), &QItemSelectionModel::selectionChanged, this,
            &FeatureBrowser::repaintViews);
    // The rows that are being looked at are no more, or others; the search begins anew by itself.
    connect(branches, &FilteredTreeModel::stale, &filtering, &SlicedWork::stop);
    connect(&document.model(), &QAbstractItemModel::modelAboutToBeReset, &filtering, &SlicedWork::stop);
    connect(tabs, &QTabWidget::currentChanged, this, &FeatureBrowser::showCurrent);
}

FeatureBrowser::~FeatureBrowser() = default;

QWidget* FeatureBrowser::makeSearchBar()
{
    auto* const bar = new QWidget;
    auto* const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    searchLine = new QLineEdit;
    searchLine->setObjectName(QStringLiteral("search"));
    searchLine->setPlaceholderText(tr("Search"));
    searchLine->setAccessibleName(tr("Search for features"));
    searchLine->setToolTip(tr("Words in the name, identifier or type; type:Window, name:north,\n"
                              "height>3, function=1000 for attributes. Enter goes to the next hit."));
    searchLine->setClearButtonEnabled(true);
    searchLine->installEventFilter(this);
    auto* const previous = makeButton(tr("Previous"), tr("Previous hit"), Qt::UpArrow);
    previous->setObjectName(QStringLiteral("previousHit"));
    auto* const next = makeButton(tr("Next"), tr("Next hit"), Qt::DownArrow);
    next->setObjectName(QStringLiteral("nextHit"));
    hitCount = new QLabel;
    hitCount->setObjectName(QStringLiteral("hitCount"));
    layout->addWidget(searchLine, 1);
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addWidget(hitCount);
    connect(searchLine, &QLineEdit::textEdited, &typing, QOverload<>::of(&QTimer::start));
    // The button that clears the line edits nothing.
    connect(searchLine, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty()) {
            startSearch();
        }
    });
    connect(previous, &QToolButton::clicked, this, &FeatureBrowser::goToPreviousHit);
    connect(next, &QToolButton::clicked, this, &FeatureBrowser::goToNextHit);
    return bar;
}

QWidget* FeatureBrowser::makeFilterBar()
{
    auto* const bar = new QWidget;
    auto* const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    typeChoice = new QComboBox;
    typeChoice->setObjectName(QStringLiteral("typeFilter"));
    typeChoice->setAccessibleName(tr("Filter by type"));
    typeChoice->setToolTip(tr("Show only features of one type"));
    typeChoice->addItem(tr("All types"));
    typeChoice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    onlyHits = new QToolButton;
    onlyHits->setObjectName(QStringLiteral("onlyHits"));
    onlyHits->setText(tr("Only hits"));
    onlyHits->setToolTip(tr("Show only the features that the search has found"));
    onlyHits->setCheckable(true);
    onlyHits->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(typeChoice, 1);
    layout->addWidget(onlyHits);
    connect(typeChoice, QOverload<int>::of(&QComboBox::activated), this,
            [this] { finder.setType(typeChoice->currentData().toString()); });
    connect(onlyHits, &QToolButton::toggled, &finder, &FeatureSearch::setOnlyHits);
    return bar;
}

QTreeView* FeatureBrowser::makeView(const QString& name, QAbstractProxyModel& model)
{
    auto* const view = new FeatureTreeView;
    view->setObjectName(name);
    // Without it a view asks each row for its height.
    view->setUniformRowHeights(true);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->setModel(&model);
    view->setItemDelegate(new HitDelegate(finder, model, view));
    connect(view, &QWidget::customContextMenuRequested, this, [this, view](const QPoint& position) {
        QModelIndex index = view->indexAt(position);
        const QAbstractItemModel* each = view->model();
        while (const auto* const proxy = qobject_cast<const QAbstractProxyModel*>(each)) {
            index = proxy->mapToSource(index);
            each = proxy->sourceModel();
        }
        emit menuRequested(index.row(), view->viewport()->mapToGlobal(position));
    });
    linkSelection(*view, model);
    return view;
}

/// The filtered tree stands on the tree, whose selection stands on that of the list.
void FeatureBrowser::linkSelection(QTreeView& view, QAbstractProxyModel& proxy)
{
    auto* const selection = new RowSelectionModel(&proxy, &view);
    view.setSelectionModel(selection);
    if (&proxy == &document.tree()) {
        treeSelection = selection;
        // A new layout of the tree moves nothing, and to note each selected row for it takes longest of all.
        disconnect(&proxy, &QAbstractItemModel::layoutAboutToBeChanged, selection, nullptr);
        disconnect(&proxy, &QAbstractItemModel::layoutChanged, selection, nullptr);
    }
    RowSelectionModel& source = &proxy == branches ? *treeSelection : document.selection();
    links.push_back(new SelectionLink(*selection, proxy, source, this));
}

bool FeatureBrowser::eventFilter(QObject* object, QEvent* event)
{
    if (object == searchLine && event->type() == QEvent::KeyPress) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if ((key->modifiers() & Qt::ShiftModifier) != 0) {
                goToPreviousHit();
            } else {
                goToNextHit();
            }
            return true;
        }
        if (key->key() == Qt::Key_Escape && !searchLine->text().isEmpty()) {
            searchLine->clear();
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

void FeatureBrowser::focusSearch()
{
    searchLine->setFocus(Qt::ShortcutFocusReason);
    searchLine->selectAll();
}

void FeatureBrowser::startSearch()
{
    typing.stop();
    isJumpWanted = !searchLine->text().isEmpty();
    finder.setQuery(searchLine->text());
}

void FeatureBrowser::goToNextHit()
{
    if (typing.isActive() || finder.isRunning()) {
        startSearch();
        return;
    }
    jumpTo(finder.nextHit(document.selection().currentIndex().row()));
}

void FeatureBrowser::goToPreviousHit()
{
    jumpTo(finder.previousHit(document.selection().currentIndex().row()));
}

void FeatureBrowser::jumpTo(int row)
{
    if (row >= 0) {
        document.goTo(row);
        showCurrent();
        showHits();
    }
}

void FeatureBrowser::goTo(int row)
{
    if (finder.isFiltering() && !finder.remaining().contains(row)) {
        typeChoice->setCurrentIndex(0);
        finder.setType(QString());
        onlyHits->setChecked(false);
        showWhole();
    }
    document.goTo(row);
    showCurrent();
}

void FeatureBrowser::showTypes()
{
    const QString chosen = typeChoice->currentData().toString();
    typeChoice->clear();
    typeChoice->addItem(tr("All types"));
    for (auto each = finder.types().cbegin(); each != finder.types().cend(); ++each) {
        //: A type of features, and how many there are
        typeChoice->addItem(tr("%1 (%L2)").arg(each.key()).arg(each.value()), each.key());
    }
    const int index = typeChoice->findData(chosen);
    typeChoice->setCurrentIndex(chosen.isEmpty() || index < 0 ? 0 : index);
    if (!chosen.isEmpty() && index < 0) {
        finder.setType(QString());
    }
}

void FeatureBrowser::showHits()
{
    const int current = document.selection().currentIndex().row();
    if (isJumpWanted) {
        isJumpWanted = false;
        if (!finder.isHit(current) && !finder.hits().isEmpty()) {
            jumpTo(finder.nextHit(current));
            return;
        }
    }
    const int place = finder.hits().indexOf(current);
    if (!finder.hasQuery()) {
        hitCount->clear();
    } else if (finder.hits().isEmpty()) {
        hitCount->setText(tr("no hits"));
    } else if (place < 0) {
        hitCount->setText(tr("%Ln hit(s)", nullptr, finder.hits().size()));
    } else {
        hitCount->setText(tr("%L1 of %L2").arg(place + 1).arg(finder.hits().size()));
    }
    repaintViews();
}

void FeatureBrowser::showFilter()
{
    if (!finder.isFiltering()) {
        showWhole();
        return;
    }
    rows->restrict(finder.remaining());
    branches->discard();
    filtering.start(
        finder.remaining().size(),
        [this](int i) {
            branches->collect(
                document.tree().mapFromSource(document.model().index(finder.remaining()[i], 0)));
        },
        [this] { showFilteredTree(); });
}

void FeatureBrowser::showFilteredTree()
{
    branches->show();
    trees->setCurrentWidget(filteredTree);
    if (branches->size() <= mostOpened) {
        filteredTree->expandAll();
    }
    for (SelectionLink* const link : links) {
        link->follow();
    }
    showCurrent();
}

void FeatureBrowser::showWhole()
{
    filtering.stop();
    if (rows->rowCount() != document.model().rowCount()) {
        rows->showAllRows();
    }
    if (trees->currentWidget() != wholeTree) {
        trees->setCurrentWidget(wholeTree);
        branches->discard();
        branches->show();
        for (SelectionLink* const link : links) {
            link->follow();
        }
        showCurrent();
    }
}

QTreeView* FeatureBrowser::shownTree() const
{
    return trees->currentWidget() == filteredTree ? filteredTree : wholeTree;
}

void FeatureBrowser::showCurrent()
{
    QTreeView* const view = tabs->currentWidget() == flatList ? flatList : shownTree();
    if (view->currentIndex().isValid()) {
        view->scrollTo(view->currentIndex());
    }
}

void FeatureBrowser::repaintViews()
{
    for (const QTreeView* const view : {wholeTree, filteredTree, flatList}) {
        view->viewport()->update();
    }
}

void FeatureBrowser::expandAll()
{
    shownTree()->expandAll();
}

void FeatureBrowser::collapseAll()
{
    shownTree()->collapseAll();
}

} // namespace tolvik::viewer
