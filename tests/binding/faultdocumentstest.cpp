#include "support/FaultDocuments.h"
#include "citygml/DocumentCheck.h"
#include "citygml/DocumentRepair.h"
#include "support/Documents.h"
#include "support/SchemaValidator.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"

#include <QtTest>

#include <sstream>
#include <vector>

using namespace faults;
using faults::Document;
using testsupport::errorOf;
using testsupport::readStrictly;
using testsupport::schemas;
using testsupport::SchemaValidator;
using testsupport::write;
using testsupport::XmlNode;

namespace {

/// Of each kind of place and value: enough to see faults of every kind, and few enough for every run.
constexpr int documentsPerPlace = 2;

QStringList differencesAfterSave(const QByteArray& xml)
{
    return XmlNode::differences(XmlNode::parse(xml), XmlNode::parse(write(*readStrictly(xml))));
}

/// What a check finds, but for the numbers of coordinates, which the schema leaves open.
std::vector<citygml::Finding> findingsIn(const QByteArray& xml)
{
    std::istringstream stream(xml.toStdString());
    std::vector<citygml::Finding> findings;
    citygml::checkDocument(stream, [&](const citygml::Finding& finding) {
        if (finding.reason.find("the dimension ") == std::string::npos) {
            findings.push_back(finding);
        }
    });
    return findings;
}

QString textOf(const citygml::Finding& finding)
{
    return QString("%1:%2 %3: %4")
        .arg(finding.line)
        .arg(finding.column)
        .arg(QString::fromStdString(finding.path), QString::fromStdString(finding.reason));
}

/// Collects what went wrong with many documents and shows the first.
class Complaints
{
public:
    void add(const Document& document, const QString& what)
    {
        if (++count == 1) {
            first = document.label() + ": " + what + '\n' + document.faulty;
        }
    }
    bool isEmpty() const { return count == 0; }
    QString text() const { return QString("%1 documents; %2").arg(count).arg(first); }

private:
    int count = 0;
    QString first;
};

} // namespace

