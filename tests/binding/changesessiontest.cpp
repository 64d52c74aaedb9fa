#include "citygml/DocumentChanges.h"
#include "citygml/Member.h"
#include "core/CityModelType.hxx"
#include "gml/CodeType.hxx"
#include "gml/MeasureType.hxx"
#include "gml/StringOrRefType.hxx"
#include "platform/binding/Tables.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/Mutants.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/Variants.h"
#include "support/XmlTree.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <QRegularExpression>
#include <QtTest>
#include <random>
#include <sstream>

using namespace testsupport;

namespace {

using citygml::MemberState;
using citygml::binding::MemberOps;
using citygml::binding::TypeRecord;
using mutants::Pieces;
using mutants::Range;
using PlainMember = citygml::Member;

constexpr int editsOfASession = 50;

/// Bytes of a document that others take the place of.
struct Change
{
    Range range;
    QByteArray text;
};

QByteArray changed(const QByteArray& xml, QVector<Change> changes)
{
    std::stable_sort(changes.begin(), changes.end(), [](const Change& a, const Change& b) {
        return a.range.begin != b.range.begin ? a.range.begin < b.range.begin : a.range.end < b.range.end;
    });
    QByteArray result;
    int at = 0;
    for (const Change& change : changes) {
        result += xml.mid(at, change.range.begin - at) + change.text;
        at = change.range.end;
    }
    return result + xml.mid(at);
}

/// The members for elements of a type, those of the bases in front.
std::vector<const citygml::binding::Member*> elementsOf(const TypeRecord* type)
{
    std::vector<const citygml::binding::Member*> members;
    if (type != nullptr) {
        members = elementsOf(type->base);
        for (std::size_t i = 0; i < type->memberCount; ++i) {
            if (!type->members[i].isAttribute) {
                members.push_back(&type->members[i]);
            }
        }
    }
    return members;
}

/// The objects of a document's elements, in the order of the elements; null for a value that is no object.
void collect(const xml_schema::type& owner, QVector<xml_schema::type*>& objects)
{
    for (const auto* const member : elementsOf(citygml::binding::recordOf(owner))) {
        for (std::size_t child = 0; child < member->ops->count(owner); ++child) {
            if (member->type == nullptr) {
                objects.append(nullptr);
                continue;
            }
            auto& object = const_cast<xml_schema::type&>(member->ops->at(owner, child));
            objects.append(&object);
            collect(object, objects);
        }
    }
}

/// The member of another object that holds an object.
const citygml::binding::Member& memberOf(const xml_schema::type& object)
{
    const auto& owner = dynamic_cast<const xml_schema::type&>(*object._container());
    for (const auto* const member : elementsOf(citygml::binding::recordOf(owner))) {
        const std::size_t count = member->type != nullptr ? member->ops->count(owner) : 0;
        for (std::size_t i = 0; i < count; ++i) {
            if (&member->ops->at(owner, i) == &object) {
                return *member;
            }
        }
    }
    throw std::logic_error("an object that no member holds");
}

/// Random edits of a document, in its objects and, apart from these, in its text.
class Session
{
public:
    /// \param xml in UTF-8, with the elements in the order of the schema, and none that it does not know
    Session(const QByteArray& xml, unsigned seed) : pieces(xml), random(seed), document(read(xml))
    {
        objects.append(document.get());
        collect(*document, objects);
        children.resize(pieces.elements.size());
        for (int i = 0; i < pieces.elements.size(); ++i) {
            if (pieces.elements[i].parent >= 0) {
                children[pieces.elements[i].parent].append(i);
            }
        }
    }

    bool isPossible() const { return objects.size() == pieces.elements.size(); }

    void run(int count)
    {
        isUsed.fill(false, objects.size());
        isRemoved.fill(false, objects.size());
        for (int tries = 0; done < count && tries < 100 * count; ++tries) {
            const int element = 1 + static_cast<int>(random() % static_cast<unsigned>(objects.size() - 1));
            if (objects[element] != nullptr && !isUsed[element]) {
                done += edit(element, static_cast<int>(random() % 4)) ? 1 : 0;
            }
        }
    }

    void undoAll()
    {
        for (; !undone.isEmpty(); undone.removeLast()) {
            undone.last()();
        }
        changes.clear();
    }

    QByteArray expected() const { return changed(pieces.xml, changes); }
    const core::CityModelType& edited() const { return *document; }
    int count() const { return done; }

private:
    bool edit(int element, int kind)
    {
        switch (kind) {
        case 0:
            return setText(element);
        case 1:
            return setUnit(element);
        case 2:
            return remove(element);
        default:
            return addEntry(element);
        }
    }

    /// Takes a fourth of the edits back at once, and notes the others.
    void note(const Change& change, const std::function<void()>& undo)
    {
        if (random() % 4 == 0) {
            undo();
            return;
        }
        changes.append(change);
        undone.append(undo);
    }

    void use(int element)
    {
        isUsed[element] = true;
        for (const int child : qAsConst(children[element])) {
            use(child);
        }
    }

