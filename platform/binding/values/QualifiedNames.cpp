#include "platform/binding/values/QualifiedNames.h"

#include "platform/binding/values/ValueError.h"
#include "platform/binding/xml/PrefixedName.h"

namespace citygml {
namespace binding {

void parseName(xml_schema::qname& value, std::string_view text, const NameScope& scope)
{
    const PrefixedName name(text);
    if (name.local.empty()) {
        rejectValue(text, "a qualified name");
    }
    value = xml_schema::qname(xml_schema::uri(scope.namespaceOf(name.prefix)),
                              xml_schema::ncname(std::string(name.local)));
}

void formatName(const xml_schema::qname& value, std::string& text, const NameScope& scope)
{
    const std::string prefix = value.qualified() ? scope.prefixOf(value.namespace_()) : std::string();
    text += prefixedName(prefix, value.name());
}

} // namespace binding
} // namespace citygml
