#pragma once

#include <iosfwd>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

/// Prints the rows of a loaded document, one in a line: number, type, identifier and name, with tabs between
/// them and `-` for an identifier that is not there. As JSON: an array of objects with the keys `row`,
/// `type`, `id` (null if it is not there) and `name`, in this order.
/// \param model a model with a loaded document
/// \param json whether the output is JSON
/// \param out takes the rows, in UTF-8
/// \return the program's exit code
int runRows(CityGMLModel& model, bool json, std::ostream& out);

} // namespace tolvik::inspect
