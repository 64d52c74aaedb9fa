<?xml version="1.0" encoding="UTF-8"?>
<!-- A quay with its building register, street furniture, road, tramway and square -->
<core:CityModel xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:bldg="http://www.opengis.net/citygml/building/2.0"
    xmlns:frn="http://www.opengis.net/citygml/cityfurniture/2.0"
    xmlns:tran="http://www.opengis.net/citygml/transportation/2.0"
    xmlns:epadesa="urn:tolvik:citygml:epadesa:1.0"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Quai des Voiliers</gml:name>
  <gml:boundedBy>
    <gml:Envelope srsName="urn:ogc:def:crs:EPSG::2154" srsDimension="3">
      <gml:lowerCorner>1200 860 0</gml:lowerCorner>
      <gml:upperCorner>1290 920 32</gml:upperCorner>
    </gml:Envelope>
  </gml:boundedBy>
  <core:cityObjectMember>
    <bldg:Building gml:id="maison-du-port">
      <gml:name>Maison du Port</gml:name>
      <core:creationDate>1998-05-12</core:creationDate>
      <bldg:class>habitation</bldg:class>
      <bldg:yearOfConstruction>1974</bldg:yearOfConstruction>
      <bldg:measuredHeight uom="m">12.8</bldg:measuredHeight>
      <bldg:storeysAboveGround>4</bldg:storeysAboveGround>
      <epadesa:buildingInformation>
        <epadesa:BuildingInformation gml:id="information-maison">
          <gml:description>Entry in the register of buildings</gml:description>
          <gml:name>File of the Maison du Port</gml:name>
          <epadesa:type>apartment block</epadesa:type>
          <epadesa:status>in use</epadesa:status>
          <epadesa:altimetryOfTheHighestPoint uom="m">31.4</epadesa:altimetryOfTheHighestPoint>
          <epadesa:buildingInProject>true</epadesa:buildingInProject>
          <epadesa:buildingWrecked>true</epadesa:buildingWrecked>
          <epadesa:description>Apartments above two shops</epadesa:description>
          <epadesa:shon uom="m2">1105</epadesa:shon>
          <epadesa:detail>Rendered in 2013</epadesa:detail>
          <epadesa:shob uom="m2">1320</epadesa:shob>
          <epadesa:wallArea uom="m2">870</epadesa:wallArea>
          <epadesa:roofArea uom="m2">236</epadesa:roofArea>
          <epadesa:housingUnits>18</epadesa:housingUnits>
          <epadesa:yearOfRefurbishment>2013</epadesa:yearOfRefurbishment>
          <epadesa:floorArea uom="m2">388</epadesa:floorArea>
          <epadesa:mainMaterial>limestone</epadesa:mainMaterial>
          <epadesa:mainConstructionSystem>load-bearing masonry</epadesa:mainConstructionSystem>
          <epadesa:facadeMainFillingMaterial>mineral wool</epadesa:facadeMainFillingMaterial>
          <epadesa:foundationConstructiveSystem>strip footing</epadesa:foundationConstructiveSystem>
          <epadesa:buildingUnit>
            <epadesa:BuildingUnit gml:id="unit-apartments">
              <gml:name>Apartments</gml:name>
              <epadesa:occupant>27</epadesa:occupant>
              <epadesa:numberOfCompanies>3</epadesa:numberOfCompanies>
              <epadesa:buildingPartOwner>false</epadesa:buildingPartOwner>
              <epadesa:buildingPartResident>true</epadesa:buildingPartResident>
              <epadesa:buildingPartManager>false</epadesa:buildingPartManager>
            </epadesa:BuildingUnit>
          </epadesa:buildingUnit>
          <epadesa:buildingUnit>
            <epadesa:BuildingUnit gml:id="unit-shops">
              <gml:name>Shops</gml:name>
              <epadesa:occupant>14</epadesa:occupant>
              <epadesa:numberOfCompanies>1</epadesa:numberOfCompanies>
              <epadesa:buildingPartOwner>true</epadesa:buildingPartOwner>
              <epadesa:buildingPartResident>true</epadesa:buildingPartResident>
              <epadesa:buildingPartManager>false</epadesa:buildingPartManager>
            </epadesa:BuildingUnit>
          </epadesa:buildingUnit>
        </epadesa:BuildingInformation>
      </epadesa:buildingInformation>
    </bldg:Building>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="furniture-1">
      <gml:name>Bench of the quay</gml:name>
      <frn:class>bench</frn:class>
      <epadesa:cityFurnitureType>bench</epadesa:cityFurnitureType>
      <epadesa:bench>
        <epadesa:Bench gml:id="bench-1">
          <gml:description>Oak bench facing the harbour</gml:description>
          <gml:name>Bench in front of the ferry</gml:name>
          <gml:name codeSpace="urn:clairval:register">PC-BENCH-1</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <core:terminationDate>2095-12-31</core:terminationDate>
          <core:externalReference>
            <core:informationSystem>https://register.example/clairval</core:informationSystem>
            <core:externalObject><core:uri>urn:clairval:object:412</core:uri></core:externalObject>
          </core:externalReference>
          <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
          <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
          <epadesa:orientation>south-west</epadesa:orientation>
          <epadesa:length uom="m">1.8</epadesa:length>
          <epadesa:depth uom="m">0.55</epadesa:depth>
          <epadesa:heightOfSeat uom="m">0.45</epadesa:heightOfSeat>
          <epadesa:heightOfSupport uom="m">0.82</epadesa:heightOfSupport>
          <epadesa:seatInclination uom="deg">3</epadesa:seatInclination>
          <epadesa:backrestInclination uom="deg">105</epadesa:backrestInclination>
          <epadesa:seatMaterial>oak</epadesa:seatMaterial>
          <epadesa:structureMaterial>steel</epadesa:structureMaterial>
          <epadesa:cleanliness>true</epadesa:cleanliness>
          <epadesa:damaged>false</epadesa:damaged>
          <epadesa:dateOfRepair>2021-04-08</epadesa:dateOfRepair>
          <epadesa:seatColour>natural oak</epadesa:seatColour>
        </epadesa:Bench>
      </epadesa:bench>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="furniture-2">
      <gml:name>Bollard</gml:name>
      <frn:class>bollard</frn:class>
      <epadesa:cityFurnitureType>bollard</epadesa:cityFurnitureType>
      <epadesa:bollard>
        <epadesa:Bollard gml:id="bollard-1">
          <gml:name>Bollard 14</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <epadesa:material>cast iron</epadesa:material>
          <epadesa:dateOfInstallation>2014-06-20</epadesa:dateOfInstallation>
          <epadesa:diameterOfTheBase uom="m">0.24</epadesa:diameterOfTheBase>
          <epadesa:diameterOfTheTop uom="m">0.18</epadesa:diameterOfTheTop>
          <epadesa:height uom="m">0.95</epadesa:height>
          <epadesa:colour>anthracite</epadesa:colour>
        </epadesa:Bollard>
      </epadesa:bollard>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="furniture-3">
      <gml:name>Street lamp</gml:name>
      <frn:class>street lamp</frn:class>
      <epadesa:cityFurnitureType>street lamp</epadesa:cityFurnitureType>
      <epadesa:cityLight>
        <epadesa:CityLight gml:id="light-1">
          <gml:name>Lamp post 208</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <epadesa:cityLightType>street lamp</epadesa:cityLightType>
          <epadesa:pole>
            <epadesa:Pole gml:id="pole-1">
              <gml:name>Pole 208</gml:name>
              <core:creationDate>2022-02-08</core:creationDate>
              <epadesa:position>kerbside</epadesa:position>
              <epadesa:orientation>north</epadesa:orientation>
              <epadesa:mainMaterial>oak</epadesa:mainMaterial>
              <epadesa:measuredHeight uom="m">7.5</epadesa:measuredHeight>
              <epadesa:installationDate>2009-11-17</epadesa:installationDate>
            </epadesa:Pole>
          </epadesa:pole>
          <epadesa:lamp>
            <epadesa:Lamp gml:id="lamp-1">
              <gml:name>Lamp over the road</gml:name>
              <core:creationDate>2018-09-30</core:creationDate>
              <epadesa:brand>Lumiere d'Ouest</epadesa:brand>
              <epadesa:lightingClass>S3</epadesa:lightingClass>
              <epadesa:lightingQualification>good</epadesa:lightingQualification>
              <epadesa:qualificationUniformityOfLighting>uniform</epadesa:qualificationUniformityOfLighting>
              <epadesa:power uom="W">78</epadesa:power>
              <epadesa:averageOfLuminousFlux uom="lm">8200</epadesa:averageOfLuminousFlux>
              <epadesa:averageOfLuminousFluxRequired uom="lm">8000</epadesa:averageOfLuminousFluxRequired>
              <epadesa:uniformityOfLightingRequired>0.4</epadesa:uniformityOfLightingRequired>
              <epadesa:uniformityOfLighting>0.44</epadesa:uniformityOfLighting>
              <epadesa:lastRelampingDate>2020-02-25</epadesa:lastRelampingDate>
            </epadesa:Lamp>
          </epadesa:lamp>
          <epadesa:lamp>
            <epadesa:Lamp gml:id="lamp-2">
              <gml:name>Lamp over the pavement</gml:name>
              <core:creationDate>2019-03-12</core:creationDate>
              <epadesa:brand>Phare</epadesa:brand>
              <epadesa:lightingClass>S4</epadesa:lightingClass>
              <epadesa:lightingQualification>sufficient</epadesa:lightingQualification>
              <epadesa:qualificationUniformityOfLighting>sufficient</epadesa:qualificationUniformityOfLighting>
              <epadesa:power uom="W">42</epadesa:power>
              <epadesa:averageOfLuminousFlux uom="lm">4100</epadesa:averageOfLuminousFlux>
              <epadesa:averageOfLuminousFluxRequired uom="lm">4000</epadesa:averageOfLuminousFluxRequired>
              <epadesa:uniformityOfLightingRequired>0.35</epadesa:uniformityOfLightingRequired>
              <epadesa:uniformityOfLighting>0.38</epadesa:uniformityOfLighting>
              <epadesa:lastRelampingDate>2022-09-14</epadesa:lastRelampingDate>
            </epadesa:Lamp>
          </epadesa:lamp>
        </epadesa:CityLight>
      </epadesa:cityLight>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="furniture-4">
      <gml:name>Fence of the slipway</gml:name>
      <frn:class>fence</frn:class>
      <epadesa:cityFurnitureType>fence</epadesa:cityFurnitureType>
      <epadesa:fence>
        <epadesa:Fence gml:id="fence-1">
          <gml:name>Fence of the slipway</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <epadesa:length uom="m">24</epadesa:length>
          <epadesa:height uom="m">1.2</epadesa:height>
          <epadesa:structureMaterial>galvanised steel</epadesa:structureMaterial>
          <epadesa:damaged>true</epadesa:damaged>
          <epadesa:dateOfRepair>2022-10-03</epadesa:dateOfRepair>
          <epadesa:colour>dark green</epadesa:colour>
          <epadesa:antiNoiseBarriers>true</epadesa:antiNoiseBarriers>
        </epadesa:Fence>
      </epadesa:fence>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="furniture-5">
      <gml:name>Information terminal</gml:name>
      <frn:class>information terminal</frn:class>
      <epadesa:cityFurnitureType>information terminal</epadesa:cityFurnitureType>
      <epadesa:informationTerminal>
        <epadesa:InformationTerminal gml:id="terminal-1">
          <gml:name>Terminal of the tourist office</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <epadesa:screen>false</epadesa:screen>
          <epadesa:soundDiffuser>true</epadesa:soundDiffuser>
        </epadesa:InformationTerminal>
      </epadesa:informationTerminal>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="furniture-6">
      <gml:name>Tram stop</gml:name>
      <frn:class>tram stop</frn:class>
      <epadesa:cityFurnitureType>tram stop</epadesa:cityFurnitureType>
      <epadesa:publicTransportStation>
        <epadesa:PublicTransportStation gml:id="station-1">
          <gml:name>Stop Port</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <epadesa:accessibilityDisabled>false</epadesa:accessibilityDisabled>
          <epadesa:position>right-hand side</epadesa:position>
          <epadesa:borderHeight uom="m">0.21</epadesa:borderHeight>
          <epadesa:offCreepLength uom="m">18</epadesa:offCreepLength>
          <epadesa:borderMaterial>granite</epadesa:borderMaterial>
          <epadesa:station>Port</epadesa:station>
          <epadesa:numberOfLinesServed>2</epadesa:numberOfLinesServed>
          <epadesa:post>
            <epadesa:Post gml:id="post-1">
              <gml:name>Post of line 4</gml:name>
              <core:creationDate>2018-09-30</core:creationDate>
              <epadesa:trafficNews>https://transport.example/news</epadesa:trafficNews>
              <epadesa:timeTables>https://transport.example/times/4</epadesa:timeTables>
              <epadesa:lineMaps>https://transport.example/maps/4</epadesa:lineMaps>
            </epadesa:Post>
          </epadesa:post>
          <epadesa:post>
            <epadesa:Post gml:id="post-2">
              <gml:name>Post of line 9</gml:name>
              <core:creationDate>2019-03-12</core:creationDate>
              <epadesa:trafficNews>https://transport.example/news/9</epadesa:trafficNews>
              <epadesa:timeTables>https://transport.example/times/9</epadesa:timeTables>
              <epadesa:lineMaps>https://transport.example/maps/9</epadesa:lineMaps>
            </epadesa:Post>
          </epadesa:post>
          <epadesa:shelter>
            <epadesa:Shelter gml:id="shelter-1">
              <gml:name>Shelter, direction Clairval</gml:name>
              <core:creationDate>2020-06-01</core:creationDate>
              <epadesa:supplier>Abris du Littoral</epadesa:supplier>
              <epadesa:type>closed on three sides</epadesa:type>
              <epadesa:version>true</epadesa:version>
              <epadesa:capacity>12</epadesa:capacity>
              <epadesa:length uom="m">240</epadesa:length>
              <epadesa:depth uom="m">1.4</epadesa:depth>
              <epadesa:height uom="m">2.6</epadesa:height>
              <epadesa:structureMaterial>aluminium</epadesa:structureMaterial>
            </epadesa:Shelter>
          </epadesa:shelter>
        </epadesa:PublicTransportStation>
      </epadesa:publicTransportStation>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Road gml:id="road-1">
      <gml:name>Quai des Voiliers</gml:name>
      <tran:class>street</tran:class>
      <tran:trafficArea>
        <tran:TrafficArea gml:id="carriageway-1">
          <gml:name>Carriageway and pavement</gml:name>
          <tran:function>driving lane</tran:function>
          <tran:surfaceMaterial>asphalt</tran:surfaceMaterial>
          <epadesa:typeOfLaneMarking>broken line</epadesa:typeOfLaneMarking>
          <epadesa:cyclePath>
            <epadesa:CyclePath gml:id="cycle-path-1">
              <gml:name>Cycle path of the quay</gml:name>
              <core:creationDate>2021-11-23</core:creationDate>
              <epadesa:direction>true</epadesa:direction>
              <epadesa:width uom="m">1.5</epadesa:width>
              <epadesa:onBusLane>false</epadesa:onBusLane>
            </epadesa:CyclePath>
          </epadesa:cyclePath>
          <epadesa:parking>
            <epadesa:Parking gml:id="parking-1">
              <gml:name>Lay-by for deliveries</gml:name>
              <core:creationDate>2022-02-08</core:creationDate>
              <epadesa:paying>true</epadesa:paying>
              <epadesa:type>lay-by</epadesa:type>
            </epadesa:Parking>
          </epadesa:parking>
          <epadesa:pedestrianCrossing>
            <epadesa:PedestrianCrossing gml:id="crossing-1">
              <gml:name>Crossing at the ferry</gml:name>
              <core:creationDate>2018-09-30</core:creationDate>
              <epadesa:length uom="m">6.5</epadesa:length>
              <epadesa:width uom="m">7.2</epadesa:width>
              <epadesa:distanceFromNodId uom="m">62</epadesa:distanceFromNodId>
              <epadesa:distanceToId uom="m">178</epadesa:distanceToId>
              <epadesa:trafficlight>false</epadesa:trafficlight>
              <epadesa:accessibilityDisabled>true</epadesa:accessibilityDisabled>
              <epadesa:bicyclePath>true</epadesa:bicyclePath>
            </epadesa:PedestrianCrossing>
          </epadesa:pedestrianCrossing>
          <epadesa:ramp>
            <epadesa:Ramp gml:id="ramp-1">
              <gml:name>Ramp to the beach</gml:name>
              <core:creationDate>2019-03-12</core:creationDate>
              <epadesa:length uom="m">4.2</epadesa:length>
              <epadesa:width uom="m">4</epadesa:width>
              <epadesa:inclinationAngle uom="deg">4.5</epadesa:inclinationAngle>
            </epadesa:Ramp>
          </epadesa:ramp>
          <epadesa:stairs>
            <epadesa:Stairs gml:id="stairs-1">
              <gml:name>Stairs to the beach</gml:name>
              <core:creationDate>2020-06-01</core:creationDate>
              <epadesa:height uom="m">1.05</epadesa:height>
              <epadesa:lengthOfTread uom="m">0.31</epadesa:lengthOfTread>
              <epadesa:heightOfRiser uom="m">0.16</epadesa:heightOfRiser>
            </epadesa:Stairs>
          </epadesa:stairs>
        </tran:TrafficArea>
      </tran:trafficArea>
      <tran:auxiliaryTrafficArea>
        <tran:AuxiliaryTrafficArea gml:id="verge-1">
          <gml:name>Planted strip</gml:name>
          <tran:function>green verge</tran:function>
          <epadesa:auxiliaryTrafficAreaType>planted strip</epadesa:auxiliaryTrafficAreaType>
          <epadesa:area uom="m2">34.5</epadesa:area>
          <epadesa:greenArea>
            <epadesa:GreenArea gml:id="green-area-1">
              <gml:name>Pit of the plane tree</gml:name>
              <core:creationDate>2021-11-23</core:creationDate>
              <epadesa:pitOfTreeLength uom="m">1.8</epadesa:pitOfTreeLength>
              <epadesa:pitOfTreeWidth uom="m">1.6</epadesa:pitOfTreeWidth>
              <epadesa:pitOfTreeDepth uom="m">1.5</epadesa:pitOfTreeDepth>
            </epadesa:GreenArea>
          </epadesa:greenArea>
          <epadesa:kerbstone>
            <epadesa:Kerbstone gml:id="kerbstone-1">
              <gml:name>Kerb of the planted strip</gml:name>
              <core:creationDate>2022-02-08</core:creationDate>
              <epadesa:kerbstoneMaterial>granite</epadesa:kerbstoneMaterial>
              <epadesa:kerbstoneType>dropped kerb</epadesa:kerbstoneType>
            </epadesa:Kerbstone>
          </epadesa:kerbstone>
        </tran:AuxiliaryTrafficArea>
      </tran:auxiliaryTrafficArea>
      <epadesa:infrastructure>
        <epadesa:Infrastructure gml:id="infrastructure-1">
          <gml:name>Section between node 12 and node 13</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <epadesa:length uom="m">1.8</epadesa:length>
          <epadesa:width uom="m">1.4</epadesa:width>
          <epadesa:positionRelativeToGround>0</epadesa:positionRelativeToGround>
          <epadesa:infrastructureInProject>false</epadesa:infrastructureInProject>
          <epadesa:yearOfComissioning>1987</epadesa:yearOfComissioning>
          <epadesa:trackNumber>2</epadesa:trackNumber>
          <epadesa:fromNodeId>node-quai-12</epadesa:fromNodeId>
          <epadesa:toNodeId>node-quai-13</epadesa:toNodeId>
          <epadesa:speedLimit uom="km/h">30</epadesa:speedLimit>
          <epadesa:vehiculeHourVolume uom="1/h">410</epadesa:vehiculeHourVolume>
          <epadesa:morningRushHour>610</epadesa:morningRushHour>
          <epadesa:eveningRushHour>520</epadesa:eveningRushHour>
          <epadesa:averageSpeedLimit uom="km/h">27</epadesa:averageSpeedLimit>
          <epadesa:crossing>level crossing with the tramway</epadesa:crossing>
          <epadesa:irisCode>990010102</epadesa:irisCode>
          <epadesa:status>open to traffic</epadesa:status>
          <epadesa:altimetryOfTheBottomPoint>4.2</epadesa:altimetryOfTheBottomPoint>
          <epadesa:altimetryOfTheTopPoint>9.7</epadesa:altimetryOfTheTopPoint>
          <epadesa:laneReservedFor>buses</epadesa:laneReservedFor>
          <epadesa:name>Quai des Voiliers</epadesa:name>
          <epadesa:infrastructureNumber>R-204</epadesa:infrastructureNumber>
        </epadesa:Infrastructure>
      </epadesa:infrastructure>
    </tran:Road>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Railway gml:id="railway-1">
      <gml:name>Tramway of the port</gml:name>
      <tran:class>tramway</tran:class>
      <epadesa:railway>
        <epadesa:Railway gml:id="tramway-1">
          <gml:name>Line 4</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <epadesa:railwayManager>Tramways de Clairval</epadesa:railwayManager>
          <epadesa:trackAssignedTo>passengers</epadesa:trackAssignedTo>
          <epadesa:rollingStock>tramway</epadesa:rollingStock>
          <epadesa:numberOfPassages>96</epadesa:numberOfPassages>
        </epadesa:Railway>
      </epadesa:railway>
    </tran:Railway>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Square gml:id="square-1">
      <gml:name>Place du Phare</gml:name>
      <tran:class>square</tran:class>
      <epadesa:square>
        <epadesa:Square gml:id="square-data-1">
          <gml:name>Roundabout of the lighthouse</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <epadesa:roundabout>true</epadesa:roundabout>
          <epadesa:trafficlight>false</epadesa:trafficlight>
          <epadesa:numberOfInsertionLane>2</epadesa:numberOfInsertionLane>
          <epadesa:duringOfTrafficlightPhase unit="second">45</epadesa:duringOfTrafficlightPhase>
        </epadesa:Square>
      </epadesa:square>
    </tran:Square>
  </core:cityObjectMember>
</core:CityModel>
