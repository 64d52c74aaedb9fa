#pragma once

#include "UI/Models/CityGMLModel/FeatureRoles.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVariant>

class QModelIndex;

namespace tolvik {

class CityGMLModel;
class FeaturePropertyModel;

/// Answers the feature roles for a model above a list.
class FeatureAnswers : public QObject
{
public:
    using QObject::QObject;

    /// Whether a role is one of those that this answers.
    static bool isFeatureRole(int role)
    {
        return role >= FeatureIdentifierRole && role <= FeaturePropertiesRole;
    }

    /// Takes the list whose rows are asked for from now on; null for none.
    void setSource(CityGMLModel* model);

    /// \param index of the list
    /// \param role one of the feature roles
    QVariant data(const QModelIndex& index, int role);

    /// \return false, with nothing done, for a role that cannot be set
    bool setData(const QModelIndex& index, const QVariant& value, int role);

private:
    FeaturePropertyModel* properties(const QModelIndex& index);
    void forget(const gml::AbstractFeatureType* feature);
    void forgetAll();

    QPointer<CityGMLModel> source;
    QHash<const gml::AbstractFeatureType*, FeaturePropertyModel*> propertyModels;
};

} // namespace tolvik
