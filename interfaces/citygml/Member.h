#pragma once

#include "BindingExport.h"
#include "xml-schema.hxx"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace citygml {

class Member;

/// What a document says in one member of an object, or in one entry of a list: the values with everything
/// that stands with them, such as code spaces, spellings, comments and unknown attributes, or that there is
/// nothing. It outlives the object and the document. Copies share it.
class TOLVIK_BINDING_EXPORT MemberState
{
public:
    /// A state that no member can be restored to.
    MemberState();

private:
    friend class Member;
    struct Content;
    explicit MemberState(std::shared_ptr<Content> content);

    std::shared_ptr<Content> content;
};

/// A member of a schema object, which is an element or attribute of the document, or one entry of a member
/// that is a list. It reads and writes the document each time, and is valid as long as the object that has
/// the member; copies are of the same member.
///
/// An edit that is to be undone without a trace keeps the state from before:
/// \code
/// citygml::Member height(building, building.measuredHeight());
/// const citygml::MemberState before = height.capture();
/// building.measuredHeight(gml::LengthType(12.5, "m"));
/// height.restore(before); // a save writes what the document had, to the letter
/// \endcode
class TOLVIK_BINDING_EXPORT Member
{
public:
    /// \param owner not owned
    /// \param value what an accessor of the owner returns, as a reference
    /// \throws std::invalid_argument where that is no member of the owner
    template <class Value>
    Member(xml_schema::type& owner, const Value& value) : Member(owner, &value, Address())
    {
    }

    /// The member that holds an object, or the entry of the list that does.
    ///
    /// \throws std::invalid_argument for an object that stands in no other one
    static Member holding(xml_schema::type& object);

    /// The lists of an object whose entries are texts, such as names, functions and usages, in the order of
    /// the schema. An empty one is among them too.
    static std::vector<Member> textLists(xml_schema::type& object);

    /// The member that an object has under a name(), the nearest to its class where bases have such a one
    /// too.
    static std::optional<Member> named(xml_schema::type& object, const std::string& name);

    /// Name of the element or attribute in its schema.
    std::string name() const;
    /// Whether the member may stand any number of times; an entry of a list does not.
    bool isList() const;
    /// Whether the schema demands the element or attribute.
    bool isRequired() const;
    /// The object that has the member.
    xml_schema::type& object() const { return *owner; }
    /// The list that an entry stands in; of any other member itself.
    Member list() const;
    /// The place of an entry in its list; 0 of any other member.
    std::size_t position() const { return entry.value_or(0); }
    /// An entry of a list.
    ///
    /// \param at below size()
    Member entryAt(std::size_t at) const;
    /// Number of the values: of a member that is no list, and of an entry, at most one.
    std::size_t size() const;

    /// Whether the document has the element or attribute, be it nil or a text that is no value of its type.
    bool present() const;
    /// Takes the element or attribute, or all those of a list, out of the document. An attribute with a
    /// default has that then. A member that the schema requires is missing then, as in a document that came
    /// without it: a getter answers a new value, which a save leaves out. An entry of a list is gone, and its
    /// object with it.
    void clear();
    /// What the document says in the member.
    MemberState capture() const;
    /// Puts that back. Objects that are there stay the same objects as far as they can; new ones are made of
    /// those that are not.
    ///
    /// \param state of this member, or of the same member of another object
    /// \return false, with nothing changed, for the state of another member
    bool restore(const MemberState& state);

    /// The text of a single value, in the words of the schema: a list of numbers has blanks between them, and
    /// a date its time zone. Nothing for lists, for what has elements in it, and where there is no value.
    std::optional<std::string> text() const;
    /// Gives a member a value. What stands with a former one stays, such as the code space of a name and the
    /// unit of a measure.
    ///
    /// \return false, with nothing changed, for a text that is no value of the type, for lists, and where
    /// nothing is that could not do with a text alone, such as a measure without its unit
    bool setText(const std::string& text);

    /// Adds an entry with a text behind the others of a list.
    ///
    /// \return false, with nothing changed, for a text that is no value of the list's type, and where the
    /// member is no list of texts
    bool add(const std::string& text);
    /// Takes an entry out of a list, or the object out of a member that the schema does not require.
    ///
    /// \param index below size()
    /// \return the entry for put(); empty where nothing can be taken
    MemberState take(std::size_t index);
    /// Puts an entry into a list, or an object back into its member. The first call after take() puts back
    /// the very object that was taken, so that whoever knew it knows it again; a later one makes a copy.
    ///
    /// \param index at most size()
    /// \param entry from take(), or from capture() of one entry; also of the same list of another object
    /// \return false, with nothing changed, for any other state
    bool put(std::size_t index, const MemberState& entry);

private:
    struct Address
    {
    };
    Member(xml_schema::type& owner, const void* address, Address);
    Member(xml_schema::type& owner, std::uint16_t index, std::optional<std::size_t> entry);
    bool restoreEntry(const MemberState& state);
    bool canLose() const;

    xml_schema::type* owner;
    // Of the member among those of the owner's type.
    std::uint16_t index = 0;
    // Of the entry, where not the whole list is meant.
    std::optional<std::size_t> entry;
};

} // namespace citygml
