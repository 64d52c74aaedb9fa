#pragma once

#include "support/SchemaFacts.h"

#include <QByteArray>
#include <QHash>
#include <QSet>

/// Documents made from the schema files: the smallest ones that are valid and hold what is asked for.
namespace schemafacts {

const Name cityModelType{"http://www.opengis.net/citygml/2.0", "CityModelType"};
const Name cityModel{"http://www.opengis.net/citygml/2.0", "CityModel"};
const Name objectType{"http://www.opengis.net/gml", "AbstractGMLType"};
const Name featureType{"http://www.opengis.net/gml", "AbstractFeatureType"};
const Name idAttribute{"http://www.opengis.net/gml", "id"};
const Name typeAttribute{"http://www.w3.org/2001/XMLSchema-instance", "type"};

/// An element of a document.
struct Instance
{
    Name name;
    Name type;
    /// The piece of the content model that it stands for; null for the root and for what has no place.
    const Particle* leaf = nullptr;
    QVector<QPair<Name, QString>> attributes;
    QString text;
    QVector<Instance> children;

    QString* attribute(const Name& wanted)
    {
        for (auto& each : attributes) {
            if (each.first == wanted) {
                return &each.second;
            }
        }
        return nullptr;
    }
};

/// The way to an element: numbers of children, from the root on.
using TreePath = QVector<int>;

inline Instance& at(Instance& root, const TreePath& path)
{
    Instance* place = &root;
    for (const int child : path) {
        place = &place->children[child];
    }
    return *place;
}
inline const Instance& at(const Instance& root, const TreePath& path)
{
    return at(const_cast<Instance&>(root), path);
}

/// An element that can stand for a piece of a content model.
struct Form
{
    Name element;
    Name type;
    bool needsType = false;
};

/// A piece of a type's content model that is an element.
struct Leaf
{
    const Particle* particle;
    const Type* declaring;
    bool isRequired;
    bool isRepeated;
    /// The outermost repeated piece that it stands in; elements of one may alternate.
    const Particle* alternation;
};

class Instances
{
public:
    /// \param facts must outlive the object
    explicit Instances(const Schemas& facts) : schemas(facts)
    {
        findCosts();
        findWays();
    }

    /// The types of which an object can stand somewhere in a document.
    QVector<Name> reachableTypes() const { return reached; }

    QVector<Form> forms(const Particle& leaf) const
    {
        const auto known = formsOfLeaves.constFind(&leaf);
        return known != formsOfLeaves.constEnd() ? *known : *formsOfLeaves.insert(&leaf, findForms(leaf));
    }

    /// The elements of a type's content model, in order.
    QVector<Leaf> leaves(const Name& type) const
    {
        QVector<Leaf> result;
        for (const Type* facts : schemas.contentChain(type)) {
            addLeaves(facts->content, facts, {nullptr, facts, true, false, nullptr}, result);
        }
        return result;
    }

    /// The smallest document with an object of the type, which must be reachable.
    /// \param object  stands in it in place of the smallest one, if not null
    /// \param[out] path where the object stands
    Instance document(const Name& type, const Instance* object, TreePath& path) const
    {
        QVector<Step> steps;
        for (Name at = type; at != cityModelType; at = ways[at].owner) {
            steps.prepend(ways[at]);
        }
        Instance inner;
        if (object != nullptr) {
            inner = *object;
        } else {
            inner = smallest(steps.isEmpty() ? Form{cityModel, cityModelType, false} : steps.last().form);
        }
        path.clear();
        for (int i = steps.size() - 1; i >= 0; --i) {
            inner.name = steps[i].form.element;
            inner.leaf = steps[i].leaf;
            const Form outer = i > 0 ? steps[i - 1].form : Form{cityModel, cityModelType, false};
            Instance owner = bare(outer);
            addContent(outer.type, {{steps[i].leaf, {inner}}}, owner.children);
            for (int child = 0; child < owner.children.size(); ++child) {
                if (owner.children[child].leaf == steps[i].leaf) {
                    path.prepend(child);
                    break;
                }
            }
            inner = owner;
        }
        return inner;
    }

