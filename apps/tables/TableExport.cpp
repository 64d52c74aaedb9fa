#include "apps/tables/TableExport.h"

#include "apps/tables/FeaturePlace.h"
#include "apps/tables/TableError.h"
#include "core/CityModelType.hxx"
#include "framework/CoreProperty.h"
#include "gml/BoundingShapeType.hxx"
#include "gml/CodeType.hxx"
#include "gml/EnvelopeType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>
#include <QFileInfo>
#include <utility>

namespace tolvik::tables {

namespace {

/// Name of the coordinate system of a document; empty where it tells none.
QString referenceNameOf(core::CityModelType& document)
{
    const auto& shape = document.boundedBy();
    if (!shape.present() || !shape->Envelope().present() || !shape->Envelope()->srsName().present()) {
        return QString(QLatin1String(""));
    }
    return QString::fromStdString(shape->Envelope()->srsName().get());
}

QByteArray binaryOf(const OGRGeometry& geometry)
{
    QByteArray bytes(static_cast<int>(geometry.WkbSize()), Qt::Uninitialized);
    geometry.exportToWkb(wkbNDR, reinterpret_cast<unsigned char*>(bytes.data()), wkbVariantIso);
    return bytes;
}

} // namespace

TableExport::TableExport(ExportOptions wanted) : options(std::move(wanted))
{
    GDALAllRegister();
    if (options.target.format == nullptr) {
        return;
    }
    if (!options.columnsFile.isEmpty() && QFileInfo::exists(options.columnsFile)) {
        catalogue.load(options.columnsFile);
    } else {
        spool = std::make_unique<RowSpool>();
    }
}

TableExport::~TableExport() = default;

void TableExport::begin(const CityGMLModel& document, const QString& name)
{
    model = &document;
    file = name;
    if (options.target.hasGeometry) {
        noteReference();
        if (placesCount) {
            geometries = std::make_unique<FeatureGeometry>(*model);
        }
    }
}

void TableExport::addFeature(int number)
{
    const gml::AbstractFeatureType& feature = *model->getFeature(number);
    FeatureRow row;
    row.type = QString::fromStdString(feature.typeLabel);
    if (!options.types.isEmpty() && !options.types.contains(row.type)) {
        return;
    }
    if (catalogue.treeOf(row.type) == nullptr) {
        ++withoutTable[row.type];
        return;
    }
    readRow(number, row);
    if (geometries != nullptr) {
        addGeometry(feature, row);
    }
    if (spool != nullptr) {
        spool->add(file, row);
    } else if (options.target.format != nullptr) {
        openWriter().write(file, row);
    }
}

void TableExport::end()
{
    if (spool == nullptr && options.target.format != nullptr) {
        openWriter().endDocument();
    }
    for (auto it = withoutTable.cbegin(); it != withoutTable.cend(); ++it) {
        notes += QStringLiteral("%1: %2 of type %3 have no table in %4")
                     .arg(file)
                     .arg(it.value())
                     .arg(it.key(), options.columnsFile);
    }
    withoutTable.clear();
    geometries.reset();
    model = nullptr;
}

void TableExport::addGeometry(const gml::AbstractFeatureType& feature, FeatureRow& row) const
{
    const OgrErrors quiet;
    const FeatureGeometry::Result result =
        options.hasHeights ? geometries->surfaces(feature) : geometries->onMap(feature);
    if (result.geometry != nullptr) {
        row.geometry = binaryOf(*result.geometry);
        row.geometryFrom = QString::fromLatin1(result.madeFrom);
    }
}

void TableExport::readRow(int number, FeatureRow& row)
{
    gml::AbstractFeatureType& feature = *model->getFeature(number);
    row.id = idOf(&feature);
    row.parent = idOf(featureOutside(feature));
    if (!feature.name().empty()) {
        row.name = QString::fromStdString(feature.name().front());
    }
    const Fondo::RefPtr<CoreProperty> root = GmlCorePropertyCreator::createProperty(&feature, true);
    if (options.otherContent) {
        model->addPropertiesFromProviders(model->index(number, 0), *root);
    }
    catalogue.treeOf(row.type)->read(*root, row);
}

/// The geometries of all documents are in one coordinate system: that of the first.
void TableExport::noteReference()
{
    const QString name = referenceNameOf(*model->cityGML());
    if (!referenceName) {
        referenceName = name;
        auto known = std::make_unique<OGRSpatialReference>();
        known->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        const OgrErrors quiet;
        if (!name.isEmpty() && known->SetFromUserInput(name.toUtf8().constData()) == OGRERR_NONE) {
            // That call takes the order of the axes from the authority; documents have east in front.
            known->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
            reference = std::move(known);
        } else {
            remarked += QStringLiteral("%1: the coordinate system \"%2\" is not known; the tables name none")
                            .arg(file, name);
        }
    }
    placesCount = *referenceName == name;
    if (!placesCount) {
        notes +=
            QStringLiteral("%1: its coordinate system is \"%2\", and not \"%3\"; its rows have no geometry")
                .arg(file, name, *referenceName);
    }
}

TableWriter& TableExport::openWriter()
{
    if (writer == nullptr) {
        QVector<TableLayout> layouts = catalogue.layouts(options.columns);
        if (!options.types.isEmpty()) {
            layouts.erase(std::remove_if(layouts.begin(), layouts.end(),
                                         [this](const TableLayout& layout) {
                                             return !options.types.contains(layout.type);
                                         }),
                          layouts.end());
        }
        writer = std::make_unique<TableWriter>(options.target, layouts, reference.get());
    }
    return *writer;
}

void TableExport::finish()
{
    for (const QString& column : options.columns) {
        if (!catalogue.has(column)) {
            notes += QStringLiteral("no feature has %1").arg(column);
        }
    }
    if (options.target.format != nullptr) {
        writeRows();
    }
    if (!options.columnsFile.isEmpty() && !catalogue.isFixed()) {
        TableCatalogue::save(options.columnsFile, catalogue.layouts(options.columns));
    }
    remarked += catalogue.leftOut();
}

void TableExport::writeRows()
{
    TableWriter& tables = openWriter();
    if (spool != nullptr) {
        QString last;
        spool->replay([&](const QString& file, const FeatureRow& row) {
            if (file != last) {
                tables.endDocument();
                last = file;
            }
            tables.write(file, row);
        });
    }
    tables.finish();
}

QStringList TableExport::problems() const
{
    return writer != nullptr ? notes + writer->problems() : notes;
}

} // namespace tolvik::tables
