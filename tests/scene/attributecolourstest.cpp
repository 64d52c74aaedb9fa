#include "scene/AttributeColours.h"
#include "support/TestClass.h"

#include <QSet>
#include <QtTest>

using tolvik::scene::AttributeColours;

namespace {

/// The texts of the legend with the numbers of features.
QStringList legendOf(const AttributeColours& colours)
{
    QStringList lines;
    for (const AttributeColours::Entry& entry : colours.legend()) {
        lines << QStringLiteral("%1: %2").arg(entry.text).arg(entry.count);
    }
    return lines;
}

bool isGrey(const QColor& colour)
{
    return colour.red() == colour.green() && colour.green() == colour.blue();
}

} // namespace

/// Which colours features have by the values of an attribute.
class AttributeColoursTest : public QObject
{
    Q_OBJECT

private slots:
    void categoriesAreSortedByTheirNumber();
    void onlyTheMostFrequentHaveColoursOfTheirOwn();
    void equallyFrequentOnesAreSortedByName();
    void numbersAreClasses();
    void oneNumberIsOneClass();
    void whatHasNoValueIsGrey();
};

TEST_CLASS(AttributeColoursTest, Core)

void AttributeColoursTest::categoriesAreSortedByTheirNumber()
{
    const AttributeColours colours({"gabled", "flat", QVariant(), "gabled"});
    QVERIFY(!colours.isScale());
    QCOMPARE(legendOf(colours), QStringList({"gabled: 2", "flat: 1", "no value: 1"}));
    QCOMPARE(colours.colourOf("gabled"), colours.legend()[0].colour);
    QCOMPARE(colours.colourOf("flat"), colours.legend()[1].colour);
    QVERIFY(colours.colourOf("flat") != colours.colourOf("gabled"));
}

void AttributeColoursTest::onlyTheMostFrequentHaveColoursOfTheirOwn()
{
    std::vector<QVariant> values;
    for (int name = 0; name < 20; ++name) {
        values.insert(values.end(), static_cast<std::size_t>(20 - name), QString::number(name) + " m");
    }
    const AttributeColours colours(values);
    QSet<QRgb> seen;
    for (const auto& entry : colours.legend()) {
        seen.insert(entry.colour.rgb());
    }
    QCOMPARE(seen.size(), static_cast<int>(colours.legend().size()));
    QCOMPARE(colours.legend().back().text, QString("other values"));
    QCOMPARE(colours.colourOf("19 m"), colours.legend().back().colour);
    QCOMPARE(colours.colourOf("0 m"), colours.legend().front().colour);
}

void AttributeColoursTest::equallyFrequentOnesAreSortedByName()
{
    std::vector<QVariant> values;
    for (int round = 0; round < 3; ++round) {
        for (const char* const name : {"h", "c", "k", "a", "d", "i", "b", "f", "e", "g"}) {
            values.emplace_back(name);
        }
    }
    values.emplace_back("k");
    values.emplace_back(5);
    QCOMPARE(legendOf(AttributeColours(values)),
             QStringList({"k: 4", "a: 3", "b: 3", "c: 3", "d: 3", "e: 3", "f: 3", "other values: 10"}));
}

void AttributeColoursTest::numbersAreClasses()
{
    const AttributeColours colours({3.5, 12, QVariant(), 60.25, 61});
    QVERIFY(colours.isScale());
    std::size_t count = 0;
    for (const auto& entry : colours.legend()) {
        count += entry.count;
    }
    QCOMPARE(count, std::size_t(5));
    QCOMPARE(colours.colourOf(3.5), colours.legend().front().colour);
    QCOMPARE(colours.colourOf(61), colours.legend()[colours.legend().size() - 2].colour);
    // From dark to light.
    QVERIFY(colours.colourOf(3.5).lightness() < colours.colourOf(61).lightness());
    QCOMPARE(colours.colourOf(60.25), colours.colourOf(61));
}

void AttributeColoursTest::oneNumberIsOneClass()
{
    const AttributeColours colours({7, 7});
    QCOMPARE(legendOf(colours), QStringList({"7: 2", "no value: 0"}));
    QVERIFY(!isGrey(colours.colourOf(7)));
}

void AttributeColoursTest::whatHasNoValueIsGrey()
{
    for (const AttributeColours& colours :
         {AttributeColours({1, 2}), AttributeColours({"a", "b"}), AttributeColours({QVariant()}),
          AttributeColours(std::vector<QVariant>())}) {
        QVERIFY(isGrey(colours.colourOf(QVariant())));
    }
    QVERIFY(!isGrey(AttributeColours({1, 2}).colourOf(1)));
    QVERIFY(!isGrey(AttributeColours({"a", "b"}).colourOf("a")));
}

#include "attributecolourstest.moc"
