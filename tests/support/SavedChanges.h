#pragma once

#include "citygml/DocumentChanges.h"
#include "core/CityModelType.hxx"

#include <QByteArray>
#include <sstream>

namespace testsupport {

/// What a save of changes writes; null where it cannot.
inline QByteArray saved(const QByteArray& original, const core::CityModelType& document)
{
    std::istringstream stream(original.toStdString());
    std::ostringstream target;
    const bool isWritten = citygml::writeChanges(stream, document, target);
    return isWritten ? QByteArray::fromStdString(target.str()) : QByteArray();
}

/// The first place at which two texts part, for messages.
inline QByteArray parting(const QByteArray& actual, const QByteArray& expected)
{
    int at = 0;
    while (at < actual.size() && at < expected.size() && actual[at] == expected[at]) {
        ++at;
    }
    const int from = qMax(0, at - 200);
    return "\nactual:   ..." + actual.mid(from, 600) + "\nexpected: ..." + expected.mid(from, 600);
}

} // namespace testsupport
