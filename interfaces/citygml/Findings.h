#pragma once

#include "BindingExport.h"
#include "xml-schema.hxx"

#include <cstdint>
#include <string>
#include <vector>

namespace core {
class CityModelType;
}

namespace citygml {

/// Something in a document that the schema does not allow, and that was read all the same.
struct Finding
{
    /// Counted from 1.
    std::uint64_t line = 0;
    /// In bytes, counted from 1.
    std::uint64_t column = 0;
    /// The names of the elements from the root on, each behind a slash.
    std::string path;
    /// What is wrong, as a sentence for people.
    std::string reason;
    /// Identifier of the innermost feature around it; empty where there is none, or it has no identifier.
    std::string featureId;
};

/// Findings of one reason at one path.
struct FindingGroup
{
    /// That of all its findings.
    std::string reason;
    /// The same, see Finding::path.
    std::string path;
    /// Number of all, those that are not listed included.
    std::uint64_t count = 0;
    /// The first of them, at most 1000.
    std::vector<Finding> first;
};

/// What reading found wrong with a document, in the order of the first place of each group.
///
/// The answer lives as long as the document, and does not change when the document is edited.
///
/// \param document as it was read, or a copy of such a one
/// \return nothing for a document without a finding, and for one that a program made.
TOLVIK_BINDING_EXPORT const std::vector<FindingGroup>& findingsOf(const core::CityModelType& document);

/// Whether an object has no value: the document's text of it was no value of its type, or the document lacked
/// it and a required member has it only so that it is not empty. A save writes that text, or leaves the
/// object out, until the object gets a value.
TOLVIK_BINDING_EXPORT bool isSetAside(const xml_schema::type& object);

/// Says that an object has been given a value, so that it is no longer set aside. An assignment says so by
/// itself, except to an object whose class is a string; that counts by itself if the value differs from that
/// of a new object.
TOLVIK_BINDING_EXPORT void setGiven(xml_schema::type& object);

} // namespace citygml
