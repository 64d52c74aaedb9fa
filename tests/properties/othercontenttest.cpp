#include "citygml/OtherContent.h"
#include "framework/CoreProperty.h"
#include "framework/PropertyProvider.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/LengthType.hxx"
#include "gml/SolidPropertyType.hxx"
#include "gml/SolidType.hxx"
#include "support/CityGMLModelFixture.h"
#include "support/Documents.h"
#include "support/FaultDocuments.h"
#include "support/Files.h"
#include "support/Mutants.h"
#include "support/PropertyText.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QtTest>

using namespace testsupport;

using tolvik::CoreProperty;

namespace {

const QString groupName = "Other content";

/// The model without the tester of items, and with the trees of its rows as they are, whether they have been
/// asked for or not.
class TreesModel : public tolvik::CityGMLModel
{
public:
    explicit TreesModel(const QByteArray& xml) : CityGMLModel(nullptr, nullptr) { load(xml); }

    using CityGMLModel::load;
    void load(const QByteArray& xml)
    {
        std::istringstream stream(xml.toStdString());
        CityGMLModel::load(stream);
    }

    using CoreModel::properties;

    /// The group of a row, or null.
    CoreProperty* group(int row) const { return getProperty(index(row, 0))->getProperty(groupName, false); }
    QByteArray saved() const { return write(*cityGML()); }
};

/// A line for each property below: its name and, in quotes, its text, if it has one.
QString textOf(const CoreProperty* group, const QString& indent = QString())
{
    QString text;
    if (group == nullptr) {
        return text;
    }
    for (const auto& child : group->properties()) {
        const QVariant value = child->value();
        text += indent + child->name();
        text += value.isValid() ? " '" + value.toString() + "'\n" : "\n";
        text += textOf(child.operator->(), indent + "  ");
    }
    return text;
}

/// The properties below that have a text.
QVector<CoreProperty*> textsIn(const CoreProperty* group)
{
    QVector<CoreProperty*> result;
    if (group == nullptr) {
        return result;
    }
    for (const auto& child : group->properties()) {
        if (child->editable()) {
            result.append(child.operator->());
        }
        result += textsIn(child.operator->());
    }
    return result;
}

QStringList differencesOf(const QByteArray& a, const QByteArray& b)
{
    return XmlNode::differences(XmlNode::parse(a), XmlNode::parse(b));
}

/// What every text is edited to, once.
QString editOf(const QString& text)
{
    return text + "edited <&> \"é 𝄞\" x:y";
}

/// Edits a text and takes the edit back.
/// \return what is wrong with that; empty where nothing is
QString errorOfEdit(const TreesModel& model, CoreProperty& property)
{
    const QByteArray before = model.saved();
    const QString text = property.value().toString();
    property.setValue(editOf(text));
    const QByteArray after = model.saved();
    const QStringList differences = differencesOf(before, after);
    if (differences.size() != 1) {
        return "differences: " + differences.join('\n');
    }
    if (property.value() != editOf(text)) {
        return "the text is " + property.value().toString();
    }
    if (write(*read(after)) != after) {
        return "the edited document is saved otherwise when it is read again";
    }
    property.setValue(text);
    return model.saved() == before ? QString() : QStringLiteral("what was edited does not come back");
}

/// Edits each text of a document in turn.
/// \param count becomes the number of texts
QString errorOfEdits(const QByteArray& xml, int& count)
{
    const TreesModel model(xml);
    count = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (CoreProperty* const property : textsIn(model.group(row))) {
            ++count;
            const QString error = errorOfEdit(model, *property);
            if (!error.isEmpty()) {
                return property->name() + ": " + error;
            }
        }
    }
    return QString();
}

/// A provider that counts how often it is asked.
class Counter : public tolvik::PropertyProvider
{
public:
    void addProperties(const QModelIndex& /*index*/, CoreProperty& /*root*/) override { ++asked; }

    int asked = 0;
};

const QByteArray energyPrefix = " xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0'";

} // namespace

