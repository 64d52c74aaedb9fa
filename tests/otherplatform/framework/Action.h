#pragma once

#include "fondo/Referenced.h"

#include <QAction>
#include <QSharedPointer>
#include <QString>

class QAbstractItemModel;

namespace tolvik {

class Action : public Fondo::Referenced
{
public:
    Action(const QSharedPointer<QAction>& action, const QAbstractItemModel* /*model*/, int /*groupHint*/,
           const QString& /*subGroupName*/)
        : entry(action)
    {
    }
    virtual QAction* action() const { return entry.data(); }

private:
    QSharedPointer<QAction> entry;
};

} // namespace tolvik
