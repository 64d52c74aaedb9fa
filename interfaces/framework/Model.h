#pragma once

#include "framework/CoreModel.h"

#include <QItemSelectionModel>
#include <QPointer>

namespace tolvik {

/// A model with a selection and rows that can be hidden. The public operations check nothing and lead to the
/// `reallyDo` operation of the same form, in which a model does the work and sends the signals.
class TOLVIK_PLATFORM_EXPORT Model : public CoreModel
{
    Q_OBJECT

public:
    /// \param plugin what getModelPlugin() gives back; not owned, may be null
    /// \param parent owner of the model, or null
    explicit Model(ModelInterface* plugin, QObject* parent = nullptr);
    ~Model() override;

    void goTo(const QModelIndex& index, bool select) override;

    /// Kind of the document, with its version, for the user.
    virtual QString type() const = 0;

    /// Version of the document's format where type() does not tell it. Here empty.
    virtual QString version();

    /// A new dialog for the numbers of the model's presentation.
    /// \return owned by the caller
    virtual EditRangeDialog* getEditRangeDialog(const QVector<double>& ranges) = 0;

protected:
    /// The work of the public operation of the same form, with its signals.
    /// @{
    virtual void reallyDoHideAll() = 0;
    virtual void reallyDoHide(const QModelIndex& index) = 0;
    virtual void reallyDoHide(const QList<QModelIndex>& indexes) = 0;
    virtual void reallyDoShowAll() = 0;
    virtual void reallyDoShow(const QModelIndex& index) = 0;
    virtual void reallyDoShow(const QList<QModelIndex>& indexes) = 0;
    /// @}

public:
    /// The attached selection model, or null.
    QItemSelectionModel* selectionModel() const;

    /// Attaches the host's selection model over this model; null detaches it. It is not owned, and may die
    /// first.
    void setSelectionModel(QItemSelectionModel* model);

public slots:
    /// Hides or shows one row, the listed rows or all.
    /// @{
    void hide(const QModelIndex& index);
    void hide(const QList<QModelIndex>& indexes);
    void hideAll();
    void show(const QModelIndex& index);
    void show(const QList<QModelIndex>& indexes);
    void showAll();
    /// @}

    /// Hides the row if it is visible, and shows it if not. Nothing for an invalid index.
    void toggleVisibility(const QModelIndex& index);

    /// The same for each listed row, once however often it is listed: first the visible ones are hidden with
    /// one call, then those that were hidden are shown with another. Invalid indexes are skipped.
    void toggleVisibility(const QList<QModelIndex>& indexes);

signals:
    /// The visibility of one row has changed. The model's `reallyDo` operations send it.
    void visibilityChanged(const QModelIndex& index);

    /// The same for many rows.
    void visibilityChanged(const QList<QModelIndex>& indexes);

private:
    QPointer<QItemSelectionModel> selection;
};

} // namespace tolvik
