// The members of schema objects: at most one object, exactly one, any number.

#include "bldg/BuildingType.hxx"
#include "gml/CodeType.hxx"
#include "gml/StringOrRefType.hxx"
#include "support/TestClass.h"

#include <QtTest>
#include <string>
#include <vector>

using namespace testsupport;

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr, which the schema classes speak

namespace {

using Name = gml::CodeType;
using Names = xsd::cxx::tree::sequence<Name>;
using Description = gml::StringOrRefType;
using Container = xsd::cxx::tree::type;

std::auto_ptr<Name> owned(const char* text)
{
    return std::auto_ptr<Name>(new Name(text));
}

/// The texts with a blank behind each; every place has an object.
std::string texts(const Names& names)
{
    std::string result;
    for (const Name& name : names) {
        result += static_cast<const std::string&>(name) + ' ';
    }
    return result;
}

bool allBelongTo(const Names& names, const Container& container)
{
    for (const Name& name : names) {
        if (name._container() != &container) {
            return false;
        }
    }
    return true;
}

} // namespace

class SchemaContainersTest : public QObject
{
    Q_OBJECT

private slots:
    void membersAreSmall();
    void anAbsentMemberBecomesPresentAndAbsentAgain();
    void aCopyOfAMemberIsIndependent();
    void aMemberKeepsTheDynamicTypeOfItsValue();
    void aDetachedObjectHasNoContainer();
    void nullLeavesAMemberAbsent();
    void assignmentOfItsOwnValueChangesNothing();
    void optionalFundamentals();
    void comparisons();
    void aSequenceGrowsAtBothEndsAndInTheMiddle();
    void rangesAndCounts();
    void erasingAndResizing();
    void detachingFromASequence();
    void iteratorsAreRandomAccess();
    void copiesOfSequences();
    void identifiersFollowTheirObjects();
};

void SchemaContainersTest::membersAreSmall()
{
    QCOMPARE(sizeof(xsd::cxx::tree::optional<Description>), sizeof(void*));
    QCOMPARE(sizeof(Names), sizeof(void*));
}

void SchemaContainersTest::anAbsentMemberBecomesPresentAndAbsentAgain()
{
    bldg::BuildingType building;
    QVERIFY(!building.description().present());
    QVERIFY(!building.description());

    building.description(Description("a"));
    QVERIFY(building.description().present());
    QCOMPARE(building.description()->_container(), static_cast<Container*>(&building));

    building.description().reset();
    QVERIFY(!building.description().present());

    // The member still knows where it is.
    building.description().set(std::auto_ptr<Description>(new Description("b")));
    QCOMPARE(building.description().get()._container(), static_cast<Container*>(&building));
    QCOMPARE(std::string(*building.description()), std::string("b"));
}

void SchemaContainersTest::aCopyOfAMemberIsIndependent()
{
    bldg::BuildingType building;
    building.description(Description("a"));
    bldg::BuildingType copy(building);
    *copy.description() = Description("b");
    QCOMPARE(std::string(*building.description()), std::string("a"));
    QCOMPARE(std::string(*copy.description()), std::string("b"));
    QCOMPARE(copy.description()->_container(), static_cast<Container*>(&copy));

    building.description().reset();
    copy.description() = building.description();
    QVERIFY(!copy.description().present());
}

void SchemaContainersTest::aMemberKeepsTheDynamicTypeOfItsValue()
{
    struct LongName : Name
    {
        using Name::Name;
        LongName(const LongName& other, xsd::cxx::tree::flags f, Container* c) : Name(other, f, c) {}
        LongName* _clone(xsd::cxx::tree::flags f, Container* c) const override
        {
            return new LongName(*this, f, c);
        }
    };
    bldg::BuildingType building;
    building.name().push_back(LongName("a"));
    building.class_(LongName("b"));
    QVERIFY(dynamic_cast<LongName*>(&building.name()[0]));
    QVERIFY(dynamic_cast<LongName*>(&building.class_().get()));
}

