#include "framework/Action.h"

#include "fondo/ClassType.h"

#include <algorithm>
#include <QAbstractItemModel>
#include <QAction>
#include <utility>

namespace tolvik {

Action::Action(QSharedPointer<QAction> action, const QAbstractItemModel* model, int groupHint,
               QString subGroupName)
    : menuAction(std::move(action)), itemModel(model), group(groupHint), subGroup(std::move(subGroupName))
{
}

Action::~Action() = default;

const Fondo::ClassType& Action::classType()
{
    static const Fondo::ClassType record("tolvik::Action", &Fondo::Referenced::classType());
    return record;
}

const Fondo::ClassType& Action::getType() const
{
    return classType();
}

QAction* Action::action() const
{
    return menuAction.data();
}

bool Action::isValid(const QModelIndex& index)
{
    return index.isValid() && index.model() == itemModel;
}

bool Action::areValid(const QList<QModelIndex>& indexes)
{
    return !indexes.isEmpty() && std::all_of(indexes.begin(), indexes.end(),
                                             [this](const QModelIndex& index) { return isValid(index); });
}

int Action::groupHint()
{
    return group;
}

const QString& Action::subGroupNameHint()
{
    return subGroup;
}

} // namespace tolvik
