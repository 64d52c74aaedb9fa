#include "support/PropertyDump.h"

#include "framework/AbstractUnit.h"
#include "support/Symbols.h"
#include "support/VariantText.h"

#include <QHash>
#include <QRegularExpression>
#include <typeinfo>

namespace testsupport {

using tolvik::CoreProperty;

namespace {

/// Of the current moment only the type counts.
QString dumpDefault(const QVariant& value)
{
    const bool isMoment = value.userType() == QMetaType::QDate || value.userType() == QMetaType::QDateTime;
    return isMoment ? QString::fromLatin1(value.typeName()) : typedText(value);
}

QString dumpLine(const QString& label, const QString& type, const QVariant& value, const QString& unit,
                 bool editable, const QVariant& start, const QVariantList& literals)
{
    QString line = label + " = " + typedText(value);
    line += type.isEmpty() ? QString() : " by " + type;
    line += unit.isEmpty() ? QString() : " unit " + unit;
    line += editable ? QString(" editable") : QString();
    line += start.isValid() ? " default " + dumpDefault(start) : QString();
    return line + (literals.isEmpty() ? QString() : " of " + typedText(literals)) + '\n';
}

} // namespace

QString classOf(const CoreProperty& property)
{
    if (typeid(property) == typeid(CoreProperty)) {
        return QString();
    }
    static QHash<const char*, QString> known;
    const char* const symbol = typeid(property).name();
    if (const auto found = known.constFind(symbol); found != known.constEnd()) {
        return *found;
    }
    QString name = demangled(symbol).remove("tolvik::").remove("xsd::cxx::tree::");
    name.replace(" >", ">")
        .remove(", false>")
        .remove(", true>")
        .replace("simple_type<char, xml_schema::type>", "simple_type");
    name.replace(QRegularExpression("\\b(string|uri|date|date_time|duration|gyear)<char, simple_type>"),
                 "\\1");
    // The parameter that was removed had one bracket with it.
    return *known.insert(symbol, name + QString(">").repeated(name.count('<') - name.count('>')));
}

QString dump(const ExpectedNode& node, const QString& indent)
{
    QString text = indent + dumpLine(node.label, node.propertyClass, node.value, node.unit, node.editable,
                                     node.defaultValue, node.literals);
    for (const auto& child : node.children) {
        text += dump(*child, indent + "  ");
    }
    return text;
}

QString dump(CoreProperty& property, const QString& indent)
{
    QString text =
        indent + dumpLine(property.name(), classOf(property), property.value(),
                          property.unit() != nullptr ? property.unit()->name() : QString(),
                          property.editable(), property.defaultValue(), property.potentialValues());
    for (const auto& child : property.properties()) {
        text += dump(*child, indent + "  ");
    }
    return text;
}

QString difference(const QString& actual, const QString& expected)
{
    const QStringList actualLines = actual.split('\n');
    const QStringList expectedLines = expected.split('\n');
    int line = 0;
    while (line < actualLines.size() && line < expectedLines.size() &&
           actualLines.at(line) == expectedLines.at(line)) {
        ++line;
    }
    const int from = qMax(0, line - 3);
    return "\nActual, from line " + QString::number(from) + ":\n" + actualLines.mid(from, 8).join('\n') +
           "\nExpected:\n" + expectedLines.mid(from, 8).join('\n');
}

} // namespace testsupport
