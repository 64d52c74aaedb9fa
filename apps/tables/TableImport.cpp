#include "apps/tables/TableImport.h"

#include "apps/common/PropertyText.h"
#include "apps/tables/ColumnTree.h"
#include "apps/tables/FeatureGeometry.h"
#include "apps/tables/GenericAttributes.h"
#include "framework/AbstractUnit.h"
#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"
#include "UI/Models/CityGMLModel/properties/XmlCharacters.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <utility>

namespace tolvik::tables {

namespace {

using apps::EditError;

/// The child of a label that is the n-th of its kind, where those of generic attributes are a kind of their
/// own.
CoreProperty* childAt(const CoreProperty& parent, const ColumnPath::Step& step, bool isGeneric)
{
    int met = 0;
    for (const auto& child : parent.properties()) {
        if (child->name() == step.label && isGenericAttribute(*child) == isGeneric &&
            ++met == step.occurrence) {
            return child.get();
        }
    }
    return nullptr;
}

/// The property that a path leads to; null where there is none.
CoreProperty* propertyAt(const CoreProperty& root, const ColumnPath& path)
{
    const CoreProperty* at = path.isGeneric ? root.getProperty(QStringLiteral("Fields"), false) : &root;
    for (int i = 0; at != nullptr && i + 1 < path.steps.size(); ++i) {
        at = childAt(*at, path.steps[i], false);
    }
    if (at == nullptr) {
        return nullptr;
    }
    CoreProperty* const found = childAt(*at, path.steps.last(), path.isGeneric);
    // `set` takes a generic attribute among the fields.
    return found != nullptr || path.isGeneric ? found : childAt(*at, path.steps.last(), true);
}

/// Whether a cell says what a property shows. Numbers are compared as far as tables write them.
bool isShown(const QVariant& value, const QString& cell)
{
    const std::optional<CellType> type = cellType(value);
    if (!type) {
        return false;
    }
    bool isNumber = false;
    switch (*type) {
    case CellType::Real: {
        const double number = cell.toDouble(&isNumber);
        return isNumber && QString::number(number, 'g', 15) == QString::number(value.toDouble(), 'g', 15);
    }
    case CellType::Whole: {
        const double number = cell.toDouble(&isNumber);
        return cell == value.toString() || (isNumber && number == value.toDouble());
    }
    case CellType::List: {
        const QJsonDocument list = QJsonDocument::fromJson(cell.toUtf8());
        return list.isArray() && list == QJsonDocument::fromJson(cellText(value).toUtf8());
    }
    default:
        return cell == cellText(value);
    }
}

QString unitOf(const CoreProperty& property)
{
    return property.unit() != nullptr ? property.unit()->name() : QString();
}

/// \throws EditError
void verifyUnit(const CoreProperty& property, const QString& unit)
{
    if (!unit.isEmpty() && unitOf(property) != unit) {
        throw EditError(
            property.unit() != nullptr
                ? QStringLiteral("the unit is \"%1\", and not \"%2\"").arg(unitOf(property), unit)
                : QStringLiteral("there is no value with the unit \"%1\" that could be changed").arg(unit));
    }
}

} // namespace

/// Sets the attributes of one feature.
class TableImport::Edit
{
public:
    Edit(CityGMLModel& model, gml::AbstractFeatureType& feature, const ImportOptions& options,
         bool hasOtherContent)
        : model(model), feature(feature), options(options), hasOtherContent(hasOtherContent)
    {
    }

