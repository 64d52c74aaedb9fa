#pragma once

#include "platform/binding/Tables.h"

#include <QString>
#include <QStringList>
#include <QVector>
#include <string>

// Schema objects through the tables of the binding: by name, without a line of code for each class.

namespace testsupport {

using citygml::binding::allElements;
using citygml::binding::allElementsCount;
using citygml::binding::allTypes;
using citygml::binding::allTypesCount;
using citygml::binding::ElementRecord;
using citygml::binding::Member;
using citygml::binding::recordOf;
using citygml::binding::TypeRecord;
using citygml::binding::ValueError;

/// For values without qualified names.
class NoNames : public citygml::binding::NameScope
{
public:
    std::string namespaceOf(std::string_view) const override { return std::string(); }
    std::string prefixOf(const std::string&) const override { return std::string(); }
};

/// Name of a class as it stands in C++, such as `bldg::RoomType`.
const QString& className(const TypeRecord* record);

/// The record of the class with that name, or null.
const TypeRecord* recordByClass(const QString& name);

/// The records of the schemas' own types, without the built-in ones.
QVector<const TypeRecord*> schemaTypes();

/// Whether it is that type or derived from it.
bool isDerived(const TypeRecord* record, const TypeRecord* base);

/// The record, or a type derived from it of which there can be objects; null if there is none.
const TypeRecord* concrete(const TypeRecord* record);

bool isFeature(const TypeRecord* record);

/// A member of the class or of its bases.
const Member* findMember(const TypeRecord* record, const QString& name);

/// The member behind an accessor: `class_` and `name1` are named so since the plain name is taken.
const Member* findAccessor(const TypeRecord* record, QString getter);

QString textOf(const xml_schema::type& object);

/// Texts of a member's values.
QStringList textsOf(const xml_schema::type& owner, const Member* member);

xml_schema::type& objectAt(const xml_schema::type& owner, const Member* member, std::size_t index);

/// The object inside a property element, or null.
xml_schema::type* heldObject(const xml_schema::type& element);

} // namespace testsupport
