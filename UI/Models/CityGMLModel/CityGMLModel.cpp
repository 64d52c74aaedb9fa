#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "citygml/CityGmlUtils.h"
#include "citygml/CityModel.h"
#include "citygml/CreateCompressedGuidString.h"
#include "framework/OperationStatus.h"
#include "gml/CodeType.hxx"
#include "UI/Models/CityGMLModel/DataStream.h"
#include "UI/Models/CityGMLModel/FeatureColumns.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"
#include "UI/Models/CityGMLModel/properties/GmlEditRangeDialog.h"
#include "UI/Models/CityGMLModel/properties/OtherContentProvider.h"

#include <algorithm>
#include <boost/iostreams/device/null.hpp>
#include <boost/iostreams/stream.hpp>
#include <fstream>
#include <osgDB/Registry>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QItemSelection>
#include <sstream>
#include <stdexcept>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr, see the header

namespace tolvik {

namespace {

using SchemaError = xsd::cxx::tree::exception<char>;
using Namespaces = xsd::cxx::xml::dom::namespace_infomap<char>;

Namespaces declaredNamespaces()
{
    Namespaces namespaces;
    for (const NamespacesMap& entry : CityGmlUtils::getNamespaces()) {
        auto& info = namespaces[entry.prefix];
        info.name = entry.name;
        info.schema = entry.schemaLocation;
    }
    return namespaces;
}

void logError(const log4cplus::Logger& logger, const SchemaError& error, int line)
{
    if (logger.isEnabledFor(log4cplus::ERROR_LOG_LEVEL)) {
        std::ostringstream text;
        text << "Exception caught: " << error.what() << " --> " << error;
        logger.forcedLog(log4cplus::ERROR_LOG_LEVEL, LOG4CPLUS_STRING_TO_TSTRING(text.str()),
                         "UI/Models/CityGMLModel/CityGMLModel.cpp", line);
    }
}

} // namespace

CityGMLModel::CityGMLModel(ModelInterface* plugin, QObject* parent)
    : Model(plugin, parent),
      logger(log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("tolvik.UI.Models.CityGMLModel"))),
      correctGuid(false)
{
    addPropertyProvider(new OtherContentProvider);
}

CityGMLModel::~CityGMLModel() = default;

QModelIndex CityGMLModel::index(int row, int column, const QModelIndex& parent) const
{
    if (parent.isValid() || row < 0 || row >= rowCount(QModelIndex())) {
        return QModelIndex();
    }
    return createIndex(row, column, features[row]);
}

QModelIndex CityGMLModel::parent(const QModelIndex& /*child*/) const
{
    return QModelIndex();
}

int CityGMLModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || cityModel.get() == nullptr ? 0 : features.size();
}

int CityGMLModel::columnCount(const QModelIndex& /*parent*/) const
{
    return featureColumnCount;
}

QVariant CityGMLModel::data(const QModelIndex& index, int role) const
{
    if (cityModel.get() == nullptr) {
        return QVariant();
    }
    if (!index.isValid()) {
        return role == Qt::UserRole ? QVariant(fileName) : QVariant();
    }
    gml::AbstractFeatureType* const feature = getFeature(index);
    if (feature == nullptr) {
        return QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        if (index.column() == nameColumn) {
            const auto& names = feature->name();
            return names.empty() ? tr("<unset>") : QString::fromStdString(names.front());
        }
        return index.column() == typeColumn ? QVariant(QString::fromStdString(feature->typeLabel))
                                            : QVariant();
    case Qt::CheckStateRole:
        if (index.column() == nameColumn) {
            return static_cast<int>(isVisible(index) ? Qt::Checked : Qt::Unchecked);
        }
        return QVariant();
    default:
        return QVariant();
    }
}

bool CityGMLModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole) ||
        index.column() != nameColumn) {
        return false;
    }
    const gml::CodeType name(value.toString().toStdString());
    auto& names = features[index.row()]->name();
    if (names.empty()) {
        names.push_back(name);
    } else {
        names.front() = name;
    }
    announce(index);
    return true;
}

QVariant CityGMLModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    return tr(featureColumnTitle(section));
}

bool CityGMLModel::setHeaderData(int /*section*/, Qt::Orientation /*orientation*/, const QVariant& /*value*/,
                                 int /*role*/)
{
    return false;
}

Qt::ItemFlags CityGMLModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || disabled[index.row()]) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

void CityGMLModel::load(QIODevice* device, const QUrl& url)
{
    this->url = url;
    fileName = url.path(QUrl::FullyDecoded).replace('/', '_');
    QDataStream data(device);
    boost::iostreams::stream<boost::iostreams::DataStream> stream(&data);
    load(stream);
}

