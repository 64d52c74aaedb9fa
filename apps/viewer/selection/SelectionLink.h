#pragma once

#include <QItemSelectionModel>
#include <QObject>

class QAbstractProxyModel;

namespace tolvik::viewer {

/// Keeps the selection of a view over a proxy model and the selection over its source the same, both ways,
/// with the current index.
///
/// Large selections are replaced as a whole: Qt merges the ranges of the former selection with those of the
/// new one in a time that grows with the product of their numbers. Whoever draws a selection draws all of it
/// again when the source's selection has changed.
class SelectionLink : public QObject
{
    Q_OBJECT

public:
    /// \param view   selection model over \a proxy
    /// \param source selection model over the source of \a proxy
    SelectionLink(QItemSelectionModel& view, const QAbstractProxyModel& proxy, QItemSelectionModel& source,
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

    QItemSelectionModel& view;
    const QAbstractProxyModel& proxy;
    QItemSelectionModel& source;
    bool isPassing = false;
};

/// Selects rows, and nothing else. Ranges of large selections are not merged, see SelectionLink.
void replaceSelection(QItemSelectionModel& selection, const QItemSelection& rows);

} // namespace tolvik::viewer
