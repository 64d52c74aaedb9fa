#pragma once

#include <QTreeView>

namespace tolvik::viewer {

/// A view of features that selects all of a large tree at once: everything that is not in a closed branch.
///
/// QTreeView makes a range of each row on the way, and has the model remember its corners.
class FeatureTreeView : public QTreeView
{
    Q_OBJECT

public:
    using QTreeView::QTreeView;
    ~FeatureTreeView() override;

    void selectAll() override;

private:
    void appendOpen(const QModelIndex& parent, QItemSelection& rows) const;
};

} // namespace tolvik::viewer
