#pragma once

#include "apps/viewer/recovery/FileMark.h"

#include <functional>
#include <memory>
#include <QCoreApplication>
#include <QLockFile>
#include <QStringList>
#include <QVector>

namespace tolvik::viewer {

class Document;

/// The edits of a program that has ended without saving them, from its journal.
class Recovery
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::viewer::Recovery)

public:
    /// The journals that no running program writes. Each belongs to its Recovery from now on.
    static std::vector<std::unique_ptr<Recovery>> findAll();

    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;
    ~Recovery();

    /// Path of the document that was edited.
    const QString& file() const { return document; }
    /// Number of edits that were done and not saved.
    int size() const { return edits; }

    /// Why the edits cannot be done on the file as it is now; empty where they can.
    QString refusal() const;

    /// Does the edits again, beside the window.
    /// \param target has the document of file() open, without an edit
    /// \param end    called once, with the reason why not all could be done; empty where they were. This
    ///               object lives until then.
    void applyTo(Document& target, const std::function<void(const QString&)>& end) const;

    /// Deletes the journal.
    void discard();

private:
    Recovery(QString path, std::unique_ptr<QLockFile> lock);
    bool read();

    QString journal;
    std::unique_ptr<QLockFile> lock;
    QString document;
    FileMark mark;
    QVector<QJsonObject> steps;
    int edits = 0;
};

} // namespace tolvik::viewer
