#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/ShownPanel.h"

#include <QInputDialog>
#include <QLineEdit>

using namespace testsupport;
using namespace tolvik::viewer;

/// Attributes and entries of lists that come and go in the panel of properties.
class AttributeEditingTest : public QObject
{
    Q_OBJECT

private slots:
    void anAbsentAttributeComesAndGoes()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        const QByteArray before = panel.saved();
        QVERIFY(!panel.cell("Fields/RoofType").isValid());
        panel.showAbsent();
        QVERIFY(panel.cell("Fields/RoofType").isValid());
        panel.type("Fields/RoofType", "1030");
        QVERIFY(panel.saved().contains("<bldg:roofType>1030</bldg:roofType>"));
        panel.showAbsent();
        QCOMPARE(panel.text("Fields/RoofType"), "1030");
        panel.press("Fields/RoofType", Qt::Key_Delete);
        QCOMPARE(panel.saved(), before);
        QVERIFY(!panel.cell("Fields/RoofType").isValid());
        panel.undo();
        QCOMPARE(panel.text("Fields/RoofType"), "1030");
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void anAttributeWithACodeSpaceComesBackWithIt()
    {
        ShownPanel panel(documentWithBuilding("<bldg:class codeSpace=\"x\">1000</bldg:class>"));
        const QByteArray before = panel.saved();
        panel.press("Fields/Class", Qt::Key_Delete);
        QVERIFY(!panel.saved().contains("bldg:class"));
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void listsOfTextsGetEntries()
    {
        ShownPanel panel(documentWithBuilding("<gml:name codeSpace=\"x\">Old</gml:name>"));
        const QByteArray before = panel.saved();
        answerDialog({{"", "1000"}});
        panel.panel.addEntry("function");
        QTRY_COMPARE(panel.text("Fields/Function"), "1000");
        answerDialog({{"", "New"}});
        panel.panel.addEntry("name");
        QTRY_COMPARE(panel.text("Fields/Name"), "Old; New");
        QVERIFY(panel.saved().contains("<gml:name codeSpace=\"x\">Old</gml:name>"));
        panel.undo();
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void genericAttributesComeAndGo()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        const QByteArray before = panel.saved();
        answerDialog({{"type", "Measure"}, {"name", "eaves"}, {"value", "6.5"}, {"unit", "m"}});
        panel.panel.addAttribute();
        QTRY_COMPARE(panel.text("Fields/eaves"), "6.5");
        QCOMPARE(panel.text("Fields/eaves", 2), "m");
        QVERIFY2(panel.saved().contains("<gen:measureAttribute name=\"eaves\">"), panel.saved());
        panel.view().setCurrentIndex(panel.cell("Fields/eaves"));
        answerDialog({{"", "height of the eaves"}});
        panel.panel.renameCurrent();
        QTRY_COMPARE(panel.text("Fields/height of the eaves"), "6.5");
        panel.press("Fields/owner", Qt::Key_Delete);
        QVERIFY(!panel.saved().contains("owner"));
        panel.undo();
        QCOMPARE(panel.text("Fields/owner"), "Guild");
        panel.undo();
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    /// The attributes stand beside the content of extensions, which may hold features.
    void featuresStayWhereAttributesComeAndGo()
    {
        ShownPanel panel(contentOf(examples() + "/component.gml"), {"maison-du-port"});
        const tolvik::CityGMLModel& model = panel.fixture.document().model();
        const auto rows = [&model] {
            std::list<gml::AbstractFeatureType*> features;
            for (int row = 0; row < model.rowCount(); ++row) {
                features.push_back(model.getFeature(row));
            }
            return features;
        };
        const std::list<gml::AbstractFeatureType*> before = rows();
        answerDialog({{"type", "Text"}, {"name", "owner"}, {"value", "Guild"}});
        panel.panel.addAttribute();
        QTRY_COMPARE(panel.text("Fields/owner"), "Guild");
        QCOMPARE(rows(), before);
        panel.undo();
        panel.stack().redo();
        panel.press("Fields/owner", Qt::Key_Delete);
        panel.undo();
        QCOMPARE(rows(), before);
        QCOMPARE(featuresOf(*model.cityGML()), before);
    }

    void genericAttributesOfEveryType_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("Text") << "x y" << QByteArray("<gen:stringAttribute name=\"n\">");
        QTest::newRow("Whole number") << "7" << QByteArray("<gen:intAttribute name=\"n\">");
        QTest::newRow("Number") << "7.25" << QByteArray("<gen:doubleAttribute name=\"n\">");
        QTest::newRow("Date") << "2001-02-03" << QByteArray("<gen:dateAttribute name=\"n\">");
        QTest::newRow("Link") << "https://town.example" << QByteArray("<gen:uriAttribute name=\"n\">");
        QTest::newRow("Measure") << "1.5" << QByteArray("<gen:measureAttribute name=\"n\">");
    }

    void genericAttributesOfEveryType()
    {
        QFETCH(QString, value);
        QFETCH(QByteArray, written);
        ShownPanel panel(documentWithBuilding(""));
        answerDialog({{"type", QTest::currentDataTag()}, {"name", "n"}, {"value", value}});
        panel.panel.addAttribute();
        QVERIFY2(panel.saved().contains(written), panel.saved());
        QVERIFY2(panel.saved().contains(">" + value.toUtf8() + "</gen:value>"), panel.saved());
    }

    void attributesOfASetAreItsOwn()
    {
        ShownPanel panel(
            documentWithBuilding("<gen:genericAttributeSet name=\"contract\"><gen:stringAttribute name=\"a\">"
                                 "<gen:value>1</gen:value></gen:stringAttribute></gen:genericAttributeSet>"));
        const QByteArray before = panel.saved();
        panel.view().setCurrentIndex(panel.cell("Fields/contract"));
        answerDialog({{"type", "Text"}, {"name", "c"}, {"value", "2"}});
        panel.panel.addAttribute();
        QTRY_COMPARE(panel.text("Fields/contract/c"), "2");
        panel.press("Fields/contract/a", Qt::Key_Delete);
        QVERIFY(!panel.cell("Fields/contract/a").isValid());
        panel.undo();
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void aSetComesBackIntoTheSecondOfItsName()
    {
        const QByteArray inner = "<gen:genericAttributeSet name=\"terms\"/>";
        const auto contract = [](const QByteArray& content) {
            return "<gen:genericAttributeSet name=\"contract\">" + content + "</gen:genericAttributeSet>";
        };
        ShownPanel panel(documentWithBuilding(contract("") + contract(inner)));
        const QByteArray before = panel.saved();
        panel.press("Fields/terms", Qt::Key_Delete);
        QVERIFY(!panel.saved().contains("terms"));
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    /// An attribute gets the name of one of another type: both are there, each with its own value.
    void attributesOfOneNameStayApart()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        const QByteArray before = panel.saved();
        panel.view().setCurrentIndex(panel.cell("Fields/owner"));
        answerDialog({{"", "ratio"}});
        panel.panel.renameCurrent();
        QTRY_COMPARE(panel.text("Fields/ratio"), "Guild");
        QCOMPARE(panel.text("Fields/ratio[2]"), "1.5");
        panel.type("Fields/ratio[2]", "2.5");
        panel.press("Fields/ratio", Qt::Key_Delete);
        QVERIFY2(!panel.saved().contains("stringAttribute"), panel.saved());
        QVERIFY(panel.saved().contains("<gen:doubleAttribute name=\"ratio\">"));
        QCOMPARE(panel.text("Fields/ratio"), "2.5");
        for (int i = 0; i < 3; ++i) {
            panel.undo();
        }
        QCOMPARE(panel.saved(), before);
    }

    /// What several features have in common is of one type: an edit goes to all of them.
    void attributesOfOneNameAndSeveralTypesAreNotCommon()
    {
        const auto note = [](const QByteArray& type) {
            return "<gen:" + type + "Attribute name=\"note\"><gen:value>7</gen:value></gen:" + type +
                   "Attribute>";
        };
        ShownPanel panel(documentText(buildingMember(note("string"), "a") + buildingMember(note("int"), "b") +
                                      buildingMember(note("string"), "c") +
                                      buildingMember("<gen:genericAttributeSet name=\"note\"/>", "d")),
                         {"a", "c"});
        QTRY_COMPARE(panel.text("Fields/note"), "7");
        for (const QStringList& several : {QStringList{"a", "b"}, {"b", "a"}, {"a", "d"}, {"d", "a"}}) {
            panel.fixture.select(several);
            QTRY_VERIFY(panel.panel.isComplete());
            QVERIFY(panel.cell("Fields/Id").isValid());
            QVERIFY(!panel.cell("Fields/note").isValid());
        }
    }

    void setsOfAttributesComeAndGo()
    {
        const QByteArray inner = "<gen:genericAttributeSet name=\"terms\"><gen:stringAttribute name=\"b\">"
                                 "<gen:value>2</gen:value></gen:stringAttribute></gen:genericAttributeSet>";
        const QByteArray empty = "<gen:genericAttributeSet name=\"empty\"/>";
        const QByteArray outer =
            "<gen:genericAttributeSet name=\"contract\">"
            "<gen:stringAttribute name=\"a\"><gen:value>1</gen:value></gen:stringAttribute>" +
            inner + "</gen:genericAttributeSet>";
        ShownPanel panel(documentWithBuilding(outer + empty));
        const QByteArray before = panel.saved();
        panel.view().setCurrentIndex(panel.cell("Fields/empty"));
        answerDialog({{"type", "Text"}, {"name", "c"}, {"value", "3"}});
        panel.panel.addAttribute();
        QTRY_COMPARE(panel.text("Fields/empty/c"), "3");
        panel.press("Fields/terms", Qt::Key_Delete);
        QCOMPARE(panel.message(), QString());
        QVERIFY(!panel.saved().contains("terms"));
        QVERIFY(panel.saved().contains("name=\"a\""));
        panel.view().setCurrentIndex(panel.cell("Fields/contract"));
        answerDialog({{"", "lease"}});
        panel.panel.renameCurrent();
        QTRY_VERIFY(panel.cell("Fields/lease/a").isValid());
        QVERIFY(panel.saved().contains("<gen:genericAttributeSet name=\"lease\">"));
        panel.press("Fields/lease", Qt::Key_Delete);
        QVERIFY(!panel.saved().contains("lease"));
        QVERIFY(panel.cell("Fields/empty/c").isValid());
        for (int i = 0; i < 4; ++i) {
            panel.undo();
        }
        QCOMPARE(panel.saved(), before);
        for (int i = 0; i < 4; ++i) {
            panel.stack().redo();
        }
        QVERIFY(!panel.saved().contains("name=\"a\""));
        QVERIFY(panel.saved().contains("name=\"c\""));
    }
};

TEST_CLASS(AttributeEditingTest, Widgets)
#include "attributeeditingtest.moc"
