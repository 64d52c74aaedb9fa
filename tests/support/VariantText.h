#pragma once

#include <QString>
#include <QVariant>

namespace testsupport {

/// A variant as text, a list in brackets.
QString plainText(const QVariant& value);

/// A variant with its type, so that a number and its text differ; "invalid" for one without a value.
QString typedText(const QVariant& value);

} // namespace testsupport
