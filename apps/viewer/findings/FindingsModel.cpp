#include "apps/viewer/findings/FindingsModel.h"

namespace tolvik::viewer {

FindingsModel::FindingsModel(QObject* parent) : QAbstractTableModel(parent) {}

FindingsModel::~FindingsModel() = default;

void FindingsModel::show(const std::vector<citygml::FindingGroup>& groups)
{
    beginResetModel();
    findings.clear();
    total = 0;
    for (const citygml::FindingGroup& group : groups) {
        total += group.count;
        findings.insert(findings.end(), group.first.begin(), group.first.end());
        if (group.count > group.first.size()) {
            citygml::Finding others;
            others.path = group.path;
            others.reason = tr("%Ln more: %1", nullptr, static_cast<int>(group.count - group.first.size()))
                                .arg(QString::fromStdString(group.reason))
                                .toStdString();
            findings.push_back(others);
        }
    }
    endResetModel();
}

int FindingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(findings.size());
}

int FindingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const citygml::Finding& finding = findings[static_cast<std::size_t>(index.row())];
    if (role == IdentifierRole) {
        return QString::fromStdString(finding.featureId);
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return QVariant();
    }
    switch (index.column()) {
    case Line:
        // As a number, so that it sorts as one.
        return finding.line != 0 ? QVariant(static_cast<qulonglong>(finding.line)) : QVariant();
    case Reason:
        return QString::fromStdString(finding.reason);
    case Path:
        return QString::fromStdString(finding.path);
    default:
        return QString::fromStdString(finding.featureId);
    }
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case Line:
        return tr("Line");
    case Reason:
        return tr("What is wrong");
    case Path:
        return tr("Element");
    default:
        return tr("Feature");
    }
}

} // namespace tolvik::viewer