    /// An object of the type under any name, with the required attributes and without content.
    Instance bare(const Form& form) const
    {
        Instance result;
        result.name = form.element;
        result.type = form.type;
        for (const Attribute& attribute : schemas.attributesOf(form.type)) {
            if (attribute.isRequired) {
                result.attributes.append({attribute.name, sampleOf(attribute)});
            }
        }
        if (form.needsType) {
            result.attributes.append({typeAttribute, schemasPrefix(form.type.uri) + ':' + form.type.local});
        }
        result.text = schemas.sample(form.type);
        return result;
    }
    /// How the way to a type names it.
    Form formOf(const Name& type) const
    {
        return type == cityModelType ? Form{cityModel, cityModelType, false} : ways[type].form;
    }
    Instance smallest(const Form& form) const
    {
        Instance result = bare(form);
        addContent(form.type, {}, result.children);
        return result;
    }
    Instance smallest(const Particle& leaf) const
    {
        const auto known = smallestOfLeaves.constFind(&leaf);
        if (known != smallestOfLeaves.constEnd()) {
            return *known;
        }
        Instance result = smallest(cheapest(leaf));
        result.leaf = &leaf;
        return *smallestOfLeaves.insert(&leaf, result);
    }
    Form cheapest(const Particle& leaf) const
    {
        Form best;
        int least = unbounded;
        for (const Form& form : forms(leaf)) {
            if (costOf(form.type) < least) {
                least = costOf(form.type);
                best = form;
            }
        }
        return best;
    }
    /// Size of the smallest element for a leaf; \c unbounded if there is none.
    int cost(const Particle& leaf) const
    {
        const auto known = costsOfLeaves.constFind(&leaf);
        return known != costsOfLeaves.constEnd() ? *known : *costsOfLeaves.insert(&leaf, findCost(leaf));
    }

    QString sampleOf(const Attribute& attribute) const
    {
        if (attribute.type == Name{xsUri, "IDREF"}) {
            return QStringLiteral("i0");
        }
        return attribute.preset.isEmpty() ? schemas.sample(attribute.type) : attribute.preset;
    }

    using Wanted = QHash<const Particle*, QVector<Instance>>;

    /// Adds the smallest content of a type that has the wanted elements.
    /// \return false where the content model does not let them stand together
    bool addContent(const Name& type, const Wanted& wanted, QVector<Instance>& children) const
    {
        for (const Type* facts : schemas.contentChain(type)) {
            if (!add(facts->content, wanted, children)) {
                return false;
            }
        }
        return true;
    }

    /// Gives every object an identifier: `i` and its number in the document.
    void identify(Instance& root) const
    {
        int number = 0;
        identify(root, number);
    }

    bool isFeature(const Name& type) const { return schemas.isDerived(type, featureType); }

    QString schemasPrefix(const QString& uri) const { return schemas.prefixes().key(uri); }

private:
    struct Step
    {
        Name owner;
        const Particle* leaf = nullptr;
        Form form;
    };

    QVector<Form> findForms(const Particle& leaf) const
    {
        QVector<Form> result;
        const auto names = leaf.isReference ? schemas.group(leaf.element) : QVector<Name>{leaf.element};
        for (const Name& name : names) {
            const Name type = name == leaf.element ? leaf.type : schemas.element(name).type;
            if (leaf.isReference && schemas.element(name).isAbstract) {
                continue;
            }
            if (!schemas.isAbstractType(type)) {
                result.append({name, type, false});
                continue;
            }
            for (const Type& derived : schemas.allTypes()) {
                if (!derived.isAbstract && schemas.isDerived(derived.name, type)) {
                    result.append({name, derived.name, true});
                }
            }
        }
        return result;
    }

    int findCost(const Particle& leaf) const
    {
        int least = unbounded;
        for (const Form& form : forms(leaf)) {
            least = std::min(least, costOf(form.type));
        }
        return least == unbounded ? unbounded : least + 1;
    }

