#pragma once

#include "framework/CoreProperty.h"
#include "framework/PropertyProvider.h"

#include <iosfwd>
#include <QAbstractListModel>
#include <QStringList>
#include <QUrl>
#include <QVector>

class QIODevice;

namespace tolvik {

class EditRangeDialog;
class ModelInterface;

class CoreModel : public QAbstractListModel
{
    Q_OBJECT

public:
    struct _geoPoint
    {
        double x, y, z;
    };

    CoreModel(ModelInterface* plugin, QObject* parent) : QAbstractListModel(parent), plugin(plugin) {}

    virtual void load(QIODevice* device, const QUrl& url) = 0;
    virtual void load(std::istream& stream) = 0;
    virtual void load(const QString& path) = 0;
    virtual bool save(bool flag) = 0;
    virtual bool saveAs(const QString& path, bool flag) = 0;
    virtual void reset(const QModelIndex& index) = 0;
    virtual void zoom(const QModelIndex& index) = 0;
    virtual void goTo(const QModelIndex& index, bool select) = 0;
    virtual bool isVisible(const QModelIndex& index) const { return !visibility.value(index.row(), true); }
    virtual void setVisibility(const QModelIndex& index, bool visible) { visibility[index.row()] = !visible; }
    virtual bool hasRepresentation(const QModelIndex& index) const = 0;
    virtual void dataSetChanged() = 0;
    virtual QModelIndex indexRef(long row) { return index(static_cast<int>(row), 0); }
    virtual bool dirty() { return changed; }
    virtual void dirty(bool isChanged) { changed = isChanged; }
    virtual ModelInterface* getModelPlugin() { return plugin; }
    virtual _geoPoint anchor() { return {}; }
    virtual QList<QList<_geoPoint>> footprint() { return {}; }
    virtual void getVisibilityIds(QStringList& hiddenIds, QStringList& visibleIds) const = 0;
    virtual void setVisibilityIds(const QStringList& ids, bool visible) = 0;
    virtual void getSelectedIds(QStringList& ids) const = 0;
    virtual void setSelectedIds(const QStringList& ids) = 0;
    virtual QList<QModelIndex> getIndexList(const QStringList& ids) const = 0;
    virtual void propertyChanged(const QModelIndex& index, bool rebuild) = 0;
    virtual QVariant getIdFromRow(unsigned int row) { return row; }
    virtual int getRowFromId(const QVariant& id) const { return id.toInt(); }
    virtual double getWalkDistance(int from, int to) const { return to - from; }

protected:
    virtual void doDataSetChanged() = 0;

public:
    void setFileName(const QString& name) { fileName = name; }
    const QString& getFileName() const { return fileName; }
    CoreProperty* getProperty(const QModelIndex& index) const { return properties.value(index.row()).get(); }
    void addPropertyProvider(PropertyProvider* provider) { providers.append(provider); }
    void reapplyPropertiesFromProviders(const QModelIndex& index)
    {
        for (const auto& provider : qAsConst(providers)) {
            provider->addProperties(index, *properties[index.row()]);
        }
    }

protected:
    QVector<Fondo::RefPtr<CoreProperty>> properties;
    QVector<bool> visibility;
    QString fileName;
    QUrl url;

private:
    ModelInterface* plugin;
    bool changed = false;
    QVector<Fondo::RefPtr<PropertyProvider>> providers;
};

} // namespace tolvik