    /// An element whose objects are not to go, since one in it was edited.
    void pin(int element)
    {
        for (int at = element; at >= 0; at = pieces.elements[at].parent) {
            isUsed[at] = true;
        }
    }

    QByteArray contentOf(int element) const
    {
        const Range range = pieces.elements[element].content;
        return pieces.xml.mid(range.begin, range.size());
    }

    bool setText(int element)
    {
        auto* const object = objects[element];
        const bool isText = dynamic_cast<gml::CodeType*>(object) != nullptr ||
                            dynamic_cast<gml::StringOrRefType*>(object) != nullptr;
        const QByteArray content = contentOf(element);
        const bool isSection = content.startsWith("<![CDATA[") && content.endsWith("]]>");
        if (!isText || content.isEmpty() || content != content.trimmed() ||
            (content.contains('<') && !isSection)) {
            return false;
        }
        const MemberState before = PlainMember::holding(*object).capture();
        const QByteArray text = "new & <" + QByteArray::number(done) + '>';
        dynamic_cast<std::string&>(*object) = text.toStdString();
        Range range = pieces.elements[element].content;
        if (isSection) {
            range = {range.begin + 9, range.end - 3};
        }
        pin(element);
        note({range, isSection ? text : QString::fromUtf8(text).toHtmlEscaped().toUtf8()},
             restoring(element, before));
        return true;
    }

    std::function<void()> restoring(int element, const MemberState& state)
    {
        return [this, element, state] { PlainMember::holding(*objects[element]).restore(state); };
    }

    bool setUnit(int element)
    {
        auto* const measure = dynamic_cast<gml::MeasureType*>(objects[element]);
        const auto unit = std::find_if(
            pieces.attributes.begin(), pieces.attributes.end(), [&](const mutants::Attribute& attribute) {
                return attribute.element == element &&
                       pieces.xml.mid(attribute.whole.begin).trimmed().startsWith("uom");
            });
        if (measure == nullptr || unit == pieces.attributes.end()) {
            return false;
        }
        const MemberState before = PlainMember::holding(*measure).capture();
        measure->uom("unit" + std::to_string(done));
        pin(element);
        note({unit->value, "unit" + QByteArray::number(done)}, restoring(element, before));
        return true;
    }

    /// The bytes of an element, with its line where it has one to itself.
    Range lineOf(int element) const
    {
        const Range whole = pieces.elements[element].whole;
        int begin = whole.begin, end = whole.end;
        while (pieces.xml[begin - 1] == ' ' || pieces.xml[begin - 1] == '\t') {
            --begin;
        }
        while (pieces.xml[end] == ' ' || pieces.xml[end] == '\t') {
            ++end;
        }
        const bool isLine =
            pieces.xml[begin - 1] == '\n' && (pieces.xml[end] == '\n' || pieces.xml[end] == '\r');
        if (!isLine) {
            return whole;
        }
        --begin;
        return {begin - (pieces.xml[begin - 1] == '\r' ? 1 : 0), end};
    }

    bool remove(int element)
    {
        xml_schema::type& object = *objects[element];
        const int size = pieces.elements[element].whole.size();
        if (memberOf(object).isRequired || size > 5000 || hasUsed(element) || !canBeTold(element)) {
            return false;
        }
        PlainMember entry = PlainMember::holding(object);
        isRemoved[element] = true;
        use(element);
        pin(element);
        const MemberState state = entry.capture();
        entry.clear();
        note({lineOf(element), QByteArray()}, [entry, state]() mutable { entry.restore(state); });
        return true;
    }

    /// Whether an element that is gone can be told from those around it, whatever becomes of these.
    bool canBeTold(int element) const
    {
        const QVector<int>& siblings = children[pieces.elements[element].parent];
        const auto start = [this](int sibling) {
            const Range whole = pieces.elements[sibling].whole;
            return pieces.xml.mid(whole.begin, whole.size());
        };
        const auto isLeft = [this, element](int sibling) {
            return sibling != element && !isRemoved[sibling];
        };
        if (std::none_of(siblings.begin(), siblings.end(), isLeft)) {
            return false;
        }
        const QByteArray name =
            start(element).left(start(element).indexOf('>')).simplified().split(' ').first();
        return std::count_if(siblings.begin(), siblings.end(),
                             [&](int sibling) { return start(sibling).startsWith(name); }) == 1 ||
               start(element).left(300).contains(":id=");
    }

    bool hasUsed(int element) const
    {
        return isUsed[element] || std::any_of(children[element].begin(), children[element].end(),
                                              [this](int child) { return hasUsed(child); });
    }

