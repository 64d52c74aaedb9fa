#include "framework/CoreModel.h"

#include "framework/ModelInterface.h"
#include "framework/PropertyProvider.h"

#include <cstdlib>
#include <limits>

namespace tolvik {

namespace {

bool holdsRow(int row, int count)
{
    return row >= 0 && row < count;
}

} // namespace

CoreModel::CoreModel(ModelInterface* plugin, QObject* parent) : QAbstractListModel(parent), plugin(plugin) {}

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
    return holdsRow(index.row(), properties.size()) ? properties[index.row()].get() : nullptr;
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
    // Both are held here, since a provider may register others or have the row's tree replaced.
    const Fondo::RefPtr<CoreProperty> root = getProperty(index);
    if (root == nullptr) {
        return;
    }
    const auto all = providers;
    for (const auto& provider : all) {
        provider->addProperties(index, *root);
    }
}

} // namespace tolvik
