#pragma once

#include "apps/viewer/document/RecordedEdit.h"

#include <memory>
#include <vector>

namespace tolvik::viewer {

/// Edits of any kind and number as one step of the history.
/// \code
/// auto group = std::make_unique<EditGroup>(tr("import of %1").arg(name));
/// group->add(PropertyEdit::make(...)); // which is done by that
/// document.undoStack().push(group.release());
/// \endcode
class EditGroup : public RecordedEdit
{
public:
    /// \param text what the history calls the step
    explicit EditGroup(const QString& text);

    /// Adds an edit that is done already, behind the others.
    void add(std::unique_ptr<RecordedEdit> edit);
    int count() const { return static_cast<int>(edits.size()); }

    /// Registers the kind with RecordedEdit.
    static void addMaker();

    void redo() override;
    void undo() override;
    QString kind() const override;
    QJsonObject record() const override;

private:
    std::vector<std::unique_ptr<RecordedEdit>> edits;
};

} // namespace tolvik::viewer
