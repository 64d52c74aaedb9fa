#include "energy/BuildingUnitType.hxx"
#include "gml/CodeType.hxx"
#include "gml/QNameList.hxx"
#include "support/Documents.h"
#include "support/SchemaObjects.h"
#include "support/TestClass.h"

#include <QtTest>

#include <map>

using namespace testsupport;

namespace {

constexpr const char* builtIn = "http://www.w3.org/2001/XMLSchema";

/// Two prefixes, and a namespace that has none.
class TwoPrefixes : public citygml::binding::NameScope
{
public:
    std::string namespaceOf(std::string_view prefix) const override
    {
        if (prefix.empty()) {
            return "urn:none";
        }
        if (prefix != "a" && prefix != "b") {
            throw ValueError{"no such prefix"};
        }
        return "urn:" + std::string(prefix);
    }
    std::string prefixOf(const std::string& uri) const override
    {
        return uri == "urn:none" ? std::string() : uri.substr(4);
    }
};

/// The type of a class, or a built-in one by its name alone.
const TypeRecord* recordOfKind(const QString& kind)
{
    for (std::size_t i = 0; i < allTypesCount; ++i) {
        if (QLatin1String(allTypes[i]->uri) == QLatin1String(builtIn) &&
            QLatin1String(allTypes[i]->name) == kind) {
            return allTypes[i];
        }
    }
    return recordByClass(kind);
}

/// What is written of a value that was read from a text; why it cannot be read, if it cannot.
QString rewritten(const QString& kind, const std::string& text)
{
    const TypeRecord* const record = recordOfKind(kind.section('.', 0, 0));
    if (record == nullptr) {
        return "no type " + kind;
    }
    const std::unique_ptr<xml_schema::type> object(record->create());
    std::string result;
    try {
        if (kind.contains('.')) {
            const Member* const member = findMember(record, kind.section('.', 1));
            member->ops->addText(*object, text);
            member->ops->format(*object, 0, result);
        } else {
            record->text->parse(*object, text, TwoPrefixes());
            record->text->format(*object, result, TwoPrefixes());
        }
    } catch (const ValueError& error) {
        return "! " + QString::fromStdString(error.message);
    }
    return QString::fromStdString(result);
}

/// Rows of values of one kind.
class Values
{
public:
    Values(const char* kind, const char* noun) : kind(kind), noun(noun) {}

    /// Values that come back as they are.
    const Values& same(const QStringList& texts) const
    {
        for (const QString& text : texts) {
            as(text, text);
        }
        return *this;
    }
    /// A value that is written in another way than it was read.
    const Values& as(const QString& text, const QString& written) const
    {
        QTest::addRow("%s '%s'", kind, qPrintable(text)) << kind << text << written;
        return *this;
    }
    /// Texts that are no values.
    const Values& none(const QStringList& texts) const
    {
        for (const QString& text : texts) {
            as(text, QStringLiteral("! '%1' is not %2").arg(text.trimmed(), QLatin1String(noun)));
        }
        return *this;
    }

private:
    const char* kind;
    const char* noun;
};

} // namespace

/// The texts of values in documents: what is read, what is refused, and how values are written.
class TextValuesTest : public QObject
{
    Q_OBJECT

private:
    static void numbers()
    {
        Values("gml::MeasureType", "a number")
            .same({"1.5", "-0.25", "0", "-0", "INF", "-INF", "NaN"})
            .as(" \t\r\n1.5\r\n\t ", "1.5")
            .as("+1.5", "1.5")
            .as(".5", "0.5")
            .as("5.", "5")
            .as("1.50e0", "1.5")
            .as("+INF", "INF")
            .none({"", "-", "+", "+-1", "--1", "-+1", "inf", "-inf", "Infinity", "nan", "1,5", "1 2", "0x10",
                   "1e", "."})
            .as("1e999", "! '1e999' is not a number within range")
            .as("-1e999", "! '-1e999' is not a number within range")
            // Without an exponent as far as people write numbers so.
            .same({"0.000001", "999999999999999", "-0.000001", "-999999999999999.9"})
            .as("0.00000099", "9.9e-07")
            .as("1000000000000000", "1e+15")
            .as("123456789012345678", "1.2345678901234568e+17")
            .as(QString(60, '1') + 'x', "! '" + QString(60, '1') + "...' is not a number")
            .as(QString(59, '1') + 'x', "! '" + QString(59, '1') + "x' is not a number");

        Values("core::integerBetween0and4", "a whole number")
            .same({"0", "-5", "9223372036854775807", "-9223372036854775808"})
            .as("\r7\n", "7")
            .as("+7", "7")
            .as("007", "7")
            .none({"", "+", "-", "+-7", "-+7", "++7", "7.0", "7 8", "1e3", "9223372036854775808"});

        Values("bldg::BuildingType.storeysAboveGround", "a whole number without sign")
            .same({"18446744073709551615"})
            .as("+7", "7")
            .none({"-1", "-0", "+-7", "18446744073709551616"});

        Values("energy::BuildingUnitType.numberOfRooms", "a whole number of 32 bits")
            .same({"2147483647", "-2147483648"})
            .none({"2147483648", "-2147483649"});

        Values("brid::BridgeType.isMovable", "true or false")
            .same({"true", "false"})
            .as("1", "true")
            .as("0", "false")
            .as("\n true\t", "true")
            .none({"", "yes", "TRUE", "10", "00"});

        Values("gml::doubleList", "a number")
            .same({"", "1 2.5 -3", "NaN INF -INF"})
            .as(" 1\r\n2.5\t\t-3 ", "1 2.5 -3")
            .as("+1 +INF .5", "1 INF 0.5")
            .as("1 +-2", "! '+-2' is not a number")
            .as("1 2x 3", "! '2x' is not a number")
            .as("1 inf", "! 'inf' is not a number")
            .as("1e999 1", "! '1e999' is not a number within range");
    }

