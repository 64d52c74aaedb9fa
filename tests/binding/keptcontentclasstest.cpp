#include "platform/binding/kept/KeptContent.h"

#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/TestClass.h"

#include <QStringList>
#include <QtTest>

#include <memory>

using citygml::binding::KeptContent;
using Kind = KeptContent::Kind;
using Position = KeptContent::Position;

namespace {

KeptContent::Node node(const char* xml, const Position& position, Kind kind = Kind::Element)
{
    return {position, kind, xml, nullptr};
}

KeptContent::Value value(std::optional<KeptContent::MemberIndex> member, std::uint32_t index,
                         const char* spelling)
{
    KeptContent::Value result;
    result.member = member;
    result.index = index;
    result.spelling = spelling;
    return result;
}

KeptContent::Value nilValue(KeptContent::MemberIndex member, std::uint32_t index)
{
    KeptContent::Value result = value(member, index, "nil");
    result.isAbsent = true;
    return result;
}

QStringList markupOf(const KeptContent& kept)
{
    QStringList result;
    for (const KeptContent::Node& node : kept.nodes()) {
        result += QString::fromStdString(node.xml);
    }
    return result;
}

QStringList spellingsOf(const KeptContent::Values& values)
{
    QStringList result;
    for (const KeptContent::Value& value : values) {
        result += QString::fromStdString(value.spelling);
    }
    return result;
}

/// The nodes as a writer of so many children of members 0 to 2 meets them, with the children between them.
QString written(const KeptContent& kept, const QVector<int>& children)
{
    QStringList result;
    KeptContent::NodeCursor cursor(&kept);
    for (int member = 0; member < children.size(); ++member) {
        for (int child = 1; child <= children[member]; ++child) {
            const auto position = Position::behind(static_cast<KeptContent::MemberIndex>(member),
                                                   static_cast<std::size_t>(child));
            while (const KeptContent::Node* const node = cursor.takeInFrontOf(position)) {
                result += QString::fromStdString(node->xml);
            }
            result += QString("%1.%2").arg(member).arg(child);
        }
    }
    while (const KeptContent::Node* const node = cursor.take()) {
        result += QString::fromStdString(node->xml);
    }
    return result.join(' ');
}

} // namespace

/// What the class itself promises; what comes back in a document is the matter of keptcontenttest.
class KeptContentClassTest : public QObject
{
    Q_OBJECT

private slots:
    void nodesStandBetweenTheChildren()
    {
        KeptContent kept;
        kept.addNode(node("front", Position::inFront()));
        kept.addNode(node("a", Position::behind(0, 1)));
        kept.addNode(node("b", Position::behind(1, 2)));
        kept.addNode(node("c", Position::behind(2, 1)));
        kept.seal();
        QCOMPARE(written(kept, {1, 3, 1}), QString("front 0.1 a 1.1 1.2 b 1.3 2.1 c"));
        // Children that have come or gone move no node in front of an earlier child.
        QCOMPARE(written(kept, {2, 3, 1}), QString("front 0.1 a 0.2 1.1 1.2 b 1.3 2.1 c"));
        QCOMPARE(written(kept, {0, 1, 1}), QString("front a 1.1 b 2.1 c"));
        QCOMPARE(written(kept, {0, 0, 0}), QString("front a b c"));
    }

    void nodesThatComeLateAreSortedByPositionThenByDocument()
    {
        KeptContent kept;
        kept.addNode(node("late", Position::behind(2, 1)));
        kept.addNode(node("first", Position::behind(1, 1)));
        kept.addNode(node("second", Position::behind(1, 1)));
        kept.addNode(node("front", Position::inFront()));
        kept.addNode(node("latest", Position::behind(2, 1)));
        kept.seal();
        QCOMPARE(markupOf(kept), QStringList({"front", "first", "second", "late", "latest"}));
    }

    void behindAllIsBehindEveryChildOfTheMember()
    {
        KeptContent kept;
        kept.addNode(node("next", Position::behind(2, 1)));
        kept.addNode(node("all", Position::behindAll(1)));
        kept.addNode(node("one", Position::behind(1, 1)));
        kept.seal();
        QCOMPARE(written(kept, {1, 1, 1}), QString("0.1 1.1 one all 2.1 next"));
        QCOMPARE(written(kept, {1, 4, 1}), QString("0.1 1.1 one 1.2 1.3 1.4 all 2.1 next"));
    }

