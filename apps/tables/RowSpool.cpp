#include "apps/tables/RowSpool.h"

#include "apps/tables/TableError.h"

#include <QDir>

namespace tolvik::tables {

RowSpool::RowSpool() : storage(QDir::tempPath() + QStringLiteral("/tolvik-rows.XXXXXX"))
{
    if (!storage.open()) {
        throw TableError(QStringLiteral("no temporary file could be made: %1").arg(storage.errorString()));
    }
    stream.setDevice(&storage);
    stream.setVersion(QDataStream::Qt_5_15);
}

void RowSpool::add(const QString& file, const FeatureRow& row)
{
    const bool isOther = count == 0 || file != lastFile;
    stream << isOther;
    if (isOther) {
        stream << file;
        lastFile = file;
    }
    stream << row;
    ++count;
    if (stream.status() != QDataStream::Ok) {
        throw TableError(
            QStringLiteral("%1 could not be written: %2").arg(storage.fileName(), storage.errorString()));
    }
}

void RowSpool::replay(const std::function<void(const QString& file, const FeatureRow& row)>& receive)
{
    if (!storage.flush() || !storage.seek(0)) {
        throw TableError(
            QStringLiteral("%1 could not be written: %2").arg(storage.fileName(), storage.errorString()));
    }
    QString file;
    for (; count > 0; --count) {
        bool isOther = false;
        stream >> isOther;
        if (isOther) {
            stream >> file;
        }
        FeatureRow row;
        stream >> row;
        receive(file, row);
    }
}

} // namespace tolvik::tables
