#include "TextLine.h"

#include <QString>

namespace tolvik::inspect {

QString textLine(const QString& text)
{
    QString line = text;
    line.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    line.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    line.replace(QLatin1Char('\r'), QStringLiteral("\\r"));
    line.replace(QLatin1Char('\t'), QStringLiteral("\\t"));
    return line;
}

} // namespace tolvik::inspect
