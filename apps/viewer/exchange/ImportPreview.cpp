#include "apps/viewer/exchange/ImportPreview.h"

#include <QApplication>
#include <QStyle>

namespace tolvik::viewer {

using tables::CellChange;
using tables::ImportProblem;
using tables::PlannedChange;

ImportPreview::ImportPreview(QObject* parent) : QAbstractTableModel(parent) {}

ImportPreview::~ImportPreview() = default;

void ImportPreview::clear()
{
    beginResetModel();
    planned.clear();
    wrong.clear();
    endResetModel();
}

void ImportPreview::add(const std::vector<PlannedChange>& more)
{
    if (!more.empty()) {
        beginInsertRows(QModelIndex(), rowCount(), rowCount() + static_cast<int>(more.size()) - 1);
        planned.insert(planned.end(), more.begin(), more.end());
        endInsertRows();
    }
}

void ImportPreview::setProblems(const QVector<ImportProblem>& problems)
{
    beginResetModel();
    wrong = problems;
    endResetModel();
}

int ImportPreview::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : wrong.size() + static_cast<int>(planned.size());
}

int ImportPreview::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ImportPreview::data(const QModelIndex& index, int role) const
{
    const bool isWrong = index.row() < wrong.size();
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return isWrong
                   ? textOf(wrong[index.row()], index.column())
                   : textOf(planned[static_cast<std::size_t>(index.row() - wrong.size())], index.column());
    }
    if (role == Qt::DecorationRole && isWrong && index.column() == After) {
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    }
    return QVariant();
}

QString ImportPreview::textOf(const ImportProblem& problem, int column) const
{
    switch (column) {
    case Feature:
        return problem.id;
    case Attribute:
        return problem.column;
    case After:
        //: Number of the line or row of a table, and why it cannot be imported
        return (problem.lineWord == QLatin1String("line") ? tr("Line %1: %2") : tr("Row %1: %2"))
            .arg(QString::number(problem.line), problem.reason);
    default:
        return QString();
    }
}

QString ImportPreview::textOf(const PlannedChange& change, int column) const
{
    switch (column) {
    case Feature:
        return change.id;
    case Attribute:
        return change.column;
    case Before:
        return change.change.before;
    default:
        break;
    }
    const bool isGoing =
        change.change.kind == CellChange::Absence || change.change.kind == CellChange::GoneAttribute;
    return isGoing ? tr("absent") : change.cell;
}

QVariant ImportPreview::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case Feature:
        return tr("Feature");
    case Attribute:
        return tr("Attribute");
    case Before:
        return tr("Now");
    default:
        return tr("After the import");
    }
}

} // namespace tolvik::viewer
