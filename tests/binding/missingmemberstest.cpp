#include "bldg/BuildingType.hxx"
#include "citygml/Findings.h"
#include "core/CityModelType.hxx"
#include "energy/AllTypes.h"
#include "gen/AllTypes.h"
#include "gml/FeaturePropertyType.hxx"
#include "gml/LengthType.hxx"
#include "support/Documents.h"
#include "support/FaultDocuments.h"
#include "support/FaultEdits.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"

#include <QtTest>

#include <algorithm>
#include <functional>

using namespace faults;
using faults::Document;
using testsupport::documentWithBuilding;
using testsupport::errorOf;
using testsupport::read;
using testsupport::readStrictly;
using testsupport::write;
using testsupport::XmlNode;

namespace {

/// Calls \a use with an object and with all that it holds.
void walk(const xml_schema::type& object, const std::function<void(const xml_schema::type&)>& use)
{
    use(object);
    for (const auto* record = citygml::binding::recordOf(object); record != nullptr; record = record->base) {
        for (std::size_t i = 0; i < record->memberCount; ++i) {
            const citygml::binding::Member& member = record->members[i];
            for (std::size_t k = 0; member.type != nullptr && k < member.ops->count(object); ++k) {
                walk(member.ops->at(object, k), use);
            }
        }
    }
}

/// Names of the required members that hold objects, and hold none here.
QStringList emptyMembersOf(const xml_schema::type& root)
{
    QStringList names;
    walk(root, [&names](const xml_schema::type& object) {
        for (const auto* record = citygml::binding::recordOf(object); record != nullptr;
             record = record->base) {
            for (std::size_t i = 0; i < record->memberCount; ++i) {
                const citygml::binding::Member& member = record->members[i];
                if (member.isRequired && member.type != nullptr && member.ops->count(object) == 0) {
                    names << QString("%1.%2").arg(record->name, member.name);
                }
            }
        }
    });
    return names;
}

/// Whether the class of the place's type has the member, and requires it. A type that restricts another is of
/// the other's class.
bool isRequiredByClass(const Place& place)
{
    using namespace citygml::binding;
    const auto* const end = allTypes + allTypesCount;
    const auto* const record = std::find_if(allTypes, end, [&place](const TypeRecord* each) {
        return place.type.uri == each->uri && place.type.local == each->name;
    });
    const Member* const member = record != end ? memberOf(*record, place.member, place.isAttribute) : nullptr;
    return member != nullptr && member->isRequired;
}

tolvik::CoreProperty* rowOf(const Features& features, const QString& end)
{
    for (const auto& row : features.rows) {
        if (row.first.endsWith(end)) {
            return row.second;
        }
    }
    return nullptr;
}

/// The only object in a member for elements of GML.
xml_schema::type& childOf(xml_schema::type& object, const char* name)
{
    const Name qualified{"http://www.opengis.net/gml", name};
    const auto* const member = memberOf(citygml::binding::recordOf(object), qualified, false);
    return const_cast<xml_schema::type&>(member->ops->at(object, 0));
}

template <typename Attribute>
Attribute& attributeOf(core::CityModelType& document)
{
    auto& building = dynamic_cast<bldg::BuildingType&>(*document.featureMember().front()._Feature());
    return dynamic_cast<Attribute&>(building._GenericApplicationPropertyOfCityObject().front());
}

} // namespace