    static void moments()
    {
        Values("date", "a date")
            .same({"2001-02-03", "-0044-03-15", "12001-02-03", "0001-12-31", "0000-00-00", "2001-02-03Z",
                   "2001-02-03+05:30", "2001-02-03-05:30", "2001-02-03+14:00", "2001-02-03-00:45"})
            .as("2001-02-03+00:00", "2001-02-03Z")
            .as("2001-02-03-00:00", "2001-02-03Z")
            .as("\n2001-02-03 ", "2001-02-03")
            .none({"", "201-02-03", "2001-2-03", "2001-02-3", "2001-00-01", "2001-13-01", "2001-01-00",
                   "2001-01-32", "2001-02-03+15:00", "2001-02-03+05:60", "2001-02-03+5:30", "2001-02-03x",
                   "2001-02-03Zx", "+2001-02-03", "2001/02/03", "20010203", "2001-02"});

        Values("date_time", "a date and time")
            .same({"2001-02-03T04:05:06", "2001-02-03T14:15:16.75", "2001-02-03T04:05:00.125Z",
                   "2001-02-03T24:00:00", "2001-02-03T23:59:60", "2001-02-03T04:05:06-11:15",
                   "-0044-03-15T00:00:00"})
            // Of a day that is none the time is none either.
            .as("0000-00-00T04:05:06", "0000-00-00T00:00:00")
            .none({"2001-02-03", "2001-02-03T", "2001-02-03 04:05:06", "2001-02-03T4:05:06",
                   "2001-02-03T04:5:06", "2001-02-03T04:05:6", "2001-02-03T04:05:006", "2001-02-03T04:05",
                   "2001-02-03T25:00:00", "2001-02-03T23:60:00", "2001-02-03T23:59:61",
                   "2001-02-03T04:05:06+02"});

        Values("time", "a time")
            .same({"04:05:06", "04:05:06.5+01:00", "23:59:60Z"})
            .none({"4:05:06", "04:05", "04:05:06.5+1"});

        Values("gyear", "a year")
            .same({"1789", "-0044", "12345", "0000", "1789Z", "1789+02:00"})
            .none({"", "178", "-44", "1789-07", "17 89"});

        Values("duration", "a duration")
            .same({"P1Y2M3DT4H5M6.5S", "-P1D", "P12M", "PT12M", "PT0.25S", "P400D", "-PT36H"})
            .as("P0D", "PT0S")
            .as("-P0Y", "PT0S")
            .as("P0Y3D", "P3D")
            .none({"", "P", "-P", "PT", "P1DT", "P1M1Y", "P1Y1Y", "P1H", "PT1D", "P1", "1Y", "P-1D", "PT5M4H",
                   "P1YT", "+P1D", "P1X"})
            .as("P1.5D", "! '1.5' is not a whole number in a duration")
            .as("PT1.5.5S", "! '1.5.5' is not a number");
    }

