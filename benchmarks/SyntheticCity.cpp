#include "SyntheticCity.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace tolvik {

namespace {

constexpr double plot = 40; // metres from one building to the next, along and across the streets
constexpr double originEast = 390000;
constexpr double originNorth = 5820000;
constexpr double ground = 35;
constexpr double highest = 100;

constexpr std::string_view materials[] = {"0.84 0.79 0.68", "0.71 0.42 0.33", "0.93 0.93 0.9",
                                          "0.55 0.57 0.6"};
constexpr int materialCount = sizeof materials / sizeof *materials;

constexpr std::string_view streets[] = {"Lindenstraße", "Am Markt", "Rue de l'Église",
                                        "Mill Lane",    "Hafenweg", "Allée des Ormes"};
constexpr std::string_view functions[] = {"1000", "1010", "1120", "1150", "1700", "2200"};
constexpr std::string_view roofTypes[] = {"1000", "1010", "1020", "1030", "1070"};
constexpr std::string_view owners[] = {"private", "municipality", "housing association", "state"};

/// Numbers that look random and are the same everywhere.
class Dice
{
public:
    explicit Dice(int seed) : state(static_cast<std::uint64_t>(seed) * 0x9E3779B97F4A7C15u + 1) {}

    /// 0 to \a count - 1.
    int below(int count)
    {
        state = state * 6364136223846793005u + 1442695040888963407u;
        return static_cast<int>((state >> 33) % static_cast<std::uint64_t>(count));
    }

    /// In steps of a millimetre.
    double between(double low, double high) { return low + below(int((high - low) * 1000)) / 1000.0; }

    template <std::size_t Size>
    std::string_view oneOf(const std::string_view (&choices)[Size])
    {
        return choices[below(Size)];
    }

private:
    std::uint64_t state;
};

/// A number with three decimals, whatever the locale.
std::string decimal(double number)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed, 3).ptr;
    return std::string(text, end);
}

std::string identifier(const char* kind, int building)
{
    return std::string(kind) + '_' + std::to_string(building);
}

/// XML, a tag or a text element a line, indented as documents of this kind are. Texts and values are written
/// as they are: none here holds markup.
class Xml
{
public:
    using Attributes = std::initializer_list<std::pair<std::string_view, std::string_view>>;

    explicit Xml(std::ostream& target) : stream(target) {}

    void open(std::string_view name, Attributes attributes = {})
    {
        startTag(name, attributes);
        stream << ">\n";
        ++depth;
    }

    void close(std::string_view name)
    {
        --depth;
        indent();
        stream << "</" << name << ">\n";
    }

    void leaf(std::string_view name, std::string_view text, Attributes attributes = {})
    {
        startTag(name, attributes);
        stream << '>' << text << "</" << name << ">\n";
    }

    /// Elements one in the other, the outermost first.
    void open(std::initializer_list<std::string_view> names)
    {
        for (const std::string_view name : names) {
            open(name);
        }
    }

    /// The innermost first.
    void close(std::initializer_list<std::string_view> names)
    {
        for (const std::string_view name : names) {
            close(name);
        }
    }

private:
    void startTag(std::string_view name, Attributes attributes)
    {
        indent();
        stream << '<' << name;
        for (const auto& [attribute, value] : attributes) {
            stream << ' ' << attribute << "=\"" << value << '"';
        }
    }

    void indent() { std::fill_n(std::ostreambuf_iterator<char>(stream), 2 * depth, ' '); }

    std::ostream& stream;
    int depth = 0;
};

struct Box
{
    double west, south, bottom, east, north, top;
};

/// Four corners and the first again.
std::string ring(std::initializer_list<double> corners)
{
    std::string result;
    for (const double coordinate : corners) {
        result += decimal(coordinate) + ' ';
    }
    const double* first = corners.begin();
    return result + decimal(first[0]) + ' ' + decimal(first[1]) + ' ' + decimal(first[2]);
}

std::string level(const Box& box, double height)
{
    return ring({box.west, box.south, height, box.east, box.south, height, box.east, box.north, height,
                 box.west, box.north, height});
}

/// Seen from outside, counter-clockwise.
std::string southWall(const Box& box)
{
    return ring({box.west, box.south, box.bottom, box.east, box.south, box.bottom, box.east, box.south,
                 box.top, box.west, box.south, box.top});
}

std::string eastWall(const Box& box)
{
    return ring({box.east, box.south, box.bottom, box.east, box.north, box.bottom, box.east, box.north,
                 box.top, box.east, box.south, box.top});
}

