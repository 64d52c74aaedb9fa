#pragma once

#include "fondo/Referenced.h"
#include "PlatformExport.h"

#include <QList>
#include <QPointer>
#include <QSharedPointer>
#include <QString>

class QAbstractItemModel;
class QAction;
class QModelIndex;

namespace tolvik {

/// An entry for the host's context menu over a model, with a hint where in the menu it belongs.
class TOLVIK_PLATFORM_EXPORT Action : public Fondo::Referenced
{
public:
    /// \param action       what the menu shows and triggers
    /// \param model        the model whose indexes the action is for; not owned
    /// \param groupHint    number of the group of entries; groups stand in ascending order
    /// \param subGroupName name of the submenu, empty for none
    Action(QSharedPointer<QAction> action, const QAbstractItemModel* model, int groupHint,
           QString subGroupName);
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

    /// Type record of the class.
    static const Fondo::ClassType& classType();
    const Fondo::ClassType& getType() const override;

    ~Action() override;

    /// What the menu shows and triggers. Owned by this.
    virtual QAction* action() const;

    /// Whether the action applies to an index: here any valid index of the model.
    virtual bool isValid(const QModelIndex& index);

    /// Whether the action applies to the indexes together: here if there are any and it applies to each.
    virtual bool areValid(const QList<QModelIndex>& indexes);

    /// Number of the group of entries in which the action stands.
    virtual int groupHint();

    /// Name of the submenu in which the action stands, empty for none.
    virtual const QString& subGroupNameHint();

private:
    QSharedPointer<QAction> menuAction;
    QPointer<const QAbstractItemModel> itemModel;
    int group;
    QString subGroup;
};

} // namespace tolvik
