#pragma once

#include "support/SchemaObjects.h"

#include <memory>

namespace testsupport {

/// Makes objects with everything that their types allow, or with nothing but what they require. Each value is
/// another one, as far as the type has so many.
class Filler
{
public:
    /// \param entersFeatures whether features inside others have more than what they require, too
    explicit Filler(bool everything, bool entersFeatures = true)
        : everything(everything), entersFeatures(entersFeatures)
    {
    }

    std::unique_ptr<xml_schema::type> make(const TypeRecord* record) { return make(record, 0); }

private:
    std::unique_ptr<xml_schema::type> make(const TypeRecord* record, int depth);

    /// The depth of what stands in a member.
    int depthInside(const TypeRecord* type, int depth) const;

    void fillMember(xml_schema::type& owner, const Member& member, int depth);

    /// The classes of which a member gets an object each.
    QVector<const TypeRecord*> typesOf(const Member& member) const;

    static QVector<const TypeRecord*> possibleTypesOf(const Member& member);

    /// Types of the elements that can stand in the place of an abstract one.
    static QVector<const TypeRecord*> elementTypes(const Member& member);

    /// Geometry and what lies deep inside has no part in the property trees.
    bool worthEntering(const TypeRecord* type, int depth) const;

    static bool reachesWanted(const TypeRecord* type, int hops);

    void fillText(xml_schema::type& object, const TypeRecord* record);

    void fillNumber(xml_schema::type& owner, const Member& member);

    /// Takes the first of the samples that is a value.
    /// \param start where to begin; then the index of that one
    template <class Take>
    static bool takeFirst(const QStringList& samples, int& start, Take take)
    {
        for (int i = start; i < samples.size(); ++i) {
            try {
                take(samples.at(i).toStdString());
                start = i;
                return true;
            } catch (const ValueError&) {
                continue;
            }
        }
        return false;
    }

public:
    /// Names of the classes that objects are filled with, besides texts and what is required. Set before the
    /// first object is made.
    static QStringList& wantedTypes();

private:
    static constexpr int maximalDepth = 6;

    bool everything;
    bool entersFeatures;
    int counter = 0;
};

} // namespace testsupport
