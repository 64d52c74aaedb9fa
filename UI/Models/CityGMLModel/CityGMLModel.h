#pragma once

#include "framework/Model.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

#include <log4cplus/logger.h>
#include <map>
#include <memory>
#include <string>

namespace core {
class CityModelType;
}

namespace gml {
class AbstractFeatureType;
}

// The schema binding hands documents over in a std::auto_ptr.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace tolvik {

/// One CityGML document as a list of two columns, name and type: a row for each feature, however deep it lies
/// in the document. CityGMLProxyModel makes a tree of it.
/// \code
/// CityGMLModel model(plugin, nullptr);
/// model.load("town.gml");
/// for (int row = 0; row < model.rowCount(); ++row) {
///     gml::AbstractFeatureType* feature = model.getFeature(row);
///     ...
/// }
/// \endcode
/// The model owns the document. Rows, indexes and property trees point into it: they end with the next load,
/// and between the signals of a reset they must not be touched.
///
/// Errors of the schema library are logged as "tolvik.UI.Models.CityGMLModel". Used on the thread that owns
/// the model.
class CITYGMLMODEL_EXPORT CityGMLModel : public Model
{
    Q_OBJECT

public:
    /// \param plugin what getModelPlugin() gives back; not owned, may be null
    /// \param parent owner of the model, or null
    CityGMLModel(ModelInterface* plugin, QObject* parent);
    ~CityGMLModel() override;

    using QObject::parent;

    /// The index of a row, with the feature as internal pointer. Invalid under a valid \a parent and for a
    /// row that is not there; the column is not looked at.
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;

    /// 0 without a document, and under a valid \a parent.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;

    /// Always 2.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /// Name and type of the feature for display and editing, and in column 0 the visibility as check state.
    /// The file name for an invalid index and Qt::UserRole. Invalid without a document.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Renames the feature of a row: the first of its names is replaced, or made. The model stays as dirty as
    /// it was.
    /// \return false, with nothing done, unless the index is in column 0 and the role display or editing
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Always false: headers are fixed.
    bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                       int role = Qt::EditRole) override;

    /// Enabled and selectable, or nothing for a disabled row. \a index must be one of the current rows.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // A load that fails says so in the log alone; a host that must know compares cityGML() before and after.

    /// Loads from a device that is open for reading, see load(std::istream&). A device that answers no bytes
    /// counts as ended, also where more would come later: a socket is read to its end by the host first.
    /// \param url where the document comes from; its path, with `_` for each `/`, becomes the file name, also
    /// where the document cannot be read
    void load(QIODevice* device, const QUrl& url) override;

    /// Replaces the document by the one that the stream holds, from its position to its end, within one model
    /// reset. The document is not validated. If it cannot be read, an error is logged and the document and
    /// the rows are as before, but for their visibility and the disabled ones. The file name and the dirty
    /// state stay; the document is dirty only if identifiers were generated.
    void load(std::istream& stream) override;

    /// Loads a file, see load(std::istream&), and puts its directory in front of the paths on which
    /// referenced files are searched.
    ///
    /// A file that cannot be opened leaves the document and the file name as they were, but no rows until
    /// dataSetChanged(); nothing is logged. One that can be opened but not read leaves the former document
    /// under the name of that file: a host that goes on with it puts the former name back with setFileName(),
    /// or the next save() writes the former document over the file that could not be read.
    void load(const QString& path) override;

    /// Replaces the document by a ready one, within one model reset.
    /// \param document taken over; null leaves the model without a document
    void load(std::auto_ptr<core::CityModelType> document);

    /// Writes the document to its file. A save that throws leaves the file as it was.
    ///
    /// What goes wrong with the file itself is not noticed: nothing is written to one that cannot be opened,
    /// and only the beginning on a full disk, and yet the document counts as saved. A host that must know
    /// saves under another name, looks at that file and renames it.
    ///
    /// Texts with characters that XML has not, as most control characters, cannot be written. setData() and
    /// properties take them, so it is the host that refuses them at the edit.
    /// \param flag without effect
    /// \return true
    /// \throws std::runtime_error where the document cannot be written, which is logged, or there is none
    bool save(bool flag) override;

    /// Writes the document to \a path, which becomes its file name. As save() otherwise; the text of the
    /// error names the former file name.
    bool saveAs(const QString& path, bool flag) override;

    /// Hides the row if it is visible, and sends representationAboutToBeChanged(). It stays hidden: a host
    /// shows it again when it has made the representation anew.
    void reset(const QModelIndex& index) override;

    /// Does nothing, as a list has no view of its own: a host brings what represents the row into sight.
    void zoom(const QModelIndex& index) override;

    bool hasRepresentation(const QModelIndex& index) const override;
    void dataSetChanged() override;

    // Identifiers are row numbers in decimal text. They hold as long as rows neither come nor go.

    /// Adds each row's identifier to one of the two lists.
    void getVisibilityIds(QStringList& hiddenIds, QStringList& visibleIds) const override;

    /// Makes the listed rows, and no others, visible or hidden. Texts that are no numbers of rows are
    /// ignored.
    void setVisibilityIds(const QStringList& ids, bool visible) override;

    /// Adds the identifiers of the rows that are selected over their whole width.
    void getSelectedIds(QStringList& ids) const override;

    /// Selects the listed rows and nothing else. Texts that are no numbers of rows are ignored.
    void setSelectedIds(const QStringList& ids) override;

    /// One index of column 0 for each identifier: row 0 for a text that is no number, invalid for a row that
    /// is not there.
    QList<QModelIndex> getIndexList(const QStringList& ids) const override;

    /// Marks the document as changed and announces the row with the role Qt::UserRole. An invalid index is
    /// ignored.
    /// \param rebuild first builds the row's property tree anew; the former one is given up
    void propertyChanged(const QModelIndex& index, bool rebuild) override;

    /// "CityGML 2.0".
    QString type() const override;

    /// A dialog for the five numbers of the city model's view settings, see GmlEditRangeDialog.
    /// \return owned by the caller
    EditRangeDialog* getEditRangeDialog(const QVector<double>& ranges) override;

    // A disabled row cannot be selected; its visibility stays. Each valid index is announced, changed or not.
    virtual void enable(const QList<QModelIndex>& indexes);
    virtual void enable(const QModelIndex& index);
    virtual void disable(const QList<QModelIndex>& indexes);
    virtual void disable(const QModelIndex& index);

    /// True also for a feature that has no row.
    virtual bool isDisabled(gml::AbstractFeatureType* feature) const;

    /// The document, owned by the model; null before the first one.
    virtual core::CityModelType* cityGML() const;

    /// The feature that had that `gml:id` when its row was added, or null. If several rows have the same, the
    /// one appended last. A feature whose identifier is changed is found under the new one from the next
    /// dataSetChanged() on, and under the former one until then or until its row is removed.
    virtual gml::AbstractFeatureType* getFeature(const std::string& id) const;

    /// The feature of a row, or null.
    virtual gml::AbstractFeatureType* getFeature(int row) const;
    virtual gml::AbstractFeatureType* getFeature(const QModelIndex& index) const;

    /// The index of a feature's row, column 0; invalid if it has none.
    QModelIndex index(gml::AbstractFeatureType* feature) const;
    QModelIndex index(const gml::AbstractFeatureType* feature) const;

    /// The row of a feature, -1 if it has none.
    int getRow(gml::AbstractFeatureType* feature) const;

    /// Adds a row at the end and builds its property tree. Sends no signal: addFeature() does that, or the
    /// caller brackets it in a reset.
    /// \throws xsd::cxx::tree::duplicate_id<char> if a generated identifier is in use
    void append(gml::AbstractFeatureType* feature);

    /// Whether append() gives an identifier to a feature that has none, and so makes the document dirty.
    /// False at first. Rows that are there are left alone until the next rebuild.
    void setCorrectGuid(bool correct);

    /// Adds a row at the end for a feature of the document. Null, or a feature that has a row, is ignored.
    /// Where the feature stands in the document is the caller's business.
    void addFeature(gml::AbstractFeatureType* feature);

    /// Adds a row for each of many features as addFeature() does, with the signals of each. A
    /// CityGMLTreeModel arranges its nodes once, with the last row, which takes as long as for a single one.
    /// Nobody is to add or remove rows meanwhile, such as in a slot for one of those signals.
    /// \throws xsd::cxx::tree::duplicate_id<char> as append() does; those in front have their rows then
    void addFeatures(const QVector<gml::AbstractFeatureType*>& added);

    /// Whether addFeatures() is to add another row behind the one that it adds.
    bool isAddingMore() const { return addsMore; }

    /// Takes away the row of a feature, but not the rows of the features below it. The feature stays where it
    /// is in the document. Null, or a feature that has no row, is ignored.
    void removeFeature(gml::AbstractFeatureType* feature);

    /// Announces that what the row shows has changed.
    void updateData(const QModelIndex& index);

