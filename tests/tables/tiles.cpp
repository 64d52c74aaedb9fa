#include "benchmarks/SyntheticCity.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

constexpr int housesOfTile = 2;

/// The file of a tile, by a number that has the same length for all.
std::string nameOf(const std::string& folder, int tile)
{
    std::string number = std::to_string(tile);
    number.insert(0, 5 - number.size(), '0');
    return folder + "/tile" + number + ".gml";
}

} // namespace

/// `tiles N FOLDER`: writes a synthetic city as N documents of two buildings each.
int main(int argc, char* argv[])
{
    const int count = argc == 3 ? std::atoi(argv[1]) : 0;
    if (count < 1 || count > 99999) {
        std::cerr << "Usage: tiles N FOLDER\n";
        return 2;
    }
    std::stringstream city;
    tolvik::SyntheticCity(count * housesOfTile).write(city);
    const std::string text = city.str();
    const std::string begin = "  <core:cityObjectMember>";
    const std::string end = "</core:cityObjectMember>\n";
    const std::string head = text.substr(0, text.find(begin));
    std::size_t at = head.size();
    for (int tile = 0; tile < count; ++tile) {
        std::ofstream file(nameOf(argv[2], tile));
        file << head;
        for (int house = 0; house < housesOfTile; ++house) {
            const std::size_t next = text.find(end, at) + end.size();
            file << text.substr(at, next - at);
            at = next;
        }
        file << "</core:CityModel>\n";
        if (!file.flush()) {
            std::cerr << "tiles: cannot write to " << argv[2] << '\n';
            return 1;
        }
    }
    return 0;
}
