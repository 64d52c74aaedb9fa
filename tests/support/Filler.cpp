#include "support/Filler.h"

#include <QHash>
#include <QPair>

namespace testsupport {

std::unique_ptr<xml_schema::type> Filler::make(const TypeRecord* record, int depth)
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

int Filler::depthInside(const TypeRecord* type, int depth) const
{
    if (!isFeature(type)) {
        return depth + 1;
    }
    return entersFeatures ? depth + 3 : maximalDepth;
}

void Filler::fillMember(xml_schema::type& owner, const Member& member, int depth)
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
            Filler filler(everything && depth < maximalDepth, entersFeatures);
            filler.counter = counter;
            member.ops->add(owner, filler.make(type, depthInside(type, depth)).release());
            counter = filler.counter;
        }
    }
}

QVector<const TypeRecord*> Filler::typesOf(const Member& member) const
{
    static QHash<const Member*, QVector<const TypeRecord*>> known;
    auto found = known.find(&member);
    if (found == known.end()) {
        found = known.insert(&member, possibleTypesOf(member));
    }
    if (member.ops->single && found->size() > 1) {
        return {found->at(counter % found->size())};
    }
    return *found;
}

QVector<const TypeRecord*> Filler::possibleTypesOf(const Member& member)
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

QVector<const TypeRecord*> Filler::elementTypes(const Member& member)
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

bool Filler::worthEntering(const TypeRecord* type, int depth) const
{
    if (depth >= maximalDepth) {
        return false;
    }
    return reachesWanted(type, 3);
}

bool Filler::reachesWanted(const TypeRecord* type, int hops)
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

void Filler::fillText(xml_schema::type& object, const TypeRecord* record)
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
        record->text->parse(object, sample, NoNames());
    });
    if (!isFilled) {
        qFatal("no value for %s", qPrintable(className(record)));
    }
}

void Filler::fillNumber(xml_schema::type& owner, const Member& member)
{
    ++counter;
    const QString number = QString::number(counter);
    const QStringList samples = {number + ".5", number, counter % 2 == 0 ? "true" : "false"};
    static QHash<const void*, int> fitting;
    const bool isFilled = takeFirst(samples, fitting[&member],
                                    [&](const std::string& sample) { member.ops->addText(owner, sample); });
    if (!isFilled) {
        qFatal("no value for %s", member.name);
    }
}

QStringList& Filler::wantedTypes()
{
    static QStringList types;
    return types;
}

} // namespace testsupport
