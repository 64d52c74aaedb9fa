#pragma once

#include <QString>
#include <stdexcept>

namespace tolvik::tables {

/// A table cannot be written or read; what() says why, in UTF-8.
struct TableError : std::runtime_error
{
    explicit TableError(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

} // namespace tolvik::tables
