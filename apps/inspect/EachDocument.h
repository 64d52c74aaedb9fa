#pragma once

#include <QString>

#include <functional>
#include <iosfwd>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

class DocumentFiles;

/// How the documents of a command are shown.
struct Listing
{
    bool json = false;
    /// Key that one of several documents has its output under in JSON.
    const char* key = nullptr;
    /// Prints one document. Where it fails it prints nothing.
    /// \return the program's exit code for this document
    std::function<int(CityGMLModel& model, const QString& file)> print;
};

/// Loads the documents one after the other and prints each. A single one is printed as it is. Of several each
/// stands behind a line with its file and a colon; in JSON they are an array of objects with the keys `file`
/// and that of the listing, which is null for a document that could not be printed.
/// \param out takes the output
/// \param err takes one line for each document that could not be loaded; the others are printed all the same
/// \return the program's exit code: 0, or 1 if a document could not be found, loaded or printed
int printEach(const DocumentFiles& files, const Listing& listing, std::ostream& out, std::ostream& err);

} // namespace tolvik::inspect
