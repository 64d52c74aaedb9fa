#pragma once

#include "citygml/CityModel.h"
#include "core/CityModelType.hxx"

#include <memory>
#include <sstream>
#include <string>
#include <string_view>

namespace tolvik {
namespace fuzz {

using Document = std::unique_ptr<core::CityModelType>;

/// \param flags of core::CityModel()
inline Document read(std::string_view text, unsigned long flags = 0)
{
    std::istringstream stream{std::string(text)};
    return Document(core::CityModel(stream, flags).release());
}

inline std::string write(const core::CityModelType& document)
{
    xsd::cxx::xml::dom::namespace_infomap<char> namespaces;
    namespaces["core"].name = "http://www.opengis.net/citygml/2.0";
    namespaces["core"].schema = "core.xsd";
    namespaces["gml"].name = "http://www.opengis.net/gml";
    namespaces["bldg"].name = "http://www.opengis.net/citygml/building/2.0";
    namespaces["bldg"].schema = "bldg.xsd";
    std::ostringstream stream;
    core::CityModel(stream, document, namespaces);
    return stream.str();
}

inline std::string described(const char* what, const xsd::cxx::tree::exception<char>& error)
{
    std::ostringstream text;
    text << what << ": " << error;
    return text.str();
}

/// Reads a document, writes it, reads that and writes it again, also from a copy. A document that cannot be
/// read is a good answer; whatever was read must be written, be read again, and come out the same.
///
/// \param flags of core::CityModel()
/// \return what went wrong; empty if nothing did.
inline std::string runReaderCase(std::string_view document, unsigned long flags)
{
    Document first;
    try {
        first = read(document, flags);
    } catch (const xsd::cxx::tree::exception<char>&) {
        return std::string();
    }
    std::string saved;
    try {
        saved = write(*first);
    } catch (const xsd::cxx::tree::exception<char>& error) {
        return described("what was read cannot be written", error);
    }
    const Document copy(first->_clone());
    if (write(*copy) != saved) {
        return "a copy is written differently";
    }
    first.reset();
    try {
        const std::string again = write(*read(saved, flags));
        return again == saved ? std::string() : "the second save differs:\n" + saved + "\n" + again;
    } catch (const xsd::cxx::tree::exception<char>& error) {
        return described("what was written cannot be read", error) + "\n" + saved;
    }
}

/// The same in both ways of reading.
inline std::string runReaderCase(std::string_view document)
{
    const std::string problem = runReaderCase(document, 0);
    return problem.empty() ? runReaderCase(document, xsd::cxx::tree::flags::dont_validate) : problem;
}

} // namespace fuzz
} // namespace tolvik
