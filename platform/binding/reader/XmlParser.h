#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

struct XML_ParserStruct;

namespace citygml {
namespace binding {

class NamespaceScopes;

/// Why a document cannot be read; the parser adds where.
struct DocumentError
{
    std::string message;
};

/// An attribute of a start tag, by the name that the document gives it.
struct XmlAttribute
{
    const char* name;
    const char* value;

    bool isDeclaration() const
    {
        return std::strncmp(name, "xmlns", 5) == 0 && (name[5] == 0 || name[5] == ':');
    }
};

/// The attributes of a start tag, namespace declarations included, in the order of the document. They are
/// there as long as the handler is told of the tag.
class XmlAttributes
{
public:
    class Iterator
    {
    public:
        explicit Iterator(const char** at) : at(at) {}
        XmlAttribute operator*() const { return {at[0], at[1]}; }
        Iterator& operator++()
        {
            at += 2;
            return *this;
        }
        /// The end is where the name is null, so that nobody has to count.
        bool operator!=(std::nullptr_t) const { return *at != nullptr; }

    private:
        const char** at;
    };

    /// \param list names and values in turn, and a null
    explicit XmlAttributes(const char** list) : list(list) {}
    Iterator begin() const { return Iterator(list); }
    std::nullptr_t end() const { return nullptr; }
    bool hasSeveral() const { return list[0] != nullptr && list[2] != nullptr; }

private:
    const char** list;
};

/// Is told what a document holds, in the order of the document. Whatever it throws ends the parsing; to a
/// DocumentError and a ValueError the parser adds where the document has it.
class XmlHandler
{
public:
    virtual ~XmlHandler() = default;
    /// The namespaces that the tag declares are in scope.
    virtual void startElement(const char* name, const XmlAttributes& attributes) = 0;
    /// The namespaces that the element declares are still in scope.
    virtual void endElement(const char* name) = 0;
    /// A piece of text; a longer text comes in several.
    virtual void characters(std::string_view text) = 0;
    /// \param markup the whole comment, as it is written
    virtual void comment(std::string markup) = 0;
    /// \param markup the whole instruction, as it is written
    virtual void processingInstruction(std::string markup) = 0;
    /// The open elements, for messages; empty outside of the root.
    virtual std::string path() const = 0;
};

/// Reads XML from a stream and tells a handler of it.
///
/// It trusts no document: external entities and document types are refused, and nesting, the expansion of
/// entities and the number of namespace declarations are limited.
class XmlParser
{
public:
    /// A place in the document, counted from 1.
    struct Place
    {
        std::uint64_t line = 1;
        std::uint64_t column = 1;

        /// The same place, where it was counted from another one.
        Place from(const Place& begin) const
        {
            return {line + begin.line - 1, line == 1 ? column + begin.column - 1 : column};
        }
    };

    /// Whether a parser is given a whole document, or only what stands in the root of one.
    enum class Part { Document, InsideRoot };

    /// \param scopes follows the parser, so that it always holds the namespaces of the place it has reached
    explicit XmlParser(NamespaceScopes& scopes, Part part = Part::Document);
    ~XmlParser();
    XmlParser(const XmlParser&) = delete;
    XmlParser& operator=(const XmlParser&) = delete;

    /// Parses a document to its end. A parser does so once.
    ///
    /// \throws xsd::cxx::tree::parsing<char> for the first error, with its line and column, counted from 1.
    void parse(std::istream& stream, XmlHandler& told);
    /// Parses the bytes of a document that follow those before. Errors are those of parse().
    void feed(std::string_view bytes, XmlHandler& told, bool isLast = false);
    /// Says that the bytes to be fed next do not follow those before, and where they stand. All that was fed
    /// is whole tags and text.
    void continueAt(const Place& next);
    /// Ends the parsing with an error at the place that it has come to.
    [[noreturn]] void raise(const std::string& reason) const;
    /// Where that begins which the handler is told of; behind whole tags that were fed, where these end.
    Place place() const;

    /// Behind which byte that begins which the handler is told of, and how many bytes it has. Of what an
    /// entity stands for they are those of the reference.
    /// @{
    std::size_t byteIndex() const;
    std::size_t byteCount() const;
    /// @}
    /// How many attributes of the start tag that the handler is told of stand in the document. They come in
    /// front of those that its document type gives.
    std::size_t writtenAttributes() const;

    /// Where a text ends that begins at a place.
    static Place behind(const Place& begin, std::string_view text);

private:
    struct Callbacks;

    void startElement(const char* name, const char** list);
    void endElement(const char* name);
    void checkDistinct(const XmlAttributes& attributes) const;
    void limitDefaults(const char** list);
    void checkParsed(int status) const;
    Place counted() const;

    NamespaceScopes& scopes;
    // Null but while parsing.
    XmlHandler* handler = nullptr;
    std::unique_ptr<XML_ParserStruct, void (*)(XML_ParserStruct*)> parser;
    // What a callback has thrown.
    std::exception_ptr failure;
    // Number of open elements.
    std::size_t depth = 0;
    // Where the parser was, by its own count, when it was last told to continue elsewhere, and where that is.
    Place jumpedFrom;
    Place jumpedTo;
    // Whether a document type gives values to attributes, and how many bytes of these so far.
    bool hasDefaults = false;
    unsigned long long defaultBytes = 0;
};

} // namespace binding
} // namespace citygml
