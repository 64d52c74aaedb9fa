#pragma once

#include "platform/binding/Tables.h"
#include "platform/binding/values/Numbers.h"
#include "platform/binding/values/QualifiedNames.h"
#include "platform/binding/values/TimeValues.h"
#include "platform/binding/values/WhiteSpace.h"

#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace citygml {
namespace binding {

/// Whether a class is made of a fundamental value, and of which type.
template <typename T>
struct IsFundamentalBase : std::false_type
{
};
template <typename T, typename C, typename B, xsd::cxx::tree::schema_type::value S>
struct IsFundamentalBase<xsd::cxx::tree::fundamental_base<T, C, B, S>> : std::true_type
{
    using Value = T;
};

/// A new object for the caller to own. What it holds means nothing yet.
template <typename T>
T* newValue()
{
    // Most of these have no public default constructor; the reader sets the value at once.
    if constexpr (std::is_same_v<T, xml_schema::date>) {
        return new T(1, 1, 1);
    } else if constexpr (std::is_same_v<T, xml_schema::date_time>) {
        return new T(1, 1, 1, 0, 0, 0.0);
    } else if constexpr (std::is_same_v<T, xml_schema::time>) {
        return new T(0, 0, 0.0);
    } else if constexpr (std::is_same_v<T, xml_schema::duration>) {
        return new T(false, 0, 0, 0, 0, 0, 0.0);
    } else if constexpr (std::is_same_v<T, xml_schema::gyear>) {
        return new T(1);
    } else if constexpr (std::is_same_v<T, xml_schema::gyear_month>) {
        return new T(1, 1);
    } else if constexpr (std::is_same_v<T, xml_schema::qname>) {
        return new T(xml_schema::ncname("_"));
    } else if constexpr (!std::is_default_constructible_v<T>) {
        return new T(std::string());
    } else {
        return new T();
    }
}

/// Reading and writing of the values that `T` and the classes derived from it hold.
template <typename T>
struct Text
{
    static void parse(xml_schema::type& object, std::string_view text, const NameScope& scope)
    {
        T& value = static_cast<T&>(object);
        if constexpr (IsFundamentalBase<T>::value) {
            using Value = typename IsFundamentalBase<T>::Value;
            static_cast<Value&>(value) = parseNumber<Value>(trimmed(text));
        } else if constexpr (std::is_same_v<T, xml_schema::string>) {
            static_cast<std::string&>(value).assign(text);
        } else if constexpr (std::is_same_v<T, xml_schema::uri>) {
            // White space inside is no part of a URI, but real documents have it; it comes back as it was.
            static_cast<std::string&>(value).assign(trimmed(text));
        } else if constexpr (std::is_base_of_v<std::string, T>) {
            static_cast<std::string&>(value) = collapsed(text);
        } else if constexpr (std::is_same_v<T, xml_schema::simple_type>) {
            value.text_content(std::string(text));
        } else if constexpr (std::is_same_v<T, xml_schema::qname>) {
            parseName(value, trimmed(text), scope);
        } else if constexpr (isTimeValue) {
            parseValue(value, trimmed(text));
        } else if constexpr (std::is_base_of_v<std::vector<double>, T>) {
            parseNumbers(text, value);
        } else {
            using Item = typename T::value_type;
            std::string_view word;
            value.clear();
            while (nextWord(text, word)) {
                if constexpr (std::is_fundamental_v<Item>) {
                    value.push_back(parseNumber<Item>(word));
                } else {
                    const std::unique_ptr<Item> item(newValue<Item>());
                    Text<typename Root<Item>::Type>::parse(*item, word, scope);
                    value.push_back(*item);
                }
            }
        }
    }

    static void format(const xml_schema::type& object, std::string& text, const NameScope& scope)
    {
        const T& value = static_cast<const T&>(object);
        if constexpr (IsFundamentalBase<T>::value) {
            formatNumber(static_cast<const typename IsFundamentalBase<T>::Value&>(value), text);
        } else if constexpr (std::is_base_of_v<std::string, T>) {
            text += static_cast<const std::string&>(value);
        } else if constexpr (std::is_same_v<T, xml_schema::simple_type>) {
            text += value.text_content();
        } else if constexpr (std::is_same_v<T, xml_schema::qname>) {
            formatName(value, text, scope);
        } else if constexpr (isTimeValue) {
            formatValue(value, text);
        } else if constexpr (std::is_base_of_v<std::vector<double>, T>) {
            formatNumbers(value, text);
        } else {
            bool first = true;
            for (const auto& item : value) {
                if (!first) {
                    text += ' ';
                }
                first = false;
                using Item = typename T::value_type;
                if constexpr (std::is_fundamental_v<Item>) {
                    formatNumber(item, text);
                } else {
                    Text<typename Root<Item>::Type>::format(item, text, scope);
                }
            }
        }
    }

private:
    static constexpr bool isTimeValue =
        std::is_same_v<T, xml_schema::date> || std::is_same_v<T, xml_schema::date_time> ||
        std::is_same_v<T, xml_schema::time> || std::is_same_v<T, xml_schema::duration> ||
        std::is_same_v<T, xml_schema::gyear> || std::is_same_v<T, xml_schema::gyear_month>;

    /// The class that holds the text of a list's item.
    template <typename Item>
    struct Root
    {
        template <typename V, typename C, typename B, xsd::cxx::tree::schema_type::value S>
        static xsd::cxx::tree::fundamental_base<V, C, B, S>*
        select(xsd::cxx::tree::fundamental_base<V, C, B, S>*);
        static xml_schema::string* select(xml_schema::string*);
        static Item* select(void*);
        using Type = std::remove_pointer_t<decltype(select(static_cast<Item*>(nullptr)))>;
    };
};

template <typename T>
inline constexpr TextOps textOps = {&Text<T>::parse, &Text<T>::format};

} // namespace binding
} // namespace citygml
