#include "citygml/CityGmlUtils.h"

namespace tolvik {

std::vector<NamespacesMap> CityGmlUtils::getNamespaces()
{
    static const struct
    {
        const char* prefix;
        const char* name;
        const char* schemaLocation;
    } namespaces[] = {
        {"gml", "http://www.opengis.net/gml", ""},
        {"xlink", "http://www.w3.org/1999/xlink", ""},
        {"xsi", "http://www.w3.org/2001/XMLSchema-instance", ""},
        {"xAL", "urn:oasis:names:tc:ciq:xsdschema:xAL:2.0", ""},
        {"smil20", "http://www.w3.org/2001/SMIL20/", ""},
        {"smil20lang", "http://www.w3.org/2001/SMIL20/Language", ""},
        {"core", "http://www.opengis.net/citygml/2.0",
         "http://schemas.opengis.net/citygml/2.0/cityGMLBase.xsd"},
        {"app", "http://www.opengis.net/citygml/appearance/2.0",
         "http://schemas.opengis.net/citygml/appearance/2.0/appearance.xsd"},
        {"brid", "http://www.opengis.net/citygml/bridge/2.0",
         "http://schemas.opengis.net/citygml/bridge/2.0/bridge.xsd"},
        {"bldg", "http://www.opengis.net/citygml/building/2.0",
         "http://schemas.opengis.net/citygml/building/2.0/building.xsd"},
        {"frn", "http://www.opengis.net/citygml/cityfurniture/2.0",
         "http://schemas.opengis.net/citygml/cityfurniture/2.0/cityFurniture.xsd"},
        {"grp", "http://www.opengis.net/citygml/cityobjectgroup/2.0",
         "http://schemas.opengis.net/citygml/cityobjectgroup/2.0/cityObjectGroup.xsd"},
        {"gen", "http://www.opengis.net/citygml/generics/2.0",
         "http://schemas.opengis.net/citygml/generics/2.0/generics.xsd"},
        {"luse", "http://www.opengis.net/citygml/landuse/2.0",
         "http://schemas.opengis.net/citygml/landuse/2.0/landUse.xsd"},
        {"dem", "http://www.opengis.net/citygml/relief/2.0",
         "http://schemas.opengis.net/citygml/relief/2.0/relief.xsd"},
        {"tex", "http://www.opengis.net/citygml/texturedsurface/2.0",
         "http://schemas.opengis.net/citygml/texturedsurface/2.0/texturedSurface.xsd"},
        {"tran", "http://www.opengis.net/citygml/transportation/2.0",
         "http://schemas.opengis.net/citygml/transportation/2.0/transportation.xsd"},
        {"tun", "http://www.opengis.net/citygml/tunnel/2.0",
         "http://schemas.opengis.net/citygml/tunnel/2.0/tunnel.xsd"},
        {"veg", "http://www.opengis.net/citygml/vegetation/2.0",
         "http://schemas.opengis.net/citygml/vegetation/2.0/vegetation.xsd"},
        {"wtr", "http://www.opengis.net/citygml/waterbody/2.0",
         "http://schemas.opengis.net/citygml/waterbody/2.0/waterBody.xsd"},
        {"component", "urn:tolvik:citygml:component:1.0", ""},
        {"energy", "http://www.sig3d.org/citygml/2.0/energy/1.0", ""},
        {"epadesa", "urn:tolvik:citygml:epadesa:1.0", ""},
        {"ladmfr", "urn:tolvik:citygml:ladmfr:1.0", ""},
        {"pivotEnergy", "urn:tolvik:citygml:pivotEnergy:1.0", ""},
        {"utility", "http://www.citygml.org/ade/utility/0.9.2", ""},
    };
    std::vector<NamespacesMap> result;
    for (const auto& entry : namespaces) {
        result.push_back({entry.prefix, entry.name, entry.schemaLocation});
    }
    return result;
}

} // namespace tolvik
