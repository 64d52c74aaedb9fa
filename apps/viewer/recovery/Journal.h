#pragma once

#include "apps/viewer/recovery/FileMark.h"

#include <memory>
#include <QByteArray>
#include <QFile>
#include <QFutureWatcher>
#include <QLockFile>
#include <QObject>
#include <QVector>

namespace tolvik::viewer {

class Document;
class RecordedEdit;

/// Writes each edit of a document into a file as it is made, so that the edits are not lost when the program
/// is. The file is there while the document has edits that are not saved.
///
/// It holds a JSON object a line: first the document's file with its FileMark; then for an edit its kind and
/// what RecordedEdit::record() said, and for a step back or forth in the history the number of edits that are
/// done after it.
class Journal : public QObject
{
    Q_OBJECT

public:
    /// \param document lives longer
    explicit Journal(Document& document, QObject* parent = nullptr);
    /// Edits that were not saved were given up, and so is the journal.
    ~Journal() override;

    /// The folder of all journals.
    static QString folder();

    /// Path of the journal; empty while there is none.
    QString path() const { return file.isOpen() ? file.fileName() : QString(); }

signals:
    /// The journal cannot be written.
    void failed(const QString& reason);

private:
    void beginAnew();
    void follow(int index);
    void note(const QJsonObject& line);
    bool openFile();
    void write();
    void close();
    const RecordedEdit* editAt(int command) const;

    Document& document;
    QFutureWatcher<FileMark> marking;
    QByteArray pending; // lines that wait for the mark of the file
    QFile file;
    std::unique_ptr<QLockFile> lock;
    int base = 0;       // number of edits of the history that the file has
    QVector<int> noted; // the number() of each further one
    int current = 0;    // number of edits that are done, as noted
};

} // namespace tolvik::viewer
