#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace testsupport {

/// An XML document as a tree that knows nothing of schemas, and the differences between two of them.
struct XmlNode
{
    enum Kind { Element, Text, Comment, Instruction };

    Kind kind = Element;
    /// `{namespace}name` of an element, target of an instruction.
    QString name;
    QString text;
    QMap<QString, QString> attributes;
    QVector<XmlNode> children;

    static XmlNode parse(const QByteArray& xml, QString* error = nullptr);

    /// Every difference as a line; numbers are compared by value, white space around values does not count.
    static QStringList differences(const XmlNode& a, const XmlNode& b, const QString& path = QString());

    /// Local name of an element.
    QString localName() const { return name.mid(name.indexOf('}') + 1); }
    QString namespaceUri() const { return name.mid(1, name.indexOf('}') - 1); }

private:
    QString label() const;

    void addText(const XmlNode& node);

    // Indentation is no content: white space beside elements goes unless there is other text beside them.
    void finish();

    static bool isSchemaLocation(const QString& attribute) { return attribute.endsWith("}schemaLocation"); }

    static bool isSameValue(const QString& a, const QString& b);
};

} // namespace testsupport
