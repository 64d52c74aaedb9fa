#include "OwnBinding.h"

#include "other.hxx"

#include <sstream>

std::string describeStreet(const std::string& xml)
{
    std::istringstream stream(xml);
    const auto street = other::Street(stream, xml_schema::flags::dont_validate);
    street->width(*street->width() + 1);
    street->storeys(2);
    street->lamp().push_back(4);
    other::StreetType branch(street->branch().front());
    branch.label().push_back("copied");
    street->branch().push_back(branch);
    std::ostringstream text;
    for (const auto& label : street->label()) {
        text << label << ' ';
    }
    text << *street->width() << ' ' << *street->storeys() << ' ' << street->lamp().size() << ' '
         << street->paved() << ' ' << street->branch().back().label().back();
    return text.str();
}
