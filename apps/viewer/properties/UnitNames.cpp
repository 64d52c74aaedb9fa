#include "apps/viewer/properties/UnitNames.h"

namespace tolvik::viewer {

const QStringList& unitNames()
{
    static const QStringList names{
        "m",        "cm",       "km",    "m2",    "ha",         "m3", "l",    "deg",  "rad", "gon",
        "kg",       "t",        "s",     "h",     "d",          "a",  "degC", "K",    "Pa",  "bar",
        "J",        "kWh",      "MWh",   "kWh/a", "kWh/(m2.a)", "W",  "kW",   "W/m2", "W/K", "W/(m.K)",
        "W/(m2.K)", "J/(kg.K)", "kg/m3", "m3/h",  "1/h",        "V",  "A",    "Hz",   "lx",  "%",
    };
    return names;
}

} // namespace tolvik::viewer
