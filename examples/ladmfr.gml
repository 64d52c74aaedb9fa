<?xml version="1.0" encoding="UTF-8"?>
<!-- The land administration extension: parcels, rights, parties and sources, every kind of object once. -->
<core:CityModel gml:id="marrowby-ladmfr"
    xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:ladmfr="urn:tolvik:citygml:ladmfr:1.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Land register of Marrowby</gml:name>
  <core:cityObjectMember>
    <ladmfr:FR_Signature gml:id="fr-signature">
      <gml:name>Signature</gml:name>
      <ladmfr:date>2021-06-01T09:30:00Z</ladmfr:date>
    </ladmfr:FR_Signature>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <ladmfr:LA_Point gml:id="la-point">
      <gml:name>Point</gml:name>
      <ladmfr:interpolationRole>start</ladmfr:interpolationRole>
      <ladmfr:monumentation>beacon</ladmfr:monumentation>
      <ladmfr:pID>p-17</ladmfr:pID>
      <ladmfr:pointType>boundary point</ladmfr:pointType>
      <ladmfr:productionMethod>total station</ladmfr:productionMethod>
      <ladmfr:transAndResultFormula>identity</ladmfr:transAndResultFormula>
      <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
      <ladmfr:estimatedAccuracy>https://marrowby.example/estimated-accuracy</ladmfr:estimatedAccuracy>
      <ladmfr:transformedGeometry>unchanged</ladmfr:transformedGeometry>
      <ladmfr:transformationName>none</ladmfr:transformationName>
      <ladmfr:sourceDimensions>2</ladmfr:sourceDimensions>
      <ladmfr:targetDimensions>3</ladmfr:targetDimensions>
      <ladmfr:formulaCitation>none</ladmfr:formulaCitation>
      <ladmfr:originalLocation><gml:Point><gml:pos>14 12 3</gml:pos></gml:Point></ladmfr:originalLocation>
    </ladmfr:LA_Point>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <ladmfr:LA_BoundaryFace gml:id="la-boundary-face">
      <gml:name>Boundary face</gml:name>
      <ladmfr:bfID>bf-17</ladmfr:bfID>
      <ladmfr:bfNameSpace>https://marrowby.example/register</ladmfr:bfNameSpace>
      <ladmfr:locationByText>17 Lantern Row</ladmfr:locationByText>
      <ladmfr:geometry>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 22 10 0 22 18 0 10 18 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </ladmfr:geometry>
    </ladmfr:LA_BoundaryFace>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <ladmfr:LA_BoundaryFaceString gml:id="la-boundary-face-string">
      <gml:name>Boundary face string</gml:name>
      <ladmfr:bfsID>bfs-17</ladmfr:bfsID>
      <ladmfr:locationByText>17 Lantern Row</ladmfr:locationByText>
      <ladmfr:bfsNameSpace>https://marrowby.example/register</ladmfr:bfsNameSpace>
      <ladmfr:geometry>
        <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>0 6 0 40 6 0</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
      </ladmfr:geometry>
    </ladmfr:LA_BoundaryFaceString>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <ladmfr:LA_Level gml:id="la-level">
      <gml:name>Level</gml:name>
      <ladmfr:lID>l-17</ladmfr:lID>
      <ladmfr:name>Aldbrook</ladmfr:name>
      <ladmfr:registerType>Register type</ladmfr:registerType>
      <ladmfr:structure>topological</ladmfr:structure>
      <ladmfr:type>type A</ladmfr:type>
      <ladmfr:spatialUnit>
        <ladmfr:LA_SpatialUnit gml:id="la-spatial-unit">
          <gml:name>Spatial unit</gml:name>
          <ladmfr:extAddressID>ext-address-17</ladmfr:extAddressID>
          <ladmfr:area uom="m2">96</ladmfr:area>
          <ladmfr:dimension>2</ladmfr:dimension>
          <ladmfr:label>17</ladmfr:label>
          <ladmfr:referencePoint>north corner</ladmfr:referencePoint>
          <ladmfr:suID>su-17</ladmfr:suID>
          <ladmfr:surfaceRelation>on surface</ladmfr:surfaceRelation>
          <ladmfr:volume uom="m3">310</ladmfr:volume>
          <ladmfr:suNameSpace>https://marrowby.example/register</ladmfr:suNameSpace>
          <ladmfr:pID>p-17</ladmfr:pID>
          <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
          <ladmfr:pointType>boundary point</ladmfr:pointType>
          <ladmfr:geometry>
            <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 12 10 0 12 12 0 10 12 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </ladmfr:geometry>
          <ladmfr:level xlink:href="#la-level"/>
          <ladmfr:spatialUnitGroup>
            <ladmfr:LA_SpatialUnitGroup gml:id="la-spatial-unit-group">
              <gml:name>Spatial unit group</gml:name>
              <ladmfr:hierarchyLevel>1</ladmfr:hierarchyLevel>
              <ladmfr:label>17</ladmfr:label>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:sugID>sug-17</ladmfr:sugID>
              <ladmfr:sugNameSpace>https://marrowby.example/register</ladmfr:sugNameSpace>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:subGroup xlink:href="#la-spatial-unit-group"/>
            </ladmfr:LA_SpatialUnitGroup>
          </ladmfr:spatialUnitGroup>
          <ladmfr:baUnit>
            <ladmfr:LA_BAUnit gml:id="la-ba-unit">
              <gml:name>BA unit</gml:name>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:uID>u-17</ladmfr:uID>
              <ladmfr:uNameSpace>https://marrowby.example/register</ladmfr:uNameSpace>
              <ladmfr:rrr>
                <ladmfr:LA_RRR gml:id="la-rrr">
                  <gml:name>RRR</gml:name>
                  <ladmfr:rID>r-17</ladmfr:rID>
                  <ladmfr:share>0.8</ladmfr:share>
                  <ladmfr:shareCheck>true</ladmfr:shareCheck>
                  <ladmfr:timeSpec>2020-11-17T12:00:00Z</ladmfr:timeSpec>
                  <ladmfr:rNameSpace>https://marrowby.example/register</ladmfr:rNameSpace>
                  <ladmfr:party>
                    <ladmfr:LA_Party gml:id="la-party">
                      <gml:name>Party</gml:name>
                      <ladmfr:extPID>ext-17</ladmfr:extPID>
                      <ladmfr:name>Aldbrook</ladmfr:name>
                      <ladmfr:pID>p-17</ladmfr:pID>
                      <ladmfr:role>owner</ladmfr:role>
                      <ladmfr:type>type A</ladmfr:type>
                      <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
                      <ladmfr:extPNameSpace>https://marrowby.example/register</ladmfr:extPNameSpace>
                      <ladmfr:rrr xlink:href="#la-responsability"/>
                      <ladmfr:groupParty xlink:href="#la-group-party"/>
                    </ladmfr:LA_Party>
                  </ladmfr:party>
                  <ladmfr:party>
                    <ladmfr:FR_Party gml:id="fr-party">
                      <gml:name>Party</gml:name>
                      <ladmfr:extPID>ext-17</ladmfr:extPID>
                      <ladmfr:name>Aldbrook</ladmfr:name>
                      <ladmfr:pID>p-17</ladmfr:pID>
                      <ladmfr:role>owner</ladmfr:role>
                      <ladmfr:type>type A</ladmfr:type>
                      <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
                      <ladmfr:extPNameSpace>https://marrowby.example/register</ladmfr:extPNameSpace>
                      <ladmfr:rrr xlink:href="#la-responsability"/>
                      <ladmfr:groupParty xlink:href="#la-group-party"/>
                    </ladmfr:FR_Party>
                  </ladmfr:party>
                  <ladmfr:party>
                    <ladmfr:LA_GroupParty gml:id="la-group-party">
                      <gml:name>Group party</gml:name>
                      <ladmfr:extPID>ext-17</ladmfr:extPID>
                      <ladmfr:name>Aldbrook</ladmfr:name>
                      <ladmfr:pID>p-17</ladmfr:pID>
                      <ladmfr:role>owner</ladmfr:role>
                      <ladmfr:type>type A</ladmfr:type>
                      <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
                      <ladmfr:extPNameSpace>https://marrowby.example/register</ladmfr:extPNameSpace>
                      <ladmfr:rrr xlink:href="#la-responsability"/>
                      <ladmfr:groupParty xlink:href="#fr-group-party"/>
                      <ladmfr:groupID>group-17</ladmfr:groupID>
                      <ladmfr:groupName>Heirs of the lamplighter</ladmfr:groupName>
                      <ladmfr:party xlink:href="#fr-division"/>
                    </ladmfr:LA_GroupParty>
                  </ladmfr:party>
                  <ladmfr:party>
                    <ladmfr:FR_GroupParty gml:id="fr-group-party">
                      <gml:name>Group party</gml:name>
                      <ladmfr:extPID>ext-17</ladmfr:extPID>
                      <ladmfr:name>Aldbrook</ladmfr:name>
                      <ladmfr:pID>p-17</ladmfr:pID>
                      <ladmfr:role>owner</ladmfr:role>
                      <ladmfr:type>type A</ladmfr:type>
                      <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
                      <ladmfr:extPNameSpace>https://marrowby.example/register</ladmfr:extPNameSpace>
                      <ladmfr:rrr xlink:href="#la-responsability"/>
                      <ladmfr:groupParty xlink:href="#la-group-party"/>
                      <ladmfr:groupID>group-17</ladmfr:groupID>
                      <ladmfr:groupName>Heirs of the lamplighter</ladmfr:groupName>
                      <ladmfr:party xlink:href="#fr-division"/>
                    </ladmfr:FR_GroupParty>
                  </ladmfr:party>
                  <ladmfr:baUnit xlink:href="#fr-cadastre"/>
                  <ladmfr:source xlink:href="#la-administrative-source"/>
                </ladmfr:LA_RRR>
              </ladmfr:rrr>
              <ladmfr:rrr>
                <ladmfr:LA_Responsability gml:id="la-responsability">
                  <gml:name>Responsability</gml:name>
                  <ladmfr:rID>r-17</ladmfr:rID>
                  <ladmfr:share>3.6</ladmfr:share>
                  <ladmfr:shareCheck>false</ladmfr:shareCheck>
                  <ladmfr:timeSpec>2021-06-01T09:30:00Z</ladmfr:timeSpec>
                  <ladmfr:rNameSpace>https://marrowby.example/register</ladmfr:rNameSpace>
                  <ladmfr:party xlink:href="#la-party"/>
                  <ladmfr:baUnit xlink:href="#fr-cadastre"/>
                  <ladmfr:source xlink:href="#la-administrative-source"/>
                </ladmfr:LA_Responsability>
              </ladmfr:rrr>
              <ladmfr:rrr>
                <ladmfr:FR_Charge gml:id="fr-charge">
                  <gml:name>Charge</gml:name>
                  <ladmfr:rID>r-17</ladmfr:rID>
                  <ladmfr:share>0.015</ladmfr:share>
                  <ladmfr:shareCheck>true</ladmfr:shareCheck>
                  <ladmfr:timeSpec>2020-11-17T12:00:00Z</ladmfr:timeSpec>
                  <ladmfr:rNameSpace>https://marrowby.example/register</ladmfr:rNameSpace>
                  <ladmfr:party xlink:href="#la-party"/>
                  <ladmfr:baUnit xlink:href="#fr-cadastre"/>
                  <ladmfr:source xlink:href="#la-administrative-source"/>
                  <ladmfr:type>type A</ladmfr:type>
                </ladmfr:FR_Charge>
              </ladmfr:rrr>
              <ladmfr:rrr>
                <ladmfr:LA_Restriction gml:id="la-restriction">
                  <gml:name>Restriction</gml:name>
                  <ladmfr:rID>r-17</ladmfr:rID>
                  <ladmfr:share>120</ladmfr:share>
                  <ladmfr:shareCheck>false</ladmfr:shareCheck>
                  <ladmfr:timeSpec>2021-06-01T09:30:00Z</ladmfr:timeSpec>
                  <ladmfr:rNameSpace>https://marrowby.example/register</ladmfr:rNameSpace>
                  <ladmfr:party xlink:href="#la-party"/>
                  <ladmfr:baUnit xlink:href="#fr-cadastre"/>
                  <ladmfr:source xlink:href="#la-administrative-source"/>
                </ladmfr:LA_Restriction>
              </ladmfr:rrr>
              <ladmfr:rrr>
                <ladmfr:FR_Servitude gml:id="fr-servitude">
                  <gml:name>Servitude</gml:name>
                  <ladmfr:rID>r-17</ladmfr:rID>
                  <ladmfr:share>7.5</ladmfr:share>
                  <ladmfr:shareCheck>true</ladmfr:shareCheck>
                  <ladmfr:timeSpec>2020-11-17T12:00:00Z</ladmfr:timeSpec>
                  <ladmfr:rNameSpace>https://marrowby.example/register</ladmfr:rNameSpace>
                  <ladmfr:party xlink:href="#la-party"/>
                  <ladmfr:baUnit xlink:href="#fr-cadastre"/>
                  <ladmfr:source xlink:href="#la-administrative-source"/>
                  <ladmfr:partyRequired>false</ladmfr:partyRequired>
                  <ladmfr:type>type A</ladmfr:type>
                </ladmfr:FR_Servitude>
              </ladmfr:rrr>
              <ladmfr:rrr>
                <ladmfr:LA_Right gml:id="la-right">
                  <gml:name>Right</gml:name>
                  <ladmfr:rID>r-17</ladmfr:rID>
                  <ladmfr:share>0.8</ladmfr:share>
                  <ladmfr:shareCheck>true</ladmfr:shareCheck>
                  <ladmfr:timeSpec>2021-06-01T09:30:00Z</ladmfr:timeSpec>
                  <ladmfr:rNameSpace>https://marrowby.example/register</ladmfr:rNameSpace>
                  <ladmfr:party xlink:href="#la-party"/>
                  <ladmfr:baUnit xlink:href="#fr-cadastre"/>
                  <ladmfr:source xlink:href="#la-administrative-source"/>
                </ladmfr:LA_Right>
              </ladmfr:rrr>
              <ladmfr:rrr>
                <ladmfr:FR_Droit gml:id="fr-droit">
                  <gml:name>Droit</gml:name>
                  <ladmfr:rID>r-17</ladmfr:rID>
                  <ladmfr:share>3.6</ladmfr:share>
                  <ladmfr:shareCheck>false</ladmfr:shareCheck>
                  <ladmfr:timeSpec>2020-11-17T12:00:00Z</ladmfr:timeSpec>
                  <ladmfr:rNameSpace>https://marrowby.example/register</ladmfr:rNameSpace>
                  <ladmfr:party xlink:href="#la-party"/>
                  <ladmfr:baUnit xlink:href="#fr-cadastre"/>
                  <ladmfr:source xlink:href="#la-administrative-source"/>
                  <ladmfr:type>type A</ladmfr:type>
                </ladmfr:FR_Droit>
              </ladmfr:rrr>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:source>
                <ladmfr:LA_Source gml:id="la-source">
                  <gml:name>Source</gml:name>
                  <ladmfr:acceptance>2021-06-01T09:30:00Z</ladmfr:acceptance>
                  <ladmfr:availabilityStatus>archived</ladmfr:availabilityStatus>
                  <ladmfr:extArchiveID>ext-archive-17</ladmfr:extArchiveID>
                  <ladmfr:lifeSpanStamp>2020-11-17T12:00:00Z</ladmfr:lifeSpanStamp>
                  <ladmfr:maintype>deed</ladmfr:maintype>
                  <ladmfr:quality>certified</ladmfr:quality>
                  <ladmfr:recordation>2021-06-01T09:30:00Z</ladmfr:recordation>
                  <ladmfr:sID>s-17</ladmfr:sID>
                  <ladmfr:sNameSpace>https://marrowby.example/register</ladmfr:sNameSpace>
                  <ladmfr:source>survey of the quarter</ladmfr:source>
                  <ladmfr:submission>2020-11-17T12:00:00Z</ladmfr:submission>
                </ladmfr:LA_Source>
              </ladmfr:source>
              <ladmfr:source>
                <ladmfr:LA_AdministrativeSource gml:id="la-administrative-source">
                  <gml:name>Administrative source</gml:name>
                  <ladmfr:acceptance>2021-06-01T09:30:00Z</ladmfr:acceptance>
                  <ladmfr:availabilityStatus>archived</ladmfr:availabilityStatus>
                  <ladmfr:extArchiveID>ext-archive-17</ladmfr:extArchiveID>
                  <ladmfr:lifeSpanStamp>2020-11-17T12:00:00Z</ladmfr:lifeSpanStamp>
                  <ladmfr:maintype>deed</ladmfr:maintype>
                  <ladmfr:quality>certified</ladmfr:quality>
                  <ladmfr:recordation>2021-06-01T09:30:00Z</ladmfr:recordation>
                  <ladmfr:sID>s-17</ladmfr:sID>
                  <ladmfr:sNameSpace>https://marrowby.example/register</ladmfr:sNameSpace>
                  <ladmfr:source>survey of the quarter</ladmfr:source>
                  <ladmfr:submission>2020-11-17T12:00:00Z</ladmfr:submission>
                  <ladmfr:text>surveyed in 2019</ladmfr:text>
                  <ladmfr:type>type A</ladmfr:type>
                </ladmfr:LA_AdministrativeSource>
              </ladmfr:source>
              <ladmfr:source>
                <ladmfr:FR_Acte gml:id="fr-acte">
                  <gml:name>Acte</gml:name>
                  <ladmfr:acceptance>2021-06-01T09:30:00Z</ladmfr:acceptance>
                  <ladmfr:availabilityStatus>archived</ladmfr:availabilityStatus>
                  <ladmfr:extArchiveID>ext-archive-17</ladmfr:extArchiveID>
                  <ladmfr:lifeSpanStamp>2020-11-17T12:00:00Z</ladmfr:lifeSpanStamp>
                  <ladmfr:maintype>deed</ladmfr:maintype>
                  <ladmfr:quality>certified</ladmfr:quality>
                  <ladmfr:recordation>2021-06-01T09:30:00Z</ladmfr:recordation>
                  <ladmfr:sID>s-17</ladmfr:sID>
                  <ladmfr:sNameSpace>https://marrowby.example/register</ladmfr:sNameSpace>
                  <ladmfr:source>survey of the quarter</ladmfr:source>
                  <ladmfr:submission>2020-11-17T12:00:00Z</ladmfr:submission>
                  <ladmfr:text>surveyed in 2019</ladmfr:text>
                  <ladmfr:type>type A</ladmfr:type>
                  <ladmfr:titre>Acte de vente</ladmfr:titre>
                  <ladmfr:refSpf>2019P04412</ladmfr:refSpf>
                  <ladmfr:refAdmi>DP 990 17 19 0044</ladmfr:refAdmi>
                  <ladmfr:signature xlink:href="#fr-signature"/>
                </ladmfr:FR_Acte>
              </ladmfr:source>
              <ladmfr:relatedBAUnit xlink:href="#fr-cadastre"/>
            </ladmfr:LA_BAUnit>
          </ladmfr:baUnit>
          <ladmfr:baUnit>
            <ladmfr:FR_Cadastre gml:id="fr-cadastre">
              <gml:name>Cadastre</gml:name>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:uID>u-17</ladmfr:uID>
              <ladmfr:uNameSpace>https://marrowby.example/register</ladmfr:uNameSpace>
              <ladmfr:rrr xlink:href="#la-rrr"/>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:source xlink:href="#la-source"/>
              <ladmfr:relatedBAUnit xlink:href="#la-ba-unit"/>
              <ladmfr:departement>99</ladmfr:departement>
              <ladmfr:codeDirection>1</ladmfr:codeDirection>
              <ladmfr:codeCommuneINSEE>99017</ladmfr:codeCommuneINSEE>
              <ladmfr:prefixeSection>000</ladmfr:prefixeSection>
              <ladmfr:section>AB</ladmfr:section>
              <ladmfr:numero>4</ladmfr:numero>
              <ladmfr:requiredRelationshipBAUnit>adjacent</ladmfr:requiredRelationshipBAUnit>
            </ladmfr:FR_Cadastre>
          </ladmfr:baUnit>
          <ladmfr:baUnit>
            <ladmfr:FR_ParcelleCadastrale gml:id="fr-parcelle-cadastrale">
              <gml:name>Parcelle cadastrale</gml:name>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:uID>u-17</ladmfr:uID>
              <ladmfr:uNameSpace>https://marrowby.example/register</ladmfr:uNameSpace>
              <ladmfr:rrr xlink:href="#la-rrr"/>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:source xlink:href="#la-source"/>
              <ladmfr:relatedBAUnit xlink:href="#la-ba-unit"/>
              <ladmfr:departement>99</ladmfr:departement>
              <ladmfr:codeDirection>1</ladmfr:codeDirection>
              <ladmfr:codeCommuneINSEE>99017</ladmfr:codeCommuneINSEE>
              <ladmfr:prefixeSection>000</ladmfr:prefixeSection>
              <ladmfr:section>AB</ladmfr:section>
              <ladmfr:numero>1</ladmfr:numero>
              <ladmfr:requiredRelationshipBAUnit>adjacent</ladmfr:requiredRelationshipBAUnit>
              <ladmfr:contenance>412</ladmfr:contenance>
              <ladmfr:compteCommunal>3</ladmfr:compteCommunal>
              <ladmfr:referenceLivreFoncier>LF 17-204</ladmfr:referenceLivreFoncier>
              <ladmfr:boundary xlink:href="#fr-boundary"/>
              <ladmfr:pdl xlink:href="#fr-pdl"/>
            </ladmfr:FR_ParcelleCadastrale>
          </ladmfr:baUnit>
          <ladmfr:baUnit>
            <ladmfr:FR_Pdl gml:id="fr-pdl">
              <gml:name>Pdl</gml:name>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:uID>u-17</ladmfr:uID>
              <ladmfr:uNameSpace>https://marrowby.example/register</ladmfr:uNameSpace>
              <ladmfr:rrr xlink:href="#la-rrr"/>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:source xlink:href="#la-source"/>
              <ladmfr:relatedBAUnit xlink:href="#la-ba-unit"/>
              <ladmfr:departement>99</ladmfr:departement>
              <ladmfr:codeDirection>1</ladmfr:codeDirection>
              <ladmfr:codeCommuneINSEE>99017</ladmfr:codeCommuneINSEE>
              <ladmfr:prefixeSection>000</ladmfr:prefixeSection>
              <ladmfr:section>AB</ladmfr:section>
              <ladmfr:numero>6</ladmfr:numero>
              <ladmfr:requiredRelationshipBAUnit>adjacent</ladmfr:requiredRelationshipBAUnit>
              <ladmfr:typeBien>maison</ladmfr:typeBien>
              <ladmfr:compteCommunal>C00417</ladmfr:compteCommunal>
              <ladmfr:numeroEDD>12</ladmfr:numeroEDD>
              <ladmfr:nomEDD>EDD Lantern House</ladmfr:nomEDD>
              <ladmfr:lot xlink:href="#fr-pdl-lot"/>
            </ladmfr:FR_Pdl>
          </ladmfr:baUnit>
          <ladmfr:baUnit>
            <ladmfr:FR_PdlLot gml:id="fr-pdl-lot">
              <gml:name>Pdl lot</gml:name>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:uID>u-17</ladmfr:uID>
              <ladmfr:uNameSpace>https://marrowby.example/register</ladmfr:uNameSpace>
              <ladmfr:rrr xlink:href="#la-rrr"/>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:source xlink:href="#la-source"/>
              <ladmfr:relatedBAUnit xlink:href="#la-ba-unit"/>
              <ladmfr:departement>99</ladmfr:departement>
              <ladmfr:codeDirection>1</ladmfr:codeDirection>
              <ladmfr:codeCommuneINSEE>99017</ladmfr:codeCommuneINSEE>
              <ladmfr:prefixeSection>000</ladmfr:prefixeSection>
              <ladmfr:section>AB</ladmfr:section>
              <ladmfr:numero>2</ladmfr:numero>
              <ladmfr:requiredRelationshipBAUnit>adjacent</ladmfr:requiredRelationshipBAUnit>
              <ladmfr:natureLot>privatif</ladmfr:natureLot>
              <ladmfr:referenceLivreFoncier>LF 17-204</ladmfr:referenceLivreFoncier>
              <ladmfr:compteCommunalLot>C00418</ladmfr:compteCommunalLot>
              <ladmfr:superficie>68</ladmfr:superficie>
              <ladmfr:dqlNumerator>120</ladmfr:dqlNumerator>
              <ladmfr:dqlDenominator>1000</ladmfr:dqlDenominator>
              <ladmfr:numeroLot>4</ladmfr:numeroLot>
              <ladmfr:division xlink:href="#fr-division"/>
            </ladmfr:FR_PdlLot>
          </ladmfr:baUnit>
          <ladmfr:baUnit>
            <ladmfr:FR_NonCadastre gml:id="fr-non-cadastre">
              <gml:name>Non cadastre</gml:name>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:uID>u-17</ladmfr:uID>
              <ladmfr:uNameSpace>https://marrowby.example/register</ladmfr:uNameSpace>
              <ladmfr:rrr xlink:href="#la-rrr"/>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:source xlink:href="#la-source"/>
              <ladmfr:relatedBAUnit xlink:href="#la-ba-unit"/>
            </ladmfr:FR_NonCadastre>
          </ladmfr:baUnit>
          <ladmfr:baUnit>
            <ladmfr:FR_UniteFonciere gml:id="fr-unite-fonciere">
              <gml:name>Unite fonciere</gml:name>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:uID>u-17</ladmfr:uID>
              <ladmfr:uNameSpace>https://marrowby.example/register</ladmfr:uNameSpace>
              <ladmfr:rrr xlink:href="#la-rrr"/>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:source xlink:href="#la-source"/>
              <ladmfr:relatedBAUnit xlink:href="#la-ba-unit"/>
            </ladmfr:FR_UniteFonciere>
          </ladmfr:baUnit>
          <ladmfr:baUnit>
            <ladmfr:FR_Volume gml:id="fr-volume">
              <gml:name>Volume</gml:name>
              <ladmfr:name>Aldbrook</ladmfr:name>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:uID>u-17</ladmfr:uID>
              <ladmfr:uNameSpace>https://marrowby.example/register</ladmfr:uNameSpace>
              <ladmfr:rrr xlink:href="#la-rrr"/>
              <ladmfr:spatialUnit xlink:href="#fr-division"/>
              <ladmfr:source xlink:href="#la-source"/>
              <ladmfr:relatedBAUnit xlink:href="#la-ba-unit"/>
              <ladmfr:vID>v-17</ladmfr:vID>
              <ladmfr:vNameSpace>https://marrowby.example/register</ladmfr:vNameSpace>
            </ladmfr:FR_Volume>
          </ladmfr:baUnit>
          <ladmfr:boundaryFaceString>
            <ladmfr:FR_Boundary gml:id="fr-boundary">
              <gml:name>Boundary</gml:name>
              <ladmfr:bfsID>bfs-17</ladmfr:bfsID>
              <ladmfr:locationByText>17 Lantern Row</ladmfr:locationByText>
              <ladmfr:bfsNameSpace>https://marrowby.example/register</ladmfr:bfsNameSpace>
              <ladmfr:geometry>
                <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>0 6 0 40 6 0</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
              </ladmfr:geometry>
              <ladmfr:point xlink:href="#la-point"/>
            </ladmfr:FR_Boundary>
          </ladmfr:boundaryFaceString>
          <ladmfr:boundaryFace xlink:href="#la-boundary-face"/>
          <ladmfr:spatialSource>
            <ladmfr:LA_SpatialSource gml:id="la-spatial-source">
              <gml:name>Spatial source</gml:name>
              <ladmfr:acceptance>2020-11-17T12:00:00Z</ladmfr:acceptance>
              <ladmfr:availabilityStatus>archived</ladmfr:availabilityStatus>
              <ladmfr:extArchiveID>ext-archive-17</ladmfr:extArchiveID>
              <ladmfr:lifeSpanStamp>2021-06-01T09:30:00Z</ladmfr:lifeSpanStamp>
              <ladmfr:maintype>deed</ladmfr:maintype>
              <ladmfr:quality>certified</ladmfr:quality>
              <ladmfr:recordation>2020-11-17T12:00:00Z</ladmfr:recordation>
              <ladmfr:sID>s-17</ladmfr:sID>
              <ladmfr:sNameSpace>https://marrowby.example/register</ladmfr:sNameSpace>
              <ladmfr:source>survey of the quarter</ladmfr:source>
              <ladmfr:submission>2021-06-01T09:30:00Z</ladmfr:submission>
              <ladmfr:measurements>17 points</ladmfr:measurements>
              <ladmfr:procedure>polar survey</ladmfr:procedure>
              <ladmfr:type>type A</ladmfr:type>
              <ladmfr:point xlink:href="#la-point"/>
            </ladmfr:LA_SpatialSource>
          </ladmfr:spatialSource>
        </ladmfr:LA_SpatialUnit>
      </ladmfr:spatialUnit>
      <ladmfr:spatialUnit>
        <ladmfr:FR_Division gml:id="fr-division">
          <gml:name>Division</gml:name>
          <ladmfr:extAddressID>ext-address-17</ladmfr:extAddressID>
          <ladmfr:area uom="m2">24</ladmfr:area>
          <ladmfr:dimension>2</ladmfr:dimension>
          <ladmfr:label>17</ladmfr:label>
          <ladmfr:referencePoint>north corner</ladmfr:referencePoint>
          <ladmfr:suID>su-17</ladmfr:suID>
          <ladmfr:surfaceRelation>on surface</ladmfr:surfaceRelation>
          <ladmfr:volume uom="m3">0.3</ladmfr:volume>
          <ladmfr:suNameSpace>https://marrowby.example/register</ladmfr:suNameSpace>
          <ladmfr:pID>p-17</ladmfr:pID>
          <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
          <ladmfr:pointType>boundary point</ladmfr:pointType>
          <ladmfr:geometry>
            <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 12 10 0 12 12 0 10 12 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </ladmfr:geometry>
          <ladmfr:level xlink:href="#la-level"/>
          <ladmfr:spatialUnitGroup xlink:href="#la-spatial-unit-group"/>
          <ladmfr:baUnit xlink:href="#la-ba-unit"/>
          <ladmfr:boundaryFaceString xlink:href="#la-boundary-face-string"/>
          <ladmfr:boundaryFace xlink:href="#la-boundary-face"/>
          <ladmfr:spatialSource xlink:href="#la-spatial-source"/>
          <ladmfr:type>type A</ladmfr:type>
          <ladmfr:numero>2</ladmfr:numero>
          <ladmfr:quotePart>120/1000</ladmfr:quotePart>
          <ladmfr:nature>appartement</ladmfr:nature>
          <ladmfr:batiment>A</ladmfr:batiment>
          <ladmfr:escalier>2</ladmfr:escalier>
          <ladmfr:quotePartPartieCommune>12</ladmfr:quotePartPartieCommune>
          <ladmfr:observation>avec cave</ladmfr:observation>
          <ladmfr:altInf>3.2</ladmfr:altInf>
          <ladmfr:altSup>6.0</ladmfr:altSup>
        </ladmfr:FR_Division>
      </ladmfr:spatialUnit>
      <ladmfr:spatialUnit>
        <ladmfr:LA_LegalSpaceBuildingUnit gml:id="la-legal-space-building-unit">
          <gml:name>Legal space building unit</gml:name>
          <ladmfr:extAddressID>ext-address-17</ladmfr:extAddressID>
          <ladmfr:area uom="m2">41.5</ladmfr:area>
          <ladmfr:dimension>2</ladmfr:dimension>
          <ladmfr:label>17</ladmfr:label>
          <ladmfr:referencePoint>north corner</ladmfr:referencePoint>
          <ladmfr:suID>su-17</ladmfr:suID>
          <ladmfr:surfaceRelation>on surface</ladmfr:surfaceRelation>
          <ladmfr:volume uom="m3">310</ladmfr:volume>
          <ladmfr:suNameSpace>https://marrowby.example/register</ladmfr:suNameSpace>
          <ladmfr:pID>p-17</ladmfr:pID>
          <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
          <ladmfr:pointType>boundary point</ladmfr:pointType>
          <ladmfr:geometry>
            <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 12 10 0 12 12 0 10 12 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </ladmfr:geometry>
          <ladmfr:level xlink:href="#la-level"/>
          <ladmfr:spatialUnitGroup xlink:href="#la-spatial-unit-group"/>
          <ladmfr:baUnit xlink:href="#la-ba-unit"/>
          <ladmfr:boundaryFaceString xlink:href="#la-boundary-face-string"/>
          <ladmfr:boundaryFace xlink:href="#la-boundary-face"/>
          <ladmfr:spatialSource xlink:href="#la-spatial-source"/>
          <ladmfr:extPhysicalBuildingUnitID>ext-physical-building-unit-17</ladmfr:extPhysicalBuildingUnitID>
          <ladmfr:extPhysicalBuildingNameSpace>https://marrowby.example/register</ladmfr:extPhysicalBuildingNameSpace>
          <ladmfr:type>type A</ladmfr:type>
        </ladmfr:LA_LegalSpaceBuildingUnit>
      </ladmfr:spatialUnit>
      <ladmfr:spatialUnit>
        <ladmfr:LA_LegalSpaceUtilityNetwork gml:id="la-legal-space-utility-network">
          <gml:name>Legal space utility network</gml:name>
          <ladmfr:extAddressID>ext-address-17</ladmfr:extAddressID>
          <ladmfr:area uom="m2">96</ladmfr:area>
          <ladmfr:dimension>2</ladmfr:dimension>
          <ladmfr:label>17</ladmfr:label>
          <ladmfr:referencePoint>north corner</ladmfr:referencePoint>
          <ladmfr:suID>su-17</ladmfr:suID>
          <ladmfr:surfaceRelation>on surface</ladmfr:surfaceRelation>
          <ladmfr:volume uom="m3">0.3</ladmfr:volume>
          <ladmfr:suNameSpace>https://marrowby.example/register</ladmfr:suNameSpace>
          <ladmfr:pID>p-17</ladmfr:pID>
          <ladmfr:pNameSpace>https://marrowby.example/register</ladmfr:pNameSpace>
          <ladmfr:pointType>boundary point</ladmfr:pointType>
          <ladmfr:geometry>
            <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 12 10 0 12 12 0 10 12 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </ladmfr:geometry>
          <ladmfr:level xlink:href="#la-level"/>
          <ladmfr:spatialUnitGroup xlink:href="#la-spatial-unit-group"/>
          <ladmfr:baUnit xlink:href="#la-ba-unit"/>
          <ladmfr:boundaryFaceString xlink:href="#la-boundary-face-string"/>
          <ladmfr:boundaryFace xlink:href="#la-boundary-face"/>
          <ladmfr:spatialSource xlink:href="#la-spatial-source"/>
          <ladmfr:extPhysicalUtilityNetworkID>ext-physical-utility-network-17</ladmfr:extPhysicalUtilityNetworkID>
          <ladmfr:extPhysicalUtilityNetworkNameSpace>https://marrowby.example/register</ladmfr:extPhysicalUtilityNetworkNameSpace>
          <ladmfr:status>in service</ladmfr:status>
          <ladmfr:type>type A</ladmfr:type>
        </ladmfr:LA_LegalSpaceUtilityNetwork>
      </ladmfr:spatialUnit>
    </ladmfr:LA_Level>
  </core:cityObjectMember>
</core:CityModel>
