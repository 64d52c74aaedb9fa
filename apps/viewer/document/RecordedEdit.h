#pragma once

#include <functional>
#include <memory>
#include <QJsonObject>
#include <QString>
#include <QUndoCommand>

namespace tolvik::viewer {

class Document;

/// An edit that can be written down, and done again after the program has been interrupted.
///
/// What is written names features by their identifier or their position in the document, never by a pointer.
class RecordedEdit : public QUndoCommand
{
public:
    /// Makes an edit of what record() wrote, which is yet to be done; null where it does not fit the
    /// document.
    using Maker = std::function<std::unique_ptr<RecordedEdit>(Document& document, const QJsonObject& record)>;

    RecordedEdit();
    ~RecordedEdit() override;

    /// Tells the edit from all others of the program.
    int number() const { return ownNumber; }

    /// The kind of the edit, under which its maker is registered.
    virtual QString kind() const = 0;

    /// Everything that it takes to make this edit for the same document in the same state. Called when the
    /// edit is on the stack for the first time, and when an edit was merged into it.
    virtual QJsonObject record() const = 0;

    /// Registers the maker of a kind.
    static void addMaker(const QString& kind, const Maker& maker);

    /// Makes an edit that is yet to be done: an EditRunner does a SlicedEdit, the history any other one.
    ///
    /// \return null for a kind that nobody has registered, and where the maker refuses
    static std::unique_ptr<RecordedEdit> make(const QString& kind, Document& document,
                                              const QJsonObject& record);

private:
    const int ownNumber;
};

} // namespace tolvik::viewer