    static void texts()
    {
        Values("string", "").same({"", " a\t\nb "});
        Values("uri", "").as(" http://a/b c\n", "http://a/b c");
        // Prefixes are those that hold where the text stands.
        Values("gml::QNameList", "a qualified name")
            .same({"a:x b:y z", ""})
            .as(":x", "x")
            .as("a:x:y", "a:x:y")
            .none({"a:", ":"})
            .as("c:x", "! no such prefix");
        Values("language", "").as("\r\n de\t", "de").as("a  b\t\tc", "a b c");
    }

private slots:
    void values_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("written");
        numbers();
        moments();
        texts();
    }

    void values()
    {
        QFETCH(QString, kind);
        QFETCH(QString, text);
        QFETCH(QString, written);
        QCOMPARE(rewritten(kind, text.toStdString()), written);
    }

    /// A name without a namespace, as a host makes one, asks for no prefix.
    void namesWithoutANamespace()
    {
        gml::QNameList names;
        names.push_back(xml_schema::qname(xml_schema::ncname("x")));
        std::string text;
        recordOf(names)->text->format(names, text, TwoPrefixes());
        QCOMPARE(text, std::string("x"));
    }

    void contentAndAttributesAreEscaped()
    {
        gml::CodeType name("\t\n\r&<>\"' \x7F]]>");
        name.codeSpace(xml_schema::uri("a\t\n\r&<>\"' \x7F"));
        core::CityModelType document;
        document.name().push_back(name);
        const QByteArray written = write(document);
        QVERIFY2(written.contains("codeSpace=\"a&#9;&#10;&#13;&amp;&lt;&gt;&quot;' \x7F\""), written);
        QVERIFY2(written.contains(">\t\n&#13;&amp;&lt;&gt;\"' \x7F]]&gt;</"), written);
        const Document back = read(written);
        QCOMPARE(back->name().front(), std::string(name));
        QCOMPARE(back->name().front().codeSpace().get(), std::string(name.codeSpace().get()));
    }

    /// UTF-8 in its one form, and of its characters those that XML has.
    void characters_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isWritten");
        const auto add = [](const char* name, const char* text, bool isWritten) {
            QTest::newRow(name) << QByteArray(text) << isWritten;
        };
        add("U+0009", "\t", true);
        add("U+0080", "\xC2\x80", true);
        add("U+07FF", "\xDF\xBF", true);
        add("U+0800", "\xE0\xA0\x80", true);
        add("U+D7FF", "\xED\x9F\xBF", true);
        add("U+E000", "\xEE\x80\x80", true);
        add("U+FFFD", "\xEF\xBF\xBD", true);
        add("U+10000", "\xF0\x90\x80\x80", true);
        add("U+10FFFF", "\xF4\x8F\xBF\xBF", true);
        add("U+000B", "\x0B", false);
        add("U+001F", "\x1F", false);
        add("U+D800", "\xED\xA0\x80", false);
        add("U+DFFF", "\xED\xBF\xBF", false);
        add("U+FFFE", "\xEF\xBF\xBE", false);
        add("U+FFFF", "\xEF\xBF\xBF", false);
        add("U+110000", "\xF4\x90\x80\x80", false);
        add("two bytes for one", "\xC1\xBF", false);
        add("three bytes for two", "\xE0\x9F\xBF", false);
        add("four bytes for three", "\xF0\x8F\xBF\xBF", false);
        add("five bytes", "\xF8\x88\x80\x80\x80", false);
        add("a second byte alone", "\x80", false);
        add("half of two", "\xC2", false);
        add("two of three", "\xE2\x82", false);
        add("three of four", "\xF0\x9F\x8F", false);
        add("a letter for the second of two", "\xC2z", false);
        add("a letter for the third of three", "\xE2\x82z", false);
        add("a letter for the fourth of four", "\xF0\x9F\x8Fz", false);
    }

    void characters()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isWritten);
        for (const bool inAttribute : {false, true}) {
            gml::CodeType name(inAttribute ? std::string("n") : "a" + text.toStdString() + "z");
            if (inAttribute) {
                name.codeSpace(xml_schema::uri("a" + text.toStdString() + "z"));
            }
            core::CityModelType document;
            document.name().push_back(name);
            if (!isWritten) {
                QVERIFY_EXCEPTION_THROWN(write(document), xsd::cxx::tree::serialization<char>);
                continue;
            }
            const Document back = read(write(document));
            const gml::CodeType& read = back->name().front();
            QCOMPARE(inAttribute ? std::string(*read.codeSpace()) : std::string(read),
                     "a" + text.toStdString() + "z");
        }
    }

    /// What an object held before is gone when it reads another text.
    void readingAnewReplacesAll()
    {
        const std::map<QString, QStringList> textsByKind{
            {"gml::doubleList", {"1 2", "3"}},
            {"gml::integerList", {"1 2", "3"}},
            {"gml::doubleOrNullList", {"1 unknown", "3"}},
            {"date", {"2001-02-03Z", "1999-12-31"}},
            {"date_time", {"2001-02-03T04:05:06Z", "1999-12-31T00:00:00"}},
            {"duration", {"-P1Y2M3DT4H5M6S", "P7Y"}},
            {"duration", {"P7Y", "-P1Y2M3DT4H5M6S"}},
        };
        for (const auto& [kind, texts] : textsByKind) {
            const TypeRecord* const record = recordOfKind(kind);
            QVERIFY2(record != nullptr, qPrintable(kind));
            const std::unique_ptr<xml_schema::type> object(record->create());
            for (const QString& text : texts) {
                record->text->parse(*object, text.toStdString(), NoNames());
                QCOMPARE(textOf(*object), text);
            }
        }
    }
};

TEST_CLASS(TextValuesTest, Core)
#include "textvaluestest.moc"
