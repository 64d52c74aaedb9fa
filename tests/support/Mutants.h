#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <QSet>
#include <QVector>

#include <algorithm>
#include <random>

/// Documents that differ from a sound one in one place: a value, an element or an attribute that is gone, an
/// element that stands elsewhere. They are still well-formed XML with namespaces, and no identifier stands
/// twice.
namespace mutants {

struct Range
{
    int begin;
    int end;

    int size() const { return end - begin; }
};

struct Element
{
    Range whole;
    /// Between its tags; empty at the end of an empty element's tag.
    Range content;
    /// Number of the element around it, or -1.
    int parent;
    /// Whether it is written as one tag.
    bool isEmpty;
    /// Whether it or one around it, other than the root, declares a prefix.
    bool hasDeclarations;
};

struct Attribute
{
    /// With the blank in front.
    Range whole;
    Range value;
    int element;
    bool isIdentifier;
};

/// Where the pieces of a document stand. The document must be well-formed.
class Pieces
{
public:
    explicit Pieces(const QByteArray& document) : xml(document)
    {
        QVector<int> open;
        for (int i = xml.indexOf('<'); i >= 0; i = xml.indexOf('<', i)) {
            if (xml.mid(i, 4) == "<!--") {
                i = xml.indexOf("-->", i) + 3;
            } else if (xml.mid(i, 9) == "<![CDATA[") {
                i = xml.indexOf("]]>", i) + 3;
            } else if (xml.mid(i, 9) == "<!DOCTYPE") {
                i = xml.indexOf("]>", i) + 2;
            } else if (xml[i + 1] == '?') {
                i = xml.indexOf("?>", i) + 2;
            } else if (xml[i + 1] == '/') {
                close(elements[open.takeLast()], i);
                i = xml.indexOf('>', i) + 1;
            } else {
                i = readTag(i, open);
            }
        }
    }

    /// Elements that hold nothing but a text that is not blank.
    QVector<int> leaves() const
    {
        QSet<int> parents;
        for (const Element& element : elements) {
            parents.insert(element.parent);
        }
        QVector<int> result;
        for (int i = 0; i < elements.size(); ++i) {
            const Range& content = elements[i].content;
            if (!parents.contains(i) && !xml.mid(content.begin, content.size()).trimmed().isEmpty()) {
                result.append(i);
            }
        }
        return result;
    }

    const QByteArray xml;
    QVector<Element> elements;
    /// Without declarations of prefixes.
    QVector<Attribute> attributes;

private:
    void close(Element& element, int tag) const
    {
        element.content.end = tag;
        element.whole.end = xml.indexOf('>', tag) + 1;
    }

    int readTag(int begin, QVector<int>& open)
    {
        const int number = elements.size();
        const int parent = open.isEmpty() ? -1 : open.last();
        Element element{{begin, 0}, {0, 0}, parent, false, parent > 0 && elements[parent].hasDeclarations};
        int i = begin;
        while (xml[i] != '>' && xml[i] != '/' && !isSpace(xml[i])) {
            ++i;
        }
        while (xml[i] != '>' && xml[i] != '/') {
            i = readAttribute(i, number, element);
        }
        element.isEmpty = xml[i] == '/';
        const int end = i + (element.isEmpty ? 2 : 1);
        element.content = {end, end};
        element.whole.end = end;
        if (!element.isEmpty) {
            open.append(number);
        }
        elements.append(element);
        return end;
    }

    /// Reads white space and what follows it in a tag.
    /// \return the position behind
    int readAttribute(int i, int element, Element& owner)
    {
        const int begin = i;
        while (isSpace(xml[i])) {
            ++i;
        }
        if (xml[i] == '>' || xml[i] == '/') {
            return i;
        }
        const int name = i;
        const int quote = xml.indexOf('=', i) + 1;
        int open = quote;
        while (isSpace(xml[open])) {
            ++open;
        }
        const int close = xml.indexOf(xml[open], open + 1);
        const QByteArray text = xml.mid(name, quote - 1 - name).trimmed();
        if (text.startsWith("xmlns")) {
            owner.hasDeclarations = owner.hasDeclarations || element != 0;
        } else {
            attributes.append(
                {{begin, close + 1}, {open + 1, close}, element, text.endsWith(":id") || text == "id"});
        }
        return close + 1;
    }

    static bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
};

/// Makes mutants of some documents, the same in every run.
class Maker
{
public:
    explicit Maker(const QByteArrayList& documents)
    {
        for (const QByteArray& document : documents) {
            sources.append(Pieces(document));
        }
    }

    struct Mutant
    {
        QByteArray xml;
        /// Number of the document.
        int source;
        /// What was changed, for messages.
        QByteArray change;
    };

    Mutant next()
    {
        for (;;) {
            const int number = below(sources.size());
            Mutant mutant{QByteArray(), number, QByteArray()};
            const Pieces& source = sources[number];
            switch (below(6)) {
            case 0:
            case 1:
                changeText(source, mutant);
                break;
            case 2:
                changeAttribute(source, mutant);
                break;
            case 3:
                removeElement(source, mutant);
                break;
            case 4:
                removeAttribute(source, mutant);
                break;
            default:
                moveElement(source, mutant);
                break;
            }
            if (!mutant.xml.isEmpty()) {
                return mutant;
            }
        }
    }

private:
    int below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

