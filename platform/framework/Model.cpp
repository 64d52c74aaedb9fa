#include "framework/Model.h"

#include <QSet>

namespace tolvik {

Model::Model(ModelInterface* plugin, QObject* parent) : CoreModel(plugin, parent) {}

Model::~Model() = default;

void Model::goTo(const QModelIndex& index, bool select)
{
    if (selection != nullptr && index.isValid()) {
        selection->setCurrentIndex(index,
                                   select ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                                          : QItemSelectionModel::NoUpdate);
    }
}

QString Model::version()
{
    return QString();
}

QItemSelectionModel* Model::selectionModel() const
{
    return selection;
}

void Model::setSelectionModel(QItemSelectionModel* model)
{
    selection = model;
}

void Model::hide(const QModelIndex& index)
{
    reallyDoHide(index);
}

void Model::hide(const QList<QModelIndex>& indexes)
{
    reallyDoHide(indexes);
}

void Model::hideAll()
{
    reallyDoHideAll();
}

void Model::show(const QModelIndex& index)
{
    reallyDoShow(index);
}

void Model::show(const QList<QModelIndex>& indexes)
{
    reallyDoShow(indexes);
}

void Model::showAll()
{
    reallyDoShowAll();
}

void Model::toggleVisibility(const QModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    if (isVisible(index)) {
        reallyDoHide(index);
    } else {
        reallyDoShow(index);
    }
}

void Model::toggleVisibility(const QList<QModelIndex>& indexes)
{
    QList<QModelIndex> toHide;
    QList<QModelIndex> toShow;
    QSet<int> seen;
    for (const QModelIndex& index : indexes) {
        if (!index.isValid() || seen.contains(index.row())) {
            continue;
        }
        seen.insert(index.row());
        (isVisible(index) ? toHide : toShow).append(index);
    }
    if (!toHide.isEmpty()) {
        reallyDoHide(toHide);
    }
    if (!toShow.isEmpty()) {
        reallyDoShow(toShow);
    }
}

} // namespace tolvik
