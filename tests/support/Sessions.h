#pragma once

#include <QByteArray>
#include <QString>

/// For tests of long sessions at random in the documents of the project.
namespace testsupport {

/// Adds columns `path` and `seed` to the data of a test function, and rows for each example.
/// \param quick number of sessions with each example
/// \param extended the same in long runs
void addSessionRows(int quick, int extended);

/// What stands around the first place where two texts differ, one text behind the other.
QString differenceOf(const QByteArray& now, const QByteArray& wanted);

} // namespace testsupport
