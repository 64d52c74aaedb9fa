#include "apps/viewer/table/ColumnSettings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>

namespace tolvik::viewer {

namespace {

QString keyOf(const QString& type)
{
    return QStringLiteral("table/columns/") + type;
}

} // namespace

std::optional<QVector<PropertyPath>> chosenColumns(const QString& type)
{
    const QByteArray text = QSettings().value(keyOf(type)).toByteArray();
    if (text.isEmpty()) {
        return std::nullopt;
    }
    QVector<PropertyPath> columns;
    const QJsonArray records = QJsonDocument::fromJson(text).array();
    for (const QJsonValue& each : records) {
        const PropertyPath path = pathFromJson(each.toArray());
        // Anybody may write into the settings.
        if (!path.isEmpty() && !columns.contains(path)) {
            columns.append(path);
        }
    }
    return columns;
}

void setChosenColumns(const QString& type, const QVector<PropertyPath>& columns)
{
    QJsonArray paths;
    for (const PropertyPath& path : columns) {
        paths += toJson(path);
    }
    QSettings().setValue(keyOf(type), QJsonDocument(paths).toJson(QJsonDocument::Compact));
}

} // namespace tolvik::viewer
