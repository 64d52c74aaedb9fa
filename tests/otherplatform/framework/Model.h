#pragma once

#include "framework/CoreModel.h"

#include <QItemSelectionModel>
#include <QPointer>

namespace tolvik {

class Model : public CoreModel
{
    Q_OBJECT

public:
    using CoreModel::CoreModel;

    void goTo(const QModelIndex& /*index*/, bool /*select*/) override {}
    virtual QString type() const = 0;
    virtual QString version() { return QString(); }
    virtual EditRangeDialog* getEditRangeDialog(const QVector<double>& ranges) = 0;

protected:
    virtual void reallyDoHideAll() = 0;
    virtual void reallyDoHide(const QModelIndex& index) = 0;
    virtual void reallyDoHide(const QList<QModelIndex>& indexes) = 0;
    virtual void reallyDoShowAll() = 0;
    virtual void reallyDoShow(const QModelIndex& index) = 0;
    virtual void reallyDoShow(const QList<QModelIndex>& indexes) = 0;

public:
    QItemSelectionModel* selectionModel() const { return selection; }
    void setSelectionModel(QItemSelectionModel* model) { selection = model; }

public slots:
    void hide(const QModelIndex& index) { reallyDoHide(index); }
    void hide(const QList<QModelIndex>& indexes) { reallyDoHide(indexes); }
    void show(const QModelIndex& index) { reallyDoShow(index); }
    void show(const QList<QModelIndex>& indexes) { reallyDoShow(indexes); }
    void toggleVisibility(const QList<QModelIndex>& indexes)
    {
        for (const QModelIndex& index : indexes) {
            isVisible(index) ? hide(index) : show(index);
        }
    }

signals:
    void visibilityChanged(const QModelIndex& index);
    void visibilityChanged(const QList<QModelIndex>& indexes);

private:
    QPointer<QItemSelectionModel> selection;
};

} // namespace tolvik