    void aCursorOverNothingIsAtItsEnd()
    {
        KeptContent::NodeCursor none(nullptr);
        QVERIFY(none.take() == nullptr);
        QVERIFY(none.takeInFrontOf(Position::behind(3, 1)) == nullptr);
        const KeptContent empty;
        KeptContent::NodeCursor cursor(&empty);
        QVERIFY(cursor.take() == nullptr);
    }

    void whiteSpaceIsKeptOnlyBesideText()
    {
        const auto sealed = [](const char* text, Kind kind) {
            KeptContent kept;
            kept.addNode(node(" \n", Position::inFront(), Kind::Text));
            kept.addNode(node(text, Position::behind(0, 1), kind));
            kept.addNode(node("\t", Position::behind(0, 2), Kind::Text));
            kept.seal();
            return kept;
        };
        QCOMPARE(markupOf(sealed("word", Kind::Text)), QStringList({" \n", "word", "\t"}));
        QVERIFY(sealed("word", Kind::Text).hasText());
        QCOMPARE(markupOf(sealed("<!--word-->", Kind::Comment)), QStringList({"<!--word-->"}));
        QVERIFY(!sealed("<!--word-->", Kind::Comment).hasText());
        QCOMPARE(markupOf(sealed(" ", Kind::Text)), QStringList());
    }

    void valuesAreFoundByMemberInTheirOrder()
    {
        KeptContent kept;
        kept.addValue(value(4, 0, "e"));
        kept.addValue(value(2, 3, "d"));
        kept.addValue(value(2, 0, "b"));
        kept.addValue(nilValue(2, 3));
        kept.addSpelling(std::nullopt, "own");
        kept.addSpelling(1, "a");
        kept.seal();
        QCOMPARE(spellingsOf(kept.valuesOf(0)), QStringList());
        QCOMPARE(spellingsOf(kept.valuesOf(1)), QStringList({"a"}));
        QCOMPARE(spellingsOf(kept.valuesOf(2)), QStringList({"b", "d", "nil"}));
        QCOMPARE(spellingsOf(kept.valuesOf(3)), QStringList());
        QCOMPARE(spellingsOf(kept.valuesOf(4)), QStringList({"e"}));
        QCOMPARE(spellingsOf(kept.valuesOf(std::nullopt)), QStringList({"own"}));
    }

    void spellings()
    {
        KeptContent kept;
        QVERIFY(kept.spellingOf(std::nullopt).empty());
        QVERIFY(kept.spellingOf(0).empty());
        kept.addSpelling(0, "1");
        kept.addSpelling(std::nullopt, "+00:00");
        kept.seal();
        QVERIFY(kept.spellingOf(0) == "1");
        QVERIFY(kept.spellingOf(1).empty());
        QVERIFY(kept.spellingOf(std::nullopt) == "+00:00");
    }

    void nilValuesAreKnownBeforeTheContentIsSealed()
    {
        KeptContent kept;
        kept.addValue(nilValue(5, 0));
        kept.addValue(value(1, 0, "1"));
        QVERIFY(kept.hasAbsentValue(5));
        QVERIFY(!kept.hasAbsentValue(1));
        QVERIFY(!kept.hasAbsentValue(0));
    }

    void nilIsAnAttributeOfItsNamespace()
    {
        const auto uri = std::make_shared<const std::string>("http://www.w3.org/2001/XMLSchema-instance");
        const auto other = std::make_shared<const std::string>("urn:other");
        KeptContent kept;
        kept.addAttribute({"", nullptr, "nil", "true"});
        kept.addAttribute({"x", other, "nil", "true"});
        kept.addAttribute({"xsi", uri, "type", "x"});
        QVERIFY(!kept.hasNilAttribute());
        kept.addAttribute({"i", uri, "nil", "false"});
        QVERIFY(kept.hasNilAttribute());
        QCOMPARE(int(kept.attributes().size()), 4);
    }

    void aPrefixMeansWhatTheInnermostDeclarationSays()
    {
        const auto uri = [](const char* text) { return std::make_shared<const std::string>(text); };
        const auto outer = std::make_shared<KeptContent::Scope>();
        outer->declarations = {{"a", uri("urn:a")}, {"b", uri("urn:b")}};
        KeptContent::Scope inner;
        inner.declarations = {{"b", uri("urn:c")}, {"b", uri("urn:d")}, {"", uri("urn:e")}};
        inner.outer = outer;
        QVERIFY(*inner.namespaceOf("a") == "urn:a");
        QVERIFY(*inner.namespaceOf("b") == "urn:d");
        QVERIFY(*inner.namespaceOf("") == "urn:e");
        QVERIFY(*outer->namespaceOf("b") == "urn:b");
        QVERIFY(inner.namespaceOf("c") == nullptr);
    }

