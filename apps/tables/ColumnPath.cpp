#include "apps/tables/ColumnPath.h"

#include <QStringList>

namespace tolvik::tables {

namespace {

const QLatin1String genericPrefix("gen:");
const QLatin1String unitSuffix("/@uom");

QString escaped(const QString& label)
{
    QString text;
    text.reserve(label.size());
    for (const QChar c : label) {
        if (c == '/' || c == '[' || c == '\\') {
            text += '\\';
        }
        text += c;
    }
    return text;
}

QString stepText(const ColumnPath::Step& step)
{
    const QString label = escaped(step.label);
    return step.occurrence == 1 ? label : QStringLiteral("%1[%2]").arg(label).arg(step.occurrence);
}

/// Takes the next step off the front of a text.
ColumnPath::Step takeStep(QStringView& text)
{
    ColumnPath::Step step;
    qsizetype i = 0;
    for (; i < text.size() && text[i] != '/'; ++i) {
        const qsizetype close = text[i] == '[' ? text.indexOf(QChar(']'), i) : -1;
        bool isNumber = false;
        const int number = close > 0 ? text.mid(i + 1, close - i - 1).toString().toInt(&isNumber) : 0;
        if (isNumber && number > 0 && (close + 1 == text.size() || text[close + 1] == '/')) {
            step.occurrence = number;
            i = close;
            continue;
        }
        i += text[i] == '\\' && i + 1 < text.size() ? 1 : 0;
        step.label += text[i];
    }
    text = text.mid(qMin(i + 1, text.size()));
    return step;
}

} // namespace

ColumnPath ColumnPath::parse(const QString& text)
{
    ColumnPath path;
    QStringView rest(text);
    if (rest.endsWith(unitSuffix)) {
        path.isUnit = true;
        rest.chop(unitSuffix.size());
    }
    if (rest.startsWith(genericPrefix)) {
        path.isGeneric = true;
        rest = rest.mid(genericPrefix.size());
    }
    while (!rest.isEmpty()) {
        path.steps += takeStep(rest);
    }
    return path;
}

QString ColumnPath::text() const
{
    QStringList parts;
    for (const Step& step : steps) {
        parts += stepText(step);
    }
    QString text = parts.join('/');
    if (isGeneric) {
        text.prepend(genericPrefix);
    } else if (text.startsWith(genericPrefix)) {
        text.prepend('\\');
    }
    return isUnit ? text + unitSuffix : text;
}

} // namespace tolvik::tables
