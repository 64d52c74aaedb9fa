#include "support/Variants.h"

#include <QRegularExpression>
#include <QString>
#include <QTextCodec>

#include <functional>

namespace testsupport {

namespace {

/// Changes the texts between tags, or else the tags themselves; comments and the prologue stay as they are.
QByteArray mapped(const QByteArray& xml, const std::function<QByteArray(const QByteArray&)>& text,
                  const std::function<QByteArray(const QByteArray&)>& tag)
{
    QByteArray result;
    for (int at = 0; at < xml.size();) {
        if (xml[at] != '<') {
            const int end = xml.indexOf('<', at);
            const QByteArray piece = xml.mid(at, end < 0 ? -1 : end - at);
            result += text(piece);
            at += piece.size();
            continue;
        }
        const bool isComment = xml.mid(at, 4) == "<!--";
        const int end = isComment ? xml.indexOf("-->", at) + 3 : xml.indexOf('>', at) + 1;
        const QByteArray piece = xml.mid(at, end - at);
        result += piece[1] == '?' || piece[1] == '!' ? piece : tag(piece);
        at = end;
    }
    return result;
}

QByteArray same(const QByteArray& piece)
{
    return piece;
}

bool isBlank(const QByteArray& text)
{
    return text.trimmed().isEmpty();
}

QByteArray withReferences(const QByteArray& text)
{
    QByteArray result;
    for (const char c : text) {
        if (c >= '0' && c <= '9') {
            result += "&#x" + QByteArray::number(c, 16) + ';';
        } else if (c == 'e') {
            result += "&#101;";
        } else {
            result += c;
        }
    }
    return result;
}

QByteArray withPrefixes(const QByteArray& xml)
{
    QString text = QString::fromUtf8(xml);
    const QRegularExpression declaration("xmlns:(\\w+)=");
    auto found = declaration.globalMatch(text);
    QStringList prefixes;
    while (found.hasNext()) {
        prefixes += found.next().captured(1);
    }
    prefixes.removeDuplicates();
    for (const QString& prefix : prefixes) {
        text.replace(QRegularExpression("(<|</|\\s|xmlns:|=[\"'])" + prefix + "(:(?!//)|=)"),
                     "\\1q" + prefix + "\\2");
    }
    return text.toUtf8();
}

/// Every child of the root declares what the root did.
QByteArray withDeclarationsMovedDown(const QByteArray& xml)
{
    QString text = QString::fromUtf8(xml);
    const int root = text.indexOf(QRegularExpression("<(\\w+:)?CityModel"));
    const int end = text.indexOf('>', root);
    QString tag = text.mid(root, end - root);
    QString moved;
    const QRegularExpression declaration("\\s+xmlns:(?!core|xsi|gml)\\w+=(\"[^\"]*\"|'[^']*')");
    for (auto found = declaration.match(tag); found.hasMatch(); found = declaration.match(tag)) {
        moved += found.captured(0).simplified().prepend(' ');
        tag.remove(found.capturedStart(0), found.capturedLength(0));
    }
    QString rest = text.mid(end);
    rest.replace(QRegularExpression("<(core:)?(cityObjectMember|featureMember)(?=[ >])"), "<\\1\\2" + moved);
    rest.replace(
        QRegularExpression("<(gml:featureMember|app:appearanceMember|core:appearanceMember)(?=[ >])"),
        "<\\1" + moved);
    return (text.left(root) + tag + rest).toUtf8();
}

QByteArray withoutLines(const QByteArray& xml)
{
    return mapped(
        xml, [](const QByteArray& text) { return isBlank(text) ? QByteArray() : text; },
        [](const QByteArray& tag) { return tag.simplified(); });
}

QByteArray encodedBy(const QTextCodec& codec, const QString& text)
{
    QTextCodec::ConverterState withoutMark(QTextCodec::IgnoreHeader);
    return codec.fromUnicode(text.constData(), text.size(), &withoutMark);
}

QByteArray inEncoding(const QByteArray& xml, const char* codec, const char* name)
{
    QString text = QString::fromUtf8(xml);
    text.remove(QRegularExpression("^\\s*<\\?xml[^>]*\\?>"));
    // What the encoding does not have.
    QString known;
    QTextCodec* const encoder = QTextCodec::codecForName(codec);
    for (const QChar c : text) {
        known += encoder->canEncode(c) ? QString(c) : QString("?");
    }
    known.prepend(QString("<?xml version=\"1.0\" encoding=\"%1\"?>").arg(name));
    return encodedBy(*encoder, known);
}

/// The codec of a document that is not in UTF-8; null for one that is.
QTextCodec* codecOf(const QByteArray& xml)
{
    if (xml.startsWith("\xFF\xFE")) {
        return QTextCodec::codecForName("UTF-16LE");
    }
    if (xml.startsWith("\xFE\xFF")) {
        return QTextCodec::codecForName("UTF-16BE");
    }
    // Behind the byte order mark of UTF-8, too.
    const QRegularExpression declaration("^\\W*<\\?xml[^>]*encoding=[\"']([^\"']*)");
    const QString name = declaration.match(QString::fromLatin1(xml.left(200))).captured(1).toUpper();
    return name.isEmpty() || name == "UTF-8" ? nullptr : QTextCodec::codecForName(name.toLatin1());
}

} // namespace

QByteArray Variant::text() const
{
    const QTextCodec* const codec = codecOf(xml);
    // The byte order mark stays.
    QTextCodec::ConverterState asItIs(QTextCodec::IgnoreHeader);
    return codec != nullptr ? codec->toUnicode(xml.constData(), xml.size(), &asItIs).toUtf8() : xml;
}

QByteArray Variant::encoded(const QByteArray& text) const
{
    const QTextCodec* const codec = codecOf(xml);
    if (codec == nullptr) {
        return text;
    }
    // A byte order mark is no part of a string.
    QString known = text.startsWith("\xEF\xBB\xBF") ? QString(QChar::ByteOrderMark) : QString();
    for (const uint character : QString::fromUtf8(text).toUcs4()) {
        const QString whole = QString::fromUcs4(&character, 1);
        known += codec->canEncode(whole) ? whole : QStringLiteral("&#%1;").arg(character);
    }
    return encodedBy(*codec, known);
}

QVector<Variant> variantsOf(const QByteArray& document)
{
    QByteArray lines = document;
    lines.replace("\r\n", "\n");
    QVector<Variant> variants{{"itself", document}};
    variants.append({"CRLF", QByteArray(lines).replace("\n", "\r\n")});
    variants.append(
        {"tabs", mapped(
                     lines,
                     [](const QByteArray& text) {
                         return isBlank(text) ? QByteArray(text).replace("  ", "\t") : text;
                     },
                     [](const QByteArray& tag) {
                         return QByteArray(tag).replace(" gml:id", "\t gml:id").replace("/>", " />");
                     })});
    variants.append({"single quotes", mapped(lines, &same, [](const QByteArray& tag) {
                         return tag.contains('\'') ? tag : QByteArray(tag).replace('"', '\'');
                     })});
    variants.append({"CDATA", mapped(
                                  lines,
                                  [](const QByteArray& text) {
                                      const bool fits = !isBlank(text) && !text.contains('&');
                                      return fits ? "<![CDATA[" + text + "]]>" : text;
                                  },
                                  &same)});
    variants.append({"references", mapped(lines, &withReferences, &same)});
    variants.append(
        {"comments in values",
         mapped(
             lines, [](const QByteArray& text) { return isBlank(text) ? text : text + "<!--in--><?in it?>"; },
             &same)});
    variants.append({"other prefixes", withPrefixes(lines)});
    variants.append({"declarations moved down", withDeclarationsMovedDown(lines)});
    variants.append({"one line", withoutLines(lines)});
    variants.append({"byte order mark", "\xEF\xBB\xBF" + lines});
    variants.append(
        {"document type",
         mapped(lines, &same, &same).replace("?>\n", "?>\n<!DOCTYPE CityModel [<!ENTITY e \"1\">]>\n")});
    variants.append({"UTF-16, little", QByteArray("\xFF\xFE") + inEncoding(lines, "UTF-16LE", "UTF-16")});
    variants.append({"UTF-16, big", QByteArray("\xFE\xFF") + inEncoding(lines, "UTF-16BE", "UTF-16")});
    variants.append({"ISO-8859-1", inEncoding(lines, "ISO-8859-1", "ISO-8859-1")});
    return variants;
}

} // namespace testsupport
