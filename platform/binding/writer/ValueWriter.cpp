#include "platform/binding/writer/ValueWriter.h"

#include "platform/binding/kept/UnsetValues.h"
#include "platform/binding/values/Literals.h"

#include <memory>

namespace citygml {
namespace binding {

namespace {

/// Takes over the document's text of a value of a fundamental type; of these only booleans have two.
void respellBoolean(std::string_view spelling, std::string& text)
{
    if ((spelling == "1" && text == "true") || (spelling == "0" && text == "false")) {
        text = spelling;
    }
}

/// Whether an attribute of that text has the value that a new owner or a new value has.
bool isUnsetAttribute(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                      std::string_view text)
{
    if (member.declaration->defaultText != nullptr) {
        return text == member.declaration->defaultText;
    }
    return member.type != nullptr && isUnset(member.declaration->ops->at(owner, 0), *member.type);
}

} // namespace

void ValueWriter::formatText(const xml_schema::type& object, const TypeIndex& type, const KeptContent* kept,
                             std::string& text) const
{
    const KeptContent::Value* const wrong = kept != nullptr ? kept->wrongValueOf(std::nullopt) : nullptr;
    if (wrong != nullptr && isUnset(object, type)) {
        text += wrong->spelling;
        return;
    }
    if (KeptContent::isMissing(object) && isUnset(object, type)) {
        // Only attributes of it have been set.
        return;
    }
    const bool isSpelled = kept != nullptr && (type.hasSpellings() || type.record()->literals != nullptr);
    formatObject(object, type, isSpelled ? kept->spellingOf(std::nullopt) : std::string_view(), text);
}

void ValueWriter::formatAttribute(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                                  const KeptContent* kept, std::string& text) const
{
    const MemberOps& ops = *member.declaration->ops;
    const std::string_view spelling = kept != nullptr ? kept->spellingOf(member.index) : std::string_view();
    if (member.type != nullptr) {
        formatObject(ops.at(owner, 0), *member.type, spelling, text);
    } else {
        ops.format(owner, 0, text);
        respellBoolean(spelling, text);
    }
    const KeptContent::Value* const wrong = kept != nullptr ? kept->wrongValueOf(member.index) : nullptr;
    if (wrong != nullptr && isUnsetAttribute(owner, member, text)) {
        text = wrong->spelling;
    }
}

void ValueWriter::formatValue(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                              std::size_t index, const KeptContent::Value* kept, std::string& text) const
{
    member.declaration->ops->format(owner, index, text);
    if (kept != nullptr) {
        respellBoolean(kept->spelling, text);
    }
}

void ValueWriter::formatAbsent(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                               const KeptContent::Value& kept, std::string& text) const
{
    const std::size_t begin = text.size();
    if (kept.isWrong && member.type == nullptr && member.requiredBit != 0) {
        // A required number can be set without the member's knowing.
        member.declaration->ops->format(owner, 0, text);
        if (!isUnsetNumber(std::string_view(text).substr(begin))) {
            return;
        }
        text.resize(begin);
    }
    text += kept.spelling;
}

/// \param spelling the document's text of the object; empty where none is kept
void ValueWriter::formatObject(const xml_schema::type& object, const TypeIndex& type,
                               std::string_view spelling, std::string& text) const
{
    type.record()->text->format(object, text, scope);
    if (spelling.empty()) {
        return;
    }
    if (type.record()->literals != nullptr) {
        if (differInFirstCase(spelling, text)) {
            text = spelling;
        }
        return;
    }
    const std::unique_ptr<xml_schema::type> spelled(type.record()->create());
    std::string written;
    type.record()->text->parse(*spelled, spelling, scope);
    type.record()->text->format(*spelled, written, scope);
    if (written == text) {
        text = spelling;
    }
}

} // namespace binding
} // namespace citygml
