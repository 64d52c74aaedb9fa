#pragma once

namespace tolvik {

struct CityGMLViewSettings
{
    double lod0Range = 5;
    double lod1Range = 4;
    double lod2Range = 3;
    double lod3Range = 2;
    double lod4Range = 1;
};

} // namespace tolvik
