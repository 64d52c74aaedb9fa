#pragma once

#include <QString>
#include <QStringList>

namespace tolvik::inspect {

/// Where several documents go: each into a folder, under its own name.
/// \param ending in place of the documents' own, with the dot; empty to keep that
/// \throws std::invalid_argument where two of them have one name, and for standard input, which has none
QStringList outputsIn(const QString& folder, const QStringList& files, const QString& ending = QString());

} // namespace tolvik::inspect
