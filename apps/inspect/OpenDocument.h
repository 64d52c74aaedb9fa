#pragma once

#include <iosfwd>
#include <memory>

class QString;

namespace tolvik::inspect {

/// \param file path of a document; `-` is standard input
/// \return why the file cannot be read at all; empty if it can be tried
QString obstacle(const QString& file);

/// Opens a document for a reader of bytes.
/// \param err takes one line that says what cannot be read and why
/// \return null if it cannot
std::unique_ptr<std::istream> openDocument(const QString& file, std::ostream& err);

/// The same as a stream that can go back to its beginning, which a pipe cannot.
std::unique_ptr<std::istream> openSeekableDocument(const QString& file, std::ostream& err);

} // namespace tolvik::inspect