signals:
    /// reset() was called for the feature's row, so that whatever represents it has to be made anew.
    void representationAboutToBeChanged(gml::AbstractFeatureType* feature);

    /// For callers of the model to send: a place on the feature of the row is asked for.
    void moveToGML(const QModelIndex& index, double value);

protected:
    void doDataSetChanged() override;

    void reallyDoHideAll() override;
    void reallyDoHide(const QModelIndex& index) override;
    void reallyDoHide(const QList<QModelIndex>& indexes) override;
    void reallyDoShowAll() override;
    void reallyDoShow(const QModelIndex& index) override;
    void reallyDoShow(const QList<QModelIndex>& indexes) override;
    void showAlls(bool visible);

    void setDocument(std::auto_ptr<core::CityModelType> document);
    bool doSave(const QString& path, bool flag);

    /// Takes all rows away. Sends no signal.
    void clearModel();

    /// The key of features without an identifier, one for all of them.
    std::string createFeatureID();
    std::string getFeatureID(gml::AbstractFeatureType* feature);
    bool featureExists(gml::AbstractFeatureType* feature) const;

private:
    void setDisabled(const QModelIndex& index, bool isDisabled);
    void setDisabled(const QList<QModelIndex>& indexes, bool isDisabled);
    void announce(const QModelIndex& index);

    log4cplus::Logger logger;
    bool correctGuid;
    bool addsMore = false;
    std::auto_ptr<core::CityModelType> cityModel;

    // Of each row, besides the properties and the visibility in the base; all of the same length.
    QVector<gml::AbstractFeatureType*> features;
    std::map<gml::AbstractFeatureType*, int> rowByFeature;
    std::map<std::string, gml::AbstractFeatureType*> featureById;
    QVector<bool> disabled;
};

} // namespace tolvik

#pragma GCC diagnostic pop
