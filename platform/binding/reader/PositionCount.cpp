#include "platform/binding/reader/PositionCount.h"

#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"

#include <algorithm>

namespace citygml {
namespace binding {

namespace {

std::size_t countWords(std::string_view text)
{
    std::size_t count = 0;
    for (std::string_view word; nextWord(text, word);) {
        ++count;
    }
    return count;
}

/// Takes the next tuple off the front of a list.
///
/// \return false at the end of the list.
bool nextTuple(std::string_view& list, char separator, std::string_view& tuple)
{
    if (separator == ' ') {
        return nextWord(list, tuple);
    }
    if (isBlank(list)) {
        return false;
    }
    const std::size_t end = std::min(list.find(separator), list.size());
    tuple = list.substr(0, end);
    list.remove_prefix(std::min(end + 1, list.size()));
    return true;
}

std::size_t countCoordinates(std::string_view tuple, char separator)
{
    if (separator == ' ') {
        return countWords(tuple);
    }
    return 1 + static_cast<std::size_t>(std::count(tuple.begin(), tuple.end(), separator));
}

std::string numbers(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " number" : " numbers");
}

std::string misfitOfTuples(std::string_view text, std::size_t dimension,
                           const PositionCount::Separators& separators)
{
    std::size_t number = 0;
    for (std::string_view tuple; nextTuple(text, separators.ofTuples, tuple);) {
        ++number;
        const std::size_t count = countCoordinates(tuple, separators.ofCoordinates);
        if (count != dimension) {
            return "tuple " + std::to_string(number) + " has " + numbers(count) + ", and the dimension is " +
                   std::to_string(dimension);
        }
    }
    return std::string();
}

} // namespace

PositionCount::PositionCount(const SchemaIndex& index)
    : position(index.nameId(gmlUri, "pos")), positions(index.nameId(gmlUri, "posList")),
      tuples(index.nameId(gmlUri, "coordinates"))
{
}

PositionCount::Form PositionCount::formOf(NameId element) const
{
    if (element == 0) {
        return Form::None;
    }
    return element == position    ? Form::Position
           : element == positions ? Form::Positions
           : element == tuples    ? Form::Tuples
                                  : Form::None;
}

std::string PositionCount::misfit(Form form, std::string_view text, std::size_t dimension,
                                  const Separators& separators)
{
    if (form == Form::None) {
        return std::string();
    }
    if (form == Form::Tuples) {
        return misfitOfTuples(text, dimension, separators);
    }
    const std::size_t count = countWords(text);
    if (form == Form::Position) {
        return count == dimension ? std::string()
                                  : "a position of " + numbers(count) + ", and the dimension is " +
                                        std::to_string(dimension);
    }
    return count % dimension == 0
               ? std::string()
               : numbers(count) + " are no multiple of the dimension " + std::to_string(dimension);
}

} // namespace binding
} // namespace citygml
