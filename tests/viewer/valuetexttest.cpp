#include "apps/viewer/properties/ValueText.h"
#include "apps/viewer/table/SelectionFigures.h"
#include "support/TestClass.h"

#include <limits>
#include <QtTest>
#include <QUrl>

using namespace tolvik::viewer;

/// Values as people read and write them.
class ValueTextTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersHaveTheDecimalSignOfTheLocale()
    {
        const ValueText german{QLocale(QLocale::German)};
        const ValueText english{QLocale(QLocale::English)};
        QString reason;
        QCOMPARE(german.textOf(12345.5), "12345,5");
        QCOMPARE(english.textOf(12345.5), "12345.5");
        QCOMPARE(german.valueOf("12345,5", 0.0, reason)->toDouble(), 12345.5);
        QCOMPARE(english.textOf(QVariantList{1.5, 2}), "1.5; 2");
        // A separator of groups would make 125 of it.
        QCOMPARE(german.valueOf("12.5", 0.0, reason)->toDouble(), 12.5);
        QVERIFY(!english.valueOf("12,5", 0.0, reason));
        QVERIFY(reason.contains("12,5"));
    }

    void numbersKeepAllTheirDigits_data()
    {
        QTest::addColumn<double>("number");
        for (const double number :
             {0.1 + 0.2, 1.0 / 3, 5438352.123456789, 1e15, 1e300, 5e-324, -0.00001, 100000.0,
              123456789012345.0, std::numeric_limits<double>::max(), std::numeric_limits<double>::infinity(),
              -std::numeric_limits<double>::infinity()}) {
            QTest::addRow("%.17g", number) << number;
        }
    }

    void numbersKeepAllTheirDigits()
    {
        QFETCH(double, number);
        for (const QLocale& locale : {QLocale(QLocale::French), QLocale(QLocale::English), QLocale::c()}) {
            const ValueText text(locale);
            QString reason;
            QCOMPARE(text.valueOf(text.textOf(number), 0.0, reason)->toDouble(), number);
        }
    }

    void wholeNumbersAreWhole()
    {
        const ValueText text{QLocale(QLocale::English)};
        QString reason;
        QCOMPARE(text.textOf(1904), "1904");
        QCOMPARE(text.valueOf(" 1904 ", 0, reason), QVariant(1904));
        QCOMPARE(text.valueOf("9007199254740993", qulonglong(0), reason),
                 QVariant(qulonglong(9007199254740993)));
        for (const char* const wrong : {"1.5", "x", "", "1,904", "99999999999999999999"}) {
            QVERIFY2(!text.valueOf(wrong, qlonglong(0), reason), wrong);
        }
        QVERIFY(!text.valueOf("-1", qulonglong(0), reason));
    }

    void yearsOfDatesAreWhole()
    {
        for (const auto language : {QLocale::English, QLocale::French, QLocale::German}) {
            const ValueText text{QLocale(language)};
            QVERIFY2(text.textOf(QDate(1904, 2, 3)).contains("1904"), qPrintable(text.dateFormat()));
            QString reason;
            QCOMPARE(text.valueOf(text.textOf(QDate(1904, 2, 3)), QDate(2000, 1, 1), reason)->toDate(),
                     QDate(1904, 2, 3));
            QCOMPARE(text.valueOf("1904-02-03", QDate(2000, 1, 1), reason)->toDate(), QDate(1904, 2, 3));
            QVERIFY(!text.valueOf("spring", QDate(2000, 1, 1), reason));
        }
    }

    void figuresCountSmallNumbersBesideLargeOnes()
    {
        SelectionFigures figures;
        figures.add(1e16, "m");
        for (int i = 0; i < 10; ++i) {
            figures.add(1.0, "m");
        }
        figures.add(-1e16, "m");
        QCOMPARE(figures.sum(), 10.0);
        QCOMPARE(figures.unit(), "m");
        QCOMPARE(figures.smallest(), -1e16);
        figures.add(1.0, "ft");
        QCOMPARE(figures.unit(), QString());
        QCOMPARE(figures.count(), 13);
    }
};

TEST_CLASS(ValueTextTest, Core)
#include "valuetexttest.moc"
