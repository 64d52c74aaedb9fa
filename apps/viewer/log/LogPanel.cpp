#include "apps/viewer/log/LogPanel.h"

#include "apps/viewer/log/LogModel.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace tolvik::viewer {

namespace {

/// Leaves the entries of a level and above.
class LevelFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setLowest(int level)
    {
        lowest = level;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        return sourceModel()->index(row, 0, parent).data(Qt::UserRole).toInt() >= lowest;
    }

private:
    int lowest = 0;
};

} // namespace

LogPanel::LogPanel(LogModel& log, QWidget* parent)
    : QWidget(parent), log(log), shown(new LevelFilter(this)), view(new QTreeView), levels(new QComboBox)
{
    shown->setSourceModel(&log);
    view->setObjectName(QStringLiteral("log"));
    view->setAccessibleName(tr("Log"));
    view->setModel(shown);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->header()->setSectionResizeMode(LogModel::Time, QHeaderView::ResizeToContents);
    view->header()->setSectionResizeMode(LogModel::Level, QHeaderView::ResizeToContents);

    levels->setObjectName(QStringLiteral("logLevel"));
    levels->setAccessibleName(tr("Lowest level that is shown"));
    levels->addItem(tr("All messages"), 0);
    levels->addItem(tr("Warnings and errors"), int(LogModel::Warning));
    levels->addItem(tr("Errors only"), int(LogModel::Error));
    auto* const copyButton = new QPushButton(tr("&Copy"));
    auto* const clearButton = new QPushButton(tr("C&lear"));

    auto* const bar = new QHBoxLayout;
    bar->addWidget(levels);
    bar->addStretch();
    bar->addWidget(copyButton);
    bar->addWidget(clearButton);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(bar);
    layout->addWidget(view);

    auto* const copyKey = new QAction(tr("Copy"), view);
    copyKey->setShortcut(QKeySequence::Copy);
    copyKey->setShortcutContext(Qt::WidgetShortcut);
    view->addAction(copyKey);
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(copyKey, &QAction::triggered, this, &LogPanel::copy);
    connect(copyButton, &QPushButton::clicked, this, &LogPanel::copy);
    connect(clearButton, &QPushButton::clicked, &log, &LogModel::clear);
    connect(levels, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { static_cast<LevelFilter*>(shown)->setLowest(levels->currentData().toInt()); });
    connect(shown, &QAbstractItemModel::rowsInserted, view, &QTreeView::scrollToBottom);
}

LogPanel::~LogPanel() = default;

void LogPanel::copy()
{
    const bool isAll = !view->selectionModel()->hasSelection();
    QStringList lines;
    for (int row = 0; row < shown->rowCount(); ++row) {
        if (isAll || view->selectionModel()->isRowSelected(row, QModelIndex())) {
            lines.append(log.line(shown->mapToSource(shown->index(row, 0)).row()));
        }
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

} // namespace tolvik::viewer
