#include "citygml/Member.h"

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/kept/UnsetValues.h"
#include "platform/binding/reader/IdentifierRegister.h"
#include "platform/binding/reader/RequiredMembers.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/values/Literals.h"
#include "platform/binding/values/TextValues.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <typeinfo>
#include <unordered_map>
#include <utility>

namespace citygml {

using binding::KeptContent;
using binding::MemberOps;
using binding::SchemaIndex;
using binding::TypeIndex;

using FlatMember = TypeIndex::FlatMember;

/// Copies of the values of a member, and what is kept about these with their owner.
struct MemberState::Content
{
    const binding::Member* declaration = nullptr;
    /// Whether it is one entry of a list, and the object that this was.
    bool isEntry = false;
    const xml_schema::type* entry = nullptr;
    /// That object, once it has been cleared. As long as it is here no other one can have its address.
    std::unique_ptr<xml_schema::type> removed;
    std::vector<std::unique_ptr<xml_schema::type>> objects;
    /// The values of a fundamental type.
    std::vector<std::string> texts;
    std::vector<KeptContent::Value> kept;
    /// Whether the document spelled a default out.
    bool isSpelledOut = false;

    Content() = default;
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;
    ~Content();

    /// Has the last state that was captured of an entry keep its object, if there is one still.
    static void keepRemoved(std::unique_ptr<xml_schema::type> object);
    static void note(const xml_schema::type& object, const std::shared_ptr<Content>& content);

private:
    static std::unordered_map<const xml_schema::type*, std::weak_ptr<Content>>& ofEntries();
    static std::mutex mutex;
};

std::mutex MemberState::Content::mutex;

std::unordered_map<const xml_schema::type*, std::weak_ptr<MemberState::Content>>&
MemberState::Content::ofEntries()
{
    static std::unordered_map<const xml_schema::type*, std::weak_ptr<Content>> contents;
    return contents;
}

MemberState::Content::~Content()
{
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found = ofEntries().find(entry);
    if (found != ofEntries().end() && found->second.expired()) {
        ofEntries().erase(found);
    }
}

void MemberState::Content::note(const xml_schema::type& object, const std::shared_ptr<Content>& content)
{
    const std::lock_guard<std::mutex> lock(mutex);
    content->entry = &object;
    ofEntries()[&object] = content;
}

void MemberState::Content::keepRemoved(std::unique_ptr<xml_schema::type> object)
{
    std::shared_ptr<Content> content;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        const auto found = ofEntries().find(object.get());
        content = found != ofEntries().end() ? found->second.lock() : nullptr;
    }
    if (content != nullptr) {
        content->removed = std::move(object);
    }
}

