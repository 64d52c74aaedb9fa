#pragma once

#include "framework/Action.h"
#include "framework/Model.h"

#include <QAbstractProxyModel>

class QDataStream;

namespace tolvik {

/// Without search and without selections that follow.
class ProxyModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    ProxyModel(const QString& name, QObject* parent) : QAbstractProxyModel(parent) { setObjectName(name); }

    virtual QItemSelectionModel* selectionModel() { return nullptr; }
    virtual Model* model() { return qobject_cast<Model*>(source); }
    virtual void createActions() = 0;
    virtual int defaultExpandDepth() { return 1; }

protected:
    virtual void encodeData(const QList<QModelIndex>& indexes, QDataStream& stream) const = 0;
    virtual QList<QModelIndex> decodeData(QDataStream& stream) const = 0;
    virtual void computeNodeMap() = 0;
    virtual void selectSiblings(bool sameType, bool reserved) = 0;
    virtual void sourceDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight)
    {
        emit dataChanged(mapFromSource(topLeft), mapFromSource(bottomRight));
    }
    virtual void sourceModelAboutToBeReset() { sourceBusy = true; }
    virtual void sourceModelReset() { rebuild(); }
    virtual void rowsInsertedInSourceModel(const QModelIndex& parent, int start, int end) = 0;
    virtual void rowsAboutToBeRemovedInSourceModel(const QModelIndex& parent, int start, int end) = 0;

    /// The tree can be read again when it is complete, and before views are told.
    void rebuild()
    {
        sourceBusy = true;
        computeNodeMap();
        sourceBusy = false;
    }

signals:
    void aboutToBeChanged();
    void changed();

protected:
    QPointer<QAbstractItemModel> source;
    bool sourceBusy = false;
    QList<Action*> actions;
};

} // namespace tolvik
