#include "support/SchemaObjects.h"

#include "support/Symbols.h"

#include <algorithm>
#include <iterator>
#include <QHash>

namespace testsupport {

const QString& className(const TypeRecord* record)
{
    static QHash<const TypeRecord*, QString> names;
    QString& name = names[record];
    if (name.isEmpty()) {
        name = demangled(record->info->name());
    }
    return name;
}

QVector<const TypeRecord*> schemaTypes()
{
    QVector<const TypeRecord*> types;
    std::copy_if(allTypes, allTypes + allTypesCount, std::back_inserter(types),
                 [](const TypeRecord* record) { return record->visit != nullptr; });
    return types;
}

const TypeRecord* recordByClass(const QString& name)
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

bool isDerived(const TypeRecord* record, const TypeRecord* base)
{
    for (; record != nullptr; record = record->base) {
        if (record == base) {
            return true;
        }
    }
    return false;
}

const TypeRecord* concrete(const TypeRecord* record)
{
    if (!record->isAbstract) {
        return record;
    }
    for (const TypeRecord* const candidate : schemaTypes()) {
        if (!candidate->isAbstract && isDerived(candidate, record)) {
            return candidate;
        }
    }
    return nullptr;
}

bool isFeature(const TypeRecord* record)
{
    return isDerived(record, recordByClass("gml::AbstractFeatureType"));
}

const Member* findMember(const TypeRecord* record, const QString& name)
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

const Member* findAccessor(const TypeRecord* record, QString getter)
{
    if (const Member* const member = findMember(record, getter)) {
        return member;
    }
    getter.chop(1);
    return findMember(record, getter);
}

QString textOf(const xml_schema::type& object)
{
    std::string text;
    recordOf(object)->text->format(object, text, NoNames());
    return QString::fromStdString(text);
}

QStringList textsOf(const xml_schema::type& owner, const Member* member)
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

xml_schema::type& objectAt(const xml_schema::type& owner, const Member* member, std::size_t index)
{
    return const_cast<xml_schema::type&>(member->ops->at(owner, index));
}

xml_schema::type* heldObject(const xml_schema::type& element)
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

} // namespace testsupport
