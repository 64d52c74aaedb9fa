#pragma once

#include <iosfwd>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

/// Prints the features of a loaded document as a tree, one in a line: its name and, in brackets, its type,
/// indented by two spaces for each level. As JSON: an array of objects with the keys `name`, `type`, `row`,
/// `id` (null if it is not there) and `children`, in this order. The roots stand in the order of the tree
/// model, which is not that of the document and may differ from run to run.
/// \param model a model with a loaded document
/// \param json whether the output is JSON
/// \param all whether appearances are shown too
/// \param out takes the tree, in UTF-8
/// \return the program's exit code
int runTree(CityGMLModel& model, bool json, bool all, std::ostream& out);

} // namespace tolvik::inspect
