#pragma once

#include <QDir>
#include <QFile>
#include <QMap>
#include <QMultiMap>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>
#include <stdexcept>

/// What the schema files say, read from the files themselves and not from the tables of the binding.
namespace schemafacts {

const QString xsUri = QStringLiteral("http://www.w3.org/2001/XMLSchema");
constexpr int unbounded = 1 << 30;

/// A qualified name.
struct Name
{
    QString uri;
    QString local;

    bool isEmpty() const { return local.isEmpty(); }
    friend bool operator==(const Name& a, const Name& b) { return a.local == b.local && a.uri == b.uri; }
    friend bool operator!=(const Name& a, const Name& b) { return !(a == b); }
    friend bool operator<(const Name& a, const Name& b)
    {
        return a.uri != b.uri ? a.uri < b.uri : a.local < b.local;
    }
};

/// A piece of a content model.
struct Particle
{
    enum Kind { Sequence, Choice, Element, Any };

    Kind kind = Sequence;
    int min = 1;
    int max = 1;
    /// Of an element: its name, its type, and whether others of its substitution group may take its place.
    Name element;
    Name type;
    bool isReference = false;
    QVector<Particle> children;
};

struct Attribute
{
    Name name;
    Name type;
    bool isRequired = false;
    /// Text of a default or fixed attribute.
    QString preset;
};

struct Type
{
    Name name;
    Name base;
    bool isAbstract = false;
    bool isMixed = false;
    /// Whether its content model replaces that of the base, in place of adding to it.
    bool restricts = false;
    bool hasText = false;
    Particle content;
    QVector<Attribute> attributes;
    /// Attributes that the type takes away from its base.
    QVector<Name> prohibited;
    QStringList literals;
    /// Type of the words of a list.
    Name item;
    /// Types of a union, of which a value has one.
    QVector<Name> members;
    /// Number of words or characters that a facet asks for, or 0.
    int length = 0;
};

/// A global element.
struct Element
{
    Name name;
    Name type;
    Name head;
    bool isAbstract = false;
};

/// A kind of values that a text can fail to be one of; `Text` takes every text.
enum class Value { None, Text, Number, Boolean, Date, Literal, List };

class Schemas
{
public:
    /// \param directory of the schema files; throws std::runtime_error for one that cannot be read
    explicit Schemas(const QString& directory)
    {
        const auto files = QDir(directory).entryInfoList({"*.xsd"}, QDir::Files, QDir::Name);
        for (const QFileInfo& file : files) {
            readFile(file.filePath());
        }
        for (const Node& schema : sources) {
            enterDeclarations(schema);
        }
        for (const Element& element : qAsConst(elements)) {
            substitutes.insert(element.head, element.name);
        }
    }

    /// Prefix and namespace of every schema file.
    const QMap<QString, QString>& prefixes() const { return prefixOf; }
    const QMap<Name, Type>& allTypes() const { return types; }
    const QMap<Name, Element>& allElements() const { return elements; }

    const Type* type(const Name& name) const
    {
        const auto found = types.find(name);
        return found != types.end() ? &*found : nullptr;
    }
    const Element& element(const Name& name) const { return elements.find(name).value(); }

    bool isDerived(Name name, const Name& base) const
    {
        while (name != base) {
            const Type* const facts = type(name);
            if (facts == nullptr) {
                return false;
            }
            name = facts->base;
        }
        return true;
    }
    bool isAbstractType(const Name& name) const
    {
        const Type* const facts = type(name);
        return facts != nullptr && facts->isAbstract;
    }

    /// The element and all that may stand in its place, itself first.
    QVector<Name> group(const Name& head) const
    {
        QVector<Name> result{head};
        for (int i = 0; i < result.size(); ++i) {
            auto members = substitutes.values(result[i]).toVector();
            std::sort(members.begin(), members.end());
            result += members;
        }
        return result;
    }

    /// The types whose content models make that of the type, the one in front first.
    QVector<const Type*> contentChain(const Name& name) const
    {
        QVector<const Type*> chain;
        for (const Type* facts = type(name); facts != nullptr; facts = type(facts->base)) {
            chain.prepend(facts);
            if (facts->restricts) {
                break;
            }
        }
        return chain;
    }

    /// The attributes of a type and its bases.
    QVector<Attribute> attributesOf(const Name& name) const
    {
        const Type* const facts = type(name);
        if (facts == nullptr) {
            return {};
        }
        QVector<Attribute> result;
        for (const Attribute& attribute : attributesOf(facts->base)) {
            const auto isSame = [&](const Attribute& own) { return own.name == attribute.name; };
            if (!facts->prohibited.contains(attribute.name) &&
                std::none_of(facts->attributes.begin(), facts->attributes.end(), isSame)) {
                result.append(attribute);
            }
        }
        return result + facts->attributes;
    }

