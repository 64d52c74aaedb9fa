#include "apps/viewer/table/AttributeTable.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/properties/ValueDelegate.h"
#include "apps/viewer/table/ColumnsDialog.h"
#include "apps/viewer/table/ColumnSettings.h"
#include "gml/AbstractFeatureType.hxx"

#include <algorithm>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace tolvik::viewer {

namespace {

// So many features show which attributes are in use; all others are looked at in the background.
constexpr int featuresAtOnce = 50;
constexpr int mostColumnsAtFirst = 14;
// A description may be long; the user can make its column wider.
constexpr int widestAtFirst = 320;
constexpr int filterDelayMilliseconds = 250;

bool isName(const PropertyPath& path)
{
    const QString name = toString(path);
    return name == QLatin1String("Fields/Id") || name == QLatin1String("Fields/Name");
}

/// The columns for one who has chosen none: how the features are called, and what they have.
QVector<PropertyPath> firstColumns(const QVector<PropertyPath>& all, const QVector<bool>& used)
{
    QVector<PropertyPath> columns;
    std::copy_if(all.begin(), all.end(), std::back_inserter(columns), isName);
    for (int i = 0; i < all.size() && columns.size() < mostColumnsAtFirst; ++i) {
        const bool isSaidByTable = toString(all[i]) == QLatin1String("Fields/ClassType");
        if (used[i] && !isName(all[i]) && !isSaidByTable) {
            columns.append(all[i]);
        }
    }
    return columns;
}

/// A text for one cell of the clipboard, as spreadsheets read it.
QString quoted(QString text)
{
    const bool needsQuotes = text.contains('\t') || text.contains('\n') || text.contains('"');
    return needsQuotes ? '"' + text.replace('"', QStringLiteral("\"\"")) + '"' : text;
}

} // namespace

AttributeTable::AttributeTable(Document& document, QWidget* parent)
    : QWidget(parent), document(document), model(new AttributeTableModel(document, this)),
      view(new QTableView), types(new QComboBox), filterLine(new QLineEdit), message(new QLabel),
      figuresLabel(new QLabel)
{
    makeHeader();
    makeTable();
    refreshTimer.setSingleShot(true);
    refreshTimer.setInterval(0);
    connect(&refreshTimer, &QTimer::timeout, this, &AttributeTable::fillTypes);
    connect(&document.model(), &QAbstractItemModel::modelReset, this, &AttributeTable::refreshSoon);
    connect(&document.model(), &QAbstractItemModel::rowsInserted, this, &AttributeTable::refreshSoon);
    connect(&document.model(), &QAbstractItemModel::rowsRemoved, this, &AttributeTable::refreshSoon);
    connect(&document.model(), &QAbstractItemModel::modelAboutToBeReset, this, &AttributeTable::stop);
    connect(&document.model(), &QAbstractItemModel::rowsAboutToBeInserted, this, &AttributeTable::stop);
    connect(&document.model(), &QAbstractItemModel::rowsAboutToBeRemoved, this, &AttributeTable::stop);
}

AttributeTable::~AttributeTable()
{
    // An editor that is open enters what it holds as long as it can.
    hide();
}

