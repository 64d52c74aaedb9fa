#pragma once

#include "platform/binding/Tables.h"
#include "support/TestPaths.h"

#include <QFile>
#include <QString>
#include <QStringList>
#include <QVector>

#include <cstdlib>
#include <cxxabi.h>

/// Help for tests that go over the schema tables.
namespace schematables {

using citygml::binding::Member;
using citygml::binding::TypeRecord;

/// `bldg::RoomType`.
inline QString className(const TypeRecord& record)
{
    char* text = abi::__cxa_demangle(record.info->name(), nullptr, nullptr, nullptr);
    const QString name = QString::fromUtf8(text);
    std::free(text);
    return name;
}

/// The records of the schema's own types, without the built-in ones.
inline QVector<const TypeRecord*> types()
{
    QVector<const TypeRecord*> result;
    for (std::size_t i = 0; i < citygml::binding::allTypesCount; ++i) {
        const TypeRecord* record = citygml::binding::allTypes[i];
        if (record->visit != nullptr) {
            result.append(record);
        }
    }
    return result;
}

inline bool isDerived(const TypeRecord* record, const TypeRecord* base)
{
    while (record != nullptr && record != base) {
        record = record->base;
    }
    return record != nullptr;
}

/// The record, or a type derived from it of which there can be objects; null if there is none.
inline const TypeRecord* concrete(const TypeRecord* record)
{
    if (!record->isAbstract) {
        return record;
    }
    for (const TypeRecord* candidate : types()) {
        if (!candidate->isAbstract && isDerived(candidate, record)) {
            return candidate;
        }
    }
    return nullptr;
}

/// The lines of a table of the test data, without its head, split into fields.
inline QVector<QStringList> table(const QString& name)
{
    QFile file(testpaths::dataFile(name));
    QVector<QStringList> rows;
    if (!file.open(QIODevice::ReadOnly)) {
        return rows;
    }
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (!line.isEmpty()) {
            rows.append(line.split('\t'));
        }
    }
    return rows;
}

} // namespace schematables