    Value valueOf(const Name& name) const
    {
        if (name.uri == xsUri) {
            return valueOfBuiltin(name.local);
        }
        const Type* const facts = type(name);
        if (facts == nullptr || !facts->hasText) {
            return Value::None;
        }
        if (!facts->members.isEmpty()) {
            return Value::Text;
        }
        if (!facts->literals.isEmpty()) {
            return Value::Literal;
        }
        if (!facts->item.isEmpty()) {
            return valueOf(facts->item) != Value::Text ? Value::List : Value::Text;
        }
        return valueOf(facts->base);
    }

    /// A text that is a value of the type.
    QString sample(const Name& name, int length = 0) const
    {
        if (name.uri == xsUri) {
            return sampleOfBuiltin(name.local, length);
        }
        const Type* const facts = type(name);
        if (facts == nullptr || !facts->hasText) {
            return QString();
        }
        if (!facts->members.isEmpty()) {
            return sample(facts->members.first());
        }
        if (!facts->literals.isEmpty()) {
            return facts->literals.first();
        }
        length = std::max(length, facts->length);
        if (!facts->item.isEmpty()) {
            QStringList words;
            for (int i = 0; i < (length != 0 ? length : 2); ++i) {
                words << sample(facts->item);
            }
            return words.join(' ');
        }
        return sample(facts->base, length);
    }

private:
    /// An element of a schema file.
    struct Node
    {
        QString tag;
        QMap<QString, QString> attributes;
        /// The qualified names among the attributes.
        QMap<QString, Name> names;
        QString target;
        QVector<Node> children;

        bool has(const char* key) const { return attributes.contains(key); }
        QString get(const char* key) const { return attributes.value(key); }
    };

    void readFile(const QString& path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            throw std::runtime_error("cannot read " + path.toStdString());
        }
        QXmlStreamReader reader(&file);
        reader.readNextStartElement();
        QMap<QString, QString> declared{{"xml", "http://www.w3.org/XML/1998/namespace"}};
        for (const auto& declaration : reader.namespaceDeclarations()) {
            declared[declaration.prefix().toString()] = declaration.namespaceUri().toString();
        }
        const QString target = reader.attributes().value("targetNamespace").toString();
        prefixOf[QFileInfo(path).completeBaseName()] = target;
        sources.append(readNode(reader, declared, target));
    }

