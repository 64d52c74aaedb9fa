#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "ladmfr/FR_ActeType.hxx"
#include "ladmfr/FR_CadastreType.hxx"
#include "ladmfr/FR_ChargeType.hxx"
#include "ladmfr/FR_DivisionType.hxx"
#include "ladmfr/FR_DroitType.hxx"
#include "ladmfr/FR_ParcelleCadastraleType.hxx"
#include "ladmfr/FR_PdlLotType.hxx"
#include "ladmfr/FR_PdlType.hxx"
#include "ladmfr/FR_ServitudeType.hxx"
#include "ladmfr/FR_SignatureType.hxx"
#include "ladmfr/FR_VolumeType.hxx"
#include "ladmfr/LA_AdministrativeSourceType.hxx"
#include "ladmfr/LA_BAUnitType.hxx"
#include "ladmfr/LA_BoundaryFaceStringType.hxx"
#include "ladmfr/LA_BoundaryFaceType.hxx"
#include "ladmfr/LA_GroupPartyType.hxx"
#include "ladmfr/LA_LegalSpaceBuildingUnitType.hxx"
#include "ladmfr/LA_LegalSpaceUtilityNetworkType.hxx"
#include "ladmfr/LA_LevelType.hxx"
#include "ladmfr/LA_PartyType.hxx"
#include "ladmfr/LA_PointType.hxx"
#include "ladmfr/LA_RRRType.hxx"
#include "ladmfr/LA_SourceType.hxx"
#include "ladmfr/LA_SpatialSourceType.hxx"
#include "ladmfr/LA_SpatialUnitGroupType.hxx"
#include "ladmfr/LA_SpatialUnitType.hxx"

