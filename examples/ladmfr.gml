<?xml version="1.0" encoding="UTF-8"?>
<!-- A parcel with its rights, parties, deeds, survey, boundary, volumes and lots -->
<core:CityModel xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:ladmfr="urn:tolvik:citygml:ladmfr:1.0"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Cadastre of Port-Clairval</gml:name>
  <gml:boundedBy>
    <gml:Envelope srsName="urn:ogc:def:crs:EPSG::2154" srsDimension="3">
      <gml:lowerCorner>1200 860 0</gml:lowerCorner>
      <gml:upperCorner>1290 920 20</gml:upperCorner>
    </gml:Envelope>
  </gml:boundedBy>
  <gml:featureMember>
    <ladmfr:FR_ParcelleCadastrale gml:id="parcel-212">
      <gml:description>Parcel of the Maison du Port, with rights, boundary and lots</gml:description>
      <gml:name>Parcel AB 212</gml:name>
      <ladmfr:name>Maison du Port</ladmfr:name>
      <ladmfr:type>basic property unit</ladmfr:type>
      <ladmfr:uID>BA-1</ladmfr:uID>
      <ladmfr:uNameSpace>clairval.baunits</ladmfr:uNameSpace>
      <ladmfr:rrr>
        <ladmfr:FR_Droit gml:id="right-ownership">
          <gml:description>Full ownership since the sale of 2019</gml:description>
          <gml:name>Ownership of AB 212</gml:name>
          <ladmfr:rID>R-1</ladmfr:rID>
          <ladmfr:share>1</ladmfr:share>
          <ladmfr:shareCheck>true</ladmfr:shareCheck>
          <ladmfr:timeSpec>2029-06-03T00:00:00</ladmfr:timeSpec>
          <ladmfr:rNameSpace>clairval.rights</ladmfr:rNameSpace>
          <ladmfr:party>
            <ladmfr:FR_Party gml:id="party-lucie">
              <gml:name>Lucie Marchand</gml:name>
              <ladmfr:extPID>ID-55012</ladmfr:extPID>
              <ladmfr:name>Lucie Marchand</ladmfr:name>
              <ladmfr:pID>P-1001</ladmfr:pID>
              <ladmfr:role>citizen</ladmfr:role>
              <ladmfr:role>employer</ladmfr:role>
              <ladmfr:type>natural person</ladmfr:type>
              <ladmfr:pNameSpace>clairval.parties</ladmfr:pNameSpace>
              <ladmfr:extPNameSpace>clairval.register</ladmfr:extPNameSpace>
              <ladmfr:rrr xlink:href="#right-ownership"/>
              <ladmfr:groupParty>
                <ladmfr:FR_GroupParty gml:id="group-owners">
                  <gml:name>Co-owners of the Maison du Port</gml:name>
                  <ladmfr:extPID>ID-55013</ladmfr:extPID>
                  <ladmfr:name>Co-owners</ladmfr:name>
                  <ladmfr:pID>P-1001</ladmfr:pID>
                  <ladmfr:role>surveyor</ladmfr:role>
                  <ladmfr:role>notary</ladmfr:role>
                  <ladmfr:type>group</ladmfr:type>
                  <ladmfr:pNameSpace>clairval.parties</ladmfr:pNameSpace>
                  <ladmfr:extPNameSpace>clairval.register</ladmfr:extPNameSpace>
                  <ladmfr:rrr xlink:href="#right-ownership"/>
                  <ladmfr:groupParty xlink:href="#group-heirs"/>
                  <ladmfr:groupID>GP-1</ladmfr:groupID>
                  <ladmfr:groupName>Co-owners of the Maison du Port</ladmfr:groupName>
                  <ladmfr:party xlink:href="#party-lucie"/>
                  <ladmfr:party xlink:href="#party-bakery"/>
                </ladmfr:FR_GroupParty>
              </ladmfr:groupParty>
            </ladmfr:FR_Party>
          </ladmfr:party>
          <ladmfr:baUnit xlink:href="#parcel-212"/>
          <ladmfr:source>
            <ladmfr:FR_Acte gml:id="deed-2019">
              <gml:name>Deed of sale of 2019</gml:name>
              <ladmfr:acceptance>2019-06-03T09:30:00</ladmfr:acceptance>
              <ladmfr:availabilityStatus>original</ladmfr:availabilityStatus>
              <ladmfr:extArchiveID>ARCH-88-1</ladmfr:extArchiveID>
              <ladmfr:lifeSpanStamp>2019-06-05T00:00:00</ladmfr:lifeSpanStamp>
              <ladmfr:maintype>deed</ladmfr:maintype>
              <ladmfr:quality>checked</ladmfr:quality>
              <ladmfr:quality>complete</ladmfr:quality>
              <ladmfr:recordation>2019-06-12T14:00:00</ladmfr:recordation>
              <ladmfr:sID>S-1</ladmfr:sID>
              <ladmfr:sNameSpace>clairval.sources</ladmfr:sNameSpace>
              <ladmfr:source>Archive of the notary</ladmfr:source>
              <ladmfr:source>Archive of the town hall</ladmfr:source>
              <ladmfr:submission>2019-05-28T16:05:00</ladmfr:submission>
              <ladmfr:text>The seller transfers the parcel to the buyer</ladmfr:text>
              <ladmfr:type>deed</ladmfr:type>
              <ladmfr:titre>Sale of the parcel AB 212</ladmfr:titre>
              <ladmfr:refSpf>9904P01 2019P2210</ladmfr:refSpf>
              <ladmfr:refAdmi>ADM-2019-41</ladmfr:refAdmi>
              <ladmfr:refAdmi>ADM-2019-42</ladmfr:refAdmi>
              <ladmfr:signature>
                <ladmfr:FR_Signature gml:id="signature-1">
                  <gml:name>Signature of the notary</gml:name>
                  <ladmfr:date>2019-06-03T11:15:00</ladmfr:date>
                </ladmfr:FR_Signature>
              </ladmfr:signature>
            </ladmfr:FR_Acte>
          </ladmfr:source>
          <ladmfr:type>ownership</ladmfr:type>
        </ladmfr:FR_Droit>
      </ladmfr:rrr>
      <ladmfr:rrr>
        <ladmfr:FR_Servitude gml:id="easement-passage">
          <gml:description>On foot, along the northern wall</gml:description>
          <gml:name>Right of way to the beach</gml:name>
          <ladmfr:rID>R-2</ladmfr:rID>
          <ladmfr:share>0.5</ladmfr:share>
          <ladmfr:shareCheck>true</ladmfr:shareCheck>
          <ladmfr:timeSpec>2035-01-01T00:00:00</ladmfr:timeSpec>
          <ladmfr:rNameSpace>clairval.rights</ladmfr:rNameSpace>
          <ladmfr:party>
            <ladmfr:LA_Party gml:id="party-bakery">
              <gml:name>Bakery of the Port</gml:name>
              <ladmfr:extPID>ID-55012</ladmfr:extPID>
              <ladmfr:name>Bakery of the Port</ladmfr:name>
              <ladmfr:pID>P-1002</ladmfr:pID>
              <ladmfr:role>citizen</ladmfr:role>
              <ladmfr:role>employer</ladmfr:role>
              <ladmfr:type>non-natural person</ladmfr:type>
              <ladmfr:pNameSpace>clairval.parties</ladmfr:pNameSpace>
              <ladmfr:extPNameSpace>clairval.register</ladmfr:extPNameSpace>
              <ladmfr:rrr xlink:href="#easement-passage"/>
              <ladmfr:groupParty xlink:href="#group-owners"/>
            </ladmfr:LA_Party>
          </ladmfr:party>
          <ladmfr:baUnit xlink:href="#parcel-212"/>
          <ladmfr:source xlink:href="#deed-2019"/>
          <ladmfr:partyRequired>false</ladmfr:partyRequired>
          <ladmfr:type>right of way</ladmfr:type>
        </ladmfr:FR_Servitude>
      </ladmfr:rrr>
      <ladmfr:rrr>
        <ladmfr:FR_Charge gml:id="charge-wall">
          <gml:name>Upkeep of the garden wall</gml:name>
          <ladmfr:rID>R-3</ladmfr:rID>
          <ladmfr:share>0.25</ladmfr:share>
          <ladmfr:shareCheck>true</ladmfr:shareCheck>
          <ladmfr:timeSpec>2029-06-03T00:00:00</ladmfr:timeSpec>
          <ladmfr:rNameSpace>clairval.rights</ladmfr:rNameSpace>
          <ladmfr:party xlink:href="#party-lucie"/>
          <ladmfr:baUnit xlink:href="#parcel-212"/>
          <ladmfr:source>
            <ladmfr:LA_AdministrativeSource gml:id="ruling-2020">
              <gml:name>Ruling of 2020</gml:name>
              <ladmfr:acceptance>2020-01-14T10:00:00</ladmfr:acceptance>
              <ladmfr:availabilityStatus>copy</ladmfr:availabilityStatus>
              <ladmfr:extArchiveID>ARCH-88-2</ladmfr:extArchiveID>
              <ladmfr:lifeSpanStamp>2020-01-16T00:00:00</ladmfr:lifeSpanStamp>
              <ladmfr:maintype>plan</ladmfr:maintype>
              <ladmfr:quality>readable</ladmfr:quality>
              <ladmfr:quality>checked</ladmfr:quality>
              <ladmfr:recordation>2020-01-20T08:20:00</ladmfr:recordation>
              <ladmfr:sID>S-2</ladmfr:sID>
              <ladmfr:sNameSpace>clairval.sources</ladmfr:sNameSpace>
              <ladmfr:source>Archive of the notary</ladmfr:source>
              <ladmfr:source>Archive of the town hall</ladmfr:source>
              <ladmfr:submission>2020-01-10T17:40:00</ladmfr:submission>
              <ladmfr:text>Passage is granted on foot</ladmfr:text>
              <ladmfr:type>ruling</ladmfr:type>
            </ladmfr:LA_AdministrativeSource>
          </ladmfr:source>
          <ladmfr:type>upkeep of the wall</ladmfr:type>
        </ladmfr:FR_Charge>
      </ladmfr:rrr>
      <ladmfr:spatialUnit>
        <ladmfr:LA_SpatialUnit gml:id="unit-212">
          <gml:description>Surface of the parcel between quay and lane</gml:description>
          <gml:name>Land of the parcel AB 212</gml:name>
          <gml:name codeSpace="urn:clairval:register">PC-UNIT-212</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <core:terminationDate>2095-12-31</core:terminationDate>
          <core:externalReference>
            <core:informationSystem>https://register.example/clairval</core:informationSystem>
            <core:externalObject><core:uri>urn:clairval:object:412</core:uri></core:externalObject>
          </core:externalReference>
          <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
          <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
          <ladmfr:extAddressID>ADR-0412</ladmfr:extAddressID>
          <ladmfr:extAddressID>ADR-0413</ladmfr:extAddressID>
          <ladmfr:area uom="m2">640</ladmfr:area>
          <ladmfr:area uom="m2">635.5</ladmfr:area>
          <ladmfr:dimension>2D</ladmfr:dimension>
          <ladmfr:label>AB 212</ladmfr:label>
          <ladmfr:referencePoint>1204.0 880.5</ladmfr:referencePoint>
          <ladmfr:suID>SU-212</ladmfr:suID>
          <ladmfr:surfaceRelation>on surface</ladmfr:surfaceRelation>
          <ladmfr:volume uom="m3">2150</ladmfr:volume>
          <ladmfr:volume uom="m3">2100</ladmfr:volume>
          <ladmfr:suNameSpace>clairval.units</ladmfr:suNameSpace>
          <ladmfr:pID>RP-212</ladmfr:pID>
          <ladmfr:pNameSpace>clairval.points</ladmfr:pNameSpace>
          <ladmfr:pointType>boundary</ladmfr:pointType>
          <ladmfr:geometry>
            <gml:Polygon>
              <gml:exterior>
                <gml:LinearRing>
                  <gml:posList>1216.5 904 2.4 1248.5 904 2.4 1248.5 924 2.4 1216.5 924 2.4 1216.5 904 2.4</gml:posList>
                </gml:LinearRing>
              </gml:exterior>
            </gml:Polygon>
          </ladmfr:geometry>
          <ladmfr:level>
            <ladmfr:LA_Level gml:id="level-parcels">
              <gml:name>Level of the parcels</gml:name>
              <ladmfr:lID>L-1</ladmfr:lID>
              <ladmfr:name>Parcels</ladmfr:name>
              <ladmfr:registerType>mixed</ladmfr:registerType>
              <ladmfr:structure>topological</ladmfr:structure>
              <ladmfr:type>primary right</ladmfr:type>
              <ladmfr:spatialUnit xlink:href="#unit-212"/>
            </ladmfr:LA_Level>
          </ladmfr:level>
          <ladmfr:spatialUnitGroup>
            <ladmfr:LA_SpatialUnitGroup gml:id="section-ab">
              <gml:name>Section AB</gml:name>
              <ladmfr:hierarchyLevel>2</ladmfr:hierarchyLevel>
              <ladmfr:label>AB</ladmfr:label>
              <ladmfr:name>Section AB</ladmfr:name>
              <ladmfr:sugID>SUG-1</ladmfr:sugID>
              <ladmfr:sugNameSpace>clairval.groups</ladmfr:sugNameSpace>
              <ladmfr:spatialUnit xlink:href="#unit-212"/>
              <ladmfr:subGroup>
                <ladmfr:LA_SpatialUnitGroup gml:id="sheet-ab-01">
                  <gml:name>Sheet AB 01</gml:name>
                  <ladmfr:hierarchyLevel>1</ladmfr:hierarchyLevel>
                  <ladmfr:label>AB 01</ladmfr:label>
                  <ladmfr:name>Sheet AB 01</ladmfr:name>
                  <ladmfr:sugID>SUG-2</ladmfr:sugID>
                  <ladmfr:sugNameSpace>clairval.groups</ladmfr:sugNameSpace>
                  <ladmfr:spatialUnit xlink:href="#unit-212"/>
                  <ladmfr:subGroup xlink:href="#section-ab"/>
                </ladmfr:LA_SpatialUnitGroup>
              </ladmfr:subGroup>
            </ladmfr:LA_SpatialUnitGroup>
          </ladmfr:spatialUnitGroup>
          <ladmfr:baUnit xlink:href="#parcel-212"/>
          <ladmfr:boundaryFaceString>
            <ladmfr:LA_BoundaryFaceString gml:id="face-string-quay">
              <gml:name>Boundary along the quay</gml:name>
              <ladmfr:bfsID>BFS-7</ladmfr:bfsID>
              <ladmfr:locationByText>Along the wall of the quay</ladmfr:locationByText>
              <ladmfr:bfsNameSpace>clairval.boundaries</ladmfr:bfsNameSpace>
              <ladmfr:geometry>
                <gml:MultiCurve>
                  <gml:curveMember>
                    <gml:LineString><gml:posList>1290 861.75 1.8 1298.5 864.75 1.8</gml:posList></gml:LineString>
                  </gml:curveMember>
                </gml:MultiCurve>
              </ladmfr:geometry>
            </ladmfr:LA_BoundaryFaceString>
          </ladmfr:boundaryFaceString>
          <ladmfr:boundaryFace>
            <ladmfr:LA_BoundaryFace gml:id="face-north">
              <gml:name>Vertical boundary to the north</gml:name>
              <ladmfr:bfID>BF-31</ladmfr:bfID>
              <ladmfr:bfNameSpace>clairval.faces</ladmfr:bfNameSpace>
              <ladmfr:locationByText>From the mooring post to the lane</ladmfr:locationByText>
              <ladmfr:geometry>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1257 893.75 1.8 1263 893.75 1.8 1263 893.75 4.6 1257 893.75 4.6 1257 893.75 1.8</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </ladmfr:geometry>
            </ladmfr:LA_BoundaryFace>
          </ladmfr:boundaryFace>
          <ladmfr:spatialSource>
            <ladmfr:LA_SpatialSource gml:id="survey-2018">
              <gml:name>Survey of 2018</gml:name>
              <ladmfr:acceptance>2018-11-20T15:45:00</ladmfr:acceptance>
              <ladmfr:availabilityStatus>certified copy</ladmfr:availabilityStatus>
              <ladmfr:extArchiveID>ARCH-90-5</ladmfr:extArchiveID>
              <ladmfr:lifeSpanStamp>2019-06-05T00:00:00</ladmfr:lifeSpanStamp>
              <ladmfr:maintype>minutes</ladmfr:maintype>
              <ladmfr:quality>complete</ladmfr:quality>
              <ladmfr:quality>readable</ladmfr:quality>
              <ladmfr:recordation>2019-06-12T14:00:00</ladmfr:recordation>
              <ladmfr:sID>S-3</ladmfr:sID>
              <ladmfr:sNameSpace>clairval.sources</ladmfr:sNameSpace>
              <ladmfr:source>Archive of the notary</ladmfr:source>
              <ladmfr:source>Archive of the town hall</ladmfr:source>
              <ladmfr:submission>2019-05-28T16:05:00</ladmfr:submission>
              <ladmfr:measurements>12.42 m</ladmfr:measurements>
              <ladmfr:measurements>50.30 m</ladmfr:measurements>
              <ladmfr:procedure>total station</ladmfr:procedure>
              <ladmfr:type>field sketch</ladmfr:type>
              <ladmfr:point xlink:href="#point-1"/>
              <ladmfr:point xlink:href="#point-2"/>
            </ladmfr:LA_SpatialSource>
          </ladmfr:spatialSource>
        </ladmfr:LA_SpatialUnit>
      </ladmfr:spatialUnit>
      <ladmfr:source>
        <ladmfr:LA_Source gml:id="minutes-1">
          <gml:name>Minutes of the survey</gml:name>
          <ladmfr:acceptance>2019-06-03T09:30:00</ladmfr:acceptance>
          <ladmfr:availabilityStatus>original</ladmfr:availabilityStatus>
          <ladmfr:extArchiveID>ARCH-88-1</ladmfr:extArchiveID>
          <ladmfr:lifeSpanStamp>2020-01-16T00:00:00</ladmfr:lifeSpanStamp>
          <ladmfr:maintype>deed</ladmfr:maintype>
          <ladmfr:quality>checked</ladmfr:quality>
          <ladmfr:quality>complete</ladmfr:quality>
          <ladmfr:recordation>2020-01-20T08:20:00</ladmfr:recordation>
          <ladmfr:sID>S-4</ladmfr:sID>
          <ladmfr:sNameSpace>clairval.sources</ladmfr:sNameSpace>
          <ladmfr:source>Archive of the notary</ladmfr:source>
          <ladmfr:source>Archive of the town hall</ladmfr:source>
          <ladmfr:submission>2020-01-10T17:40:00</ladmfr:submission>
        </ladmfr:LA_Source>
      </ladmfr:source>
      <ladmfr:relatedBAUnit xlink:href="#cadastre-213"/>
      <ladmfr:departement>99</ladmfr:departement>
      <ladmfr:codeDirection>0</ladmfr:codeDirection>
      <ladmfr:codeCommuneINSEE>99120</ladmfr:codeCommuneINSEE>
      <ladmfr:prefixeSection>000</ladmfr:prefixeSection>
      <ladmfr:section>AB</ladmfr:section>
      <ladmfr:numero>212</ladmfr:numero>
      <ladmfr:requiredRelationshipBAUnit>borders AB 213</ladmfr:requiredRelationshipBAUnit>
      <ladmfr:contenance>640</ladmfr:contenance>
      <ladmfr:compteCommunal>1187</ladmfr:compteCommunal>
      <ladmfr:referenceLivreFoncier>LF-212</ladmfr:referenceLivreFoncier>
      <ladmfr:boundary>
        <ladmfr:FR_Boundary gml:id="boundary-quay">
          <gml:name>Boundary with the quay</gml:name>
          <ladmfr:bfsID>BFS-8</ladmfr:bfsID>
          <ladmfr:locationByText>Along the wall of the quay</ladmfr:locationByText>
          <ladmfr:bfsNameSpace>clairval.boundaries</ladmfr:bfsNameSpace>
          <ladmfr:geometry>
            <gml:MultiCurve>
              <gml:curveMember>
                <gml:LineString><gml:posList>1260 890.5 4.5 1268.5 893.5 4.5</gml:posList></gml:LineString>
              </gml:curveMember>
            </gml:MultiCurve>
          </ladmfr:geometry>
          <ladmfr:point>
            <ladmfr:LA_Point gml:id="point-1">
              <gml:name>Boundary point B-1</gml:name>
              <ladmfr:interpolationRole>end</ladmfr:interpolationRole>
              <ladmfr:monumentation>boundary stone</ladmfr:monumentation>
              <ladmfr:pID>B-1</ladmfr:pID>
              <ladmfr:pointType>reference</ladmfr:pointType>
              <ladmfr:productionMethod>survey on site</ladmfr:productionMethod>
              <ladmfr:transAndResultFormula>x' = x + 2.5; y' = y - 1.1</ladmfr:transAndResultFormula>
              <ladmfr:pNameSpace>clairval.points</ladmfr:pNameSpace>
              <ladmfr:estimatedAccuracy>urn:clairval:accuracy:3cm</ladmfr:estimatedAccuracy>
              <ladmfr:transformedGeometry>1206.5 879.4</ladmfr:transformedGeometry>
              <ladmfr:transformationName>local grid to national grid</ladmfr:transformationName>
              <ladmfr:sourceDimensions>2</ladmfr:sourceDimensions>
              <ladmfr:targetDimensions>3</ladmfr:targetDimensions>
              <ladmfr:formulaCitation>Guide of the surveyors of Clairval, chapter 4</ladmfr:formulaCitation>
              <ladmfr:originalLocation><gml:Point><gml:pos>1239 912 2.4</gml:pos></gml:Point></ladmfr:originalLocation>
            </ladmfr:LA_Point>
          </ladmfr:point>
          <ladmfr:point>
            <ladmfr:LA_Point gml:id="point-2">
              <gml:name>Boundary point B-2</gml:name>
              <ladmfr:interpolationRole>mid</ladmfr:interpolationRole>
              <ladmfr:monumentation>nail</ladmfr:monumentation>
              <ladmfr:pID>B-2</ladmfr:pID>
              <ladmfr:pointType>boundary</ladmfr:pointType>
              <ladmfr:productionMethod>digitised plan</ladmfr:productionMethod>
              <ladmfr:transAndResultFormula>x' = x + 2.5; y' = y - 1.1</ladmfr:transAndResultFormula>
              <ladmfr:pNameSpace>clairval.points</ladmfr:pNameSpace>
              <ladmfr:estimatedAccuracy>urn:clairval:accuracy:5cm</ladmfr:estimatedAccuracy>
              <ladmfr:transformedGeometry>1206.5 879.4</ladmfr:transformedGeometry>
              <ladmfr:transformationName>local grid to national grid</ladmfr:transformationName>
              <ladmfr:sourceDimensions>2</ladmfr:sourceDimensions>
              <ladmfr:targetDimensions>3</ladmfr:targetDimensions>
              <ladmfr:formulaCitation>Guide of the surveyors of Clairval, chapter 4</ladmfr:formulaCitation>
              <ladmfr:originalLocation><gml:Point><gml:pos>1216.5 874.5 4.5</gml:pos></gml:Point></ladmfr:originalLocation>
            </ladmfr:LA_Point>
          </ladmfr:point>
          <ladmfr:point>
            <ladmfr:LA_Point gml:id="point-3">
              <gml:name>Boundary point B-3</gml:name>
              <ladmfr:interpolationRole>end</ladmfr:interpolationRole>
              <ladmfr:monumentation>boundary stone</ladmfr:monumentation>
              <ladmfr:pID>B-3</ladmfr:pID>
              <ladmfr:pointType>reference</ladmfr:pointType>
              <ladmfr:productionMethod>survey on site</ladmfr:productionMethod>
              <ladmfr:transAndResultFormula>x' = x + 2.5; y' = y - 1.1</ladmfr:transAndResultFormula>
              <ladmfr:pNameSpace>clairval.points</ladmfr:pNameSpace>
              <ladmfr:estimatedAccuracy>urn:clairval:accuracy:3cm</ladmfr:estimatedAccuracy>
              <ladmfr:transformedGeometry>1206.5 879.4</ladmfr:transformedGeometry>
              <ladmfr:transformationName>local grid to national grid</ladmfr:transformationName>
              <ladmfr:sourceDimensions>2</ladmfr:sourceDimensions>
              <ladmfr:targetDimensions>3</ladmfr:targetDimensions>
              <ladmfr:formulaCitation>Guide of the surveyors of Clairval, chapter 4</ladmfr:formulaCitation>
              <ladmfr:originalLocation><gml:Point><gml:pos>1284 896 2.4</gml:pos></gml:Point></ladmfr:originalLocation>
            </ladmfr:LA_Point>
          </ladmfr:point>
        </ladmfr:FR_Boundary>
      </ladmfr:boundary>
      <ladmfr:pdl>
        <ladmfr:FR_Pdl gml:id="pdl-1">
          <gml:name>Division in lots of the Maison du Port</gml:name>
          <ladmfr:name>Quai des Voiliers</ladmfr:name>
          <ladmfr:type>right of use unit</ladmfr:type>
          <ladmfr:uID>BA-2</ladmfr:uID>
          <ladmfr:uNameSpace>clairval.baunits</ladmfr:uNameSpace>
          <ladmfr:rrr xlink:href="#right-ownership"/>
          <ladmfr:spatialUnit xlink:href="#unit-212"/>
          <ladmfr:source xlink:href="#deed-2019"/>
          <ladmfr:relatedBAUnit xlink:href="#parcel-212"/>
          <ladmfr:departement>99</ladmfr:departement>
          <ladmfr:codeDirection>0</ladmfr:codeDirection>
          <ladmfr:codeCommuneINSEE>99120</ladmfr:codeCommuneINSEE>
          <ladmfr:prefixeSection>000</ladmfr:prefixeSection>
          <ladmfr:section>AB</ladmfr:section>
          <ladmfr:numero>213</ladmfr:numero>
          <ladmfr:requiredRelationshipBAUnit>borders AB 213</ladmfr:requiredRelationshipBAUnit>
          <ladmfr:typeBien>co-ownership</ladmfr:typeBien>
          <ladmfr:compteCommunal>+01187</ladmfr:compteCommunal>
          <ladmfr:numeroEDD>1</ladmfr:numeroEDD>
          <ladmfr:nomEDD>EDD Maison du Port</ladmfr:nomEDD>
          <ladmfr:lot>
            <ladmfr:FR_PdlLot gml:id="lot-14">
              <gml:name>Lot 14</gml:name>
              <ladmfr:name>Jardin Lebrun</ladmfr:name>
              <ladmfr:type>basic property unit</ladmfr:type>
              <ladmfr:uID>BA-3</ladmfr:uID>
              <ladmfr:uNameSpace>clairval.baunits</ladmfr:uNameSpace>
              <ladmfr:rrr xlink:href="#right-ownership"/>
              <ladmfr:spatialUnit xlink:href="#division-14"/>
              <ladmfr:source xlink:href="#deed-2019"/>
              <ladmfr:relatedBAUnit xlink:href="#parcel-212"/>
              <ladmfr:departement>99</ladmfr:departement>
              <ladmfr:codeDirection>0</ladmfr:codeDirection>
              <ladmfr:codeCommuneINSEE>99120</ladmfr:codeCommuneINSEE>
              <ladmfr:prefixeSection>000</ladmfr:prefixeSection>
              <ladmfr:section>AB</ladmfr:section>
              <ladmfr:numero>214</ladmfr:numero>
              <ladmfr:requiredRelationshipBAUnit>borders AB 213</ladmfr:requiredRelationshipBAUnit>
              <ladmfr:natureLot>dwelling</ladmfr:natureLot>
              <ladmfr:referenceLivreFoncier>LF-212</ladmfr:referenceLivreFoncier>
              <ladmfr:compteCommunalLot>+01188</ladmfr:compteCommunalLot>
              <ladmfr:superficie>68</ladmfr:superficie>
              <ladmfr:dqlNumerator>145</ladmfr:dqlNumerator>
              <ladmfr:dqlDenominator>1000</ladmfr:dqlDenominator>
              <ladmfr:numeroLot>14</ladmfr:numeroLot>
              <ladmfr:division>
                <ladmfr:FR_Division gml:id="division-14">
                  <gml:name>Apartment of the lot 14</gml:name>
                  <core:creationDate>2020-06-01</core:creationDate>
                  <ladmfr:extAddressID>ADR-0412</ladmfr:extAddressID>
                  <ladmfr:extAddressID>ADR-0413</ladmfr:extAddressID>
                  <ladmfr:area uom="m2">640</ladmfr:area>
                  <ladmfr:area uom="m2">635.5</ladmfr:area>
                  <ladmfr:dimension>3D</ladmfr:dimension>
                  <ladmfr:label>Lot 14</ladmfr:label>
                  <ladmfr:referencePoint>1210.2 884.0</ladmfr:referencePoint>
                  <ladmfr:suID>SU-14</ladmfr:suID>
                  <ladmfr:surfaceRelation>above surface</ladmfr:surfaceRelation>
                  <ladmfr:volume uom="m3">2150</ladmfr:volume>
                  <ladmfr:volume uom="m3">2100</ladmfr:volume>
                  <ladmfr:suNameSpace>clairval.units</ladmfr:suNameSpace>
                  <ladmfr:pID>RP-14</ladmfr:pID>
                  <ladmfr:pNameSpace>clairval.points</ladmfr:pNameSpace>
                  <ladmfr:pointType>boundary</ladmfr:pointType>
                  <ladmfr:geometry>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1276.5 874.5 4.5 1308.5 874.5 4.5 1308.5 894.5 4.5 1276.5 894.5 4.5 1276.5 874.5 4.5</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </ladmfr:geometry>
                  <ladmfr:level xlink:href="#level-parcels"/>
                  <ladmfr:spatialUnitGroup xlink:href="#section-ab"/>
                  <ladmfr:baUnit xlink:href="#lot-14"/>
                  <ladmfr:boundaryFaceString xlink:href="#face-string-quay"/>
                  <ladmfr:boundaryFace xlink:href="#face-north"/>
                  <ladmfr:spatialSource xlink:href="#survey-2018"/>
                  <ladmfr:type>private part</ladmfr:type>
                  <ladmfr:numero>3</ladmfr:numero>
                  <ladmfr:quotePart>145/1000</ladmfr:quotePart>
                  <ladmfr:nature>apartment</ladmfr:nature>
                  <ladmfr:batiment>A</ladmfr:batiment>
                  <ladmfr:escalier>1</ladmfr:escalier>
                  <ladmfr:quotePartPartieCommune>145</ladmfr:quotePartPartieCommune>
                  <ladmfr:observation>With a cellar in the basement</ladmfr:observation>
                  <ladmfr:altInf>8.40 m</ladmfr:altInf>
                  <ladmfr:altSup>11.10 m</ladmfr:altSup>
                </ladmfr:FR_Division>
              </ladmfr:division>
            </ladmfr:FR_PdlLot>
          </ladmfr:lot>
        </ladmfr:FR_Pdl>
      </ladmfr:pdl>
    </ladmfr:FR_ParcelleCadastrale>
  </gml:featureMember>
  <gml:featureMember>
    <ladmfr:FR_Cadastre gml:id="cadastre-213">
      <gml:name>Parcel AB 213</gml:name>
      <ladmfr:name>Jardin Lebrun</ladmfr:name>
      <ladmfr:type>right of use unit</ladmfr:type>
      <ladmfr:uID>BA-4</ladmfr:uID>
      <ladmfr:uNameSpace>clairval.baunits</ladmfr:uNameSpace>
      <ladmfr:rrr>
        <ladmfr:LA_Right gml:id="right-garden">
          <gml:name>Use of the garden</gml:name>
          <ladmfr:rID>R-4</ladmfr:rID>
          <ladmfr:share>1</ladmfr:share>
          <ladmfr:shareCheck>false</ladmfr:shareCheck>
          <ladmfr:timeSpec>2035-01-01T00:00:00</ladmfr:timeSpec>
          <ladmfr:rNameSpace>clairval.rights</ladmfr:rNameSpace>
          <ladmfr:party>
            <ladmfr:LA_GroupParty gml:id="group-heirs">
              <gml:name>Heirs Lebrun</gml:name>
              <ladmfr:extPID>ID-55013</ladmfr:extPID>
              <ladmfr:name>Heirs Lebrun</ladmfr:name>
              <ladmfr:pID>P-1002</ladmfr:pID>
              <ladmfr:role>surveyor</ladmfr:role>
              <ladmfr:role>notary</ladmfr:role>
              <ladmfr:type>natural person</ladmfr:type>
              <ladmfr:pNameSpace>clairval.parties</ladmfr:pNameSpace>
              <ladmfr:extPNameSpace>clairval.register</ladmfr:extPNameSpace>
              <ladmfr:rrr xlink:href="#right-garden"/>
              <ladmfr:groupParty xlink:href="#group-owners"/>
              <ladmfr:groupID>GP-2</ladmfr:groupID>
              <ladmfr:groupName>Heirs Lebrun</ladmfr:groupName>
              <ladmfr:party xlink:href="#party-bakery"/>
            </ladmfr:LA_GroupParty>
          </ladmfr:party>
          <ladmfr:baUnit xlink:href="#cadastre-213"/>
          <ladmfr:source xlink:href="#deed-2019"/>
        </ladmfr:LA_Right>
      </ladmfr:rrr>
      <ladmfr:spatialUnit xlink:href="#unit-212"/>
      <ladmfr:source xlink:href="#minutes-1"/>
      <ladmfr:relatedBAUnit xlink:href="#parcel-212"/>
      <ladmfr:departement>99</ladmfr:departement>
      <ladmfr:codeDirection>0</ladmfr:codeDirection>
      <ladmfr:codeCommuneINSEE>99120</ladmfr:codeCommuneINSEE>
      <ladmfr:prefixeSection>000</ladmfr:prefixeSection>
      <ladmfr:section>AB</ladmfr:section>
      <ladmfr:numero>213</ladmfr:numero>
      <ladmfr:requiredRelationshipBAUnit>borders AB 213</ladmfr:requiredRelationshipBAUnit>
    </ladmfr:FR_Cadastre>
  </gml:featureMember>
  <gml:featureMember>
    <ladmfr:FR_UniteFonciere gml:id="land-unit-port">
      <gml:name>Land of the port</gml:name>
      <ladmfr:name>Quai des Voiliers</ladmfr:name>
      <ladmfr:type>basic property unit</ladmfr:type>
      <ladmfr:uID>BA-1</ladmfr:uID>
      <ladmfr:uNameSpace>clairval.baunits</ladmfr:uNameSpace>
      <ladmfr:rrr>
        <ladmfr:LA_Restriction gml:id="restriction-height">
          <gml:name>No building above 13 m</gml:name>
          <ladmfr:rID>R-5</ladmfr:rID>
          <ladmfr:share>0.5</ladmfr:share>
          <ladmfr:shareCheck>true</ladmfr:shareCheck>
          <ladmfr:timeSpec>2029-06-03T00:00:00</ladmfr:timeSpec>
          <ladmfr:rNameSpace>clairval.rights</ladmfr:rNameSpace>
          <ladmfr:party xlink:href="#party-lucie"/>
          <ladmfr:baUnit xlink:href="#land-unit-port"/>
          <ladmfr:source xlink:href="#ruling-2020"/>
        </ladmfr:LA_Restriction>
      </ladmfr:rrr>
      <ladmfr:spatialUnit xlink:href="#unit-212"/>
      <ladmfr:source xlink:href="#deed-2019"/>
      <ladmfr:relatedBAUnit>
        <ladmfr:FR_NonCadastre gml:id="slipway">
          <gml:name>Slipway outside the cadastre</gml:name>
          <ladmfr:name>Maison du Port</ladmfr:name>
          <ladmfr:type>right of use unit</ladmfr:type>
          <ladmfr:uID>BA-2</ladmfr:uID>
          <ladmfr:uNameSpace>clairval.baunits</ladmfr:uNameSpace>
          <ladmfr:rrr xlink:href="#rrr-mooring"/>
          <ladmfr:spatialUnit xlink:href="#legal-sewer"/>
          <ladmfr:source xlink:href="#minutes-1"/>
          <ladmfr:relatedBAUnit xlink:href="#land-unit-port"/>
        </ladmfr:FR_NonCadastre>
      </ladmfr:relatedBAUnit>
    </ladmfr:FR_UniteFonciere>
  </gml:featureMember>
  <gml:featureMember>
    <ladmfr:FR_Volume gml:id="volume-arcade">
      <gml:name>Volume of the arcade</gml:name>
      <ladmfr:name>Arcade</ladmfr:name>
      <ladmfr:type>basic property unit</ladmfr:type>
      <ladmfr:uID>BA-3</ladmfr:uID>
      <ladmfr:uNameSpace>clairval.baunits</ladmfr:uNameSpace>
      <ladmfr:rrr>
        <ladmfr:LA_Responsability gml:id="duty-lighting">
          <gml:name>Lighting of the arcade</gml:name>
          <ladmfr:rID>R-1</ladmfr:rID>
          <ladmfr:share>0.25</ladmfr:share>
          <ladmfr:shareCheck>true</ladmfr:shareCheck>
          <ladmfr:timeSpec>2035-01-01T00:00:00</ladmfr:timeSpec>
          <ladmfr:rNameSpace>clairval.rights</ladmfr:rNameSpace>
          <ladmfr:party xlink:href="#party-bakery"/>
          <ladmfr:baUnit xlink:href="#volume-arcade"/>
          <ladmfr:source xlink:href="#ruling-2020"/>
        </ladmfr:LA_Responsability>
      </ladmfr:rrr>
      <ladmfr:spatialUnit>
        <ladmfr:LA_LegalSpaceBuildingUnit gml:id="legal-arcade">
          <gml:name>Space of the arcade</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <ladmfr:extAddressID>ADR-0412</ladmfr:extAddressID>
          <ladmfr:extAddressID>ADR-0413</ladmfr:extAddressID>
          <ladmfr:area uom="m2">640</ladmfr:area>
          <ladmfr:area uom="m2">635.5</ladmfr:area>
          <ladmfr:dimension>3D</ladmfr:dimension>
          <ladmfr:label>Arcade</ladmfr:label>
          <ladmfr:referencePoint>1204.0 880.5</ladmfr:referencePoint>
          <ladmfr:suID>SU-301</ladmfr:suID>
          <ladmfr:surfaceRelation>below surface</ladmfr:surfaceRelation>
          <ladmfr:volume uom="m3">2150</ladmfr:volume>
          <ladmfr:volume uom="m3">2100</ladmfr:volume>
          <ladmfr:suNameSpace>clairval.units</ladmfr:suNameSpace>
          <ladmfr:pID>RP-77</ladmfr:pID>
          <ladmfr:pNameSpace>clairval.points</ladmfr:pNameSpace>
          <ladmfr:pointType>reference</ladmfr:pointType>
          <ladmfr:geometry>
            <gml:Polygon>
              <gml:exterior>
                <gml:LinearRing>
                  <gml:posList>1257 864 2.4 1289 864 2.4 1289 884 2.4 1257 884 2.4 1257 864 2.4</gml:posList>
                </gml:LinearRing>
              </gml:exterior>
            </gml:Polygon>
          </ladmfr:geometry>
          <ladmfr:level xlink:href="#level-parcels"/>
          <ladmfr:spatialUnitGroup xlink:href="#section-ab"/>
          <ladmfr:baUnit xlink:href="#volume-arcade"/>
          <ladmfr:boundaryFaceString xlink:href="#face-string-quay"/>
          <ladmfr:boundaryFace xlink:href="#face-north"/>
          <ladmfr:spatialSource xlink:href="#survey-2018"/>
          <ladmfr:extPhysicalBuildingUnitID>BU-14</ladmfr:extPhysicalBuildingUnitID>
          <ladmfr:extPhysicalBuildingNameSpace>clairval.buildings</ladmfr:extPhysicalBuildingNameSpace>
          <ladmfr:type>individual</ladmfr:type>
        </ladmfr:LA_LegalSpaceBuildingUnit>
      </ladmfr:spatialUnit>
      <ladmfr:source xlink:href="#deed-2019"/>
      <ladmfr:relatedBAUnit xlink:href="#parcel-212"/>
      <ladmfr:vID>V-1</ladmfr:vID>
      <ladmfr:vNameSpace>clairval.volumes</ladmfr:vNameSpace>
    </ladmfr:FR_Volume>
  </gml:featureMember>
  <gml:featureMember>
    <ladmfr:LA_BAUnit gml:id="ba-unit-mooring">
      <gml:name>Mooring of the ferry</gml:name>
      <ladmfr:name>Mooring</ladmfr:name>
      <ladmfr:type>right of use unit</ladmfr:type>
      <ladmfr:uID>BA-4</ladmfr:uID>
      <ladmfr:uNameSpace>clairval.baunits</ladmfr:uNameSpace>
      <ladmfr:rrr>
        <ladmfr:LA_RRR gml:id="rrr-mooring">
          <gml:description>From April to October</gml:description>
          <gml:name>Mooring during the season</gml:name>
          <ladmfr:rID>R-2</ladmfr:rID>
          <ladmfr:share>1</ladmfr:share>
          <ladmfr:shareCheck>false</ladmfr:shareCheck>
          <ladmfr:timeSpec>2029-06-03T00:00:00</ladmfr:timeSpec>
          <ladmfr:rNameSpace>clairval.rights</ladmfr:rNameSpace>
          <ladmfr:party xlink:href="#party-bakery"/>
          <ladmfr:baUnit xlink:href="#ba-unit-mooring"/>
          <ladmfr:source xlink:href="#deed-2019"/>
        </ladmfr:LA_RRR>
      </ladmfr:rrr>
      <ladmfr:spatialUnit>
        <ladmfr:LA_LegalSpaceUtilityNetwork gml:id="legal-sewer">
          <gml:name>Sewer under the quay</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <ladmfr:extAddressID>ADR-0412</ladmfr:extAddressID>
          <ladmfr:extAddressID>ADR-0413</ladmfr:extAddressID>
          <ladmfr:area uom="m2">640</ladmfr:area>
          <ladmfr:area uom="m2">635.5</ladmfr:area>
          <ladmfr:dimension>3D</ladmfr:dimension>
          <ladmfr:label>Sewer of the quay</ladmfr:label>
          <ladmfr:referencePoint>1210.2 884.0</ladmfr:referencePoint>
          <ladmfr:suID>SU-77</ladmfr:suID>
          <ladmfr:surfaceRelation>below surface</ladmfr:surfaceRelation>
          <ladmfr:volume uom="m3">2150</ladmfr:volume>
          <ladmfr:volume uom="m3">2100</ladmfr:volume>
          <ladmfr:suNameSpace>clairval.units</ladmfr:suNameSpace>
          <ladmfr:pID>RP-212</ladmfr:pID>
          <ladmfr:pNameSpace>clairval.points</ladmfr:pNameSpace>
          <ladmfr:pointType>boundary</ladmfr:pointType>
          <ladmfr:geometry>
            <gml:Polygon>
              <gml:exterior>
                <gml:LinearRing>
                  <gml:posList>1266 885.75 1.8 1298 885.75 1.8 1298 905.75 1.8 1266 905.75 1.8 1266 885.75 1.8</gml:posList>
                </gml:LinearRing>
              </gml:exterior>
            </gml:Polygon>
          </ladmfr:geometry>
          <ladmfr:level xlink:href="#level-parcels"/>
          <ladmfr:spatialUnitGroup xlink:href="#section-ab"/>
          <ladmfr:baUnit xlink:href="#ba-unit-mooring"/>
          <ladmfr:boundaryFaceString xlink:href="#face-string-quay"/>
          <ladmfr:boundaryFace xlink:href="#face-north"/>
          <ladmfr:spatialSource xlink:href="#survey-2018"/>
          <ladmfr:extPhysicalUtilityNetworkID>UN-water-2</ladmfr:extPhysicalUtilityNetworkID>
          <ladmfr:extPhysicalUtilityNetworkNameSpace>clairval.networks</ladmfr:extPhysicalUtilityNetworkNameSpace>
          <ladmfr:status>in use</ladmfr:status>
          <ladmfr:type>water</ladmfr:type>
        </ladmfr:LA_LegalSpaceUtilityNetwork>
      </ladmfr:spatialUnit>
      <ladmfr:source xlink:href="#minutes-1"/>
      <ladmfr:relatedBAUnit xlink:href="#land-unit-port"/>
    </ladmfr:LA_BAUnit>
  </gml:featureMember>
</core:CityModel>
