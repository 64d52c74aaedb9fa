#pragma once

class QString;

namespace tolvik {
class CoreProperty;
}

namespace tolvik::apps {

/// The property that a path of labels leads to, with `/` between them, such as "Fields/MeasuredHeight"; `[2]`
/// behind a label takes the second of equal ones. A label may hold a slash or brackets itself.
/// \param root whose children the first label names
/// \return null where there is none
CoreProperty* propertyAt(const CoreProperty& root, const QString& path);

} // namespace tolvik::apps
