#pragma once

namespace tolvik {

/// How far a city model is shown: for each level of detail the distance from the eye, in metres, up to which
/// its geometry is drawn. Five numbers in this order; a plain record.
struct CityGMLViewSettings
{
    double lod0Range = 20000.0;
    double lod1Range = 10000.0;
    double lod2Range = 4000.0;
    double lod3Range = 1000.0;
    double lod4Range = 200.0;
};

} // namespace tolvik