namespace {

/// For texts that go from one object to another: each prefix stands for itself.
class SamePrefixes : public binding::NameScope
{
public:
    std::string namespaceOf(std::string_view prefix) const override { return std::string(prefix); }
    std::string prefixOf(const std::string& uri) const override { return uri; }
};

const FlatMember& memberOf(const xml_schema::type& owner, std::size_t index)
{
    return SchemaIndex::instance().typeOf(owner).members()[index];
}

const MemberOps& opsOf(const FlatMember& member)
{
    return *member.declaration->ops;
}

xml_schema::type& objectAt(xml_schema::type& owner, const FlatMember& member, std::size_t index)
{
    return const_cast<xml_schema::type&>(opsOf(member).at(owner, index));
}

bool hasIdentifier(const xml_schema::type& object)
{
    if (dynamic_cast<const xml_schema::id*>(&object) != nullptr) {
        return true;
    }
    for (const FlatMember& member : SchemaIndex::instance().typeOf(object).members()) {
        const std::size_t count = member.type != nullptr ? opsOf(member).count(object) : 0;
        for (std::size_t i = 0; i < count; ++i) {
            if (hasIdentifier(opsOf(member).at(object, i))) {
                return true;
            }
        }
    }
    return false;
}

std::unique_ptr<xml_schema::type> takeFrom(xml_schema::type& owner, const FlatMember& member,
                                           std::size_t index)
{
    std::optional<binding::HiddenIdentifiers> hidden;
    if (member.type != nullptr && !hasIdentifier(opsOf(member).at(owner, index))) {
        auto* const root = owner._root();
        hidden.emplace(root != nullptr ? *root : owner);
    }
    return std::unique_ptr<xml_schema::type>(opsOf(member).take(owner, index));
}

void cutTo(xml_schema::type& owner, const FlatMember& member, std::size_t count)
{
    for (std::size_t i = opsOf(member).count(owner); i > count; --i) {
        takeFrom(owner, member, i - 1);
    }
}

/// Puts an object at a place in a list, or behind its end.
void insert(xml_schema::type& owner, const FlatMember& member, std::size_t index,
            std::unique_ptr<xml_schema::type> object)
{
    auto* const root = owner._root();
    xsd::cxx::tree::_type& top = root != nullptr ? *root : static_cast<xsd::cxx::tree::_type&>(owner);
    std::vector<std::unique_ptr<xml_schema::type>> behind;
    {
        // Those behind come back at once: to look each up among all identifiers takes longest.
        const binding::HiddenIdentifiers hidden(top);
        while (opsOf(member).count(owner) > index) {
            const std::size_t last = opsOf(member).count(owner) - 1;
            behind.emplace_back(opsOf(member).take(owner, last));
        }
    }
    opsOf(member).add(owner, object.release());
    const binding::HiddenIdentifiers hidden(top);
    for (; !behind.empty(); behind.pop_back()) {
        opsOf(member).add(owner, behind.back().release());
    }
}

std::unique_ptr<xml_schema::type> copyOf(const xml_schema::type& object)
{
    return std::unique_ptr<xml_schema::type>(object._clone());
}

void copyText(xml_schema::type& target, const xml_schema::type& source, const binding::TextOps& ops)
{
    const auto* const string = dynamic_cast<const std::string*>(&source);
    if (string != nullptr && dynamic_cast<const xml_schema::id*>(&source) == nullptr) {
        dynamic_cast<std::string&>(target) = *string;
        return;
    }
    std::string text;
    ops.format(source, text, SamePrefixes());
    ops.parse(target, text, SamePrefixes());
}

using Objects = std::vector<const xml_schema::type*>;

void becomeAll(xml_schema::type& owner, const FlatMember& member, const Objects& objects);

/// Gives an object everything that another one of its type has.
void become(xml_schema::type& target, const xml_schema::type& source)
{
    const TypeIndex& type = SchemaIndex::instance().typeOf(source);
    if (type.hasText()) {
        copyText(target, source, *type.record()->text);
    }
    for (const FlatMember& member : type.members()) {
        const std::size_t count = opsOf(member).count(source);
        if (member.type != nullptr) {
            Objects objects;
            for (std::size_t i = 0; i < count; ++i) {
                objects.push_back(&opsOf(member).at(source, i));
            }
            becomeAll(target, member, objects);
            continue;
        }
        cutTo(target, member, 0);
        for (std::size_t i = 0; i < count; ++i) {
            std::string text;
            opsOf(member).format(source, i, text);
            opsOf(member).addText(target, text);
        }
    }
    KeptContent::copy(target, source);
}

/// Makes the objects of a member what others are, each the same object if it can be: others know the features
/// among them, and those below them.
void becomeAll(xml_schema::type& owner, const FlatMember& member, const Objects& objects)
{
    // An identifier that goes can be taken by what stays.
    cutTo(owner, member, objects.size());
    std::size_t done = 0;
    for (const std::size_t both = opsOf(member).count(owner); done < both; ++done) {
        xml_schema::type& object = objectAt(owner, member, done);
        const xml_schema::type& former = *objects[done];
        if (typeid(object) != typeid(former)) {
            break;
        }
        become(object, former);
    }
    cutTo(owner, member, done);
    for (; done < objects.size(); ++done) {
        opsOf(member).add(owner, copyOf(*objects[done]).release());
    }
}

void setTexts(xml_schema::type& owner, const FlatMember& member, const std::vector<std::string>& texts)
{
    cutTo(owner, member, 0);
    for (const std::string& text : texts) {
        opsOf(member).addText(owner, text);
    }
}

void setKept(xml_schema::type& owner, const FlatMember& member, std::vector<KeptContent::Value> values)
{
    if (!values.empty() || KeptContent::find(owner) != nullptr) {
        KeptContent::of(owner).setValues(member.index, std::move(values));
        KeptContent::seal(owner);
    }
}

std::vector<KeptContent::Value> keptOf(const xml_schema::type& owner, const FlatMember& member)
{
    const KeptContent* const kept = KeptContent::find(owner);
    const KeptContent::Values values = kept != nullptr ? kept->valuesOf(member.index) : KeptContent::Values();
    return std::vector<KeptContent::Value>(values.begin(), values.end());
}

/// What is kept about the values of a list that remain, when one has gone.
void forgetKept(xml_schema::type& owner, const FlatMember& member, std::size_t index)
{
    std::vector<KeptContent::Value> rest;
    for (KeptContent::Value& value : keptOf(owner, member)) {
        if (value.index != index || value.isAbsent) {
            value.index -= value.index > index ? 1 : 0;
            rest.push_back(std::move(value));
        }
    }
    setKept(owner, member, std::move(rest));
}

/// Gives an attribute that has a default the value of that.
void addDefault(xml_schema::type& owner, const FlatMember& member)
{
    const char* const text = member.declaration->defaultText;
    if (member.type == nullptr) {
        opsOf(member).addText(owner, text);
        return;
    }
    std::unique_ptr<xml_schema::type> value = binding::newObject(*member.type->record());
    member.type->record()->text->parse(*value, text, SamePrefixes());
    opsOf(member).add(owner, value.release());
}

bool isDefault(const xml_schema::type& owner, const FlatMember& member)
{
    if (member.defaultBit == 0 || KeptContent::isSpelledOut(owner, member.defaultBit) ||
        opsOf(member).count(owner) == 0) {
        return false;
    }
    std::string text;
    if (member.type != nullptr) {
        member.type->record()->text->format(opsOf(member).at(owner, 0), text, SamePrefixes());
    } else {
        opsOf(member).format(owner, 0, text);
    }
    return text == member.declaration->defaultText;
}

/// A new object of a type.
///
/// \throws ValueError for a text that is no value of the type, and for a type that needs more than a text
std::unique_ptr<xml_schema::type> objectOfText(const TypeIndex& type, const std::string& text)
{
    const auto isRequired = [](const FlatMember& member) { return member.declaration->isRequired; };
    if (!type.hasText() || type.record()->isAbstract ||
        std::any_of(type.members().begin(), type.members().end(), isRequired)) {
        throw binding::ValueError{"a text alone is no value of the type"};
    }
    std::unique_ptr<xml_schema::type> value = binding::newObject(*type.record());
    type.record()->text->parse(*value, text, SamePrefixes());
    return value;
}

/// Gives an object another text.
///
/// \throws ValueError with nothing changed
void setTextOf(xml_schema::type& value, const std::string& text)
{
    const TypeIndex& type = SchemaIndex::instance().typeOf(value);
    if (!type.hasText()) {
        throw binding::ValueError{"the type has no text"};
    }
    // A text that is no value would leave half of itself in the object.
    type.record()->text->parse(*binding::newObject(*type.record()), text, SamePrefixes());
    type.record()->text->parse(value, text, SamePrefixes());
    KeptContent::setGiven(value);
}

bool isListOfTexts(const FlatMember& member)
{
    return !member.declaration->isAttribute && !opsOf(member).single && member.type != nullptr &&
           member.type->hasText() && member.type->requiredBits() == 0 && !member.type->record()->isAbstract;
}

} // namespace

