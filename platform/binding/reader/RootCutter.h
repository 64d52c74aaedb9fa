#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

/// Finds where the children of the root end, in the bytes of a document in UTF-8.
///
/// It knows tags, attribute values, comments, instructions and CDATA sections, and no more: in a document
/// that is not well-formed it may be wrong behind the first error. It looks at each byte once.
class RootCutter
{
public:
    /// Looks at the bytes that it has not seen.
    ///
    /// \param bytes all of the document behind those that were dropped
    void scan(std::string_view bytes);
    /// Forgets the first so many bytes, at most as many as there were, and what ends in them.
    void drop(std::size_t count);

    /// Behind which byte the start tag of the root ends; 0 as long as it has not, and when it was dropped.
    std::size_t rootBegin() const { return behindRootTag; }
    /// Behind which bytes a child of the root ends, in order.
    const std::vector<std::size_t>& childEnds() const { return ends; }
    /// Whether there is nothing more to cut: the root has ended, or the document declares its type, so that
    /// there is more to it than its bytes say.
    bool isDone() const { return state == State::Done; }

private:
    enum class State : std::uint8_t {
        Text,
        Markup,
        Declaration,
        Comment,
        CData,
        Instruction,
        StartTag,
        AttributeValue,
        EndTag,
        Done
    };

    const char* step(const char* at, const char* end);
    const char* beginMarkup(const char* at);
    const char* beginDeclaration(const char* at);
    const char* goOnTo(char sought, State then, const char* at, const char* end);
    const char* goOnToEnd(char mark, std::size_t marks, const char* at, const char* end);
    const char* goOnInStartTag(const char* at, const char* end);
    void note(const char* at, const char* end);
    void beginElement(std::size_t behind);
    void endElement(std::size_t behind);

    State state = State::Text;
    std::size_t depth = 0;
    std::size_t scanned = 0;
    const char* first = nullptr;
    // Of what is being looked at: its bytes so far, and the last two of them.
    std::size_t length = 0;
    char beforeLast = 0;
    char last = 0;
    char quote = 0;
    std::size_t behindRootTag = 0;
    std::vector<std::size_t> ends;
};

} // namespace binding
} // namespace citygml
