#include "UI/Models/CityGMLModel/CityGMLFeatureList.h"

#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/FeatureAnswers.h"

namespace tolvik {

namespace {

QVector<int> editedRoles()
{
    return {Qt::DisplayRole, Qt::EditRole, FeatureIdentifierRole, FeatureNameRole};
}

} // namespace

CityGMLFeatureList::CityGMLFeatureList(QObject* parent)
    : QIdentityProxyModel(parent), answers(new FeatureAnswers(this))
{
}

CityGMLFeatureList::~CityGMLFeatureList() = default;

void CityGMLFeatureList::setSourceModel(QAbstractItemModel* model)
{
    disconnect(edits);
    answers->setSource(qobject_cast<CityGMLModel*>(model));
    QIdentityProxyModel::setSourceModel(model);
    if (model != nullptr) {
        edits = connect(model, &QAbstractItemModel::dataChanged, this, &CityGMLFeatureList::announceEdit);
    }
}

/// The source names a role of its own for an edit of a property, which may be one of the name or identifier.
void CityGMLFeatureList::announceEdit(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                      const QVector<int>& roles)
{
    if (!roles.isEmpty()) {
        emit dataChanged(mapFromSource(topLeft), mapFromSource(bottomRight), editedRoles());
    }
}

QHash<int, QByteArray> CityGMLFeatureList::roleNames() const
{
    return featureRoleNames(QIdentityProxyModel::roleNames());
}

QVariant CityGMLFeatureList::data(const QModelIndex& index, int role) const
{
    return FeatureAnswers::isFeatureRole(role) ? answers->data(mapToSource(index), role)
                                               : QIdentityProxyModel::data(index, role);
}

bool CityGMLFeatureList::setData(const QModelIndex& index, const QVariant& value, int role)
{
    return FeatureAnswers::isFeatureRole(role) ? answers->setData(mapToSource(index), value, role)
                                               : QIdentityProxyModel::setData(index, value, role);
}

} // namespace tolvik
