#pragma once

#include "apps/common/SourceFile.h"
#include "apps/viewer/document/EditRunner.h"
#include "apps/viewer/selection/RowSelectionModel.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"

#include <memory>
#include <QObject>
#include <QString>
#include <QUndoStack>

namespace tolvik::apps {
class DocumentReading;
}

namespace tolvik::viewer {

/// The document of a window: its features as a list and as a tree, one selection over the list, and the
/// history of its edits.
///
/// Everything that shows or changes the document shares these objects. They live as long as this one; what
/// they point to in a document ends when opened() announces the next one.
/// \code
/// Document document;
/// connect(&document, &Document::opened, this, &Panel::showDocument);
/// document.undoStack().push(new SomeEdit(document.model(), ...));
/// \endcode
class Document : public QObject
{
    Q_OBJECT

public:
    /// Makes the models with the plug-in for CityGML.
    /// \throws std::runtime_error if there is none; what() says so to the user
    explicit Document(QObject* parent = nullptr);
    ~Document() override;

    CityGMLModel& model() { return *list; }
    CityGMLTreeModel& tree() { return *features; }
    /// The selected features and the current one, as rows of model().
    RowSelectionModel& selection() { return *selected; }
    /// Every edit goes through it: the document counts as modified while the stack is not clean.
    QUndoStack& undoStack() { return edits; }

    /// Makes the edits, and undoes them.
    EditRunner& editRunner() { return runner; }

    /// Whether there is a document.
    bool isOpen() const { return list->cityGML() != nullptr; }
    /// Path of the document's file; empty before one is opened, and for one that has no file.
    const QString& fileName() const { return list->getFileName(); }
    /// Whether there are edits that were not saved.
    bool isModified() const { return !edits.isClean(); }

    /// Puts a document that was read in place of the present one. The history of edits is empty then.
    /// \param reading has a document; gives it away
    void open(apps::DocumentReading& reading);

    /// The file whose bytes a save keeps where nothing has changed: that of the last save, or else the one
    /// that the document was read from.
    /// @{
    const apps::SourceFile& source() const { return file; }
    void setSource(const apps::SourceFile& source) { file = source; }
    /// @}

    /// Tells that the document has been saved under a name, so that it is not modified any more.
    void noteSaved(const QString& path);

    /// Makes a feature the current one, and the only one that is selected.
    /// \param row a row of model()
    void goTo(int row);

signals:
    /// The present document is about to be replaced: the last moment to read what belongs to it.
    void aboutToBeOpened();
    /// Another document is in place.
    void opened();
    /// The document is, or is no longer, as it was saved.
    void modifiedChanged(bool modified);
    void fileNameChanged(const QString& path);
    /// The document is in its file as it is now.
    void saved();

private:
    std::unique_ptr<CityGMLModel> list;
    std::unique_ptr<CityGMLTreeModel> features;
    std::unique_ptr<RowSelectionModel> selected;
    QUndoStack edits;
    EditRunner runner{edits};
    apps::SourceFile file;
};

} // namespace tolvik::viewer
