#pragma once

#include "xml-schema.hxx"

#include <vector>

namespace citygml {
namespace binding {

/// Registers identifiers that have their text, but were not registered when they got it.
///
/// \param root of the document that they stand in
/// \return false where one of them is in use; then none is registered
bool registerAll(const std::vector<xml_schema::id*>& identifiers, xml_schema::type& root);

/// While it lives, a document has no identifiers. An object that is taken out of a document looks through all
/// of these for those that go with it, which for one without any takes a thousand times as long as the rest.
class HiddenIdentifiers
{
public:
    /// \param root lives longer
    explicit HiddenIdentifiers(xsd::cxx::tree::_type& root);
    HiddenIdentifiers(const HiddenIdentifiers&) = delete;
    HiddenIdentifiers& operator=(const HiddenIdentifiers&) = delete;
    ~HiddenIdentifiers();

private:
    xsd::cxx::tree::_type& root;
    xml_schema::type keeper;
};

} // namespace binding
} // namespace citygml