class Building
{
public:
    Building(Xml& target, int building, int perRow) : xml(target), index(building), dice(building)
    {
        const double west = originEast + (building % perRow) * plot;
        const int street = building / perRow;
        const double south = originNorth + street * plot;
        house = {west,
                 south,
                 ground,
                 west + dice.between(8, 20),
                 south + dice.between(8, 16),
                 ground + dice.between(4, 40)};
        annexe = {house.east,  south,
                  ground,      house.east + dice.between(3, 8),
                  house.north, ground + dice.between(2.5, 4)};
    }

    void write()
    {
        xml.open("core:cityObjectMember");
        xml.open("bldg:Building", {{"gml:id", identifier("building", index)}});
        xml.leaf("gml:name", "Building " + std::to_string(index));
        writeCityObject();
        writeAttributes();
        writeSurface("bldg:GroundSurface", "ground", level(house, house.bottom));
        writeSurface("bldg:RoofSurface", "roof", level(house, house.top));
        writeWalls();
        writePart();
        xml.open("bldg:address");
        writeAddress();
        xml.close("bldg:address");
        xml.close("bldg:Building");
        xml.close("core:cityObjectMember");
    }

private:
    void writeCityObject()
    {
        xml.leaf("core:creationDate", "20" + std::to_string(10 + dice.below(15)) + "-0" +
                                          std::to_string(1 + dice.below(9)) + "-" +
                                          std::to_string(10 + dice.below(19)));
        xml.open("core:externalReference");
        xml.leaf("core:informationSystem", "http://cadastre.example/buildings");
        xml.open("core:externalObject");
        xml.leaf("core:name", "DEXX" + std::to_string(100000000 + index));
        xml.close({"core:externalObject", "core:externalReference"});
        xml.open("gen:stringAttribute", {{"name", "owner"}});
        xml.leaf("gen:value", dice.oneOf(owners));
        xml.close("gen:stringAttribute");
        xml.open("gen:intAttribute", {{"name", "households"}});
        xml.leaf("gen:value", std::to_string(dice.below(30)));
        xml.close("gen:intAttribute");
        xml.open("gen:measureAttribute", {{"name", "floor area"}});
        xml.leaf("gen:value", decimal(dice.between(60, 900)), {{"uom", "m2"}});
        xml.close("gen:measureAttribute");
    }

    void writeAttributes()
    {
        xml.leaf("bldg:function", dice.oneOf(functions));
        xml.leaf("bldg:yearOfConstruction", std::to_string(1850 + dice.below(170)));
        xml.leaf("bldg:roofType", dice.oneOf(roofTypes));
        xml.leaf("bldg:measuredHeight", decimal(house.top - house.bottom), {{"uom", "m"}});
        xml.leaf("bldg:storeysAboveGround", std::to_string(1 + dice.below(12)));
    }

    void writePolygon(std::string_view property, const std::string& id, const std::string& corners)
    {
        xml.open({property, "gml:MultiSurface", "gml:surfaceMember"});
        xml.open("gml:Polygon", {{"gml:id", id}});
        xml.open({"gml:exterior", "gml:LinearRing"});
        xml.leaf("gml:posList", corners, {{"srsDimension", "3"}});
        xml.close({"gml:LinearRing", "gml:exterior", "gml:Polygon", "gml:surfaceMember", "gml:MultiSurface",
                   property});
    }

    /// \param kind distinguishes the surfaces of one building
    void openSurface(std::string_view element, const char* kind, const std::string& corners)
    {
        xml.open("bldg:boundedBy");
        xml.open(element, {{"gml:id", identifier(kind, index)}});
        writePolygon("bldg:lod2MultiSurface", identifier(kind, index) + "_polygon", corners);
    }

    void writeSurface(std::string_view element, const char* kind, const std::string& corners)
    {
        openSurface(element, kind, corners);
        xml.close({element, "bldg:boundedBy"});
    }

    void writeOpening(std::string_view element, const char* kind, const Box& box)
    {
        xml.open("bldg:opening");
        xml.open(element, {{"gml:id", identifier(kind, index)}});
        writePolygon("bldg:lod3MultiSurface", identifier(kind, index) + "_polygon", southWall(box));
        xml.close({element, "bldg:opening"});
    }

    void writeWalls()
    {
        Box door = house;
        door.west += 1;
        door.east = door.west + 1.1;
        door.top = door.bottom + 2.1;
        Box window = door;
        window.west += 2;
        window.east += 2;
        window.bottom += 0.9;

        openSurface("bldg:WallSurface", "wall", southWall(house));
        writeOpening("bldg:Window", "window", window);
        writeOpening("bldg:Door", "door", door);
        xml.close({"bldg:WallSurface", "bldg:boundedBy"});
        writeSurface("bldg:WallSurface", "sidewall", eastWall(house));
    }

