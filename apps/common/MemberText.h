#pragma once

#include "citygml/Member.h"

#include <QVariant>

namespace tolvik {
class CoreProperty;
}

namespace tolvik::apps {

/// The value of a property as people edit it: of a duration its text, as the property makes a calendar date
/// of it, and of everything else what the property answers.
QVariant editedValueOf(CoreProperty& property);

/// What an editor of a property starts from: its value, a link as the document spells it, or where there is
/// no value what the property offers.
QVariant offeredValueOf(CoreProperty& property);

/// Gives a member the value that an editor made, and leaves what stands with the former one: code space,
/// unit, time zone and comments. A property that gets the value would leave nothing of these.
///
/// \param member of one value, or a list of texts
/// \param former what editedValueOf() answers now
/// \return false where the member does not take the value so. It may have changed then.
bool setKept(citygml::Member& member, const QVariant& former, const QVariant& value);

} // namespace tolvik::apps
