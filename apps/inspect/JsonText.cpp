#include "JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QString>

namespace tolvik::inspect {

std::string jsonText(const QString& text)
{
    // Qt writes arrays and objects only.
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return std::string(array.constData() + 1, static_cast<std::size_t>(array.size()) - 2);
}

} // namespace tolvik::inspect
