#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/ShownPanel.h"

#include <QLineEdit>

using namespace testsupport;
using namespace tolvik::viewer;

/// The panel of properties: what it shows, and its edits as steps of the history.
class PropertyPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void theSelectedFeatureIsShown()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        QCOMPARE(panel.panel.findChild<QLabel*>("propertyTitle")->text(),
                 QString::fromUtf8("Building – Town hall"));
        QCOMPARE(panel.text("Fields/MeasuredHeight"), "12.5");
        QCOMPARE(panel.text("Fields/MeasuredHeight", 2), "m");
        QCOMPARE(panel.text("Fields/Function"), "1; 2");
        QCOMPARE(panel.text("Fields/owner"), "Guild");
        QVERIFY(!panel.cell("Fields/RoofType").isValid());
        panel.fixture.select({});
        QCOMPARE(panel.view().model()->rowCount(), 0);
    }

    void whatCannotBeChangedLooksSo()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        QVERIFY(!panel.cell("Fields/Id").flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(openEditor(panel.view(), panel.cell("Fields/Id")) == nullptr);
        panel.press("Fields/Id", Qt::Key_Delete);
        QCOMPARE(panel.stack().count(), 0);
    }

    void severalFeaturesShowWhatTheyHaveInCommon()
    {
        ShownPanel panel(
            documentText(buildingMember("<bldg:class>1</bldg:class><bldg:function>7</bldg:function>", "a") +
                         buildingMember("<bldg:class>1</bldg:class><bldg:roofType>2</bldg:roofType>", "b") +
                         buildingMember("<bldg:class>1</bldg:class>", "c")),
            {"a", "b"});
        const QByteArray before = panel.saved();
        QTRY_VERIFY(panel.panel.isComplete());
        QCOMPARE(panel.text("Fields/Class"), "1");
        QCOMPARE(panel.text("Fields/RoofType"), "(different values)");
        QVERIFY(!panel.cell("Fields/Function").isValid());
        panel.type("Fields/RoofType", "5");
        QTRY_COMPARE(panel.text("Fields/RoofType"), "5");
        QCOMPARE(panel.saved().count("<bldg:roofType>5</bldg:roofType>"), 2);
        QCOMPARE(panel.stack().count(), 1);
        panel.undo();
        QCOMPARE(panel.saved(), before);
        QTRY_COMPARE(panel.text("Fields/RoofType"), "(different values)");
        panel.stack().redo();
        QCOMPARE(panel.saved().count("<bldg:roofType>5</bldg:roofType>"), 2);
    }

    void otherContentIsEdited()
    {
        ShownPanel panel(documentWithBuilding("<x:note>south</x:note>"));
        const QByteArray before = panel.saved();
        panel.type("Other content/x:note", "north & east");
        QVERIFY(panel.saved().contains("north &amp; east</x:note>"));
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void addressesReadLikeAddresses()
    {
        const QByteArray address =
            "<bldg:address><core:Address gml:id='home'><core:xalAddress><xAL:AddressDetails><xAL:Country>"
            "<xAL:CountryName>Aldland</xAL:CountryName><xAL:Locality Type='Town'>"
            "<xAL:LocalityName>Marrowby</xAL:LocalityName><xAL:Thoroughfare Type='Street'>"
            "<xAL:ThoroughfareName>Lantern Row</xAL:ThoroughfareName>"
            "<xAL:ThoroughfareNumber>17a</xAL:ThoroughfareNumber></xAL:Thoroughfare><xAL:PostalCode>"
            "<xAL:PostalCodeNumber>40 "
            "217</xAL:PostalCodeNumber></xAL:PostalCode></xAL:Locality></xAL:Country>"
            "</xAL:AddressDetails></core:xalAddress></core:Address></bldg:address>";
        ShownPanel panel(documentWithBuilding(address));
        QCOMPARE(panel.text("Fields/Address"), "17a Lantern Row, 40 217 Marrowby, Aldland");
        panel.fixture.select({"home"});
        QCOMPARE(panel.text("Fields/Address"), "17a Lantern Row, 40 217 Marrowby, Aldland");
    }

    void theFilterLeavesWhatHasTheText()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        auto* const line = panel.panel.findChild<QLineEdit*>("propertyFilter");
        QTest::keyClicks(line, "HEIGHT");
        QVERIFY(panel.cell("Fields/MeasuredHeight").isValid());
        QVERIFY(!panel.cell("Fields/Class").isValid());
        line->setText("guild");
        QVERIFY(panel.cell("Fields/owner").isValid());
        QVERIFY(!panel.cell("Fields/MeasuredHeight").isValid());
        // Of a group that has the text all is shown.
        line->setText("fields");
        QVERIFY(panel.cell("Fields/Class").isValid());
        line->clear();
        QVERIFY(panel.cell("Fields/Class").isValid());
    }

    void linksAreClicked()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        QSignalSpy spy(&panel.panel, &PropertyPanel::linkActivated);
        panel.view().scrollTo(panel.cell("Fields/photo"));
        const QRect shown = panel.view().visualRect(panel.cell("Fields/photo"));
        QTest::mouseClick(panel.view().viewport(), Qt::LeftButton, {},
                          shown.topLeft() + QPoint(12, shown.height() / 2));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy[0][0].toUrl(), QUrl("https://town.example/1"));
    }

    void featuresWithoutIdentifierAreFoundAgain()
    {
        ShownPanel panel(documentText(buildingMember("<bldg:class>1</bldg:class>", "") +
                                      buildingMember("<bldg:class>2</bldg:class>", "")),
                         {});
        const QByteArray before = panel.saved();
        panel.fixture.document().goTo(2);
        QTest::qWait(10);
        QCOMPARE(panel.text("Fields/Class"), "2");
        panel.type("Fields/Class", "5");
        panel.fixture.document().goTo(1);
        QTest::qWait(10);
        panel.type("Fields/Class", "4");
        QVERIFY(panel.saved().contains(">4</bldg:class>") && panel.saved().contains(">5</bldg:class>"));
        panel.undo();
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void editsAreRecordedAndMadeAgain()
    {
        PropertyEdit::addMaker();
        ShownPanel panel(documentWithBuilding(manyAttributes));
        panel.type("Fields/MeasuredHeight", "17.25");
        answerDialog({{"type", "Text"}, {"name", "n"}, {"value", "v"}});
        panel.panel.addAttribute();
        const QByteArray edited = panel.saved();
        ShownPanel other(documentWithBuilding(manyAttributes));
        for (int i = 0; i < panel.stack().count(); ++i) {
            const auto* const edit = dynamic_cast<const RecordedEdit*>(panel.stack().command(i));
            QVERIFY(edit != nullptr);
            const QJsonObject record =
                QJsonDocument::fromJson(QJsonDocument(edit->record()).toJson()).object();
            auto made = SlicedEdit::remake(edit->kind(), other.fixture.document(), record);
            QVERIFY(made != nullptr);
            other.stack().push(made.release());
        }
        QCOMPARE(other.saved(), edited);
        other.undo();
        other.undo();
        QCOMPARE(other.saved(), ShownPanel(documentWithBuilding(manyAttributes)).saved());
    }
};

TEST_CLASS(PropertyPanelTest, Widgets)
#include "propertypaneltest.moc"
