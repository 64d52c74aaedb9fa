#include "platform/binding/reader/RootCutter.h"

#include <algorithm>
#include <cstring>

namespace citygml {
namespace binding {

namespace {

const char* find(char sought, const char* at, const char* end)
{
    const void* const found = std::memchr(at, sought, static_cast<std::size_t>(end - at));
    return found != nullptr ? static_cast<const char*>(found) : end;
}

} // namespace

void RootCutter::scan(std::string_view bytes)
{
    first = bytes.data();
    const char* const end = first + bytes.size();
    const char* at = first + scanned;
    while (at != end && state != State::Done) {
        at = step(at, end);
    }
    scanned = bytes.size();
}

void RootCutter::drop(std::size_t count)
{
    scanned -= count;
    behindRootTag = behindRootTag > count ? behindRootTag - count : 0;
    const auto kept = std::upper_bound(ends.begin(), ends.end(), count);
    ends.erase(ends.begin(), kept);
    for (std::size_t& end : ends) {
        end -= count;
    }
}

/// Goes on in the present state.
///
/// \return the first byte that was not looked at
const char* RootCutter::step(const char* at, const char* end)
{
    switch (state) {
    case State::Text:
        return goOnTo('<', State::Markup, at, end);
    case State::Markup:
        return beginMarkup(at);
    case State::Declaration:
        return beginDeclaration(at);
    case State::Comment:
        return goOnToEnd('-', 2, at, end);
    case State::CData:
        return goOnToEnd(']', 2, at, end);
    case State::Instruction:
        return goOnToEnd('?', 1, at, end);
    case State::StartTag:
        return goOnInStartTag(at, end);
    case State::AttributeValue:
        return goOnTo(quote, State::StartTag, at, end);
    case State::EndTag:
        at = goOnTo('>', State::Text, at, end);
        if (state == State::Text) {
            endElement(static_cast<std::size_t>(at - first));
        }
        return at;
    case State::Done:
        break;
    }
    return end;
}

const char* RootCutter::beginMarkup(const char* at)
{
    length = 0;
    last = 0;
    switch (*at) {
    case '/':
        state = State::EndTag;
        return at + 1;
    case '?':
        state = State::Instruction;
        return at + 1;
    case '!':
        state = State::Declaration;
        return at + 1;
    default:
        state = State::StartTag;
        return at;
    }
}

/// What follows `<!` is `--` of a comment, `[` of a section, or the type of the document.
const char* RootCutter::beginDeclaration(const char* at)
{
    if (*at == '-' && length == 0) {
        length = 1;
    } else if (*at == '-') {
        state = State::Comment;
        length = 0;
    } else {
        state = *at == '[' && length == 0 ? State::CData : State::Done;
    }
    return at + 1;
}

const char* RootCutter::goOnTo(char sought, State then, const char* at, const char* end)
{
    const char* const found = find(sought, at, end);
    if (found == end) {
        return end;
    }
    state = then;
    last = sought;
    return found + 1;
}

/// Goes to the end of a comment, section or instruction, which is a number of marks and `>`.
const char* RootCutter::goOnToEnd(char mark, std::size_t marks, const char* at, const char* end)
{
    const char* const found = find('>', at, end);
    note(at, found);
    if (found == end) {
        return end;
    }
    if (length >= marks && last == mark && (marks == 1 || beforeLast == mark)) {
        state = State::Text;
    } else {
        note(found, found + 1);
    }
    return found + 1;
}

void RootCutter::note(const char* at, const char* end)
{
    const auto count = static_cast<std::size_t>(end - at);
    if (count != 0) {
        beforeLast = count > 1 ? end[-2] : last;
        last = end[-1];
        length += count;
    }
}

const char* RootCutter::goOnInStartTag(const char* at, const char* end)
{
    for (; at != end; ++at) {
        const char c = *at;
        if (c == '>') {
            const auto behind = static_cast<std::size_t>(at + 1 - first);
            const bool isEmpty = last == '/';
            state = State::Text;
            beginElement(behind);
            if (isEmpty) {
                endElement(behind);
            }
            return at + 1;
        }
        last = c;
        if (c == '"' || c == '\'') {
            quote = c;
            state = State::AttributeValue;
            return at + 1;
        }
    }
    return end;
}

void RootCutter::beginElement(std::size_t behind)
{
    if (++depth == 1) {
        behindRootTag = behind;
    }
}

void RootCutter::endElement(std::size_t behind)
{
    if (depth <= 1) {
        state = State::Done;
        return;
    }
    if (--depth == 1) {
        ends.push_back(behind);
    }
}

} // namespace binding
} // namespace citygml
