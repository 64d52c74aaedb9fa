#include "apps/tables/ColumnPath.h"
#include "support/TestClass.h"

#include <QTest>

using tolvik::tables::ColumnPath;

/// Names of columns as ways to properties.
class ColumnPathTest : public QObject
{
    Q_OBJECT

private slots:
    void aTextComesBackFromItsSteps_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<int>("occurrence");
        QTest::addColumn<bool>("isGeneric");
        QTest::addColumn<bool>("isUnit");
        QTest::newRow("labels") << "Fields/MeasuredHeight" << QStringList{"Fields", "MeasuredHeight"} << 1
                                << false << false;
        QTest::newRow("second") << "Fields/a[2]" << QStringList{"Fields", "a"} << 2 << false << false;
        QTest::newRow("slash") << "gen:m\\/s" << QStringList{"m/s"} << 1 << true << false;
        QTest::newRow("bracket") << "gen:a\\[2]" << QStringList{"a[2]"} << 1 << true << false;
        QTest::newRow("backslash") << "gen:a\\\\b" << QStringList{"a\\b"} << 1 << true << false;
        QTest::newRow("set") << "gen:contract/from" << QStringList{"contract", "from"} << 1 << true << false;
        QTest::newRow("unit") << "Fields/a[3]/@uom" << QStringList{"Fields", "a"} << 3 << false << true;
        QTest::newRow("no generic one") << "\\gen:a/b" << QStringList{"gen:a", "b"} << 1 << false << false;
    }

    void aTextComesBackFromItsSteps()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, labels);
        QFETCH(int, occurrence);
        QFETCH(bool, isGeneric);
        QFETCH(bool, isUnit);
        const ColumnPath path = ColumnPath::parse(text);
        QStringList found;
        for (const ColumnPath::Step& step : path.steps) {
            found += step.label;
        }
        QCOMPARE(found, labels);
        QCOMPARE(path.steps.last().occurrence, occurrence);
        QCOMPARE(path.isGeneric, isGeneric);
        QCOMPARE(path.isUnit, isUnit);
        QCOMPARE(path.text(), text);
    }

    void whatIsNoNumberBelongsToTheLabel()
    {
        QCOMPARE(ColumnPath::parse("a[b]").steps.last().label, QString("a[b]"));
        QCOMPARE(ColumnPath::parse("a[0]").steps.last().label, QString("a[0]"));
        QCOMPARE(ColumnPath::parse("a[2]b").steps.last().label, QString("a[2]b"));
        QCOMPARE(ColumnPath::parse("a[2").steps.last().label, QString("a[2"));
        QCOMPARE(ColumnPath::parse("a\\").steps.last().label, QString("a\\"));
        QVERIFY(ColumnPath::parse("").steps.isEmpty());
    }
};

TEST_CLASS(ColumnPathTest, None)
#include "columnpathtest.moc"
