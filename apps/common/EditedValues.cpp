#include "apps/common/EditedValues.h"

#include <algorithm>
#include <QStringList>
#include <QUrl>

namespace tolvik::apps {

std::optional<char16_t> characterOutsideXml(const QVariant& value)
{
    const QString text = value.toStringList().join(' ');
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const bool isPair =
            character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const bool isControl = character < ' ' && !QStringLiteral("\t\n\r").contains(character);
        if (isPair) {
            ++i;
        } else if (isControl || character.isSurrogate() || character.unicode() >= 0xFFFE) {
            return static_cast<char16_t>(character.unicode());
        }
    }
    return std::nullopt;
}

bool areWords(const QVariantList& entries)
{
    return std::all_of(entries.begin(), entries.end(), [](const QVariant& entry) {
        const QString text = entry.toString();
        return !text.isEmpty() && std::none_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    });
}

bool isSame(const QVariant& now, const QVariant& asked)
{
    if (now.userType() == QMetaType::QVariantList) {
        const QVariantList list = now.toList();
        const QVariantList askedList = asked.toList();
        return list.size() == askedList.size() &&
               std::equal(list.begin(), list.end(), askedList.begin(), isSame);
    }
    if (now.userType() == QMetaType::QUrl) {
        return now.toUrl() == QUrl(asked.toString(), QUrl::TolerantMode);
    }
    if (now.userType() == QMetaType::Double) {
        bool isNumber = false;
        return now.toDouble() == asked.toDouble(&isNumber) && isNumber;
    }
    return now.isValid() && now.toString() == asked.toString();
}

} // namespace tolvik::apps