    void writePart()
    {
        xml.open("bldg:consistsOfBuildingPart");
        xml.open("bldg:BuildingPart", {{"gml:id", identifier("part", index)}});
        xml.leaf("bldg:function", dice.oneOf(functions));
        xml.leaf("bldg:measuredHeight", decimal(annexe.top - annexe.bottom), {{"uom", "m"}});
        writeSurface("bldg:RoofSurface", "partroof", level(annexe, annexe.top));
        xml.close({"bldg:BuildingPart", "bldg:consistsOfBuildingPart"});
    }

    void writeAddress()
    {
        xml.open("core:Address", {{"gml:id", identifier("address", index)}});
        xml.open({"core:xalAddress", "xAL:AddressDetails", "xAL:Country"});
        xml.leaf("xAL:CountryName", "Germany");
        xml.open("xAL:Locality", {{"Type", "Town"}});
        xml.leaf("xAL:LocalityName", "Neustadt an der Werre");
        xml.open("xAL:Thoroughfare", {{"Type", "Street"}});
        xml.leaf("xAL:ThoroughfareNumber", std::to_string(1 + dice.below(200)));
        xml.leaf("xAL:ThoroughfareName", dice.oneOf(streets));
        xml.close("xAL:Thoroughfare");
        xml.open("xAL:PostalCode");
        xml.leaf("xAL:PostalCodeNumber", std::to_string(10000 + dice.below(90000)));
        xml.close({"xAL:PostalCode", "xAL:Locality", "xAL:Country", "xAL:AddressDetails", "core:xalAddress",
                   "core:Address"});
    }

    Xml& xml;
    int index;
    Dice dice;
    Box house;
    Box annexe;
};

void writeEnvelope(Xml& xml, int buildings, int perRow)
{
    const int rows = (buildings + perRow - 1) / perRow;
    xml.open("gml:boundedBy");
    xml.open("gml:Envelope", {{"srsName", "EPSG:25832"}, {"srsDimension", "3"}});
    xml.leaf("gml:lowerCorner", decimal(originEast) + ' ' + decimal(originNorth) + ' ' + decimal(ground));
    xml.leaf("gml:upperCorner", decimal(originEast + perRow * plot) + ' ' +
                                    decimal(originNorth + rows * plot) + ' ' + decimal(highest));
    xml.close({"gml:Envelope", "gml:boundedBy"});
}

void writeAppearance(Xml& xml, int buildings)
{
    xml.open("app:appearanceMember");
    xml.open("app:Appearance", {{"gml:id", "appearance"}});
    xml.leaf("app:theme", "visual");
    for (int material = 0; material < materialCount; ++material) {
        xml.open("app:surfaceDataMember");
        xml.open("app:X3DMaterial", {{"gml:id", identifier("material", material)}});
        xml.leaf("app:diffuseColor", materials[material]);
        for (int building = material; building < buildings; building += materialCount) {
            xml.leaf("app:target", '#' + identifier("wall", building) + "_polygon");
        }
        xml.close({"app:X3DMaterial", "app:surfaceDataMember"});
    }
    xml.close({"app:Appearance", "app:appearanceMember"});
}

} // namespace

SyntheticCity::SyntheticCity(int buildings) : buildings(buildings) {}

void SyntheticCity::write(std::ostream& stream) const
{
    const int perRow = static_cast<int>(std::ceil(std::sqrt(buildings)));
    stream << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    Xml xml(stream);
    xml.open("core:CityModel", {{"gml:id", "city"},
                                {"xmlns:core", "http://www.opengis.net/citygml/2.0"},
                                {"xmlns:bldg", "http://www.opengis.net/citygml/building/2.0"},
                                {"xmlns:app", "http://www.opengis.net/citygml/appearance/2.0"},
                                {"xmlns:gen", "http://www.opengis.net/citygml/generics/2.0"},
                                {"xmlns:gml", "http://www.opengis.net/gml"},
                                {"xmlns:xAL", "urn:oasis:names:tc:ciq:xsdschema:xAL:2.0"}});
    xml.leaf("gml:name", "Synthetic city");
    writeEnvelope(xml, buildings, perRow);
    for (int building = 0; building < buildings; ++building) {
        Building(xml, building, perRow).write();
    }
    writeAppearance(xml, buildings);
    xml.close("core:CityModel");
}

} // namespace tolvik
