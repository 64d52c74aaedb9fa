#pragma once

#include <ios>
#include <istream>

namespace citygml {
namespace binding {

/// Reading to the end is no failure: while this lives the stream does not throw at its end, whatever it was
/// told to throw at, and afterwards it says that it is at its end, but not that it has failed.
class EndOfStreamGuard
{
public:
    explicit EndOfStreamGuard(std::istream& stream) : stream(stream), thrown(stream.exceptions())
    {
        stream.exceptions(thrown & ~(std::ios_base::failbit | std::ios_base::eofbit));
    }
    ~EndOfStreamGuard()
    {
        try {
            if (stream.eof()) {
                stream.clear(stream.rdstate() & ~std::ios_base::failbit);
            }
            stream.exceptions(thrown);
        } catch (const std::ios_base::failure&) {
            // What the stream is told to throw at is set all the same.
        }
    }
    EndOfStreamGuard(const EndOfStreamGuard&) = delete;
    EndOfStreamGuard& operator=(const EndOfStreamGuard&) = delete;

private:
    std::istream& stream;
    std::ios_base::iostate thrown;
};

} // namespace binding
} // namespace citygml
