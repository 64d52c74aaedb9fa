#include "platform/binding/reader/ValueReader.h"

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/kept/UnsetValues.h"
#include "platform/binding/reader/KeptContentLog.h"
#include "platform/binding/reader/NameResolver.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/values/Literals.h"
#include "platform/binding/values/WhiteSpace.h"

#include <memory>

namespace citygml {
namespace binding {

namespace {

/// Whether a value of a fundamental type is spelled otherwise than it will be written. Only booleans count;
/// numbers may be.
bool isDigitOfBoolean(const xml_schema::type& owner, const MemberOps& ops, std::size_t index,
                      std::string_view text)
{
    const std::string_view digit = trimmed(text);
    if (digit != "0" && digit != "1") {
        return false;
    }
    std::string written;
    ops.format(owner, index, written);
    return written == "true" || written == "false";
}

/// The identifiers of a document are listed by its root. An identifier enters the list when it gets its text,
/// for which it must have its place in the document first.
void addIdentifier(xml_schema::type& owner, const MemberOps& ops, std::unique_ptr<xml_schema::type> created,
                   xml_schema::id& identifier, const char* text)
{
    ops.add(owner, created.release());
    try {
        identifier = collapsed(text);
    } catch (...) {
        // One that was refused must not leave the list when it dies, since the entry is another's.
        static_cast<std::string&>(identifier).clear();
        throw;
    }
}

} // namespace

void ValueReader::readText(xml_schema::type& object, const TypeIndex& type, NameId element,
                           std::string_view text) const
{
    bool isToBeKept = false;
    try {
        isToBeKept = parse(object, type, text);
    } catch (const ValueError&) {
        if (type.record()->literals == nullptr) {
            reset(object, type);
            keepWrong(object, nullptr, text);
        }
        throw;
    }
    if (isToBeKept) {
        logSpelling(element);
        KeptContent::of(object).addSpelling(std::nullopt, trimmed(text));
    }
}

/// \return whether the text is spelled otherwise than it will be written.
bool ValueReader::parse(xml_schema::type& object, const TypeIndex& type, std::string_view text) const
{
    type.record()->text->parse(object, text, scopes);
    return readLiteral(object, type) || (type.hasSpellings() && isOtherSpelling(object, type, text));
}

void ValueReader::readAttribute(xml_schema::type& owner, const TypeIndex::FlatMember& member,
                                const char* text) const
{
    if (member.type != nullptr) {
        readObjectAttribute(owner, member, text);
        return;
    }
    const MemberOps& ops = *member.declaration->ops;
    try {
        ops.addText(owner, text);
    } catch (const ValueError&) {
        keepWrong(owner, &member, text);
        throw;
    }
    if (isDigitOfBoolean(owner, ops, 0, text)) {
        logSpelling(member.name);
        KeptContent::of(owner).addSpelling(member.index, trimmed(text));
    }
}

void ValueReader::readObjectAttribute(xml_schema::type& owner, const TypeIndex::FlatMember& member,
                                      const char* text) const
{
    const MemberOps& ops = *member.declaration->ops;
    const TypeRecord& record = *member.type->record();
    std::unique_ptr<xml_schema::type> created(record.create());
    if (auto* identifier = dynamic_cast<xml_schema::id*>(created.get())) {
        if (identifiers != nullptr) {
            ops.add(owner, created.release());
            // As a string it does not register itself.
            static_cast<std::string&>(*identifier) = collapsed(text);
            identifiers->push_back(identifier);
        } else {
            addIdentifier(owner, ops, std::move(created), *identifier, text);
        }
        return;
    }
    bool isToBeKept = false;
    try {
        isToBeKept = parse(*created, *member.type, text);
    } catch (const ValueError&) {
        if (record.literals != nullptr) {
            ops.add(owner, created.release());
        } else {
            if (member.requiredBit != 0) {
                ops.add(owner, newObject(record).release());
            }
            keepWrong(owner, &member, text);
        }
        throw;
    }
    ops.add(owner, created.release());
    if (isToBeKept) {
        logSpelling(member.name);
        KeptContent::of(owner).addSpelling(member.index, trimmed(text));
    }
}

std::string ValueReader::readValue(xml_schema::type& owner, const TypeIndex::FlatMember& member,
                                   NameId element, std::string_view text) const
{
    const MemberOps& ops = *member.declaration->ops;
    ops.addText(owner, text);
    if (!isDigitOfBoolean(owner, ops, ops.count(owner) - 1, text)) {
        return std::string();
    }
    logSpelling(element);
    return std::string(trimmed(text));
}

/// \param member an attribute; null for the object's own text
void ValueReader::keepWrong(xml_schema::type& owner, const TypeIndex::FlatMember* member,
                            std::string_view text) const
{
    KeptContent::Value value;
    if (member != nullptr) {
        value.member = member->index;
        value.isAbsent = member->declaration->ops->count(owner) == 0;
    }
    value.isWrong = true;
    value.spelling = text;
    KeptContent::of(owner).addValue(std::move(value));
}

/// Makes the value that of a new object. Parsing may have stopped in the middle of a list.
void ValueReader::reset(xml_schema::type& object, const TypeIndex& type) const
{
    const std::unique_ptr<xml_schema::type> fresh = newObject(*type.record());
    std::string unset;
    type.record()->text->format(*fresh, unset, scopes);
    type.record()->text->parse(object, unset, scopes);
}

/// Whether the text of an object is spelled otherwise than it will be written.
bool ValueReader::isOtherSpelling(const xml_schema::type& object, const TypeIndex& type,
                                  std::string_view text) const
{
    std::string written;
    type.record()->text->format(object, written, scopes);
    return trimmed(text) != written;
}

/// Gives an object of an enumeration that has its text already the literal of the schema.
///
/// \return whether the document spells it otherwise.
bool ValueReader::readLiteral(xml_schema::type& object, const TypeIndex& type) const
{
    const TypeRecord& record = *type.record();
    if (record.literals == nullptr) {
        return false;
    }
    std::string text;
    record.text->format(object, text, scopes);
    // An empty text is what an edit to something that is no literal leaves.
    if (text.empty()) {
        return false;
    }
    const char* const literal = findLiteral(record, text);
    if (literal == nullptr) {
        throw ValueError{"'" + text + "' is not a value of " + record.name};
    }
    const bool isOther = text != literal;
    if (isOther) {
        record.text->parse(object, literal, scopes);
    }
    return isOther;
}

void ValueReader::logSpelling(NameId name) const
{
    if (log.isOn()) {
        log.add("spelling of", names.textOf(name));
    }
}

} // namespace binding
} // namespace citygml
