#include "support/XmlTree.h"

#include <QXmlStreamReader>

namespace testsupport {

XmlNode XmlNode::parse(const QByteArray& xml, QString* error)
{
    QXmlStreamReader reader(xml);
    XmlNode document;
    QVector<XmlNode*> open{&document};
    while (!reader.atEnd()) {
        reader.readNext();
        XmlNode node;
        switch (reader.tokenType()) {
        case QXmlStreamReader::StartElement:
            node.name = '{' + reader.namespaceUri().toString() + '}' + reader.name();
            for (const QXmlStreamAttribute& a : reader.attributes()) {
                node.attributes['{' + a.namespaceUri().toString() + '}' + a.name()] = a.value().toString();
            }
            open.last()->children.append(node);
            open.append(&open.last()->children.last());
            break;
        case QXmlStreamReader::EndElement:
            open.last()->finish();
            open.removeLast();
            break;
        case QXmlStreamReader::Characters:
            node.kind = Text;
            node.text = reader.text().toString();
            open.last()->addText(node);
            break;
        case QXmlStreamReader::Comment:
            node.kind = Comment;
            node.text = reader.text().toString();
            open.last()->children.append(node);
            break;
        case QXmlStreamReader::ProcessingInstruction:
            node.kind = Instruction;
            node.name = reader.processingInstructionTarget().toString();
            node.text = reader.processingInstructionData().toString();
            open.last()->children.append(node);
            break;
        default:
            break;
        }
    }
    if (error != nullptr) {
        *error = reader.errorString();
    }
    return document;
}

QStringList XmlNode::differences(const XmlNode& a, const XmlNode& b, const QString& path)
{
    if (a.kind != b.kind || a.name != b.name) {
        return {QString("%1: %2 became %3").arg(path, a.label(), b.label())};
    }
    const QString here = path + '/' + a.label();
    QStringList result;
    if (!isSameValue(a.text, b.text)) {
        result << QString("%1: '%2' became '%3'").arg(here, a.text, b.text);
    }
    for (auto i = a.attributes.begin(); i != a.attributes.end(); ++i) {
        if (!b.attributes.contains(i.key())) {
            result << QString("%1: lost the attribute %2").arg(here, i.key());
        } else if (!isSchemaLocation(i.key()) && !isSameValue(i.value(), b.attributes[i.key()])) {
            result << QString("%1: %2 '%3' became '%4'").arg(here, i.key(), i.value(), b.attributes[i.key()]);
        }
    }
    for (auto i = b.attributes.begin(); i != b.attributes.end(); ++i) {
        if (!a.attributes.contains(i.key())) {
            result << QString("%1: gained the attribute %2").arg(here, i.key());
        }
    }
    if (a.children.size() != b.children.size()) {
        result
            << QString("%1: %2 children became %3").arg(here).arg(a.children.size()).arg(b.children.size());
    }
    for (int i = 0; i < qMin(a.children.size(), b.children.size()); ++i) {
        result << differences(a.children[i], b.children[i], here);
    }
    return result;
}

QString XmlNode::label() const
{
    return kind == Element ? localName() : QStringList{"", "text", "comment", "instruction"}[kind];
}

void XmlNode::addText(const XmlNode& node)
{
    if (!children.isEmpty() && children.last().kind == Text) {
        children.last().text += node.text;
    } else {
        children.append(node);
    }
}

void XmlNode::finish()
{
    bool hasText = false, hasElements = false;
    for (const XmlNode& child : children) {
        hasText = hasText || (child.kind == Text && !child.text.trimmed().isEmpty());
        hasElements = hasElements || child.kind != Text;
    }
    if (hasText && hasElements) {
        return;
    }
    QVector<XmlNode> kept;
    for (const XmlNode& child : children) {
        if (child.kind != Text || hasText) {
            kept.append(child);
        }
    }
    children = kept;
}

bool XmlNode::isSameValue(const QString& a, const QString& b)
{
    if (a == b) {
        return true;
    }
    const QStringList wordsOfA = a.simplified().split(' '), wordsOfB = b.simplified().split(' ');
    if (wordsOfA.size() != wordsOfB.size()) {
        return false;
    }
    for (int i = 0; i < wordsOfA.size(); ++i) {
        bool isNumberA = false, isNumberB = false;
        const double x = wordsOfA[i].toDouble(&isNumberA), y = wordsOfB[i].toDouble(&isNumberB);
        if (wordsOfA[i] != wordsOfB[i] && !(isNumberA && isNumberB && x == y)) {
            return false;
        }
    }
    return true;
}

} // namespace testsupport
