#include "ladmfr/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "ladmfr.instantiations.h"

namespace tolvik {

ROWS(ladmfr, FR_ActeType, EXTENSION("Foncier")) {
    ATTR("titre", titre, optional<string>);
    ATTR("refSpf", refSpf, optional<string>);
    ATTR("refAdmi", refAdmi, sequence<string>);
}

ROWS(ladmfr, FR_CadastreType, EXTENSION("Foncier")) {
    ATTR("departement", departement, long long);
    ATTR("codeDirection", codeDirection, long long);
    ATTR("codeCommuneINSEE", codeCommuneINSEE, string);
    ATTR("prefixeSection", prefixeSection, optional<string>);
    ATTR("section", section, string);
    ATTR("numero", numero, long long);
    ATTR("requiredRelationshipBAUnit", requiredRelationshipBAUnit, optional<string>);
}

ROWS(ladmfr, FR_ChargeType, EXTENSION("Foncier")) {
    ATTR("type", type, string);
}

ROWS(ladmfr, FR_DivisionType, EXTENSION("Foncier")) {
    ATTR("type", type, string);
    ATTR("numero", numero, long long);
    ATTR("quotePart", quotePart, optional<string>);
    ATTR("nature", nature, optional<string>);
    ATTR("batiment", batiment, optional<string>);
    ATTR("escalier", escalier, optional<string>);
    ATTR("quotePartPartieCommune", quotePartPartieCommune, optional<long long>);
    ATTR("observation", observation, optional<string>);
    ATTR("altInf", altInf, optional<string>);
    ATTR("altSup", altSup, optional<string>);
}

ROWS(ladmfr, FR_DroitType, EXTENSION("Foncier")) {
    ATTR("type", type, string);
}

ROWS(ladmfr, FR_ParcelleCadastraleType, EXTENSION("Foncier")) {
    ATTR("contenance", contenance, long long);
    ATTR("compteCommunal", compteCommunal, optional<long long>);
    ATTR("referenceLivreFoncier", referenceLivreFoncier, optional<string>);
}

ROWS(ladmfr, FR_PdlLotType, EXTENSION("Foncier")) {
    ATTR("natureLot", natureLot, string);
    ATTR("referenceLivreFoncier", referenceLivreFoncier, optional<string>);
    ATTR("compteCommunalLot", compteCommunalLot, string);
    ATTR("superficie", superficie, optional<long long>);
    ATTR("dqlNumerator", dqlNumerator, optional<long long>);
    ATTR("dqlDenominator", dqlDenominator, optional<long long>);
    ATTR("numeroLot", numeroLot, long long);
}

ROWS(ladmfr, FR_PdlType, EXTENSION("Foncier")) {
    ATTR("typeBien", typeBien, string);
    ATTR("compteCommunal", compteCommunal, string);
    ATTR("numeroEDD", numeroEDD, long long);
    ATTR("nomEDD", nomEDD, optional<string>);
}

ROWS(ladmfr, FR_ServitudeType, EXTENSION("Foncier")) {
    ATTR("partyRequired", partyRequired, optional<bool>);
    ATTR("type", type, optional<string>);
}

ROWS(ladmfr, FR_SignatureType, EXTENSION("Foncier")) {
    ATTR("date", date, optional<date_time>);
}

ROWS(ladmfr, FR_VolumeType, EXTENSION("Foncier")) {
    ATTR("vID", vID, optional<string>);
    ATTR("vNameSpace", vNameSpace, optional<string>);
}

ROWS(ladmfr, LA_AdministrativeSourceType, EXTENSION("Foncier")) {
    ATTR("text", text, optional<string>);
    ATTR("type", type, string);
}

ROWS(ladmfr, LA_BAUnitType, EXTENSION("Foncier")) {
    ATTR("name", name1, optional<string>);
    ATTR("type", type, optional<string>);
    ATTR("uID", uID, optional<string>);
    ATTR("uNameSpace", uNameSpace, optional<string>);
}

ROWS(ladmfr, LA_BoundaryFaceStringType, EXTENSION("Foncier")) {
    ATTR("bfsID", bfsID, optional<string>);
    ATTR("locationByText", locationByText, optional<string>);
    ATTR("bfsNameSpace", bfsNameSpace, optional<string>);
}

ROWS(ladmfr, LA_BoundaryFaceType, EXTENSION("Foncier")) {
    ATTR("bfID", bfID, optional<string>);
    ATTR("bfNameSpace", bfNameSpace, optional<string>);
    ATTR("locationByText", locationByText, optional<string>);
}

ROWS(ladmfr, LA_GroupPartyType, EXTENSION("Foncier")) {
    ATTR("groupID", groupID, optional<string>);
    ATTR("groupName", groupName, optional<string>);
}

ROWS(ladmfr, LA_LegalSpaceBuildingUnitType, EXTENSION("Foncier")) {
    ATTR("extPhysicalBuildingUnitID", extPhysicalBuildingUnitID, optional<string>);
    ATTR("extPhysicalBuildingNameSpace", extPhysicalBuildingNameSpace, optional<string>);
    ATTR("type", type, optional<string>);
}

ROWS(ladmfr, LA_LegalSpaceUtilityNetworkType, EXTENSION("Foncier")) {
    ATTR("extPhysicalUtilityNetworkID", extPhysicalUtilityNetworkID, optional<string>);
    ATTR("extPhysicalUtilityNetworkNameSpace", extPhysicalUtilityNetworkNameSpace, optional<string>);
    ATTR("status", status, optional<string>);
    ATTR("type", type, optional<string>);
}

ROWS(ladmfr, LA_LevelType, EXTENSION("Foncier")) {
    ATTR("lID", lID, string);
    ATTR("name", name1, optional<string>);
    ATTR("registerType", registerType, optional<string>);
    ATTR("structure", structure, optional<string>);
    ATTR("type", type, optional<string>);
}

ROWS(ladmfr, LA_PartyType, EXTENSION("Foncier")) {
    ATTR("extPID", extPID, optional<string>);
    ATTR("name", name1, optional<string>);
    ATTR("pID", pID, optional<string>);
    ATTR("role", role, sequence<string>);
    ATTR("type", type, optional<string>);
    ATTR("pNameSpace", pNameSpace, optional<string>);
    ATTR("extPNameSpace", extPNameSpace, optional<string>);
}

ROWS(ladmfr, LA_PointType, EXTENSION("Foncier")) {
    ATTR("interpolationRole", interpolationRole, optional<string>);
    ATTR("monumentation", monumentation, optional<string>);
    ATTR("pID", pID, optional<string>);
    ATTR("pointType", pointType, optional<string>);
    ATTR("productionMethod", productionMethod, optional<string>);
    ATTR("transAndResultFormula", transAndResultFormula, optional<string>);
    ATTR("pNameSpace", pNameSpace, optional<string>);
    ATTR("estimatedAccuracy", estimatedAccuracy, optional<uri>);
    ATTR("transformedGeometry", transformedGeometry, optional<string>);
    ATTR("transformationName", transformationName, optional<string>);
    ATTR("sourceDimensions", sourceDimensions, optional<long long>);
    ATTR("targetDimensions", targetDimensions, optional<long long>);
    ATTR("formulaCitation", formulaCitation, optional<string>);
}

ROWS(ladmfr, LA_RRRType, EXTENSION("Foncier")) {
    ATTR("description", description, optional<gml::StringOrRefType>);
    ATTR("rID", rID, optional<string>);
    ATTR("share", share, optional<double>);
    ATTR("shareCheck", shareCheck, optional<bool>);
    ATTR("timeSpec", timeSpec, optional<date_time>);
    ATTR("rNameSpace", rNameSpace, optional<string>);
}

ROWS(ladmfr, LA_SourceType, EXTENSION("Foncier")) {
    ATTR("acceptance", acceptance, optional<date_time>);
    ATTR("availabilityStatus", availabilityStatus, string);
    ATTR("extArchiveID", extArchiveID, optional<string>);
    ATTR("lifeSpanStamp", lifeSpanStamp, optional<date_time>);
    ATTR("maintype", maintype, optional<string>);
    ATTR("quality", quality, sequence<string>);
    ATTR("recordation", recordation, optional<date_time>);
    ATTR("sID", sID, optional<string>);
    ATTR("sNameSpace", sNameSpace, optional<string>);
    ATTR("source", source, sequence<string>);
    ATTR("submission", submission, optional<date_time>);
}

ROWS(ladmfr, LA_SpatialSourceType, EXTENSION("Foncier")) {
    ATTR("measurements", measurements, sequence<string>);
    ATTR("procedure", procedure, optional<string>);
    ATTR("type", type, string);
}

ROWS(ladmfr, LA_SpatialUnitGroupType, EXTENSION("Foncier")) {
    ATTR("hierarchyLevel", hierarchyLevel, long long);
    ATTR("label", label, optional<string>);
    ATTR("name", name1, optional<string>);
    ATTR("sugID", sugID, optional<string>);
    ATTR("sugNameSpace", sugNameSpace, optional<string>);
}

ROWS(ladmfr, LA_SpatialUnitType, EXTENSION("Foncier")) {
    ATTR("extAddressID", extAddressID, sequence<string>);
    ATTR("area", area, sequence<gml::AreaType>);
    ATTR("dimension", dimension, optional<string>);
    ATTR("label", label, optional<string>);
    ATTR("referencePoint", referencePoint, optional<string>);
    ATTR("suID", suID, string);
    ATTR("surfaceRelation", surfaceRelation, optional<string>);
    ATTR("volume", volume, sequence<gml::VolumeType>);
    ATTR("suNameSpace", suNameSpace, string);
    ATTR("pID", pID, string);
    ATTR("pNameSpace", pNameSpace, string);
    ATTR("pointType", pointType, string);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"
