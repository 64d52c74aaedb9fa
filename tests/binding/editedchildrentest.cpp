#include "bldg/AbstractBoundarySurfaceType.hxx"
#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/BuildingType.hxx"
#include "citygml/ReadingThreads.h"
#include "core/CityModelType.hxx"
#include "energy/poly_isLandmarked.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "gml/SolidPropertyType.hxx"
#include "gml/StringOrRefType.hxx"
#include "support/Documents.h"
#include "support/SavedChanges.h"
#include "support/TestClass.h"

#include <algorithm>
#include <functional>
#include <QtTest>
#include <random>

using namespace testsupport;

namespace {

constexpr int buildings = 60;
constexpr int surfaces = 4;

QByteArray surfaceText(int building, int number)
{
    const QByteArray id = QByteArray::number(building) + '_' + QByteArray::number(number);
    return "\n   <bldg:boundedBy><!-- " + id + " -->\n    <bldg:WallSurface gml:id='w" + id +
           "'>\n     <gml:description >wall " + id +
           "</gml:description>\n     <gml:name>a name that makes the element a long one</gml:name>\n"
           "    </bldg:WallSurface>\n   </bldg:boundedBy>";
}

QByteArray memberText(int number)
{
    const QByteArray id = QByteArray::number(number);
    QByteArray text = "\n <core:cityObjectMember >\n  <bldg:Building x:a='1' gml:id='b" + id +
                      "'>\n   <bldg:class >c</bldg:class>\n   <bldg:function>1</bldg:function>"
                      "\n   <bldg:function>2</bldg:function>\n   <x:other/>";
    for (int i = 0; i < surfaces; ++i) {
        text += surfaceText(number, i);
    }
    return text + "\n  </bldg:Building>\n </core:cityObjectMember>";
}

QByteArrayList memberTexts()
{
    QByteArrayList members;
    for (int i = 0; i < buildings; ++i) {
        members += memberText(i);
    }
    return members;
}

QByteArray textOf(const QByteArrayList& members)
{
    return documentText(members.join() + '\n');
}

bldg::BuildingType& buildingIn(gml::FeaturePropertyType& member)
{
    return dynamic_cast<bldg::BuildingType&>(*member._Feature());
}

/// An edit of a building, and how the text of its member differs then.
struct Edit
{
    std::function<void(bldg::BuildingType&)> make;
    std::function<void(QByteArray& member)> show;
};

/// Edits in a member, by what they are.
const QMap<QByteArray, Edit>& edits()
{
    const auto noteOf = [](bldg::BuildingType& building, std::size_t surface) -> std::string& {
        return *building.boundedBy1()[surface]._BoundarySurface()->description();
    };
    static const QMap<QByteArray, Edit> all{
        {"value",
         {[](bldg::BuildingType& b) { static_cast<std::string&>(*b.class_()) = "d"; },
          [](QByteArray& member) { member.replace(">c<", ">d<"); }}},
        {"entry that goes",
         {[](bldg::BuildingType& b) { b.function().erase(b.function().begin()); },
          [](QByteArray& member) { member.replace("\n   <bldg:function>1</bldg:function>", ""); }}},
        {"new element",
         {[](bldg::BuildingType& b) { b.usage().push_back(gml::CodeType("u")); },
          [](QByteArray& member) {
              member.replace("2</bldg:function>", "2</bldg:function>\n   <bldg:usage>u</bldg:usage>");
          }}},
        {"deep value",
         {[noteOf](bldg::BuildingType& b) { noteOf(b, 2) += '!'; },
          [](QByteArray& member) { member.replace("_2</gml:description>", "_2!</gml:description>"); }}},
        {"long element that goes",
         {[](bldg::BuildingType& b) { b.boundedBy1().erase(b.boundedBy1().begin() + 1); },
          [](QByteArray& member) {
              const int begin =
                  member.indexOf("\n   <bldg:boundedBy><!-- ", member.indexOf("</bldg:bounded"));
              const QByteArray end = "</bldg:boundedBy>";
              member.remove(begin, member.indexOf(end, begin) + end.size() - begin);
          }}},
        {"last long element that goes",
         {[](bldg::BuildingType& b) { b.boundedBy1().pop_back(); },
          [](QByteArray& member) {
              const int begin = member.lastIndexOf("\n   <bldg:boundedBy>");
              member.remove(begin, member.indexOf("\n  </bldg:Building>") - begin);
          }}},
        {"attribute of the member",
         {[](bldg::BuildingType& b) { dynamic_cast<gml::FeaturePropertyType&>(*b._container()).role("r"); },
          [](QByteArray& member) {
              member.replace("<core:cityObjectMember >", "<core:cityObjectMember xlink:role=\"r\" >");
          }}},
        {"none", {[](bldg::BuildingType&) {}, [](QByteArray&) {}}},
    };
    return all;
}

} // namespace

