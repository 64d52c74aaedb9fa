#pragma once

namespace tolvik {

/// How far a city model is shown: for each level of detail the distance from the eye, in metres, up to which
/// its geometry is drawn. Five numbers in this order; a plain record.
struct CityGMLViewSettings
{
    double lod0Range = 20000.0; ///< up to where level of detail 0 is drawn, in metres
    double lod1Range = 10000.0; ///< up to where level of detail 1 is drawn, in metres
    double lod2Range = 4000.0;  ///< up to where level of detail 2 is drawn, in metres
    double lod3Range = 1000.0;  ///< up to where level of detail 3 is drawn, in metres
    double lod4Range = 200.0;   ///< up to where level of detail 4 is drawn, in metres
};

} // namespace tolvik
