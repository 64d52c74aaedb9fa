// Uses both bindings in turn: secondbinding FILE

#include "bldg/AbstractBuildingType.hxx"
#include "citygml/CityModel.h"
#include "core/AbstractCityObjectType.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "OwnBinding.h"

#include <fstream>
#include <iostream>

namespace {

const char street[] =
    "<Street xmlns='urn:example:other'><label>Long</label><label>Lane</label><width>4.5</width>"
    "<lamp>1</lamp><lamp>2</lamp><paved>true</paved><branch><label>b</label><paved>0</paved></branch>"
    "</Street>";

bool streetIsRight()
{
    const std::string text = describeStreet(street);
    if (text != "Long Lane 5.5 2 3 1 copied") {
        std::cerr << "the other binding says: " << text << '\n';
        return false;
    }
    return true;
}

} // namespace

int main(int, char** argv)
{
    if (!streetIsRight()) {
        return 1;
    }
    std::ifstream stream(argv[1]);
    const auto city = core::CityModel(stream, xsd::cxx::tree::flags::dont_validate);
    std::size_t names = 0;
    unsigned long long storeys = 0;
    for (auto& member : city->featureMember()) {
        if (!member._Feature().present()) {
            continue;
        }
        names += member._Feature()->name().size();
        if (auto* const building = dynamic_cast<bldg::AbstractBuildingType*>(&*member._Feature())) {
            building->storeysAboveGround(building->storeysAboveGround().present() ? 7 : 8);
            storeys += *building->storeysAboveGround();
        }
    }
    city->name().push_back(gml::CodeType("another name"));
    std::cout << names << ' ' << storeys << ' ' << city->name().back() << '\n';
    return names > 3 && storeys > 6 && city->name().back() == "another name" && streetIsRight() ? 0 : 1;
}
