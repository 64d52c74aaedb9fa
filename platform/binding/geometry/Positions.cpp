#include "platform/binding/geometry/Positions.h"

#include "gml/CoordinatesType.hxx"
#include "gml/CoordType.hxx"
#include "gml/DirectPositionListType.hxx"
#include "gml/DirectPositionType.hxx"

#include <algorithm>
#include <charconv>
#include <string>

namespace citygml {
namespace binding {

namespace {

using PositionForm = GeometryPlan::PositionForm;

template <typename Iterator>
void appendTuples(Iterator value, std::size_t count, int dimension, std::vector<Position>& positions)
{
    const std::size_t each = static_cast<std::size_t>(dimension);
    positions.reserve(positions.size() + count / each);
    for (std::size_t i = 0; i + each <= count; i += each) {
        Position position = {};
        for (std::size_t axis = 0; axis < each; ++axis) {
            position[axis] = *value++;
        }
        positions.push_back(position);
    }
}

int appendList(const gml::DirectPositionListType& list, int dimension, std::vector<Position>& positions)
{
    if (list.srsDimension().present()) {
        dimension = list.srsDimension().get() == 2 ? 2 : 3;
    } else if (list.size() % 3 != 0 && list.size() % 2 == 0) {
        dimension = 2;
    }
    appendTuples(list.begin(), list.size(), dimension, positions);
    return dimension;
}

int appendSingle(const gml::DirectPositionType& value, std::vector<Position>& positions)
{
    const int dimension = value.size() == 2 ? 2 : 3;
    appendTuples(value.begin(), std::min<std::size_t>(value.size(), 3), dimension, positions);
    return dimension;
}

int appendCoordinate(const gml::CoordType& value, std::vector<Position>& positions)
{
    Position position = {value.X(), 0, 0};
    if (value.Y().present()) {
        position[1] = value.Y().get();
    }
    if (value.Z().present()) {
        position[2] = value.Z().get();
    }
    positions.push_back(position);
    return value.Z().present() ? 3 : 2;
}

/// The numbers of a text in which each coordinate ends with one separator, and each position with another.
int appendText(const gml::CoordinatesType& value, std::vector<Position>& positions)
{
    const std::string& decimal = value.decimal();
    const std::string& between = value.cs();
    std::string text = value;
    if (decimal.size() == 1 && decimal != ".") {
        std::replace(text.begin(), text.end(), decimal[0], '.');
    }
    int dimension = 3;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        Position position = {};
        std::size_t count = 0;
        for (bool goesOn = true; goesOn && count < 3;) {
            at = std::find_if(at, end, [](char c) { return (c >= '0' && c <= '9') || c == '-' || c == '.'; });
            const auto [behind, error] = std::from_chars(at, end, position[count]);
            if (error != std::errc()) {
                at = at == end ? end : at + 1;
                break;
            }
            ++count;
            at = behind;
            goesOn = at != end && between.size() == 1 && *at == between[0];
        }
        if (count >= 2) {
            positions.push_back(position);
            dimension = std::min(dimension, static_cast<int>(count));
        }
    }
    return dimension;
}

} // namespace

int appendPositions(const xml_schema::type& value, PositionForm form, int dimension,
                    std::vector<Position>& positions)
{
    switch (form) {
    case PositionForm::Single:
        return appendSingle(static_cast<const gml::DirectPositionType&>(value), positions);
    case PositionForm::List:
        return appendList(static_cast<const gml::DirectPositionListType&>(value), dimension, positions);
    case PositionForm::Text:
        return appendText(static_cast<const gml::CoordinatesType&>(value), positions);
    case PositionForm::Coordinate:
        return appendCoordinate(static_cast<const gml::CoordType&>(value), positions);
    case PositionForm::Property:
        break;
    }
    return dimension;
}

} // namespace binding
} // namespace citygml
