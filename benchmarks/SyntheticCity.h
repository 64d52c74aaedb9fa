#pragma once

#include <iosfwd>

namespace tolvik {

/// A made-up city as a CityGML 2.0 document that is valid against the schemas: the same text for the same
/// number of buildings, on every machine. A building has about 8 kB and ten features: itself, a part, a
/// ground, two roofs, two walls, a window, a door and an address. One appearance of four materials colours
/// the walls of all.
class SyntheticCity
{
public:
    /// \param buildings 1 or more
    explicit SyntheticCity(int buildings);

    /// Writes the document in UTF-8, with line breaks but no indentation. The stream is not tested for
    /// failure.
    void write(std::ostream& stream) const;

private:
    int buildings;
};

} // namespace tolvik
