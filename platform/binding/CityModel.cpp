#include "citygml/CityModel.h"

#include "citygml/ReadingThreads.h"
#include "platform/binding/reader/DocumentReader.h"
#include "platform/binding/writer/DocumentWriter.h"

#include <future>
#include <mutex>
#include <system_error>

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

void freeCityModel(std::auto_ptr<CityModelType> document)
{
    static std::mutex mutex;
    static std::future<void> freeing;
    std::unique_ptr<CityModelType> toFree(document.release());
    // Of fewer members, as a rule, a document is free sooner than a thread has begun.
    constexpr std::size_t large = 100;
    if (toFree == nullptr || toFree->featureMember().size() < large || citygml::readingThreads() == 1) {
        return;
    }
    const std::lock_guard<std::mutex> lock(mutex);
    try {
        freeing = std::async(std::launch::async, [document = toFree.get()] { delete document; });
        static_cast<void>(toFree.release());
    } catch (const std::system_error&) {
        // There is no thread to be had: the caller frees it.
    }
}

} // namespace core
