#pragma once

#include "apps/viewer/edits/PropertyPath.h"

#include <QCache>
#include <QVariant>
#include <QVector>

namespace tolvik::viewer {

/// What a table shows of one attribute of one feature.
struct AttributeCell
{
    QVariant value;   ///< invalid where the feature has none
    QVariant offered; ///< what an editor starts from
    QVariantList choices;
    QString unit;
    bool isThere = false;    ///< whether the feature can have the attribute at all
    bool isEditable = false; ///< whether it can be given a value
    bool isPresent = false;  ///< whether the document has it
};

/// The attributes of features, read when they are asked for. Those of the last features stay at hand, so that
/// a view can paint and scroll.
class AttributeRows
{
public:
    explicit AttributeRows(const CityGMLModel& model);

    /// \param paths the columns
    void setColumns(const QVector<PropertyPath>& paths);
    /// Forgets what was read of a row of the model.
    void forget(int row) { read.remove(row); }
    void forgetAll() { read.clear(); }

    /// The cell of a row of the model. It is valid until the next call.
    const AttributeCell& cell(int row, int column);
    /// The value and the unit of cells of a row that is passed by once: nothing stays at hand. Of the other
    /// cells nothing is told.
    QVector<AttributeCell> valuesOf(int row, int firstColumn, int lastColumn) const;

    /// Adds the paths that lead to attributes of the feature, where they are new.
    /// \param[in,out] paths in the order of the property trees
    /// \param[in,out] isUsed for each path, whether a feature has the attribute
    static void collectPaths(const CityGMLModel& model, int row, QVector<PropertyPath>& paths,
                             QVector<bool>& isUsed);

private:
    QVector<AttributeCell> cellsOf(int row) const;
    Fondo::RefPtr<CoreProperty> treeOf(gml::AbstractFeatureType& feature) const;

    const CityGMLModel& model;
    QVector<PropertyPath> columns;
    /// Whether a column shows what only providers add to a tree; these take longer than all the rest.
    bool needsProviders = false;
    QCache<int, QVector<AttributeCell>> read;
};

} // namespace tolvik::viewer