void SchemaContainersTest::aDetachedObjectHasNoContainer()
{
    bldg::BuildingType building;
    building.description(Description("a"));
    const std::auto_ptr<Description> detached = building.description().detach();
    QVERIFY(!building.description().present());
    QVERIFY(!detached->_container());
    building.description(Description("b"));
    QCOMPARE(building.description()->_container(), static_cast<Container*>(&building));
}

void SchemaContainersTest::nullLeavesAMemberAbsent()
{
    bldg::BuildingType building;
    building.description(Description("a"));
    building.description().set(std::auto_ptr<Description>());
    QVERIFY(!building.description().present());
}

void SchemaContainersTest::assignmentOfItsOwnValueChangesNothing()
{
    bldg::BuildingType building;
    building.description(Description("a"));
    const Description* const object = &*building.description();
    building.description() = *building.description();
    building.description() = building.description();
    QCOMPARE(static_cast<const Description*>(&*building.description()), object);
    // `set` takes a copy before it gives up what it copies from.
    building.description().set(*building.description());
    QCOMPARE(std::string(*building.description()), std::string("a"));
}

void SchemaContainersTest::optionalFundamentals()
{
    xsd::cxx::tree::optional<double> number;
    QVERIFY(!number.present());
    number = 0.5;
    QVERIFY(number && *number == 0.5 && number.get() == 0.5);
    const xsd::cxx::tree::optional<double> copy(number, 0, nullptr);
    number.reset();
    QVERIFY(!number && copy.present());

    xsd::cxx::tree::one<bool> flag(nullptr);
    QVERIFY(!flag.present() && !flag.get());
    flag.set(true);
    QVERIFY(flag.present() && flag.get());
}

void SchemaContainersTest::comparisons()
{
    using Number = xsd::cxx::tree::optional<int>;
    const Number none;
    const Number one(1);
    const Number two(2);
    QVERIFY(none == Number() && one == Number(1) && one != two && one != none);
    QVERIFY(none < one && one < two && two > one && one >= one && none <= none && !(one < none));
}

void SchemaContainersTest::aSequenceGrowsAtBothEndsAndInTheMiddle()
{
    bldg::BuildingType building;
    Names& names = building.name();
    QVERIFY(names.empty() && names.begin() == names.end());
    names.push_back(owned("c"));
    names.insert(names.begin(), owned("a"));
    const auto inserted = names.insert(names.begin() + 1, *owned("b"));
    QCOMPARE(std::string(*inserted), std::string("b"));
    QCOMPARE(texts(names), std::string("a b c "));
    QVERIFY(allBelongTo(names, building));

    // A value out of the sequence itself.
    for (int i = 0; i < 20; ++i) {
        names.push_back(names.front());
    }
    QCOMPARE(names.size(), std::size_t(23));
    QCOMPARE(std::string(names.back()), std::string("a"));
    QVERIFY(names.capacity() >= names.size());
    QVERIFY_EXCEPTION_THROWN(names.at(23), std::out_of_range);
    QCOMPARE(std::string(names.at(2)), std::string("c"));
}

void SchemaContainersTest::rangesAndCounts()
{
    bldg::BuildingType building;
    Names& names = building.name();
    const std::vector<Name> more{"x", "y"};
    names.assign(2, Name("a"));
    names.insert(names.begin() + 1, more.begin(), more.end());
    QCOMPARE(texts(names), std::string("a x y a "));
    names.insert(names.end(), 2, Name("z"));
    QCOMPARE(texts(names), std::string("a x y a z z "));
    names.assign(more.begin(), more.end());
    QCOMPARE(texts(names), std::string("x y "));
    QVERIFY(allBelongTo(names, building));
    QCOMPARE(texts(Names(more.begin(), more.end())), std::string("x y "));
    QCOMPARE(texts(Names(2, Name("q"))), std::string("q q "));
}