    /// \return whether the document has changed
    /// \throws EditError where the cell cannot be set; the document is as before then
    bool set(const EditTable::Column& column, CellType type, const QString& unit, const QString& cell)
    {
        switch (column.role) {
        case EditTable::Role::Name:
            return rename(cell);
        case EditTable::Role::Parent:
            return verifyTold(idOf(featureOutside(feature)), cell);
        case EditTable::Role::Type:
            return verifyTold(QString::fromStdString(feature.typeLabel), cell);
        case EditTable::Role::Value:
            break;
        }
        CoreProperty* const property = propertyAt(existing(), column.path);
        if (!options.absentWord.isEmpty() && cell == options.absentWord) {
            return property != nullptr && remove(*property, column.path);
        }
        if (property != nullptr) {
            return change(*property, unit, cell);
        }
        CoreProperty* const possible = propertyAt(all(), column.path);
        if (possible != nullptr) {
            return change(*possible, unit, cell);
        }
        if (!options.create) {
            throw EditError(QStringLiteral("the feature has no such attribute"));
        }
        addGenericAttribute(feature, column.path, type, unit, cell);
        forgetTrees();
        return true;
    }

private:
    static QString idOf(const gml::AbstractFeatureType* object)
    {
        return object != nullptr && object->id().present() ? QString::fromStdString(object->id().get())
                                                           : QString();
    }

    bool rename(const QString& cell)
    {
        const auto& names = feature.name();
        if (!names.empty() && QString::fromStdString(names.front()) == cell) {
            return false;
        }
        if (firstCharacterNotInXml(cell)) {
            throw EditError(QStringLiteral("a name cannot have characters that XML has not"));
        }
        return model.setData(model.index(&feature), cell, Qt::EditRole);
    }

    static bool verifyTold(const QString& told, const QString& cell)
    {
        if (told != cell) {
            throw EditError(QStringLiteral("it is \"%1\", which a table cannot change").arg(told));
        }
        return false;
    }

    bool change(CoreProperty& property, const QString& unit, const QString& cell)
    {
        verifyUnit(property, unit);
        if (isShown(property.value(), cell)) {
            return false;
        }
        auto* const bound = dynamic_cast<BoundProperty*>(&property);
        const citygml::MemberState before = bound != nullptr ? bound->capture() : citygml::MemberState();
        try {
            apps::setFromText(property, cell);
        } catch (const EditError&) {
            if (bound != nullptr) {
                bound->restore(before);
            }
            throw;
        }
        return true;
    }

    bool remove(CoreProperty& property, const ColumnPath& path)
    {
        auto* const bound = dynamic_cast<BoundProperty*>(&property);
        if (bound == nullptr) {
            throw EditError(QStringLiteral("it cannot be removed"));
        }
        if (!isGenericAttribute(property)) {
            bound->clear();
        } else if (!removeGenericAttribute(feature, path)) {
            throw EditError(QStringLiteral("it cannot be removed"));
        }
        forgetTrees();
        return true;
    }

    const CoreProperty& existing()
    {
        if (existingTree.get() == nullptr) {
            existingTree = GmlCorePropertyCreator::createProperty(&feature, true);
            if (hasOtherContent) {
                model.addPropertiesFromProviders(model.index(&feature), *existingTree);
            }
        }
        return *existingTree;
    }

    const CoreProperty& all()
    {
        if (fullTree.get() == nullptr) {
            fullTree = GmlCorePropertyCreator::createProperty(&feature, false);
        }
        return *fullTree;
    }

    /// Attributes that come and go leave the trees with properties of what is no more.
    void forgetTrees()
    {
        existingTree = nullptr;
        fullTree = nullptr;
    }

    CityGMLModel& model;
    gml::AbstractFeatureType& feature;
    const ImportOptions& options;
    const bool hasOtherContent;
    Fondo::RefPtr<CoreProperty> existingTree;
    Fondo::RefPtr<CoreProperty> fullTree;
};

TableImport::TableImport(std::vector<EditTable> given, ImportOptions options, const QStringList& files)
    : tables(std::move(given)), options(std::move(options)), files(files.begin(), files.end())
{
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const EditTable& table = tables[i];
        matches.emplace_back(table.rows.size());
        types.emplace_back();
        for (int column = 0; column < table.columns.size(); ++column) {
            types.back() += this->options.create ? table.typeOf(column) : CellType::Text;
            hasOtherContent = hasOtherContent || table.columns[column].path.steps.first().label ==
                                                     QLatin1String("Other content");
        }
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            byId[table.rows[row].id] += Place{static_cast<int>(i), static_cast<int>(row)};
        }
    }
}

