#pragma once

#include "support/SchemaInstances.h"

#include <functional>

/// Documents with exactly one fault each, made from the schema files for every kind of place and of fault.
namespace faults {

using namespace schemafacts;

enum class Kind {
    WrongValue,
    Missing,
    AbstractElement,
    UnfitType,
    UnknownPrefix,
    OutOfOrder,
    OneTooMany,
    UnknownElement,
    UndeclaredAttribute
};

/// What can be wrong at a place, and where it is.
struct Place
{
    Name type;
    bool isAttribute;
    /// Of the element or attribute.
    Name member;
    /// `optional`, `repeated` or `required`.
    QString cardinality;
    /// `core`, `module` or `extension`: where the type that declares the member is from.
    QString area;
    /// `first`, `middle` or `last` child, `only` one, or empty for an attribute.
    QString position;
    Value value;
    /// Whether an abstract element is declared for it.
    bool hasAbstract = false;
};

struct Document
{
    Kind kind;
    Place place;
    QByteArray faultless;
    QByteArray faulty;
    /// Where the fault is, columns in bytes; both from 1.
    int line;
    int column;
    /// Names of the elements from the root to that with the fault.
    QString path;
    /// Identifier of the innermost feature that the fault lies in.
    QString feature;
    /// Identifiers of objects that no reader can make: those in an element that has no class.
    QStringList lost;
    /// Whether a reader that takes only what the schema allows refuses it. It lets pass what it has no place
    /// for.
    bool isRefused;

    /// The member that an edit gives a value: the way to its object from the root, member and number in it,
    /// then the name of the member. The value is that of the faultless document.
    QVector<QPair<Name, int>> owner;

    /// In one line, for messages.
    QString label() const;
};

inline QString textOf(Kind kind)
{
    static const QStringList texts{"wrong value",    "missing",         "abstract element",
                                   "unfit xsi:type", "unknown prefix",  "out of order",
                                   "one too many",   "unknown element", "undeclared attribute"};
    return texts[static_cast<int>(kind)];
}
inline QString textOf(Value value)
{
    static const QStringList texts{"object", "text", "number", "boolean", "date", "literal", "list"};
    return texts[static_cast<int>(value)];
}

inline QString Document::label() const
{
    const QString what = kind == Kind::WrongValue ? "wrong " + textOf(place.value) : textOf(kind);
    return QString("%1, %2 %3 %4 %5 of %6 (%7)")
        .arg(what, place.cardinality, place.position,
             place.isAttribute ? QStringLiteral("attribute") : QStringLiteral("element"), place.member.local,
             place.type.local, place.area);
}

class Generator
{
public:
    /// \param directory of the schema files
    explicit Generator(const QString& directory) : schemas(directory), instances(schemas) {}

    /// Calls \a use with each document.
    /// \param perPlace how many documents for each kind of place and of value
    /// \param everyNamespace whether places of different namespaces are of different kinds
    void generate(int perPlace, bool everyNamespace, const std::function<void(const Document&)>& use) const
    {
        Selection selection{perPlace, everyNamespace, use, {}};
        for (const Name& type : instances.reachableTypes()) {
            for (const Leaf& leaf : instances.leaves(type)) {
                generateElement(type, leaf, selection);
            }
            for (const Attribute& attribute : schemas.attributesOf(type)) {
                generateAttribute(type, attribute, selection);
            }
        }
    }

    /// Calls \a use with a document for each required element and each required attribute, that lacks it.
    void generateMissing(const std::function<void(const Document&)>& use) const
    {
        QSet<QString> met;
        const auto isNew = [&met](const Name& type, const Name& member) {
            const QString key = QStringList{type.uri, type.local, member.uri, member.local}.join(' ');
            const bool isKnown = met.contains(key);
            met.insert(key);
            return !isKnown;
        };
        for (const Name& type : instances.reachableTypes()) {
            for (const Leaf& leaf : instances.leaves(type)) {
                Base base;
                const bool isToMiss = leaf.isRequired && !leaf.isRepeated &&
                                      instances.cost(*leaf.particle) != unbounded &&
                                      isNew(leaf.declaring->name, leaf.particle->element);
                if (isToMiss && makeOwner(type, leaf, {}, base)) {
                    makeAround(base);
                    makeMissing(base, use);
                }
            }
            for (const Attribute& attribute : schemas.attributesOf(type)) {
                if (attribute.isRequired && hasFaults(attribute) && isNew(type, attribute.name)) {
                    makeMissingAttribute(makeBase(type, attribute), use);
                }
            }
        }
    }

private:
    using Use = std::function<void(const Document&)>;