void SchemaContainersTest::erasingAndResizing()
{
    bldg::BuildingType building;
    Names& names = building.name();
    for (const char* text : {"a", "b", "c", "d", "e"}) {
        names.push_back(Name(text));
    }
    QCOMPARE(std::string(*names.erase(names.begin() + 1)), std::string("c"));
    QCOMPARE(texts(names), std::string("a c d e "));
    const auto behind = names.erase(names.begin() + 2, names.end());
    QVERIFY(behind == names.end());
    QCOMPARE(texts(names), std::string("a c "));
    names.pop_back();
    names.resize(3, Name("n"));
    QCOMPARE(texts(names), std::string("a n n "));
    names.resize(1);
    QCOMPARE(texts(names), std::string("a "));
    names.clear();
    QVERIFY(names.empty());
    names.push_back(Name("z"));
    QVERIFY(allBelongTo(names, building));
}

void SchemaContainersTest::detachingFromASequence()
{
    bldg::BuildingType building;
    Names& names = building.name();
    for (const char* text : {"a", "b", "c"}) {
        names.push_back(Name(text));
    }
    std::auto_ptr<Name> detached;
    const auto next = names.detach(names.begin(), detached);
    QCOMPARE(std::string(*next), std::string("b"));
    QCOMPARE(std::string(*detached), std::string("a"));
    QVERIFY(!detached->_container());
    QCOMPARE(std::string(*names.detach_back()), std::string("c"));
    QCOMPARE(texts(names), std::string("b "));

    // A place may stay without an object until something else is put there.
    detached = names.detach_back(false);
    QCOMPARE(names.size(), std::size_t(1));
    names.erase(names.begin());
    QVERIFY(names.empty());
}

void SchemaContainersTest::iteratorsAreRandomAccess()
{
    bldg::BuildingType building;
    Names& names = building.name();
    for (const char* text : {"b", "c", "a"}) {
        names.push_back(Name(text));
    }
    const Names& constant = names;
    QCOMPARE(names.end() - names.begin(), std::ptrdiff_t(3));
    QVERIFY(constant.begin() == names.begin() && names.begin() < constant.end());
    QCOMPARE(std::string(*names.rbegin()), std::string("a"));
    QCOMPARE(std::string(names.begin()[1]), std::string("c"));
    const auto largest = std::max_element(constant.begin(), constant.end(), [](const Name& a, const Name& b) {
        return static_cast<const std::string&>(a) < static_cast<const std::string&>(b);
    });
    QCOMPARE(largest - constant.begin(), std::ptrdiff_t(1));
    auto last = names.end();
    QCOMPARE(std::string(*--last), std::string("a"));
    QCOMPARE(std::string(*(last - 2)), std::string("b"));
}

void SchemaContainersTest::copiesOfSequences()
{
    bldg::BuildingType building;
    building.name().push_back(Name("a"));
    building.name().push_back(Name("b"));
    bldg::BuildingType copy(building);
    copy.name()[0] = Name("c");
    QCOMPARE(texts(building.name()), std::string("a b "));
    QVERIFY(allBelongTo(copy.name(), copy));

    Names& names = building.name();
    names = copy.name();
    QCOMPARE(texts(names), std::string("c b "));
    QVERIFY(allBelongTo(names, building));
    names = *&names;
    QCOMPARE(texts(names), std::string("c b "));
    names = Names();
    QVERIFY(names.empty());

    Names left;
    Names right(1, Name("r"));
    swap(left, right);
    QCOMPARE(texts(left), std::string("r "));
    QVERIFY(right.empty());
}

void SchemaContainersTest::identifiersFollowTheirObjects()
{
    bldg::BuildingType building;
    building.id(gml::AbstractGMLType::id_type("i"));
    QCOMPARE(building.id()->_container(), static_cast<Container*>(&building));
    QVERIFY(building.id()->_container()->_root() == nullptr);
    bldg::BuildingType copy(building);
    building.id().reset();
    // The identifier is free again.
    building.id(gml::AbstractGMLType::id_type("i"));
    QCOMPARE(std::string(*copy.id()), std::string("i"));
}

TEST_CLASS(SchemaContainersTest, None)
#include "schemacontainerstest.moc"
