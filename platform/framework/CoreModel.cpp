#include "framework/CoreModel.h"

#include "framework/ModelInterface.h"
#include "framework/PropertyProvider.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace tolvik {

namespace {

bool holdsRow(int row, int count)
{
    return row >= 0 && row < count;
}

} // namespace

CoreModel::CoreModel(ModelInterface* plugin, QObject* parent) : QAbstractListModel(parent), plugin(plugin)
{
    connect(this, &QAbstractItemModel::modelReset, this, [this] { provided.clear(); });
    connect(this, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& /*parent*/, int first, int last) {
                if (first < provided.size()) {
                    provided.insert(first, last - first + 1, nullptr);
                }
            });
    connect(this, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex& /*parent*/, int first, int last) {
                if (first < provided.size()) {
                    provided.remove(first, std::min(last + 1, provided.size()) - first);
                }
            });
}

CoreModel::~CoreModel() = default;

bool CoreModel::isVisible(const QModelIndex& index) const
{
    return holdsRow(index.row(), visibility.size()) && !visibility[index.row()];
}

void CoreModel::setVisibility(const QModelIndex& index, bool visible)
{
    if (holdsRow(index.row(), visibility.size())) {
        visibility[index.row()] = !visible;
    }
}

QModelIndex CoreModel::indexRef(long row)
{
    const bool isInt = row >= 0 && row <= std::numeric_limits<int>::max();
    return isInt ? index(static_cast<int>(row), 0, QModelIndex()) : QModelIndex();
}

bool CoreModel::dirty()
{
    return documentChanged;
}

void CoreModel::dirty(bool changed)
{
    documentChanged = changed;
}

ModelInterface* CoreModel::getModelPlugin()
{
    return plugin;
}

CoreModel::_geoPoint CoreModel::anchor()
{
    double lower[3];
    double upper[3];
    if (plugin == nullptr || !plugin->envelope(*this, lower, upper)) {
        return _geoPoint();
    }
    return {(lower[0] + upper[0]) / 2.0, (lower[1] + upper[1]) / 2.0, lower[2]};
}

QList<QList<CoreModel::_geoPoint>> CoreModel::footprint()
{
    double lower[3];
    double upper[3];
    if (plugin == nullptr || !plugin->envelope(*this, lower, upper)) {
        return {};
    }
    const double ground = lower[2];
    return {{{lower[0], lower[1], ground},
             {upper[0], lower[1], ground},
             {upper[0], upper[1], ground},
             {lower[0], upper[1], ground}}};
}

QVariant CoreModel::getIdFromRow(unsigned int row)
{
    return row < static_cast<unsigned int>(rowCount(QModelIndex())) ? QVariant(static_cast<int>(row))
                                                                    : QVariant();
}

int CoreModel::getRowFromId(const QVariant& id) const
{
    bool isRow = false;
    const int row = id.toInt(&isRow);
    return isRow && holdsRow(row, rowCount(QModelIndex())) ? row : -1;
}

double CoreModel::getWalkDistance(int from, int to) const
{
    const int count = rowCount(QModelIndex());
    return holdsRow(from, count) && holdsRow(to, count) ? std::abs(to - from) : -1;
}

void CoreModel::setFileName(const QString& name)
{
    fileName = name;
}

CoreProperty* CoreModel::getProperty(const QModelIndex& index) const
{
    const int row = index.row();
    if (!holdsRow(row, properties.size())) {
        return nullptr;
    }
    const Fondo::RefPtr<CoreProperty> root = properties[row];
    if (root != nullptr && provided.value(row) != root.get()) {
        noteProvided(row);
        addPropertiesFromProviders(index, *root);
    }
    return properties.value(row).get();
}

void CoreModel::addPropertyProvider(PropertyProvider* provider)
{
    const Fondo::RefPtr<PropertyProvider> kept = provider;
    if (kept && !providers.contains(kept)) {
        providers.append(kept);
    }
}

void CoreModel::removePropertyProvider(PropertyProvider* provider)
{
    // By hand: comparing with a RefPtr to a provider that nobody holds would delete it.
    for (int i = 0; i < providers.size(); ++i) {
        if (providers[i] == provider) {
            providers.removeAt(i);
            return;
        }
    }
}

void CoreModel::reapplyPropertiesFromProviders(const QModelIndex& index)
{
    const int row = index.row();
    const Fondo::RefPtr<CoreProperty> root = properties.value(row);
    if (root != nullptr) {
        noteProvided(row);
        addPropertiesFromProviders(index, *root);
    }
}

void CoreModel::addPropertiesFromProviders(const QModelIndex& index, CoreProperty& root) const
{
    // Held here, since a provider may register others, or have the row's tree replaced.
    const auto all = providers;
    for (const auto& provider : all) {
        provider->addProperties(index, root);
    }
}

/// Notes that the providers need not be asked for the row's tree again. Before they are, since they may ask
/// for it themselves.
void CoreModel::noteProvided(int row) const
{
    if (provided.size() <= row) {
        provided.resize(row + 1);
    }
    provided[row] = properties[row].get();
}

} // namespace tolvik