void AttributeTable::makeHeader()
{
    types->setObjectName(QStringLiteral("tableType"));
    types->setAccessibleName(tr("Type of the features"));
    types->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    filterLine->setObjectName(QStringLiteral("tableFilter"));
    filterLine->setPlaceholderText(tr("Filter rows"));
    filterLine->setAccessibleName(tr("Filter rows"));
    filterLine->setClearButtonEnabled(true);
    auto* const columns = new QToolButton;
    columns->setObjectName(QStringLiteral("chooseColumns"));
    columns->setText(tr("Columns\u2026"));
    connect(columns, &QToolButton::clicked, this, &AttributeTable::chooseColumns);
    connect(types, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &AttributeTable::useType);
    filterTimer.setSingleShot(true);
    filterTimer.setInterval(filterDelayMilliseconds);
    connect(filterLine, &QLineEdit::textChanged, &filterTimer, QOverload<>::of(&QTimer::start));
    connect(&filterTimer, &QTimer::timeout, this, [this] { model->setFilter(filterLine->text()); });

    auto* const tools = new QHBoxLayout;
    tools->addWidget(types);
    tools->addWidget(filterLine);
    tools->addWidget(columns);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addLayout(tools);
    layout->addWidget(view);
    layout->addWidget(message);
    layout->addWidget(figuresLabel);
    message->setObjectName(QStringLiteral("tableMessage"));
    message->setWordWrap(true);
    message->setFrameStyle(QFrame::StyledPanel);
    message->hide();
    figuresLabel->setObjectName(QStringLiteral("tableFigures"));
    figuresLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    figuresLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void AttributeTable::makeTable()
{
    view->setObjectName(QStringLiteral("attributeTable"));
    view->setAccessibleName(tr("Attributes"));
    view->setModel(model);
    view->setSortingEnabled(true);
    view->sortByColumn(-1, Qt::AscendingOrder);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    view->horizontalHeader()->setSectionsMovable(true);
    view->horizontalHeader()->setHighlightSections(false);
    connect(view->horizontalHeader(), &QHeaderView::sectionMoved, this,
            [this] { setChosenColumns(type(), shownColumns()); });
    // The first rows tell how wide a column has to be: to ask for more takes long.
    view->horizontalHeader()->setResizeContentsPrecision(featuresAtOnce);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 8);
    setFocusProxy(view);
    auto* const delegate = new ValueDelegate(
        [this](const QModelIndex& index, const QVariant& value) { return model->enter(index, value); }, this);
    view->setItemDelegate(delegate);
    connect(delegate, &ValueDelegate::refused, this, &AttributeTable::tell);
    connect(delegate, &ValueDelegate::entered, this, [this] { tell(QString()); });
    connect(delegate, &ValueDelegate::linkActivated, this, &AttributeTable::linkActivated);
    figureTimer.setSingleShot(true);
    figureTimer.setInterval(0);
    connect(&figureTimer, &QTimer::timeout, this, &AttributeTable::beginFigures);
    connect(&document.editRunner(), &EditRunner::ended, this, &AttributeTable::figureSoon);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AttributeTable::figureSoon);
    connect(model, &QAbstractItemModel::modelReset, this, &AttributeTable::figureSoon);
    connect(model, &QAbstractItemModel::dataChanged, this, &AttributeTable::figureSoon);
    connect(model, &QAbstractItemModel::layoutChanged, this, &AttributeTable::figureSoon);
    connect(model, &AttributeTableModel::progressed, this, [this](int done, int count) {
        figuresLabel->setText(tr("Reading: %1 of %2").arg(done).arg(count));
    });
    connect(model, &AttributeTableModel::arranged, this, &AttributeTable::figureSoon);

    const auto add = [this](const QString& text, const QKeySequence& keys, auto slot) {
        auto* const action = new QAction(text, view);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, slot);
        view->addAction(action);
    };
    add(tr("&Copy"), QKeySequence::Copy, &AttributeTable::copy);
    add(tr("Copy with &Titles"), QKeySequence(), &AttributeTable::copyWithTitles);
    add(tr("&Select the Features"), QKeySequence(), &AttributeTable::selectFeatures);
    add(tr("C&olumns\u2026"), QKeySequence(), &AttributeTable::chooseColumns);
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void AttributeTable::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (isStale) {
        refreshSoon();
    }
}

/// Nothing is read as long as nobody looks.
void AttributeTable::refreshSoon()
{
    isStale = true;
    if (isVisible()) {
        refreshTimer.start();
    }
}

/// Rows are about to become others.
void AttributeTable::stop()
{
    columnSearch.stop();
    figuring.stop();
    figureTimer.stop();
    model->setType(std::string());
}

