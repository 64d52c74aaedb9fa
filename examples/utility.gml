<?xml version="1.0" encoding="UTF-8"?>
<!-- Networks of a port (water, power, gas, waste, fibre) with features, graphs, media and supply of a house -->
<core:CityModel xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:bldg="http://www.opengis.net/citygml/building/2.0"
    xmlns:grp="http://www.opengis.net/citygml/cityobjectgroup/2.0"
    xmlns:utility="http://www.citygml.org/ade/utility/0.9.2"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Networks of Port-Clairval</gml:name>
  <gml:boundedBy>
    <gml:Envelope srsName="urn:ogc:def:crs:EPSG::2154" srsDimension="3">
      <gml:lowerCorner>1200 860 0</gml:lowerCorner>
      <gml:upperCorner>1300 930 20</gml:upperCorner>
    </gml:Envelope>
  </gml:boundedBy>
  <core:cityObjectMember>
    <bldg:Building gml:id="maison-du-port">
      <gml:name>Maison du Port</gml:name>
      <core:creationDate>1998-05-12</core:creationDate>
      <utility:mediumSupply>
        <utility:LiquidMediumSupply gml:id="liquid-supply">
          <gml:name>Water of the house</gml:name>
          <utility:potentialSupply>
            <utility:Supply>
              <utility:flowRate uom="m3/h">3.2</utility:flowRate>
              <utility:status>tempOutOfService</utility:status>
            </utility:Supply>
          </utility:potentialSupply>
          <utility:currentSupply>
            <utility:Supply>
              <utility:flowRate uom="m3/h">1.6</utility:flowRate>
              <utility:status>outOfService</utility:status>
            </utility:Supply>
          </utility:currentSupply>
          <utility:storages>
            <utility:Storage>
              <utility:type>tank</utility:type>
              <utility:maxCapacity uom="m3">500</utility:maxCapacity>
              <utility:fillLevel>0.65</utility:fillLevel>
              <utility:inflowRate uom="m3/h">6.4</utility:inflowRate>
              <utility:outflowRate uom="m3/h">3.2</utility:outflowRate>
            </utility:Storage>
          </utility:storages>
          <utility:storages>
            <utility:Storage>
              <utility:type>buffer tank</utility:type>
              <utility:maxCapacity uom="m3">500</utility:maxCapacity>
              <utility:fillLevel>0.4</utility:fillLevel>
              <utility:inflowRate uom="m3/h">6.4</utility:inflowRate>
              <utility:outflowRate uom="m3/h">3.2</utility:outflowRate>
            </utility:Storage>
          </utility:storages>
          <utility:type>drinking water</utility:type>
        </utility:LiquidMediumSupply>
      </utility:mediumSupply>
      <utility:mediumSupply>
        <utility:GaseousMediumSupply gml:id="gaseous-supply">
          <gml:name>Gas of the house</gml:name>
          <utility:potentialSupply>
            <utility:Supply>
              <utility:flowRate uom="m3/h">4.5</utility:flowRate>
              <utility:status>destroyed</utility:status>
            </utility:Supply>
          </utility:potentialSupply>
          <utility:currentSupply>
            <utility:Supply>
              <utility:flowRate uom="m3/h">2.25</utility:flowRate>
              <utility:status>unknown</utility:status>
            </utility:Supply>
          </utility:currentSupply>
          <utility:storages>
            <utility:Storage>
              <utility:type>tank</utility:type>
              <utility:maxCapacity uom="m3">30</utility:maxCapacity>
              <utility:fillLevel>0.65</utility:fillLevel>
              <utility:inflowRate uom="m3/h">9</utility:inflowRate>
              <utility:outflowRate uom="m3/h">4.5</utility:outflowRate>
            </utility:Storage>
          </utility:storages>
          <utility:type>natural gas</utility:type>
        </utility:GaseousMediumSupply>
      </utility:mediumSupply>
      <utility:mediumSupply>
        <utility:ElectricalMediumSupply gml:id="electrical-supply">
          <gml:name>Power of the house</gml:name>
          <utility:potentialSupply>
            <utility:Supply>
              <utility:flowRate uom="kW">36</utility:flowRate>
              <utility:status>inUse</utility:status>
            </utility:Supply>
          </utility:potentialSupply>
          <utility:currentSupply>
            <utility:Supply>
              <utility:flowRate uom="kW">18</utility:flowRate>
              <utility:status>tempOutOfService</utility:status>
            </utility:Supply>
          </utility:currentSupply>
          <utility:storages>
            <utility:Storage>
              <utility:type>battery</utility:type>
              <utility:maxCapacity uom="kWh">13.5</utility:maxCapacity>
              <utility:fillLevel>0.65</utility:fillLevel>
              <utility:inflowRate uom="kW">72</utility:inflowRate>
              <utility:outflowRate uom="kW">36</utility:outflowRate>
            </utility:Storage>
          </utility:storages>
          <utility:type>directCurrent</utility:type>
        </utility:ElectricalMediumSupply>
      </utility:mediumSupply>
      <utility:mediumSupply>
        <utility:OpticalMediumSupply gml:id="optical-supply">
          <gml:name>Fibre of the house</gml:name>
          <utility:potentialSupply>
            <utility:Supply>
              <utility:flowRate uom="Gbit/s">2</utility:flowRate>
              <utility:status>outOfService</utility:status>
            </utility:Supply>
          </utility:potentialSupply>
          <utility:currentSupply>
            <utility:Supply>
              <utility:flowRate uom="Gbit/s">1</utility:flowRate>
              <utility:status>destroyed</utility:status>
            </utility:Supply>
          </utility:currentSupply>
          <utility:storages>
            <utility:Storage>
              <utility:type>buffer</utility:type>
              <utility:maxCapacity uom="Gbit">8</utility:maxCapacity>
              <utility:fillLevel>0.65</utility:fillLevel>
              <utility:inflowRate uom="Gbit/s">4</utility:inflowRate>
              <utility:outflowRate uom="Gbit/s">2</utility:outflowRate>
            </utility:Storage>
          </utility:storages>
          <utility:type>light</utility:type>
        </utility:OpticalMediumSupply>
      </utility:mediumSupply>
      <utility:mediumSupply>
        <utility:SolidMediumSupply gml:id="solid-supply">
          <gml:name>Pellets of the house</gml:name>
          <utility:potentialSupply>
            <utility:Supply>
              <utility:flowRate uom="kg/h">6</utility:flowRate>
              <utility:status>unknown</utility:status>
            </utility:Supply>
          </utility:potentialSupply>
          <utility:currentSupply>
            <utility:Supply>
              <utility:flowRate uom="kg/h">3</utility:flowRate>
              <utility:status>inUse</utility:status>
            </utility:Supply>
          </utility:currentSupply>
          <utility:storages>
            <utility:Storage>
              <utility:type>silo</utility:type>
              <utility:maxCapacity uom="kg">1200</utility:maxCapacity>
              <utility:fillLevel>0.65</utility:fillLevel>
              <utility:inflowRate uom="kg/h">12</utility:inflowRate>
              <utility:outflowRate uom="kg/h">6</utility:outflowRate>
            </utility:Storage>
          </utility:storages>
          <utility:type>wood pellets</utility:type>
        </utility:SolidMediumSupply>
      </utility:mediumSupply>
      <bldg:class>habitation</bldg:class>
      <bldg:yearOfConstruction>1974</bldg:yearOfConstruction>
      <bldg:measuredHeight uom="m">12.8</bldg:measuredHeight>
      <bldg:storeysAboveGround>4</bldg:storeysAboveGround>
      <utility:buildingHabitants>42</utility:buildingHabitants>
    </bldg:Building>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <utility:Network gml:id="water">
      <gml:description>Drinking water network of the port</gml:description>
      <gml:name>Drinking water</gml:name>
      <gml:name codeSpace="urn:clairval:register">PC-WATER</gml:name>
      <core:creationDate>2019-03-12</core:creationDate>
      <core:terminationDate>2095-12-31</core:terminationDate>
      <core:externalReference>
        <core:informationSystem>https://register.example/clairval</core:informationSystem>
        <core:externalObject><core:uri>urn:clairval:object:412</core:uri></core:externalObject>
      </core:externalReference>
      <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
      <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
      <utility:class>distribution</utility:class>
      <utility:function>supply</utility:function>
      <utility:function>protection</utility:function>
      <utility:usage>town</utility:usage>
      <utility:usage>port</utility:usage>
      <utility:networkClass>MediumPressureNetwork</utility:networkClass>
      <utility:functionAndUsage>supply</utility:functionAndUsage>
      <utility:transportedMedium>
        <utility:LiquidMedium gml:id="medium-water">
          <gml:name>Drinking water</gml:name>
          <utility:owner>Eaux de Clairval</utility:owner>
          <utility:isClassifiedBy>
            <utility:ChemicalClassifier gml:id="class-hypochlorite">
              <gml:name>Hypochlorite in the water</gml:name>
              <utility:molFormula>NaClO</utility:molFormula>
              <utility:physicalForm>solution</utility:physicalForm>
              <utility:molecularWeight uom="g/mol">74.44</utility:molecularWeight>
              <utility:signalWord>nonHazardous</utility:signalWord>
              <utility:isChemicalComplex>false</utility:isChemicalComplex>
              <utility:hazardClass>
                <utility:HazardClass>
                  <utility:hazardClass>skin corrosion</utility:hazardClass>
                  <utility:categoryCode>Skin Corr. 1B</utility:categoryCode>
                  <utility:statementCode>H314</utility:statementCode>
                  <utility:pictogramCode>GHS05</utility:pictogramCode>
                  <utility:pictogramURI>https://chemicals.example/pictograms/ghs05.svg</utility:pictogramURI>
                </utility:HazardClass>
              </utility:hazardClass>
              <utility:composedOf>
                <utility:GenericClassifier gml:id="class-chlorine">
                  <gml:description>Residue of the disinfection</gml:description>
                  <gml:name>Chlorine compound</gml:name>
                  <utility:molFormula>HClO</utility:molFormula>
                  <utility:physicalForm>solution</utility:physicalForm>
                  <utility:molecularWeight uom="g/mol">52.46</utility:molecularWeight>
                  <utility:signalWord>attention</utility:signalWord>
                  <utility:isChemicalComplex>true</utility:isChemicalComplex>
                  <utility:hazardClass>
                    <utility:HazardClass>
                      <utility:hazardClass>hazardous to the aquatic environment</utility:hazardClass>
                      <utility:categoryCode>Aquatic Acute 1</utility:categoryCode>
                      <utility:statementCode>H400</utility:statementCode>
                      <utility:pictogramCode>GHS09</utility:pictogramCode>
                      <utility:pictogramURI>https://chemicals.example/pictograms/ghs09.svg</utility:pictogramURI>
                    </utility:HazardClass>
                  </utility:hazardClass>
                  <utility:composedOf xlink:href="#class-water"/>
                </utility:GenericClassifier>
              </utility:composedOf>
              <utility:ECNo>231-668-3</utility:ECNo>
              <utility:CasNo>7681-52-9</utility:CasNo>
              <utility:IUCLIDChemicalDataSheet>https://chemicals.example/sheets/7681-52-9</utility:IUCLIDChemicalDataSheet>
            </utility:ChemicalClassifier>
          </utility:isClassifiedBy>
          <utility:isClassifiedBy>
            <utility:GHSClassifier gml:id="class-water">
              <gml:name>Water</gml:name>
              <utility:molFormula>H2O</utility:molFormula>
              <utility:physicalForm>liquid</utility:physicalForm>
              <utility:molecularWeight uom="g/mol">18.02</utility:molecularWeight>
              <utility:signalWord>nonHazardous</utility:signalWord>
              <utility:isChemicalComplex>false</utility:isChemicalComplex>
              <utility:hazardClass>
                <utility:HazardClass>
                  <utility:hazardClass>skin corrosion</utility:hazardClass>
                  <utility:categoryCode>Skin Corr. 1B</utility:categoryCode>
                  <utility:statementCode>H314</utility:statementCode>
                  <utility:pictogramCode>GHS05</utility:pictogramCode>
                  <utility:pictogramURI>https://chemicals.example/pictograms/ghs05.svg</utility:pictogramURI>
                </utility:HazardClass>
              </utility:hazardClass>
              <utility:composedOf xlink:href="#class-chlorine"/>
              <utility:ECNo>231-959-5</utility:ECNo>
              <utility:CasNo>7782-50-5</utility:CasNo>
            </utility:GHSClassifier>
          </utility:isClassifiedBy>
          <utility:type>drinking water</utility:type>
          <utility:isCorrosive>true</utility:isCorrosive>
          <utility:isExplosive>false</utility:isExplosive>
          <utility:flammable>0</utility:flammable>
          <utility:electricConductivity uom="uS/cm">200 600</utility:electricConductivity>
          <utility:phValueRange uom="1">6.8 7.6</utility:phValueRange>
          <utility:temperatureRange uom="degC">6 18</utility:temperatureRange>
          <utility:flowRateRange uom="m3/h">0.5 40</utility:flowRateRange>
          <utility:pressureRange uom="bar">2 6</utility:pressureRange>
        </utility:LiquidMedium>
      </utility:transportedMedium>
      <utility:component>
        <utility:RoundPipe gml:id="pipe-main">
          <gml:description>Ductile iron main, with material, role, hollow space and graph</gml:description>
          <gml:name>Main under the quay</gml:name>
          <gml:name codeSpace="urn:clairval:register">PC-PIPE-MAIN</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <core:terminationDate>2095-12-31</core:terminationDate>
          <core:externalReference>
            <core:informationSystem>https://register.example/clairval</core:informationSystem>
            <core:externalObject><core:uri>urn:clairval:object:412</core:uri></core:externalObject>
          </core:externalReference>
          <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
          <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
          <utility:function>control</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>1996-04-01</utility:yearOfConstruction>
          <utility:status>tempOutOfService</utility:status>
          <utility:locationQuality>surveyed</utility:locationQuality>
          <utility:elevationQuality>calculated</utility:elevationQuality>
          <utility:hasMaterial>
            <utility:ExteriorMaterial gml:id="coating-iron">
              <gml:name>Iron coating</gml:name>
              <utility:type>ductile iron</utility:type>
              <utility:layer>
                <utility:InteriorMaterial gml:id="mortar-lining">
                  <gml:name>Lining of cement mortar</gml:name>
                  <utility:type>cement mortar</utility:type>
                  <utility:layer>
                    <utility:InteriorMaterial gml:id="primer">
                      <gml:name>Primer below the lining</gml:name>
                      <utility:type>epoxy</utility:type>
                    </utility:InteriorMaterial>
                  </utility:layer>
                </utility:InteriorMaterial>
              </utility:layer>
            </utility:ExteriorMaterial>
          </utility:hasMaterial>
          <utility:hasMaterial>
            <utility:ExteriorMaterial gml:id="coating-polyethylene">
              <gml:name>Sleeve of polyethylene</gml:name>
              <utility:type>polyethylene</utility:type>
            </utility:ExteriorMaterial>
          </utility:hasMaterial>
          <utility:consistsOf>
            <utility:SimpleFunctionalElement gml:id="sleeve">
              <gml:name>Coupling sleeve</gml:name>
              <utility:class>coupling</utility:class>
            </utility:SimpleFunctionalElement>
          </utility:consistsOf>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-main">
              <gml:name>Role of the main</gml:name>
              <utility:functionInNetwork>transport of the medium</utility:functionInNetwork>
              <utility:usageInNetwork>public supply</utility:usageInNetwork>
              <utility:usageInNetwork>fire fighting</utility:usageInNetwork>
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace>
            <utility:HollowSpace gml:id="duct">
              <gml:name>Duct of the quay</gml:name>
              <core:creationDate>2021-11-23</core:creationDate>
              <utility:consistsOf>
                <utility:HollowSpacePart gml:id="duct-part">
                  <gml:name>Chamber at the ferry</gml:name>
                  <core:creationDate>2022-02-08</core:creationDate>
                  <utility:consistsOf xlink:href="#duct-part-2"/>
                  <utility:contains xlink:href="#meter"/>
                </utility:HollowSpacePart>
              </utility:consistsOf>
              <utility:contains xlink:href="#pipe-main"/>
            </utility:HollowSpace>
          </utility:hollowSpace>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-main">
              <gml:name>Graph of the main</gml:name>
              <utility:nodeMember>
                <utility:Node gml:id="node-main-start">
                  <gml:name>West end</gml:name>
                  <utility:type>exterior</utility:type>
                  <utility:connectionSignature xlink:href="urn:clairval:signature"/>
                  <utility:linkControl xlink:href="urn:clairval:link-control"/>
                  <utility:realization><gml:Point><gml:pos>1230 860 2.4</gml:pos></gml:Point></utility:realization>
                </utility:Node>
              </utility:nodeMember>
              <utility:nodeMember>
                <utility:Node gml:id="node-main-end">
                  <gml:name>East end</gml:name>
                  <utility:type>exterior</utility:type>
                  <utility:connectionSignature xlink:href="urn:clairval:signature"/>
                  <utility:linkControl xlink:href="urn:clairval:link-control"/>
                  <utility:realization><gml:Point><gml:pos>1215 906.5 4.5</gml:pos></gml:Point></utility:realization>
                </utility:Node>
              </utility:nodeMember>
              <utility:linkMember>
                <utility:InteriorFeatureLink gml:id="link-main">
                  <gml:name>Along the main</gml:name>
                  <utility:direction>+</utility:direction>
                  <utility:start xlink:href="#node-main-start"/>
                  <utility:end xlink:href="#node-main-end"/>
                  <utility:linkControl xlink:href="urn:clairval:link-control"/>
                  <utility:realization>
                    <gml:LineString><gml:posList>1288.5 892 2.4 1297 895 2.4</gml:posList></gml:LineString>
                  </utility:realization>
                </utility:InteriorFeatureLink>
              </utility:linkMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1236 915.25 3</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1272 878.5 4.5 1280.5 881.5 4.5</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1219.5 901.75 1.8 1228 904.75 1.8</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1257 864 2.4 1265.5 867 2.4</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>transport</utility:class>
          <utility:functionOfLine>main line</utility:functionOfLine>
          <utility:isGravity>true</utility:isGravity>
          <utility:exteriorWidth uom="m">0.4</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.3</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.22</utility:exteriorDiameter>
          <utility:interiorDiameter uom="m">0.2</utility:interiorDiameter>
        </utility:RoundPipe>
      </utility:component>
      <utility:component>
        <utility:Canal gml:id="canal-intake">
          <gml:name>Canal of the intake</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <utility:function>supply</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2004-09-15</utility:yearOfConstruction>
          <utility:status>outOfService</utility:status>
          <utility:locationQuality>interpolated</utility:locationQuality>
          <utility:elevationQuality>estimated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-canal-intake">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-canal-intake">
              <utility:nodeMember>
                <utility:Node gml:id="node-canal-intake">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1218 872 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1255.5 895.25 3 1264 898.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1203 918.5 4.5 1211.5 921.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1239 881.75 1.8 1247.5 884.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>connection</utility:class>
          <utility:functionOfLine>main line</utility:functionOfLine>
          <utility:profileName>egg-shaped 400/600</utility:profileName>
          <utility:slope uom="percent">0.5 2</utility:slope>
          <utility:isGravity>true</utility:isGravity>
          <utility:exteriorWidth uom="m">0.28</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.25</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.16</utility:exteriorDiameter>
        </utility:Canal>
      </utility:component>
      <utility:component>
        <utility:SemiOpen gml:id="channel-spring">
          <gml:name>Channel of the spring</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <utility:function>protection</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2012-06-30</utility:yearOfConstruction>
          <utility:status>destroyed</utility:status>
          <utility:locationQuality>assumed</utility:locationQuality>
          <utility:elevationQuality>unknown</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-channel-spring">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-channel-spring">
              <utility:nodeMember>
                <utility:Node gml:id="node-channel-spring">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1239 912 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1275 875.25 3 1283.5 878.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1222.5 898.5 4.5 1231 901.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1260 861.75 1.8 1268.5 864.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>transport</utility:class>
          <utility:functionOfLine>house connection</utility:functionOfLine>
          <utility:profileName>trapezoid</utility:profileName>
          <utility:slope uom="percent">0.5 2</utility:slope>
          <utility:isGravity>false</utility:isGravity>
          <utility:exteriorWidth uom="m">0.4</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.3</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.22</utility:exteriorDiameter>
        </utility:SemiOpen>
      </utility:component>
      <utility:component>
        <utility:Closed gml:id="gallery">
          <gml:name>Closed gallery</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <utility:function>control</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>1996-04-01</utility:yearOfConstruction>
          <utility:status>unknown</utility:status>
          <utility:locationQuality>surveyed</utility:locationQuality>
          <utility:elevationQuality>calculated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-gallery">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-gallery">
              <utility:nodeMember>
                <utility:Node gml:id="node-gallery">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1258.5 892 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1206 915.25 3 1214.5 918.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1242 878.5 4.5 1250.5 881.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1279.5 901.75 1.8 1288 904.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>distribution</utility:class>
          <utility:functionOfLine>main line</utility:functionOfLine>
          <utility:profileName>egg-shaped 400/600</utility:profileName>
          <utility:slope uom="percent">0.5 2</utility:slope>
          <utility:isGravity>true</utility:isGravity>
          <utility:exteriorWidth uom="m">0.28</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.25</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.16</utility:exteriorDiameter>
        </utility:Closed>
      </utility:component>
      <utility:component>
        <utility:Bedding gml:id="bedding-main">
          <gml:name>Bedding of the main</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <utility:function>supply</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2004-09-15</utility:yearOfConstruction>
          <utility:status>inUse</utility:status>
          <utility:locationQuality>interpolated</utility:locationQuality>
          <utility:elevationQuality>estimated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-bedding-main">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-bedding-main">
              <utility:nodeMember>
                <utility:Node gml:id="node-bedding-main">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1278 872 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1225.5 895.25 3 1234 898.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1263 918.5 4.5 1271.5 921.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1209 881.75 1.8 1217.5 884.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:protects xlink:href="#pipe-main"/>
          <utility:fillingMaterial>
            <utility:FillingMaterial gml:id="sand">
              <gml:name>Washed sand</gml:name>
              <utility:type>sand</utility:type>
            </utility:FillingMaterial>
          </utility:fillingMaterial>
          <utility:width uom="m">0.8</utility:width>
        </utility:Bedding>
      </utility:component>
      <utility:component>
        <utility:StorageDevice gml:id="tank">
          <gml:description>Tower on the hill of the lighthouse</gml:description>
          <gml:name>Water tower</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <utility:function>protection</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2012-06-30</utility:yearOfConstruction>
          <utility:status>tempOutOfService</utility:status>
          <utility:locationQuality>assumed</utility:locationQuality>
          <utility:elevationQuality>unknown</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-tank">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-tank">
              <utility:nodeMember>
                <utility:Node gml:id="node-tank">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1257 894.5 4.5</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1203 917.75 1.8 1211.5 920.75 1.8</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1240.5 880 2.4 1249 883 2.4</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1278 903.25 3 1286.5 906.25 3</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>water tower</utility:class>
        </utility:StorageDevice>
      </utility:component>
      <utility:component>
        <utility:MeasurementDevice gml:id="meter">
          <gml:name>Meter of the quay</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <utility:function>control</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>1996-04-01</utility:yearOfConstruction>
          <utility:status>outOfService</utility:status>
          <utility:locationQuality>surveyed</utility:locationQuality>
          <utility:elevationQuality>calculated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-meter">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-meter">
              <utility:nodeMember>
                <utility:Node gml:id="node-meter">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1287 893.75 1.8</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1234.5 916 2.4 1243 919 2.4</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1272 879.25 3 1280.5 882.25 3</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1218 902.5 4.5 1226.5 905.5 4.5</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>flow meter</utility:class>
        </utility:MeasurementDevice>
      </utility:component>
      <utility:component>
        <utility:ControllerDevice gml:id="valve">
          <gml:name>Gate valve</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <utility:function>supply</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2004-09-15</utility:yearOfConstruction>
          <utility:status>destroyed</utility:status>
          <utility:locationQuality>interpolated</utility:locationQuality>
          <utility:elevationQuality>estimated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-valve">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-valve">
              <utility:nodeMember>
                <utility:Node gml:id="node-valve">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1228.5 892 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1266 915.25 3 1274.5 918.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1212 878.5 4.5 1220.5 881.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1249.5 901.75 1.8 1258 904.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>valve</utility:class>
        </utility:ControllerDevice>
      </utility:component>
      <utility:component>
        <utility:TerminalElement gml:id="hydrant">
          <gml:name>Hydrant of the ferry</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <utility:function>protection</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2012-06-30</utility:yearOfConstruction>
          <utility:status>unknown</utility:status>
          <utility:locationQuality>assumed</utility:locationQuality>
          <utility:elevationQuality>unknown</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-hydrant">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-hydrant">
              <utility:nodeMember>
                <utility:Node gml:id="node-hydrant">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1260 891.25 3</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1206 914.5 4.5 1214.5 917.5 4.5</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1243.5 877.75 1.8 1252 880.75 1.8</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1281 900 2.4 1289.5 903 2.4</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>hydrant</utility:class>
        </utility:TerminalElement>
      </utility:component>
      <utility:component>
        <utility:ComplexFunctionalElement gml:id="pumping-station">
          <gml:name>Pumping station</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <utility:function>control</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>1996-04-01</utility:yearOfConstruction>
          <utility:status>inUse</utility:status>
          <utility:locationQuality>surveyed</utility:locationQuality>
          <utility:elevationQuality>calculated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-pumping-station">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-pumping-station">
              <utility:nodeMember>
                <utility:Node gml:id="node-pumping-station">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1200 890.5 4.5</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1237.5 913.75 1.8 1246 916.75 1.8</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1275 876 2.4 1283.5 879 2.4</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1221 899.25 3 1229.5 902.25 3</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>pumping station</utility:class>
        </utility:ComplexFunctionalElement>
      </utility:component>
      <utility:component>
        <utility:RoundShell gml:id="shell-main">
          <gml:name>Casing pipe</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <utility:function>supply</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2004-09-15</utility:yearOfConstruction>
          <utility:status>tempOutOfService</utility:status>
          <utility:locationQuality>interpolated</utility:locationQuality>
          <utility:elevationQuality>estimated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-shell-main">
              <utility:network xlink:href="#water"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-shell-main">
              <utility:nodeMember>
                <utility:Node gml:id="node-shell-main">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1231.5 889.75 1.8</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1269 912 2.4 1277.5 915 2.4</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1215 875.25 3 1223.5 878.25 3</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1252.5 898.5 4.5 1261 901.5 4.5</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:protects xlink:href="#pipe-main"/>
          <utility:fillingMaterial xlink:href="#sand"/>
          <utility:exteriorWidth uom="m">0.4</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.3</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.22</utility:exteriorDiameter>
          <utility:interiorDiameter uom="m">0.2</utility:interiorDiameter>
        </utility:RoundShell>
      </utility:component>
      <utility:topologyGraph>
        <utility:NetworkGraph gml:id="graph-water">
          <gml:name>Graph of the network</gml:name>
          <utility:featureGraphMember xlink:href="#graph-main"/>
          <utility:featureGraphMember xlink:href="#graph-meter"/>
          <utility:linkMember>
            <utility:InterFeatureLink gml:id="link-main-meter">
              <gml:name>From the main to the meter</gml:name>
              <utility:direction>-</utility:direction>
              <utility:start xlink:href="#node-main-end"/>
              <utility:end xlink:href="#node-meter"/>
              <utility:linkControl xlink:href="urn:clairval:link-control"/>
              <utility:realization>
                <gml:LineString><gml:posList>1204.5 916 2.4 1213 919 2.4</gml:posList></gml:LineString>
              </utility:realization>
              <utility:type>contains</utility:type>
            </utility:InterFeatureLink>
          </utility:linkMember>
          <utility:networkLinkMember>
            <utility:NetworkLink gml:id="link-water-power">
              <gml:name>Supply of the pumps</gml:name>
              <utility:direction>+</utility:direction>
              <utility:start xlink:href="#node-cable"/>
              <utility:end xlink:href="#node-pumping-station"/>
              <utility:linkControl xlink:href="urn:clairval:link-control"/>
              <utility:realization>
                <gml:LineString><gml:posList>1225.5 865.75 1.8 1234 868.75 1.8</gml:posList></gml:LineString>
              </utility:realization>
            </utility:NetworkLink>
          </utility:networkLinkMember>
        </utility:NetworkGraph>
      </utility:topologyGraph>
      <utility:superOrdinateNetwork xlink:href="#power"/>
      <utility:subOrdinateNetwork xlink:href="#waste"/>
      <utility:supplyArea>
        <utility:SupplyArea gml:id="area-port">
          <gml:description>Houses that the network supplies</gml:description>
          <gml:name>Quarter of the port</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <grp:class>supply</grp:class>
          <grp:function>town</grp:function>
          <grp:groupMember role="supplied" xlink:href="#maison-du-port"/>
          <grp:parent xlink:href="#water"/>
          <grp:geometry>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon>
                  <gml:exterior>
                    <gml:LinearRing>
                      <gml:posList>1263 888 2.4 1269 888 2.4 1269 888 5.2 1263 888 5.2 1263 888 2.4</gml:posList>
                    </gml:LinearRing>
                  </gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </grp:geometry>
        </utility:SupplyArea>
      </utility:supplyArea>
    </utility:Network>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <utility:Network gml:id="power">
      <gml:name>Electricity</gml:name>
      <core:creationDate>2019-03-12</core:creationDate>
      <utility:class>connection</utility:class>
      <utility:function>protection</utility:function>
      <utility:function>control</utility:function>
      <utility:usage>town</utility:usage>
      <utility:usage>port</utility:usage>
      <utility:networkClass>LowVoltageNetwork</utility:networkClass>
      <utility:functionAndUsage>supply</utility:functionAndUsage>
      <utility:transportedMedium>
        <utility:ElectricalMedium gml:id="medium-power">
          <gml:name>Alternating current</gml:name>
          <utility:owner>Energie du Littoral</utility:owner>
          <utility:isClassifiedBy xlink:href="#class-hypochlorite"/>
          <utility:type>singlePhaseAlternatingCurrent</utility:type>
          <utility:voltageRange uom="V">390 410</utility:voltageRange>
          <utility:amperageRange uom="A">0 63</utility:amperageRange>
          <utility:bandWidth uom="Hz">49.8 50.2</utility:bandWidth>
        </utility:ElectricalMedium>
      </utility:transportedMedium>
      <utility:component>
        <utility:Cable gml:id="cable">
          <gml:name>Cable of the pumps</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <utility:function>supply</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2012-06-30</utility:yearOfConstruction>
          <utility:status>outOfService</utility:status>
          <utility:locationQuality>assumed</utility:locationQuality>
          <utility:elevationQuality>unknown</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-cable">
              <utility:network xlink:href="#power"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-cable">
              <utility:nodeMember>
                <utility:Node gml:id="node-cable">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1245 905.75 1.8</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1282.5 868 2.4 1291 871 2.4</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1230 891.25 3 1238.5 894.25 3</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1266 914.5 4.5 1274.5 917.5 4.5</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>transport</utility:class>
          <utility:functionOfLine>house connection</utility:functionOfLine>
          <utility:isTransmission>false</utility:isTransmission>
          <utility:isCommunication>true</utility:isCommunication>
          <utility:crossSection uom="mm">28</utility:crossSection>
        </utility:Cable>
      </utility:component>
      <utility:component>
        <utility:RectangularShell gml:id="tray">
          <gml:name>Cable tray</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <utility:function>protection</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>1996-04-01</utility:yearOfConstruction>
          <utility:status>destroyed</utility:status>
          <utility:locationQuality>surveyed</utility:locationQuality>
          <utility:elevationQuality>calculated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-tray">
              <utility:network xlink:href="#power"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-tray">
              <utility:nodeMember>
                <utility:Node gml:id="node-tray">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1245 876 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1281 899.25 3 1289.5 902.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1228.5 862.5 4.5 1237 865.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1266 885.75 1.8 1274.5 888.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:protects xlink:href="#pipe-main"/>
          <utility:fillingMaterial xlink:href="#sand"/>
          <utility:exteriorWidth uom="m">0.28</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.25</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.16</utility:exteriorDiameter>
          <utility:interiorWidth uom="m">0.36</utility:interiorWidth>
          <utility:interiorHeight uom="m">0.26</utility:interiorHeight>
        </utility:RectangularShell>
      </utility:component>
      <utility:component>
        <utility:TechDevice gml:id="transformer">
          <gml:name>Transformer</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <utility:function>control</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2004-09-15</utility:yearOfConstruction>
          <utility:status>unknown</utility:status>
          <utility:locationQuality>interpolated</utility:locationQuality>
          <utility:elevationQuality>estimated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-transformer">
              <utility:network xlink:href="#power"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-transformer">
              <utility:nodeMember>
                <utility:Node gml:id="node-transformer">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1243.5 907.25 3</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1281 870.5 4.5 1289.5 873.5 4.5</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1227 893.75 1.8 1235.5 896.75 1.8</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1264.5 916 2.4 1273 919 2.4</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>transformer</utility:class>
        </utility:TechDevice>
      </utility:component>
      <utility:component>
        <utility:SimpleFunctionalElement gml:id="cabinet">
          <gml:name>Junction cabinet</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <utility:function>supply</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2012-06-30</utility:yearOfConstruction>
          <utility:status>inUse</utility:status>
          <utility:locationQuality>assumed</utility:locationQuality>
          <utility:elevationQuality>unknown</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-cabinet">
              <utility:network xlink:href="#power"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-cabinet">
              <utility:nodeMember>
                <utility:Node gml:id="node-cabinet">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1275 906.5 4.5</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1221 869.75 1.8 1229.5 872.75 1.8</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1258.5 892 2.4 1267 895 2.4</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1206 915.25 3 1214.5 918.25 3</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>cabinet</utility:class>
        </utility:SimpleFunctionalElement>
      </utility:component>
      <utility:topologyGraph xlink:href="#graph-water"/>
      <utility:superOrdinateNetwork xlink:href="#power"/>
      <utility:subOrdinateNetwork xlink:href="#water"/>
      <utility:supplyArea xlink:href="#area-port"/>
    </utility:Network>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <utility:Network gml:id="gas">
      <gml:name>Gas</gml:name>
      <core:creationDate>2019-03-12</core:creationDate>
      <utility:class>distribution</utility:class>
      <utility:function>protection</utility:function>
      <utility:function>control</utility:function>
      <utility:usage>town</utility:usage>
      <utility:usage>port</utility:usage>
      <utility:networkClass>LowPressureNetwork</utility:networkClass>
      <utility:functionAndUsage>supply</utility:functionAndUsage>
      <utility:transportedMedium>
        <utility:GaseousMedium gml:id="medium-gas">
          <gml:name>Natural gas</gml:name>
          <utility:owner>Energie du Littoral</utility:owner>
          <utility:isClassifiedBy xlink:href="#class-water"/>
          <utility:type>natural gas</utility:type>
          <utility:concentration uom="g/m3">25</utility:concentration>
          <utility:isExplosive>true</utility:isExplosive>
          <utility:pressureRange uom="bar">0.02 4</utility:pressureRange>
          <utility:electricConductivity uom="uS/cm">1 4</utility:electricConductivity>
          <utility:lighterThanAir>false</utility:lighterThanAir>
        </utility:GaseousMedium>
      </utility:transportedMedium>
      <utility:component>
        <utility:OtherShapePipe gml:id="pipe-gas">
          <gml:name>Old gas pipe</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <utility:function>supply</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>1996-04-01</utility:yearOfConstruction>
          <utility:status>tempOutOfService</utility:status>
          <utility:locationQuality>surveyed</utility:locationQuality>
          <utility:elevationQuality>calculated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-pipe-gas">
              <utility:network xlink:href="#gas"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-pipe-gas">
              <utility:nodeMember>
                <utility:Node gml:id="node-pipe-gas">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1209 881.75 1.8</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1246.5 904 2.4 1255 907 2.4</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1284 867.25 3 1292.5 870.25 3</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1230 890.5 4.5 1238.5 893.5 4.5</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>connection</utility:class>
          <utility:functionOfLine>main line</utility:functionOfLine>
          <utility:isGravity>true</utility:isGravity>
          <utility:exteriorWidth uom="m">0.4</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.3</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.22</utility:exteriorDiameter>
        </utility:OtherShapePipe>
      </utility:component>
      <utility:component>
        <utility:OtherShell gml:id="shell-gas">
          <gml:name>Cover of the gas pipe</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <utility:function>protection</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2004-09-15</utility:yearOfConstruction>
          <utility:status>outOfService</utility:status>
          <utility:locationQuality>interpolated</utility:locationQuality>
          <utility:elevationQuality>estimated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-shell-gas">
              <utility:network xlink:href="#gas"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-shell-gas">
              <utility:nodeMember>
                <utility:Node gml:id="node-shell-gas">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1245 875.25 3</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1282.5 898.5 4.5 1291 901.5 4.5</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1230 861.75 1.8 1238.5 864.75 1.8</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1266 884 2.4 1274.5 887 2.4</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:protects xlink:href="#pipe-main"/>
          <utility:fillingMaterial xlink:href="#sand"/>
          <utility:exteriorWidth uom="m">0.28</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.25</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.16</utility:exteriorDiameter>
        </utility:OtherShell>
      </utility:component>
      <utility:topologyGraph xlink:href="#graph-water"/>
      <utility:superOrdinateNetwork xlink:href="#power"/>
      <utility:subOrdinateNetwork xlink:href="#water"/>
      <utility:supplyArea xlink:href="#area-port"/>
    </utility:Network>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <utility:Network gml:id="waste">
      <gml:name>Waste chutes</gml:name>
      <core:creationDate>2022-02-08</core:creationDate>
      <utility:class>transport</utility:class>
      <utility:function>control</utility:function>
      <utility:function>supply</utility:function>
      <utility:usage>town</utility:usage>
      <utility:usage>port</utility:usage>
      <utility:networkClass>HighPressureNetwork</utility:networkClass>
      <utility:functionAndUsage>disposal</utility:functionAndUsage>
      <utility:transportedMedium>
        <utility:SolidMedium gml:id="medium-waste">
          <gml:name>Household waste</gml:name>
          <utility:owner>City of Clairval</utility:owner>
          <utility:isClassifiedBy xlink:href="#class-chlorine"/>
          <utility:type>household waste</utility:type>
          <utility:isExplosive>false</utility:isExplosive>
          <utility:flammable>0.15</utility:flammable>
          <utility:concentration uom="g/m3">480</utility:concentration>
          <utility:electricConductivity uom="uS/cm">200 600</utility:electricConductivity>
          <utility:pressureRange uom="bar">2 6</utility:pressureRange>
        </utility:SolidMedium>
      </utility:transportedMedium>
      <utility:component>
        <utility:RectangularPipe gml:id="chute">
          <gml:name>Vacuum chute</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <utility:function>protection</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2012-06-30</utility:yearOfConstruction>
          <utility:status>destroyed</utility:status>
          <utility:locationQuality>assumed</utility:locationQuality>
          <utility:elevationQuality>unknown</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-chute">
              <utility:network xlink:href="#waste"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-chute">
              <utility:nodeMember>
                <utility:Node gml:id="node-chute">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1254 896 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1201.5 919.25 3 1210 922.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1239 882.5 4.5 1247.5 885.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1275 905.75 1.8 1283.5 908.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>distribution</utility:class>
          <utility:functionOfLine>house connection</utility:functionOfLine>
          <utility:isGravity>true</utility:isGravity>
          <utility:exteriorWidth uom="m">0.4</utility:exteriorWidth>
          <utility:exteriorHeight uom="m">0.3</utility:exteriorHeight>
          <utility:exteriorDiameter uom="m">0.22</utility:exteriorDiameter>
          <utility:interiorWidth uom="m">0.24</utility:interiorWidth>
          <utility:interiorHeight uom="m">0.22</utility:interiorHeight>
        </utility:RectangularPipe>
      </utility:component>
      <utility:component>
        <utility:AnyDevice gml:id="inlet">
          <gml:name>Inlet of the chute</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <utility:function>control</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>1996-04-01</utility:yearOfConstruction>
          <utility:status>unknown</utility:status>
          <utility:locationQuality>surveyed</utility:locationQuality>
          <utility:elevationQuality>calculated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-inlet">
              <utility:network xlink:href="#waste"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-inlet">
              <utility:nodeMember>
                <utility:Node gml:id="node-inlet">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1275 876 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1221 899.25 3 1229.5 902.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1258.5 862.5 4.5 1267 865.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1206 885.75 1.8 1214.5 888.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:class>waste inlet</utility:class>
        </utility:AnyDevice>
      </utility:component>
      <utility:topologyGraph xlink:href="#graph-water"/>
      <utility:superOrdinateNetwork xlink:href="#power"/>
      <utility:subOrdinateNetwork xlink:href="#water"/>
      <utility:supplyArea xlink:href="#area-port"/>
    </utility:Network>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <utility:Network gml:id="fibre">
      <gml:name>Fibre</gml:name>
      <core:creationDate>2020-06-01</core:creationDate>
      <utility:class>connection</utility:class>
      <utility:function>supply</utility:function>
      <utility:function>protection</utility:function>
      <utility:usage>town</utility:usage>
      <utility:usage>port</utility:usage>
      <utility:networkClass>LowVoltageNetwork</utility:networkClass>
      <utility:functionAndUsage>communication</utility:functionAndUsage>
      <utility:functionAndUsage>supply</utility:functionAndUsage>
      <utility:transportedMedium>
        <utility:OpticalMedium gml:id="medium-light">
          <gml:name>Light</gml:name>
          <utility:owner>City of Clairval</utility:owner>
          <utility:isClassifiedBy xlink:href="#class-hypochlorite"/>
          <utility:type>unknown</utility:type>
          <utility:modeType>multiMode</utility:modeType>
          <utility:bandWidth uom="THz">186 196</utility:bandWidth>
          <utility:coreCrossSection uom="um">9</utility:coreCrossSection>
          <utility:claddingCrossSection uom="um">125</utility:claddingCrossSection>
        </utility:OpticalMedium>
      </utility:transportedMedium>
      <utility:component>
        <utility:ProtectiveElement gml:id="protection-fibre">
          <gml:name>Protective tape</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <utility:function>control</utility:function>
          <utility:usage>town</utility:usage>
          <utility:usage>port</utility:usage>
          <utility:connectedCityObject>#maison-du-port</utility:connectedCityObject>
          <utility:yearOfConstruction>2004-09-15</utility:yearOfConstruction>
          <utility:status>inUse</utility:status>
          <utility:locationQuality>interpolated</utility:locationQuality>
          <utility:elevationQuality>estimated</utility:elevationQuality>
          <utility:hasMaterial xlink:href="#coating-iron"/>
          <utility:consistsOf xlink:href="#sleeve"/>
          <utility:roleInNetwork>
            <utility:RoleInNetwork gml:id="role-protection-fibre">
              <utility:network xlink:href="#fibre"/>
            </utility:RoleInNetwork>
          </utility:roleInNetwork>
          <utility:hollowSpace xlink:href="#duct"/>
          <utility:topoGraph>
            <utility:FeatureGraph gml:id="graph-protection-fibre">
              <utility:nodeMember>
                <utility:Node gml:id="node-protection-fibre">
                  <utility:type>exterior</utility:type>
                </utility:Node>
              </utility:nodeMember>
            </utility:FeatureGraph>
          </utility:topoGraph>
          <utility:lod1Geometry><gml:Point><gml:pos>1263 888 2.4</gml:pos></gml:Point></utility:lod1Geometry>
          <utility:lod2Geometry>
            <gml:LineString><gml:posList>1209 911.25 3 1217.5 914.25 3</gml:posList></gml:LineString>
          </utility:lod2Geometry>
          <utility:lod3Geometry>
            <gml:LineString><gml:posList>1246.5 874.5 4.5 1255 877.5 4.5</gml:posList></gml:LineString>
          </utility:lod3Geometry>
          <utility:lod4Geometry>
            <gml:LineString><gml:posList>1284 897.75 1.8 1292.5 900.75 1.8</gml:posList></gml:LineString>
          </utility:lod4Geometry>
          <utility:protects xlink:href="#cable"/>
          <utility:fillingMaterial xlink:href="#sand"/>
        </utility:ProtectiveElement>
      </utility:component>
      <utility:topologyGraph xlink:href="#graph-water"/>
      <utility:superOrdinateNetwork xlink:href="#power"/>
      <utility:subOrdinateNetwork xlink:href="#water"/>
      <utility:supplyArea xlink:href="#area-port"/>
    </utility:Network>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <utility:HollowSpacePart gml:id="duct-part-2">
      <gml:name>Chamber at the lighthouse</gml:name>
      <core:creationDate>2022-02-08</core:creationDate>
      <utility:consistsOf xlink:href="#duct-part"/>
      <utility:contains xlink:href="#valve"/>
    </utility:HollowSpacePart>
  </core:cityObjectMember>
</core:CityModel>
