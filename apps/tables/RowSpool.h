#pragma once

#include "apps/tables/FeatureRow.h"

#include <functional>
#include <QDataStream>
#include <QString>
#include <QTemporaryFile>

namespace tolvik::tables {

/// Keeps rows on disk until it is known which columns their tables have, so that memory does not grow with
/// their number.
class RowSpool
{
public:
    /// \throws TableError if there is no room for temporary files
    RowSpool();

    /// Keeps a row of a document behind the others.
    /// \throws TableError if the disk is full
    void add(const QString& file, const FeatureRow& row);

    /// Hands out all rows in the order in which they came. To be called once.
    void replay(const std::function<void(const QString& file, const FeatureRow& row)>& receive);

private:
    QTemporaryFile storage;
    QDataStream stream;
    QString lastFile;
    qint64 count = 0;
};

} // namespace tolvik::tables
