#pragma once

#include <QObject>

class QAbstractProxyModel;
class QModelIndex;

namespace tolvik::viewer {

class RowSelectionModel;

/// Keeps the selection of a view over a proxy model and the selection over its source the same, both ways,
/// with the current index.
class SelectionLink : public QObject
{
    Q_OBJECT

public:
    /// \param view   selection model over \a proxy
    /// \param source selection model over the source of \a proxy
    SelectionLink(RowSelectionModel& view, const QAbstractProxyModel& proxy, RowSelectionModel& source,
                  QObject* parent = nullptr);
    ~SelectionLink() override;

    /// Makes the view's selection that of the source. To be called when the proxy has become able to show
    /// more or other rows.
    void follow();

private:
    void selectInSource();
    void selectInView();
    void moveInSource(const QModelIndex& current);
    void moveInView();

    RowSelectionModel& view;
    const QAbstractProxyModel& proxy;
    RowSelectionModel& source;
    bool isPassing = false;
};

} // namespace tolvik::viewer
