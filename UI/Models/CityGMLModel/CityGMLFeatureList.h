#pragma once

#include "UI/Models/CityGMLModel/CityGMLModelExport.h"
#include "UI/Models/CityGMLModel/FeatureRoles.h"

#include <QIdentityProxyModel>

namespace tolvik {

class FeatureAnswers;

/// The rows of a CityGMLModel, its source, as they are, with what scripts and QML need of a feature as roles:
/// see FeatureRole. The list itself answers no roles but those of a view.
/// \code
/// CityGMLFeatureList list;
/// list.setSourceModel(&model);
/// engine.rootContext()->setContextProperty("features", &list);
/// \endcode
class CITYGMLMODEL_EXPORT CityGMLFeatureList : public QIdentityProxyModel
{
    Q_OBJECT

public:
    /// \param parent owns the model, or null
    explicit CityGMLFeatureList(QObject* parent = nullptr);
    ~CityGMLFeatureList() override;

    /// \param model a CityGMLModel, or null; not owned
    void setSourceModel(QAbstractItemModel* model) override;

    /// Those of the source and of FeatureRole.
    QHash<int, QByteArray> roleNames() const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    void announceEdit(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QVector<int>& roles);

    FeatureAnswers* const answers;
    QMetaObject::Connection edits;
};

} // namespace tolvik
