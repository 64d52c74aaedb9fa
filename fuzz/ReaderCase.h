#pragma once

#include "citygml/CityModel.h"
#include "citygml/DocumentChanges.h"
#include "citygml/DocumentCheck.h"
#include "citygml/DocumentRepair.h"
#include "core/CityModelType.hxx"
#include "support/XmlTree.h"

#include <algorithm>
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

inline std::string namespaceOf(const testsupport::XmlNode& document)
{
    const auto root = std::find_if(document.children.begin(), document.children.end(), [](const auto& node) {
        return node.kind == testsupport::XmlNode::Element;
    });
    return root != document.children.end() ? root->namespaceUri().toStdString() : std::string();
}

/// Whether something stands in the middle of a word. Only a string is written so; a number stays in one
/// piece.
inline bool splitsWord(const testsupport::XmlNode& node)
{
    using testsupport::XmlNode;
    const XmlNode* before = nullptr;
    for (const XmlNode& child : node.children) {
        if (child.kind == XmlNode::Text) {
            if (before != nullptr && !before->text.back().isSpace() && !child.text.front().isSpace()) {
                return true;
            }
            before = &child;
        } else if (splitsWord(child)) {
            return true;
        }
    }
    return false;
}

/// Takes out the texts that are white space alone: beside a number or a comment they do not count.
inline void removeBlanks(testsupport::XmlNode& node)
{
    auto& children = node.children;
    const auto isBlank = [](const testsupport::XmlNode& child) {
        return child.kind == testsupport::XmlNode::Text && child.text.trimmed().isEmpty();
    };
    children.erase(std::remove_if(children.begin(), children.end(), isBlank), children.end());
    for (testsupport::XmlNode& child : children) {
        removeBlanks(child);
    }
}

/// What a save has changed in a document, by what another parser sees; empty if nothing.
inline std::string changes(std::string_view document, const std::string& saved)
{
    using testsupport::XmlNode;
    QString error;
    XmlNode before = XmlNode::parse(QByteArray(document.data(), static_cast<int>(document.size())), &error);
    XmlNode after = XmlNode::parse(QByteArray::fromStdString(saved));
    // Of the older version other names are written, and the other parser does not take all documents.
    if (!error.isEmpty() || namespaceOf(before) != namespaceOf(after) || splitsWord(before)) {
        return std::string();
    }
    removeBlanks(before);
    removeBlanks(after);
    return XmlNode::differences(before, after).join('\n').toStdString();
}

/// What is wrong with a save that is to touch only what has changed, where nothing has; empty if nothing is.
inline std::string changesOfUnedited(std::string_view document, const core::CityModelType& read)
{
    std::istringstream original{std::string(document)};
    std::ostringstream target;
    if (!citygml::writeChanges(original, read, target)) {
        return document.find("/1.0") == std::string_view::npos ? "a document cannot be compared with itself"
                                                               : "";
    }
    return target.str() == document ? std::string()
                                    : "an unedited document does not come back: " + target.str();
}

/// Reads a document, writes it, reads that and writes it again, also from a copy. A document that cannot be
/// read is a good answer; whatever was read must be written as it was, be read again, and come out the same.
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
    const std::string changed = changes(document, saved);
    if (!changed.empty()) {
        return "a save changes the document:\n" + changed + "\n" + saved;
    }
    if (std::string problem = changesOfUnedited(document, *first); !problem.empty()) {
        return problem;
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

inline std::string refusal(std::string_view document, unsigned long flags)
{
    try {
        read(document, flags);
        return std::string();
    } catch (const xsd::cxx::tree::exception<char>& error) {
        return described("refused", error);
    }
}

/// Checks a document, which must find something in what strict reading refuses.
///
/// \return what went wrong; empty if nothing did.
inline std::string runCheckCase(std::string_view document)
{
    std::istringstream stream{std::string(document)};
    bool isFound = false;
    citygml::checkDocument(stream, [&](const citygml::Finding&) { isFound = true; });
    const std::string reason = isFound ? std::string() : refusal(document, 0);
    return reason.empty() ? std::string() : "a check finds nothing: " + reason;
}

/// Repairs a document. What can be loaded can be repaired, and what was repaired can be loaded.
///
/// \return what went wrong; empty if nothing did.
inline std::string runRepairCase(std::string_view document)
{
    constexpr unsigned long lenient = xsd::cxx::tree::flags::dont_validate;
    Document repaired;
    try {
        std::istringstream stream{std::string(document)};
        repaired = citygml::repairDocument(stream, [](const citygml::Finding&) {});
    } catch (const xsd::cxx::tree::exception<char>& error) {
        return refusal(document, lenient).empty() ? described("what opens cannot be repaired", error)
                                                  : std::string();
    }
    const std::string reason = refusal(write(*repaired), lenient);
    return reason.empty() ? std::string() : "what was repaired does not open: " + reason;
}

/// Reads a document in both ways, checks and repairs it.
inline std::string runReaderCase(std::string_view document)
{
    for (const unsigned long flags :
         {0ul, static_cast<unsigned long>(xsd::cxx::tree::flags::dont_validate)}) {
        std::string problem = runReaderCase(document, flags);
        if (!problem.empty()) {
            return problem;
        }
    }
    const std::string problem = runCheckCase(document);
    return problem.empty() ? runRepairCase(document) : problem;
}

} // namespace fuzz
} // namespace tolvik
