#include "platform/binding/reader/IdentifierRegister.h"

#include <cstddef>

namespace citygml {
namespace binding {

namespace {

// To be registered by assignment, an identifier looks for its root, and copies its text, which for all of a
// city takes as long as to read a tenth of it. The run-time has the key to itself under which an identifier
// is registered, and the register; only in an explicit instantiation anybody may name them.
struct Key
{
    friend constexpr auto privateMember(Key);
};
struct Register
{
    friend constexpr auto privateMember(Register);
};
template <class Name, auto member>
struct NamedByInstantiation
{
    friend constexpr auto privateMember(Name) { return member; }
};
template struct NamedByInstantiation<Key, &xml_schema::id::identity_>;
template struct NamedByInstantiation<Register, &xsd::cxx::tree::_type::map_>;

const xsd::cxx::tree::identity& keyOf(const xml_schema::id& identifier)
{
    return identifier.*privateMember(Key());
}

/// Hands the register of one root over to another one.
void moveRegister(xsd::cxx::tree::_type& from, xsd::cxx::tree::_type& to)
{
    constexpr auto map = privateMember(Register());
    (to.*map).reset((from.*map).release());
}

} // namespace

bool registerAll(const std::vector<xml_schema::id*>& identifiers, xml_schema::type& root)
{
    std::size_t count = 0;
    try {
        for (; count < identifiers.size(); ++count) {
            xml_schema::id& identifier = *identifiers[count];
            if (!identifier.empty()) {
                root._register_id(keyOf(identifier), identifier._container());
            }
        }
        return true;
    } catch (const xsd::cxx::tree::duplicate_id<char>&) {
        for (std::size_t i = 0; i < count; ++i) {
            if (!identifiers[i]->empty()) {
                root._unregister_id(keyOf(*identifiers[i]));
            }
        }
        return false;
    }
}

HiddenIdentifiers::HiddenIdentifiers(xsd::cxx::tree::_type& root) : root(root)
{
    moveRegister(root, keeper);
}

HiddenIdentifiers::~HiddenIdentifiers()
{
    moveRegister(keeper, root);
}

} // namespace binding
} // namespace citygml
