#include "bldg/BuildingPartPropertyType.hxx"
#include "bldg/BuildingPartType.hxx"
#include "bldg/BuildingType.hxx"
#include "core/CityModelType.hxx"
#include "energy/ThermalZoneType.hxx"
#include "gen/StringAttributeType.hxx"
#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/ExpectedProperties.h"
#include "support/Filler.h"
#include "support/PropertyDump.h"
#include "support/PropertyText.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"

#include <QtTest>

using namespace testsupport;

using tolvik::BoundProperty;
using tolvik::CoreProperty;

namespace {

/// All properties of a tree that are bound to the document.
void collectBound(CoreProperty& property, std::vector<BoundProperty*>& bound)
{
    if (auto* const one = dynamic_cast<BoundProperty*>(&property)) {
        bound.push_back(one);
    }
    for (const auto& child : property.properties()) {
        collectBound(*child, bound);
    }
}

std::vector<BoundProperty*> boundBelow(CoreProperty& root)
{
    std::vector<BoundProperty*> bound;
    collectBound(root, bound);
    return bound;
}

/// A value of the property's kind that it does not have.
QVariant otherValue(BoundProperty& property)
{
    for (const QVariant& literal : property.potentialValues()) {
        if (literal != property.value()) {
            return literal;
        }
    }
    switch (static_cast<QMetaType::Type>(property.defaultValue().userType())) {
    case QMetaType::Bool:
        return !property.value().toBool();
    case QMetaType::QDate:
        return QDate(2001, 2, 3);
    case QMetaType::QDateTime:
        return QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6));
    case QMetaType::QVariantList:
        return QVariantList{3, 4, 5};
    case QMetaType::QString:
        return QString("edited");
    default:
        return 1234;
    }
}

BoundProperty& boundAt(const Fondo::RefPtr<CoreProperty>& root, const QStringList& path)
{
    auto* const property = dynamic_cast<BoundProperty*>(findProperty(root, path));
    if (property == nullptr) {
        throw std::runtime_error("no bound property " + path.join('/').toStdString());
    }
    return *property;
}

bldg::BuildingType& buildingIn(FeatureDocument& document)
{
    return dynamic_cast<bldg::BuildingType&>(document.feature());
}

} // namespace

/// States of members: absent, captured and put back to the letter.
class MemberStateTest : public QObject
{
    Q_OBJECT

private:
    QSet<QString> known;

    /// Whether a property of that kind has been looked at: features have many of the same.
    bool isKnown(const BoundProperty& property)
    {
        const QString kind = classOf(property) + ' ' + QString::fromStdString(property.member().name());
        const bool isNew = !known.contains(kind);
        known.insert(kind);
        return !isNew;
    }

private slots:
    void initTestCase()
    {
        for (const auto& row : readTable("rows.tsv")) {
            Filler::wantedTypes() += row.value("type");
        }
    }

    void everyMemberComesBack_data()
    {
        QTest::addColumn<QString>("type");
        for (std::size_t i = 0; i < allTypesCount; ++i) {
            const QString name = className(allTypes[i]);
            const bool isElement =
                std::any_of(allElements, allElements + allElementsCount, [&](const ElementRecord& element) {
                    return element.type == allTypes[i] && !element.isAbstract;
                });
            if (isElement && isFeature(allTypes[i]) && name != "core::CityModelType") {
                QTest::newRow(qPrintable(name)) << name;
            }
        }
    }

    /// For each kind of property. Features that have everything have them all, also where the features inside
    /// have no more than they need.
    void everyMemberComesBack()
    {
        QFETCH(QString, type);
        const std::unique_ptr<xml_schema::type> made = Filler(true, false).make(recordByClass(type));
        FeatureDocument document(dynamic_cast<const gml::AbstractFeatureType&>(*made));
        const QByteArray before = document.text();
        const Fondo::RefPtr<CoreProperty> root = propertiesOf(document, false);
        for (BoundProperty* const property : boundBelow(*root)) {
            if (isKnown(*property)) {
                continue;
            }
            const bool wasPresent = property->present();
            const citygml::MemberState state = property->capture();
            property->setValue(otherValue(*property));
            if (property->editable()) {
                property->clear();
                QVERIFY2(!property->present(), qPrintable(property->name()));
                QCOMPARE(document.text() == before, !wasPresent);
            }
            QVERIFY2(property->restore(state), qPrintable(property->name()));
            QCOMPARE(property->present(), wasPresent);
            QVERIFY2(document.text() == before, qPrintable(property->name()));
        }
    }

