#include "citygml/CityModel.h"

#include "platform/binding/reader/DocumentReader.h"
#include "platform/binding/writer/DocumentWriter.h"

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace core {

std::auto_ptr<CityModelType> CityModel(std::istream& stream, xsd::cxx::tree::flags flags,
                                       const xsd::cxx::tree::properties<char>&)
{
    const bool isLenient = (flags & xsd::cxx::tree::flags::dont_validate) != 0;
    return std::auto_ptr<CityModelType>(citygml::binding::readDocument(stream, isLenient).release());
}

void CityModel(std::ostream& stream, const CityModelType& model,
               const xsd::cxx::xml::dom::namespace_infomap<char>& map, const std::string& encoding,
               xsd::cxx::tree::flags)
{
    if (encoding != "UTF-8") {
        xsd::cxx::tree::diagnostics<char> diagnostics;
        diagnostics.push_back(
            xsd::cxx::tree::error<char>(xsd::cxx::tree::severity::error, "document", 0, 0,
                                        "documents are written in UTF-8, not in '" + encoding + "'"));
        throw xsd::cxx::tree::serialization<char>(diagnostics);
    }
    citygml::binding::writeDocument(stream, model, map);
}

} // namespace core