    void addLeaves(const Particle& particle, const Type* type, Leaf outer, QVector<Leaf>& result) const
    {
        outer.isRequired = outer.isRequired && particle.min > 0;
        outer.isRepeated = outer.isRepeated || particle.max > 1;
        if (particle.kind == Particle::Element) {
            outer.particle = &particle;
            if (particle.max != 0) {
                result.append(outer);
            }
            return;
        }
        if (outer.alternation == nullptr && particle.max > 1) {
            outer.alternation = &particle;
        }
        outer.isRequired = outer.isRequired && particle.kind != Particle::Choice;
        for (const Particle& child : particle.children) {
            addLeaves(child, type, outer, result);
        }
    }

    int costOf(const Name& type) const { return type.uri == xsUri ? 0 : costs.value(type, unbounded); }

    /// Size of the smallest content of a piece that must be there; \c unbounded for what cannot be made.
    int contentCost(const Particle& particle) const
    {
        if (particle.kind == Particle::Any) {
            return particle.min == 0 ? 0 : unbounded;
        }
        if (particle.kind == Particle::Element) {
            return particle.min == 0 ? 0 : cost(particle);
        }
        int sum = 0, least = particle.children.isEmpty() ? 0 : unbounded;
        for (const Particle& child : particle.children) {
            const int each = child.min == 0 ? 0 : contentCost(child);
            sum = std::min(unbounded, sum + each);
            least = std::min(least, each);
        }
        return particle.kind == Particle::Choice ? least : sum;
    }

    void findCosts()
    {
        for (bool changed = true; changed;) {
            changed = false;
            for (const Type& type : schemas.allTypes()) {
                int sum = 0;
                for (const Type* facts : schemas.contentChain(type.name)) {
                    sum = std::min(unbounded, sum + contentCost(facts->content));
                }
                if (sum < costs.value(type.name, unbounded)) {
                    costs[type.name] = sum;
                    costsOfLeaves.clear();
                    changed = true;
                }
            }
        }
    }

    /// The shortest way from the root to each type.
    void findWays()
    {
        reached.append(cityModelType);
        for (int i = 0; i < reached.size(); ++i) {
            const Name owner = reached[i];
            for (const Leaf& leaf : leaves(owner)) {
                for (const Form& form : forms(*leaf.particle)) {
                    if (costOf(form.type) == unbounded || ways.contains(form.type) ||
                        form.type.uri == xsUri || form.type == cityModelType) {
                        continue;
                    }
                    Instance probe;
                    QVector<Instance> children;
                    if (!addContent(owner, {{leaf.particle, {probe}}}, children)) {
                        continue;
                    }
                    ways[form.type] = {owner, leaf.particle, form};
                    reached.append(form.type);
                }
            }
        }
    }

    static bool contains(const Particle& particle, const Wanted& wanted)
    {
        return wanted.contains(&particle) ||
               std::any_of(particle.children.begin(), particle.children.end(),
                           [&](const Particle& child) { return contains(child, wanted); });
    }

    bool add(const Particle& particle, const Wanted& wanted, QVector<Instance>& children) const
    {
        const bool isWanted = contains(particle, wanted);
        if (particle.min == 0 && !isWanted) {
            return true;
        }
        int times = particle.min;
        if (isWanted) {
            if (!addOnce(particle, wanted, children)) {
                return false;
            }
            --times;
        }
        for (; times > 0; --times) {
            if (!addOnce(particle, {}, children)) {
                return false;
            }
        }
        return true;
    }

    bool addOnce(const Particle& particle, const Wanted& wanted, QVector<Instance>& children) const
    {
        if (particle.kind == Particle::Any) {
            return false;
        }
        if (particle.kind == Particle::Element) {
            if (!wanted.contains(&particle) && cost(particle) == unbounded) {
                return false;
            }
            auto made =
                wanted.contains(&particle) ? wanted[&particle] : QVector<Instance>{smallest(particle)};
            for (Instance& each : made) {
                each.leaf = &particle;
            }
            children += made;
            return true;
        }
        if (particle.kind == Particle::Sequence) {
            return std::all_of(particle.children.begin(), particle.children.end(),
                               [&](const Particle& child) { return add(child, wanted, children); });
        }
        return addBranch(particle, wanted, children);
    }

