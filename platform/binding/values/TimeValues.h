#pragma once

#include "xml-schema.hxx"

#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// Dates, times and durations, from a text without white space at its ends; each throws ValueError.
///
/// A zone that the text does not give is absent from the value.
void parseValue(xml_schema::date& value, std::string_view text);
void parseValue(xml_schema::date_time& value, std::string_view text);
void parseValue(xml_schema::time& value, std::string_view text);
void parseValue(xml_schema::duration& value, std::string_view text);
void parseValue(xml_schema::gyear& value, std::string_view text);
void parseValue(xml_schema::gyear_month& value, std::string_view text);

/// Append the text of a value; a zone without offset is written as `Z`.
void formatValue(const xml_schema::date& value, std::string& text);
void formatValue(const xml_schema::date_time& value, std::string& text);
void formatValue(const xml_schema::time& value, std::string& text);
void formatValue(const xml_schema::duration& value, std::string& text);
void formatValue(const xml_schema::gyear& value, std::string& text);
void formatValue(const xml_schema::gyear_month& value, std::string& text);

} // namespace binding
} // namespace citygml
