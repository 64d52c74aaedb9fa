#pragma once

#include "apps/common/SourceFile.h"

#include <QString>

class QTemporaryFile;

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::apps {

/// Saves the document of a model, so that a file is replaced as a whole or left as it was, never damaged: the
/// document is written beside it, and takes its name when it is there. The file keeps its permissions, and
/// links to it stay.
///
/// The new file has the bytes of the one that the document was read from, but for what has been edited since.
/// Where that is not possible, the document is written anew.
/// \code
/// DocumentSaving saving(model, reading.source());
/// if (!saving.save(path, DocumentSaving::Form::Changes)) {
///     show(saving.error());
/// }
/// \endcode
class DocumentSaving
{
public:
    /// Changes: as little as can be differs from the source. Plain: all is written anew.
    enum class Form { Changes, Plain };

    /// \param model  outlives the object
    /// \param source what the model's document was read from, or last saved to
    DocumentSaving(CityGMLModel& model, const SourceFile& source);

    /// Saves the document; the model goes by the name then.
    /// \param output path of a file that may be there or not, and may be the source
    /// \return whether the document is saved
    bool save(const QString& output, Form form);

    /// Why the document could not be saved, as a part of a sentence; empty where it was.
    const QString& error() const { return reason; }
    /// Why all was written anew where only changes were wanted, as a part of a sentence; else empty.
    const QString& note() const { return remark; }
    /// What the document can be compared with from now on: the file that was saved last, or the first source.
    const SourceFile& source() const { return original; }

private:
    QString replace(const QString& path, Form form);
    QString write(QTemporaryFile& temporary, Form form);
    bool writeChanges(QTemporaryFile& temporary);

    CityGMLModel& model;
    SourceFile original;
    QString reason;
    QString remark;
};

} // namespace tolvik::apps