    /// Which places are taken, and what is done with their documents.
    struct Selection
    {
        int perPlace;
        bool everyNamespace;
        const Use& use;
        /// How many places there were so far of each kind.
        QMap<QString, int> met;
    };

    /// A faultless document with the place in it.
    struct Base
    {
        Place place;
        Instance root;
        TreePath owner;
        TreePath target;
        const Leaf* leaf = nullptr;
        Attribute attribute;
    };

    QString areaOf(const QString& uri) const
    {
        static const QSet<QString> core{"gml",      "core", "xlink", "xAL_2_0", "SMIL20", "SMIL20_Language",
                                        "namespace"};
        static const QSet<QString> extensions{"energy", "pivotEnergy", "utility",
                                              "ladmfr", "epadesa",     "component"};
        const QString prefix = schemas.prefixes().key(uri);
        return core.contains(prefix) ? "core" : extensions.contains(prefix) ? "extension" : "module";
    }

    bool takes(Selection& selection, const Place& place, const QString& uri) const
    {
        const QString kind = QStringList{place.isAttribute ? "attribute" : "element",
                                         place.cardinality,
                                         place.position,
                                         textOf(place.value),
                                         place.hasAbstract ? "abstract" : "",
                                         selection.everyNamespace ? uri : place.area}
                                 .join('|');
        return selection.met[kind]++ < selection.perPlace;
    }

    void generateElement(const Name& type, const Leaf& leaf, Selection& selection) const
    {
        if (instances.cost(*leaf.particle) == unbounded) {
            return;
        }
        QSet<QString> positions;
        for (const auto& wanted : companions(type, leaf)) {
            Base base;
            if (!makeOwner(type, leaf, wanted, base) || positions.contains(base.place.position)) {
                continue;
            }
            positions.insert(base.place.position);
            if (takes(selection, base.place, leaf.declaring->name.uri)) {
                makeAround(base);
                makeFaults(base, selection.use);
            }
        }
    }

    /// Sets of elements that are asked for with an element, so that it comes to stand first, in the middle
    /// and last.
    QVector<QVector<const Particle*>> companions(const Name& type, const Leaf& leaf) const
    {
        const auto leaves = instances.leaves(type);
        QVector<const Particle*> before, after;
        bool isBehind = false;
        for (const Leaf& other : leaves) {
            if (other.particle == leaf.particle) {
                isBehind = true;
                continue;
            }
            const bool canAlternate = other.alternation != nullptr && other.alternation == leaf.alternation;
            if (!canAlternate && instances.cost(*other.particle) <= dearest) {
                (isBehind ? after : before).append(other.particle);
            }
        }
        const auto isCheaper = [this](const Particle* a, const Particle* b) {
            return instances.cost(*a) < instances.cost(*b);
        };
        std::stable_sort(before.begin(), before.end(), isCheaper);
        std::stable_sort(after.begin(), after.end(), isCheaper);
        QVector<QVector<const Particle*>> result;
        for (int i = 0; i < tries; ++i) {
            if (i < after.size()) {
                result.append(QVector<const Particle*>{after[i]});
            }
            if (i < before.size()) {
                result.append(QVector<const Particle*>{before[i]});
            }
            if (i < before.size() && i < after.size()) {
                result.append(QVector<const Particle*>{before[i], after[i]});
            }
        }
        result.append(QVector<const Particle*>());
        return result;
    }