void CityGMLModel::load(std::istream& stream)
{
    beginResetModel();
    clearModel();
    try {
        setDocument(core::CityModel(stream, xsd::cxx::tree::flags::dont_validate,
                                    xsd::cxx::tree::properties<char>()));
    } catch (const SchemaError& error) {
        logError(logger, error, __LINE__);
    }
    doDataSetChanged();
    endResetModel();
}

void CityGMLModel::load(const QString& path)
{
    // Empty for a file that does not exist, which then cannot be opened.
    const QString native = QDir::toNativeSeparators(QFileInfo(path).canonicalFilePath());
    std::ifstream stream(native.toLocal8Bit().data(), std::ios_base::in);
    if (!stream.is_open()) {
        beginResetModel();
        clearModel();
        endResetModel();
        return;
    }
    setFileName(native);
    osgDB::Registry::instance(false)->getDataFilePathList().push_front(
        QFileInfo(native).absolutePath().toLocal8Bit().toStdString());
    load(stream);
}

void CityGMLModel::load(std::auto_ptr<core::CityModelType> document)
{
    beginResetModel();
    clearModel();
    setDocument(document);
    doDataSetChanged();
    endResetModel();
}

/// Takes a document in place of the former one, which no row speaks of any more.
void CityGMLModel::setDocument(std::auto_ptr<core::CityModelType> document)
{
    std::auto_ptr<core::CityModelType> former(cityModel);
    cityModel = document;
    if (former.get() == cityModel.get()) {
        former.release();
    }
    core::freeCityModel(former);
}

bool CityGMLModel::save(bool flag)
{
    return doSave(fileName, flag);
}

bool CityGMLModel::saveAs(const QString& path, bool flag)
{
    return doSave(path, flag);
}

bool CityGMLModel::doSave(const QString& path, bool /*flag*/)
{
    const auto failure = [this] {
        return std::runtime_error("CityGML::save : Unable to save file " +
                                  fileName.toLocal8Bit().toStdString());
    };
    if (cityModel.get() == nullptr) {
        throw failure();
    }
    try {
        const Namespaces namespaces = declaredNamespaces();
        // Opening the file cuts it to nothing, so what cannot be written is found before. To write twice
        // takes longer than to write into memory and from there, but needs no room for a second document.
        boost::iostreams::stream<boost::iostreams::null_sink> nowhere{boost::iostreams::null_sink()};
        core::CityModel(nowhere, *cityModel, namespaces, "UTF-8", 0);
        std::ofstream stream(path.toLocal8Bit().data(), std::ios_base::out);
        core::CityModel(stream, *cityModel, namespaces, "UTF-8", 0);
    } catch (const SchemaError& error) {
        logError(logger, error, __LINE__);
        throw failure();
    }
    fileName = path;
    dirty(false);
    return true;
}

void CityGMLModel::reset(const QModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    if (isVisible(index)) {
        hide(index);
    }
    emit representationAboutToBeChanged(features[index.row()]);
}

void CityGMLModel::zoom(const QModelIndex& /*index*/) {}

bool CityGMLModel::hasRepresentation(const QModelIndex& index) const
{
    return index.isValid();
}

void CityGMLModel::dataSetChanged()
{
    beginResetModel();
    doDataSetChanged();
    endResetModel();
}

void CityGMLModel::getVisibilityIds(QStringList& hiddenIds, QStringList& visibleIds) const
{
    const int count = rowCount(QModelIndex());
    for (int row = 0; row < count; ++row) {
        const bool visible = data(index(row, nameColumn, QModelIndex()), Qt::CheckStateRole).toBool();
        (visible ? visibleIds : hiddenIds).append(QString::number(row));
    }
}

void CityGMLModel::setVisibilityIds(const QStringList& ids, bool visible)
{
    const int count = rowCount(QModelIndex());
    QVector<bool> listed(count, false);
    for (const QString& id : ids) {
        bool isNumber = false;
        const int row = id.toInt(&isNumber);
        if (isNumber && row >= 0 && row < count) {
            listed[row] = true;
        }
    }
    QList<QModelIndex> wrong;
    for (int row = 0; row < count; ++row) {
        const QModelIndex rowIndex = index(row, nameColumn, QModelIndex());
        if (isVisible(rowIndex) != (listed[row] == visible)) {
            wrong.append(rowIndex);
        }
    }
    toggleVisibility(wrong);
}

