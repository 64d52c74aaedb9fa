// Identifiers of a document that are changed, moved and deleted.

#include "gml/FeaturePropertyType.hxx"
#include "support/CityGMLModelFixture.h"
#include "support/TestClass.h"

#include <functional>
#include <memory>
#include <QtTest>
#include <vector>

using namespace testsupport;

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr, which the schema classes speak

namespace {

using Id = gml::AbstractGMLType::id_type;

std::unique_ptr<core::CityModelType> documentOf(const std::vector<std::string>& ids)
{
    auto document = std::make_unique<core::CityModelType>();
    for (const std::string& id : ids) {
        addMember(*document, makeBuilding(id));
    }
    return document;
}

gml::AbstractFeatureType& memberOf(core::CityModelType& document, std::size_t index)
{
    return document.featureMember()[index]._Feature().get();
}

std::string idOf(const gml::AbstractFeatureType& feature)
{
    return feature.id().get();
}

bool isRefused(const std::function<void()>& change)
{
    try {
        change();
    } catch (const xsd::cxx::tree::duplicate_id<char>&) {
        return true;
    }
    return false;
}

/// Whether no further feature of the document may have the identifier.
bool isTaken(core::CityModelType& document, const std::string& id)
{
    gml::AbstractFeatureType* const feature = addMember(document, bldg::BuildingType());
    const bool taken = isRefused([&] { feature->id(Id(id)); });
    document.featureMember().pop_back();
    return taken;
}

} // namespace

class IdentifierTest : public QObject
{
    Q_OBJECT

private slots:
    void setInPlace()
    {
        const auto document = documentOf({"a", "b"});
        memberOf(*document, 0).id().get() = "c";
        QCOMPARE(idOf(memberOf(*document, 0)), std::string("c"));
        QVERIFY(isTaken(*document, "c"));
        QVERIFY(!isTaken(*document, "a"));
        memberOf(*document, 0).id().get() = "c";
        QVERIFY(isTaken(*document, "c"));
    }

    /// It stays what it was, and all identifiers go with the document, of which a wrong one would end the
    /// program.
    void oneInUseIsRefusedInPlace()
    {
        const auto document = documentOf({"a", "b"});
        Id& first = memberOf(*document, 0).id().get();
        const Id used("b");
        const std::vector<std::function<void()>> changes{
            [&] { first = "b"; },
            [&] { first = 'b'; },
            [&] { first = std::string("b"); },
            [&] { first = used; },
            [&] { memberOf(*document, 0).id(used); },
            [&] { memberOf(*document, 0).id(std::auto_ptr<Id>(new Id("b"))); },
        };
        for (const auto& change : changes) {
            QVERIFY(isRefused(change));
            QCOMPARE(idOf(memberOf(*document, 0)), std::string("a"));
            QCOMPARE(idOf(memberOf(*document, 1)), std::string("b"));
            QVERIFY(isTaken(*document, "a"));
            QVERIFY(isTaken(*document, "b"));
        }
    }

    void emptiedAndFilled()
    {
        const auto document = documentOf({"a"});
        Id& id = memberOf(*document, 0).id().get();
        id = "";
        QVERIFY(!isTaken(*document, "a"));
        id = 'z';
        QVERIFY(isTaken(*document, "z"));
    }

    void takenAway()
    {
        const auto document = documentOf({"a", "b", "c"});
        {
            const std::auto_ptr<Id> detached = memberOf(*document, 0).id().detach();
            QCOMPARE(static_cast<const std::string&>(*detached), std::string("a"));
        }
        memberOf(*document, 1).id().reset();
        document->featureMember().pop_back();
        for (const char* id : {"a", "b", "c"}) {
            QVERIFY2(!isTaken(*document, id), id);
        }
    }

    void movedToAnotherFeature()
    {
        const auto document = documentOf({"a"});
        gml::AbstractFeatureType* const other = addMember(*document, bldg::BuildingType());
        other->id(memberOf(*document, 0).id().detach());
        QCOMPARE(idOf(*other), std::string("a"));
        QVERIFY(isTaken(*document, "a"));
        other->id().get() = "b";
        QVERIFY(!isTaken(*document, "a"));
    }

    /// A feature that is moved into a document as it is may bring an identifier that is in use.
    void aTwinFromElsewhere()
    {
        const auto document = documentOf({"a"});
        auto* const member = new gml::FeaturePropertyType;
        member->_Feature(makeBuilding("a"));
        document->featureMember().push_back(std::auto_ptr<gml::FeaturePropertyType>(member));
        QVERIFY(isTaken(*document, "a"));

        document->featureMember().pop_back();
        QVERIFY(isTaken(*document, "a"));
        document->featureMember().clear();
        QVERIFY(!isTaken(*document, "a"));
    }

    void laterLoadsSurviveARefusedIdentifier()
    {
        OpenModel model;
        model.loadText(town(2));
        Id& id = model.getFeature("b1")->id().get();
        QVERIFY(isRefused([&] { id = "b2"; }));
        model.loadText(town(3));
        QCOMPARE(model.rowCount(), 4);
    }

    void aChangedFeatureIsFoundUnderItsFormerIdentifier()
    {
        OpenModel model;
        model.loadText(town(2));
        gml::AbstractFeatureType* const feature = model.getFeature("b1");
        feature->id(Id("new"));
        QCOMPARE(model.getFeature("b1"), feature);
        model.dataSetChanged();
        QCOMPARE(model.getFeature(std::string("b1")), nullptr);
        QCOMPARE(model.getFeature("new"), feature);
    }

    void aRemovedFeatureIsFoundUnderNoIdentifier_data()
    {
        QTest::addColumn<bool>("isChanged");
        QTest::newRow("changed once more") << true;
        QTest::newRow("as it was when the second row came") << false;
    }

    /// Nothing leads to a feature any more that has lost its row and died.
    void aRemovedFeatureIsFoundUnderNoIdentifier()
    {
        QFETCH(bool, isChanged);
        // With two rows for one feature, which the item model tester would not accept: a model without it.
        tolvik::CityGMLModel model(nullptr, nullptr);
        model.load(std::auto_ptr<core::CityModelType>(documentOf({"a", "b", "c"}).release()));
        gml::AbstractFeatureType* const feature = model.getFeature("c");
        feature->id(Id("d"));
        model.append(feature);
        if (isChanged) {
            feature->id(Id("e"));
        }
        for (const char* id : {"c", "d"}) {
            QCOMPARE(model.getFeature(id), feature);
        }

        model.removeFeature(feature);
        model.cityGML()->featureMember().pop_back();
        for (const char* const id : {"c", "d", "e"}) {
            QCOMPARE(model.getFeature(id), nullptr);
        }
        QCOMPARE(model.getRow(model.getFeature("b")), 2);
    }

    /// The identifier that a feature has by now may be the key of another one.
    void aRemovedFeatureTakesTheKeyOfItsNewIdentifier()
    {
        OpenModel model;
        model.load(std::auto_ptr<core::CityModelType>(documentOf({"a", "b"}).release()));
        gml::AbstractFeatureType* const a = model.getFeature("a");
        gml::AbstractFeatureType* const b = model.getFeature("b");
        b->id(Id("c"));
        a->id(Id("b"));
        model.removeFeature(a);
        QCOMPARE(model.getFeature(std::string("a")), nullptr);
        QCOMPARE(model.getFeature(std::string("b")), nullptr);
        QCOMPARE(model.getRow(b), 1);
        model.removeFeature(b);
        QCOMPARE(model.rowCount(), 1);
    }
};

TEST_CLASS(IdentifierTest, Widgets)
#include "identifiertest.moc"
