#pragma once

#include <QtGlobal>

namespace tolvik {

/// The column with the names of features, in the list and in the tree.
constexpr int nameColumn = 0;
/// The column with their types.
constexpr int typeColumn = 1;
/// The columns that the list and the tree have.
constexpr int featureColumnCount = 2;

/// The header text of a column, for the translation of the model that shows it.
inline const char* featureColumnTitle(int column)
{
    switch (column) {
    case nameColumn:
        return QT_TR_NOOP("Name");
    case typeColumn:
        return QT_TR_NOOP("Type");
    default:
        return QT_TR_NOOP("unknown");
    }
}

} // namespace tolvik
