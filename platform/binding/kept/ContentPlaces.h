#pragma once

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/kept/RawElement.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// The way from an object that stays to one inside it, which an edit may replace: a member and a number of
/// its objects for each step.
class ObjectPath
{
public:
    explicit ObjectPath(xml_schema::type& start) : start(&start) {}
    /// Leads on to an object in the one that this leads to.
    void enter(KeptContent::MemberIndex member, std::size_t number) { steps.emplace_back(member, number); }
    /// Goes a step back.
    void leave() { steps.pop_back(); }

    /// What stands there; null where there is nothing any more.
    xml_schema::type* find() const;
    /// What is kept with it; null where that is nothing.
    KeptContent* findKept() const;

private:
    xml_schema::type* start;
    std::vector<std::pair<KeptContent::MemberIndex, std::size_t>> steps;
};

/// Where a text stands that OtherContent shows. It is found anew each time, by its position in what is kept
/// with an object, since an edit of something else may have moved it.
class ContentPlace
{
public:
    virtual ~ContentPlace() = default;
    /// Empty where there is none any more.
    virtual std::string text() const = 0;
    /// \param text that XML can hold
    /// \return false where there is no such place any more.
    virtual bool setText(const std::string& text) = 0;
};

/// The value of an attribute that was kept with an object, or with one of its values.
class AttributePlace : public ContentPlace
{
public:
    using Find = std::function<KeptContent::Attribute*(KeptContent&)>;

    AttributePlace(ObjectPath object, Find find) : object(std::move(object)), find(std::move(find)) {}
    std::string text() const override;
    bool setText(const std::string& text) override;

private:
    ObjectPath object;
    Find find;
};

/// A text between the children of an object.
class TextPlace : public ContentPlace
{
public:
    /// \param node its index among KeptContent::nodes()
    TextPlace(ObjectPath object, std::size_t node) : object(std::move(object)), node(node) {}
    std::string text() const override;
    bool setText(const std::string& text) override;

private:
    KeptContent::Node* find() const;

    ObjectPath object;
    std::size_t node;
};

/// The text of an object, an attribute or a value that is no value of its type.
class WrongTextPlace : public ContentPlace
{
public:
    /// \param member empty for the object's own text
    /// \param number among what is kept about the member's values
    WrongTextPlace(ObjectPath object, std::optional<KeptContent::MemberIndex> member, std::size_t number)
        : object(std::move(object)), member(member), number(number)
    {
    }
    /// Whether a save would write the text, since no value has been set in its place.
    bool isThere() const { return find() != nullptr; }
    std::string text() const override;
    bool setText(const std::string& text) override;

private:
    KeptContent::Value* find() const;
    std::string written(const xml_schema::type& owner, const KeptContent::Value& value) const;

    ObjectPath object;
    std::optional<KeptContent::MemberIndex> member;
    std::size_t number;
};

/// The text of an enumeration, where it is none of the literals.
class LiteralPlace : public ContentPlace
{
public:
    explicit LiteralPlace(ObjectPath object) : object(std::move(object)) {}
    /// Whether the text is there and is no literal.
    bool isThere() const;
    std::string text() const override;
    bool setText(const std::string& text) override;

private:
    xml_schema::type* find() const;

    ObjectPath object;
};

/// An element that was kept as markup, with an object or with one of its values. It is taken apart once for
/// all places in it.
class RawNode
{
public:
    using Find = std::function<KeptContent::Node*(KeptContent&)>;

    RawNode(ObjectPath object, Find find) : object(std::move(object)), findNode(std::move(find)) {}
    /// The element as it stands; null where there is none any more.
    RawElement* find();
    /// Writes the element back, after a change of it.
    void save();

private:
    KeptContent::Node* node() const;

    ObjectPath object;
    Find findNode;
    std::unique_ptr<RawElement> element;
    // The markup that the element was taken from.
    std::string source;
};

/// A text or an attribute in an element that was kept as markup.
class RawPlace : public ContentPlace
{
public:
    /// Indices of the items that lead to an element.
    using Path = std::vector<std::size_t>;
    enum class Kind { Text, Attribute };

    /// \param index that of RawElement::texts or RawElement::attributes
    RawPlace(std::shared_ptr<RawNode> node, Path path, Kind kind, std::size_t index)
        : node(std::move(node)), path(std::move(path)), kind(kind), index(index)
    {
    }
    std::string text() const override;
    bool setText(const std::string& text) override;

private:
    std::string* find() const;

    std::shared_ptr<RawNode> node;
    Path path;
    Kind kind;
    std::size_t index;
};

} // namespace binding
} // namespace citygml
