#include "UI/Models/CityGMLModel/properties/XmlCharacters.h"

namespace tolvik {

namespace {

/// Of a character that is no half of a pair of surrogates, which stands for one that XML has.
bool isInXml(ushort character)
{
    return character == '\t' || character == '\n' || character == '\r' ||
           (character >= 0x20 && character <= 0xD7FF) || (character >= 0xE000 && character <= 0xFFFD);
}

} // namespace

std::optional<ushort> firstCharacterNotInXml(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (!isPair && !isInXml(text.at(i).unicode())) {
            return text.at(i).unicode();
        }
        i += isPair ? 1 : 0;
    }
    return std::nullopt;
}

} // namespace tolvik
