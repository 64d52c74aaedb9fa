#pragma once

#include "framework/CoreProperty.h"
#include "support/ExpectedProperties.h"
#include "support/VariantText.h"

#include <QString>

namespace testsupport {

/// Name of the property's class as the tables spell types; a plain one has none.
QString classOf(const tolvik::CoreProperty& property);

/// A property tree that the tables ask for, as text with all that a host sees of it.
QString dump(const ExpectedNode& node, const QString& indent = QString());

/// The same for a property tree that is there.
QString dump(tolvik::CoreProperty& property, const QString& indent = QString());

/// The lines where two trees part, with what is around them.
QString difference(const QString& actual, const QString& expected);

} // namespace testsupport
