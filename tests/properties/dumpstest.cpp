#include "gml/AbstractFeatureType.hxx"
#include "support/ExpectedProperties.h"
#include "support/Files.h"
#include "support/Processes.h"
#include "support/PropertyDump.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

using namespace testsupport;

using tolvik::CityGMLModel;

namespace {

const QString dumps = dataFile("dumps");

/// Rows of the tables that no feature of any document shows, with the reason.
const QMap<QString, QString>& unreachableRows()
{
    const QString carrier = "the group of a carrier is entered with the element around it, which has no rows";
    const QString boundary = "a thermal boundary leaves the attributes of extensions out";
    const QString furniture = "city furniture leaves the attributes of extensions out";
    static const QMap<QString, QString> rows{
        {"energy::EnergyCarrierType 1", carrier},
        {"energy::EnergyCarrierType 2", carrier},
        {"energy::EnergyCarrierType 3", carrier},
        {"energy::EnergyCarrierType 4", carrier},
        {"visit_cityFurniture_genericProperties 1", furniture},
        {"visit_thermalBoundary_genericProperties 1", boundary},
        {"visit_thermalBoundary_genericProperties 2", boundary},
        {"visit_thermalBoundary_genericProperties 3", boundary},
    };
    return rows;
}

QString dumpPath(const QString& example)
{
    return dumps + '/' + QFileInfo(example).completeBaseName() + ".txt";
}

/// What the terminal tool prints of a document.
QByteArray printed(const QString& example)
{
    const ProcessResult tool = inspect({"properties", "--every", example});
    if (tool.code != 0) {
        qFatal("%s", tool.err.constData());
    }
    return tool.out;
}

/// A line of a dump, and the row of the tables that makes it; empty for a line that is of no row.
struct Line
{
    QString text;
    QString row;
};

void addLines(const ExpectedNode& node, const QString& indent, QVector<Line>& lines)
{
    QString text = indent + node.label;
    text += node.value.isValid() || node.editable ? ":" : "";
    text += node.value.isValid() ? ' ' + plainText(node.value) : QString();
    text += node.unit.isEmpty() ? QString() : ' ' + node.unit;
    lines += Line{text, node.row};
    for (const auto& child : node.children) {
        addLines(*child, indent + "  ", lines);
    }
}

/// The lines of a dump but those of what no class has a member for, which is in no table.
QStringList linesOfTables(const QByteArray& dump)
{
    QStringList lines;
    bool isOther = false;
    for (const QString& line : QString::fromUtf8(dump).split('\n')) {
        const bool isBelowGroup = line.startsWith(QLatin1String("    "));
        isOther = line == QLatin1String("  Other content") || (isOther && isBelowGroup);
        if (!isOther) {
            lines += line;
        }
    }
    return lines;
}

/// The lines that the tables ask for, for all features of a document.
QVector<Line> expectedLines(const QString& example)
{
    CityGMLModel model(nullptr, nullptr);
    model.load(example);
    QVector<Line> lines;
    for (int row = 0; row < model.rowCount(QModelIndex()); ++row) {
        gml::AbstractFeatureType* const feature = model.getFeature(row);
        const QString type =
            className(recordOf(*feature)).section("::", 1).remove(QRegularExpression("Type$"));
        lines += Line{QString::number(row) + ' ' + type, QString()};
        const std::unique_ptr<ExpectedNode> root = ExpectedProperties(true).build(*feature);
        for (const auto& group : root->children) {
            addLines(*group, "  ", lines);
        }
    }
    return lines;
}

} // namespace

/// What `tolvik-inspect properties --every` prints of the examples, compared with the files under
/// data/dumps/.
///
/// With TOLVIK_WRITE_DUMPS=1 in the environment these files are written anew instead: do so when an example
/// or a catalogue has changed, and read what the version control says of them.
class DumpsTest : public QObject
{
    Q_OBJECT

private:
    QSet<QString> shownRows;

    void addExamples() { addPathRows(documentsBelow(examples())); }

private slots:
    void thereIsADumpOfEachExample()
    {
        QStringList expected;
        for (const QString& example : documentsBelow(examples())) {
            expected += QFileInfo(dumpPath(example)).fileName();
        }
        QVERIFY(!expected.isEmpty());
        if (!qEnvironmentVariableIsSet("TOLVIK_WRITE_DUMPS")) {
            QCOMPARE(QDir(dumps).entryList(QDir::Files), expected);
        }
    }

    void theToolPrintsTheDump_data() { addExamples(); }

    void theToolPrintsTheDump()
    {
        QFETCH(QString, path);
        const QByteArray actual = printed(path);
        if (qEnvironmentVariableIsSet("TOLVIK_WRITE_DUMPS")) {
            QVERIFY(writeFile(dumpPath(path), actual));
        }
        const QByteArray expected = contentOf(dumpPath(path));
        QVERIFY2(actual == expected, qPrintable(difference(actual, expected)));
    }

    void linesAreThoseOfTheTables_data() { addExamples(); }

    /// Each line of a dump stands for one row of the tables, with the value, the place and the order that
    /// this row has for the object that it shows.
    void linesAreThoseOfTheTables()
    {
        QFETCH(QString, path);
        const QStringList actual = linesOfTables(contentOf(dumpPath(path)));
        QStringList expected;
        for (const Line& line : expectedLines(path)) {
            expected += line.text;
            shownRows += line.row;
        }
        expected += QString();
        QVERIFY2(actual == expected, qPrintable(difference(actual.join('\n'), expected.join('\n'))));
    }

    /// The union of the dumps lacks no row of the tables but those that nothing reaches.
    void everyRowIsShown()
    {
        QStringList rows;
        for (const auto& row : readTable("rows.tsv")) {
            rows += row.value("type") + ' ' + row.value("order");
        }
        for (const auto& row : readTable("generic_rows.tsv")) {
            rows += row.value("operation") + ' ' + row.value("order");
        }
        QCOMPARE(rows.size(), 925 + 37);
        QStringList wrong;
        for (const QString& row : rows) {
            if (shownRows.contains(row) == unreachableRows().contains(row)) {
                wrong += row + (shownRows.contains(row) ? " is shown" : " is missing");
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    }
};

TEST_CLASS(DumpsTest, Core)
#include "dumpstest.moc"
