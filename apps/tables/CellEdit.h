#pragma once

#include "apps/tables/EditTable.h"
#include "citygml/Member.h"
#include "fondo/RefPtr.h"
#include "framework/CoreProperty.h"

#include <optional>
#include <QCoreApplication>
#include <QString>
#include <QVariant>
#include <QVector>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik {
class BoundProperty;
class CityGMLModel;
} // namespace tolvik

namespace tolvik::tables {

/// How tables of new values are brought into documents.
struct ImportOptions
{
    QString absentWord;  ///< cell that takes an attribute out of the document; empty for none
    bool create = false; ///< whether columns that a feature has no property for become generic attributes
};

/// What a cell of a table changes in a feature, for those who do it in a way of their own.
struct CellChange
{
    enum Kind {
        Value,        ///< the property gets the value
        Measure,      ///< the property gets the value and the unit
        Absence,      ///< the property's element or attribute leaves the document
        FirstName,    ///< the feature, which has no name, gets one
        NewAttribute, ///< the feature gets a generic attribute
        GoneAttribute ///< the generic attribute of the property leaves the document
    };

    Kind kind = Value;
    /// From the root of the complete property tree to the property; of a new attribute its name alone.
    QVector<ColumnPath::Step> property;
    QVariant value;
    CellType type = CellType::Text; ///< of a new attribute
    QString unit;                   ///< of a measure and a new attribute
    QString before;                 ///< what the property shows; null where there is none
};

/// Sets attributes of one feature as cells of tables say it.
class CellEdit
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::tables::CellEdit)

public:
    /// What a column says of the cell.
    struct Cell
    {
        const EditTable::Column& column;
        CellType type; ///< of a generic attribute that the cell makes
        QString unit;  ///< empty where the table tells none
        QString text;
        int groupDepth = 0; ///< see EditTable
        int ordinal = 0;    ///< see EditTable::Row
    };

    /// \param options         those of the import
    /// \param hasOtherContent whether cells may be of what no class has a member for, which takes time
    CellEdit(CityGMLModel& model, gml::AbstractFeatureType& feature, const ImportOptions& options,
             bool hasOtherContent);

    /// Whether the document says what the cell says, so that there is nothing to set.
    bool isSaid(const Cell& cell);
    /// \return whether the document has changed
    /// \throws EditError where the cell cannot be set; the document is as before then
    bool set(const Cell& cell);
    /// Finds out what set() would do, and leaves the document as it is.
    /// \return nothing where the document says what the cell says
    /// \throws EditError as set() does
    std::optional<CellChange> plan(const Cell& cell);

private:
    using Outcome = std::optional<CellChange>;

    Outcome perform(const Cell& cell);
    CoreProperty* find(const Cell& cell);
    CoreProperty* findPossible(const Cell& cell);
    Outcome rename(const Cell& cell);
    Outcome change(CoreProperty& property, const Cell& cell);
    CellChange give(CoreProperty& property, const Cell& cell);
    bool isFoundWhenAbsent(const citygml::Member& member);
    Outcome remove(CoreProperty& property, const Cell& cell);
    Outcome create(const Cell& cell);
    QVector<ColumnPath::Step> placeOf(const CoreProperty& property);
    const CoreProperty& existing();
    const CoreProperty& all();
    void forgetTrees();

    CityGMLModel& model;
    gml::AbstractFeatureType& feature;
    const ImportOptions& options;
    const bool hasOtherContent;
    bool isTrial = false;
    Fondo::RefPtr<CoreProperty> existingTree;
    Fondo::RefPtr<CoreProperty> fullTree;
};

} // namespace tolvik::tables