MemberState::MemberState() = default;

MemberState::MemberState(std::shared_ptr<Content> content) : content(std::move(content)) {}

Member::Member(xml_schema::type& owner, std::uint16_t index, std::optional<std::size_t> entry)
    : owner(&owner), index(index), entry(entry)
{
}

Member::Member(xml_schema::type& owner, const void* address, Address) : owner(&owner)
{
    const auto& members = SchemaIndex::instance().typeOf(owner).members();
    const auto found = std::find_if(members.begin(), members.end(), [&](const FlatMember& member) {
        const MemberOps& ops = opsOf(member);
        const bool isObject = ops.single && member.type != nullptr && ops.count(owner) != 0;
        return ops.address(owner) == address ||
               (isObject && dynamic_cast<const void*>(&ops.at(owner, 0)) == address);
    });
    if (found == members.end()) {
        throw std::invalid_argument("the value is no member of the object");
    }
    index = found->index;
}

Member Member::holding(xml_schema::type& object)
{
    auto* const owner = dynamic_cast<xml_schema::type*>(object._container());
    if (owner != nullptr) {
        for (const FlatMember& member : SchemaIndex::instance().typeOf(*owner).members()) {
            const std::size_t count = member.type != nullptr ? opsOf(member).count(*owner) : 0;
            for (std::size_t i = 0; i < count; ++i) {
                if (&opsOf(member).at(*owner, i) == &object) {
                    return Member(*owner, member.index,
                                  opsOf(member).single ? std::nullopt : std::optional<std::size_t>(i));
                }
            }
        }
    }
    throw std::invalid_argument("the object stands in no other one");
}