    static Node readNode(QXmlStreamReader& reader, const QMap<QString, QString>& declared,
                         const QString& target)
    {
        Node node;
        node.tag = reader.name().toString();
        node.target = target;
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            node.attributes[attribute.name().toString()] = attribute.value().toString();
        }
        for (const char* key : {"type", "ref", "base", "itemType", "substitutionGroup"}) {
            if (node.has(key)) {
                node.names[key] = resolved(node.get(key), declared);
            }
        }
        for (const QString& member : node.get("memberTypes").split(' ', Qt::SkipEmptyParts)) {
            node.names["member" + QString::number(node.names.size())] = resolved(member, declared);
        }
        while (reader.readNextStartElement()) {
            node.children.append(readNode(reader, declared, target));
        }
        return node;
    }

    static Name resolved(const QString& text, const QMap<QString, QString>& declared)
    {
        const int colon = text.indexOf(':');
        return {declared.value(text.left(std::max(colon, 0))), text.mid(colon + 1)};
    }

    void enterDeclarations(const Node& schema)
    {
        const auto global = [&](const char* tag, QMap<Name, const Node*>& store) {
            for (const Node& node : schema.children) {
                if (node.tag == tag) {
                    store[{schema.target, node.get("name")}] = &node;
                }
            }
        };
        // References go to other files too, so that all of them are entered before any is followed.
        if (groups.isEmpty() && attributeGroups.isEmpty()) {
            for (const Node& each : sources) {
                for (const Node& node : each.children) {
                    const Name name{each.target, node.get("name")};
                    if (node.tag == "group") {
                        groups[name] = &node;
                    } else if (node.tag == "attributeGroup") {
                        attributeGroups[name] = &node;
                    } else if (node.tag == "attribute") {
                        globalAttributes[name] = &node;
                    } else if (node.tag == "element") {
                        elements[name] = {name, node.names.value("type", {xsUri, "anyType"}),
                                          node.names.value("substitutionGroup"),
                                          node.get("abstract") == "true"};
                    }
                }
            }
        }
        QMap<Name, const Node*> complexTypes, simpleTypes;
        global("complexType", complexTypes);
        global("simpleType", simpleTypes);
        for (auto node = complexTypes.begin(); node != complexTypes.end(); ++node) {
            types[node.key()] = complexType(node.key(), **node);
        }
        for (auto node = simpleTypes.begin(); node != simpleTypes.end(); ++node) {
            types[node.key()] = simpleType(node.key(), **node);
        }
    }

    Type complexType(const Name& name, const Node& node) const
    {
        Type result;
        result.name = name;
        result.isAbstract = node.get("abstract") == "true";
        result.isMixed = node.get("mixed") == "true";
        const Node* content = &node;
        for (const Node& child : node.children) {
            if (child.tag != "complexContent" && child.tag != "simpleContent") {
                continue;
            }
            content = &child.children.first();
            result.base = content->names["base"];
            result.hasText = child.tag == "simpleContent";
            result.restricts = !result.hasText && content->tag == "restriction";
            result.isMixed = result.isMixed || child.get("mixed") == "true";
        }
        for (const Node& child : content->children) {
            if (isParticle(child)) {
                result.content.children.append(particle(child));
            } else if (child.tag == "length") {
                result.length = child.get("value").toInt();
            } else {
                addAttributes(child, result);
            }
        }
        return result;
    }

    static Type simpleType(const Name& name, const Node& node)
    {
        Type result;
        result.name = name;
        result.hasText = true;
        const Node& content = node.children.first();
        result.base = content.names.value("base");
        result.item = content.names.value("itemType");
        if (content.tag == "union") {
            std::copy(content.names.begin(), content.names.end(), std::back_inserter(result.members));
        }
        for (const Node& facet : content.children) {
            if (facet.tag == "enumeration") {
                result.literals << facet.get("value");
            } else if (facet.tag == "length" || facet.tag == "minLength") {
                result.length = facet.get("value").toInt();
            }
        }
        return result;
    }

    static bool isParticle(const Node& node)
    {
        return QStringList{"sequence", "choice", "all", "group", "element", "any"}.contains(node.tag);
    }

    Particle particle(const Node& node) const
    {
        Particle result;
        result.min = node.has("minOccurs") ? node.get("minOccurs").toInt() : 1;
        const QString most = node.get("maxOccurs");
        result.max = most.isEmpty() ? 1 : most == "unbounded" ? unbounded : most.toInt();
        if (node.tag == "element") {
            result.kind = Particle::Element;
            result.isReference = node.has("ref");
            result.element = result.isReference ? node.names["ref"] : Name{node.target, node.get("name")};
            result.type = result.isReference ? elements[result.element].type
                                             : node.names.value("type", {xsUri, "anyType"});
            return result;
        }
        if (node.tag == "any") {
            result.kind = Particle::Any;
            return result;
        }
        const Node& content = node.has("ref") ? groups[node.names["ref"]]->children.first() : node;
        result.kind = content.tag == "choice" ? Particle::Choice : Particle::Sequence;
        for (const Node& child : content.children) {
            result.children.append(particle(child));
        }
        return result;
    }

    void addAttributes(const Node& node, Type& type) const
    {
        if (node.tag == "attributeGroup") {
            for (const Node& child : attributeGroups[node.names["ref"]]->children) {
                addAttributes(child, type);
            }
        }
        if (node.tag != "attribute") {
            return;
        }
        Attribute attribute;
        const Node& declaration = node.has("ref") ? *globalAttributes[node.names["ref"]] : node;
        attribute.name = node.has("ref") ? node.names["ref"]
                                         : Name{node.get("form") == "qualified" ? node.target : QString(),
                                                node.get("name")};
        attribute.type = declaration.names.value("type", {xsUri, "anySimpleType"});
        attribute.isRequired = node.get("use") == "required";
        for (const char* key : {"fixed", "default"}) {
            attribute.preset += node.has(key) ? node.get(key) : declaration.get(key);
        }
        if (node.get("use") == "prohibited") {
            type.prohibited.append(attribute.name);
        } else {
            type.attributes.append(attribute);
        }
    }

    static Value valueOfBuiltin(const QString& name)
    {
        if (name == "anyType") {
            return Value::None;
        }
        if (name == "boolean") {
            return Value::Boolean;
        }
        if (QStringList{"date", "dateTime", "time", "duration", "gYear", "gYearMonth"}.contains(name)) {
            return Value::Date;
        }
        if (name == "double" || name == "float" || name == "decimal" || name == "int" ||
            name.endsWith("nteger")) {
            return Value::Number;
        }
        return Value::Text;
    }

    static QString sampleOfBuiltin(const QString& name, int length)
    {
        static const QMap<QString, QString> samples{
            {"boolean", "true"},       {"date", "2001-02-03"}, {"dateTime", "2001-02-03T04:05:06"},
            {"time", "04:05:06"},      {"duration", "P1D"},    {"gYear", "2001"},
            {"gYearMonth", "2001-02"}, {"anyURI", "urn:a"},    {"QName", "gml:name"},
            {"language", "en"},        {"anyType", QString()}};
        if (valueOfBuiltin(name) == Value::Number) {
            return QStringLiteral("1");
        }
        return samples.value(name, QString(std::max(length, 1), 'a'));
    }

    QVector<Node> sources;
    QMap<Name, const Node*> groups, attributeGroups, globalAttributes;
    QMap<QString, QString> prefixOf;
    QMap<Name, Type> types;
    QMap<Name, Element> elements;
    QMultiMap<Name, Name> substitutes;
};

} // namespace schemafacts
