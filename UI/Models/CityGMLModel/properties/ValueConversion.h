#pragma once

#include "UI/Models/CityGMLModel/CityGMLModelExport.h"
#include "xml-schema.hxx"

#include <QList>
#include <QVariant>

namespace tolvik {

// Between the values of schema attributes and variants. The four families exist for the attribute types of
// the schema, required, optional or repeated, and for no others: any other type is an undefined symbol. A
// variant shows what an editor edits, so that some of a value does not come through: a code space, a time
// zone, fractions of a second.

/// What an editor shows of a value. An absent optional gives an invalid variant, or an empty list for the
/// optional lists of integers and of nullable numbers.
template <typename T>
QVariant toQVariant(const T& value);

/// The value that an edited variant stands for. Nothing is rejected: what does not fit becomes zero, false,
/// an empty text or list, or the default state of an enumeration. An optional comes back present, whatever
/// the variant holds, except the optional duration and the optional position, which come back absent.
/// \param value what an editor made of toQVariant(), or any other variant
/// \param uom unit of measure of a measure or list of measures; ignored for other types
/// \throws what the constructor of a schema type throws
template <typename T>
T fromQVariant(const QVariant& value, const xml_schema::uri& uom);

/// What an editor offers where the attribute has no value yet. Invalid where there is nothing to offer.
template <typename T>
QVariant defaultValue();

/// The literals of an enumeration in the order of the schema, as texts. The same for a type and its optional.
/// \return a list that all callers share
template <typename T>
QList<QVariant> getEnumList();

/// Assigns the value that a variant stands for, see fromQVariant().
template <typename T>
void assignQVariant(T& target, const QVariant& value, const xml_schema::uri& uom);

} // namespace tolvik