/// Saves of changes where many members have changed.
class EditedChildrenTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray savedInPieces(const QByteArray& original, const core::CityModelType& document,
                                    int threads, const QByteArray& pieceSize)
    {
        citygml::setReadingThreads(static_cast<unsigned>(threads));
        qputenv("TOLVIK_PIECE_SIZE", pieceSize);
        QByteArray actual = saved(original, document);
        qunsetenv("TOLVIK_PIECE_SIZE");
        citygml::setReadingThreads(0);
        return actual;
    }

    static void addPieces()
    {
        QTest::addColumn<int>("threads");
        QTest::addColumn<QByteArray>("pieceSize");
        for (const int threads : {1, 3}) {
            for (const char* const size : {"1", "5000", ""}) {
                QTest::addRow("%d threads, pieces of '%s'", threads, size) << threads << QByteArray(size);
            }
        }
    }

private slots:
    void oneEditInEachShows_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (auto edit = edits().begin(); edit != edits().end(); ++edit) {
            QTest::newRow(edit.key().constData()) << edit.key();
        }
    }

    void oneEditInEachShows()
    {
        QFETCH(QByteArray, name);
        QByteArrayList members = memberTexts();
        const QByteArray original = textOf(members);
        const Document document = read(original);
        for (int i = 0; i < buildings; ++i) {
            edits()[name].make(buildingIn(document->featureMember()[static_cast<std::size_t>(i)]));
            edits()[name].show(members[i]);
        }
        const QByteArray actual = saved(original, *document), expected = textOf(members);
        QVERIFY2(actual == expected, parting(actual, expected));
    }

    void severalEditsInEachShow_data() { addPieces(); }

    /// Beside members that are gone or stay.
    void severalEditsInEachShow()
    {
        QFETCH(int, threads);
        QFETCH(QByteArray, pieceSize);
        QByteArrayList members = memberTexts();
        const QByteArray original = textOf(members);
        const Document document = read(original);
        std::mt19937 random(1);
        for (int i = 0; i < buildings; ++i) {
            for (const Edit& edit : edits()) {
                if (random() % 3 == 0) {
                    edit.make(buildingIn(document->featureMember()[static_cast<std::size_t>(i)]));
                    edit.show(members[i]);
                }
            }
        }
        auto& list = document->featureMember();
        for (const int gone : {41, 40, 20, 0}) {
            list.erase(list.begin() + gone);
            members.removeAt(gone);
        }
        const QByteArray actual = savedInPieces(original, *document, threads, pieceSize);
        const QByteArray expected = textOf(members);
        QVERIFY2(actual == expected, parting(actual, expected));
    }

    void whatAllNeedIsDeclaredOnce_data() { addPieces(); }

    void whatAllNeedIsDeclaredOnce()
    {
        QFETCH(int, threads);
        QFETCH(QByteArray, pieceSize);
        QByteArrayList members = memberTexts();
        const QByteArray original = textOf(members);
        const Document document = read(original);
        // All but the first.
        for (int i = 1; i < buildings; ++i) {
            gml::FeaturePropertyType& member = document->featureMember()[static_cast<std::size_t>(i)];
            buildingIn(member)._GenericApplicationPropertyOfAbstractBuilding().push_back(
                energy::poly_isLandmarked(true));
            members[i].replace("\n  </bldg:Building>",
                               "\n   <ns3:isLandmarked>true</ns3:isLandmarked>\n  </bldg:Building>");
        }
        const QByteArray declaration = " xmlns:ns3=\"http://www.sig3d.org/citygml/2.0/energy/1.0\">";
        const QByteArray expected = textOf(members).replace("'urn:unknown'>", "'urn:unknown'" + declaration);
        const QByteArray actual = savedInPieces(original, *document, threads, pieceSize);
        QVERIFY2(actual == expected, parting(actual, expected));
    }

    /// Where an edit cannot be told from the member alone, the others are still told.
    void theRootMayChangeToo()
    {
        QByteArrayList members = memberTexts();
        const QByteArray original = textOf(members);
        const Document document = read(original);
        document->id("city");
        for (int i = 0; i < buildings; ++i) {
            gml::FeaturePropertyType& member = document->featureMember()[static_cast<std::size_t>(i)];
            static_cast<std::string&>(*buildingIn(member).class_()) = "d";
            members[i].replace(">c<", ">d<");
            if (i % 10 == 5) {
                buildingIn(member).id("new" + std::to_string(i));
                members[i].replace("gml:id='b", "gml:id='new");
            }
        }
        const QByteArray expected =
            textOf(members).replace("'urn:unknown'>", "'urn:unknown' gml:id=\"city\">");
        const QByteArray actual = saved(original, *document);
        QVERIFY2(actual == expected, parting(actual, expected));
    }

    /// The original is one in which an identifier stands twice; that has been put right, too.
    void anIdentifierMayStandTwice()
    {
        QByteArrayList members = memberTexts(), former = members;
        for (int i = 0; i < buildings; ++i) {
            edits()[i % 2 == 0 ? "value" : "deep value"].show(members[i]);
            if (i % 3 == 1) {
                former[i].replace("gml:id='b" + QByteArray::number(i),
                                  "gml:id='b" + QByteArray::number(i - 1));
            }
        }
        const QByteArray expected = textOf(members);
        const QByteArray actual = saved(textOf(former), *read(expected));
        QVERIFY2(actual == expected, parting(actual, expected));
    }

    /// Elements that are as they were, but stand elsewhere.
    void whatChangesPlacesIsSaved()
    {
        const QByteArray original = textOf(memberTexts());
        const Document document = read(original);
        std::mt19937 random(1);
        for (gml::FeaturePropertyType& member : document->featureMember()) {
            auto& walls = buildingIn(member).boundedBy1();
            const bldg::BoundarySurfacePropertyType first = walls.front();
            walls.erase(walls.begin());
            walls.insert(walls.begin() + static_cast<std::ptrdiff_t>(random() % surfaces), first);
        }
        const QByteArray actual = saved(original, *document);
        QCOMPARE(write(*read(actual)), write(*document));
        QVERIFY(actual != original);
    }

    /// There is no telling where an element goes between texts, so that all of them are written anew.
    void membersWithTextAreSaved()
    {
        QByteArrayList members = memberTexts();
        for (QByteArray& member : members) {
            member.replace("<x:other/>", "a text<x:other/>and more");
        }
        const QByteArray original = textOf(members);
        const Document document = read(original);
        for (gml::FeaturePropertyType& member : document->featureMember()) {
            edits()["new element"].make(buildingIn(member));
        }
        QCOMPARE(write(*read(saved(original, *document))), write(*document));
    }

    /// Elements of the same name that no member holds, and namespaces that a member declares itself.
    void whatIsSetAsideStaysInItsPlace()
    {
        QByteArrayList members = memberTexts();
        for (int i = 0; i < buildings; ++i) {
            const QByteArray filling(200, '.');
            members[i].replace(
                "\n  </bldg:Building>",
                i % 2 == 0
                    ? "<bldg:lod1Solid><!--a" + filling + "--></bldg:lod1Solid><bldg:lod1Solid><!--b" +
                          filling + "--></bldg:lod1Solid>\n  </bldg:Building>"
                    : "<p:lod1Solid xmlns:p='urn:q'>" + filling + "</p:lod1Solid>\n  </bldg:Building>");
        }
        const QByteArray original = textOf(members);
        const Document document = read(original);
        for (int i = 0; i < buildings; ++i) {
            bldg::BuildingType& building = buildingIn(document->featureMember()[static_cast<std::size_t>(i)]);
            const auto& edit = edits()[i % 3 == 0 ? "value" : "deep value"];
            edit.make(building);
            edit.show(members[i]);
            if (building.lod1Solid().present()) {
                building.lod1Solid()->role("r");
                const int begin = members[i].indexOf("<bldg:lod1Solid");
                members[i].replace(begin, 15, "<bldg:lod1Solid xlink:role=\"r\"");
            }
        }
        const QByteArray actual = saved(original, *document), expected = textOf(members);
        QVERIFY2(actual == expected, parting(actual, expected));
    }
};

TEST_CLASS(EditedChildrenTest, Core)
#include "editedchildrentest.moc"
