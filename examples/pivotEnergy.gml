<?xml version="1.0" encoding="UTF-8"?>
<!-- A house with its heating, cooling, ventilation, light and solar systems, its components and its environmental indicators -->
<core:CityModel xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:bldg="http://www.opengis.net/citygml/building/2.0"
    xmlns:component="urn:tolvik:citygml:component:1.0"
    xmlns:energy="http://www.sig3d.org/citygml/2.0/energy/1.0"
    xmlns:pivotEnergy="urn:tolvik:citygml:pivotEnergy:1.0"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Systems of the Maison du Port</gml:name>
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
      <pivotEnergy:energyConsumption>
        <pivotEnergy:EnergyConsumption gml:id="consumption-heating">
          <gml:name>Heating of a year</gml:name>
          <pivotEnergy:endUse>SpaceHeating</pivotEnergy:endUse>
          <pivotEnergy:energySource>naturalGas</pivotEnergy:energySource>
          <pivotEnergy:value uom="kWh">15400</pivotEnergy:value>
          <pivotEnergy:primaryEnergyFactor>1.1</pivotEnergy:primaryEnergyFactor>
          <pivotEnergy:system xlink:href="#boiler"/>
        </pivotEnergy:EnergyConsumption>
      </pivotEnergy:energyConsumption>
      <pivotEnergy:energyConsumption>
        <pivotEnergy:EnergyConsumption gml:id="consumption-light">
          <gml:name>Light of a year</gml:name>
          <pivotEnergy:endUse>Lighting</pivotEnergy:endUse>
          <pivotEnergy:energySource>electricity</pivotEnergy:energySource>
          <pivotEnergy:value uom="kWh">2100</pivotEnergy:value>
          <pivotEnergy:primaryEnergyFactor>2.3</pivotEnergy:primaryEnergyFactor>
          <pivotEnergy:system xlink:href="#lights"/>
        </pivotEnergy:EnergyConsumption>
      </pivotEnergy:energyConsumption>
      <pivotEnergy:environmentalIndicator>
        <pivotEnergy:EnvironmentalIndicator gml:id="indicator-warming">
          <gml:name>Greenhouse gases</gml:name>
          <pivotEnergy:impactCategory>GlobalWarming</pivotEnergy:impactCategory>
          <pivotEnergy:LCIAMethod>EN 15804</pivotEnergy:LCIAMethod>
          <pivotEnergy:impactCategoryValue uom="kg">412.6</pivotEnergy:impactCategoryValue>
          <pivotEnergy:contributorType>Energy</pivotEnergy:contributorType>
          <pivotEnergy:lifeCycleStage>Refurbishment</pivotEnergy:lifeCycleStage>
          <pivotEnergy:constructionPackage>FoundationsAndInfrastructures</pivotEnergy:constructionPackage>
        </pivotEnergy:EnvironmentalIndicator>
      </pivotEnergy:environmentalIndicator>
      <pivotEnergy:environmentalIndicator>
        <pivotEnergy:EnvironmentalIndicator gml:id="indicator-water">
          <gml:name>Use of water</gml:name>
          <pivotEnergy:impactCategory>NetUseOfFreshWater</pivotEnergy:impactCategory>
          <pivotEnergy:LCIAMethod>Clairval 2020</pivotEnergy:LCIAMethod>
          <pivotEnergy:impactCategoryValue uom="m3">310</pivotEnergy:impactCategoryValue>
          <pivotEnergy:contributorType>Water</pivotEnergy:contributorType>
          <pivotEnergy:lifeCycleStage>DeconstructionDemolition</pivotEnergy:lifeCycleStage>
          <pivotEnergy:constructionPackage>Superstructure/Masonry</pivotEnergy:constructionPackage>
        </pivotEnergy:EnvironmentalIndicator>
      </pivotEnergy:environmentalIndicator>
      <bldg:class>habitation</bldg:class>
      <bldg:yearOfConstruction>1974</bldg:yearOfConstruction>
      <bldg:measuredHeight uom="m">12.8</bldg:measuredHeight>
      <bldg:storeysAboveGround>4</bldg:storeysAboveGround>
      <pivotEnergy:buildingLifeExpectancy unit="year" radix="10" factor="0">90</pivotEnergy:buildingLifeExpectancy>
      <pivotEnergy:durationOfConstruction unit="day">486</pivotEnergy:durationOfConstruction>
      <pivotEnergy:environnementContext>RuralArea</pivotEnergy:environnementContext>
      <pivotEnergy:facadeMainFillingMaterial>mineral wool</pivotEnergy:facadeMainFillingMaterial>
      <pivotEnergy:footprintArea uom="m2">236</pivotEnergy:footprintArea>
      <pivotEnergy:foundationConstructiveSystem>strip footing</pivotEnergy:foundationConstructiveSystem>
      <pivotEnergy:mainConstructionSystem>load-bearing masonry</pivotEnergy:mainConstructionSystem>
      <pivotEnergy:mainMaterial>limestone</pivotEnergy:mainMaterial>
      <pivotEnergy:minSoundInsulation uom="dB">38</pivotEnergy:minSoundInsulation>
      <pivotEnergy:nbDwelling>18</pivotEnergy:nbDwelling>
      <pivotEnergy:nextLifeCycleStage>Refurbishment</pivotEnergy:nextLifeCycleStage>
      <pivotEnergy:shapeLevelDifference uom="m">1.4</pivotEnergy:shapeLevelDifference>
      <pivotEnergy:yearOfRefurbishment>2018</pivotEnergy:yearOfRefurbishment>
      <energy:thermalZone>
        <energy:ThermalZone gml:id="zone-homes">
          <gml:description>Zone that the systems serve</gml:description>
          <gml:name>Apartments</gml:name>
          <energy:isCooled>true</energy:isCooled>
          <energy:isHeated>true</energy:isHeated>
          <energy:boundedBy>
            <energy:ThermalBoundary gml:id="boundary-quay">
              <gml:name>Outer wall to the quay</gml:name>
              <energy:thermalBoundaryType>OuterWall</energy:thermalBoundaryType>
              <energy:construction>
                <pivotEnergy:GlobalConstruction gml:id="construction-wall">
                  <gml:name>Wall as a whole</gml:name>
                  <pivotEnergy:color>Medium</pivotEnergy:color>
                  <pivotEnergy:dateOfRufurbishement>2017</pivotEnergy:dateOfRufurbishement>
                  <pivotEnergy:inertiaClass>Medium</pivotEnergy:inertiaClass>
                  <pivotEnergy:uValue uom="W/(m2.K)">1.2</pivotEnergy:uValue>
                </pivotEnergy:GlobalConstruction>
              </energy:construction>
              <energy:contains>
                <energy:ThermalOpening gml:id="opening-living">
                  <gml:name>Window of the living room</gml:name>
                  <energy:area uom="m2">2.1</energy:area>
                  <energy:construction>
                    <pivotEnergy:GlobalConstruction gml:id="construction-window">
                      <gml:name>Window as a whole</gml:name>
                      <pivotEnergy:color>Dark</pivotEnergy:color>
                      <pivotEnergy:dateOfRufurbishement>2017</pivotEnergy:dateOfRufurbishement>
                      <pivotEnergy:inertiaClass>Heavy</pivotEnergy:inertiaClass>
                      <pivotEnergy:uValue uom="W/(m2.K)">1.1</pivotEnergy:uValue>
                    </pivotEnergy:GlobalConstruction>
                  </energy:construction>
                  <pivotEnergy:openingThermalProperties>
                    <pivotEnergy:OpeningThermalProperties gml:id="properties-window">
                      <gml:name>Thermal properties of the window</gml:name>
                      <pivotEnergy:shading>
                        <pivotEnergy:ShadingType>
                          <pivotEnergy:shadingType>Opaque</pivotEnergy:shadingType>
                          <pivotEnergy:color>Black</pivotEnergy:color>
                          <pivotEnergy:shadingPosition>Outside</pivotEnergy:shadingPosition>
                          <pivotEnergy:dateOfRefurbishment>2012</pivotEnergy:dateOfRefurbishment>
                          <pivotEnergy:shadingManagement>Automatic</pivotEnergy:shadingManagement>
                        </pivotEnergy:ShadingType>
                      </pivotEnergy:shading>
                      <pivotEnergy:transmittance>
                        <energy:Transmittance>
                          <energy:fraction uom="1">0.9</energy:fraction>
                          <energy:wavelengthRange>Infrared</energy:wavelengthRange>
                        </energy:Transmittance>
                      </pivotEnergy:transmittance>
                    </pivotEnergy:OpeningThermalProperties>
                  </pivotEnergy:openingThermalProperties>
                </energy:ThermalOpening>
              </energy:contains>
              <energy:delimits xlink:href="#zone-homes"/>
              <pivotEnergy:boundaryContext>OnCourtyard</pivotEnergy:boundaryContext>
              <pivotEnergy:insulationTypeEnumeration>InteriorThermalInsulation</pivotEnergy:insulationTypeEnumeration>
              <pivotEnergy:orderedComponent>
                <pivotEnergy:OrderedComponent gml:id="ordered-1">
                  <gml:name>Outer leaf</gml:name>
                  <pivotEnergy:directOrder>false</pivotEnergy:directOrder>
                  <pivotEnergy:component>
                    <component:Component gml:id="component-wall">
                      <gml:name>Wall component</gml:name>
                      <component:area uom="m2">86.4</component:area>
                      <component:componentType>
                        <component:LayeredComponentType gml:id="layer-brick">
                          <gml:name>Brickwork</gml:name>
                          <component:thickness uom="m">0.34</component:thickness>
                          <pivotEnergy:density uom="kg/m3">1800</pivotEnergy:density>
                          <pivotEnergy:specificHeat uom="J/(kg.K)">920</pivotEnergy:specificHeat>
                          <pivotEnergy:thermalConductivity uom="W/(m.K)">0.75</pivotEnergy:thermalConductivity>
                        </component:LayeredComponentType>
                      </component:componentType>
                    </component:Component>
                  </pivotEnergy:component>
                </pivotEnergy:OrderedComponent>
              </pivotEnergy:orderedComponent>
              <pivotEnergy:orderedComponent>
                <pivotEnergy:OrderedComponent gml:id="ordered-2">
                  <gml:name>Window in the wall</gml:name>
                  <pivotEnergy:directOrder>true</pivotEnergy:directOrder>
                  <pivotEnergy:component>
                    <pivotEnergy:ComponentForEnergy gml:id="component-window">
                      <gml:description>Window of the package of the envelope</gml:description>
                      <gml:name>Window component</gml:name>
                      <core:creationDate>2019-03-12</core:creationDate>
                      <component:area uom="m2">42.5</component:area>
                      <component:length uom="m">12.4</component:length>
                      <component:volume uom="m3">15.3</component:volume>
                      <component:unit>6</component:unit>
                      <component:startOfLife>1998-05-12</component:startOfLife>
                      <component:componentType>
                        <component:OpeningComponentType gml:id="window-type">
                          <gml:name>Window with triple glazing</gml:name>
                          <component:width uom="m">1.2</component:width>
                          <component:height uom="m">1.45</component:height>
                          <component:openingType>OnePanelTiltTurnWindow</component:openingType>
                          <component:part>
                            <pivotEnergy:ThermalBridgeBreaker gml:id="breaker">
                              <gml:name>Break in the frame</gml:name>
                              <component:lifeExpectancy unit="year">80</component:lifeExpectancy>
                              <component:constructionPackage>shell</component:constructionPackage>
                              <component:typeOfComponent>wall</component:typeOfComponent>
                              <component:componentReference>
                                <component:ComponentReference gml:id="reference-breaker">
                                  <gml:name>Profile of the catalogue</gml:name>
                                  <component:dataSourceURI>https://catalogue.example/bricks/310</component:dataSourceURI>
                                  <component:productID>BRQ-310</component:productID>
                                  <component:dataSourceName>Catalogue des tuileries de Clairval</component:dataSourceName>
                                </component:ComponentReference>
                              </component:componentReference>
                            </pivotEnergy:ThermalBridgeBreaker>
                          </component:part>
                          <pivotEnergy:uValue uom="W/(m2.K)">0.9</pivotEnergy:uValue>
                          <pivotEnergy:shading>
                            <pivotEnergy:ShadingType>
                              <pivotEnergy:shadingType>Transparent</pivotEnergy:shadingType>
                              <pivotEnergy:color>Clear</pivotEnergy:color>
                              <pivotEnergy:shadingPosition>Inside</pivotEnergy:shadingPosition>
                              <pivotEnergy:dateOfRefurbishment>2015</pivotEnergy:dateOfRefurbishment>
                              <pivotEnergy:shadingManagement>Manual</pivotEnergy:shadingManagement>
                            </pivotEnergy:ShadingType>
                          </pivotEnergy:shading>
                          <pivotEnergy:transmittance>
                            <energy:Transmittance>
                              <energy:fraction uom="1">0.35</energy:fraction>
                              <energy:wavelengthRange>Visible</energy:wavelengthRange>
                            </energy:Transmittance>
                          </pivotEnergy:transmittance>
                        </component:OpeningComponentType>
                      </component:componentType>
                      <pivotEnergy:constructionPackageType>FoundationsAndInfrastructures</pivotEnergy:constructionPackageType>
                    </pivotEnergy:ComponentForEnergy>
                  </pivotEnergy:component>
                </pivotEnergy:OrderedComponent>
              </pivotEnergy:orderedComponent>
              <pivotEnergy:orderedComponent>
                <pivotEnergy:OrderedComponent gml:id="ordered-3">
                  <gml:name>Shop window</gml:name>
                  <pivotEnergy:directOrder>false</pivotEnergy:directOrder>
                  <pivotEnergy:component>
                    <pivotEnergy:ComponentForEnergy gml:id="component-shop-window">
                      <gml:name>Shop window</gml:name>
                      <component:unit>2</component:unit>
                      <component:componentType xlink:href="#window-type"/>
                      <pivotEnergy:constructionPackageType>other:shopfront</pivotEnergy:constructionPackageType>
                    </pivotEnergy:ComponentForEnergy>
                  </pivotEnergy:component>
                </pivotEnergy:OrderedComponent>
              </pivotEnergy:orderedComponent>
              <pivotEnergy:refurbishementOpportunity>true</pivotEnergy:refurbishementOpportunity>
              <pivotEnergy:thermalBridge>
                <pivotEnergy:ThermalBridge gml:id="bridge-slab">
                  <gml:name>Edge of the slab</gml:name>
                  <pivotEnergy:psi uom="W/(m.K)">0.08</pivotEnergy:psi>
                  <pivotEnergy:length uom="m">18</pivotEnergy:length>
                </pivotEnergy:ThermalBridge>
              </pivotEnergy:thermalBridge>
            </energy:ThermalBoundary>
          </energy:boundedBy>
          <energy:contains>
            <energy:UsageZone gml:id="usage-homes">
              <gml:name>Apartments in use</gml:name>
              <energy:usageZoneType>residential</energy:usageZoneType>
              <pivotEnergy:nbDwellings>16</pivotEnergy:nbDwellings>
            </energy:UsageZone>
          </energy:contains>
          <pivotEnergy:airPermeability uom="m3/(h.m2)">1.7</pivotEnergy:airPermeability>
          <pivotEnergy:ceilingHeight uom="m">2.6</pivotEnergy:ceilingHeight>
          <pivotEnergy:frontAndRearOverture>true</pivotEnergy:frontAndRearOverture>
          <pivotEnergy:multipleExposure>false</pivotEnergy:multipleExposure>
          <pivotEnergy:storeys>4</pivotEnergy:storeys>
          <pivotEnergy:nbDwellings>18</pivotEnergy:nbDwellings>
        </energy:ThermalZone>
      </energy:thermalZone>
      <pivotEnergy:system>
        <pivotEnergy:ConnectedEmitter gml:id="radiators">
          <gml:description>Emitters on the water loop</gml:description>
          <gml:name>Radiators and cool ceilings</gml:name>
          <gml:name codeSpace="urn:clairval:register">PC-RADIATORS</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <core:terminationDate>2095-12-31</core:terminationDate>
          <core:externalReference>
            <core:informationSystem>https://register.example/clairval</core:informationSystem>
            <core:externalObject><core:uri>urn:clairval:object:412</core:uri></core:externalObject>
          </core:externalReference>
          <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
          <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
          <pivotEnergy:usage>heating</pivotEnergy:usage>
          <pivotEnergy:usage>hot water</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:dateOfRefurbishment>2018</pivotEnergy:dateOfRefurbishment>
          <pivotEnergy:emitterProgType>FixedTimeScheduled</pivotEnergy:emitterProgType>
          <pivotEnergy:heatingEmitter>
            <pivotEnergy:ConnectedHeatingEmitter gml:id="radiators-living">
              <gml:name>Radiators of the living rooms</gml:name>
              <pivotEnergy:spaceRatio uom="1">0.7</pivotEnergy:spaceRatio>
              <pivotEnergy:priority>BackupEmitter</pivotEnergy:priority>
              <pivotEnergy:emitterType>HighTemperatureHeatingFloor</pivotEnergy:emitterType>
              <pivotEnergy:regulationType>ManualControlValve</pivotEnergy:regulationType>
              <pivotEnergy:power uom="kW">6.4</pivotEnergy:power>
              <pivotEnergy:distribution>
                <pivotEnergy:HydraulicDistribution gml:id="heating-pipes">
                  <gml:name>Heating pipes</gml:name>
                  <core:creationDate>2021-11-23</core:creationDate>
                  <pivotEnergy:usage>cooling</pivotEnergy:usage>
                  <pivotEnergy:usage>ventilation</pivotEnergy:usage>
                  <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                  <pivotEnergy:distributionType>SingleTube</pivotEnergy:distributionType>
                  <pivotEnergy:isCirculation>true</pivotEnergy:isCirculation>
                  <pivotEnergy:disTemperatureProductionManagement>None</pivotEnergy:disTemperatureProductionManagement>
                  <pivotEnergy:flowManagement>ProgressiveWithTemperatureControl</pivotEnergy:flowManagement>
                  <pivotEnergy:startAndStopManagement>Regulated</pivotEnergy:startAndStopManagement>
                  <pivotEnergy:dateOfRefurbishment>2021</pivotEnergy:dateOfRefurbishment>
                  <pivotEnergy:portion>
                    <pivotEnergy:DistributionPortion gml:id="portion-riser">
                      <gml:name>Riser</gml:name>
                      <pivotEnergy:length uom="m">7.5</pivotEnergy:length>
                      <pivotEnergy:insulation>
                        <pivotEnergy:DistributionPortionInsulation>
                          <pivotEnergy:insulationClass>UnderSheath</pivotEnergy:insulationClass>
                          <pivotEnergy:thickness uom="m">0.03</pivotEnergy:thickness>
                        </pivotEnergy:DistributionPortionInsulation>
                      </pivotEnergy:insulation>
                      <pivotEnergy:goThrough>
                        <pivotEnergy:GoThrough gml:id="through-cellar">
                          <gml:name>Through the cellar</gml:name>
                          <pivotEnergy:percentage uom="m">0.6</pivotEnergy:percentage>
                          <pivotEnergy:ThermalZonePerimeter>42</pivotEnergy:ThermalZonePerimeter>
                          <pivotEnergy:thermalZone xlink:href="#zone-homes"/>
                        </pivotEnergy:GoThrough>
                      </pivotEnergy:goThrough>
                    </pivotEnergy:DistributionPortion>
                  </pivotEnergy:portion>
                  <pivotEnergy:portion>
                    <pivotEnergy:HydraulicDistributionPortion gml:id="portion-cellar">
                      <gml:name>Pipes in the cellar</gml:name>
                      <pivotEnergy:length uom="m">12.2</pivotEnergy:length>
                      <pivotEnergy:insulation>
                        <pivotEnergy:DistributionPortionInsulation>
                          <pivotEnergy:insulationClass>InsulationClass1</pivotEnergy:insulationClass>
                          <pivotEnergy:thickness uom="m">0.02</pivotEnergy:thickness>
                        </pivotEnergy:DistributionPortionInsulation>
                      </pivotEnergy:insulation>
                      <pivotEnergy:goThrough xlink:href="#through-cellar"/>
                      <pivotEnergy:distributionPortionInsulation>InsulationClass2</pivotEnergy:distributionPortionInsulation>
                    </pivotEnergy:HydraulicDistributionPortion>
                  </pivotEnergy:portion>
                  <pivotEnergy:generation>
                    <pivotEnergy:GenerationManagement gml:id="boiler-room">
                      <gml:description>Generators, their control and their tank</gml:description>
                      <gml:name>Boiler room</gml:name>
                      <core:creationDate>2022-02-08</core:creationDate>
                      <pivotEnergy:usage>lighting</pivotEnergy:usage>
                      <pivotEnergy:usage>heating</pivotEnergy:usage>
                      <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                      <pivotEnergy:priorityManagement>GeneratorsOperatingInSeries</pivotEnergy:priorityManagement>
                      <pivotEnergy:genTemperatureProductionManagementHeat>IndoorTemperatureModulation</pivotEnergy:genTemperatureProductionManagementHeat>
                      <pivotEnergy:genTemperatureProductionManagementCold>OutdoorTemperatureModulation</pivotEnergy:genTemperatureProductionManagementCold>
                      <pivotEnergy:generateur>
                        <pivotEnergy:Boiler gml:id="boiler">
                          <gml:name>Gas boiler</gml:name>
                          <core:creationDate>2018-09-30</core:creationDate>
                          <pivotEnergy:usage>hot water</pivotEnergy:usage>
                          <pivotEnergy:usage>cooling</pivotEnergy:usage>
                          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                          <pivotEnergy:dateOfRefurbishment>2012</pivotEnergy:dateOfRefurbishment>
                          <pivotEnergy:function>InstantaneousCooling</pivotEnergy:function>
                          <pivotEnergy:heatingPriorityIndex>2</pivotEnergy:heatingPriorityIndex>
                          <pivotEnergy:DHWPriorityIndex>1</pivotEnergy:DHWPriorityIndex>
                          <pivotEnergy:coolingPriorityIndex>3</pivotEnergy:coolingPriorityIndex>
                          <pivotEnergy:accumulationSchedule>Night</pivotEnergy:accumulationSchedule>
                          <pivotEnergy:nbSameType>2</pivotEnergy:nbSameType>
                          <pivotEnergy:generatorProductionControlType>Progressive</pivotEnergy:generatorProductionControlType>
                          <pivotEnergy:boilerType>LowTemperatureBoiler</pivotEnergy:boilerType>
                          <pivotEnergy:nominalPower uom="kW">24</pivotEnergy:nominalPower>
                          <pivotEnergy:nominalEfficiency uom="1">0.96</pivotEnergy:nominalEfficiency>
                          <pivotEnergy:fuelType>FuelOil</pivotEnergy:fuelType>
                          <pivotEnergy:intermediateEfficiency uom="1">1.02</pivotEnergy:intermediateEfficiency>
                        </pivotEnergy:Boiler>
                      </pivotEnergy:generateur>
                      <pivotEnergy:generateur>
                        <pivotEnergy:DistrictHeating gml:id="substation">
                          <gml:name>District heating substation</gml:name>
                          <core:creationDate>2019-03-12</core:creationDate>
                          <pivotEnergy:usage>ventilation</pivotEnergy:usage>
                          <pivotEnergy:usage>lighting</pivotEnergy:usage>
                          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                          <pivotEnergy:dateOfRefurbishment>2015</pivotEnergy:dateOfRefurbishment>
                          <pivotEnergy:function>InstantaneousDHW</pivotEnergy:function>
                          <pivotEnergy:heatingPriorityIndex>2</pivotEnergy:heatingPriorityIndex>
                          <pivotEnergy:DHWPriorityIndex>1</pivotEnergy:DHWPriorityIndex>
                          <pivotEnergy:coolingPriorityIndex>3</pivotEnergy:coolingPriorityIndex>
                          <pivotEnergy:accumulationSchedule>Day</pivotEnergy:accumulationSchedule>
                          <pivotEnergy:nbSameType>2</pivotEnergy:nbSameType>
                          <pivotEnergy:generatorProductionControlType>On/Off</pivotEnergy:generatorProductionControlType>
                          <pivotEnergy:districtHeatingType>HighTemperatureWater</pivotEnergy:districtHeatingType>
                          <pivotEnergy:exchangePower uom="kW">60</pivotEnergy:exchangePower>
                        </pivotEnergy:DistrictHeating>
                      </pivotEnergy:generateur>
                      <pivotEnergy:generateur>
                        <pivotEnergy:ElectricHeatPump gml:id="electric-heat-pump">
                          <gml:name>Heat pump on the roof</gml:name>
                          <core:creationDate>2020-06-01</core:creationDate>
                          <pivotEnergy:usage>heating</pivotEnergy:usage>
                          <pivotEnergy:usage>hot water</pivotEnergy:usage>
                          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                          <pivotEnergy:dateOfRefurbishment>2018</pivotEnergy:dateOfRefurbishment>
                          <pivotEnergy:function>InstantaneousHeatingAndDHW</pivotEnergy:function>
                          <pivotEnergy:heatingPriorityIndex>2</pivotEnergy:heatingPriorityIndex>
                          <pivotEnergy:DHWPriorityIndex>1</pivotEnergy:DHWPriorityIndex>
                          <pivotEnergy:coolingPriorityIndex>3</pivotEnergy:coolingPriorityIndex>
                          <pivotEnergy:accumulationSchedule>Permanent</pivotEnergy:accumulationSchedule>
                          <pivotEnergy:nbSameType>2</pivotEnergy:nbSameType>
                          <pivotEnergy:generatorProductionControlType>Progressive</pivotEnergy:generatorProductionControlType>
                          <pivotEnergy:heatPumpType>FreshAir/RecycledAir</pivotEnergy:heatPumpType>
                          <pivotEnergy:heatNominalPower uom="kW">14</pivotEnergy:heatNominalPower>
                          <pivotEnergy:coolingNominalPower uom="kW">9</pivotEnergy:coolingNominalPower>
                          <pivotEnergy:DHWNominalPower uom="kW">6.5</pivotEnergy:DHWNominalPower>
                          <pivotEnergy:heatingCOP uom="1">3.8</pivotEnergy:heatingCOP>
                          <pivotEnergy:DHWCOP uom="1">2.7</pivotEnergy:DHWCOP>
                          <pivotEnergy:coolingEER uom="1">3.1</pivotEnergy:coolingEER>
                          <pivotEnergy:waterSourceType>VerticalCollectors</pivotEnergy:waterSourceType>
                          <pivotEnergy:condensorTempCOP uom="degC">35</pivotEnergy:condensorTempCOP>
                          <pivotEnergy:evaporatorTempCOP uom="degC">7</pivotEnergy:evaporatorTempCOP>
                          <pivotEnergy:condensorTempEER uom="degC">40</pivotEnergy:condensorTempEER>
                          <pivotEnergy:evaporatorTempEER uom="degC">12</pivotEnergy:evaporatorTempEER>
                          <pivotEnergy:compressorType>On-Off</pivotEnergy:compressorType>
                        </pivotEnergy:ElectricHeatPump>
                      </pivotEnergy:generateur>
                      <pivotEnergy:generateur>
                        <pivotEnergy:GasHeatPump gml:id="gas-heat-pump">
                          <gml:name>Gas heat pump</gml:name>
                          <core:creationDate>2021-11-23</core:creationDate>
                          <pivotEnergy:usage>cooling</pivotEnergy:usage>
                          <pivotEnergy:usage>ventilation</pivotEnergy:usage>
                          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                          <pivotEnergy:dateOfRefurbishment>2021</pivotEnergy:dateOfRefurbishment>
                          <pivotEnergy:function>InstantaneousHeatingAndCooling</pivotEnergy:function>
                          <pivotEnergy:heatingPriorityIndex>2</pivotEnergy:heatingPriorityIndex>
                          <pivotEnergy:DHWPriorityIndex>1</pivotEnergy:DHWPriorityIndex>
                          <pivotEnergy:coolingPriorityIndex>3</pivotEnergy:coolingPriorityIndex>
                          <pivotEnergy:accumulationSchedule>Night</pivotEnergy:accumulationSchedule>
                          <pivotEnergy:nbSameType>2</pivotEnergy:nbSameType>
                          <pivotEnergy:generatorProductionControlType>On/Off</pivotEnergy:generatorProductionControlType>
                          <pivotEnergy:heatPumpType>GlycoledWater/Water</pivotEnergy:heatPumpType>
                          <pivotEnergy:heatNominalPower uom="kW">22</pivotEnergy:heatNominalPower>
                          <pivotEnergy:coolingNominalPower uom="kW">7.5</pivotEnergy:coolingNominalPower>
                          <pivotEnergy:DHWNominalPower uom="kW">8</pivotEnergy:DHWNominalPower>
                          <pivotEnergy:heatingGUE uom="1">1.5</pivotEnergy:heatingGUE>
                          <pivotEnergy:coolingGUE uom="1">0.7</pivotEnergy:coolingGUE>
                          <pivotEnergy:DHWGUE uom="1">1.2</pivotEnergy:DHWGUE>
                          <pivotEnergy:condensorTempCOP uom="degC">45</pivotEnergy:condensorTempCOP>
                          <pivotEnergy:evaporatorTempCOP uom="degC">2</pivotEnergy:evaporatorTempCOP>
                          <pivotEnergy:condensorTempEER uom="degC">38</pivotEnergy:condensorTempEER>
                          <pivotEnergy:evaporatorTempEER uom="degC">18</pivotEnergy:evaporatorTempEER>
                          <pivotEnergy:waterSourceType>CoolingTower</pivotEnergy:waterSourceType>
                        </pivotEnergy:GasHeatPump>
                      </pivotEnergy:generateur>
                      <pivotEnergy:generateur>
                        <pivotEnergy:ElectricHeaterGenerator gml:id="immersion-heater">
                          <gml:name>Immersion heater</gml:name>
                          <core:creationDate>2022-02-08</core:creationDate>
                          <pivotEnergy:usage>lighting</pivotEnergy:usage>
                          <pivotEnergy:usage>heating</pivotEnergy:usage>
                          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                          <pivotEnergy:dateOfRefurbishment>2012</pivotEnergy:dateOfRefurbishment>
                          <pivotEnergy:function>HeatingAccumulation</pivotEnergy:function>
                          <pivotEnergy:heatingPriorityIndex>2</pivotEnergy:heatingPriorityIndex>
                          <pivotEnergy:DHWPriorityIndex>1</pivotEnergy:DHWPriorityIndex>
                          <pivotEnergy:coolingPriorityIndex>3</pivotEnergy:coolingPriorityIndex>
                          <pivotEnergy:accumulationSchedule>Day</pivotEnergy:accumulationSchedule>
                          <pivotEnergy:nbSameType>2</pivotEnergy:nbSameType>
                          <pivotEnergy:generatorProductionControlType>Progressive</pivotEnergy:generatorProductionControlType>
                          <pivotEnergy:elecNominalPower uom="kW">4.5</pivotEnergy:elecNominalPower>
                        </pivotEnergy:ElectricHeaterGenerator>
                      </pivotEnergy:generateur>
                      <pivotEnergy:generateur>
                        <pivotEnergy:Generator gml:id="wood-stove">
                          <gml:name>Wood stove</gml:name>
                          <core:creationDate>2018-09-30</core:creationDate>
                          <pivotEnergy:usage>hot water</pivotEnergy:usage>
                          <pivotEnergy:usage>cooling</pivotEnergy:usage>
                          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                          <pivotEnergy:dateOfRefurbishment>2015</pivotEnergy:dateOfRefurbishment>
                          <pivotEnergy:function>DHWAccumulation</pivotEnergy:function>
                          <pivotEnergy:heatingPriorityIndex>2</pivotEnergy:heatingPriorityIndex>
                          <pivotEnergy:DHWPriorityIndex>1</pivotEnergy:DHWPriorityIndex>
                          <pivotEnergy:coolingPriorityIndex>3</pivotEnergy:coolingPriorityIndex>
                          <pivotEnergy:accumulationSchedule>Permanent</pivotEnergy:accumulationSchedule>
                          <pivotEnergy:nbSameType>2</pivotEnergy:nbSameType>
                          <pivotEnergy:generatorProductionControlType>On/Off</pivotEnergy:generatorProductionControlType>
                        </pivotEnergy:Generator>
                      </pivotEnergy:generateur>
                      <pivotEnergy:generateur>
                        <pivotEnergy:Generateur gml:id="spare-generator">
                          <gml:name>Spare place</gml:name>
                          <core:creationDate>2019-03-12</core:creationDate>
                          <pivotEnergy:usage>ventilation</pivotEnergy:usage>
                          <pivotEnergy:usage>lighting</pivotEnergy:usage>
                          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                        </pivotEnergy:Generateur>
                      </pivotEnergy:generateur>
                      <pivotEnergy:generatorControl>
                        <pivotEnergy:GeneratorControl gml:id="control-boiler">
                          <gml:name>Control of the boiler</gml:name>
                          <pivotEnergy:generatorProductionControlType>Progressive</pivotEnergy:generatorProductionControlType>
                        </pivotEnergy:GeneratorControl>
                      </pivotEnergy:generatorControl>
                      <pivotEnergy:storage>
                        <pivotEnergy:Storage gml:id="tank">
                          <gml:name>Hot water tank</gml:name>
                          <core:creationDate>2020-06-01</core:creationDate>
                          <pivotEnergy:usage>heating</pivotEnergy:usage>
                          <pivotEnergy:usage>hot water</pivotEnergy:usage>
                          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                          <pivotEnergy:dateOfRufurbishment>2014</pivotEnergy:dateOfRufurbishment>
                          <pivotEnergy:priorityDHWIndex>1</pivotEnergy:priorityDHWIndex>
                          <pivotEnergy:priorityHeatingIndex>2</pivotEnergy:priorityHeatingIndex>
                          <pivotEnergy:nbAssemblySameType>1</pivotEnergy:nbAssemblySameType>
                          <pivotEnergy:nbStoSameTypeByAssembly>2</pivotEnergy:nbStoSameTypeByAssembly>
                          <pivotEnergy:storageVolume uom="m3">0.5</pivotEnergy:storageVolume>
                          <pivotEnergy:isStorageVertical>false</pivotEnergy:isStorageVertical>
                          <pivotEnergy:storageHeatLosses uom="W/K">2.4</pivotEnergy:storageHeatLosses>
                          <pivotEnergy:storageSetPoint uom="degC">58</pivotEnergy:storageSetPoint>
                          <pivotEnergy:solarLoop>
                            <pivotEnergy:SolarLoop gml:id="solar-loop">
                              <gml:name>Collectors above the stairwell</gml:name>
                              <core:creationDate>2021-11-23</core:creationDate>
                              <pivotEnergy:usage>cooling</pivotEnergy:usage>
                              <pivotEnergy:usage>ventilation</pivotEnergy:usage>
                              <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                              <pivotEnergy:solarHeatingCollectorArea uom="m2">9.5</pivotEnergy:solarHeatingCollectorArea>
                              <pivotEnergy:azimuth uom="deg">175</pivotEnergy:azimuth>
                              <pivotEnergy:inclination uom="deg">30</pivotEnergy:inclination>
                              <pivotEnergy:solarHeatingCollectorType>VacuumPanel</pivotEnergy:solarHeatingCollectorType>
                              <pivotEnergy:circulatorPower uom="W">45</pivotEnergy:circulatorPower>
                            </pivotEnergy:SolarLoop>
                          </pivotEnergy:solarLoop>
                        </pivotEnergy:Storage>
                      </pivotEnergy:storage>
                    </pivotEnergy:GenerationManagement>
                  </pivotEnergy:generation>
                </pivotEnergy:HydraulicDistribution>
              </pivotEnergy:distribution>
            </pivotEnergy:ConnectedHeatingEmitter>
          </pivotEnergy:heatingEmitter>
          <pivotEnergy:coolingEmitter>
            <pivotEnergy:ConnectedCoolingEmitter gml:id="ceilings-shops">
              <gml:name>Ceilings of the shops</gml:name>
              <pivotEnergy:spaceRatio uom="1">0.3</pivotEnergy:spaceRatio>
              <pivotEnergy:priority>MainEmitter</pivotEnergy:priority>
              <pivotEnergy:emitterType>RefreshingCeiling</pivotEnergy:emitterType>
              <pivotEnergy:regulationType>ThermostaticValve</pivotEnergy:regulationType>
              <pivotEnergy:power uom="kW">4.2</pivotEnergy:power>
              <pivotEnergy:distribution xlink:href="#heating-pipes"/>
            </pivotEnergy:ConnectedCoolingEmitter>
          </pivotEnergy:coolingEmitter>
        </pivotEnergy:ConnectedEmitter>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:StandaloneEmitter gml:id="split-units">
          <gml:name>Split units</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <pivotEnergy:usage>lighting</pivotEnergy:usage>
          <pivotEnergy:usage>heating</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:dateOfRefurbishment>2018</pivotEnergy:dateOfRefurbishment>
          <pivotEnergy:emitterProgType>OptimizedStartAndStop</pivotEnergy:emitterProgType>
          <pivotEnergy:emitterProductionControlType>Progressive</pivotEnergy:emitterProductionControlType>
          <pivotEnergy:heatingEmitter>
            <pivotEnergy:StandaloneHeatingEmitter gml:id="split-heating">
              <gml:name>Heating of the shops</gml:name>
              <pivotEnergy:emitterType>ElectricalHeatingCeiling</pivotEnergy:emitterType>
              <pivotEnergy:condensorTempCOP uom="degC">35</pivotEnergy:condensorTempCOP>
              <pivotEnergy:evaporatorTempCOP uom="degC">7</pivotEnergy:evaporatorTempCOP>
              <pivotEnergy:power uom="kW">2.1</pivotEnergy:power>
              <pivotEnergy:regulationType>NoControlValve</pivotEnergy:regulationType>
              <pivotEnergy:efficiency uom="1">0.97</pivotEnergy:efficiency>
              <pivotEnergy:spaceRatio uom="1">0.5</pivotEnergy:spaceRatio>
              <pivotEnergy:priority>BackupEmitter</pivotEnergy:priority>
            </pivotEnergy:StandaloneHeatingEmitter>
          </pivotEnergy:heatingEmitter>
          <pivotEnergy:coolingEmitter>
            <pivotEnergy:StandaloneCoolingEmitter gml:id="split-cooling">
              <gml:name>Cooling of the shops</gml:name>
              <pivotEnergy:emitterType>AirToAirHeatPump</pivotEnergy:emitterType>
              <pivotEnergy:condensorTempEER uom="degC">40</pivotEnergy:condensorTempEER>
              <pivotEnergy:evaporatorTempEER uom="degC">12</pivotEnergy:evaporatorTempEER>
              <pivotEnergy:power uom="kW">6.4</pivotEnergy:power>
              <pivotEnergy:regulationType>ManualControlValve</pivotEnergy:regulationType>
              <pivotEnergy:efficiency uom="1">3.4</pivotEnergy:efficiency>
              <pivotEnergy:spaceRatio uom="1">0.7</pivotEnergy:spaceRatio>
              <pivotEnergy:priority>MainEmitter</pivotEnergy:priority>
            </pivotEnergy:StandaloneCoolingEmitter>
          </pivotEnergy:coolingEmitter>
        </pivotEnergy:StandaloneEmitter>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:ThermalEmitter gml:id="convectors">
          <gml:name>Old convectors</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <pivotEnergy:usage>hot water</pivotEnergy:usage>
          <pivotEnergy:usage>cooling</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:dateOfRefurbishment>2021</pivotEnergy:dateOfRefurbishment>
          <pivotEnergy:emitterProgType>None</pivotEnergy:emitterProgType>
        </pivotEnergy:ThermalEmitter>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:DHWEmitter gml:id="taps">
          <gml:name>Taps</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <pivotEnergy:usage>ventilation</pivotEnergy:usage>
          <pivotEnergy:usage>lighting</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:dateOfRefurbishment>2012</pivotEnergy:dateOfRefurbishment>
          <pivotEnergy:dhwEmittorType>MixerTap</pivotEnergy:dhwEmittorType>
          <pivotEnergy:distribution xlink:href="#heating-pipes"/>
        </pivotEnergy:DHWEmitter>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:BlowerVents gml:id="blower-vents">
          <gml:name>Vents of the living rooms</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <pivotEnergy:usage>heating</pivotEnergy:usage>
          <pivotEnergy:usage>hot water</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:dateOfRefurbishment>2015</pivotEnergy:dateOfRefurbishment>
          <pivotEnergy:airInletOccupationFlow uom="m3/h">450</pivotEnergy:airInletOccupationFlow>
          <pivotEnergy:airInletInnocupationFlow uom="m3/h">120</pivotEnergy:airInletInnocupationFlow>
          <pivotEnergy:airInletFreeCoolingFlow uom="m3/h">900</pivotEnergy:airInletFreeCoolingFlow>
          <pivotEnergy:distribution>
            <pivotEnergy:AeraulicDistribution gml:id="air-ducts">
              <gml:name>Air ducts</gml:name>
              <core:creationDate>2021-11-23</core:creationDate>
              <pivotEnergy:usage>cooling</pivotEnergy:usage>
              <pivotEnergy:usage>ventilation</pivotEnergy:usage>
              <pivotEnergy:servedZone xlink:href="#zone-homes"/>
              <pivotEnergy:dateOfRefurbishement>2019</pivotEnergy:dateOfRefurbishement>
              <pivotEnergy:portion>
                <pivotEnergy:AeraulicDistributionPortion gml:id="portion-duct">
                  <gml:name>Main duct</gml:name>
                  <pivotEnergy:length uom="m">18</pivotEnergy:length>
                  <pivotEnergy:insulation>
                    <pivotEnergy:DistributionPortionInsulation>
                      <pivotEnergy:insulationClass>InsulationClass3</pivotEnergy:insulationClass>
                      <pivotEnergy:thickness uom="m">0.03</pivotEnergy:thickness>
                    </pivotEnergy:DistributionPortionInsulation>
                  </pivotEnergy:insulation>
                  <pivotEnergy:goThrough xlink:href="#through-cellar"/>
                  <pivotEnergy:airTighnessClass>B</pivotEnergy:airTighnessClass>
                  <pivotEnergy:thermalResistance uom="m2.K/W">0.6</pivotEnergy:thermalResistance>
                </pivotEnergy:AeraulicDistributionPortion>
              </pivotEnergy:portion>
              <pivotEnergy:ventilationSystem>
                <pivotEnergy:VentilationSystem gml:id="ventilation">
                  <gml:name>Ventilation with heat recovery</gml:name>
                  <core:creationDate>2022-02-08</core:creationDate>
                  <pivotEnergy:usage>lighting</pivotEnergy:usage>
                  <pivotEnergy:usage>heating</pivotEnergy:usage>
                  <pivotEnergy:servedZone xlink:href="#zone-homes"/>
                  <pivotEnergy:ventilationType>NaturalVentilationByAirGrating</pivotEnergy:ventilationType>
                  <pivotEnergy:inletFanPower uom="W">180</pivotEnergy:inletFanPower>
                  <pivotEnergy:outletFanPower uom="W">165</pivotEnergy:outletFanPower>
                  <pivotEnergy:isFreeCooling>true</pivotEnergy:isFreeCooling>
                  <pivotEnergy:epsilon uom="1">0.85</pivotEnergy:epsilon>
                  <pivotEnergy:isByPass>true</pivotEnergy:isByPass>
                  <pivotEnergy:outsideAirRate uom="1">0.3</pivotEnergy:outsideAirRate>
                  <pivotEnergy:dateOfRufurbishment>2020</pivotEnergy:dateOfRufurbishment>
                </pivotEnergy:VentilationSystem>
              </pivotEnergy:ventilationSystem>
            </pivotEnergy:AeraulicDistribution>
          </pivotEnergy:distribution>
        </pivotEnergy:BlowerVents>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:ReturnAirVents gml:id="return-vents">
          <gml:name>Vents of the bathrooms</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <pivotEnergy:usage>hot water</pivotEnergy:usage>
          <pivotEnergy:usage>cooling</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:dateOfRefurbishment>2018</pivotEnergy:dateOfRefurbishment>
          <pivotEnergy:airOutletOccupationFlow uom="m3/h">430</pivotEnergy:airOutletOccupationFlow>
          <pivotEnergy:airOutletInnocupationFlow uom="m3/h">110</pivotEnergy:airOutletInnocupationFlow>
          <pivotEnergy:airOutletFreeCoolingFlow uom="m3/h">880</pivotEnergy:airOutletFreeCoolingFlow>
          <pivotEnergy:distribution xlink:href="#air-ducts"/>
        </pivotEnergy:ReturnAirVents>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:Vents gml:id="passive-vents">
          <gml:name>Vents of the cellar</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <pivotEnergy:usage>ventilation</pivotEnergy:usage>
          <pivotEnergy:usage>lighting</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:dateOfRefurbishment>2021</pivotEnergy:dateOfRefurbishment>
        </pivotEnergy:Vents>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:AirGrat gml:id="air-grating">
          <gml:name>Grating of the cellar</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <pivotEnergy:usage>heating</pivotEnergy:usage>
          <pivotEnergy:usage>hot water</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:airGratingSection uom="cm2">320</pivotEnergy:airGratingSection>
        </pivotEnergy:AirGrat>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:AirIntake gml:id="air-intakes">
          <gml:name>Air intakes in the windows</gml:name>
          <core:creationDate>2021-11-23</core:creationDate>
          <pivotEnergy:usage>cooling</pivotEnergy:usage>
          <pivotEnergy:usage>ventilation</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:airIntakeModule uom="m3/h">30</pivotEnergy:airIntakeModule>
        </pivotEnergy:AirIntake>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:Lights gml:id="lights">
          <gml:name>Lights of the stairwell</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <pivotEnergy:usage>lighting</pivotEnergy:usage>
          <pivotEnergy:usage>heating</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:installedPower uom="W">960</pivotEnergy:installedPower>
          <pivotEnergy:nbOfLights>48</pivotEnergy:nbOfLights>
          <pivotEnergy:lightsType>CompactFluorescent</pivotEnergy:lightsType>
          <pivotEnergy:lightingSpaceRatio uom="1">0.8</pivotEnergy:lightingSpaceRatio>
          <pivotEnergy:lightingManagement>On/OffSwitch</pivotEnergy:lightingManagement>
          <pivotEnergy:lightingRegulation>ManualManagementWithDaylight</pivotEnergy:lightingRegulation>
          <pivotEnergy:dateOfRefurbishment>2012</pivotEnergy:dateOfRefurbishment>
          <pivotEnergy:idLightLayer>4</pivotEnergy:idLightLayer>
        </pivotEnergy:Lights>
      </pivotEnergy:system>
      <pivotEnergy:system>
        <pivotEnergy:PhotovoltaicCollector gml:id="photovoltaics">
          <gml:name>Panels on the roof</gml:name>
          <core:creationDate>2018-09-30</core:creationDate>
          <pivotEnergy:usage>hot water</pivotEnergy:usage>
          <pivotEnergy:usage>cooling</pivotEnergy:usage>
          <pivotEnergy:servedZone xlink:href="#zone-homes"/>
          <pivotEnergy:photovoltaicCollectorArea uom="m2">28</pivotEnergy:photovoltaicCollectorArea>
          <pivotEnergy:azimuth uom="deg">190</pivotEnergy:azimuth>
          <pivotEnergy:inclination uom="deg">45</pivotEnergy:inclination>
          <pivotEnergy:photovoltaicCollectorType>MultiCrystalline</pivotEnergy:photovoltaicCollectorType>
          <pivotEnergy:peakPower uom="kW">5.2</pivotEnergy:peakPower>
        </pivotEnergy:PhotovoltaicCollector>
      </pivotEnergy:system>
    </bldg:Building>
  </core:cityObjectMember>
</core:CityModel>
