#pragma once

#include <QString>
#include <QStringList>

namespace tolvik::viewer::recentFiles {

/// The documents that were opened last, the newest first, as the settings of the program hold them for all
/// its windows.
QStringList list();

/// Puts a file in front.
void add(const QString& path);

void clear();

} // namespace tolvik::viewer::recentFiles