std::vector<Member> Member::textLists(xml_schema::type& object)
{
    std::vector<Member> lists;
    for (const FlatMember& member : SchemaIndex::instance().typeOf(object).members()) {
        if (isListOfTexts(member)) {
            lists.push_back(Member(object, member.index, std::nullopt));
        }
    }
    return lists;
}

std::optional<Member> Member::named(xml_schema::type& object, const std::string& name)
{
    const auto& members = SchemaIndex::instance().typeOf(object).members();
    const auto found = std::find_if(members.rbegin(), members.rend(), [&name](const FlatMember& member) {
        return member.declaration->name == name;
    });
    return found != members.rend() ? std::optional<Member>(Member(object, found->index, std::nullopt))
                                   : std::nullopt;
}

std::string Member::name() const
{
    return memberOf(*owner, index).declaration->name;
}

bool Member::isList() const
{
    return !entry && !opsOf(memberOf(*owner, index)).single;
}

bool Member::isRequired() const
{
    return memberOf(*owner, index).declaration->isRequired;
}

Member Member::list() const
{
    return Member(*owner, index, std::nullopt);
}

Member Member::entryAt(std::size_t at) const
{
    return Member(*owner, index, at);
}

std::size_t Member::size() const
{
    const std::size_t count = opsOf(memberOf(*owner, index)).count(*owner);
    return entry ? (*entry < count ? 1 : 0) : count;
}

bool Member::present() const
{
    if (entry) {
        return size() != 0;
    }
    const FlatMember& member = memberOf(*owner, index);
    const std::vector<KeptContent::Value> kept = keptOf(*owner, member);
    const bool isAbsent =
        std::any_of(kept.begin(), kept.end(), [](const KeptContent::Value& value) { return value.isAbsent; });
    return isAbsent || (binding::writtenCount(*owner, member) != 0 && !isDefault(*owner, member));
}

void Member::clear()
{
    const FlatMember& member = memberOf(*owner, index);
    if (entry) {
        if (size() != 0) {
            MemberState::Content::keepRemoved(takeFrom(*owner, member, *entry));
            forgetKept(*owner, member, *entry);
        }
        return;
    }
    cutTo(*owner, member, 0);
    setKept(*owner, member, {});
    if (member.defaultBit != 0) {
        addDefault(*owner, member);
        KeptContent::clearSpelledOut(*owner, member.defaultBit);
    } else if (member.requiredBit != 0) {
        binding::fillRequired(*owner, SchemaIndex::instance().typeOf(*owner));
        KeptContent::seal(*owner);
    }
}

MemberState Member::capture() const
{
    const FlatMember& member = memberOf(*owner, index);
    const auto content = std::make_shared<MemberState::Content>();
    content->declaration = member.declaration;
    content->isEntry = entry.has_value();
    if (size() != 0 && entry && member.type != nullptr) {
        MemberState::Content::note(opsOf(member).at(*owner, *entry), content);
    }
    // A number that was set without the member's knowing counts.
    const std::size_t count = std::max(opsOf(member).count(*owner), binding::writtenCount(*owner, member));
    const std::size_t first = entry ? std::min(*entry, count) : 0;
    const std::size_t end = entry ? std::min(*entry + 1, count) : count;
    for (std::size_t i = first; i < end; ++i) {
        if (member.type != nullptr) {
            content->objects.push_back(copyOf(opsOf(member).at(*owner, i)));
        } else {
            opsOf(member).format(*owner, i, content->texts.emplace_back());
        }
    }
    if (!entry) {
        content->kept = keptOf(*owner, member);
        content->isSpelledOut = KeptContent::isSpelledOut(*owner, member.defaultBit);
    }
    return MemberState(content);
}