    void theStateIsThatOfTheDocument_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isPresent");
        const auto add = [](const char* name, const QByteArray& content, const char* path, bool isPresent) {
            QTest::newRow(name) << content << path << isPresent;
        };
        add("absent", "", "Fields/Class", false);
        add("code space", "<bldg:class codeSpace=\"x\" x:note=\"y\">10<!--z-->00</bldg:class>",
            "Fields/Class", true);
        add("nil", "<bldg:storeysAboveGround xsi:nil=\"true\"/>", "Fields/StoreysAboveGround", true);
        add("wrong number", "<bldg:storeysAboveGround>high</bldg:storeysAboveGround>",
            "Fields/StoreysAboveGround", true);
        add("comment", "<bldg:storeysAboveGround>3<!--z--></bldg:storeysAboveGround>",
            "Fields/StoreysAboveGround", true);
        add("wrong measure", "<bldg:measuredHeight uom=\"m\">high</bldg:measuredHeight>",
            "Fields/MeasuredHeight", true);
        add("lacking unit", "<bldg:measuredHeight>12.5</bldg:measuredHeight>", "Fields/MeasuredHeight", true);
        add("time zone", "<bldg:yearOfConstruction>1984+01:00</bldg:yearOfConstruction>",
            "Fields/YearOfConstruction", true);
        add("wrong literal", "<core:relativeToTerrain>high</core:relativeToTerrain>",
            "Fields/RelativeToTerrain", true);
        add("spelled literal", "<core:relativeToTerrain>EntirelyAboveTerrain</core:relativeToTerrain>",
            "Fields/RelativeToTerrain", true);
        add("list",
            "<bldg:function codeSpace=\"a\">1</bldg:function><!--b--><bldg:function>2</bldg:function>",
            "Fields/Function", true);
        add("generic attribute",
            "<gen:measureAttribute name=\"m\"><gen:value uom=\"m\">1</gen:value></gen:measureAttribute>",
            "Fields/m", true);
        add("missing", "<gen:stringAttribute name=\"m\"/>", "Fields/m", false);
        add("missing number", "<gen:intAttribute name=\"m\"/>", "Fields/m", false);
        add("generic application attribute",
            "<e:isLandmarked xmlns:e=\"http://www.sig3d.org/citygml/2.0/energy/1.0\">1</e:isLandmarked>",
            "Properties/Energy/isLandmarked", true);
    }

    void theStateIsThatOfTheDocument()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, path);
        QFETCH(bool, isPresent);
        const Document document = read(documentWithBuilding(content));
        gml::AbstractFeatureType& feature = *featuresOf(*document).back();
        const QByteArray before = write(*document);
        citygml::MemberState state;
        {
            const Fondo::RefPtr<CoreProperty> root = propertiesOf(feature, false);
            BoundProperty& property = boundAt(root, path.split('/'));
            QCOMPARE(property.present(), isPresent);
            state = property.capture();
            property.setValue(otherValue(property));
            QVERIFY(property.present());
            QVERIFY(write(*document) != before);
        }
        // The tree that captured is gone.
        const Fondo::RefPtr<CoreProperty> root = propertiesOf(feature, false);
        BoundProperty& property = boundAt(root, path.split('/'));
        citygml::Member member = property.member();
        QVERIFY(property.restore(state));
        QCOMPARE(write(*document), before);
        QCOMPARE(member.present(), isPresent);
        member.clear();
        QVERIFY(!member.present());
        QCOMPARE(write(*document) == before, !isPresent);
        QVERIFY(member.restore(state));
        QCOMPARE(write(*document), before);
    }

    void aClearedElementIsGone()
    {
        FeatureDocument document(buildingText("<bldg:class codeSpace='x'>1</bldg:class><!--a-->"
                                              "<bldg:measuredHeight uom='m'>3</bldg:measuredHeight>"));
        const Fondo::RefPtr<CoreProperty> root = propertiesOf(document);
        boundAt(root, {"Fields", "Class"}).clear();
        QVERIFY(!document.text().contains("bldg:class"));
        QVERIFY(document.text().contains("<!--a-->"));
        QVERIFY(document.text().contains("uom=\"m\">3</bldg:measuredHeight>"));
    }

    void aStateGoesToTheSameMemberOnly()
    {
        FeatureDocument document(buildingText("<bldg:class>1</bldg:class><bldg:function>2</bldg:function>"));
        bldg::BuildingType& building = buildingIn(document);
        const QByteArray before = document.text();
        citygml::Member function(building, building.function());
        citygml::Member classCode(building, building.class_());
        QVERIFY(!function.restore(classCode.capture()));
        QVERIFY(!classCode.restore(citygml::MemberState()));
        QVERIFY(!function.put(0, function.capture()));
        QCOMPARE(document.text(), before);

        bldg::BuildingType other;
        QVERIFY(citygml::Member(other, other.class_()).restore(classCode.capture()));
        QCOMPARE(QString::fromStdString(*other.class_()), QString("1"));
        QVERIFY_EXCEPTION_THROWN(citygml::Member(other, building.class_()), std::invalid_argument);
    }

    /// Models and views hold the features that stand in a member.
    void theObjectsStay()
    {
        const Document document = read(documentWithBuilding(
            "<bldg:consistsOfBuildingPart><bldg:BuildingPart gml:id='part'><bldg:class>1</bldg:class>"
            "<bldg:boundedBy><bldg:WallSurface gml:id='wall'/></bldg:boundedBy></bldg:BuildingPart>"
            "</bldg:consistsOfBuildingPart>"));
        const QByteArray before = write(*document);
        const std::list<gml::AbstractFeatureType*> features = featuresOf(*document);
        auto& building = dynamic_cast<bldg::BuildingType&>(*document->featureMember().front()._Feature());
        citygml::Member parts(building, building.consistsOfBuildingPart());
        const citygml::MemberState state = parts.capture();
        building.consistsOfBuildingPart().front().BuildingPart()->class_(gml::CodeType("2"));
        QVERIFY(write(*document) != before);
        QVERIFY(parts.restore(state));
        QCOMPARE(write(*document), before);
        QVERIFY(featuresOf(*document) == features);
    }

    void listsHaveEntries()
    {
        FeatureDocument document(buildingText("<bldg:function codeSpace='a'>1</bldg:function>"
                                              "<!--between--><bldg:function>2</bldg:function>"));
        bldg::BuildingType& building = buildingIn(document);
        const QByteArray before = document.text();
        QStringList names;
        for (citygml::Member& list : citygml::Member::textLists(building)) {
            names += QString::fromStdString(list.name());
            QVERIFY(list.isList());
        }
        QCOMPARE(names, QStringList({"name", "function", "usage"}));
        citygml::Member function(building, building.function());
        QCOMPARE(function.size(), std::size_t(2));
        QVERIFY(function.add("3"));
        QVERIFY(document.text().contains("<bldg:function>3</bldg:function>"));
        const citygml::MemberState third = function.take(2);
        QCOMPARE(document.text(), before);
        const gml::CodeType* const object = &building.function()[0];
        const citygml::MemberState first = function.take(0);
        QCOMPARE(building.function().size(), std::size_t(1));
        QVERIFY(function.put(0, first));
        QCOMPARE(&building.function()[0], object);
        QCOMPARE(document.text(), before);
        QVERIFY(function.put(1, third) && function.put(1, third));
        QCOMPARE(building.function().size(), std::size_t(4));
    }

    void listsOfNumbersTakeNoText()
    {
        FeatureDocument document(buildingText(""));
        bldg::BuildingType& building = buildingIn(document);
        QVERIFY(!citygml::Member(building, building.measuredHeight()).add("3"));
        QVERIFY(!citygml::Member(building, building.consistsOfBuildingPart()).add("3"));
    }

    void aTextLeavesWhatStandsWithTheValue_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("code space") << QByteArray(
                                           "<bldg:class codeSpace=\"x\" x:note=\"y\">1000</bldg:class>")
                                    << "Fields/Class" << QByteArray("1010")
                                    << QByteArray("codeSpace=\"x\" x:note=\"y\">1010</bldg:class>");
        QTest::newRow("unit") << QByteArray("<bldg:measuredHeight uom=\"m\">1</bldg:measuredHeight>")
                              << "Fields/MeasuredHeight" << QByteArray("2.5")
                              << QByteArray("<bldg:measuredHeight uom=\"m\">2.5</bldg:measuredHeight>");
        QTest::newRow("large number") << QByteArray("<bldg:storeysAboveGround>3</bldg:storeysAboveGround>")
                                      << "Fields/StoreysAboveGround" << QByteArray("9007199254740993")
                                      << QByteArray(">9007199254740993</bldg:storeysAboveGround>");
        QTest::newRow("zone") << QByteArray("<bldg:yearOfConstruction>1984+01:00</bldg:yearOfConstruction>")
                              << "Fields/YearOfConstruction" << QByteArray("1985+01:00")
                              << QByteArray(">1985+01:00</bldg:yearOfConstruction>");
        QTest::newRow("absent") << QByteArray("") << "Fields/Class" << QByteArray("1010")
                                << QByteArray("<bldg:class>1010</bldg:class>");
        QTest::newRow("position") << QByteArray("<gml:boundedBy><gml:Envelope><gml:lowerCorner>1 2 3"
                                                "</gml:lowerCorner></gml:Envelope></gml:boundedBy>")
                                  << "Fields/Envelope/LowerCorner" << QByteArray("4 5.5 6")
                                  << QByteArray(">4 5.5 6</gml:lowerCorner>");
        QTest::newRow("wrong before")
            << QByteArray("<bldg:measuredHeight uom=\"m\">high</bldg:measuredHeight>")
            << "Fields/MeasuredHeight" << QByteArray("2.5")
            << QByteArray("<bldg:measuredHeight uom=\"m\">2.5</bldg:measuredHeight>");
    }

    void aTextLeavesWhatStandsWithTheValue()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, path);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, written);
        const Document document = read(documentWithBuilding(content));
        gml::AbstractFeatureType& feature = *featuresOf(*document).back();
        const QByteArray before = write(*document);
        const Fondo::RefPtr<CoreProperty> root = propertiesOf(feature, false);
        citygml::Member member = boundAt(root, path.split('/')).member();
        const citygml::MemberState state = member.capture();
        QVERIFY(member.setText(text.toStdString()));
        QVERIFY2(write(*document).contains(written), write(*document));
        QCOMPARE(QByteArray::fromStdString(*member.text()), text);
        QVERIFY(member.restore(state));
        QCOMPARE(write(*document), before);
    }

    void aTextThatIsNoValueChangesNothing()
    {
        FeatureDocument document(buildingText("<bldg:storeysAboveGround>3</bldg:storeysAboveGround>"
                                              "<bldg:function>1</bldg:function>"));
        bldg::BuildingType& building = buildingIn(document);
        const QByteArray before = document.text();
        QVERIFY(!citygml::Member(building, building.storeysAboveGround()).setText("high"));
        QVERIFY(!citygml::Member(building, building.function()).setText("2"));
        QVERIFY(!citygml::Member(building, building.measuredHeight()).setText("2.5")); // has no unit
        QVERIFY(!citygml::Member(building, building.creationDate()).setText("spring"));
        QVERIFY(!citygml::Member(building, building.boundedBy()).setText("1"));
        QCOMPARE(document.text(), before);
    }

    void membersAreNamed()
    {
        FeatureDocument document(
            buildingText("<bldg:function>1</bldg:function><bldg:function>2</bldg:function>"));
        bldg::BuildingType& building = buildingIn(document);
        const std::optional<citygml::Member> function = citygml::Member::named(building, "function");
        QVERIFY(function && function->size() == 2 && !function->isRequired());
        QVERIFY(!citygml::Member::named(building, "no such"));
        const citygml::Member second = citygml::Member::holding(building.function()[1]);
        QCOMPARE(second.position(), std::size_t(1));
        QCOMPARE(second.list().size(), std::size_t(2));
        QCOMPARE(&second.object(), &building);
        QCOMPARE(QString::fromStdString(*function->entryAt(1).text()), "2");
    }

    void aClearedEntryComesBackAmongTheOthers()
    {
        FeatureDocument document(
            buildingText("<bldg:function codeSpace='a'>1</bldg:function>"
                         "<bldg:function>2</bldg:function><bldg:function>3</bldg:function>"));
        bldg::BuildingType& building = buildingIn(document);
        const QByteArray before = document.text();
        citygml::Member first = citygml::Member::holding(building.function()[0]);
        const citygml::MemberState state = first.capture();
        first.clear();
        QCOMPARE(building.function().size(), std::size_t(2));
        QVERIFY(first.restore(state));
        QCOMPARE(document.text(), before);
        static_cast<std::string&>(building.function()[0]) = "edited";
        QVERIFY(document.text() != before);
        QVERIFY(first.restore(first.capture()));
    }

    void aGenericAttributeCanComeAndGo()
    {
        FeatureDocument document(buildingText(
            "<gen:stringAttribute name='a'><gen:value>1</gen:value></gen:stringAttribute>"
            "<gen:stringAttribute name='b'><gen:value>2<!--c--></gen:value></gen:stringAttribute>"));
        bldg::BuildingType& building = buildingIn(document);
        const QByteArray before = document.text();
        citygml::Member attributes(building, building._GenericApplicationPropertyOfCityObject());
        const auto* const second = &building._GenericApplicationPropertyOfCityObject()[1];
        const citygml::MemberState taken = attributes.take(1);
        QVERIFY(!document.text().contains("name=\"b\""));
        QVERIFY(attributes.put(1, taken));
        QCOMPARE(&building._GenericApplicationPropertyOfCityObject()[1], second);
        QCOMPARE(document.text(), before);
        building._GenericApplicationPropertyOfCityObject().push_back(gen::StringAttributeType("c", "3"));
        QVERIFY(document.text().contains("name=\"c\""));
        attributes.take(2);
        QCOMPARE(document.text(), before);
    }
};

TEST_CLASS(MemberStateTest, Core)
#include "memberstatetest.moc"
