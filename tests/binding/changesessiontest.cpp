#include "citygml/Member.h"
#include "core/CityModelType.hxx"
#include "gml/CodeType.hxx"
#include "gml/MeasureType.hxx"
#include "gml/StringOrRefType.hxx"
#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/Tables.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/Mutants.h"
#include "support/SavedChanges.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/Variants.h"
#include "support/XmlTree.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtTest>
#include <random>
#include <string_view>

using namespace testsupport;

namespace {

using citygml::MemberState;
using citygml::binding::KeptContent;
using citygml::binding::TypeRecord;
using mutants::Pieces;
using mutants::Range;
using PlainMember = citygml::Member;

constexpr int editsOfASession = 50;
// A tag that loses an attribute counts as another tag, so that which one of two elements is gone makes a
// difference in tags where there is none in bytes.
constexpr int coarseness = 4;
/// What can stand behind the name in a start tag.
constexpr std::string_view nameEnds = " \t\r\n/>";

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

/// The number of tags, with the text that follows each, in which two documents differ. White space around the
/// texts does not count: it depends on what comes next.
int differenceOf(const QByteArray& a, const QByteArray& b)
{
    const QByteArrayList piecesA = a.split('<'), piecesB = b.split('<');
    const int countA = piecesA.size(), countB = piecesB.size();
    // How far into `a` each diagonal reaches.
    std::map<int, int> reach{{1, 0}};
    for (int difference = 0;; ++difference) {
        for (int k = -difference; k <= difference; k += 2) {
            const bool isInserted = k == -difference || (k != difference && reach[k - 1] < reach[k + 1]);
            int x = isInserted ? reach[k + 1] : reach[k - 1] + 1;
            while (x < countA && x - k < countB && piecesA[x].trimmed() == piecesB[x - k].trimmed()) {
                ++x;
            }
            reach[k] = x;
            if (x >= countA && x - k >= countB) {
                return difference;
            }
        }
    }
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

/// What an element of a document is to a program: a value of an object.
struct Value
{
    xml_schema::type* owner;
    const citygml::binding::Member* member;
    /// Null for a value that is no object.
    xml_schema::type* object;

    /// Whether an element with that local name may hold it.
    bool isNamed(const std::string& name) const
    {
        const auto* const end = citygml::binding::allElements + citygml::binding::allElementsCount;
        return name == member->name ||
               (object != nullptr && std::any_of(citygml::binding::allElements, end,
                                                 [&](const citygml::binding::ElementRecord& element) {
                                                     return name == element.name && element.type != nullptr &&
                                                            element.type->isInstance(*object);
                                                 }));
    }
    PlainMember plain() const
    {
        return object != nullptr ? PlainMember::holding(*object) : *PlainMember::named(*owner, member->name);
    }
};

/// The values of an object's elements, in the order of the document.
QVector<Value> valuesOf(xml_schema::type& owner)
{
    const auto members = elementsOf(citygml::binding::recordOf(owner));
    const auto* const kept = KeptContent::find(owner);
    std::vector<KeptContent::MemberIndex> order =
        kept != nullptr ? kept->childOrder() : std::vector<KeptContent::MemberIndex>();
    if (order.empty()) {
        for (std::size_t i = 0; i < members.size(); ++i) {
            order.insert(order.end(), members[i]->ops->count(owner), static_cast<std::uint16_t>(i));
        }
    }
    QVector<Value> values;
    std::vector<std::size_t> taken(members.size(), 0);
    for (const KeptContent::MemberIndex index : order) {
        const auto* const member = members[index];
        auto* const object = member->type != nullptr
                                 ? &const_cast<xml_schema::type&>(member->ops->at(owner, taken[index]++))
                                 : nullptr;
        values.append({&owner, member, object});
    }
    return values;
}

/// Random edits of a document, in its objects and, apart from these, in its text.
class Session
{
public:
    /// \param canTell whether only such edits are wanted of which there is but one smallest difference
    Session(const Variant& variant, unsigned seed, bool canTell)
        : pieces(variant.text()), random(seed), canTell(canTell), document(read(variant.xml))
    {
        children.resize(pieces.elements.size());
        for (int i = 1; i < pieces.elements.size(); ++i) {
            children[pieces.elements[i].parent].append(i);
        }
        values.resize(pieces.elements.size());
        isUsed.fill(false, values.size());
        isRemoved.fill(false, values.size());
        findValues(0, *document);
    }

    /// Whether every value has its element.
    bool isPossible() const { return areFound; }

    void run(int count)
    {
        for (int tries = 0; done < count && tries < 100 * count; ++tries) {
            const int element = 1 + below(values.size() - 1);
            if (values[element] && !isUsed[element]) {
                done += edit(element, below(4)) ? 1 : 0;
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
    int below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

    void findValues(int element, xml_schema::type& object)
    {
        const QVector<Value> all = valuesOf(object);
        int next = 0;
        for (const int child : qAsConst(children[element])) {
            // Others are content that no member holds.
            if (next < all.size() && all[next].isNamed(localNameOf(child))) {
                values[child] = all[next++];
                if (values[child]->object != nullptr) {
                    findValues(child, *values[child]->object);
                }
            }
        }
        areFound = areFound && next == all.size();
    }

    QByteArray nameOf(int element) const
    {
        const int begin = pieces.elements[element].whole.begin + 1;
        const auto end = std::find_first_of(pieces.xml.begin() + begin, pieces.xml.end(), nameEnds.begin(),
                                            nameEnds.end());
        return pieces.xml.mid(begin, static_cast<int>(end - pieces.xml.begin()) - begin);
    }

    std::string localNameOf(int element) const { return nameOf(element).split(':').last().toStdString(); }

    bool edit(int element, int kind)
    {
        switch (kind) {
        case 0:
            return setText(element);
        case 1:
            return editAttribute(element);
        case 2:
            return remove(element);
        default:
            return addEntry(element);
        }
    }

    /// Takes a fourth of the edits back at once, and notes the others.
    void note(const Change& change, const std::function<void()>& undo)
    {
        if (below(4) == 0) {
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

    QByteArray contentOf(const Range& range) const { return pieces.xml.mid(range.begin, range.size()); }

    /// Gives a value the first text that its type has.
    /// \return the text; null where it has none
    QByteArray setAnyText(PlainMember& value)
    {
        const QByteArray number = QByteArray::number(done);
        const QByteArrayList texts{"new \xc3\xa4\xe2\x82\xac & <" + number + '>',
                                   number + ".25",
                                   '1' + number,
                                   "2001-02-03",
                                   "1 2 3",
                                   "true"};
        for (const QByteArray& text : texts) {
            if (value.setText(text.toStdString())) {
                return text;
            }
        }
        return QByteArray();
    }

    bool setText(int element)
    {
        const QByteArray content = contentOf(pieces.elements[element].content);
        const bool isSection = content.startsWith("<![CDATA[") && content.endsWith("]]>");
        const bool isString = dynamic_cast<std::string*>(values[element]->object) != nullptr;
        const bool isTrimmed = content == content.trimmed();
        if (content.trimmed().isEmpty() || (isString && !isTrimmed) ||
            (content.contains('<') && !isSection)) {
            return false;
        }
        PlainMember value = values[element]->plain();
        const MemberState before = value.capture();
        const std::optional<std::string> former = value.text();
        const QByteArray text = setAnyText(value);
        if (text.isNull() || former == text.toStdString()) {
            return false;
        }
        Range range = pieces.elements[element].content;
        if (isSection) {
            range = {range.begin + 9, range.end - 3};
        } else {
            range.begin += content.indexOf(content.trimmed());
            range.end = range.begin + content.trimmed().size();
        }
        pin(element);
        note({range, isSection ? text : escaped(text)}, restoring(value, before));
        return true;
    }

    static QByteArray escaped(const QByteArray& text)
    {
        return QByteArray(text).replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;");
    }

    static std::function<void()> restoring(PlainMember value, const MemberState& state)
    {
        return [value, state]() mutable { value.restore(state); };
    }

    /// Sets an attribute, or takes it out.
    bool editAttribute(int element)
    {
        QVector<mutants::Attribute> own;
        for (const mutants::Attribute& attribute : pieces.attributes) {
            if (attribute.element == element && !attribute.isIdentifier) {
                own.append(attribute);
            }
        }
        xml_schema::type* const object = values[element]->object;
        if (own.isEmpty() || object == nullptr) {
            return false;
        }
        const mutants::Attribute attribute = own[below(own.size())];
        const QByteArray start = pieces.xml.mid(attribute.whole.begin, attribute.whole.size()).trimmed();
        const QByteArray name = start.left(start.indexOf('=')).trimmed().split(':').last();
        std::optional<PlainMember> member = PlainMember::named(*object, name.toStdString());
        // There may be one of that name in another namespace, too.
        if (!member || member->text() != contentOf(attribute.value).toStdString()) {
            return false;
        }
        const MemberState before = member->capture();
        if (below(3) == 0) {
            member->clear();
            pin(element);
            note({attribute.whole, QByteArray()}, restoring(*member, before));
            return true;
        }
        const QByteArray text = setAnyText(*member);
        pin(element);
        note({attribute.value, escaped(text)}, restoring(*member, before));
        return !text.isNull();
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
        const int size = pieces.elements[element].whole.size();
        if (size > 5000 || hasUsed(element) || (canTell && !canBeTold(element))) {
            return false;
        }
        PlainMember value = values[element]->plain();
        isRemoved[element] = true;
        use(element);
        pin(element);
        const MemberState state = value.capture();
        value.clear();
        note({lineOf(element), QByteArray()}, restoring(value, state));
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
        const std::optional<PlainMember> list = listEndingWith(*values[element]);
        if (!list || !PlainMember(*list).add("new")) {
            return false;
        }
        // Where the last one has been taken out, adding one may as well be to change it.
        const QVector<int>& siblings = children[pieces.elements[element].parent];
        const int next = siblings.value(siblings.indexOf(element) + 1, -1);
        const QByteArray name = nameOf(element);
        if (next >= 0 && nameOf(next) == name) {
            PlainMember(*list).take(list->size() - 1);
            return false;
        }
        const int end = pieces.elements[element].whole.end;
        pin(element);
        note({{end, end}, gapInFrontOf(element) + '<' + name + ">new</" + name + '>'},
             [list = *list]() mutable { list.take(list.size() - 1); });
        return true;
    }

    static std::optional<PlainMember> listEndingWith(const Value& value)
    {
        const auto& ops = *value.member->ops;
        const bool isLast = value.object != nullptr && !ops.single &&
                            &ops.at(*value.owner, ops.count(*value.owner) - 1) == value.object;
        for (const PlainMember& list : PlainMember::textLists(*value.owner)) {
            if (isLast && list.name() == value.member->name) {
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
    bool canTell;
    Document document;
    QVector<QVector<int>> children;
    // Those of the elements.
    QVector<std::optional<Value>> values;
    bool areFound = true;
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
    /// Comments stay where they are, where a plain save may move them.
    static XmlNode withoutComments(const QByteArray& xml)
    {
        static const QRegularExpression comment("<!--.*?-->");
        return XmlNode::parse(QString::fromUtf8(xml).remove(comment).toUtf8());
    }

    /// What is wrong with a save after random edits; empty where nothing is.
    static QByteArray problemOf(Session& session, const Variant& variant, bool canTell)
    {
        session.run(editsOfASession);
        const QByteArray actual = saved(variant.xml, session.edited());
        const QByteArray text = Variant{"", actual}.text(), expected = session.expected();
        const bool isExpected = actual == variant.encoded(expected);
        const auto most = canTell ? 0 : differenceOf(variant.text(), expected) + coarseness;
        if (!isExpected && (canTell || differenceOf(variant.text(), text) > most)) {
            return parting(text, expected);
        }
        const QStringList differences = XmlNode::differences(withoutComments(write(session.edited())),
                                                             withoutComments(write(*read(actual))));
        if (!differences.isEmpty()) {
            return ": " + differences.join('\n').toUtf8();
        }
        session.undoAll();
        const QByteArray undone = saved(variant.xml, session.edited());
        return undone == variant.xml ? QByteArray() : " undone" + parting(undone, variant.xml);
    }

    static void runSessions(bool canTell)
    {
        QFETCH(QString, path);
        const bool isLong = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS");
        const QByteArrayList pieceSizes{"1", "3000", ""};
        int sessions = 0, edits = 0;
        const QByteArray document = contentOf(path);
        // Half of the variants do for a quick run, others of each document; of the one that takes as long as
        // all others fewer do.
        const int share = document.size() > 200000 ? 6 : 2;
        int number = QFileInfo(path).fileName().size() + (canTell ? 1 : 0);
        for (const Variant& variant : variantsOf(document)) {
            const int rounds = isLong ? 6 : number++ % share == 0 ? 1 : 0;
            for (int round = 0; round < rounds; ++round) {
                qputenv("TOLVIK_PIECE_SIZE", pieceSizes[sessions % pieceSizes.size()]);
                Session session(variant, static_cast<unsigned>(1000 * round + sessions), canTell);
                QVERIFY2(session.isPossible(), variant.name);
                const QByteArray problem = problemOf(session, variant, canTell);
                QVERIFY2(problem.isEmpty(), variant.name + problem);
                edits += session.count();
                ++sessions;
            }
        }
        qInfo("%d sessions, %d edits", sessions, edits);
        QVERIFY(edits > 10 * sessions);
    }

private slots:
    void onlyTheEditsShow_data() { addPathRows(exampleAndSharedDocuments()); }

    /// The changed bytes are those of the edits, which the test computes from the text alone; the result is
    /// the document of a plain save; and undoing everything gives the first bytes back.
    void onlyTheEditsShow() { runSessions(true); }

    void noMoreThanTheEditsShows_data() { addPathRows(exampleAndSharedDocuments()); }

    /// The same where an edit may show in several ways, such as the first of two equal names that is gone: no
    /// more shows than would if each edit had been made in the text.
    void noMoreThanTheEditsShows() { runSessions(false); }
};

TEST_CLASS(ChangeSessionTest, Core)
#include "changesessiontest.moc"
