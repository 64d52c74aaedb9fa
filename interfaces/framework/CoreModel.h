#pragma once

#include "fondo/RefPtr.h"
#include "framework/CoreProperty.h"
#include "PlatformExport.h"

#include <iosfwd>
#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <QVector>

class QIODevice;

namespace tolvik {

class EditRangeDialog;
class ModelInterface;
class PropertyProvider;

/// A document in rows: what the host asks of every model, and the state of its rows that the host keeps.
/// Used on the thread that owns the model.
class TOLVIK_PLATFORM_EXPORT CoreModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// A point in the reference system of the document, in its units and axis order.
    struct _geoPoint
    {
        double x = 0.0; ///< first coordinate
        double y = 0.0; ///< second coordinate
        double z = 0.0; ///< third coordinate, the height
    };

    /// \param plugin what getModelPlugin() gives back; not owned, may be null
    /// \param parent owner of the model, or null
    explicit CoreModel(ModelInterface* plugin, QObject* parent = nullptr);
    ~CoreModel() override;

    /// Loads a document from a device that is open for reading. Errors are the model's to report.
    /// \param device not owned
    /// \param url where the document comes from
    virtual void load(QIODevice* device, const QUrl& url) = 0;

    /// Loads a document from a stream. Errors are the model's to report.
    virtual void load(std::istream& stream) = 0;

    /// Loads the document in a file. Errors are the model's to report.
    virtual void load(const QString& path) = 0;

    /// Writes the document to where it came from.
    /// \return whether it is written; a model may throw instead
    virtual bool save(bool flag) = 0;

    /// Writes the document to \a path.
    virtual bool saveAs(const QString& path, bool flag) = 0;

    /// Makes the row's representation anew.
    virtual void reset(const QModelIndex& index) = 0;

    /// Brings the row into sight where it is represented.
    virtual void zoom(const QModelIndex& index) = 0;

    /// Makes the row the current one of the attached selection model.
    /// \param index any column of the row
    /// \param select also makes it the only selected row
    virtual void goTo(const QModelIndex& index, bool select) = 0;

    /// Whether the row is visible. A fresh row is. False for a row that is not there.
    virtual bool isVisible(const QModelIndex& index) const;

    /// Sends no signal; a row that is not there is ignored.
    virtual void setVisibility(const QModelIndex& index, bool visible);

    /// Whether the row is represented outside the item model.
    virtual bool hasRepresentation(const QModelIndex& index) const = 0;

    /// Rebuilds all rows from the document, within a model reset.
    virtual void dataSetChanged() = 0;

    /// The index of column 0 of a row, invalid if there is no such row.
    virtual QModelIndex indexRef(long row);

    /// Whether the document has changed since it was loaded or saved.
    virtual bool dirty();

    /// Says whether the document has changed since it was loaded or saved.
    virtual void dirty(bool changed);

    /// The plug-in given at construction.
    virtual ModelInterface* getModelPlugin();

    /// Where the document lies: the centre of the ground face of its envelope, as the plug-in tells it. All
    /// zero without a plug-in or an envelope.
    virtual _geoPoint anchor();

    /// The ground face of the document's envelope: one ring of its four corners, from the lowest x and y
    /// counterclockwise, not closed, at the envelope's lowest z. Empty without a plug-in or an envelope.
    virtual QList<QList<_geoPoint>> footprint();

    /// Appends the identifiers of the hidden and of the visible rows to the two lists.
    virtual void getVisibilityIds(QStringList& hiddenIds, QStringList& visibleIds) const = 0;

    /// Brings the model to the state in which the listed rows, and no others, have the visibility \a visible.
    virtual void setVisibilityIds(const QStringList& ids, bool visible) = 0;

    /// Appends the identifiers of the selected rows to the list.
    virtual void getSelectedIds(QStringList& ids) const = 0;

    /// Selects the rows with the listed identifiers in the attached selection model.
    virtual void setSelectedIds(const QStringList& ids) = 0;

    /// The rows with the listed identifiers.
    virtual QList<QModelIndex> getIndexList(const QStringList& ids) const = 0;

    /// Tells the model that a property of the row has been edited.
    /// \param index any column of the row
    /// \param rebuild the row's property tree has to be built anew
    virtual void propertyChanged(const QModelIndex& index, bool rebuild) = 0;

    /// A value by which the host can remember a row: its number. Invalid if there is no such row.
    virtual QVariant getIdFromRow(unsigned int row);

    /// The row that getIdFromRow() gave \a id for. A number or its decimal text; -1 if it is none or there is
    /// no such row.
    virtual int getRowFromId(const QVariant& id) const;

    /// How many rows one has to go from one row to another, 0 for the same; -1 if one of them is not there.
    virtual double getWalkDistance(int from, int to) const;

protected:
    /// Rebuilds all rows from the document. To be called between beginResetModel() and endResetModel().
    virtual void doDataSetChanged() = 0;

public:
    /// Gives the document a name, see getFileName().
    void setFileName(const QString& name);

    /// Name of the document, empty before one is loaded.
    const QString& getFileName() const { return fileName; }

    /// Where the document came from, if it was loaded from a device.
    const QUrl& getUrl() const { return url; }

    /// Root of the row's property tree; null if there is none. Valid until the row or its tree is replaced.
    /// The first request for a tree lets the providers add to it.
    CoreProperty* getProperty(const QModelIndex& index) const;

    /// Registers a provider of the host and keeps it, once however often it is added. It is asked when a tree
    /// is first requested, and when it is built anew for an edit; for trees that have been requested before
    /// call reapplyPropertiesFromProviders().
    void addPropertyProvider(PropertyProvider* provider);

    /// Gives the provider up; what it has added stays.
    void removePropertyProvider(PropertyProvider* provider);

    /// Lets all providers, in the order of their registration, add their properties to the row's property
    /// tree.
    void reapplyPropertiesFromProviders(const QModelIndex& index);

    /// The same for a tree of the row that the caller has built himself.
    /// \param index the row
    /// \param root held by a RefPtr of the caller
    void addPropertiesFromProviders(const QModelIndex& index, CoreProperty& root) const;

protected:
    QVector<Fondo::RefPtr<CoreProperty>> properties; ///< root of the property tree of each row
    QVector<bool> visibility;                        ///< for each row; true means hidden. See isVisible().
    QString fileName;                                ///< name of the document
    QUrl url;                                        ///< where the document came from

private:
    void noteProvided(int row) const;

    ModelInterface* plugin;
    bool documentChanged = false;
    QVector<Fondo::RefPtr<PropertyProvider>> providers;
    // Of each row up to the last one that was asked for: the tree that the providers have added to. Only
    // compared, as the tree may be gone.
    mutable QVector<const CoreProperty*> provided;
};

} // namespace tolvik