/// Documents that lack what the schema requires: they open, show no value for it, are saved without it, and
/// can be put right.
class MissingMembersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const Generator generator(testsupport::schemas());
        generator.generateMissing([this](const Document& document) {
            if (isRequiredByClass(document.place)) {
                documents.append(document);
            }
        });
        QVERIFY(documents.size() > 340);
    }

    void eachOpensAndComesBack()
    {
        forEach([](const Document& document, core::CityModelType& model) {
            const QByteArray saved = write(model);
            const QStringList differences =
                XmlNode::differences(XmlNode::parse(document.faulty), XmlNode::parse(saved));
            return differences.isEmpty() && write(*read(saved)) == saved ? QString() : differences.join('\n');
        });
    }

    void copiesAreWrittenAlike()
    {
        forEach([](const Document&, core::CityModelType& model) {
            core::CityModelType other(model);
            other.featureMember().clear();
            for (const gml::FeaturePropertyType& member : model.featureMember()) {
                other.featureMember().push_back(member);
            }
            const testsupport::Document copy(other._clone());
            return write(*copy) == write(model) ? QString() : QString(write(*copy));
        });
    }

    void noRequiredObjectIsAbsent()
    {
        forEach([](const Document&, core::CityModelType& model) { return emptyMembersOf(model).join(' '); });
    }

    void nothingThatIsMissingIsAFeature()
    {
        forEach([](const Document& document, core::CityModelType& model) {
            QStringList others = Features(model, true).ids;
            for (const QString& id : Features(*read(document.faultless), true).ids) {
                others.removeOne(id);
            }
            return others.join(' ');
        });
    }

    /// A row stays where it is, whether there is a value or not.
    void rowsShowNoValue()
    {
        int done = 0;
        forEach([&done](const Document& document, core::CityModelType& model) {
            // The name of a generic attribute is the label of its row.
            if (document.place.value == Value::None || document.place.member.local == "name") {
                return QString();
            }
            const testsupport::Document sound = read(document.faultless);
            const ObjectRows faulty(*ownerOf(model, document)), faultless(*ownerOf(*sound, document));
            QMap<QString, QVariant> values;
            for (const auto& row : faulty.rows) {
                values.insert(row.first, row.second->value());
            }
            for (const auto& row : faultless.rows) {
                const QVariant value = row.second->value();
                if (values.value(row.first) == value) {
                    continue;
                }
                ++done;
                if (!values.contains(row.first) || values[row.first].isValid()) {
                    return row.first + ": " + values.value(row.first).toString();
                }
            }
            return QString();
        });
        QVERIFY(done > 190);
    }

    void anEditOfTheRowPutsRight()
    {
        int done = 0;
        forEach([&done](const Document& document, core::CityModelType& model) {
            const testsupport::Document sound = read(document.faultless);
            const ObjectRows faulty(*ownerOf(model, document)), faultless(*ownerOf(*sound, document));
            if (!editRows(faulty.rows, faultless.rows)) {
                return QString();
            }
            ++done;
            return errorOf(write(model));
        });
        QVERIFY(done > 190);
    }

    void aSetterPutsRight()
    {
        int done = 0;
        forEach([&done](const Document& document, core::CityModelType& model) {
            const testsupport::Document sound = read(document.faultless);
            if (!setMember(model, *sound, document)) {
                return QString("has no setter");
            }
            ++done;
            const QStringList differences =
                XmlNode::differences(XmlNode::parse(document.faultless), XmlNode::parse(write(model)));
            return differences.join('\n');
        });
        QCOMPARE(done, documents.size());
    }

    void strictReadingRefusesWhatAFindingTells()
    {
        forEach([](const Document& document, core::CityModelType& model) {
            const auto& groups = citygml::findingsOf(model);
            if (groups.size() != 1) {
                return QString("%1 findings").arg(groups.size());
            }
            const QString error = errorOf(document.faulty);
            return error.contains(QString::fromStdString(groups[0].reason)) ? QString() : error + "none";
        });
    }

    void whatAProgramForgetsIsRefused()
    {
        // As a new attribute, and in place of one that a document lacked.
        const testsupport::Document document = read(documentWithBuilding("<gen:intAttribute name='n'/>"));
        gen::IntAttributeType withoutValue;
        withoutValue.name("m");
        attributeOf<gen::IntAttributeType>(*document) = withoutValue;
        QVERIFY_EXCEPTION_THROWN(write(*document), xsd::cxx::tree::expected_element<char>);

        const testsupport::Document other = read(documentWithBuilding("<gen:stringAttribute/>"));
        attributeOf<gen::StringAttributeType>(*other) = gen::StringAttributeType();
        QVERIFY_EXCEPTION_THROWN(write(*other), xsd::cxx::tree::expected_attribute<char>);
    }

    void anEditToWhatANewObjectHasCounts_data()
    {
        QTest::addColumn<QByteArray>("attribute");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("number") << QByteArray("<gen:intAttribute name='n'/>") << QVariant(0)
                                << QByteArray("<gen:value>0</gen:value>");
        QTest::newRow("wrong number")
            << QByteArray("<gen:intAttribute name='n'><gen:value>a</gen:value></gen:intAttribute>")
            << QVariant(0) << QByteArray("<gen:value>0</gen:value>");
        QTest::newRow("text") << QByteArray("<gen:stringAttribute name='n'/>") << QVariant(QString())
                              << QByteArray("<gen:value/>");
        QTest::newRow("date") << QByteArray("<gen:dateAttribute name='n'/>") << QVariant(QDate(1, 1, 1))
                              << QByteArray("<gen:value>0001-01-01</gen:value>");
        QTest::newRow("measure") << QByteArray("<gen:measureAttribute name='n'/>") << QVariant(0.0)
                                 << QByteArray("<gen:value uom=\"\">0</gen:value>");
    }
    void anEditToWhatANewObjectHasCounts()
    {
        QFETCH(QByteArray, attribute);
        QFETCH(QVariant, value);
        QFETCH(QByteArray, written);
        const testsupport::Document document = read(documentWithBuilding(attribute));
        const Features features(*document, true);
        tolvik::CoreProperty* const row = rowOf(features, "/n#0");
        if (row == nullptr) {
            QFAIL("no row of the attribute");
        }
        QVERIFY(!row->value().isValid());
        row->setValue(value);
        QCOMPARE(row->value(), value);
        QVERIFY(write(*document).contains(written));
        QCOMPARE(errorOf(write(*document)), QString());
    }

    void readingThroughAnyGetterChangesNothing()
    {
        const testsupport::Document document = read(documentWithBuilding("<gen:dateAttribute/>"));
        const QByteArray saved = write(*document);
        auto& attribute = attributeOf<gen::DateAttributeType>(*document);
        QVERIFY(citygml::isSetAside(attribute.value()));
        QVERIFY(citygml::isSetAside(attribute.name()));
        QVERIFY(attribute.name().empty());
        QCOMPARE(write(*document), saved);
    }

    void aTextThatIsSetIsWritten()
    {
        const testsupport::Document document = read(documentWithBuilding("<gen:stringAttribute/>"));
        auto& attribute = attributeOf<gen::StringAttributeType>(*document);
        attribute.name() = "n";
        QVERIFY(write(*document).contains("<gen:stringAttribute name=\"n\"/>"));
        attribute.name() = "";
        QVERIFY(write(*document).contains("<gen:stringAttribute/>"));
        citygml::setGiven(attribute.name());
        QVERIFY(write(*document).contains("<gen:stringAttribute name=\"\"/>"));
    }

    void aNumberThatIsWrittenInPlaceIsWritten()
    {
        const testsupport::Document document = read(documentWithBuilding("<gen:intAttribute name='n'/>"));
        attributeOf<gen::IntAttributeType>(*document).value() = 5;
        QVERIFY(write(*document).contains("<gen:value>5</gen:value>"));
        const Features features(*document, true);
        QCOMPARE(rowOf(features, "/n#0")->value(), QVariant(5));
    }

    void anAssignmentOfAMissingValueTakesTheValueAway()
    {
        const testsupport::Document document = read(documentWithBuilding("<gen:dateAttribute name='n'/>"));
        const testsupport::Document other = read(documentWithBuilding(
            "<gen:dateAttribute name='n'><gen:value>2020-01-02</gen:value></gen:dateAttribute>"));
        attributeOf<gen::DateAttributeType>(*other).value() =
            attributeOf<gen::DateAttributeType>(*document).value();
        QCOMPARE(write(*other), write(*document));
    }

    /// The number of an interval of which only the unit has been set is not made up.
    void anAttributeAloneIsWrittenWithoutAText()
    {
        const testsupport::Document document = read(documentWithBuilding("<gen:measureAttribute name='n'/>"));
        auto& attribute = attributeOf<gen::MeasureAttributeType>(*document);
        attribute.value().uom() = "m";
        QVERIFY(citygml::isSetAside(attribute.value()));
        QVERIFY(write(*document).contains("<gen:value uom=\"m\"/>"));
    }

    /// What is set in an object that the document lacked is written, and nothing else of it.
    void aPartOfAMissingObjectIsWritten()
    {
        const auto isIt = [](const Document& document) {
            return document.place.member.local == "refLocation";
        };
        const auto facts = std::find_if(documents.cbegin(), documents.cend(), isIt);
        QVERIFY(facts != documents.cend());
        const testsupport::Document faulty = read(facts->faulty), sound = read(facts->faultless);
        xml_schema::type& placement =
            childOf(childOf(*ownerOf(*faulty, *facts), "refLocation"), "AffinePlacement");
        const xml_schema::type& model =
            childOf(childOf(*ownerOf(*sound, *facts), "refLocation"), "AffinePlacement");
        const Name name{"http://www.opengis.net/gml", "location"};
        const citygml::binding::Member* const location =
            memberOf(citygml::binding::recordOf(placement), name, false);
        location->ops->add(placement, location->ops->at(model, 0)._clone());
        const QByteArray saved = write(*faulty);
        QVERIFY2(saved.contains("</gml:AffinePlacement>") && saved.contains("<gml:location>"), saved);
        QVERIFY2(!saved.contains("<gml:inDimension>"), saved);
    }

    void aValueWithoutItsUnitShowsTheValue()
    {
        const testsupport::Document document = read(documentWithBuilding(
            "<gen:measureAttribute name='n'><gen:value>2.5</gen:value></gen:measureAttribute>"));
        const Features features(*document, true);
        tolvik::CoreProperty* const row = rowOf(features, "/n#0");
        QCOMPARE(row->value(), QVariant(2.5));
        QVERIFY(row->unit() == nullptr);
        row->setValue(3.5);
        QCOMPARE(errorOf(write(*document)), QString());
    }

    void whatIsNilMayLackAll()
    {
        const QByteArray xml =
            documentWithBuilding("<gen:dateAttribute name='n' "
                                 "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:nil='true'/>");
        for (const auto& document : {read(xml), readStrictly(xml)}) {
            QVERIFY(citygml::findingsOf(*document).empty());
            QCOMPARE(emptyMembersOf(*document), QStringList());
            const Features features(*document, true);
            QVERIFY(rowOf(features, "/n#0") != nullptr && !rowOf(features, "/n#0")->value().isValid());
            QCOMPARE(XmlNode::differences(XmlNode::parse(xml), XmlNode::parse(write(*document))),
                     QStringList());
        }
    }

    /// What is kept in the place of a member goes with a value, what is kept beside one stays.
    void anAbstractElementBesideAnotherStays()
    {
        const QByteArray xml = documentWithBuilding(
            "<bldg:lod0FootPrint><gml:MultiSurface><gml:surfaceMember><gml:Polygon><gml:exterior>"
            "<gml:_Ring><a/></gml:_Ring><gml:LinearRing><gml:posList>0 0 0</gml:posList></gml:LinearRing>"
            "</gml:exterior></gml:Polygon></gml:surfaceMember></gml:MultiSurface></bldg:lod0FootPrint>");
        const testsupport::Document document = read(xml);
        QCOMPARE(citygml::findingsOf(*document).size(), std::size_t(1));
        QCOMPARE(XmlNode::differences(XmlNode::parse(xml), XmlNode::parse(write(*document))), QStringList());
    }

private:
    /// Reads every document.
    /// \param check answers what is wrong; nothing where all is well
    void forEach(const std::function<QString(const Document&, core::CityModelType&)>& check)
    {
        QStringList complaints;
        for (const Document& document : qAsConst(documents)) {
            const testsupport::Document model = read(document.faulty);
            const QString complaint = check(document, *model);
            if (!complaint.isEmpty()) {
                complaints << document.label() + ": " + complaint;
            }
        }
        QVERIFY2(complaints.isEmpty(), qPrintable(QString::number(complaints.size()) + '\n' +
                                                  QStringList(complaints.mid(0, 20)).join('\n')));
    }

    QVector<Document> documents;
};

TEST_CLASS(MissingMembersTest, Widgets)
#include "missingmemberstest.moc"
