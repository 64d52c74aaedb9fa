#pragma once

#include <iosfwd>

namespace tolvik::inspect {

class DocumentFiles;

/// Prints all that is wrong with documents, a line for each finding.
/// \param json whether the lines are JSON
/// \param out  takes the findings, in UTF-8
/// \param err  takes one line for each document that cannot be read at all; the others are checked all the
///             same
/// \return the program's exit code: 0, or 1 if there is a finding or a document could not be found or read
int runCheck(const DocumentFiles& files, bool json, std::ostream& out, std::ostream& err);

} // namespace tolvik::inspect