    /// Makes the object with the place, and says what place it is.
    /// \param[out] base has the object for its root
    /// \return false where the elements cannot stand together
    bool makeOwner(const Name& type, const Leaf& leaf, const QVector<const Particle*>& companions,
                   Base& base) const
    {
        Instances::Wanted wanted{{leaf.particle, {instances.smallest(*leaf.particle)}}};
        for (const Particle* companion : companions) {
            wanted[companion] = {instances.smallest(*companion)};
        }
        base.root = instances.bare(instances.formOf(type));
        if (!instances.addContent(type, wanted, base.root.children)) {
            return false;
        }
        const auto isTarget = [&](const Instance& child) { return child.leaf == leaf.particle; };
        const auto& children = base.root.children;
        const int number =
            static_cast<int>(std::find_if(children.begin(), children.end(), isTarget) - children.begin());
        base.target = {number};
        base.leaf = &leaf;
        const int last = children.size() - 1;
        base.place.position = last == 0 ? "only" : number == 0 ? "first" : number == last ? "last" : "middle";
        base.place.type = type;
        base.place.isAttribute = false;
        base.place.member = leaf.particle->element;
        base.place.cardinality = leaf.isRepeated ? "repeated" : leaf.isRequired ? "required" : "optional";
        base.place.area = areaOf(leaf.declaring->name.uri);
        base.place.value = schemas.valueOf(children[number].type);
        base.place.hasAbstract = !abstractName(*leaf.particle, children[number]).isEmpty();
        return true;
    }

    /// Makes the document around an object with the place.
    void makeAround(Base& base) const
    {
        const Instance object = base.root;
        base.root = instances.document(base.place.type, &object, base.owner);
        base.target = base.owner + base.target;
        instances.identify(base.root);
    }

    void generateAttribute(const Name& type, const Attribute& attribute, Selection& selection) const
    {
        if (!hasFaults(attribute)) {
            return;
        }
        const Place place = placeOf(type, attribute);
        if (takes(selection, place, type.uri)) {
            makeAttributeFaults(makeBase(type, attribute), selection.use);
        }
    }

    static bool hasFaults(const Attribute& attribute)
    {
        return attribute.preset.isEmpty() && attribute.name != idAttribute;
    }

    Place placeOf(const Name& type, const Attribute& attribute) const
    {
        return {type,
                true,
                attribute.name,
                attribute.isRequired ? "required" : "optional",
                areaOf(attribute.name.uri.isEmpty() ? type.uri : attribute.name.uri),
                QString(),
                schemas.valueOf(attribute.type),
                false};
    }

    Base makeBase(const Name& type, const Attribute& attribute) const
    {
        Base base;
        base.place = placeOf(type, attribute);
        base.root = instances.document(type, nullptr, base.owner);
        base.target = base.owner;
        base.attribute = attribute;
        Instance& owner = at(base.root, base.owner);
        if (owner.attribute(attribute.name) == nullptr) {
            owner.attributes.append({attribute.name, instances.sampleOf(attribute)});
        }
        instances.identify(base.root);
        return base;
    }

    void makeAttributeFaults(const Base& base, const Use& use) const
    {
        const QString wrong = wrongText(base.place.value);
        if (!wrong.isEmpty()) {
            Base faulty = base;
            *at(faulty.root, faulty.target).attribute(base.attribute.name) = wrong;
            use(document(Kind::WrongValue, base, faulty, begin(faulty.target)));
        }
        if (base.attribute.isRequired) {
            makeMissingAttribute(base, use);
        }
    }

    void makeMissingAttribute(const Base& base, const Use& use) const
    {
        Base faulty = base;
        auto& attributes = at(faulty.root, faulty.target).attributes;
        const auto isIt = [&](const auto& each) { return each.first == base.attribute.name; };
        attributes.erase(std::find_if(attributes.begin(), attributes.end(), isIt));
        use(document(Kind::Missing, base, faulty, end(faulty.target)));
    }

