#include "apps/viewer/log/LogModel.h"

#include <QApplication>
#include <QStyle>

namespace tolvik::viewer {

namespace {

// Nobody reads further back; a program that logs without end must not fill the memory.
constexpr std::size_t mostEntries = 10000;

} // namespace

LogModel::LogModel(QObject* parent) : QAbstractTableModel(parent) {}

LogModel::~LogModel() = default;

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(entries.size());
}

int LogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString LogModel::levelName(int level) const
{
    if (level >= Error) {
        return tr("Error");
    }
    return level >= Warning ? tr("Warning") : tr("Information");
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const Entry& entry = entries[static_cast<std::size_t>(index.row())];
    if (role == Qt::UserRole) {
        return entry.level;
    }
    if (role == Qt::DecorationRole && index.column() == Level) {
        return QApplication::style()->standardIcon(
            entry.level >= Error
                ? QStyle::SP_MessageBoxCritical
                : (entry.level >= Warning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation));
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return QVariant();
    }
    switch (index.column()) {
    case Time:
        return QLocale().toString(entry.time.time(), QStringLiteral("HH:mm:ss"));
    case Level:
        return levelName(entry.level);
    default:
        return entry.text;
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case Time:
        return tr("Time");
    case Level:
        return tr("Level");
    default:
        return tr("Message");
    }
}

QString LogModel::line(int row) const
{
    const Entry& entry = entries[static_cast<std::size_t>(row)];
    return entry.time.toString(Qt::ISODate) + QLatin1Char('\t') + levelName(entry.level) + QLatin1Char('\t') +
           entry.text;
}

void LogModel::add(int level, const QString& text)
{
    if (entries.size() == mostEntries) {
        beginRemoveRows(QModelIndex(), 0, 0);
        entries.pop_front();
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), rowCount(), rowCount());
    entries.push_back({QDateTime::currentDateTime(), level, text});
    endInsertRows();
}

void LogModel::clear()
{
    beginResetModel();
    entries.clear();
    endResetModel();
}

} // namespace tolvik::viewer
