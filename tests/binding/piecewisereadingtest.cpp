#include "citygml/Findings.h"
#include "citygml/ReadingThreads.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/Mutants.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include "citygml/CityModel.h"

#include <cstring>
#include <QtTest>
#include <sstream>

using namespace testsupport;

namespace {

const xsd::cxx::tree::flags strictly = 0;
const xsd::cxx::tree::flags leniently = xsd::cxx::tree::flags::dont_validate;

/// Everything that reading a document answers: what a save writes of it, what was found, or the error.
std::string outcome(const std::string& xml, xsd::cxx::tree::flags flags)
{
    std::istringstream stream(xml);
    std::ostringstream text;
    try {
        const Document document(core::CityModel(stream, flags).release());
        for (const citygml::FindingGroup& group : citygml::findingsOf(*document)) {
            text << group.count << " times " << group.reason << " in " << group.path << '\n';
            for (const citygml::Finding& finding : group.first) {
                text << finding.line << ':' << finding.column << ": " << finding.path << ' ' << finding.reason
                     << " [" << finding.featureId << "]\n";
            }
        }
        text << write(*document).toStdString();
    } catch (const xsd::cxx::tree::duplicate_id<char>& error) {
        text << "identifier " << error.id();
    } catch (const xsd::cxx::tree::exception<char>& error) {
        text << error;
    }
    return text.str();
}

/// The same with a number of threads, and pieces of so many bytes.
std::string outcome(const std::string& xml, xsd::cxx::tree::flags flags, unsigned threads, int pieceSize)
{
    citygml::setReadingThreads(threads);
    qputenv("TOLVIK_PIECE_SIZE", QByteArray::number(pieceSize));
    std::string result = outcome(xml, flags);
    qunsetenv("TOLVIK_PIECE_SIZE");
    citygml::setReadingThreads(0);
    return result;
}

/// Reads a document with one thread and with several.
/// \return empty if that is the same
QByteArray difference(const std::string& xml)
{
    for (const xsd::cxx::tree::flags flags : {strictly, leniently}) {
        const std::string expected = outcome(xml, flags, 1, 1);
        for (const int pieceSize : {1, 1000, 1 << 18}) {
            const std::string found = outcome(xml, flags, 3, pieceSize);
            if (found != expected) {
                std::size_t at = 0;
                while (at < found.size() && at < expected.size() && found[at] == expected[at]) {
                    ++at;
                }
                at -= std::min<std::size_t>(at, 100);
                return "pieces of " + QByteArray::number(pieceSize) +
                       ": one thread: " + QByteArray::fromStdString(expected.substr(at, 300)) +
                       "\n   several: " + QByteArray::fromStdString(found.substr(at, 300));
            }
        }
    }
    return QByteArray();
}

const char* const open = "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' "
                         "xmlns:bldg='http://www.opengis.net/citygml/building/2.0' "
                         "xmlns:gml='http://www.opengis.net/gml' xmlns:x='urn:x'>";
const char* const close = "</core:CityModel>";

std::string building(const std::string& id, const std::string& content = std::string())
{
    return "<core:cityObjectMember><bldg:Building gml:id='" + id + "'>" + content +
           "</bldg:Building></core:cityObjectMember>";
}

} // namespace