    void makeFaults(const Base& base, const Use& use) const
    {
        const QString wrong = wrongText(base.place.value);
        if (!wrong.isEmpty()) {
            Base faulty = base;
            at(faulty.root, faulty.target).text = wrong;
            use(document(Kind::WrongValue, base, faulty, end(faulty.target)));
        }
        makeMissing(base, use);
        makeTypeFaults(base, use);
        makeOrderFaults(base, use);
        // An element of any type has any attributes.
        if (at(base.root, base.target).type == Name{xsUri, "anyType"}) {
            return;
        }
        Base faulty = base;
        at(faulty.root, faulty.target).attributes.append({{QString(), "noSuchAttribute"}, "a"});
        use(document(Kind::UndeclaredAttribute, base, faulty, begin(faulty.target)));
    }

    void makeMissing(const Base& base, const Use& use) const
    {
        if (base.place.cardinality != "required") {
            return;
        }
        Base faulty = base;
        at(faulty.root, faulty.owner).children.removeAt(base.target.last());
        Document made = document(Kind::Missing, base, faulty, end(faulty.owner));
        made.isRefused = isRequiredByClass(*base.leaf);
        use(made);
    }

    /// A type that only restricts its base has the members of the base: what it requires besides is not seen.
    bool isRequiredByClass(const Leaf& leaf) const
    {
        if (!leaf.declaring->restricts) {
            return true;
        }
        const auto outer = instances.leaves(leaf.declaring->base);
        return std::any_of(outer.begin(), outer.end(), [&](const Leaf& each) {
            return each.particle->element == leaf.particle->element && each.isRequired && !each.isRepeated &&
                   isRequiredByClass(each);
        });
    }

    void makeTypeFaults(const Base& base, const Use& use) const
    {
        const Instance& target = at(base.root, base.target);
        const Name abstract = abstractName(*base.leaf->particle, target);
        if (!abstract.isEmpty()) {
            Base faulty = base;
            Instance& element = at(faulty.root, faulty.target);
            element.name = abstract;
            if (QString* const named = element.attribute(typeAttribute)) {
                *named = InstanceText::qualified(schemas.prefixes(), base.leaf->particle->type);
            }
            use(document(Kind::AbstractElement, base, faulty, begin(faulty.target)));
        }
        // A value of one of the built-in types has no other type.
        if (target.type.uri == xsUri) {
            return;
        }
        const auto withType = [&](Kind kind, const QString& name) {
            Base faulty = base;
            Instance& element = at(faulty.root, faulty.target);
            if (QString* const named = element.attribute(typeAttribute)) {
                *named = name;
            } else {
                element.attributes.append({typeAttribute, name});
            }
            use(document(kind, base, faulty, begin(faulty.target)));
        };
        const Name point{objectType.uri, "PointType"}, code{objectType.uri, "CodeType"};
        withType(Kind::UnfitType,
                 InstanceText::qualified(schemas.prefixes(),
                                         schemas.isDerived(point, target.type) ? code : point));
        withType(Kind::UnknownPrefix, "nowhere:" + target.type.local);
    }

    /// An element that may stand there and is abstract, of which the target is one; empty if there is none.
    Name abstractName(const Particle& leaf, const Instance& target) const
    {
        if (!leaf.isReference) {
            return schemas.isAbstractType(leaf.type) ? leaf.element : Name();
        }
        for (Name name = target.name; !name.isEmpty(); name = schemas.element(name).head) {
            if (schemas.element(name).isAbstract) {
                return name;
            }
            if (name == leaf.element) {
                break;
            }
        }
        return Name();
    }

    void makeOrderFaults(const Base& base, const Use& use) const
    {
        const auto& siblings = at(base.root, base.owner).children;
        const int number = base.target.last();
        const int neighbour = number > 0 ? number - 1 : 1;
        if (neighbour < siblings.size() && !canAlternate(base, siblings[neighbour])) {
            Base faulty = base;
            auto& children = at(faulty.root, faulty.owner).children;
            std::swap(children[number], children[neighbour]);
            faulty.target.last() = neighbour;
            // What stands behind its successor is late.
            TreePath late = faulty.owner;
            late.append(std::max(number, neighbour));
            use(document(Kind::OutOfOrder, base, faulty, begin(late)));
        }
        if (!base.leaf->isRepeated) {
            Base faulty = base;
            auto& children = at(faulty.root, faulty.owner).children;
            Instance surplus = children[number];
            rename(surplus);
            ++faulty.target.last();
            children.insert(faulty.target.last(), surplus);
            use(document(Kind::OneTooMany, base, faulty, begin(faulty.target)));
        }
        Base faulty = base;
        Instance unknown;
        unknown.name = {siblings[number].name.uri, "noSuchElement"};
        unknown.text = "a";
        faulty.target.last() += base.place.position == "last" ? 1 : 0;
        at(faulty.root, faulty.owner).children.insert(faulty.target.last(), unknown);
        use(document(Kind::UnknownElement, base, faulty, begin(faulty.target)));
    }