#include "ladmfr.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_ladmfr_FR_ActeType(ladmfr::FR_ActeType* object)
{
    const Rows<ladmfr::FR_ActeType> rows(this, object, EXTENSION("Foncier"));
    ATTR("titre", titre, optional<string>);
    ATTR("refSpf", refSpf, optional<string>);
    ATTR("refAdmi", refAdmi, sequence<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_ActeType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_CadastreType(ladmfr::FR_CadastreType* object)
{
    const Rows<ladmfr::FR_CadastreType> rows(this, object, EXTENSION("Foncier"));
    ATTR("departement", departement, long long);
    ATTR("codeDirection", codeDirection, long long);
    ATTR("codeCommuneINSEE", codeCommuneINSEE, string);
    ATTR("prefixeSection", prefixeSection, optional<string>);
    ATTR("section", section, string);
    ATTR("numero", numero, long long);
    ATTR("requiredRelationshipBAUnit", requiredRelationshipBAUnit, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_CadastreType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_ChargeType(ladmfr::FR_ChargeType* object)
{
    const Rows<ladmfr::FR_ChargeType> rows(this, object, EXTENSION("Foncier"));
    ATTR("type", type, string);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_ChargeType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_DivisionType(ladmfr::FR_DivisionType* object)
{
    const Rows<ladmfr::FR_DivisionType> rows(this, object, EXTENSION("Foncier"));
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
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_DivisionType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_DroitType(ladmfr::FR_DroitType* object)
{
    const Rows<ladmfr::FR_DroitType> rows(this, object, EXTENSION("Foncier"));
    ATTR("type", type, string);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_DroitType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_ParcelleCadastraleType(ladmfr::FR_ParcelleCadastraleType* object)
{
    const Rows<ladmfr::FR_ParcelleCadastraleType> rows(this, object, EXTENSION("Foncier"));
    ATTR("contenance", contenance, long long);
    ATTR("compteCommunal", compteCommunal, optional<long long>);
    ATTR("referenceLivreFoncier", referenceLivreFoncier, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_ParcelleCadastraleType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_PdlLotType(ladmfr::FR_PdlLotType* object)
{
    const Rows<ladmfr::FR_PdlLotType> rows(this, object, EXTENSION("Foncier"));
    ATTR("natureLot", natureLot, string);
    ATTR("referenceLivreFoncier", referenceLivreFoncier, optional<string>);
    ATTR("compteCommunalLot", compteCommunalLot, string);
    ATTR("superficie", superficie, optional<long long>);
    ATTR("dqlNumerator", dqlNumerator, optional<long long>);
    ATTR("dqlDenominator", dqlDenominator, optional<long long>);
    ATTR("numeroLot", numeroLot, long long);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_PdlLotType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_PdlType(ladmfr::FR_PdlType* object)
{
    const Rows<ladmfr::FR_PdlType> rows(this, object, EXTENSION("Foncier"));
    ATTR("typeBien", typeBien, string);
    ATTR("compteCommunal", compteCommunal, string);
    ATTR("numeroEDD", numeroEDD, long long);
    ATTR("nomEDD", nomEDD, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_PdlType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_ServitudeType(ladmfr::FR_ServitudeType* object)
{
    const Rows<ladmfr::FR_ServitudeType> rows(this, object, EXTENSION("Foncier"));
    ATTR("partyRequired", partyRequired, optional<bool>);
    ATTR("type", type, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_ServitudeType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_SignatureType(ladmfr::FR_SignatureType* object)
{
    const Rows<ladmfr::FR_SignatureType> rows(this, object, EXTENSION("Foncier"));
    ATTR("date", date, optional<date_time>);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_SignatureType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_FR_VolumeType(ladmfr::FR_VolumeType* object)
{
    const Rows<ladmfr::FR_VolumeType> rows(this, object, EXTENSION("Foncier"));
    ATTR("vID", vID, optional<string>);
    ATTR("vNameSpace", vNameSpace, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_FR_VolumeType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_AdministrativeSourceType(ladmfr::LA_AdministrativeSourceType* object)
{
    const Rows<ladmfr::LA_AdministrativeSourceType> rows(this, object, EXTENSION("Foncier"));
    ATTR("text", text, optional<string>);
    ATTR("type", type, string);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_AdministrativeSourceType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_BAUnitType(ladmfr::LA_BAUnitType* object)
{
    const Rows<ladmfr::LA_BAUnitType> rows(this, object, EXTENSION("Foncier"));
    ATTR("name", name1, optional<string>);
    ATTR("type", type, optional<string>);
    ATTR("uID", uID, optional<string>);
    ATTR("uNameSpace", uNameSpace, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_BAUnitType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_BoundaryFaceStringType(ladmfr::LA_BoundaryFaceStringType* object)
{
    const Rows<ladmfr::LA_BoundaryFaceStringType> rows(this, object, EXTENSION("Foncier"));
    ATTR("bfsID", bfsID, optional<string>);
    ATTR("locationByText", locationByText, optional<string>);
    ATTR("bfsNameSpace", bfsNameSpace, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_BoundaryFaceStringType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_BoundaryFaceType(ladmfr::LA_BoundaryFaceType* object)
{
    const Rows<ladmfr::LA_BoundaryFaceType> rows(this, object, EXTENSION("Foncier"));
    ATTR("bfID", bfID, optional<string>);
    ATTR("bfNameSpace", bfNameSpace, optional<string>);
    ATTR("locationByText", locationByText, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_BoundaryFaceType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_GroupPartyType(ladmfr::LA_GroupPartyType* object)
{
    const Rows<ladmfr::LA_GroupPartyType> rows(this, object, EXTENSION("Foncier"));
    ATTR("groupID", groupID, optional<string>);
    ATTR("groupName", groupName, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_GroupPartyType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_LegalSpaceBuildingUnitType(ladmfr::LA_LegalSpaceBuildingUnitType* object)
{
    const Rows<ladmfr::LA_LegalSpaceBuildingUnitType> rows(this, object, EXTENSION("Foncier"));
    ATTR("extPhysicalBuildingUnitID", extPhysicalBuildingUnitID, optional<string>);
    ATTR("extPhysicalBuildingNameSpace", extPhysicalBuildingNameSpace, optional<string>);
    ATTR("type", type, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_LegalSpaceBuildingUnitType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_LegalSpaceUtilityNetworkType(ladmfr::LA_LegalSpaceUtilityNetworkType* object)
{
    const Rows<ladmfr::LA_LegalSpaceUtilityNetworkType> rows(this, object, EXTENSION("Foncier"));
    ATTR("extPhysicalUtilityNetworkID", extPhysicalUtilityNetworkID, optional<string>);
    ATTR("extPhysicalUtilityNetworkNameSpace", extPhysicalUtilityNetworkNameSpace, optional<string>);
    ATTR("status", status, optional<string>);
    ATTR("type", type, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_LegalSpaceUtilityNetworkType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_LevelType(ladmfr::LA_LevelType* object)
{
    const Rows<ladmfr::LA_LevelType> rows(this, object, EXTENSION("Foncier"));
    ATTR("lID", lID, string);
    ATTR("name", name1, optional<string>);
    ATTR("registerType", registerType, optional<string>);
    ATTR("structure", structure, optional<string>);
    ATTR("type", type, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_LevelType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_PartyType(ladmfr::LA_PartyType* object)
{
    const Rows<ladmfr::LA_PartyType> rows(this, object, EXTENSION("Foncier"));
    ATTR("extPID", extPID, optional<string>);
    ATTR("name", name1, optional<string>);
    ATTR("pID", pID, optional<string>);
    ATTR("role", role, sequence<string>);
    ATTR("type", type, optional<string>);
    ATTR("pNameSpace", pNameSpace, optional<string>);
    ATTR("extPNameSpace", extPNameSpace, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_PartyType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_PointType(ladmfr::LA_PointType* object)
{
    const Rows<ladmfr::LA_PointType> rows(this, object, EXTENSION("Foncier"));
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
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_PointType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_RRRType(ladmfr::LA_RRRType* object)
{
    const Rows<ladmfr::LA_RRRType> rows(this, object, EXTENSION("Foncier"));
    ATTR("description", description, optional<gml::StringOrRefType>);
    ATTR("rID", rID, optional<string>);
    ATTR("share", share, optional<double>);
    ATTR("shareCheck", shareCheck, optional<bool>);
    ATTR("timeSpec", timeSpec, optional<date_time>);
    ATTR("rNameSpace", rNameSpace, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_RRRType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_SourceType(ladmfr::LA_SourceType* object)
{
    const Rows<ladmfr::LA_SourceType> rows(this, object, EXTENSION("Foncier"));
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
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_SourceType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_SpatialSourceType(ladmfr::LA_SpatialSourceType* object)
{
    const Rows<ladmfr::LA_SpatialSourceType> rows(this, object, EXTENSION("Foncier"));
    ATTR("measurements", measurements, sequence<string>);
    ATTR("procedure", procedure, optional<string>);
    ATTR("type", type, string);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_SpatialSourceType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_SpatialUnitGroupType(ladmfr::LA_SpatialUnitGroupType* object)
{
    const Rows<ladmfr::LA_SpatialUnitGroupType> rows(this, object, EXTENSION("Foncier"));
    ATTR("hierarchyLevel", hierarchyLevel, long long);
    ATTR("label", label, optional<string>);
    ATTR("name", name1, optional<string>);
    ATTR("sugID", sugID, optional<string>);
    ATTR("sugNameSpace", sugNameSpace, optional<string>);
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_SpatialUnitGroupType(object);
}

bool GmlCorePropertyCreator::visit_ladmfr_LA_SpatialUnitType(ladmfr::LA_SpatialUnitType* object)
{
    const Rows<ladmfr::LA_SpatialUnitType> rows(this, object, EXTENSION("Foncier"));
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
    return CityGMLPropertiesVisitor::visit_ladmfr_LA_SpatialUnitType(object);
}

} // namespace tolvik