    static QByteArray replaced(const QByteArray& xml, const Range& range, const QByteArray& by)
    {
        return xml.left(range.begin) + by + xml.mid(range.end);
    }
    static QByteArray textOf(const Pieces& source, const Range& range)
    {
        return source.xml.mid(range.begin, range.size());
    }

    /// Another text in place of one, already escaped.
    QByteArray otherText(const QByteArray& old)
    {
        static const QByteArrayList texts{"",
                                          "a",
                                          "-1",
                                          "1.5",
                                          "true",
                                          "maybe",
                                          "1e400",
                                          "2001-02-30",
                                          "1 2 3",
                                          "NaN 1",
                                          "#none",
                                          "&lt;&amp;",
                                          "  ",
                                          "12:00:00",
                                          "x:y",
                                          "0x10",
                                          "1,5",
                                          "P1Y2M",
                                          "99999999999999999999",
                                          "\xc3\xa4"};
        switch (below(5)) {
        case 0:
            return old + 'a';
        case 1:
            return old.left(old.indexOf('&') < 0 ? old.size() / 2 : 0);
        case 2:
            return otherCase(old);
        default:
            return texts[below(texts.size())];
        }
    }
    static QByteArray otherCase(QByteArray text)
    {
        if (!text.isEmpty() && ((text[0] >= 'a' && text[0] <= 'z') || (text[0] >= 'A' && text[0] <= 'Z'))) {
            text[0] = static_cast<char>(text.at(0) ^ 0x20);
        }
        return text;
    }

    void changeText(const Pieces& source, Mutant& mutant)
    {
        const QVector<int> leaves = source.leaves();
        if (leaves.isEmpty()) {
            return;
        }
        const Range range = source.elements[leaves[below(leaves.size())]].content;
        const QByteArray old = textOf(source, range);
        // A section of character data has no other text that could stand in it.
        if (!old.contains('<')) {
            set(source, range, otherText(old), "text", mutant);
        }
    }

    void changeAttribute(const Pieces& source, Mutant& mutant)
    {
        if (source.attributes.isEmpty()) {
            return;
        }
        const Attribute& attribute = source.attributes[below(source.attributes.size())];
        // Another identifier might stand elsewhere.
        const QByteArray text = attribute.isIdentifier ? textOf(source, attribute.value) + "-other"
                                                       : otherText(textOf(source, attribute.value));
        set(source, attribute.value, text, "attribute", mutant);
    }

    void set(const Pieces& source, const Range& range, const QByteArray& text, const char* what,
             Mutant& mutant)
    {
        const QByteArray old = textOf(source, range);
        if (old == text) {
            return;
        }
        mutant.xml = replaced(source.xml, range, text);
        mutant.change = QByteArray(what) + " '" + old.left(100) + "' became '" + text + "' at byte " +
                        QByteArray::number(range.begin);
    }

    void removeElement(const Pieces& source, Mutant& mutant)
    {
        if (source.elements.size() < 2) {
            return;
        }
        const Range range = source.elements[1 + below(source.elements.size() - 1)].whole;
        mutant.xml = replaced(source.xml, range, QByteArray());
        mutant.change = "removed element " + textOf(source, range).left(100);
    }

    void removeAttribute(const Pieces& source, Mutant& mutant)
    {
        if (source.attributes.isEmpty()) {
            return;
        }
        const Range range = source.attributes[below(source.attributes.size())].whole;
        mutant.xml = replaced(source.xml, range, QByteArray());
        mutant.change = "removed attribute" + textOf(source, range).left(100) + " at byte " +
                        QByteArray::number(range.begin);
    }

    /// Puts an element in front of or into another one.
    void moveElement(const Pieces& source, Mutant& mutant)
    {
        if (source.elements.size() < 3) {
            return;
        }
        const Element& moved = source.elements[1 + below(source.elements.size() - 1)];
        const int target = below(source.elements.size());
        const Element& place = source.elements[target];
        const bool isInside = target == 0 || below(2) == 0;
        const int at = isInside ? place.content.end : place.whole.begin;
        const bool isInItself = at >= moved.whole.begin && at <= moved.whole.end;
        // A prefix that only some elements see may mean another thing elsewhere, or nothing.
        if (isInItself || (isInside && place.isEmpty) || moved.hasDeclarations || place.hasDeclarations) {
            return;
        }
        const QByteArray text = textOf(source, moved.whole);
        const Range gone = moved.whole;
        const QByteArray without = replaced(source.xml, gone, QByteArray());
        mutant.xml = without;
        mutant.xml.insert(at > gone.begin ? at - gone.size() : at, text);
        mutant.change = "moved " + text.left(100) + " from byte " + QByteArray::number(gone.begin) + " to " +
                        QByteArray::number(at);
    }

    QVector<Pieces> sources;
    std::mt19937 random{20261121};
};

} // namespace mutants
