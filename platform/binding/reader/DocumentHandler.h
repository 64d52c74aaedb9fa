#pragma once

#include "core/CityModelType.hxx"
#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/reader/FindingLog.h"
#include "platform/binding/reader/KeptContentLog.h"
#include "platform/binding/reader/MarkupCopy.h"
#include "platform/binding/reader/NameResolver.h"
#include "platform/binding/reader/OpenElements.h"
#include "platform/binding/reader/RootChild.h"
#include "platform/binding/reader/ValueReader.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

class DocumentChecks;
class NamespaceScopes;
struct PrefixedName;

/// Makes the objects of a document from what the parser tells of it, each as a child of the one whose element
/// is open around it, and keeps with them what the schema has no place for.
class DocumentHandler : public XmlHandler
{
public:
    /// \param scopes follows the parser
    /// \param isLenient whether what the schema does not allow is kept and told as a finding; else the first
    /// such thing throws a DocumentError
    DocumentHandler(const XmlParser& parser, NamespaceScopes& scopes, KeptContentLog& log, bool isLenient);
    /// A handler for children of a root alone, which stand in no document until another handler adds them.
    /// What it cannot know without the rest of the document, such as whether the root has one of a member
    /// already, ends the parsing; so does whatever throws for the handler of a whole document.
    ///
    /// \param parser is given what stands inside of the root
    /// \param scopes a copy of those of the context
    DocumentHandler(const XmlParser& parser, NamespaceScopes& scopes, KeptContentLog& log,
                    const RootContext& context);

    /// Has a check told of what is found, and of what else the schema does not know, in place of keeping the
    /// findings with the document. An identifier that stands twice is set aside then.
    ///
    /// \param told outlives the reading
    void setChecks(DocumentChecks& told);
    /// Tells \a taker of elements that stand behind another one where they belong in front, in place of
    /// keeping these findings with the document.
    void setOrderTaker(std::function<void(const Finding&)> taker) { orderTaker = std::move(taker); }

    /// Lists the identifiers in place of registering them, so that one may stand twice.
    void listIdentifiersIn(std::vector<xml_schema::id*>& list) { values.listIdentifiersIn(list); }

    void startElement(const char* name, const XmlAttributes& attributes) override;
    void endElement(const char* name) override;
    void characters(std::string_view characters) override;
    void comment(std::string markup) override;
    void processingInstruction(std::string markup) override;
    std::string path() const override;

    /// Identifier of the innermost feature that is open; empty where there is none, or it has no identifier.
    std::string featureId() const { return open.featureId(); }

    /// Whether the start tag of the root has ended.
    bool hasRoot() const { return root != nullptr; }
    /// Whether the root is open, and none of its children.
    bool isBetweenChildren() const { return open.count() == 1 && !unknown.isOpen(); }
    /// Of the root; to be asked for when there is one.
    RootContext rootContext() const;
    /// The children that have ended, of a handler for children alone.
    std::vector<RootChild> takeChildren();
    /// Adds a child that was read apart, at the place that has been reached.
    ///
    /// \param begin where its findings' places are counted from
    /// \return false, with nothing done, where an identifier in it is in use, or there is a finding to tell
    /// of its place in the root
    bool addChild(RootChild& child, const XmlParser::Place& begin);

    /// The document, with what was found in it, once the parser has come to its end.
    std::unique_ptr<core::CityModelType> takeRoot();
    /// Whether the document is of the older version of CityGML.
    bool isOlderVersion() const { return isOlder; }

private:
    void startRoot(const char* name, NameId id, const XmlAttributes& attributes);
    bool startChild(const MemberSlot& slot, NameId id, const XmlAttributes& attributes);
    const TypeIndex* typeOfChild(const MemberSlot& slot, const XmlAttributes& attributes);
    const TypeIndex* typeNamed(const char* text, const MemberSlot& slot);
    void startObject(xml_schema::type& object, const TypeIndex& type, NameId id,
                     const XmlAttributes& attributes);
    void startValue(const TypeIndex::FlatMember& member, NameId id, const XmlAttributes& attributes);
    void startUnknown(const char* name, const XmlAttributes& attributes, std::uint8_t standsFor);
    std::uint8_t makeStandIn(const MemberSlot& slot);

    void addObject(const TypeIndex::FlatMember& member, std::unique_ptr<xml_schema::type> created);
    void endChildApart();
    void addFinding(Finding finding);
    void noteLateChild(NameId id);
    void tellSurplus(const MemberSlot& slot, NameId id, const XmlAttributes& attributes);
    enum class FaultKind : std::uint8_t {
        Content,
        Order ///< the element stands behind another one where it belongs in front
    };
    void addFault(std::string reason, FaultKind kind = FaultKind::Content);
    void tellFaults(const std::string& path) { tellFaults(path, open.featureId()); }
    void tellFaults(const std::string& path, const std::string& featureId);
    std::string featureIdOf(const TypeIndex* type, const XmlAttributes& attributes);

    void readAttribute(OpenElement& element, const XmlAttribute& attribute);
    void keepAttribute(OpenElement& element, const XmlAttribute& attribute);
    bool readSchemaLocation(std::string_view text);
    KeptContent::Attribute keptAttribute(const PrefixedName& name, const char* value) const;
    bool isXsi(const PrefixedName& attribute, std::string_view name) const;

    void endChildren(OpenElement& element);
    void endText(const OpenElement& element);
    void endValue(const OpenElement& element);
    void readValue(const OpenElement& element);
    void checkRequired(const OpenElement& element);
    void tellMissing(const OpenElement& element);

    void keepText(const OpenElement& element);
    void keepMarkup(KeptContent::Kind kind, const char* what, std::string markup);
    void keepNode(KeptContent::Node node);
    KeptContent::Position placeOfNode();
    KeptContent::Value& keptValue();

    const XmlParser& parser;
    NamespaceScopes& scopes;
    KeptContentLog& log;
    const bool isLenient;
    const SchemaIndex& index;
    NameResolver names;
    ValueReader values;
    MarkupCopy unknown;
    OpenElements open;
    std::unique_ptr<core::CityModelType> root;
    std::shared_ptr<KeptContent::Document> document;
    // The text of the innermost element since its last child.
    std::string text;
    // What is kept about the value that is open.
    std::optional<KeptContent::Value> ofValue;
    // Comments and processing instructions in front of the root.
    std::vector<std::string> prologue;
    bool isOlder = false;
    // Why the element that is being read is not as it should be; told when its path and feature are known.
    std::vector<std::pair<FaultKind, std::string>> faults;
    // Whether one of these is the element's `xsi:type`.
    bool isOtherType = false;
    FindingLog findings;
    std::function<void(const Finding&)> orderTaker;
    // Null but for a check.
    DocumentChecks* checks = nullptr;
    // Whether the root is a stand-in, and its children are these.
    bool isApart = false;
    std::vector<RootChild> children;
};

} // namespace binding
} // namespace citygml
