#include "apps/viewer/recovery/FileMark.h"

#include <QCryptographicHash>
#include <QFile>

namespace tolvik::viewer {

FileMark FileMark::of(const QString& path)
{
    FileMark mark;
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (file.open(QIODevice::ReadOnly) && hash.addData(&file)) {
        mark.size = file.size();
        mark.hash = hash.result().toHex();
    }
    return mark;
}

FileMark FileMark::fromJson(const QJsonObject& object)
{
    FileMark mark;
    mark.size = static_cast<qint64>(object.value(QLatin1String("size")).toDouble(-1));
    mark.hash = object.value(QLatin1String("sha256")).toString().toLatin1();
    return mark;
}

QJsonObject FileMark::toJson() const
{
    return {{QStringLiteral("size"), static_cast<double>(size)},
            {QStringLiteral("sha256"), QString::fromLatin1(hash)}};
}

} // namespace tolvik::viewer
