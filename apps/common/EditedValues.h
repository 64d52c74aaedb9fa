#pragma once

#include <optional>
#include <QString>
#include <QVariant>

namespace tolvik::apps {

// What a program looks at before and after it gives an entered value to a property, since a property takes
// whatever it is given: see CoreProperty::setValue().

/// The first character of a value, or of the entries of a list, that no XML document can hold.
std::optional<char16_t> characterOutsideXml(const QVariant& value);

/// Whether each entry of a list can stand in one text that holds them all, with blanks between them.
bool areWords(const QVariantList& entries);

/// Whether a property has taken a value as it was entered.
/// \param now what the property answers
/// \param asked what it was given
bool isSame(const QVariant& now, const QVariant& asked);

} // namespace tolvik::apps