/// Documents with one fault each, made from the schema files: they have that one fault, and strict reading
/// sees what it should.
class FaultDocumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const Generator generator(schemas());
        generator.generate(documentsPerPlace, qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS"),
                           [this](const Document& document) { documents.append(document); });
        QSet<QByteArray> seen;
        for (const Document& document : qAsConst(documents)) {
            if (!seen.contains(document.faultless)) {
                seen.insert(document.faultless);
                faultless.append(document);
            }
        }
        qInfo("%d documents, made of %d without fault", documents.size(), faultless.size());
    }

    /// Nothing tells of a kind of place or fault that the generator no longer makes but this.
    void everyKindIsMade()
    {
        QMap<QString, int> made;
        for (const Document& document : qAsConst(documents)) {
            const Place& place = document.place;
            const QString node = place.isAttribute ? "attribute" : "element";
            ++made[textOf(document.kind)];
            ++made[place.cardinality + ' ' + node];
            ++made[node + ' ' + place.area];
            ++made[place.area + ' ' + place.position];
            if (document.kind == Kind::WrongValue) {
                ++made["wrong " + textOf(place.value) + ' ' + node];
                ++made["wrong " + textOf(place.value) + ' ' + place.area];
            }
            if (document.kind == Kind::Missing) {
                ++made["missing " + node];
            }
        }
        QStringList missing;
        for (int kind = 0; kind <= static_cast<int>(Kind::UndeclaredAttribute); ++kind) {
            expect(made, textOf(static_cast<Kind>(kind)), missing);
        }
        for (const QString area : {"core", "module", "extension"}) {
            for (const QString position : {"first", "middle", "last", "only"}) {
                expect(made, area + ' ' + position, missing);
            }
            expect(made, "element " + area, missing);
        }
        for (const char* kind :
             {"optional element",        "repeated element",        "required element",
              "optional attribute",      "required attribute",      "attribute core",
              "attribute module",        "attribute extension",     "missing element",
              "missing attribute",       "wrong number element",    "wrong boolean element",
              "wrong date element",      "wrong literal element",   "wrong list element",
              "wrong number attribute",  "wrong literal attribute", "wrong date core",
              "wrong date module",       "wrong date extension",    "wrong number core",
              "wrong number module",     "wrong number extension",  "wrong boolean core",
              "wrong boolean module",    "wrong boolean extension", "wrong literal core",
              "wrong literal extension", "wrong list core",         "wrong list module"}) {
            expect(made, kind, missing);
        }
        QCOMPARE(missing, QStringList());
    }

    void documentsWithoutFaultAreValid()
    {
        SchemaValidator validator(schemas());
        Complaints complaints;
        for (const Document& document : qAsConst(faultless)) {
            const QString error = validator.validate(document.faultless);
            if (!error.isEmpty()) {
                complaints.add(document, error);
            }
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
    }

    void documentsWithFaultAreNot()
    {
        SchemaValidator validator(schemas());
        Complaints complaints;
        for (const Document& document : qAsConst(documents)) {
            if (validator.validate(document.faulty).isEmpty()) {
                complaints.add(document, "is valid");
            }
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
    }

    void documentsWithoutFaultComeBack()
    {
        Complaints complaints;
        for (const Document& document : qAsConst(faultless)) {
            const QString error = errorOf(document.faultless);
            const QStringList differences =
                error.isEmpty() ? differencesAfterSave(document.faultless) : QStringList(error);
            if (!differences.isEmpty()) {
                complaints.add(document, differences.first());
            }
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
    }

    /// Each fault is told where it is.
    void strictReadingRefusesFaults()
    {
        Complaints complaints;
        int refused = 0;
        for (const Document& document : qAsConst(documents)) {
            const QString error = errorOf(document.faulty);
            const QString place = QString("document:%1:%2 ").arg(document.line).arg(document.column);
            if (document.isRefused && !error.trimmed().startsWith(place)) {
                complaints.add(document, "not at " + place + ": " + error);
            }
            refused += document.isRefused ? 1 : 0;
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
        QVERIFY(refused > documents.size() / 4);
    }

    /// What only stands in a wrong place, once too often or under a name that nobody declares.
    void strictReadingKeepsWhatHasNoPlace()
    {
        Complaints complaints;
        for (const Document& document : qAsConst(documents)) {
            if (document.isRefused) {
                continue;
            }
            const QString error = errorOf(document.faulty);
            if (!error.isEmpty()) {
                complaints.add(document, error);
            } else if (!differencesAfterSave(document.faulty).isEmpty()) {
                complaints.add(document, differencesAfterSave(document.faulty).first());
            }
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
    }

    void checksFindNothingWithoutFault()
    {
        Complaints complaints;
        for (const Document& document : qAsConst(faultless)) {
            for (const citygml::Finding& finding : findingsIn(document.faultless)) {
                complaints.add(document, textOf(finding));
            }
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
    }

    /// Also those that strict reading lets pass.
    void checksFindEveryFault()
    {
        Complaints complaints;
        int unseen = 0;
        for (const Document& document : qAsConst(documents)) {
            QStringList found;
            for (const citygml::Finding& finding : findingsIn(document.faulty)) {
                found += textOf(finding);
            }
            const QString expected =
                QString("%1:%2 %3").arg(document.line).arg(document.column).arg(document.path);
            if (found.isEmpty() && !document.isRefused &&
                (document.kind == Kind::Missing || document.kind == Kind::OneTooMany)) {
                // What a type that restricts its base says of numbers is not in the tables.
                ++unseen;
                continue;
            }
            if (found.isEmpty() || !found.first().startsWith(expected + ": ") || found.size() != 1) {
                complaints.add(document, "not " + expected + " but " + found.join(", "));
            }
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
        QVERIFY2(unseen < documents.size() / 20, qPrintable(QString::number(unseen)));
    }

    void repairsPutElementsInOrder()
    {
        Complaints complaints;
        for (const Document& document : qAsConst(documents)) {
            if (document.kind != Kind::OutOfOrder) {
                continue;
            }
            std::istringstream stream(document.faulty.toStdString());
            const testsupport::Document repaired =
                citygml::repairDocument(stream, [](const citygml::Finding&) {});
            for (const citygml::Finding& finding : findingsIn(write(*repaired))) {
                complaints.add(document, textOf(finding));
            }
            if (!citygml::findingsOf(*repaired).empty()) {
                complaints.add(document, "has findings still");
            }
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.text()));
    }

private:
    static void expect(const QMap<QString, int>& made, const QString& kind, QStringList& missing)
    {
        if (!made.contains(kind)) {
            missing << kind;
        }
    }

    QVector<Document> documents;
    /// One of those that are made of the same document without fault.
    QVector<Document> faultless;
};

TEST_CLASS(FaultDocumentsTest, Core)
#include "faultdocumentstest.moc"