void CityGMLModel::getSelectedIds(QStringList& ids) const
{
    if (selectionModel() == nullptr) {
        return;
    }
    const QModelIndexList rows = selectionModel()->selectedRows(nameColumn);
    for (const QModelIndex& row : rows) {
        ids.append(QString::number(row.row()));
    }
}

void CityGMLModel::setSelectedIds(const QStringList& ids)
{
    if (selectionModel() == nullptr) {
        return;
    }
    const int count = rowCount(QModelIndex());
    const int lastColumn = columnCount(QModelIndex()) - 1;
    QItemSelection selection;
    for (const QString& id : ids) {
        bool isNumber = false;
        const int row = id.toInt(&isNumber);
        if (isNumber && row >= 0 && row < count) {
            selection.append(QItemSelectionRange(index(row, nameColumn, QModelIndex()),
                                                 index(row, lastColumn, QModelIndex())));
        }
    }
    selectionModel()->select(selection, QItemSelectionModel::Clear | QItemSelectionModel::Select |
                                            QItemSelectionModel::Rows);
}

QList<QModelIndex> CityGMLModel::getIndexList(const QStringList& ids) const
{
    QList<QModelIndex> indexes;
    indexes.reserve(ids.size());
    for (const QString& id : ids) {
        indexes.append(index(id.toInt(), nameColumn, QModelIndex()));
    }
    return indexes;
}

void CityGMLModel::propertyChanged(const QModelIndex& index, bool rebuild)
{
    if (!index.isValid()) {
        return;
    }
    if (rebuild) {
        properties[index.row()] = GmlCorePropertyCreator::createProperty(getFeature(index), true);
        reapplyPropertiesFromProviders(index);
    }
    dirty(true);
    emit dataChanged(index, index, {Qt::UserRole});
}

QString CityGMLModel::type() const
{
    return QStringLiteral("CityGML 2.0");
}

EditRangeDialog* CityGMLModel::getEditRangeDialog(const QVector<double>& ranges)
{
    return new GmlEditRangeDialog(ranges, nullptr);
}

void CityGMLModel::enable(const QList<QModelIndex>& indexes)
{
    setDisabled(indexes, false);
}

void CityGMLModel::enable(const QModelIndex& index)
{
    setDisabled(index, false);
}

void CityGMLModel::disable(const QList<QModelIndex>& indexes)
{
    setDisabled(indexes, true);
}

void CityGMLModel::disable(const QModelIndex& index)
{
    setDisabled(index, true);
}

bool CityGMLModel::isDisabled(gml::AbstractFeatureType* feature) const
{
    const int row = getRow(feature);
    return row < 0 || disabled[row];
}

core::CityModelType* CityGMLModel::cityGML() const
{
    return cityModel.get();
}

gml::AbstractFeatureType* CityGMLModel::getFeature(const std::string& id) const
{
    const auto found = featureById.find(id);
    return found != featureById.end() ? found->second : nullptr;
}

gml::AbstractFeatureType* CityGMLModel::getFeature(int row) const
{
    return row >= 0 && row < rowCount(QModelIndex()) ? features[row] : nullptr;
}

gml::AbstractFeatureType* CityGMLModel::getFeature(const QModelIndex& index) const
{
    return getFeature(index.row());
}

QModelIndex CityGMLModel::index(gml::AbstractFeatureType* feature) const
{
    const int row = feature != nullptr ? getRow(feature) : -1;
    return row >= 0 ? createIndex(row, nameColumn, feature) : QModelIndex();
}

QModelIndex CityGMLModel::index(const gml::AbstractFeatureType* feature) const
{
    return index(const_cast<gml::AbstractFeatureType*>(feature));
}

int CityGMLModel::getRow(gml::AbstractFeatureType* feature) const
{
    const auto found = rowByFeature.find(feature);
    return found != rowByFeature.end() ? found->second : -1;
}

void CityGMLModel::append(gml::AbstractFeatureType* feature)
{
    if (correctGuid && !feature->id().present()) {
        char buffer[23];
        const std::string guid(CreateCompressedGuidString(buffer, sizeof buffer), sizeof buffer - 1);
        feature->id(gml::AbstractGMLType::id_type(guid));
        dirty(true);
    }
    rowByFeature[feature] = features.size();
    featureById[getFeatureID(feature)] = feature;
    features.append(feature);
    disabled.append(false);
    visibility.append(false);

    GmlCorePropertyCreator creator(true);
    feature->accept(&creator);
    properties.append(creator.getProperty());
}

void CityGMLModel::setCorrectGuid(bool correct)
{
    correctGuid = correct;
}

void CityGMLModel::updateData(const QModelIndex& index)
{
    announce(index);
}