    /// Adds an entry behind the last one of a list of texts.
    bool addEntry(int element)
    {
        const std::optional<PlainMember> list = listEndingWith(*objects[element]);
        if (!list || !PlainMember(*list).add("new")) {
            return false;
        }
        // Where the last one has been taken out, adding one may as well be to change it.
        const QVector<int>& siblings = children[pieces.elements[element].parent];
        const int next = siblings.value(siblings.indexOf(element) + 1, -1);
        const Range whole = pieces.elements[element].whole;
        const QByteArray start = pieces.xml.mid(whole.begin + 1, whole.size());
        const QByteArray name = start.left(QString::fromUtf8(start).indexOf(QRegularExpression("[\\s/>]")));
        if (next >= 0 && pieces.xml.mid(pieces.elements[next].whole.begin + 1).startsWith(name)) {
            PlainMember(*list).take(list->size() - 1);
            return false;
        }
        pin(element);
        note({{whole.end, whole.end}, gapInFrontOf(element) + '<' + name + ">new</" + name + '>'},
             [list = *list]() mutable { list.take(list.size() - 1); });
        return true;
    }

    static std::optional<PlainMember> listEndingWith(xml_schema::type& object)
    {
        auto& owner = dynamic_cast<xml_schema::type&>(*object._container());
        const citygml::binding::Member& member = memberOf(object);
        const bool isLast =
            !member.ops->single && &member.ops->at(owner, member.ops->count(owner) - 1) == &object;
        for (const PlainMember& list : PlainMember::textLists(owner)) {
            if (isLast && list.name() == member.name) {
                return list;
            }
        }
        return std::nullopt;
    }

    QByteArray gapInFrontOf(int element) const
    {
        const int end = pieces.elements[element].whole.begin;
        int begin = end;
        while (QByteArray(" \t\r\n").contains(pieces.xml[begin - 1])) {
            --begin;
        }
        const QByteArray gap = pieces.xml.mid(begin, end - begin);
        const int line = gap.lastIndexOf('\n');
        return line < 0 ? gap : gap.mid(line > 0 && gap[line - 1] == '\r' ? line - 1 : line);
    }

    Pieces pieces;
    std::mt19937 random;
    Document document;
    QVector<xml_schema::type*> objects;
    QVector<QVector<int>> children;
    QVector<bool> isUsed;
    QVector<bool> isRemoved;
    QVector<Change> changes;
    QVector<std::function<void()>> undone;
    int done = 0;
};

} // namespace

/// Random edits, and what a save of changes makes of them.
class ChangeSessionTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray saved(const QByteArray& original, const core::CityModelType& document)
    {
        std::istringstream stream(original.toStdString());
        std::ostringstream target;
        return citygml::writeChanges(stream, document, target) ? QByteArray::fromStdString(target.str())
                                                               : QByteArray("(not written)");
    }

    static QByteArray parting(const QByteArray& actual, const QByteArray& expected)
    {
        int at = 0;
        while (at < actual.size() && at < expected.size() && actual[at] == expected[at]) {
            ++at;
        }
        const int from = qMax(0, at - 200);
        return "\nactual:   ..." + actual.mid(from, 600) + "\nexpected: ..." + expected.mid(from, 600);
    }

    /// Comments stay where they are, where a plain save may move them.
    static XmlNode withoutComments(const QByteArray& xml)
    {
        return XmlNode::parse(QString::fromUtf8(xml).remove(QRegularExpression("<!--.*?-->")).toUtf8());
    }

private slots:
    void onlyTheEditsShow_data() { addPathRows(exampleAndSharedDocuments()); }

    /// The changed bytes are those of the edits, which the test computes from the text alone; the result is
    /// the document of a plain save; and undoing everything gives the first bytes back.
    void onlyTheEditsShow()
    {
        QFETCH(QString, path);
        const int rounds = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? 6 : 1;
        int sessions = 0, edits = 0;
        for (const Variant& variant : variantsOf(contentOf(path))) {
            // Of these the test cannot say itself where the pieces stand.
            const QByteArray name = variant.name;
            if (name.startsWith("UTF-16") || name == "ISO-8859-1" || name == "document type") {
                continue;
            }
            for (int round = 0; round < rounds; ++round) {
                Session session(variant.xml, static_cast<unsigned>(1000 * round + sessions));
                if (!session.isPossible()) {
                    continue;
                }
                session.run(editsOfASession);
                const QByteArray actual = saved(variant.xml, session.edited());
                const QByteArray expected = session.expected();
                QVERIFY2(actual == expected, name + parting(actual, expected));
                const QByteArray plain = write(session.edited());
                const QByteArray again = write(*read(actual));
                const QStringList differences =
                    XmlNode::differences(withoutComments(plain), withoutComments(again));
                QVERIFY2(differences.isEmpty(), name + ": " + differences.join('\n').toUtf8());
                edits += session.count();
                session.undoAll();
                const QByteArray undone = saved(variant.xml, session.edited());
                QVERIFY2(undone == variant.xml, name + " undone" + parting(undone, variant.xml));
                ++sessions;
            }
        }
        if (sessions == 0) {
            QSKIP("has elements that no class takes, or another order than the schema's");
        }
        qInfo("%d sessions, %d edits", sessions, edits);
        QVERIFY(edits >= sessions);
    }
};

TEST_CLASS(ChangeSessionTest, Core)
#include "changesessiontest.moc"