bool Member::restore(const MemberState& state)
{
    const FlatMember& member = memberOf(*owner, index);
    const MemberState::Content* const content = state.content.get();
    if (content == nullptr || content->declaration != member.declaration ||
        content->isEntry != entry.has_value()) {
        return false;
    }
    if (entry) {
        return restoreEntry(state);
    }
    if (member.type != nullptr) {
        Objects objects;
        for (const auto& object : content->objects) {
            objects.push_back(object.get());
        }
        becomeAll(*owner, member, objects);
    } else {
        setTexts(*owner, member, content->texts);
    }
    setKept(*owner, member, content->kept);
    KeptContent::clearSpelledOut(*owner, member.defaultBit);
    if (content->isSpelledOut) {
        KeptContent::setSpelledOut(*owner, member.defaultBit);
    }
    return true;
}

bool Member::restoreEntry(const MemberState& state)
{
    const FlatMember& member = memberOf(*owner, index);
    if (state.content->objects.empty()) {
        clear();
        return true;
    }
    const xml_schema::type& saved = *state.content->objects.front();
    if (state.content->removed != nullptr) {
        insert(*owner, member, *entry, std::move(state.content->removed));
    }
    for (std::size_t i = 0; i < opsOf(member).count(*owner); ++i) {
        xml_schema::type& object = objectAt(*owner, member, i);
        if (&object == state.content->entry && typeid(object) == typeid(saved)) {
            become(object, saved);
            return true;
        }
    }
    return Member(*owner, index, std::nullopt).put(*entry, state);
}

std::optional<std::string> Member::text() const
{
    const FlatMember& member = memberOf(*owner, index);
    if (isList() || (entry ? size() == 0 : binding::writtenCount(*owner, member) == 0)) {
        return std::nullopt;
    }
    std::string text;
    if (member.type == nullptr) {
        opsOf(member).format(*owner, position(), text);
        return text;
    }
    const xml_schema::type& value = opsOf(member).at(*owner, position());
    const TypeIndex& type = SchemaIndex::instance().typeOf(value);
    if (!type.hasText() || isSetAside(value)) {
        return std::nullopt;
    }
    type.record()->text->format(value, text, SamePrefixes());
    return text;
}

bool Member::setText(const std::string& text)
{
    const FlatMember& member = memberOf(*owner, index);
    // A number in a list cannot be set alone.
    if (isList() || (entry && (member.type == nullptr || size() == 0))) {
        return false;
    }
    try {
        if (member.type == nullptr) {
            opsOf(member).addText(*owner, text);
        } else if (size() != 0) {
            setTextOf(objectAt(*owner, member, position()), text);
        } else {
            opsOf(member).add(*owner, objectOfText(*member.type, text).release());
        }
        return true;
    } catch (const binding::ValueError&) {
        return false;
    }
}

bool Member::add(const std::string& text)
{
    const FlatMember& member = memberOf(*owner, index);
    if (entry || !isListOfTexts(member)) {
        return false;
    }
    const binding::TypeRecord& record = *member.type->record();
    if (record.literals != nullptr && binding::findLiteral(record, text) == nullptr) {
        return false;
    }
    try {
        opsOf(member).add(*owner, objectOfText(*member.type, text).release());
    } catch (const binding::ValueError&) {
        return false;
    }
    return true;
}

/// Whether objects can be taken out and put in.
bool Member::canLose() const
{
    const FlatMember& member = memberOf(*owner, index);
    return member.type != nullptr && !entry && (isList() || !member.declaration->isRequired);
}

MemberState Member::take(std::size_t at)
{
    const FlatMember& member = memberOf(*owner, index);
    if (!canLose() || at >= size()) {
        return MemberState();
    }
    const auto content = std::make_shared<MemberState::Content>();
    content->declaration = member.declaration;
    content->isEntry = true;
    content->objects.push_back(takeFrom(*owner, member, at));
    return MemberState(content);
}

bool Member::put(std::size_t at, const MemberState& state)
{
    const FlatMember& member = memberOf(*owner, index);
    MemberState::Content* const content = state.content.get();
    if (!canLose() || (!isList() && size() != 0) || content == nullptr || !content->isEntry ||
        content->declaration != member.declaration || content->objects.empty()) {
        return false;
    }
    std::unique_ptr<xml_schema::type>& object = content->objects.front();
    std::unique_ptr<xml_schema::type> copy = copyOf(*object);
    insert(*owner, member, at, std::exchange(object, std::move(copy)));
    return true;
}

} // namespace citygml
