#include "apps/viewer/features/FeatureRows.h"

#include "apps/viewer/document/Document.h"
#include "citygml/GeometryWalk.h"
#include "core/CityModelType.hxx"

#include <algorithm>
#include <QItemSelectionModel>

namespace tolvik::viewer {

namespace {

void sortOut(QVector<int>& rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
}

void addBranch(CityGMLTreeModel& tree, const QModelIndex& node, QVector<int>& rows)
{
    rows.append(tree.mapToSource(node).row());
    for (int i = 0, count = tree.rowCount(node); i < count; ++i) {
        addBranch(tree, tree.index(i, 0, node), rows);
    }
}

} // namespace

QVector<int> selectedRows(const QItemSelectionModel& selection)
{
    QVector<int> rows;
    for (const QItemSelectionRange& range : selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.append(row);
        }
    }
    sortOut(rows);
    return rows;
}

QVector<int> withAllBelow(Document& document, const QVector<int>& rows)
{
    QVector<bool> isIn(document.model().rowCount());
    QVector<int> all;
    for (const int row : rows) {
        if (isIn[row]) {
            continue;
        }
        QVector<int> branch{row};
        const QModelIndex node = document.tree().mapFromSource(document.model().index(row, 0));
        if (node.isValid()) {
            branch.clear();
            addBranch(document.tree(), node, branch);
        }
        for (const int each : qAsConst(branch)) {
            isIn[each] = true;
        }
        all += branch;
    }
    sortOut(all);
    return all;
}

QList<QModelIndex> indexesOf(Document& document, const QVector<int>& rows)
{
    QList<QModelIndex> indexes;
    indexes.reserve(rows.size());
    for (const int row : rows) {
        indexes.append(document.model().index(row, 0));
    }
    return indexes;
}

int rowOfIdentifier(Document& document, const QString& identifier)
{
    if (!document.isOpen()) {
        return -1;
    }
    const xml_schema::type* const object =
        citygml::findById(*document.model().cityGML(), identifier.toStdString());
    if (object == nullptr) {
        return -1;
    }
    return document.model().index(citygml::featureAround(*object)).row();
}

} // namespace tolvik::viewer
