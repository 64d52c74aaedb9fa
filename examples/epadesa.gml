<?xml version="1.0" encoding="UTF-8"?>
<!-- The urban furniture extension: a street and what stands in it, every kind of object once. -->
<core:CityModel gml:id="marrowby-epadesa"
    xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:bldg="http://www.opengis.net/citygml/building/2.0"
    xmlns:frn="http://www.opengis.net/citygml/cityfurniture/2.0"
    xmlns:tran="http://www.opengis.net/citygml/transportation/2.0"
    xmlns:epadesa="urn:tolvik:citygml:epadesa:1.0"
    xmlns:gml="http://www.opengis.net/gml">
  <gml:name>Furniture of Lantern Row</gml:name>
  <core:cityObjectMember>
    <bldg:Building gml:id="building">
      <gml:name>Lantern House</gml:name>
      <bldg:function>1000</bldg:function>
      <bldg:measuredHeight uom="m">9</bldg:measuredHeight>
      <bldg:lod1Solid>
        <gml:Solid>
          <gml:exterior>
            <gml:CompositeSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 18 0 22 18 0 22 10 0 10 10 0 10 18 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 9 22 10 9 22 18 9 10 18 9 10 10 9</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 22 10 0 22 10 9 10 10 9 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>22 18 0 10 18 0 10 18 9 22 18 9 22 18 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>22 10 0 22 18 0 22 18 9 22 10 9 22 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 18 0 10 10 0 10 10 9 10 18 9 10 18 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:CompositeSurface>
          </gml:exterior>
        </gml:Solid>
      </bldg:lod1Solid>
      <epadesa:buildingInformation>
        <epadesa:BuildingInformation gml:id="building-information">
          <gml:name>Building information</gml:name>
          <epadesa:type>type A</epadesa:type>
          <epadesa:status>in service</epadesa:status>
          <epadesa:altimetryOfTheHighestPoint uom="m">1.2</epadesa:altimetryOfTheHighestPoint>
          <epadesa:buildingInProject>true</epadesa:buildingInProject>
          <epadesa:buildingWrecked>false</epadesa:buildingWrecked>
          <epadesa:description>As found at the survey in spring</epadesa:description>
          <epadesa:shon uom="m2">96</epadesa:shon>
          <epadesa:detail>Repainted last year</epadesa:detail>
          <epadesa:shob uom="m2">24</epadesa:shob>
          <epadesa:wallArea uom="m2">41.5</epadesa:wallArea>
          <epadesa:roofArea uom="m2">96</epadesa:roofArea>
          <epadesa:housingUnits>2</epadesa:housingUnits>
          <epadesa:yearOfRefurbishment>1904</epadesa:yearOfRefurbishment>
          <epadesa:floorArea uom="m2">24</epadesa:floorArea>
          <epadesa:mainMaterial>brick</epadesa:mainMaterial>
          <epadesa:mainConstructionSystem>load-bearing masonry</epadesa:mainConstructionSystem>
          <epadesa:facadeMainFillingMaterial>brick</epadesa:facadeMainFillingMaterial>
          <epadesa:foundationConstructiveSystem>strip foundation</epadesa:foundationConstructiveSystem>
          <epadesa:buildingUnit>
            <epadesa:BuildingUnit gml:id="building-unit">
              <gml:name>Building unit</gml:name>
              <epadesa:occupant>14</epadesa:occupant>
              <epadesa:numberOfCompanies>4</epadesa:numberOfCompanies>
              <epadesa:buildingPartOwner>true</epadesa:buildingPartOwner>
              <epadesa:buildingPartResident>false</epadesa:buildingPartResident>
              <epadesa:buildingPartManager>true</epadesa:buildingPartManager>
            </epadesa:BuildingUnit>
          </epadesa:buildingUnit>
        </epadesa:BuildingInformation>
      </epadesa:buildingInformation>
    </bldg:Building>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="city-furniture">
      <gml:name>City furniture</gml:name>
      <epadesa:bench>
        <epadesa:Bench gml:id="bench">
          <gml:name>Bench</gml:name>
          <epadesa:orientation>south-west</epadesa:orientation>
          <epadesa:length uom="m">0.24</epadesa:length>
          <epadesa:depth uom="m">3</epadesa:depth>
          <epadesa:heightOfSeat uom="m">0.9</epadesa:heightOfSeat>
          <epadesa:heightOfSupport uom="m">2.4</epadesa:heightOfSupport>
          <epadesa:seatInclination uom="deg">35</epadesa:seatInclination>
          <epadesa:backrestInclination uom="deg">180</epadesa:backrestInclination>
          <epadesa:seatMaterial>larch</epadesa:seatMaterial>
          <epadesa:structureMaterial>cast iron</epadesa:structureMaterial>
          <epadesa:cleanliness>false</epadesa:cleanliness>
          <epadesa:damaged>true</epadesa:damaged>
          <epadesa:dateOfRepair>2019-05-01</epadesa:dateOfRepair>
          <epadesa:seatColour>light grey</epadesa:seatColour>
        </epadesa:Bench>
      </epadesa:bench>
      <epadesa:bollard>
        <epadesa:Bollard gml:id="bollard">
          <gml:name>Bollard</gml:name>
          <epadesa:material>oak</epadesa:material>
          <epadesa:dateOfInstallation>2020-11-17</epadesa:dateOfInstallation>
          <epadesa:diameterOfTheBase uom="m">3</epadesa:diameterOfTheBase>
          <epadesa:diameterOfTheTop uom="m">0.9</epadesa:diameterOfTheTop>
          <epadesa:height uom="m">2.4</epadesa:height>
          <epadesa:colour>dark green</epadesa:colour>
        </epadesa:Bollard>
      </epadesa:bollard>
      <epadesa:cityFurnitureType>City furniture type</epadesa:cityFurnitureType>
      <epadesa:cityLight>
        <epadesa:CityLight gml:id="city-light">
          <gml:name>City light</gml:name>
          <epadesa:cityLightType>street light</epadesa:cityLightType>
          <epadesa:pole>
            <epadesa:Pole gml:id="pole">
              <gml:name>Pole</gml:name>
              <epadesa:position>roadside</epadesa:position>
              <epadesa:orientation>south-west</epadesa:orientation>
              <epadesa:mainMaterial>brick</epadesa:mainMaterial>
              <epadesa:measuredHeight uom="m">2.4</epadesa:measuredHeight>
              <epadesa:installationDate>2019-05-01</epadesa:installationDate>
            </epadesa:Pole>
          </epadesa:pole>
          <epadesa:lamp>
            <epadesa:Lamp gml:id="lamp">
              <gml:name>Lamp</gml:name>
              <epadesa:brand>Ember and Sons</epadesa:brand>
              <epadesa:lightingClass>M4</epadesa:lightingClass>
              <epadesa:lightingQualification>good</epadesa:lightingQualification>
              <epadesa:qualificationUniformityOfLighting>even</epadesa:qualificationUniformityOfLighting>
              <epadesa:power uom="kW">4.5</epadesa:power>
              <epadesa:averageOfLuminousFlux uom="lm">3200</epadesa:averageOfLuminousFlux>
              <epadesa:averageOfLuminousFluxRequired uom="lm">3200</epadesa:averageOfLuminousFluxRequired>
              <epadesa:uniformityOfLightingRequired>0.8</epadesa:uniformityOfLightingRequired>
              <epadesa:uniformityOfLighting>3.6</epadesa:uniformityOfLighting>
              <epadesa:lastRelampingDate>2020-11-17</epadesa:lastRelampingDate>
            </epadesa:Lamp>
          </epadesa:lamp>
        </epadesa:CityLight>
      </epadesa:cityLight>
      <epadesa:fence>
        <epadesa:Fence gml:id="fence">
          <gml:name>Fence</gml:name>
          <epadesa:length uom="m">1.35</epadesa:length>
          <epadesa:height uom="m">0.45</epadesa:height>
          <epadesa:structureMaterial>cast iron</epadesa:structureMaterial>
          <epadesa:damaged>false</epadesa:damaged>
          <epadesa:dateOfRepair>2018-02-28</epadesa:dateOfRepair>
          <epadesa:colour>dark green</epadesa:colour>
          <epadesa:antiNoiseBarriers>true</epadesa:antiNoiseBarriers>
        </epadesa:Fence>
      </epadesa:fence>
      <epadesa:informationTerminal>
        <epadesa:InformationTerminal gml:id="information-terminal">
          <gml:name>Information terminal</gml:name>
          <epadesa:screen>false</epadesa:screen>
          <epadesa:soundDiffuser>true</epadesa:soundDiffuser>
        </epadesa:InformationTerminal>
      </epadesa:informationTerminal>
      <epadesa:publicTransportStation>
        <epadesa:PublicTransportStation gml:id="public-transport-station">
          <gml:name>Public transport station</gml:name>
          <epadesa:accessibilityDisabled>false</epadesa:accessibilityDisabled>
          <epadesa:position>roadside</epadesa:position>
          <epadesa:borderHeight uom="m">3</epadesa:borderHeight>
          <epadesa:offCreepLength uom="m">2.1</epadesa:offCreepLength>
          <epadesa:borderMaterial>steel</epadesa:borderMaterial>
          <epadesa:station>Harbour station</epadesa:station>
          <epadesa:numberOfLinesServed>1</epadesa:numberOfLinesServed>
          <epadesa:post>
            <epadesa:Post gml:id="post">
              <gml:name>Post</gml:name>
              <epadesa:trafficNews>https://marrowby.example/traffic-news</epadesa:trafficNews>
              <epadesa:timeTables>https://marrowby.example/time-tables</epadesa:timeTables>
              <epadesa:lineMaps>https://marrowby.example/line-maps</epadesa:lineMaps>
            </epadesa:Post>
          </epadesa:post>
          <epadesa:shelter>
            <epadesa:Shelter gml:id="shelter">
              <gml:name>Shelter</gml:name>
              <epadesa:supplier>Green Way Supplies</epadesa:supplier>
              <epadesa:type>type A</epadesa:type>
              <epadesa:version>true</epadesa:version>
              <epadesa:capacity>24</epadesa:capacity>
              <epadesa:length uom="m">0.12</epadesa:length>
              <epadesa:depth uom="m">0.45</epadesa:depth>
              <epadesa:height uom="m">3</epadesa:height>
              <epadesa:structureMaterial>cast iron</epadesa:structureMaterial>
            </epadesa:Shelter>
          </epadesa:shelter>
        </epadesa:PublicTransportStation>
      </epadesa:publicTransportStation>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Road gml:id="road">
      <gml:name>Road</gml:name>
      <epadesa:infrastructure>
        <epadesa:Infrastructure gml:id="infrastructure">
          <gml:name>Infrastructure</gml:name>
          <epadesa:length uom="m">0.24</epadesa:length>
          <epadesa:width uom="m">2.4</epadesa:width>
          <epadesa:positionRelativeToGround>0</epadesa:positionRelativeToGround>
          <epadesa:infrastructureInProject>false</epadesa:infrastructureInProject>
          <epadesa:yearOfComissioning>2004</epadesa:yearOfComissioning>
          <epadesa:trackNumber>3</epadesa:trackNumber>
          <epadesa:fromNodeId>crossing-1</epadesa:fromNodeId>
          <epadesa:toNodeId>crossing-2</epadesa:toNodeId>
          <epadesa:speedLimit uom="km/h">50</epadesa:speedLimit>
          <epadesa:vehiculeHourVolume uom="1/h">640</epadesa:vehiculeHourVolume>
          <epadesa:morningRushHour>8</epadesa:morningRushHour>
          <epadesa:eveningRushHour>18</epadesa:eveningRushHour>
          <epadesa:averageSpeedLimit uom="km/h">50</epadesa:averageSpeedLimit>
          <epadesa:crossing>Lantern Row and Quay Lane</epadesa:crossing>
          <epadesa:irisCode>990170101</epadesa:irisCode>
          <epadesa:status>in service</epadesa:status>
          <epadesa:altimetryOfTheBottomPoint>0.015</epadesa:altimetryOfTheBottomPoint>
          <epadesa:altimetryOfTheTopPoint>120</epadesa:altimetryOfTheTopPoint>
          <epadesa:laneReservedFor>buses</epadesa:laneReservedFor>
          <epadesa:name>Aldbrook</epadesa:name>
          <epadesa:infrastructureNumber>D 17</epadesa:infrastructureNumber>
        </epadesa:Infrastructure>
      </epadesa:infrastructure>
    </tran:Road>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:CyclePath gml:id="cycle-path">
      <gml:name>Cycle path</gml:name>
      <epadesa:direction>true</epadesa:direction>
      <epadesa:width uom="m">1.2</epadesa:width>
      <epadesa:onBusLane>false</epadesa:onBusLane>
    </epadesa:CyclePath>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:GreenArea gml:id="green-area">
      <gml:name>Green area</gml:name>
      <epadesa:pitOfTreeLength uom="m">0.45</epadesa:pitOfTreeLength>
      <epadesa:pitOfTreeWidth uom="m">3</epadesa:pitOfTreeWidth>
      <epadesa:pitOfTreeDepth uom="m">0.9</epadesa:pitOfTreeDepth>
    </epadesa:GreenArea>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:Kerbstone gml:id="kerbstone">
      <gml:name>Kerbstone</gml:name>
      <epadesa:kerbstoneMaterial>granite</epadesa:kerbstoneMaterial>
      <epadesa:kerbstoneType>dropped</epadesa:kerbstoneType>
    </epadesa:Kerbstone>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:Parking gml:id="parking">
      <gml:name>Parking</gml:name>
      <epadesa:paying>true</epadesa:paying>
      <epadesa:type>type A</epadesa:type>
    </epadesa:Parking>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:PedestrianCrossing gml:id="pedestrian-crossing">
      <gml:name>Pedestrian crossing</gml:name>
      <epadesa:length uom="m">1.35</epadesa:length>
      <epadesa:width uom="m">1.2</epadesa:width>
      <epadesa:distanceFromNodId uom="m">0.45</epadesa:distanceFromNodId>
      <epadesa:distanceToId uom="m">3</epadesa:distanceToId>
      <epadesa:trafficlight>false</epadesa:trafficlight>
      <epadesa:accessibilityDisabled>true</epadesa:accessibilityDisabled>
      <epadesa:bicyclePath>false</epadesa:bicyclePath>
    </epadesa:PedestrianCrossing>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:Railway gml:id="railway">
      <gml:name>Railway</gml:name>
      <epadesa:railwayManager>Aldbrook Railways</epadesa:railwayManager>
      <epadesa:trackAssignedTo>trams</epadesa:trackAssignedTo>
      <epadesa:rollingStock>low-floor tram</epadesa:rollingStock>
      <epadesa:numberOfPassages>6</epadesa:numberOfPassages>
    </epadesa:Railway>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:Ramp gml:id="ramp">
      <gml:name>Ramp</gml:name>
      <epadesa:length uom="m">2.1</epadesa:length>
      <epadesa:width uom="m">2.4</epadesa:width>
      <epadesa:inclinationAngle uom="deg">90</epadesa:inclinationAngle>
    </epadesa:Ramp>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:Square gml:id="square">
      <gml:name>Square</gml:name>
      <epadesa:roundabout>true</epadesa:roundabout>
      <epadesa:trafficlight>false</epadesa:trafficlight>
      <epadesa:numberOfInsertionLane>12</epadesa:numberOfInsertionLane>
      <epadesa:duringOfTrafficlightPhase unit="year" radix="10" factor="0">50</epadesa:duringOfTrafficlightPhase>
    </epadesa:Square>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <epadesa:Stairs gml:id="stairs">
      <gml:name>Stairs</gml:name>
      <epadesa:height uom="m">0.45</epadesa:height>
      <epadesa:lengthOfTread uom="m">3</epadesa:lengthOfTread>
      <epadesa:heightOfRiser uom="m">0.9</epadesa:heightOfRiser>
    </epadesa:Stairs>
  </core:cityObjectMember>
</core:CityModel>