    void anObjectHasKeptContentOnlyOnceItIsAskedFor()
    {
        gml::CodeType object("1000");
        QVERIFY(KeptContent::find(object) == nullptr);
        KeptContent& kept = KeptContent::of(object);
        QVERIFY(KeptContent::find(object) == &kept);
        QVERIFY(&KeptContent::of(object) == &kept);
    }

    void anObjectOfWhichNothingIsLeftToSayHasNone()
    {
        gml::CodeType object("1000");
        KeptContent::seal(object);
        QVERIFY(KeptContent::find(object) == nullptr);
        KeptContent::of(object).addNode(node(" ", Position::inFront(), Kind::Text));
        KeptContent::seal(object);
        QVERIFY(KeptContent::find(object) == nullptr);
        KeptContent::of(object).addNode(node("<!---->", Position::inFront(), Kind::Comment));
        KeptContent::seal(object);
        QCOMPARE(markupOf(*KeptContent::find(object)), QStringList({"<!---->"}));
    }

    void aCopyHasItsOwn()
    {
        const gml::CodeType original = fromDocument("1000", "x");
        gml::CodeType copy(original);
        KeptContent::of(copy).addSpelling(std::nullopt, "new");
        QCOMPARE(markupOf(*KeptContent::find(original)), QStringList({"x"}));
        QCOMPARE(markupOf(*KeptContent::find(copy)), QStringList({"x"}));
        QVERIFY(KeptContent::find(original)->spellingOf(std::nullopt).empty());
        QCOMPARE(KeptContent::elementName(copy), 7u);
        QVERIFY(KeptContent::isSpelledOut(copy, 2));
        QVERIFY(!KeptContent::isSpelledOut(copy, 1));
    }

    // A value that a program made says nothing about the document.
    void anEditKeepsWhatTheDocumentSaid()
    {
        gml::FeaturePropertyType object;
        mark(object, "x");
        object = gml::FeaturePropertyType();
        QCOMPARE(markupOf(*KeptContent::find(object)), QStringList({"x"}));
        QCOMPARE(KeptContent::elementName(object), 7u);
        QVERIFY(KeptContent::isSpelledOut(object, 2));
    }

    void anObjectOfADocumentBringsItsOwn()
    {
        gml::FeaturePropertyType object, other, bare;
        mark(object, "x");
        mark(other, "y");
        object = other;
        QCOMPARE(markupOf(*KeptContent::find(object)), QStringList({"y"}));
        KeptContent::setElementName(bare, 8);
        object = bare;
        QVERIFY(KeptContent::find(object) == nullptr);
        QCOMPARE(KeptContent::elementName(object), 8u);
        QVERIFY(!KeptContent::isSpelledOut(object, 2));
    }

    // The run-time assigns its characters alone.
    void aStringKeepsItsOwn()
    {
        gml::CodeType object = fromDocument("1000", "x");
        object = fromDocument("2000", "y");
        QVERIFY(static_cast<const std::string&>(object) == "2000");
        QCOMPARE(markupOf(*KeptContent::find(object)), QStringList({"x"}));
    }

    void assignmentToItselfChangesNothing()
    {
        gml::CodeType object = fromDocument("1000", "x");
        const gml::CodeType& same = object;
        object = same;
        QCOMPARE(markupOf(*KeptContent::find(object)), QStringList({"x"}));
    }

private:
    /// Gives an object element name 7 and a node, and spells out its second defaulted attribute.
    static void mark(xml_schema::type& object, const char* xml)
    {
        KeptContent::setElementName(object, 7);
        KeptContent::setSpelledOut(object, 2);
        KeptContent::of(object).addNode(node(xml, Position::inFront()));
        KeptContent::of(object).seal();
    }
    static gml::CodeType fromDocument(const char* code, const char* xml)
    {
        gml::CodeType object(code);
        mark(object, xml);
        return object;
    }
};

TEST_CLASS(KeptContentClassTest, None)
#include "keptcontentclasstest.moc"
