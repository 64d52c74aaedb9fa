#include "apps/viewer/files/ViewState.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureRows.h"
#include "apps/viewer/features/FeatureTexts.h"

#include <QTreeView>

namespace tolvik::viewer {

namespace {

/// Only what is below an expanded node can be seen to be expanded.
void collectExpanded(const QTreeView& view, const CityGMLTreeModel& tree, const QModelIndex& parent,
                     QSet<QString>& identifiers)
{
    for (int i = 0, count = tree.rowCount(parent); i < count; ++i) {
        const QModelIndex node = tree.index(i, 0, parent);
        // Most nodes are leaves, and the view has to look each up.
        if (tree.hasChildren(node) && view.isExpanded(node)) {
            identifiers.insert(idOf(*CityGMLTreeModel::getFeature(node)));
            collectExpanded(view, tree, node, identifiers);
        }
    }
}

void expand(QTreeView& view, const CityGMLTreeModel& tree, const QModelIndex& parent,
            const QSet<QString>& identifiers)
{
    for (int i = 0, count = tree.rowCount(parent); i < count; ++i) {
        const QModelIndex node = tree.index(i, 0, parent);
        if (tree.hasChildren(node) && identifiers.contains(idOf(*CityGMLTreeModel::getFeature(node)))) {
            view.expand(node);
            expand(view, tree, node, identifiers);
        }
    }
}

} // namespace

ViewState ViewState::of(Document& document, const QTreeView& tree)
{
    ViewState state;
    CityGMLModel& model = document.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        gml::AbstractFeatureType* const feature = model.getFeature(row);
        if (!model.isVisible(model.index(row, 0))) {
            state.hidden.insert(idOf(*feature));
        }
        if (model.isDisabled(feature)) {
            state.disabled.insert(idOf(*feature));
        }
    }
    const QVector<int> selected = selectedRows(document.selection());
    for (const int row : selected) {
        state.selected.insert(idOf(*model.getFeature(row)));
    }
    if (document.selection().currentIndex().isValid()) {
        state.current = idOf(*model.getFeature(document.selection().currentIndex()));
    }
    collectExpanded(tree, document.tree(), QModelIndex(), state.expanded);
    for (QSet<QString>* const identifiers :
         {&state.hidden, &state.disabled, &state.selected, &state.expanded}) {
        identifiers->remove(QString());
    }
    return state;
}

void ViewState::restore(Document& document, QTreeView& tree) const
{
    CityGMLModel& model = document.model();
    QList<QModelIndex> toHide, toDisable;
    QItemSelection toSelect;
    const bool hasRows = !hidden.isEmpty() || !disabled.isEmpty() || !selected.isEmpty();
    for (int row = 0; hasRows && row < model.rowCount(); ++row) {
        const QString identifier = idOf(*model.getFeature(row));
        const QModelIndex index = model.index(row, 0);
        if (hidden.contains(identifier)) {
            toHide.append(index);
        }
        if (disabled.contains(identifier)) {
            toDisable.append(index);
        }
        if (selected.contains(identifier)) {
            toSelect.append(QItemSelectionRange(index, model.index(row, model.columnCount() - 1)));
        }
    }
    model.hide(toHide);
    model.disable(toDisable);
    // Each expanded node by itself would be laid out by itself.
    tree.setUpdatesEnabled(false);
    expand(tree, document.tree(), QModelIndex(), expanded);
    tree.setUpdatesEnabled(true);
    const int currentRow = current.isEmpty() ? -1 : rowOfIdentifier(document, current);
    if (currentRow >= 0) {
        document.selection().setCurrentIndex(model.index(currentRow, 0), QItemSelectionModel::NoUpdate);
    }
    document.selection().replace(toSelect);
}

} // namespace tolvik::viewer
