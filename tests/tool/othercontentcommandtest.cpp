#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/ToolCommand.h"
#include "support/XmlTree.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;

/// What the terminal tool shows and edits of a document that no class has a member for.
class OtherContentCommandTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir directory;
    QString path(const QString& name) const { return directory.filePath(name); }

    QStringList differences() const
    {
        return XmlNode::differences(XmlNode::parse(contentOf(path("plain.gml"))),
                                    XmlNode::parse(contentOf(path("out.gml"))));
    }

private slots:
    void initTestCase()
    {
        const QByteArray member = buildingMember("<bldg:measuredHeight uom='m'>12,5</bldg:measuredHeight>"
                                                 "<x:note by='m'><x:a>one</x:a><x:a>two</x:a></x:note>");
        QVERIFY(writeFile(path("in.gml"), documentText(member + buildingMember(QByteArray(), "c"))));
        QCOMPARE(runTool({"save", path("in.gml"), path("plain.gml")}).code, 0);
    }

    void init() { QFile::remove(path("out.gml")); }

    void text()
    {
        const ProcessResult result = runTool({"properties", path("in.gml"), "--id", "b"});
        QCOMPARE(result.code, 0);
        const QString text = QString::fromUtf8(result.out);
        QCOMPARE(text.mid(text.indexOf("  Other content")), QString("  Other content\n"
                                                                    "    x:note\n"
                                                                    "      @by: m\n"
                                                                    "      x:a: one\n"
                                                                    "      x:a: two\n"
                                                                    "    bldg:measuredHeight: 12,5\n"));
        QVERIFY(runTool({"properties", path("in.gml"), "--id", "b", "--absent"}).out.contains("x:a: two"));
        QVERIFY(!runTool({"properties", path("in.gml"), "--id", "c"}).out.contains("Other content"));
    }

    void json()
    {
        const ProcessResult result = runTool({"properties", path("in.gml"), "--id", "b", "--json"});
        const QJsonArray groups = QJsonDocument::fromJson(result.out).object().value("children").toArray();
        const QJsonObject group = groups.last().toObject();
        QCOMPARE(group.value("name").toString(), QString("Other content"));
        QCOMPARE(group.value("editable").toBool(), false);
        const QJsonObject note = group.value("children").toArray().at(0).toObject();
        QCOMPARE(note.value("name").toString(), QString("x:note"));
        QVERIFY(note.value("value").isNull());
        const QJsonObject by{{"name", "@by"},
                             {"value", "m"},
                             {"unit", QJsonValue()},
                             {"editable", true},
                             {"potentialValues", QJsonArray()},
                             {"children", QJsonArray()}};
        QCOMPARE(note.value("children").toArray().at(0).toObject(), by);
    }

    void edits_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("difference");
        QTest::newRow("element") << "x:note/x:a"
                                 << "//CityModel/cityObjectMember/Building/note/a/text: 'one' became '<new>'";
        QTest::newRow("second of equal ones")
            << "x:note/x:a[2]"
            << "//CityModel/cityObjectMember/Building/note/a/text: 'two' became '<new>'";
        QTest::newRow("attribute") << "x:note/@by"
                                   << "//CityModel/cityObjectMember/Building/note: {}by 'm' became '<new>'";
        QTest::newRow("wrong number")
            << "bldg:measuredHeight"
            << "//CityModel/cityObjectMember/Building/measuredHeight/text: '12,5' became '<new>'";
    }

    void edits()
    {
        QFETCH(QString, property);
        QFETCH(QString, difference);
        const ProcessResult result = runTool(
            {"set", path("in.gml"), "--id", "b", "Other content/" + property, "<new>", path("out.gml")});
        QVERIFY2(result.code == 0, result.err);
        QCOMPARE(differences(), QStringList(difference));
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("value");
        QTest::newRow("group") << "x:note"
                               << "a";
        QTest::newRow("no such") << "x:note/x:b"
                                 << "a";
        QTest::newRow("no character of XML") << "x:note/x:a"
                                             << "a\x0b";
    }

    void refusals()
    {
        QFETCH(QString, property);
        QFETCH(QString, value);
        const ProcessResult result = runTool(
            {"set", path("in.gml"), "--id", "b", "Other content/" + property, value, path("out.gml")});
        QCOMPARE(result.code, 1);
        QVERIFY(!result.err.isEmpty());
        QVERIFY(!QFile::exists(path("out.gml")));
    }
};

TEST_CLASS(OtherContentCommandTest, Core)
#include "othercontentcommandtest.moc"
