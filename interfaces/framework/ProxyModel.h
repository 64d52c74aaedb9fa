#pragma once

#include "fondo/RefPtr.h"
#include "framework/Action.h"
#include "PlatformExport.h"

#include <QAbstractProxyModel>
#include <QItemSelectionModel>
#include <QList>
#include <QPointer>
#include <QVector>

class QDataStream;

namespace tolvik {

class Model;

/// A view of a document model in another form: follows its source, and offers search, selection and actions
/// to the host. What the form is, a subclass decides in computeNodeMap().
class TOLVIK_PLATFORM_EXPORT ProxyModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    /// \param name the object name, which stands in log lines
    /// \param parent owner of the model, or null
    explicit ProxyModel(const QString& name, QObject* parent = nullptr);
    ~ProxyModel() override;

    /// Takes a source, null for none. It is not owned, and may die first.
    void setSourceModel(QAbstractItemModel* model) override;

    /// Every index is edited where it stands.
    QModelIndex buddy(const QModelIndex& index) const override;

    /// Inverts the visibility of the rows behind the given indexes of this model. Each row counts once.
    virtual void toggleObjectVisibleField(const QList<QModelIndex>& indexes) = 0;

    /// Shows or hides the rows behind the given indexes of this model; rows that are so already are left
    /// alone.
    virtual void changeObjectVisibleField(const QList<QModelIndex>& indexes, bool visible) = 0;

    /// While on, selecting a node selects everything below it, and deselecting it deselects everything below
    /// it. But when the selection is replaced by something below a node, the node does not take that along;
    /// and a current node that is selected gets what is below it back when all of that is deselected at once.
    virtual void setRecursiveSelection(bool recursive) = 0;

    /// Whether selecting a node selects what is below it, see setRecursiveSelection().
    virtual bool isRecursiveSelection() = 0;

    /// The attached selection model over this model, or null.
    virtual QItemSelectionModel* selectionModel();

    /// The document model behind this one; null without a source, or if the source is none.
    virtual Model* model();

    /// Fills `actions`. To be called once; getActions() does.
    virtual void createActions() = 0;

    /// Number of indexes at the top level.
    virtual int rootNodeSize() = 0;

    /// The next match behind \a start, in the order on screen with everything open. From the end the search
    /// goes on at the beginning and comes back to \a start at last.
    /// \param start any column of the index to start from; an invalid one starts at the beginning
    /// \param text what to look for
    /// \param sensitivity whether capital and small letters differ
    /// \return the index of the match in column 0; invalid if there is none, or for an empty text
    virtual QModelIndex search(const QModelIndex& start, const QString& text,
                               Qt::CaseSensitivity sensitivity);

    /// The columns that a search looks at. Here all.
    virtual QVector<int> searchFilter();

protected:
    /// Writes the keys of the given indexes of this model, for drag and drop.
    virtual void encodeData(const QList<QModelIndex>& indexes, QDataStream& stream) const = 0;

    /// Reads keys, and gives indexes of the source.
    virtual QList<QModelIndex> decodeData(QDataStream& stream) const = 0;

public:
    /// How many levels a view should open at first.
    virtual int defaultExpandDepth();

protected:
    /// Builds the form anew from the source, within a model reset. Does nothing if the source is not
    /// available.
    virtual void computeNodeMap() = 0;

    /// Extends the selection to the siblings of the current index.
    /// \param sameType only siblings of the same type
    /// \param reserved without a meaning yet
    virtual void selectSiblings(bool sameType, bool reserved) = 0;

    /// Whether one of the columns of searchFilter() shows a text with \a text in it.
    /// \param index any column of the index to look at
    /// \param text what to look for
    /// \param sensitivity whether capital and small letters differ
    virtual bool searchIndex(const QModelIndex& index, const QString& text, Qt::CaseSensitivity sensitivity);

    /// What the signal dataChanged() of the source leads to.
    virtual void sourceDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);

    /// A new order of the source's rows: the form is built anew, since it may follow that order.
    virtual void sourceLayoutChanged();

    /// What the signal of the source of the same name leads to.
    /// @{
    virtual void sourceLayoutAboutToBeChanged();
    virtual void sourceModelAboutToBeReset();
    virtual void sourceModelReset();
    /// @}

public:
    /// Extends the selection to the children of all selected nodes.
    virtual void selectChildren() = 0;

protected:
    /// What the rows \a start to \a end lead to that the source has inserted below \a parent.
    virtual void rowsInsertedInSourceModel(const QModelIndex& parent, int start, int end) = 0;

    /// What the rows \a start to \a end lead to that the source is about to remove below \a parent.
    virtual void rowsAboutToBeRemovedInSourceModel(const QModelIndex& parent, int start, int end) = 0;

    /// What a change of the selection leads to while the selection is recursive.
    virtual void doRecursiveSelection(const QItemSelection& selected, const QItemSelection& deselected) = 0;

public:
    /// Attaches the host's selection model over this model; null detaches it. It is not owned, and may die
    /// first.
    void setSelectionModel(QItemSelectionModel* model);

    /// The actions for the host's context menu, made at the first call. They are owned by this model and do
    /// not outlive it unless the host holds a reference.
    const QList<Action*>& getActions();

public slots:
    /// Extends the selection to the siblings of the current index that have its type.
    void selectSiblingsWithSameType();

signals:
    /// Sent around a rebuild that the proxy itself starts, so not for one that follows the source.
    /// @{
    void aboutToBeChanged();
    void changed();
    /// @}

protected:
    /// Builds the form anew with `sourceBusy` up until the reset ends. For rebuilds after which what was
    /// built before may refer to objects that are gone.
    void rebuild();

    /// To be called where the model reset of computeNodeMap() ends, before the views are told: what was built
    /// can be read again.
    void rebuilt();

    QPointer<QAbstractItemModel> source;     ///< the model that this one shows; not owned
    QPointer<QItemSelectionModel> selection; ///< the attached selection model; not owned

    /// While true the form must not be read: it may refer to objects of the source that are gone.
    bool sourceBusy = false;

    /// In the order of the menu. A new Action is appended as it is; the model takes the reference.
    QList<Action*> actions;

private:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected);
    void keepActions();

    bool rebuilding = false;
    QList<Fondo::RefPtr<Action>> keptActions;
};

} // namespace tolvik
