#pragma once

#include "platform/binding/SchemaIndex.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// Compares the number of coordinates in a text with the dimension of the space.
class PositionCount
{
public:
    /// The ways in which coordinates are written.
    enum class Form {
        None,      ///< no coordinates
        Position,  ///< one position
        Positions, ///< positions with nothing to part them
        Tuples     ///< positions that separators part
    };

    /// The separators of tuples, as the element's attributes give them.
    struct Separators
    {
        char ofCoordinates = ',';
        /// A blank stands for any white space.
        char ofTuples = ' ';
    };

    explicit PositionCount(const SchemaIndex& index);

    /// How the element with that name holds coordinates.
    Form formOf(NameId element) const;

    /// \param dimension of the space; not 0
    /// \return why the text does not fit the dimension; empty if it does.
    static std::string misfit(Form form, std::string_view text, std::size_t dimension,
                              const Separators& separators);

private:
    const NameId position;
    const NameId positions;
    const NameId tuples;
};

} // namespace binding
} // namespace citygml
