#include "citygml/References.h"

#include "gml/AbstractFeatureType.hxx"
#include "platform/binding/SchemaIndex.h"

namespace citygml {

namespace binding {

namespace {

constexpr const char* xlinkUri = "http://www.w3.org/1999/xlink";

/// Collects what refers to something else, from a feature down.
class ReferenceWalk
{
public:
    explicit ReferenceWalk(std::vector<Reference>& found) : found(found) {}

    /// \param member name of the element of the object; null for the feature itself
    void enter(const xml_schema::type& object, const std::string* member)
    {
        for (const TypeIndex::FlatMember& each : index.typeOf(object).members()) {
            const std::size_t count = each.type != nullptr ? each.declaration->ops->count(object) : 0;
            const QualifiedName& name = index.name(each.name);
            if (each.declaration->isAttribute) {
                if (count != 0 && member != nullptr && name.name == "href" && name.uri == xlinkUri) {
                    const xml_schema::type& href = each.declaration->ops->at(object, 0);
                    found.push_back({member, dynamic_cast<const std::string&>(href)});
                }
                continue;
            }
            for (std::size_t i = 0; i < count; ++i) {
                const xml_schema::type& child = each.declaration->ops->at(object, i);
                if (dynamic_cast<const gml::AbstractFeatureType*>(&child) == nullptr) {
                    enter(child, &name.name);
                }
            }
        }
    }

private:
    const SchemaIndex& index = SchemaIndex::instance();
    std::vector<Reference>& found;
};

} // namespace

} // namespace binding

std::vector<Reference> referencesOf(const gml::AbstractFeatureType& feature)
{
    std::vector<Reference> found;
    binding::ReferenceWalk(found).enter(feature, nullptr);
    return found;
}

} // namespace citygml