/// What a document says that no property of the catalogues shows.
class OtherContentTest : public QObject
{
    Q_OBJECT

private slots:
    void contentIsShown_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("text");

        const auto row = [](const char* name, const QByteArray& content, const QString& text) {
            QTest::newRow(name) << documentText(buildingMember(content), energyPrefix) << text;
        };
        row("unknown element",
            "<x:note by='m' "
            "x:at='2'><x:part>wing</x:part><x:none/><x:group><leaf>1</leaf></x:group></x:note>",
            "x:note\n"
            "  @by 'm'\n"
            "  @x:at '2'\n"
            "  x:part 'wing'\n"
            "  x:none ''\n"
            "  x:group\n"
            "    leaf '1'\n");
        row("several", "<x:a>1</x:a><gml:name>n</gml:name><x:a>2</x:a>", "x:a '1'\nx:a '2'\n");
        row("text as it stands", "<x:a> 1 &lt;\n </x:a>", "x:a ' 1 <\n '\n");
        row("text beside elements", "<x:a>\n one <x:b/>\n</x:a>", "x:a '\n one '\n  x:b ''\n");
        row("texts between elements", "<x:a>one<x:b/>two<!--c-->three</x:a>",
            "x:a\n  text() 'one'\n  x:b ''\n  text() 'two'\n  text() 'three'\n");
        row("comments in it", "<x:a><!--c-->one<?p i?></x:a>", "x:a 'one'\n");
        row("declarations in it", "<y:a xmlns:y='urn:y' xmlns='urn:z' y:b='1'><c/></y:a>",
            "y:a\n  @y:b '1'\n  c ''\n");
        row("attribute of an element", "<gml:name x:since='1998'>n</gml:name>",
            "gml:name\n  @x:since '1998'\n");
        row("attribute of a number", "<bldg:storeysAboveGround x:attic='no'>2</bldg:storeysAboveGround>",
            "bldg:storeysAboveGround\n  @x:attic 'no'\n");
        row("element in a number", "<bldg:storeysAboveGround>2<x:a>1</x:a></bldg:storeysAboveGround>",
            "bldg:storeysAboveGround\n  x:a '1'\n");
        row("element in a text", "<gml:name>n<x:a>1</x:a></gml:name>", "gml:name\n  x:a '1'\n");
        row("wrong number", "<bldg:measuredHeight uom='m'> 12,5 </bldg:measuredHeight>",
            "bldg:measuredHeight ' 12,5 '\n");
        row("wrong whole number", "<bldg:storeysAboveGround>many</bldg:storeysAboveGround>",
            "bldg:storeysAboveGround 'many'\n");
        row("wrong date", "<core:creationDate>yesterday</core:creationDate>",
            "core:creationDate 'yesterday'\n");
        row("wrong list",
            "<gml:boundedBy><gml:Envelope><gml:lowerCorner>3 x</gml:lowerCorner><gml:upperCorner>1"
            "</gml:upperCorner></gml:Envelope></gml:boundedBy>",
            "gml:boundedBy\n  gml:Envelope\n    gml:lowerCorner '3 x'\n");
        row("wrong literal", "<core:relativeToTerrain>floating</core:relativeToTerrain>",
            "core:relativeToTerrain 'floating'\n");
        row("wrong values of attributes",
            "<bldg:lod1Solid><gml:Solid><gml:exterior><gml:OrientableSurface orientation='up'>"
            "<gml:baseSurface xlink:href='#s'/></gml:OrientableSurface></gml:exterior></gml:Solid>"
            "</bldg:lod1Solid><bldg:lod1MultiSurface><gml:MultiSurface><gml:surfaceMember><gml:Surface>"
            "<gml:patches><gml:Rectangle interpolation='bent'><gml:exterior><gml:LinearRing>"
            "<gml:posList srsDimension='-1'>1</gml:posList></gml:LinearRing></gml:exterior>"
            "</gml:Rectangle></gml:patches></gml:Surface></gml:surfaceMember></gml:MultiSurface>"
            "</bldg:lod1MultiSurface>",
            "bldg:lod1Solid\n"
            "  gml:Solid\n"
            "    gml:exterior\n"
            "      gml:OrientableSurface\n"
            "        @orientation 'up'\n"
            "bldg:lod1MultiSurface\n"
            "  gml:MultiSurface\n"
            "    gml:surfaceMember\n"
            "      gml:Surface\n"
            "        gml:patches\n"
            "          gml:Rectangle\n"
            "            gml:exterior\n"
            "              gml:LinearRing\n"
            "                gml:posList\n"
            "                  @srsDimension '-1'\n"
            "            @interpolation 'bent'\n");
        row("nil", "<bldg:storeysAboveGround xsi:nil='true'/><bldg:measuredHeight xsi:nil='true' uom='m'/>",
            "bldg:measuredHeight\n  @xsi:nil 'true'\nbldg:storeysAboveGround\n  @xsi:nil 'true'\n");
        row("other type", "<bldg:measuredHeight xsi:type='x:Length' uom='m'>1</bldg:measuredHeight>",
            "bldg:measuredHeight\n  @xsi:type 'x:Length'\n");
        row("abstract element", "<bldg:lod1Solid><gml:_Solid><x:a>1</x:a></gml:_Solid></bldg:lod1Solid>",
            "bldg:lod1Solid\n  gml:_Solid\n    x:a '1'\n");
        row("text in a feature", "<gml:name>n</gml:name>one", "text() 'one'\n");
        row("texts between elements of a class", "one<gml:name>n</gml:name>two",
            "text() 'one'\ntext() 'two'\n");
        QTest::newRow("attribute of the feature")
            << documentText(
                   "<core:cityObjectMember><bldg:Building x:source='survey'/></core:cityObjectMember>")
            << "@x:source 'survey'\n";
        QTest::newRow("default namespace")
            << cityModel(
                   building("b", "<relativeToTerrain>floating</relativeToTerrain><y:a xmlns:y='urn:y'/>"))
            << "y:a ''\nrelativeToTerrain 'floating'\n";
        QTest::newRow("older version")
            << documentText(buildingMember("<core:creationDate>today</core:creationDate><x:a/>"))
                   .replace("/2.0", "/1.0")
            << "x:a ''\ncore:creationDate 'today'\n";
    }

    void contentIsShown()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, text);
        const TreesModel model(xml);
        QCOMPARE(model.rowCount(), 2);
        QVERIFY(model.group(0) == nullptr);
        QCOMPARE(textOf(model.group(1)), text);
        const auto all = model.getProperty(model.index(1, 0))->properties();
        QCOMPARE(all.last()->name(), groupName);
        QVERIFY(!all.last()->value().isValid() && !all.last()->editable());

        int count = 0;
        QCOMPARE(errorOfEdits(xml, count), QString());
        QCOMPARE(count, text.count('\'') / 2);
    }

    void addressesShowTheirWords()
    {
        const TreesModel model(documentText(buildingMember(
            "<bldg:address><core:Address><core:xalAddress><xAL:AddressDetails><xAL:Country>"
            "<xAL:CountryName>Germany</xAL:CountryName><xAL:Locality><xAL:LocalityName>Ulm</xAL:LocalityName>"
            "<xAL:Thoroughfare><xAL:ThoroughfareNumber>1</xAL:ThoroughfareNumber><xAL:ThoroughfareName>Lane"
            "</xAL:ThoroughfareName></xAL:Thoroughfare></xAL:Locality></xAL:Country></xAL:AddressDetails>"
            "</core:xalAddress></core:Address></bldg:address>")));
        // An address is a feature, with a row of its own.
        QCOMPARE(model.rowCount(), 3);
        QVERIFY(model.group(1) == nullptr);
        QCOMPARE(textOf(model.group(2)), QString("core:xalAddress\n"
                                                 "  xAL:AddressDetails\n"
                                                 "    xAL:Country\n"
                                                 "      xAL:CountryName 'Germany'\n"
                                                 "      xAL:Locality\n"
                                                 "        xAL:LocalityName 'Ulm'\n"
                                                 "        xAL:Thoroughfare\n"
                                                 "          xAL:ThoroughfareNumber '1'\n"
                                                 "          xAL:ThoroughfareName 'Lane'\n"));
        for (CoreProperty* const property : textsIn(model.group(2))) {
            QCOMPARE(errorOfEdit(model, *property), QString());
        }
    }

    void nothingIsShownWithoutContent_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("attributes with rows")
            << QByteArray("<gml:name codeSpace='c'>n</gml:name><bldg:function>1</bldg:function>");
        QTest::newRow("comments and instructions") << QByteArray("<!--c--><gml:name>n</gml:name><?p i?>");
        QTest::newRow("spellings") << QByteArray(
            "<energy:isLandmarked>1</energy:isLandmarked>"
            "<core:relativeToTerrain>EntirelyAboveTerrain</core:relativeToTerrain>");
        QTest::newRow("own type") << QByteArray(
            "<bldg:measuredHeight xsi:type='gml:LengthType' uom='m'>1</bldg:measuredHeight>");
        QTest::newRow("geometry") << QByteArray(
            "<bldg:lod0FootPrint><gml:MultiSurface><gml:surfaceMember><gml:Polygon><gml:exterior>"
            "<gml:LinearRing><gml:posList srsDimension='3'>0 0 0 1 0 0 1 1 0 0 0 0</gml:posList>"
            "</gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember></gml:MultiSurface>"
            "</bldg:lod0FootPrint>");
    }

    void nothingIsShownWithoutContent()
    {
        QFETCH(QByteArray, content);
        const TreesModel model(documentText(buildingMember(content), energyPrefix));
        QCOMPARE(model.rowCount(), 2);
        for (const int row : {0, 1}) {
            const QString tree = treeText(*model.getProperty(model.index(row, 0)));
            QCOMPARE(tree, treeText(*propertiesOf(*model.getFeature(row), true)));
        }
    }

    void fixedRowsStay()
    {
        const TreesModel model(
            documentText(buildingMember("<gml:name x:a='1'>n</gml:name><x:a/><bldg:measuredHeight uom='m'>x"
                                        "</bldg:measuredHeight>")));
        const CoreProperty* const root = model.getProperty(model.index(1, 0));
        const QString fixed = treeText(*propertiesOf(*model.getFeature(1), true));
        QVERIFY(treeText(*root).startsWith(fixed));
        QCOMPARE(root->properties().size(), 2);
    }

    void featuresInsideKeepTheirContent()
    {
        TreesModel model(documentText(buildingMember(
            "<x:a>outer</x:a><bldg:boundedBy x:b='1'><bldg:WallSurface><x:a>inner</x:a></bldg:WallSurface>"
            "</bldg:boundedBy>")));
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(textOf(model.group(1)), QString("x:a 'outer'\nbldg:boundedBy\n  @x:b '1'\n"));
        QCOMPARE(textOf(model.group(2)), QString("x:a 'inner'\n"));
        // One without a row has no other place.
        model.removeFeature(model.getFeature(2));
        model.propertyChanged(model.index(1, 0), true);
        QCOMPARE(textOf(model.group(1)),
                 QString("x:a 'outer'\nbldg:boundedBy\n  @x:b '1'\n  bldg:WallSurface\n    x:a 'inner'\n"));
    }

    void contentOfTheWholeDocument()
    {
        const TreesModel model(
            documentText("<x:a>1</x:a>" + buildingMember("<x:a>2</x:a>"), " x:source='survey'"));
        QCOMPARE(textOf(model.group(0)), QString("@x:source 'survey'\nx:a '1'\n"));
    }

    void aLoadMakesNothing()
    {
        TreesModel model(documentText(QByteArray()));
        const Fondo::RefPtr<Counter> counter = new Counter;
        model.addPropertyProvider(counter.get());
        model.load(documentText(buildingMember("<x:a>1</x:a>")));
        model.dataSetChanged();
        QCOMPARE(counter->asked, 0);
        QVERIFY(model.properties[1]->getProperty(groupName, false) == nullptr);

        const CoreProperty* const root = model.getProperty(model.index(1, 0));
        QCOMPARE(counter->asked, 1);
        QCOMPARE(root, model.properties[1].get());
        QVERIFY(root->getProperty(groupName, false) != nullptr);
        model.getProperty(model.index(1, 1));
        model.reapplyPropertiesFromProviders(model.index(1, 0));
        QCOMPARE(treeText(*root).count(groupName), 1);
        QCOMPARE(textOf(model.group(1)), QString("x:a '1'\n"));
    }

    void editsFollowEachOther()
    {
        const QByteArray xml = documentText(
            buildingMember("<x:note by='m'>\n <x:a>1</x:a>\n <x:b>2</x:b>\n</x:note><x:note>3</x:note>"));
        TreesModel model(xml);
        const QVector<CoreProperty*> texts = textsIn(model.group(1));
        QCOMPARE(texts.size(), 4);
        // Of another length each, so that what stands behind moves.
        texts[0]->setValue("somebody else");
        texts[2]->setValue("");
        texts[1]->setValue("a < b");
        texts[3]->setValue(7.5);
        texts[2]->setValue("second");
        const QByteArray expected = documentText(
            buildingMember("<x:note by='somebody else'>\n <x:a>a &lt; b</x:a>\n <x:b>second</x:b>\n"
                           "</x:note><x:note>7.5</x:note>"));
        QCOMPARE(differencesOf(model.saved(), expected), QStringList());
        // White space is text here.
        QVERIFY(model.saved().contains("<x:note by=\"somebody else\">\n <x:a>a &lt; b</x:a>\n <x:b>second"));

        const QByteArray saved = model.saved();
        model.propertyChanged(model.index(1, 0), true);
        const QString text = textOf(model.group(1));
        QCOMPARE(text, QString("x:note\n  @by 'somebody else'\n  x:a 'a < b'\n  x:b 'second'\n"
                               "x:note '7.5'\n"));
        model.load(saved);
        QCOMPARE(textOf(model.group(1)), text);
        QCOMPARE(model.saved(), saved);
    }

    /// Two trees of a row show the same document.
    void treesShowEachOthersEdits()
    {
        TreesModel model(documentText(buildingMember("<x:note by='m'>one</x:note>")));
        const Fondo::RefPtr<CoreProperty> own = propertiesOf(*model.getFeature(1), false);
        model.addPropertiesFromProviders(model.index(1, 0), *own);
        textsIn(model.group(1))[0]->setValue("two");
        const QVector<CoreProperty*> texts = textsIn(own.get());
        QCOMPARE(textOf(own->getProperty(groupName, false)), QString("x:note 'two'\n  @by 'm'\n"));
        for (CoreProperty* const property : texts) {
            if (property->name() == "@by") {
                property->setValue("n");
            }
        }
        QCOMPARE(textOf(model.group(1)), QString("x:note 'two'\n  @by 'n'\n"));
    }

    void wrongTextGoesWithAnEditOfTheValue()
    {
        TreesModel model(
            documentText(buildingMember("<core:relativeToTerrain>floating</core:relativeToTerrain>"
                                        "<bldg:measuredHeight uom='m'>high</bldg:measuredHeight>"
                                        "<bldg:storeysAboveGround>many</bldg:storeysAboveGround><x:a/>")));
        const Fondo::RefPtr<CoreProperty> root = propertiesOf(*model.getFeature(1), false);
        const QVector<CoreProperty*> texts = textsIn(model.group(1));
        QCOMPARE(texts.size(), 4);
        findProperty(root, {"Fields", "RelativeToTerrain"})->setValue("entirelyAboveTerrain");
        findProperty(root, {"Fields", "MeasuredHeight"})->setValue(12.5);
        findProperty(root, {"Fields", "StoreysAboveGround"})->setValue(4);
        const QByteArray saved = model.saved();
        QVERIFY(saved.contains(">entirelyAboveTerrain<") && saved.contains(">12.5<") &&
                saved.contains(">4<"));
        // What is not there any more cannot be edited. A literal is the one text of its attribute.
        texts[2]->setValue("low");
        texts[3]->setValue("few");
        QCOMPARE(model.saved(), saved);
        QCOMPARE(texts[2]->value(), QVariant(""));
        model.propertyChanged(model.index(1, 0), true);
        QCOMPARE(textOf(model.group(1)), QString("x:a ''\n"));
    }

    void nilGoesWithAnEditOfTheValue()
    {
        TreesModel model(documentText(buildingMember("<bldg:measuredHeight xsi:nil='true' uom='m'/>"
                                                     "<bldg:storeysAboveGround xsi:nil='true'>"
                                                     "<x:a/></bldg:storeysAboveGround>")));
        QCOMPARE(textsIn(model.group(1)).size(), 3);
        const Fondo::RefPtr<CoreProperty> root = propertiesOf(*model.getFeature(1), false);
        findProperty(root, {"Fields", "StoreysAboveGround"})->setValue(4);
        // In place, which leaves all else that the object has.
        static_cast<double&>(*dynamic_cast<bldg::BuildingType&>(*model.getFeature(1)).measuredHeight()) = 1;
        QVERIFY(!model.saved().contains("nil=") && !model.saved().contains("x:a"));
        model.propertyChanged(model.index(1, 0), true);
        QCOMPARE(textOf(model.group(1)), QString());
    }

    /// An element that has no class goes when the member that it stands for gets an object.
    void whatStoodForAnObjectGoesWithIt()
    {
        TreesModel model(documentText(
            buildingMember("<bldg:lod1Solid><gml:_Solid x:a='1'>2</gml:_Solid></bldg:lod1Solid>")));
        const QVector<CoreProperty*> texts = textsIn(model.group(1));
        QCOMPARE(texts.size(), 2);
        auto& building = dynamic_cast<bldg::BuildingType&>(*model.getFeature(1));
        building.lod1Solid()->_Solid().set(gml::SolidType());
        const QByteArray saved = model.saved();
        QVERIFY(!saved.contains("_Solid x:a"));
        texts[0]->setValue("3");
        QCOMPARE(texts[0]->value(), QVariant(""));
        QCOMPARE(model.saved(), saved);
        model.propertyChanged(model.index(1, 0), true);
        QVERIFY(model.group(1) == nullptr);
    }

    void aTextThatIsAValueBecomesOne()
    {
        TreesModel model(
            documentText(buildingMember("<core:relativeToTerrain>floating</core:relativeToTerrain>"
                                        "<bldg:measuredHeight uom='m'>12,5</bldg:measuredHeight>")));
        const QVector<CoreProperty*> texts = textsIn(model.group(1));
        QCOMPARE(texts.size(), 2);
        texts[0]->setValue("entirelyAboveTerrain");
        texts[1]->setValue("12.5");
        const auto field = [&](const char* name) {
            return findProperty(propertiesOf(*model.getFeature(1), true), {"Fields", name})->value();
        };
        QCOMPARE(field("RelativeToTerrain"), QVariant("entirelyAboveTerrain"));
        model.load(model.saved());
        QCOMPARE(field("MeasuredHeight"), QVariant(12.5));
        QVERIFY(model.group(1) == nullptr);
        QCOMPARE(errorOf(model.saved()), QString());
    }

    void whatXmlCannotHoldIsRefused()
    {
        const TreesModel model(documentText(
            buildingMember("<gml:name x:a='1'>n</gml:name><x:b c='2'>3</x:b>one<bldg:measuredHeight uom='m'>"
                           "high</bldg:measuredHeight><core:relativeToTerrain>floating"
                           "</core:relativeToTerrain>")));
        const QByteArray before = model.saved();
        const QVector<CoreProperty*> texts = textsIn(model.group(1));
        QCOMPARE(texts.size(), 6);
        for (CoreProperty* const property : texts) {
            const QVariant value = property->value();
            for (const QString& text : {QString("a\x0b"), QString(QChar(0xFFFF)), QString(QChar(0xD800))}) {
                property->setValue(text);
                QCOMPARE(property->value(), value);
            }
        }
        QCOMPARE(model.saved(), before);

        const auto none = [](gml::AbstractFeatureType&) { return true; };
        const auto contents = citygml::otherContentOf(*model.getFeature(1), none);
        QVERIFY(!contents.front().setText("a\x0b"));
        QVERIFY(contents.front().setText("a"));
        QCOMPARE(contents.front().text(), std::string("a"));
    }

    void namesHaveTheirNamespace()
    {
        const TreesModel model(
            documentText(buildingMember("<y:a xmlns:y='urn:y' b='1' x:c='2'><d xmlns='urn:d'/></y:a>"
                                        "<bldg:measuredHeight uom='m'>high</bldg:measuredHeight>")));
        const auto all = [](gml::AbstractFeatureType&) { return false; };
        const auto contents = citygml::otherContentOf(*model.getFeature(1), all);
        QCOMPARE(contents.size(), std::size_t(2));
        const auto& children = contents[0].children();
        QCOMPARE(contents[0].namespaceUri(), std::string("urn:y"));
        QVERIFY(!contents[0].hasText() && !contents[0].setText("a"));
        QCOMPARE(children[0].namespaceUri(), std::string());
        QCOMPARE(children[1].namespaceUri(), std::string("urn:unknown"));
        QCOMPARE(children[2].namespaceUri(), std::string("urn:d"));
        QCOMPARE(contents[1].namespaceUri(), std::string("http://www.opengis.net/citygml/building/2.0"));
    }

    /// Everything that a document with one fault says besides the schema is shown, and can be edited.
    void faultsAreShown()
    {
        using faults::Kind;
        const QVector<Kind> shownKinds{Kind::WrongValue,    Kind::AbstractElement, Kind::UnfitType,
                                       Kind::UnknownPrefix, Kind::UnknownElement,  Kind::UndeclaredAttribute,
                                       Kind::OneTooMany};
        int shown = 0;
        QStringList errors;
        faults::Generator(testsupport::schemas()).generate(1, false, [&](const faults::Document& document) {
            if (!shownKinds.contains(document.kind) || isRefused(document.faulty)) {
                return;
            }
            int count = 0;
            const QString error = errorOfEdits(document.faulty, count);
            if (!error.isEmpty() || count == 0) {
                errors.append(document.label() + ": " + (count == 0 ? "is not shown" : error) + '\n' +
                              document.faulty);
            }
            shown += count;
        });
        QVERIFY2(errors.isEmpty(), qPrintable(QString::number(errors.size()) + '\n' + errors.value(0)));
        QVERIFY2(shown > 500, qPrintable(QString::number(shown)));
    }

    /// The same for documents with a change anywhere.
    void mutantsAreShown()
    {
        QByteArrayList documents;
        for (const QString& path : documentsBelow(examples())) {
            documents << contentOf(path);
        }
        mutants::Maker maker(documents);
        const int count = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? 1000 : 30;
        int shown = 0;
        for (int i = 0; i < count; ++i) {
            const auto mutant = maker.next();
            if (isRefused(mutant.xml)) {
                continue;
            }
            int texts = 0;
            const QString error = errorOfEdits(mutant.xml, texts);
            QVERIFY2(error.isEmpty(), mutant.change + ": " + error.toUtf8());
            shown += texts;
        }
        QVERIFY2(shown > count / 3, qPrintable(QString::number(shown)));
    }

private:
    static bool isRefused(const QByteArray& xml)
    {
        try {
            read(xml);
            return false;
        } catch (const xsd::cxx::tree::exception<char>&) {
            return true;
        }
    }
};

TEST_CLASS(OtherContentTest, Widgets)
#include "othercontenttest.moc"
