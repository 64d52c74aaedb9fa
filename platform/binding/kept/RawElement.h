#pragma once

#include "platform/binding/kept/KeptContent.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

/// An element that was kept as markup, taken apart.
struct RawElement
{
    struct Attribute
    {
        /// As it is written.
        std::string name;
        std::string uri;
        std::string value;
        /// Whether it declares a namespace.
        bool isDeclaration;
    };

    /// What stands between texts.
    struct Item
    {
        /// Null for a comment and an instruction.
        std::unique_ptr<RawElement> element;
        /// That of a comment or an instruction.
        std::string markup;
    };

    /// As it is written.
    std::string name;
    std::string uri;
    /// Namespace declarations among them.
    std::vector<Attribute> attributes;
    std::vector<Item> items;
    /// The text in front of each item, and that behind the last one.
    std::vector<std::string> texts{1};

    /// \param xml a whole element
    /// \param scope what prefixes mean around it; may be null
    static std::unique_ptr<RawElement> parse(const std::string& xml, const KeptContent::Scope* scope);
    /// Appends the markup of the whole element. Texts and values are escaped.
    void write(std::string& xml) const;
};

/// The text that markup without any element stands for.
std::string unescaped(std::string_view xml);

} // namespace binding
} // namespace citygml