void AttributeTable::showType(const QString& type)
{
    if (isStale) {
        fillTypes();
    }
    const int found = types->findData(type);
    if (found >= 0) {
        types->setCurrentIndex(found);
    }
}

QString AttributeTable::type() const
{
    return isStale ? QString() : types->currentData().toString();
}

/// Offers the types of the document's features. The one that is shown stays, if it is among them.
void AttributeTable::fillTypes()
{
    isStale = false;
    refreshTimer.stop();
    // Labels of a type share one text, so that its address tells it from the others.
    QHash<const std::string*, int> counts;
    const CityGMLModel& features = document.model();
    for (int row = 0; row < features.rowCount(); ++row) {
        ++counts[&features.getFeature(row)->typeLabel.str()];
    }
    QMap<QString, int> sorted;
    for (auto count = counts.constBegin(); count != counts.constEnd(); ++count) {
        sorted[QString::fromStdString(*count.key())] += count.value();
    }
    const QString former = types->currentData().toString();
    const QSignalBlocker blocker(types);
    types->clear();
    for (auto count = sorted.constBegin(); count != sorted.constEnd(); ++count) {
        types->addItem(tr("%1 (%2)").arg(count.key()).arg(count.value()), count.key());
    }
    types->setCurrentIndex(std::max(0, types->findData(former)));
    useType();
}

void AttributeTable::useType()
{
    const QString type = types->currentData().toString();
    columnSearch.stop();
    allColumns.clear();
    usedColumns.clear();
    model->setType(type.toStdString());
    const QVector<int> rows = model->featureRows();
    for (int i = 0; i < std::min(featuresAtOnce, rows.size()); ++i) {
        AttributeRows::collectPaths(document.model(), rows[i], allColumns, usedColumns);
    }
    setColumns(chosenColumns(type).value_or(firstColumns(allColumns, usedColumns)));
    findColumns();
}

/// Looks in the background for attributes that only some features have.
void AttributeTable::findColumns()
{
    const QVector<int> rows = model->featureRows().mid(std::min(featuresAtOnce, model->featureCount()));
    columnSearch.start(
        rows.size(),
        [this, rows](int step) {
            AttributeRows::collectPaths(document.model(), rows[step], allColumns, usedColumns);
        },
        [] {});
}

void AttributeTable::setColumns(const QVector<PropertyPath>& columns)
{
    if (columns == shownColumns()) {
        return;
    }
    model->setColumns(columns);
    // The user may have moved the former ones.
    QHeaderView* const header = view->horizontalHeader();
    const QSignalBlocker blocker(header);
    for (int column = 0; column < columns.size(); ++column) {
        header->moveSection(header->visualIndex(column), column);
    }
    view->resizeColumnsToContents();
    for (int column = 0; column < columns.size(); ++column) {
        header->resizeSection(column, std::min(header->sectionSize(column), widestAtFirst));
    }
}

/// The columns from left to right.
QVector<PropertyPath> AttributeTable::shownColumns() const
{
    QVector<PropertyPath> columns;
    for (int place = 0; place < model->columnCount(); ++place) {
        columns.append(model->columns()[view->horizontalHeader()->logicalIndex(place)]);
    }
    return columns;
}

