#pragma once

#include "platform/binding/SchemaIndex.h"

#include <string>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

class KeptContentLog;
class NameResolver;
class NamespaceScopes;

/// Sets the values of objects from the texts of a document, and keeps the document's text where another one
/// would be written for the value, such as `true` for `1` or `Medium` for `medium`.
///
/// Every operation throws ValueError for a text that is no value of its type. Before that it keeps the text,
/// so that a caller who goes on loses nothing: of an enumeration the object itself has it; else the value is
/// what a new one is, or absent where its member allows that.
class ValueReader
{
public:
    /// \param scopes what the prefixes of names in values mean
    ValueReader(const NamespaceScopes& scopes, const NameResolver& names, KeptContentLog& log)
        : scopes(scopes), names(names), log(log)
    {
    }

    /// Lists the identifiers that are read from now on, in place of registering them with the root.
    void listIdentifiersIn(std::vector<xml_schema::id*>& list) { identifiers = &list; }

    /// Sets the text of an object.
    ///
    /// \param element the name of its element
    void readText(xml_schema::type& object, const TypeIndex& type, NameId element,
                  std::string_view text) const;
    /// Sets an attribute of an object.
    void readAttribute(xml_schema::type& owner, const TypeIndex::FlatMember& member, const char* text) const;
    /// Keeps the text of an attribute as a wrong one, without a look at it.
    void setAside(xml_schema::type& owner, const TypeIndex::FlatMember& member, const char* text) const
    {
        keepWrong(owner, &member, text);
    }
    /// Adds a value to a member of fundamental type.
    ///
    /// \param element the name of its element
    /// \return the document's text where it is to be kept, else empty. A wrong text the caller keeps.
    std::string readValue(xml_schema::type& owner, const TypeIndex::FlatMember& member, NameId element,
                          std::string_view text) const;

private:
    bool parse(xml_schema::type& object, const TypeIndex& type, std::string_view text) const;
    void readObjectAttribute(xml_schema::type& owner, const TypeIndex::FlatMember& member,
                             const char* text) const;
    void keepWrong(xml_schema::type& owner, const TypeIndex::FlatMember* member, std::string_view text) const;
    void reset(xml_schema::type& object, const TypeIndex& type) const;
    bool isOtherSpelling(const xml_schema::type& object, const TypeIndex& type, std::string_view text) const;
    bool readLiteral(xml_schema::type& object, const TypeIndex& type) const;
    void logSpelling(NameId name) const;

    const NamespaceScopes& scopes;
    const NameResolver& names;
    KeptContentLog& log;
    // Null where they are registered.
    std::vector<xml_schema::id*>* identifiers = nullptr;
};

} // namespace binding
} // namespace citygml