    bool canAlternate(const Base& base, const Instance& sibling) const
    {
        if (sibling.leaf == base.leaf->particle) {
            return true;
        }
        for (const Leaf& leaf : instances.leaves(base.place.type)) {
            if (leaf.particle == sibling.leaf) {
                return (leaf.alternation != nullptr && leaf.alternation == base.leaf->alternation) ||
                       leaf.particle->element == base.leaf->particle->element;
            }
        }
        return false;
    }

    static void rename(Instance& element)
    {
        if (QString* const id = element.attribute(idAttribute)) {
            *id += 's';
        }
        for (Instance& child : element.children) {
            rename(child);
        }
    }

    static QString wrongText(Value value)
    {
        switch (value) {
        case Value::Number:
            return QStringLiteral("a dozen");
        case Value::Boolean:
            return QStringLiteral("maybe");
        case Value::Date:
            return QStringLiteral("2001-02-30 or so");
        case Value::Literal:
            return QStringLiteral("noSuchLiteral");
        case Value::List:
            return QStringLiteral("1 a 1");
        case Value::Text:
        case Value::None:
            break;
        }
        return QString();
    }

    /// Where a fault is told: at the start or the end of an element.
    struct Spot
    {
        TreePath path;
        bool isEnd;
    };
    static Spot begin(const TreePath& path) { return {path, false}; }
    static Spot end(const TreePath& path) { return {path, true}; }

    Document document(Kind kind, const Base& base, const Base& faulty, const Spot& spot) const
    {
        const InstanceText before(schemas.prefixes(), base.root), after(schemas.prefixes(), faulty.root);
        const InstanceText::Place place = after.placeOf(spot.path);
        Document result{kind,
                        base.place,
                        before.bytes(),
                        after.bytes(),
                        spot.isEnd ? place.endLine : place.line,
                        spot.isEnd ? place.endColumn : place.column,
                        QString(),
                        QString(),
                        QStringList(),
                        kind <= Kind::UnknownPrefix,
                        {}};
        for (int depth = 0; depth <= spot.path.size(); ++depth) {
            Instance element = at(faulty.root, spot.path.mid(0, depth));
            result.path += '/' + InstanceText::qualified(schemas.prefixes(), element.name);
            if (instances.isFeature(element.type) && element.attribute(idAttribute) != nullptr) {
                result.feature = *element.attribute(idAttribute);
            }
        }
        if (kind == Kind::AbstractElement) {
            addIdentifiers(at(base.root, base.target), result.lost);
        }
        addWay(base, result);
        return result;
    }

    static void addIdentifiers(Instance element, QStringList& ids)
    {
        if (const QString* const id = element.attribute(idAttribute)) {
            ids << *id;
        }
        for (const Instance& child : element.children) {
            addIdentifiers(child, ids);
        }
    }

    static void addWay(const Base& base, Document& document)
    {
        for (int depth = 0; depth < base.owner.size(); ++depth) {
            const auto& siblings = at(base.root, base.owner.mid(0, depth)).children;
            const int number = base.owner[depth];
            const Name member = siblings[number].leaf->element;
            int index = 0;
            for (int i = 0; i < number; ++i) {
                index += siblings[i].leaf->element == member ? 1 : 0;
            }
            document.owner.append({member, index});
        }
    }

    /// Companions that are larger are not asked for, and only so many are tried.
    static constexpr int dearest = 12;
    static constexpr int tries = 6;

    Schemas schemas;
    Instances instances;
};

} // namespace faults