/// Whether a row is for a document. A file that was told under another folder is known by its name.
bool TableImport::isMeant(const EditTable::Row& row, const QString& file) const
{
    return row.file.isEmpty() || row.file == file ||
           (!files.contains(row.file) && QFileInfo(row.file).fileName() == QFileInfo(file).fileName());
}

QVector<TableImport::Place> TableImport::rowsOf(const QString& id, const QString& file) const
{
    QVector<Place> places;
    const auto found = byId.constFind(id);
    if (found == byId.constEnd()) {
        return places;
    }
    for (const Place& place : *found) {
        const auto table = static_cast<std::size_t>(place.table);
        const auto row = static_cast<std::size_t>(place.row);
        if (!matches[table][row].isLost && isMeant(tables[table].rows[row], file)) {
            places += place;
        }
    }
    return places;
}

void TableImport::tell(const Place& place, const QString& column, const QString& reason)
{
    const EditTable& table = tables[static_cast<std::size_t>(place.table)];
    const EditTable::Row& row = table.rows[static_cast<std::size_t>(place.row)];
    wrong += QStringLiteral("%1: %2 %3: %4%5: %6")
                 .arg(table.name, table.lineWord)
                 .arg(row.line)
                 .arg(row.id, column.isEmpty() ? QString() : QStringLiteral(": ") + column, reason);
}

/// Notes in which document a row has found its feature.
void TableImport::noteMatch(const Place& place, const QString& file)
{
    Match& match = matches[static_cast<std::size_t>(place.table)][static_cast<std::size_t>(place.row)];
    if (!match.file.isNull() && match.file != file && !match.isLost) {
        tell(place, QString(),
             QStringLiteral("the feature is in %1 and in %2; a column \"file\" tells which is meant")
                 .arg(match.file, file));
        match.isLost = true;
    }
    match.file = file;
}

qint64 TableImport::apply(CityGMLModel& model, const QString& file)
{
    qint64 changes = 0;
    const int count = model.rowCount();
    for (int number = 0; number < count; ++number) {
        gml::AbstractFeatureType& feature = *model.getFeature(number);
        if (!feature.id().present()) {
            continue;
        }
        const QVector<Place> places = rowsOf(QString::fromStdString(feature.id().get()), file);
        if (places.isEmpty()) {
            continue;
        }
        Edit edit(model, feature, options, hasOtherContent);
        for (const Place& place : places) {
            noteMatch(place, file);
            const EditTable& table = tables[static_cast<std::size_t>(place.table)];
            const EditTable::Row& row = table.rows[static_cast<std::size_t>(place.row)];
            for (int i = 0; i < table.columns.size(); ++i) {
                const EditTable::Column& column = table.columns[i];
                if (row.cells[i].isEmpty() || column.path.isUnit) {
                    continue;
                }
                const QString unit = column.unitColumn >= 0 ? row.cells[column.unitColumn] : column.unit;
                try {
                    changes +=
                        edit.set(column, types[static_cast<std::size_t>(place.table)][i], unit, row.cells[i]);
                } catch (const EditError& error) {
                    tell(place, column.name, QString::fromUtf8(error.what()));
                }
            }
        }
    }
    if (changes > 0) {
        model.dirty(true);
    }
    return changes;
}

void TableImport::finish()
{
    for (std::size_t table = 0; table < tables.size(); ++table) {
        for (std::size_t row = 0; row < tables[table].rows.size(); ++row) {
            if (matches[table][row].file.isNull()) {
                tell({static_cast<int>(table), static_cast<int>(row)}, QString(),
                     QStringLiteral("no document has such a feature"));
            }
        }
    }
}

} // namespace tolvik::tables