    bool addBranch(const Particle& choice, const Wanted& wanted, QVector<Instance>& children) const
    {
        int chosen = 0;
        for (const Particle& branch : choice.children) {
            if (!contains(branch, wanted)) {
                continue;
            }
            if (++chosen > choice.max || !add(branch, wanted, children)) {
                return false;
            }
        }
        if (chosen != 0) {
            return true;
        }
        const auto isCheaper = [this](const Particle& a, const Particle& b) {
            return branchCost(a) < branchCost(b);
        };
        const auto best = std::min_element(choice.children.begin(), choice.children.end(), isCheaper);
        return best == choice.children.end() || add(*best, {}, children);
    }
    int branchCost(const Particle& branch) const { return branch.min == 0 ? 0 : contentCost(branch); }

    void identify(Instance& place, int& number) const
    {
        if (schemas.isDerived(place.type, objectType)) {
            const QString id = 'i' + QString::number(number++);
            if (QString* const known = place.attribute(idAttribute)) {
                *known = id;
            } else {
                place.attributes.prepend({idAttribute, id});
            }
        }
        for (Instance& child : place.children) {
            identify(child, number);
        }
    }

    const Schemas& schemas;
    QMap<Name, int> costs;
    QVector<Name> reached;
    QMap<Name, Step> ways;
    // What was found out about leaves, which are asked for many times.
    mutable QHash<const Particle*, QVector<Form>> formsOfLeaves;
    mutable QHash<const Particle*, int> costsOfLeaves;
    mutable QHash<const Particle*, Instance> smallestOfLeaves;
};

/// Writes documents, one element a line, and knows where their elements stand.
class InstanceText
{
public:
    struct Place
    {
        /// Line and column of the start tag and of the end tag, both from 1, columns in bytes.
        int line = 0;
        int column = 0;
        int endLine = 0;
        int endColumn = 0;
    };

    InstanceText(const QMap<QString, QString>& namespaces, const Instance& root) : prefixes(namespaces)
    {
        text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        write(root, TreePath(), 0);
        text += '\n';
    }

    const QByteArray& bytes() const { return text; }
    Place placeOf(const TreePath& path) const { return places[path]; }

    static QString qualified(const QMap<QString, QString>& prefixes, const Name& name)
    {
        if (name.uri.isEmpty()) {
            return name.local;
        }
        if (name.uri == typeAttribute.uri) {
            return "xsi:" + name.local;
        }
        if (name.uri == QLatin1String("http://www.w3.org/XML/1998/namespace")) {
            return "xml:" + name.local;
        }
        return prefixes.key(name.uri) + ':' + name.local;
    }

private:
    int line() const { return text.count('\n') + 1; }
    int column() const { return text.size() - text.lastIndexOf('\n'); }

    void write(const Instance& element, const TreePath& path, int depth)
    {
        text += QByteArray(2 * depth, ' ');
        Place place;
        place.line = line();
        place.column = column();
        const QByteArray name = qualified(prefixes, element.name).toUtf8();
        text += '<' + name;
        if (depth == 0) {
            for (auto prefix = prefixes.begin(); prefix != prefixes.end(); ++prefix) {
                if (prefix.key() != "namespace") {
                    text += " xmlns:" + prefix.key().toUtf8() + "=\"" + prefix->toUtf8() + '"';
                }
            }
            text += " xmlns:xsi=\"" + typeAttribute.uri.toUtf8() + '"';
        }
        for (const auto& attribute : element.attributes) {
            text += ' ' + qualified(prefixes, attribute.first).toUtf8() + "=\"" +
                    attribute.second.toHtmlEscaped().toUtf8() + '"';
        }
        text += '>';
        text += element.text.toHtmlEscaped().toUtf8();
        for (int child = 0; child < element.children.size(); ++child) {
            text += '\n';
            write(element.children[child], path + TreePath{child}, depth + 1);
        }
        if (!element.children.isEmpty()) {
            text += '\n' + QByteArray(2 * depth, ' ');
        }
        place.endLine = line();
        place.endColumn = column();
        text += "</" + name + '>';
        places[path] = place;
    }

    const QMap<QString, QString>& prefixes;
    QByteArray text;
    QHash<TreePath, Place> places;
};

} // namespace schemafacts
