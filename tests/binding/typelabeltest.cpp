// The label of a schema object, used like the string that it stands for.

#include "bldg/BuildingType.hxx"
#include "bldg/WallSurfaceType.hxx"
#include "gml/CodeType.hxx"
#include "support/TestClass.h"

#include <map>
#include <memory>
#include <QtTest>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

class TypeLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void readsLikeAString()
    {
        const bldg::BuildingType building;
        QVERIFY(!building.typeLabel.empty());
        QCOMPARE(building.typeLabel.size(), std::size_t(8));
        QCOMPARE(building.typeLabel.length(), std::size_t(8));
        QCOMPARE(building.typeLabel.c_str(), "Building");
        QCOMPARE(std::string(building.typeLabel.data(), 5), std::string("Build"));
        QCOMPARE(std::string(building.typeLabel.begin(), building.typeLabel.end()), std::string("Building"));
        QCOMPARE(building.typeLabel[1], 'u');
        QCOMPARE(building.typeLabel.front(), 'B');
        QCOMPARE(building.typeLabel.back(), 'g');
        QCOMPARE(building.typeLabel.find("ding"), std::size_t(4));
        QCOMPARE(building.typeLabel.find('x'), std::string::npos);
        QCOMPARE(building.typeLabel.find('i', 3), std::size_t(5));
        QCOMPARE(building.typeLabel.rfind(std::string("i")), std::size_t(5));
        QCOMPARE(building.typeLabel.substr(5), std::string("ing"));
        QCOMPARE(building.typeLabel.compare("Building"), 0);
        QCOMPARE(building.typeLabel.compare(0, 5, "Build"), 0);
    }

    void becomesAString()
    {
        const bldg::BuildingType building;
        const std::string initialised = building.typeLabel;
        const std::string constructed(building.typeLabel);
        std::string assigned;
        assigned = building.typeLabel;
        assigned += building.typeLabel;
        const std::string_view view = building.typeLabel;
        const std::vector<std::string> list{building.typeLabel, "x"};
        std::set<std::string> set;
        set.insert(building.typeLabel);
        std::map<std::string, int> map;
        ++map[building.typeLabel];
        QCOMPARE(initialised, std::string("Building"));
        QCOMPARE(constructed, initialised);
        QCOMPARE(assigned, initialised + initialised);
        QCOMPARE(std::string(view), initialised);
        QCOMPARE(list.front(), initialised);
        QCOMPARE(*set.begin(), initialised);
        QCOMPARE(map.at("Building"), 1);
        QCOMPARE(QString::fromStdString(building.typeLabel), QString("Building"));
        const bool isChosen = !building.typeLabel.empty();
        QCOMPARE(isChosen ? building.typeLabel : initialised + "x", initialised);
    }

    void joins()
    {
        const bldg::BuildingType building;
        const bldg::WallSurfaceType wall;
        const std::string text = "text";
        QCOMPARE(building.typeLabel + "x", std::string("Buildingx"));
        QCOMPARE("x" + building.typeLabel, std::string("xBuilding"));
        QCOMPARE(building.typeLabel + text, std::string("Buildingtext"));
        QCOMPARE(text + building.typeLabel, std::string("textBuilding"));
        QCOMPARE(building.typeLabel + 'x', std::string("Buildingx"));
        QCOMPARE('x' + building.typeLabel, std::string("xBuilding"));
        QCOMPARE(building.typeLabel + wall.typeLabel, std::string("BuildingWallSurface"));
        QCOMPARE(std::string("a") + building.typeLabel + "b" + wall.typeLabel,
                 std::string("aBuildingbWallSurface"));
        std::ostringstream stream;
        stream << building.typeLabel << ' ' << wall.typeLabel;
        QCOMPARE(stream.str(), std::string("Building WallSurface"));
    }

    void compares()
    {
        const bldg::BuildingType building;
        const bldg::BuildingType other;
        const bldg::WallSurfaceType wall;
        QVERIFY(building.typeLabel == other.typeLabel && !(building.typeLabel != other.typeLabel));
        QVERIFY(building.typeLabel != wall.typeLabel && !(building.typeLabel == wall.typeLabel));
        QVERIFY(building.typeLabel == "Building" && "Building" == building.typeLabel);
        QVERIFY(building.typeLabel != "Wall" && "Wall" != building.typeLabel);
        QVERIFY(building.typeLabel == std::string("Building") &&
                std::string("Building") == building.typeLabel);
        QVERIFY(building.typeLabel < wall.typeLabel && !(wall.typeLabel < building.typeLabel));
        QVERIFY(building.typeLabel < "C" && "A" < building.typeLabel);
    }

    void aCopyOutlivesTheObject()
    {
        auto building = std::make_unique<bldg::BuildingType>();
        const auto label = building->typeLabel;
        auto copy = label;
        building.reset();
        QCOMPARE(label.str(), std::string("Building"));
        QCOMPARE(copy, label);
        {
            const bldg::WallSurfaceType wall;
            copy = wall.typeLabel;
        }
        QCOMPARE(copy.str(), std::string("WallSurface"));
        QCOMPARE(label.str(), std::string("Building"));
    }

    /// The text that a label reads as is not the object's.
    void theTextOutlivesTheObject()
    {
        auto building = std::make_unique<bldg::BuildingType>();
        const std::string& text = building->typeLabel;
        const char* const characters = building->typeLabel.c_str();
        building.reset();
        QCOMPARE(text, std::string("Building"));
        QCOMPARE(characters, "Building");
    }

    void copiesOfAnObjectHaveTheLabelOfTheirType()
    {
        const bldg::BuildingType building;
        const bldg::BuildingType copy(building);
        QCOMPARE(copy.typeLabel.str(), std::string("Building"));
        const gml::CodeType code("x");
        const xml_schema::string text(code);
        QCOMPARE(code.typeLabel.str(), std::string("Code"));
        QCOMPARE(text.typeLabel.str(), std::string("string"));
        static_assert(!std::is_assignable_v<decltype((std::declval<bldg::BuildingType&>().typeLabel)),
                                            const xml_schema::TypeLabel&>,
                      "an object's label is its type's");
    }

    /// The run-time's base has 40 bytes; the label takes some of the eight that hold two small numbers.
    void takesNoRoomOfItsOwn() { QCOMPARE(sizeof(xml_schema::type), sizeof(xml_schema::type_base) + 16); }
};

TEST_CLASS(TypeLabelTest, Core)
#include "typelabeltest.moc"