void CityGMLModel::doDataSetChanged()
{
    clearModel();
    if (cityModel.get() == nullptr) {
        return;
    }
    CityGMLFeaturesFillVisitor visitor;
    cityModel->accept(&visitor);
    const auto& found = visitor.getModelFeatures();
    const int count = static_cast<int>(found.size());
    features.reserve(count);
    visibility.reserve(count);
    disabled.reserve(count);
    properties.reserve(count);

    // Entries that come in front of the property trees lie close together, and a copy lays them out along the
    // ways of a search: among a million it then waits half as long for memory. Until its row is appended, a
    // feature counts as without one.
    std::map<gml::AbstractFeatureType*, int> rows;
    auto entry = rows.end();
    for (gml::AbstractFeatureType* feature : found) {
        entry = rows.try_emplace(entry, feature, -1);
    }
    rowByFeature = rows;
    rows.clear();

    OperationStatus status(tr("Building Model"), count, true);
    for (gml::AbstractFeatureType* feature : found) {
        append(feature);
        status.addStep(1);
    }
}

void CityGMLModel::reallyDoHideAll()
{
    showAlls(false);
}

// Hiding and showing differ on purpose in what they test and announce: a list is hidden unseen, so that a
// host can rely on hearing of every row that it asked to hide.

void CityGMLModel::reallyDoHide(const QModelIndex& index)
{
    if (index.isValid() && isVisible(index)) {
        setVisibility(index, false);
        announce(this->index(index.row(), nameColumn, index.parent()));
        emit visibilityChanged(index);
    }
}

void CityGMLModel::reallyDoHide(const QList<QModelIndex>& indexes)
{
    if (indexes.isEmpty()) {
        return;
    }
    QList<QModelIndex> hidden;
    for (const QModelIndex& index : indexes) {
        if (index.isValid()) {
            setVisibility(index, false);
            hidden.append(index);
            announce(index);
        }
    }
    std::sort(hidden.begin(), hidden.end());
    emit visibilityChanged(hidden);
}

void CityGMLModel::reallyDoShowAll()
{
    showAlls(true);
}

void CityGMLModel::reallyDoShow(const QModelIndex& index)
{
    if (index.isValid() && !isVisible(index)) {
        setVisibility(index, true);
        announce(this->index(index.row(), nameColumn, index.parent()));
        emit visibilityChanged(index);
    }
}

void CityGMLModel::reallyDoShow(const QList<QModelIndex>& indexes)
{
    QList<QModelIndex> shown;
    for (const QModelIndex& index : indexes) {
        if (index.isValid() && !isVisible(index)) {
            setVisibility(index, true);
            shown.append(index);
            announce(index);
        }
    }
    if (!shown.isEmpty()) {
        std::sort(shown.begin(), shown.end());
        emit visibilityChanged(shown);
    }
}

void CityGMLModel::showAlls(bool visible)
{
    QList<QModelIndex> changed;
    for (int row = 0; row < features.size(); ++row) {
        const QModelIndex rowIndex = index(row, nameColumn, QModelIndex());
        if (rowIndex.isValid() && isVisible(rowIndex) != visible) {
            setVisibility(rowIndex, visible);
            changed.append(rowIndex);
            announce(rowIndex);
        }
    }
    if (!changed.isEmpty()) {
        std::sort(changed.begin(), changed.end());
        emit visibilityChanged(changed);
    }
}

void CityGMLModel::clearModel()
{
    features.clear();
    visibility.clear();
    rowByFeature.clear();
    featureById.clear();
    disabled.clear();
    properties.clear();
}

std::string CityGMLModel::createFeatureID()
{
    return "truite";
}

std::string CityGMLModel::getFeatureID(gml::AbstractFeatureType* feature)
{
    const auto& id = feature->id();
    return id.present() ? std::string(id.get()) : createFeatureID();
}

bool CityGMLModel::featureExists(gml::AbstractFeatureType* feature) const
{
    return getRow(feature) != -1;
}

void CityGMLModel::setDisabled(const QModelIndex& index, bool isDisabled)
{
    if (index.isValid()) {
        disabled[index.row()] = isDisabled;
        announce(index);
    }
}

void CityGMLModel::setDisabled(const QList<QModelIndex>& indexes, bool isDisabled)
{
    QList<QModelIndex> changed;
    for (const QModelIndex& index : indexes) {
        if (index.isValid()) {
            disabled[index.row()] = isDisabled;
            changed.append(index);
        }
    }
    for (const QModelIndex& index : changed) {
        announce(index);
    }
}

void CityGMLModel::announce(const QModelIndex& index)
{
    emit dataChanged(index, index, QVector<int>());
}

} // namespace tolvik
