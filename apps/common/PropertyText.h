#pragma once

#include <QString>
#include <stdexcept>

namespace tolvik {
class CoreProperty;
}

namespace tolvik::apps {

/// An edit cannot be done; what() says why, in UTF-8.
struct EditError : std::runtime_error
{
    explicit EditError(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

/// Writes the value that a text stands for into the document: a number, a literal, `true` or `false`, a day
/// or moment in ISO 8601, or a list as a JSON array; a text that is no array is the only entry of a list.
/// \throws EditError for a property that cannot be edited, and where the document would not hold the value
/// then; it may have changed in the latter case
void setFromText(CoreProperty& property, const QString& text);

} // namespace tolvik::apps
