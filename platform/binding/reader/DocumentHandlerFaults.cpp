// How a DocumentHandler tells what is wrong with the document.

#include "platform/binding/reader/DocumentChecks.h"
#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"

#include <utility>

namespace citygml {
namespace binding {

void DocumentHandler::setChecks(DocumentChecks& told)
{
    checks = &told;
    findings.setTaker([&told](const Finding& finding) {
        told.add(finding);
        return true;
    });
}

/// Notes it as a fault where a child begins that belongs in front of the last one. Both ways of reading take
/// any order. Of a root's child that is read apart it is not known what stands in front of it.
void DocumentHandler::noteLateChild(NameId id)
{
    const bool isOfRootApart = isApart && open.count() == 1;
    if (isLenient && !isOfRootApart) {
        addFault("the element '" + names.textOf(id) + "' belongs in front of '" +
                     names.textOf(open.top().lastName) + "'",
                 FaultKind::Order);
    }
}

/// Tells of an element whose member has as many as it can take. Both ways of reading keep it.
void DocumentHandler::tellSurplus(const MemberSlot& slot, NameId id, const XmlAttributes& attributes)
{
    if (isLenient) {
        addFault("the element '" + names.textOf(id) + "' is one too many");
        tellFaults(open.wholePath(names) + '/' + names.textOf(id), featureIdOf(slot.type, attributes));
    }
}

void DocumentHandler::tellMissing(const OpenElement& element)
{
    const KeptContent* const kept = KeptContent::find(*element.object);
    for (const TypeIndex::FlatMember& member : element.type->members()) {
        const bool isMet = (member.requiredBit & ~element.met) == 0;
        if (!isMet && (kept == nullptr || !kept->hasStandIn(member.index))) {
            addFault(std::string("the required ") +
                     (member.declaration->isAttribute ? "attribute" : "element") + " '" +
                     names.textOf(member.name) + "' is missing");
        }
    }
    tellFaults(open.wholePath(names));
}

/// Notes that the element which is being read is not as the schema wants it.
void DocumentHandler::addFault(std::string reason, FaultKind kind)
{
    if (!isLenient) {
        throw DocumentError{std::move(reason)};
    }
    faults.emplace_back(kind, std::move(reason));
}

/// Makes findings of what was noted.
void DocumentHandler::tellFaults(const std::string& path, const std::string& featureId)
{
    const XmlParser::Place place = parser.place();
    for (auto& [kind, reason] : faults) {
        Finding finding{place.line, place.column, path, std::move(reason), featureId};
        if (kind == FaultKind::Order && orderTaker) {
            orderTaker(finding);
        } else {
            addFinding(std::move(finding));
        }
    }
    faults.clear();
    isOtherType = false;
}

void DocumentHandler::addFinding(Finding finding)
{
    if (!isApart) {
        findings.add(std::move(finding));
    } else if (open.count() > 1) {
        children.back().findings.push_back(std::move(finding));
    } else {
        throw DocumentError{finding.reason};
    }
}

/// Identifier of the innermost feature that an element lies in of which no object can be made: its own, if it
/// is to be a feature.
std::string DocumentHandler::featureIdOf(const TypeIndex* type, const XmlAttributes& attributes)
{
    const TypeIndex* const feature = index.findType(gmlUri, "AbstractFeatureType");
    if (type == nullptr || !type->isDerivedFrom(feature)) {
        return open.featureId();
    }
    const NameId identifier = index.nameId(gmlUri, "id");
    for (const XmlAttribute attribute : attributes) {
        if (!attribute.isDeclaration() && names.attributeId(attribute.name) == identifier) {
            return collapsed(attribute.value);
        }
    }
    return std::string();
}

} // namespace binding
} // namespace citygml
