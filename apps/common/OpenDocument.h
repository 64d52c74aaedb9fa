#pragma once

#include <istream>
#include <memory>

class QString;

namespace tolvik::apps {

/// Opens a document for a reader of bytes.
/// \param file path of the document; `-` is standard input
/// \param[out] reason why it cannot be read, where it cannot
/// \return null if it cannot
std::unique_ptr<std::istream> openDocument(const QString& file, QString& reason);

/// The same as a stream that can go back to its beginning, which a pipe cannot.
std::unique_ptr<std::istream> openSeekableDocument(const QString& file, QString& reason);

} // namespace tolvik::apps
