#pragma once

#include "platform/binding/Tables.h"

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>
#include <string>

/// Schema objects through the tables of the binding: by name, without a line of code for each class.
namespace schemaobjects {

using citygml::binding::allElements;
using citygml::binding::allElementsCount;
using citygml::binding::allTypes;
using citygml::binding::allTypesCount;
using citygml::binding::ElementRecord;
using citygml::binding::Member;
using citygml::binding::recordOf;
using citygml::binding::TypeRecord;
using citygml::binding::ValueError;

/// Qualified names in values are of no concern here.
class NoScope : public citygml::binding::NameScope
{
public:
    std::string namespaceOf(std::string_view) const override { return std::string(); }
    std::string prefixOf(const std::string&) const override { return std::string(); }
};

/// Name of a class as it stands in C++, such as `bldg::RoomType`.
inline const QString& className(const TypeRecord* record)
{
    static QHash<const TypeRecord*, QString> names;
    QString& name = names[record];
    if (name.isEmpty()) {
        int status = 0;
        const std::unique_ptr<char, void (*)(void*)> text(
            abi::__cxa_demangle(record->info->name(), nullptr, nullptr, &status), &std::free);
        name = QString::fromLatin1(text.get());
    }
    return name;
}

inline const TypeRecord* recordByClass(const QString& name)
{
    static const QHash<QString, const TypeRecord*> records = [] {
        QHash<QString, const TypeRecord*> result;
        for (std::size_t i = 0; i < allTypesCount; ++i) {
            result.insert(className(allTypes[i]), allTypes[i]);
        }
        return result;
    }();
    return records.value(name);
}

inline bool isDerived(const TypeRecord* record, const TypeRecord* base)
{
    for (; record != nullptr; record = record->base) {
        if (record == base) {
            return true;
        }
    }
    return false;
}

inline bool isFeature(const TypeRecord* record)
{
    return isDerived(record, recordByClass("gml::AbstractFeatureType"));
}

/// A member of the class or of its bases.
inline const Member* findMember(const TypeRecord* record, const QString& name)
{
    for (; record != nullptr; record = record->base) {
        for (std::size_t i = 0; i < record->memberCount; ++i) {
            if (name == QLatin1String(record->members[i].name)) {
                return &record->members[i];
            }
        }
    }
    return nullptr;
}

/// The member behind an accessor: `class_` and `name1` are named so since the plain name is taken.
inline const Member* findAccessor(const TypeRecord* record, QString getter)
{
    if (const Member* const member = findMember(record, getter)) {
        return member;
    }
    getter.chop(1);
    return findMember(record, getter);
}

inline QString textOf(const xml_schema::type& object)
{
    std::string text;
    recordOf(object)->text->format(object, text, NoScope());
    return QString::fromStdString(text);
}

/// Texts of a member's values.
inline QStringList textsOf(const xml_schema::type& owner, const Member* member)
{
    QStringList texts;
    for (std::size_t i = 0; i < member->ops->count(owner); ++i) {
        if (member->type == nullptr) {
            std::string text;
            member->ops->format(owner, i, text);
            texts += QString::fromStdString(text);
        } else {
            const xml_schema::type& value = member->ops->at(owner, i);
            texts += recordOf(value)->text != nullptr ? textOf(value) : QString();
        }
    }
    return texts;
}

inline xml_schema::type& objectAt(const xml_schema::type& owner, const Member* member, std::size_t index)
{
    return const_cast<xml_schema::type&>(member->ops->at(owner, index));
}

/// The object inside a property element, or null.
inline xml_schema::type* heldObject(const xml_schema::type& element)
{
    for (const TypeRecord* record = recordOf(element); record != nullptr; record = record->base) {
        for (std::size_t i = 0; i < record->memberCount; ++i) {
            const Member& member = record->members[i];
            if (!member.isAttribute && member.type != nullptr && member.ops->count(element) > 0) {
                return &objectAt(element, &member, 0);
            }
        }
    }
    return nullptr;
}

/// Makes objects with everything that their types allow, or with nothing but what they require. Each value is
/// another one, as far as the type has so many.
class Filler
{
public:
    explicit Filler(bool everything) : everything(everything) {}

    std::unique_ptr<xml_schema::type> make(const TypeRecord* record) { return make(record, 0); }

private:
    std::unique_ptr<xml_schema::type> make(const TypeRecord* record, int depth)
    {
        std::unique_ptr<xml_schema::type> object(record->create());
        if (record->text != nullptr) {
            fillText(*object, record);
        }
        for (const TypeRecord* level = record; level != nullptr; level = level->base) {
            for (std::size_t i = 0; i < level->memberCount; ++i) {
                fillMember(*object, level->members[i], depth);
            }
        }
        return object;
    }

    void fillMember(xml_schema::type& owner, const Member& member, int depth)
    {
        const bool required = member.isRequired && member.ops->single;
        if (member.defaultText != nullptr || (!required && !everything)) {
            return;
        }
        if (member.type == nullptr) {
            const int times = member.ops->single ? 1 : 2;
            for (int i = 0; i < times; ++i) {
                fillNumber(owner, member);
            }
            return;
        }
        for (const TypeRecord* type : typesOf(member)) {
            if (required || type->text != nullptr || worthEntering(type, depth)) {
                Filler filler(everything && depth < maximalDepth);
                filler.counter = counter;
                member.ops->add(owner, filler.make(type, depth + (isFeature(type) ? 3 : 1)).release());
                counter = filler.counter;
            }
        }
    }