void AttributeTable::chooseColumns()
{
    const QVector<PropertyPath> former = shownColumns();
    ColumnsDialog dialog(allColumns, former, this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    // Those that stay keep their order.
    const QVector<PropertyPath> chosen = dialog.chosen();
    QVector<PropertyPath> columns;
    std::copy_if(former.begin(), former.end(), std::back_inserter(columns),
                 [&chosen](const PropertyPath& path) { return chosen.contains(path); });
    std::copy_if(chosen.begin(), chosen.end(), std::back_inserter(columns),
                 [&former](const PropertyPath& path) { return !former.contains(path); });
    setChosenColumns(type(), columns);
    setColumns(columns);
}

void AttributeTable::selectFeatures()
{
    QItemSelection rows;
    const QModelIndexList selected = view->selectionModel()->selectedIndexes();
    int former = -1;
    for (const QModelIndex& index : selected) {
        if (index.row() != former) {
            former = index.row();
            const QModelIndex feature = document.model().index(model->featureRow(former), 0);
            rows.append(QItemSelectionRange(feature, feature.sibling(feature.row(), 1)));
        }
    }
    document.selection().select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void AttributeTable::copy()
{
    copyCells(false);
}

void AttributeTable::copyWithTitles()
{
    copyCells(true);
}

void AttributeTable::copyCells(bool withTitles)
{
    QMap<int, QMap<int, QString>> texts;
    QMap<int, int> columns;
    const QHeaderView& header = *view->horizontalHeader();
    const QVector<CellRun> runs = selectedCells();
    for (const CellRun& run : runs) {
        const QVector<AttributeCell> cells = model->valuesOf(run.row, run.first, run.last);
        for (int column = run.first; column <= run.last; ++column) {
            columns[header.visualIndex(column)] = column;
            texts[run.row][column] = quoted(model->textOf(cells[column]));
        }
    }
    QStringList lines;
    if (withTitles) {
        QStringList titles;
        for (const int column : qAsConst(columns)) {
            titles += quoted(model->headerData(column, Qt::Horizontal).toString());
        }
        lines += titles.join('\t');
    }
    for (const auto& row : qAsConst(texts)) {
        QStringList line;
        for (const int column : qAsConst(columns)) {
            line += row.value(column);
        }
        lines += line.join('\t');
    }
    QApplication::clipboard()->setText(lines.join('\n'));
}

/// The selected cells, row by row.
QVector<AttributeTable::CellRun> AttributeTable::selectedCells() const
{
    QVector<CellRun> runs;
    const QItemSelection selection = view->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            runs.append({row, range.left(), range.right()});
        }
    }
    return runs;
}

/// An edit of many features sends a signal for each.
void AttributeTable::figureSoon()
{
    figuring.stop();
    if (!document.editRunner().isRunning()) {
        figureTimer.start();
    }
}

void AttributeTable::beginFigures()
{
    if (model->isBusy()) {
        return;
    }
    figured = selectedCells();
    figures = SelectionFigures();
    figuring.start(
        figured.size(), [this](int step) { figure(figured[step]); }, [this] { showFigures(); });
}

void AttributeTable::figure(const CellRun& run)
{
    const QVector<AttributeCell> cells = model->valuesOf(run.row, run.first, run.last);
    for (int column = run.first; column <= run.last; ++column) {
        const ValueKind kind = kindOf(cells[column].value, {});
        if (kind == ValueKind::Whole || kind == ValueKind::Real) {
            figures.add(cells[column].value.toDouble(), cells[column].unit);
        }
    }
}

void AttributeTable::showFigures()
{
    QString text = tr("%n feature(s)", nullptr, model->rowCount());
    if (model->rowCount() != model->featureCount()) {
        text = tr("%1 of %2 features").arg(model->rowCount()).arg(model->featureCount());
    }
    if (figures.count() > 0) {
        const ValueText valueText;
        const auto textOf = [&](double number) {
            return figures.unit().isEmpty() ? valueText.textOf(number)
                                            : valueText.textOf(number) + ' ' + figures.unit();
        };
        text += tr(" \u2013 %n number(s)", nullptr, figures.count()) +
                tr(": sum %1, mean %2, smallest %3, largest %4")
                    .arg(textOf(figures.sum()), textOf(figures.mean()), textOf(figures.smallest()),
                         textOf(figures.largest()));
    }
    figuresLabel->setText(text);
    figuresLabel->setToolTip(text);
}

/// Shows why something was refused, until the next edit.
void AttributeTable::tell(const QString& text)
{
    message->setText(text);
    message->setVisible(!text.isEmpty());
}

} // namespace tolvik::viewer