/// Documents that are read with several threads are the same as with one.
class PiecewiseReadingTest : public QObject
{
    Q_OBJECT

private slots:
    void documents_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString& path : documentsBelow(examples()) + documentsBelow(sharedDocuments())) {
            QTest::newRow(qPrintable(path)) << path;
        }
    }
    void documents()
    {
        QFETCH(QString, path);
        const QByteArray found = difference(contentOf(path).toStdString());
        QVERIFY2(found.isEmpty(), found);
    }

    void mutants()
    {
        QByteArrayList documents;
        for (const QString& path : documentsBelow(examples()) + documentsBelow(sharedDocuments())) {
            documents << contentOf(path);
        }
        mutants::Maker maker(documents);
        const int count = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? 10000 : 100;
        for (int i = 0; i < count; ++i) {
            const auto mutant = maker.next();
            const QByteArray found = difference(mutant.xml.toStdString());
            QVERIFY2(found.isEmpty(), QByteArray::number(i) + ' ' + mutant.change + ": " + found);
        }
    }

    /// Bytes changed, lost and doubled: most are not well-formed, and the error is the same.
    void brokenDocuments()
    {
        std::mt19937 random(7);
        const int count = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? 3000 : 60;
        for (const QString& path : documentsBelow(examples())) {
            const std::string whole = contentOf(path).toStdString();
            for (int i = 0; i < count / 6; ++i) {
                std::string xml = whole;
                const std::size_t at = random() % xml.size();
                switch (i % 4) {
                case 0:
                    xml[at] = "<>&\"'/!-]\xff\n "[random() % 12];
                    break;
                case 1:
                    xml.erase(at, 1 + random() % 40);
                    break;
                case 2:
                    xml.insert(at, xml.substr(random() % xml.size(), random() % 200));
                    break;
                default:
                    xml.resize(at);
                    break;
                }
                const QByteArray found = difference(xml);
                QVERIFY2(found.isEmpty(), path.toUtf8() + ' ' + QByteArray::number(i) + ": " + found);
            }
        }
    }

    void betweenTheChildren_data()
    {
        QTest::addColumn<QString>("content");
        const std::string one = building("a"), two = building("b"), three = building("c");
        const auto row = [](const char* name, const std::string& content) {
            QTest::newRow(name) << QString::fromStdString(content);
        };
        row("none", "");
        row("comments", one + "<!-- > --><!-->-->" + two + "<!--<core:cityObjectMember>-->" + three);
        row("instructions", one + "<?x <y> ?>" + two + "<?x?>" + three);
        row("text", "text" + one + " text &amp; more\n" + two + "<![CDATA[</core:CityModel>]]>" + three);
        row("unknown elements", one + "<x:y a='>'>" + two + "</x:y>" + three + "<x:z/>" + two);
        row("line ends", one + "\r\n" + two + "\r\r\n\n" + three + "\n<x:y");
        row("columns", one + "<!--\xc3\xa4\xe2\x82\xac-->" + two + three + "</x:y>");
        row("single members", "<gml:boundedBy/>" + one + "<gml:boundedBy/>" + two + "<gml:name>n</gml:name>");
        // So large that there are several pieces.
        row("late members",
            one + "<gml:name>n</gml:name><gml:name>m</gml:name>" + two +
                building("l", "<gml:description>" + std::string(100000, '-') + "</gml:description>") +
                "\n <gml:name>o</gml:name><!--b-->" + three);
        row("an identifier twice", one + two + building("x") + "\n" + three + one + two);
        row("an identifier twice in one",
            one + building("z", "<bldg:consistsOfBuildingPart><bldg:BuildingPart "
                                "gml:id='z'/></bldg:consistsOfBuildingPart>"));
        row("abstract", one + "<gml:_Feature/>" + two +
                            "<core:cityObjectMember><core:_CityObject/>"
                            "</core:cityObjectMember>" +
                            three);
        row("wrong values", one + building("w", "<bldg:storeysAboveGround>many</bldg:storeysAboveGround>") +
                                "\n\n" +
                                building("v", "\n<bldg:measuredHeight uom='m'>x</bldg:measuredHeight>"));
        row("an unbound prefix", one + two + "<core:cityObjectMember><y:z/></core:cityObjectMember>");
        row("declarations",
            one + "<core:cityObjectMember xmlns:y='urn:y'><y:z y:a='1'/></core:cityObjectMember>" + two +
                "<core:cityObjectMember><y:z/></core:cityObjectMember>");
        row("nil", one +
                       "<core:cityObjectMember xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                       "xsi:nil='true'/>" +
                       two);
        row("a large child", one +
                                 building("l", "<gml:description>" + std::string(100000, '-') + "<!--" +
                                                   std::string(70000, '\n') + "-->" + "</gml:description>") +
                                 two + "\n<x:y");
        row("members of all kinds", one + "<gml:featureMember><bldg:Building/></gml:featureMember>" + two +
                                        "<gml:featureMember/>" + three + "<core:nothing/>" + building("d"));
    }
    void betweenTheChildren()
    {
        QFETCH(QString, content);
        for (const char* head : {"", "<?xml version='1.0' encoding='utf-8'?>", "\xef\xbb\xbf", "<!--a-->\n",
                                 "<?xml version='1.0'?><!DOCTYPE x>", "<!DOCTYPE x [<!ENTITY e 'f'>]>"}) {
            for (const char* tail : {"", "\n<!--b-->\n", "rest", "<x/>"}) {
                const QByteArray found =
                    difference(head + std::string(open) + content.toStdString() + close + tail);
                QVERIFY2(found.isEmpty(), QByteArray(head) + ' ' + tail + ": " + found);
            }
        }
        const QByteArray found = difference(open + content.toStdString());
        QVERIFY2(found.isEmpty(), found);
    }

    void otherEncodings()
    {
        const QString text = QString(open) + QString::fromStdString(building("a")) + "\n<!--\u00e4-->" +
                             QString::fromStdString(building("b")) + close;
        const QByteArray declaration = "<?xml version='1.0' encoding='ISO-8859-1'?>";
        QByteArray found = difference((declaration + text.toLatin1()).toStdString());
        QVERIFY2(found.isEmpty(), found);
        const QString marked = QChar(0xFEFF) + text;
        const QByteArray wide(reinterpret_cast<const char*>(marked.utf16()), 2 * marked.size());
        found = difference(wide.toStdString());
        QVERIFY2(found.isEmpty(), found);
    }

    /// A byte that begins a character takes the end of a tag along.
    void bytesThatAreNoCharacters()
    {
        const std::string content = building("a") + building("b", "<x:y/>") + building("c") + building("d");
        for (std::size_t i = 0; i < content.size(); ++i) {
            if (content[i] == '>') {
                std::string wrong = open + content + close;
                wrong.insert(std::strlen(open) + i, "\xea");
                const QByteArray found = difference(wrong);
                QVERIFY2(found.isEmpty(), QByteArray::number(static_cast<int>(i)) + ": " + found);
            }
        }
    }

    /// The same where a child is larger than a block, and is given to the parser bit by bit.
    void bytesThatAreNoCharactersInALargeChild()
    {
        const std::string large = building("a", std::string(100000, ' '));
        const std::string content = large + building("b") + building("c");
        for (const std::size_t back : {1, 10, 40}) {
            const std::size_t at = content.find('>', large.size() - back);
            std::string wrong = open + content + close;
            wrong.insert(std::strlen(open) + at, "\xea");
            const QByteArray found = difference(wrong);
            QVERIFY2(found.isEmpty(), QByteArray::number(static_cast<int>(back)) + ": " + found);
        }
    }

    void otherRoots()
    {
        const char older[] = "<CityModel xmlns='http://www.opengis.net/citygml/1.0'><cityObjectMember/>"
                             "<cityObjectMember/></CityModel>";
        const char newer[] = "<CityModel xmlns='http://www.opengis.net/citygml/3.0'><cityObjectMember/>"
                             "<cityObjectMember/></CityModel>";
        for (const char* xml : {"", " ", "<", "<x/>", "<core\xea>Member>", "<core:CityModel/>", "<!--", "<?x",
                                "<CityModel xmlns='http://www.opengis.net/citygml/2.0'/>", older, newer}) {
            const QByteArray found = difference(xml);
            QVERIFY2(found.isEmpty(), QByteArray(xml) + ": " + found);
        }
    }

    /// What was read before the stream failed is told as with one thread: an error in it comes first.
    void aStreamThatFails_data()
    {
        QTest::addColumn<bool>("throws");
        QTest::newRow("bad") << false;
        QTest::newRow("exception") << true;
    }
    void aStreamThatFails()
    {
        QFETCH(bool, throws);
        std::string xml = open;
        for (int i = 0; i < 3000; ++i) {
            xml += building("b" + std::to_string(i)) + '\n';
        }
        std::string wrong = xml;
        wrong.insert(1000, "<");
        for (const std::string& text : {xml, wrong}) {
            const auto failed = [&](unsigned threads) {
                citygml::setReadingThreads(threads);
                FailingBuffer buffer(text);
                std::istream stream(&buffer);
                if (throws) {
                    stream.exceptions(std::ios_base::badbit);
                }
                std::ostringstream result;
                try {
                    core::CityModel(stream, leniently);
                } catch (const xsd::cxx::tree::exception<char>& error) {
                    result << error;
                } catch (const std::runtime_error& error) {
                    result << "thrown: " << error.what();
                }
                citygml::setReadingThreads(0);
                return result.str();
            };
            qputenv("TOLVIK_PIECE_SIZE", "1000");
            QVERIFY(!failed(1).empty());
            QCOMPARE(failed(4), failed(1));
            qunsetenv("TOLVIK_PIECE_SIZE");
        }
    }

    void theNumberOfThreadsIsSet()
    {
        QVERIFY(citygml::readingThreads() >= 1);
        qputenv("TOLVIK_THREADS", "3");
        QCOMPARE(citygml::readingThreads(), 3U);
        citygml::setReadingThreads(5);
        QCOMPARE(citygml::readingThreads(), 5U);
        citygml::setReadingThreads(0);
        QCOMPARE(citygml::readingThreads(), 3U);
        qputenv("TOLVIK_THREADS", "many");
        QVERIFY(citygml::readingThreads() >= 1);
        qunsetenv("TOLVIK_THREADS");
    }

private:
    /// Gives a text, and then fails.
    class FailingBuffer : public std::streambuf
    {
    public:
        explicit FailingBuffer(std::string text) : text(std::move(text))
        {
            setg(&this->text[0], &this->text[0], &this->text[0] + this->text.size());
        }

    private:
        int_type underflow() override { throw std::runtime_error("the device is gone"); }

        std::string text;
    };
};

TEST_CLASS(PiecewiseReadingTest, None)
#include "piecewisereadingtest.moc"