    /// The classes of which a member gets an object each.
    QVector<const TypeRecord*> typesOf(const Member& member) const
    {
        static QHash<const Member*, QVector<const TypeRecord*>> known;
        auto found = known.constFind(&member);
        if (found == known.constEnd()) {
            found = known.insert(&member, possibleTypesOf(member));
        }
        if (member.ops->single && found->size() > 1) {
            return {found->at(counter % found->size())};
        }
        return *found;
    }

    static QVector<const TypeRecord*> possibleTypesOf(const Member& member)
    {
        QVector<const TypeRecord*> types;
        if (member.type == recordByClass("xml_schema::type")) {
            types = elementTypes(member);
        } else if (member.type->isAbstract) {
            for (std::size_t i = 0; i < allTypesCount; ++i) {
                if (!allTypes[i]->isAbstract && isDerived(allTypes[i], member.type)) {
                    types += allTypes[i];
                }
            }
        } else {
            types = {member.type};
            if (!member.ops->single) {
                types += member.type;
            }
        }
        return types;
    }

    /// Types of the elements that can stand in the place of an abstract one.
    static QVector<const TypeRecord*> elementTypes(const Member& member)
    {
        QVector<const TypeRecord*> types;
        for (std::size_t i = 0; i < allElementsCount; ++i) {
            const ElementRecord& element = allElements[i];
            for (const ElementRecord* head = element.head; head != nullptr; head = head->head) {
                if (!element.isAbstract && element.type != nullptr &&
                    QLatin1String(head->name) == QLatin1String(member.name) &&
                    QLatin1String(head->uri) == QLatin1String(member.uri)) {
                    types += element.type;
                }
            }
        }
        return types;
    }

    /// Geometry and what lies deep inside has no part in the property trees.
    bool worthEntering(const TypeRecord* type, int depth) const
    {
        if (depth >= maximalDepth) {
            return false;
        }
        return reachesWanted(type, 3);
    }

    static bool reachesWanted(const TypeRecord* type, int hops)
    {
        static QHash<QPair<const TypeRecord*, int>, bool> known;
        const auto key = qMakePair(type, hops);
        const auto found = known.constFind(key);
        if (found != known.constEnd()) {
            return *found;
        }
        bool reaches = false;
        for (const TypeRecord* level = type; level != nullptr; level = level->base) {
            reaches = reaches || wantedTypes().contains(className(level));
            for (std::size_t i = 0; i < level->memberCount && hops > 0 && !reaches; ++i) {
                const TypeRecord* const next = level->members[i].type;
                reaches = next != nullptr && next->text == nullptr && reachesWanted(next, hops - 1);
            }
        }
        if (type->isAbstract && !isFeature(type) &&
            !isDerived(type, recordByClass("gml::AbstractGeometryType"))) {
            for (std::size_t i = 0; i < allTypesCount && !reaches; ++i) {
                reaches = isDerived(allTypes[i], type) && wantedTypes().contains(className(allTypes[i]));
            }
        }
        known.insert(key, reaches);
        return reaches;
    }

    void fillText(xml_schema::type& object, const TypeRecord* record)
    {
        ++counter;
        QStringList samples;
        if (record->literalCount > 0) {
            samples += QString::fromUtf8(record->literals[counter % record->literalCount]);
        }
        const QString number = QString::number(counter);
        const QString two = QString::number(10 + counter % 18);
        samples += QStringList{"text é" + number,
                               number + ".5 " + number + ".75",
                               number + ".5",
                               number + ' ' + two,
                               number,
                               counter % 2 == 0 ? "true" : "false",
                               "20" + two + "-05-" + two,
                               "20" + two + "-05-" + two + "T10:20:30",
                               "19" + two,
                               "P1Y2M3DT4H5M6S",
                               "10:20:30"};
        static QHash<const void*, int> fitting;
        const bool isFilled = takeFirst(samples, fitting[record], [&](const std::string& sample) {
            record->text->parse(object, sample, NoScope());
        });
        if (!isFilled) {
            qFatal("no value for %s", qPrintable(className(record)));
        }
    }

    void fillNumber(xml_schema::type& owner, const Member& member)
    {
        ++counter;
        const QString number = QString::number(counter);
        const QStringList samples = {number + ".5", number, counter % 2 == 0 ? "true" : "false"};
        static QHash<const void*, int> fitting;
        const bool isFilled = takeFirst(samples, fitting[&member], [&](const std::string& sample) {
            member.ops->addText(owner, sample);
        });
        if (!isFilled) {
            qFatal("no value for %s", member.name);
        }
    }

    /// Takes the first of the samples that is a value.
    /// \param start where to begin; then the position of that one
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
    static QStringList& wantedTypes()
    {
        static QStringList types;
        return types;
    }

private:
    static constexpr int maximalDepth = 6;

    bool everything;
    int counter = 0;
};

} // namespace schemaobjects
