<?xml version="1.0" encoding="UTF-8"?>
<!-- A house with demands and systems, thermal and usage zones, constructions, occupants and weather -->
<core:CityModel xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:bldg="http://www.opengis.net/citygml/building/2.0"
    xmlns:energy="http://www.sig3d.org/citygml/2.0/energy/1.0"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Energy of the Maison du Port</gml:name>
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
      <energy:demands>
        <energy:EnergyDemand gml:id="demand-heating">
          <gml:description>Demand with its sources, distribution, storage and emitters</gml:description>
          <gml:name>Space heating</gml:name>
          <energy:energyAmount>
            <energy:RegularTimeSeries>
              <energy:variableProperties>
                <energy:TimeValuesProperties>
                  <energy:acquisitionMethod>Simulation</energy:acquisitionMethod>
                  <energy:interpolationType>AverageInSucceedingInterval</energy:interpolationType>
                  <energy:qualityDescription>Checked by hand</energy:qualityDescription>
                  <energy:source>Meter of the house</energy:source>
                </energy:TimeValuesProperties>
              </energy:variableProperties>
              <energy:temporalExtent>
                <gml:TimePeriod>
                  <gml:beginPosition>2023-01-01</gml:beginPosition>
                  <gml:endPosition>2023-12-31</gml:endPosition>
                </gml:TimePeriod>
              </energy:temporalExtent>
              <energy:timeInterval unit="hour" radix="10" factor="0">1</energy:timeInterval>
              <energy:values uom="kWh">12.5 13.1 11.8 9.6</energy:values>
            </energy:RegularTimeSeries>
          </energy:energyAmount>
          <energy:endUse>SpaceHeating</energy:endUse>
          <energy:maximumLoad uom="kW">18.4</energy:maximumLoad>
          <energy:energySource>
            <energy:Boiler gml:id="boiler">
              <gml:description>Condensing boiler in the cellar</gml:description>
              <gml:name>Gas boiler</gml:name>
              <gml:name codeSpace="urn:clairval:register">PC-BOILER</gml:name>
              <core:creationDate>2019-03-12</core:creationDate>
              <core:terminationDate>2095-12-31</core:terminationDate>
              <core:externalReference>
                <core:informationSystem>https://register.example/clairval</core:informationSystem>
                <core:externalObject><core:uri>urn:clairval:object:412</core:uri></core:externalObject>
              </core:externalReference>
              <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
              <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>24</energy:installedNominalPower>
              <energy:model>Calorix 24</energy:model>
              <energy:nominalEfficiency uom="1">0.94</energy:nominalEfficiency>
              <energy:number>1</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 11</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2017</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2017-09-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">20</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">10</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation>
                <energy:SystemOperation gml:id="operation-boiler">
                  <gml:name>Boiler in winter</gml:name>
                  <energy:endUse>SpaceHeating</energy:endUse>
                  <energy:operationTime>
                    <energy:TimeSeriesSchedule>
                      <energy:timeDependingValues>
                        <energy:RegularTimeSeriesFile>
                          <energy:variableProperties>
                            <energy:TimeValuesProperties>
                              <energy:acquisitionMethod>CalibratedSimulation</energy:acquisitionMethod>
                              <energy:interpolationType>ConstantInPrecedingInterval</energy:interpolationType>
                              <energy:qualityDescription>Gaps filled by interpolation</energy:qualityDescription>
                              <energy:source>Station of the lighthouse</energy:source>
                            </energy:TimeValuesProperties>
                          </energy:variableProperties>
                          <energy:uom uom="kWh"/>
                          <energy:file>series/heating-2023.csv</energy:file>
                          <energy:temporalExtent>
                            <gml:TimePeriod>
                              <gml:beginPosition>2022-10-15</gml:beginPosition>
                              <gml:endPosition>2023-04-15</gml:endPosition>
                            </gml:TimePeriod>
                          </energy:temporalExtent>
                          <energy:timeInterval unit="hour">6</energy:timeInterval>
                          <energy:numberOfHeaderLines>3</energy:numberOfHeaderLines>
                          <energy:fieldSeparator>;</energy:fieldSeparator>
                          <energy:recordSeparator>LF</energy:recordSeparator>
                          <energy:decimalSymbol>.</energy:decimalSymbol>
                          <energy:valueColumnNumber>2</energy:valueColumnNumber>
                        </energy:RegularTimeSeriesFile>
                      </energy:timeDependingValues>
                    </energy:TimeSeriesSchedule>
                  </energy:operationTime>
                  <energy:yearlyGlobalEfficiency>0.86</energy:yearlyGlobalEfficiency>
                </energy:SystemOperation>
              </energy:hasOperation>
              <energy:consumes>
                <energy:FinalEnergy gml:id="gas-boiler">
                  <gml:name>Gas of the boiler</gml:name>
                  <energy:energyAmount>
                    <energy:RegularTimeSeriesFile>
                      <energy:variableProperties>
                        <energy:TimeValuesProperties>
                          <energy:acquisitionMethod>Estimation</energy:acquisitionMethod>
                          <energy:interpolationType>ConstantInSucceedingInterval</energy:interpolationType>
                          <energy:qualityDescription>Checked by hand</energy:qualityDescription>
                          <energy:source>Simulation</energy:source>
                        </energy:TimeValuesProperties>
                      </energy:variableProperties>
                      <energy:uom uom="kWh"/>
                      <energy:file>series/meter-2023.csv</energy:file>
                      <energy:temporalExtent>
                        <gml:TimePeriod>
                          <gml:beginPosition>2023-06-01</gml:beginPosition>
                          <gml:endPosition>2023-09-15</gml:endPosition>
                        </gml:TimePeriod>
                      </energy:temporalExtent>
                      <energy:timeInterval unit="hour">1</energy:timeInterval>
                      <energy:numberOfHeaderLines>1</energy:numberOfHeaderLines>
                      <energy:fieldSeparator>,</energy:fieldSeparator>
                      <energy:recordSeparator>LF</energy:recordSeparator>
                      <energy:decimalSymbol>,</energy:decimalSymbol>
                      <energy:valueColumnNumber>4</energy:valueColumnNumber>
                    </energy:RegularTimeSeriesFile>
                  </energy:energyAmount>
                  <energy:energyCarrier>
                    <energy:EnergyCarrier>
                      <energy:co2EmissionFactor uom="kg/kWh">0.201</energy:co2EmissionFactor>
                      <energy:energyDensity uom="kWh/m3">10.4</energy:energyDensity>
                      <energy:primaryEnergyFactor uom="1">1.1</energy:primaryEnergyFactor>
                      <energy:type>naturalGas</energy:type>
                    </energy:EnergyCarrier>
                  </energy:energyCarrier>
                  <energy:isProducedBy xlink:href="#chp"/>
                  <energy:isConsumedBy xlink:href="#boiler"/>
                </energy:FinalEnergy>
              </energy:consumes>
              <energy:produces>
                <energy:FinalEnergy gml:id="heat-boiler">
                  <gml:name>Heat of the boiler</gml:name>
                  <energy:energyAmount>
                    <energy:IrregularTimeSeries>
                      <energy:variableProperties>
                        <energy:TimeValuesProperties>
                          <energy:acquisitionMethod>Unknown</energy:acquisitionMethod>
                          <energy:interpolationType>Continuous</energy:interpolationType>
                          <energy:qualityDescription>Gaps filled by interpolation</energy:qualityDescription>
                          <energy:source>Meter of the house</energy:source>
                        </energy:TimeValuesProperties>
                      </energy:variableProperties>
                      <energy:uom uom="kWh"/>
                      <energy:contains>
                        <energy:MeasurementPoint>
                          <energy:time>2023-01-15T00:00:00</energy:time>
                          <energy:value>14.2</energy:value>
                        </energy:MeasurementPoint>
                      </energy:contains>
                      <energy:contains>
                        <energy:MeasurementPoint>
                          <energy:time>2023-01-15T06:00:00</energy:time>
                          <energy:value>15.8</energy:value>
                        </energy:MeasurementPoint>
                      </energy:contains>
                    </energy:IrregularTimeSeries>
                  </energy:energyAmount>
                  <energy:energyCarrier>
                    <energy:EnergyCarrier>
                      <energy:co2EmissionFactor uom="kg/kWh">0.214</energy:co2EmissionFactor>
                      <energy:energyDensity uom="kWh/m3">35</energy:energyDensity>
                      <energy:primaryEnergyFactor uom="1">1.17</energy:primaryEnergyFactor>
                      <energy:type>hotWater</energy:type>
                    </energy:EnergyCarrier>
                  </energy:energyCarrier>
                  <energy:isProducedBy xlink:href="#boiler"/>
                  <energy:isConsumedBy xlink:href="#heat-exchanger"/>
                </energy:FinalEnergy>
              </energy:produces>
              <energy:condensation>true</energy:condensation>
            </energy:Boiler>
          </energy:energySource>
          <energy:energySource>
            <energy:HeatPump gml:id="heat-pump">
              <gml:name>Heat pump</gml:name>
              <core:creationDate>2020-06-01</core:creationDate>
              <energy:efficiencyIndicator>B</energy:efficiencyIndicator>
              <energy:installedNominalPower>11.5</energy:installedNominalPower>
              <energy:model>Alize 11</energy:model>
              <energy:nominalEfficiency uom="1">0.88</energy:nominalEfficiency>
              <energy:number>2</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 12</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2021</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2021-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">15</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">5</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:heatSource>Aquifer</energy:heatSource>
              <energy:copSourceTemperature uom="degC">7</energy:copSourceTemperature>
              <energy:copOperationTemperature uom="degC">35</energy:copOperationTemperature>
            </energy:HeatPump>
          </energy:energySource>
          <energy:energySource>
            <energy:HeatExchanger gml:id="heat-exchanger">
              <gml:name>District heat</gml:name>
              <core:creationDate>2021-11-23</core:creationDate>
              <energy:efficiencyIndicator>seasonal 0.9</energy:efficiencyIndicator>
              <energy:installedNominalPower>7.2</energy:installedNominalPower>
              <energy:model>Soleo 7</energy:model>
              <energy:nominalEfficiency uom="1">3.2</energy:nominalEfficiency>
              <energy:number>3</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 13</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2014</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2014-11-20</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">25</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">2</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:networkId>heat-network-north</energy:networkId>
              <energy:networkNodeId>substation-7</energy:networkNodeId>
              <energy:primaryHeatSupplier>Chaleur de Clairval</energy:primaryHeatSupplier>
            </energy:HeatExchanger>
          </energy:energySource>
          <energy:energySource>
            <energy:CombinedHeatPower gml:id="chp">
              <gml:name>Small gas engine</gml:name>
              <core:creationDate>2022-02-08</core:creationDate>
              <energy:efficiencyIndicator>A</energy:efficiencyIndicator>
              <energy:installedNominalPower>16</energy:installedNominalPower>
              <energy:model>Marine 16</energy:model>
              <energy:nominalEfficiency uom="1">0.97</energy:nominalEfficiency>
              <energy:number>1</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 14</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2019</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2019</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">20</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">10</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:technologyType>gas engine</energy:technologyType>
              <energy:thermalEfficiency uom="1">0.56</energy:thermalEfficiency>
              <energy:electricalEfficiency uom="1">0.31</energy:electricalEfficiency>
            </energy:CombinedHeatPower>
          </energy:energySource>
          <energy:energySource>
            <energy:ElectricalResistance gml:id="resistance">
              <gml:name>Towel dryer</gml:name>
              <core:creationDate>2018-09-30</core:creationDate>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>24</energy:installedNominalPower>
              <energy:model>Calorix 24</energy:model>
              <energy:nominalEfficiency uom="1">0.94</energy:nominalEfficiency>
              <energy:number>2</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 15</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2017</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2017-09-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">15</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">5</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
            </energy:ElectricalResistance>
          </energy:energySource>
          <energy:energyDistribution>
            <energy:ThermalDistributionSystem gml:id="pipes-heating">
              <gml:name>Heating pipes</gml:name>
              <core:creationDate>2019-03-12</core:creationDate>
              <energy:distributionPerimeter>Dwelling</energy:distributionPerimeter>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2021-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">25</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">2</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:isCirculation>true</energy:isCirculation>
              <energy:medium>Steam</energy:medium>
              <energy:nominalFlow uom="m3/h">1.8</energy:nominalFlow>
              <energy:returnTemperature uom="degC">35</energy:returnTemperature>
              <energy:supplyTemperature uom="degC">45</energy:supplyTemperature>
              <energy:thermalLossesFactor uom="W/K">0.24</energy:thermalLossesFactor>
            </energy:ThermalDistributionSystem>
          </energy:energyDistribution>
          <energy:energyStorage>
            <energy:ThermalStorageSystem gml:id="buffer">
              <gml:name>Buffer tank</gml:name>
              <core:creationDate>2020-06-01</core:creationDate>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2014-11-20</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">20</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">10</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:preparationTemperature uom="degC">60</energy:preparationTemperature>
              <energy:medium>Water</energy:medium>
              <energy:thermalLossesFactor uom="W/K">2.1</energy:thermalLossesFactor>
              <energy:volume uom="m3">0.8</energy:volume>
            </energy:ThermalStorageSystem>
          </energy:energyStorage>
          <energy:energyEmission>
            <energy:Emitter gml:id="radiators">
              <gml:name>Radiators</gml:name>
              <core:creationDate>2021-11-23</core:creationDate>
              <energy:emitterType>Convector</energy:emitterType>
              <energy:unitNumber>14</energy:unitNumber>
              <energy:installedPower uom="kW">1.5</energy:installedPower>
              <energy:thermalExchange>
                <energy:HeatExchangeType>
                  <energy:convectiveFraction uom="1">0.5</energy:convectiveFraction>
                  <energy:latentFraction uom="1">0.2</energy:latentFraction>
                  <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
                  <energy:totalValue uom="W">90</energy:totalValue>
                </energy:HeatExchangeType>
              </energy:thermalExchange>
            </energy:Emitter>
          </energy:energyEmission>
        </energy:EnergyDemand>
      </energy:demands>
      <energy:demands>
        <energy:EnergyDemand gml:id="demand-cooling">
          <gml:name>Space cooling</gml:name>
          <energy:energyAmount>
            <energy:IrregularTimeSeries>
              <energy:variableProperties>
                <energy:TimeValuesProperties>
                  <energy:acquisitionMethod>Measurement</energy:acquisitionMethod>
                  <energy:interpolationType>Discontinuous</energy:interpolationType>
                  <energy:qualityDescription>Checked by hand</energy:qualityDescription>
                  <energy:source>Station of the lighthouse</energy:source>
                </energy:TimeValuesProperties>
              </energy:variableProperties>
              <energy:uom uom="kWh"/>
              <energy:contains>
                <energy:MeasurementPoint>
                  <energy:time>2023-01-15T12:00:00</energy:time>
                  <energy:value>13.1</energy:value>
                </energy:MeasurementPoint>
              </energy:contains>
              <energy:contains>
                <energy:MeasurementPoint>
                  <energy:time>2023-01-15T00:00:00</energy:time>
                  <energy:value>14.2</energy:value>
                </energy:MeasurementPoint>
              </energy:contains>
            </energy:IrregularTimeSeries>
          </energy:energyAmount>
          <energy:endUse>SpaceCooling</energy:endUse>
          <energy:maximumLoad uom="kW">6.2</energy:maximumLoad>
          <energy:energySource>
            <energy:Chiller gml:id="chiller">
              <gml:name>Chiller of the shops</gml:name>
              <core:creationDate>2022-02-08</core:creationDate>
              <energy:efficiencyIndicator>B</energy:efficiencyIndicator>
              <energy:installedNominalPower>11.5</energy:installedNominalPower>
              <energy:model>Alize 11</energy:model>
              <energy:nominalEfficiency uom="1">0.88</energy:nominalEfficiency>
              <energy:number>3</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 16</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2021</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2019</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">15</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">5</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:condensationType>EvaporativeCooling</energy:condensationType>
              <energy:compressorType>ReciprocatingCompressorSemiHermetic</energy:compressorType>
              <energy:refrigerant>R32</energy:refrigerant>
            </energy:Chiller>
          </energy:energySource>
          <energy:energySource>
            <energy:AirCompressor gml:id="compressor">
              <gml:name>Compressor of the workshop</gml:name>
              <core:creationDate>2018-09-30</core:creationDate>
              <energy:efficiencyIndicator>seasonal 0.9</energy:efficiencyIndicator>
              <energy:installedNominalPower>7.2</energy:installedNominalPower>
              <energy:model>Soleo 7</energy:model>
              <energy:nominalEfficiency uom="1">3.2</energy:nominalEfficiency>
              <energy:number>1</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 17</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2014</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2017-09-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">25</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">2</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:compressorType>ReciprocatingCompressorOpen</energy:compressorType>
              <energy:pressure uom="bar">8</energy:pressure>
            </energy:AirCompressor>
          </energy:energySource>
          <energy:energySource>
            <energy:MechanicalVentilation gml:id="ventilation">
              <gml:name>Ventilation of the shops</gml:name>
              <core:creationDate>2019-03-12</core:creationDate>
              <energy:efficiencyIndicator>A</energy:efficiencyIndicator>
              <energy:installedNominalPower>16</energy:installedNominalPower>
              <energy:model>Marine 16</energy:model>
              <energy:nominalEfficiency uom="1">0.97</energy:nominalEfficiency>
              <energy:number>2</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 18</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2019</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2021-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">20</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">10</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:heatRecovery>false</energy:heatRecovery>
              <energy:recuperationFactor uom="1">0.82</energy:recuperationFactor>
            </energy:MechanicalVentilation>
          </energy:energySource>
          <energy:energyDistribution>
            <energy:EnergyDistributionSystem gml:id="ducts">
              <gml:name>Air ducts</gml:name>
              <core:creationDate>2020-06-01</core:creationDate>
              <energy:distributionPerimeter>GroupOfBuildings</energy:distributionPerimeter>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2014-11-20</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">15</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">5</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
            </energy:EnergyDistributionSystem>
          </energy:energyDistribution>
          <energy:energyStorage xlink:href="#buffer"/>
          <energy:energyEmission xlink:href="#radiators"/>
        </energy:EnergyDemand>
      </energy:demands>
      <energy:demands>
        <energy:EnergyDemand gml:id="demand-hot-water">
          <gml:name>Hot water</gml:name>
          <energy:energyAmount>
            <energy:RegularTimeSeriesFile>
              <energy:variableProperties>
                <energy:TimeValuesProperties>
                  <energy:acquisitionMethod>Simulation</energy:acquisitionMethod>
                  <energy:interpolationType>InstantaneousTotal</energy:interpolationType>
                  <energy:qualityDescription>Gaps filled by interpolation</energy:qualityDescription>
                  <energy:source>Simulation</energy:source>
                </energy:TimeValuesProperties>
              </energy:variableProperties>
              <energy:uom uom="kWh"/>
              <energy:file>series/heating-2023.csv</energy:file>
              <energy:temporalExtent>
                <gml:TimePeriod>
                  <gml:beginPosition>2023-01-01</gml:beginPosition>
                  <gml:endPosition>2023-12-31</gml:endPosition>
                </gml:TimePeriod>
              </energy:temporalExtent>
              <energy:timeInterval unit="hour">6</energy:timeInterval>
              <energy:numberOfHeaderLines>3</energy:numberOfHeaderLines>
              <energy:fieldSeparator>;</energy:fieldSeparator>
              <energy:recordSeparator>LF</energy:recordSeparator>
              <energy:decimalSymbol>.</energy:decimalSymbol>
              <energy:valueColumnNumber>2</energy:valueColumnNumber>
            </energy:RegularTimeSeriesFile>
          </energy:energyAmount>
          <energy:endUse>DomesticHotWater</energy:endUse>
          <energy:maximumLoad uom="kW">9.5</energy:maximumLoad>
          <energy:energySource>
            <energy:SolarThermalSystem gml:id="solar-thermal">
              <gml:name>Collectors on the roof</gml:name>
              <core:creationDate>2021-11-23</core:creationDate>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>24</energy:installedNominalPower>
              <energy:model>Calorix 24</energy:model>
              <energy:nominalEfficiency uom="1">0.94</energy:nominalEfficiency>
              <energy:number>3</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 19</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2017</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2019</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">25</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">2</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:installedOnBoundarySurface xlink:href="#toit"/>
              <energy:surfaceGeometry>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1236 885.75 1.8 1242 885.75 1.8 1242 885.75 4.6 1236 885.75 4.6 1236 885.75 1.8</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </energy:surfaceGeometry>
              <energy:energyStorage xlink:href="#buffer"/>
              <energy:collectorType>EvacuatedTubeCollector</energy:collectorType>
              <energy:apertureArea uom="m2">6.4</energy:apertureArea>
              <energy:eta0>0.78</energy:eta0>
              <energy:a1>3.6</energy:a1>
              <energy:a2>0.014</energy:a2>
            </energy:SolarThermalSystem>
          </energy:energySource>
          <energy:energySource>
            <energy:PhotovoltaicThermalSystem gml:id="pvt">
              <gml:name>Hybrid panels</gml:name>
              <core:creationDate>2022-02-08</core:creationDate>
              <energy:efficiencyIndicator>B</energy:efficiencyIndicator>
              <energy:installedNominalPower>11.5</energy:installedNominalPower>
              <energy:model>Alize 11</energy:model>
              <energy:nominalEfficiency uom="1">0.88</energy:nominalEfficiency>
              <energy:number>1</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 20</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2021</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2017-09-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">20</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">10</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:installedOnBoundarySurface xlink:href="#toit"/>
              <energy:surfaceGeometry>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1287 893.75 1.8 1289.4 893.75 1.8 1289.4 893.75 3.25 1287 893.75 3.25 1287 893.75 1.8</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </energy:surfaceGeometry>
              <energy:energyStorage xlink:href="#buffer"/>
              <energy:cellType>Polycrystalline</energy:cellType>
              <energy:collectorType>FlatPlaneCollector</energy:collectorType>
              <energy:moduleArea uom="m2">24</energy:moduleArea>
              <energy:apertureArea uom="m2">9.2</energy:apertureArea>
              <energy:eta0>0.74</energy:eta0>
              <energy:a1>3.9</energy:a1>
              <energy:a2>0.012</energy:a2>
            </energy:PhotovoltaicThermalSystem>
          </energy:energySource>
          <energy:energyDistribution xlink:href="#pipes-heating"/>
          <energy:energyStorage xlink:href="#buffer"/>
          <energy:energyEmission xlink:href="#radiators"/>
        </energy:EnergyDemand>
      </energy:demands>
      <energy:demands>
        <energy:EnergyDemand gml:id="demand-power">
          <gml:name>Electrical appliances</gml:name>
          <energy:energyAmount>
            <energy:IrregularTimeSeriesFile>
              <energy:variableProperties>
                <energy:TimeValuesProperties>
                  <energy:acquisitionMethod>CalibratedSimulation</energy:acquisitionMethod>
                  <energy:interpolationType>MaximumInPrecedingInterval</energy:interpolationType>
                  <energy:qualityDescription>Checked by hand</energy:qualityDescription>
                  <energy:source>Meter of the house</energy:source>
                </energy:TimeValuesProperties>
              </energy:variableProperties>
              <energy:uom uom="kWh"/>
              <energy:file>series/meter-2023.csv</energy:file>
              <energy:numberOfHeaderLines>1</energy:numberOfHeaderLines>
              <energy:fieldSeparator>,</energy:fieldSeparator>
              <energy:recordSeparator>LF</energy:recordSeparator>
              <energy:decimalSymbol>,</energy:decimalSymbol>
              <energy:timeColumnNumber>1</energy:timeColumnNumber>
              <energy:valueColumnNumber>4</energy:valueColumnNumber>
            </energy:IrregularTimeSeriesFile>
          </energy:energyAmount>
          <energy:endUse>ElectricalAppliances</energy:endUse>
          <energy:maximumLoad uom="kW">4.8</energy:maximumLoad>
          <energy:energySource>
            <energy:PhotovoltaicSystem gml:id="photovoltaics">
              <gml:name>Panels on the roof</gml:name>
              <core:creationDate>2018-09-30</core:creationDate>
              <energy:efficiencyIndicator>seasonal 0.9</energy:efficiencyIndicator>
              <energy:installedNominalPower>7.2</energy:installedNominalPower>
              <energy:model>Soleo 7</energy:model>
              <energy:nominalEfficiency uom="1">3.2</energy:nominalEfficiency>
              <energy:number>2</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 21</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2014</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2021-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">15</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">5</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
              <energy:installedOnBoundarySurface xlink:href="#toit"/>
              <energy:surfaceGeometry>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1212 909.75 1.8 1221 909.75 1.8 1221 909.75 5.8 1212 909.75 5.8 1212 909.75 1.8</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </energy:surfaceGeometry>
              <energy:energyStorage xlink:href="#battery"/>
              <energy:cellType>Amorphous</energy:cellType>
              <energy:moduleArea uom="m2">18.5</energy:moduleArea>
            </energy:PhotovoltaicSystem>
          </energy:energySource>
          <energy:energySource>
            <energy:EnergyConversionSystem gml:id="wind-turbine">
              <gml:name>Small wind turbine</gml:name>
              <core:creationDate>2019-03-12</core:creationDate>
              <energy:efficiencyIndicator>A</energy:efficiencyIndicator>
              <energy:installedNominalPower>16</energy:installedNominalPower>
              <energy:model>Marine 16</energy:model>
              <energy:nominalEfficiency uom="1">0.97</energy:nominalEfficiency>
              <energy:number>3</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://documents.example</core:informationSystem>
                <core:externalObject><core:name>Installation sheet 22</core:name></core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2019</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2014-11-20</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">25</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">2</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#zone-homes"/>
              <energy:hasOperation xlink:href="#operation-boiler"/>
              <energy:consumes xlink:href="#gas-boiler"/>
              <energy:produces xlink:href="#heat-boiler"/>
            </energy:EnergyConversionSystem>
          </energy:energySource>
          <energy:energyDistribution>
            <energy:PowerDistributionSystem gml:id="wiring">
              <gml:name>Wiring of the house</gml:name>
              <core:creationDate>2020-06-01</core:creationDate>
              <energy:distributionPerimeter>Room</energy:distributionPerimeter>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2019</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">20</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">10</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:current uom="A">63</energy:current>
              <energy:voltage uom="V">400</energy:voltage>
            </energy:PowerDistributionSystem>
          </energy:energyDistribution>
          <energy:energyStorage>
            <energy:PowerStorageSystem gml:id="battery">
              <gml:name>Battery in the cellar</gml:name>
              <core:creationDate>2021-11-23</core:creationDate>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife>2017-09-04</energy:startOfLife>
                  <energy:lifeExpectancy unit="year">15</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year">5</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:batteryTechnology>lithium iron phosphate</energy:batteryTechnology>
              <energy:powerCapacity uom="kWh">13.5</energy:powerCapacity>
            </energy:PowerStorageSystem>
          </energy:energyStorage>
          <energy:energyEmission xlink:href="#radiators"/>
        </energy:EnergyDemand>
      </energy:demands>
      <energy:weatherData>
        <energy:WeatherData>
          <gml:name>Air temperature at the lighthouse</gml:name>
          <energy:weatherDataType>Humidity</energy:weatherDataType>
          <energy:values>
            <energy:IrregularTimeSeriesFile>
              <energy:variableProperties>
                <energy:TimeValuesProperties>
                  <energy:acquisitionMethod>Estimation</energy:acquisitionMethod>
                  <energy:interpolationType>MaximumInSucceedingInterval</energy:interpolationType>
                  <energy:qualityDescription>Gaps filled by interpolation</energy:qualityDescription>
                  <energy:source>Station of the lighthouse</energy:source>
                </energy:TimeValuesProperties>
              </energy:variableProperties>
              <energy:uom uom="kWh"/>
              <energy:file>series/heating-2023.csv</energy:file>
              <energy:fieldSeparator>;</energy:fieldSeparator>
            </energy:IrregularTimeSeriesFile>
          </energy:values>
          <energy:position><gml:Point><gml:pos>1225.5 865.75 1.8</gml:pos></gml:Point></energy:position>
        </energy:WeatherData>
      </energy:weatherData>
      <bldg:class>habitation</bldg:class>
      <bldg:yearOfConstruction>1974</bldg:yearOfConstruction>
      <bldg:measuredHeight uom="m">12.8</bldg:measuredHeight>
      <bldg:storeysAboveGround>4</bldg:storeysAboveGround>
      <bldg:boundedBy>
        <bldg:WallSurface gml:id="facade">
          <gml:name>Facade of the quay</gml:name>
        </bldg:WallSurface>
      </bldg:boundedBy>
      <bldg:boundedBy>
        <bldg:RoofSurface gml:id="toit">
          <gml:name>Roof, southern side</gml:name>
        </bldg:RoofSurface>
      </bldg:boundedBy>
      <energy:buildingType>apartment block</energy:buildingType>
      <energy:constructionWeight>Light</energy:constructionWeight>
      <energy:energyPerformanceCertification>
        <energy:EnergyPerformanceCertification>
          <energy:certificationRating>B</energy:certificationRating>
          <energy:certificationName>Etiquette Clairval</energy:certificationName>
          <energy:certificationId>EPC-2022-0417</energy:certificationId>
        </energy:EnergyPerformanceCertification>
      </energy:energyPerformanceCertification>
      <energy:floorArea>
        <energy:FloorArea><energy:type>grossFloorArea</energy:type><energy:value uom="m2">412.5</energy:value></energy:FloorArea>
      </energy:floorArea>
      <energy:floorArea>
        <energy:FloorArea><energy:type>netFloorArea</energy:type><energy:value uom="m2">96.2</energy:value></energy:FloorArea>
      </energy:floorArea>
      <energy:heightAboveGround>
        <energy:HeightAboveGround>
          <energy:heightReference>entrancePoint</energy:heightReference>
          <energy:value uom="m">12.8</energy:value>
        </energy:HeightAboveGround>
      </energy:heightAboveGround>
      <energy:isLandmarked>true</energy:isLandmarked>
      <energy:referencePoint><gml:Point><gml:pos>1236 915.25 3</gml:pos></gml:Point></energy:referencePoint>
      <energy:refurbishmentMeasure>
        <energy:RefurbishmentMeasure>
          <energy:dateOfRefurbishment>
            <energy:DateOfEvent>
              <energy:instant><gml:TimeInstant><gml:timePosition>2014-07-01</gml:timePosition></gml:TimeInstant></energy:instant>
              <energy:period>
                <gml:TimePeriod>
                  <gml:beginPosition>2022-10-15</gml:beginPosition>
                  <gml:endPosition>2023-11-30</gml:endPosition>
                  <gml:duration>P1Y1M15D</gml:duration>
                </gml:TimePeriod>
              </energy:period>
            </energy:DateOfEvent>
          </energy:dateOfRefurbishment>
          <energy:levelOfRefurbishment>partial</energy:levelOfRefurbishment>
          <energy:descriptionOfRefurbishment>New windows and insulation of the roof</energy:descriptionOfRefurbishment>
        </energy:RefurbishmentMeasure>
      </energy:refurbishmentMeasure>
      <energy:thermalZone>
        <energy:ThermalZone gml:id="zone-homes">
          <gml:description>Zone with its boundary, its use and a room</gml:description>
          <gml:name>Heated part of the house</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <energy:additionalThermalBridgeUValue uom="W/(m2.K)">0.05</energy:additionalThermalBridgeUValue>
          <energy:effectiveThermalCapacity uom="MJ/K">86</energy:effectiveThermalCapacity>
          <energy:floorArea>
            <energy:FloorArea>
              <energy:type>energyReferenceArea</energy:type>
              <energy:value uom="m2">68.8</energy:value>
            </energy:FloorArea>
          </energy:floorArea>
          <energy:indirectlyHeatedAreaRatio uom="1">0.12</energy:indirectlyHeatedAreaRatio>
          <energy:infiltrationRate uom="1/h">0.6</energy:infiltrationRate>
          <energy:isCooled>false</energy:isCooled>
          <energy:isHeated>true</energy:isHeated>
          <energy:volume>
            <energy:VolumeType>
              <energy:type>GrossVolume</energy:type>
              <energy:value uom="m3">1240</energy:value>
            </energy:VolumeType>
          </energy:volume>
          <energy:volumeGeometry>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1251 900 2.4 1251 909 2.4 1265 909 2.4 1265 900 2.4 1251 900 2.4</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1251 900 8.4 1265 900 8.4 1265 909 8.4 1251 909 8.4 1251 900 8.4</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1251 900 2.4 1265 900 2.4 1265 900 8.4 1251 900 8.4 1251 900 2.4</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1265 900 2.4 1265 909 2.4 1265 909 8.4 1265 900 8.4 1265 900 2.4</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1265 909 2.4 1251 909 2.4 1251 909 8.4 1265 909 8.4 1265 909 2.4</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1251 909 2.4 1251 900 2.4 1251 900 8.4 1251 909 8.4 1251 909 2.4</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </energy:volumeGeometry>
          <energy:boundedBy>
            <energy:ThermalBoundary gml:id="boundary-quay">
              <gml:description>Outer wall with a window</gml:description>
              <gml:name>Outer wall to the quay</gml:name>
              <gml:name codeSpace="urn:clairval:register">PC-BOUNDARY-QUAY</gml:name>
              <core:creationDate>2018-09-30</core:creationDate>
              <core:terminationDate>2095-12-31</core:terminationDate>
              <core:externalReference>
                <core:informationSystem>https://register.example/clairval</core:informationSystem>
                <core:externalObject><core:uri>urn:clairval:object:412</core:uri></core:externalObject>
              </core:externalReference>
              <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
              <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
              <energy:thermalBoundaryType>OuterWall</energy:thermalBoundaryType>
              <energy:azimuth uom="deg">180</energy:azimuth>
              <energy:inclination uom="deg">90</energy:inclination>
              <energy:area uom="m2">86.4</energy:area>
              <energy:surfaceGeometry>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1255.5 895.25 3 1261.5 895.25 3 1261.5 895.25 5.8 1255.5 895.25 5.8 1255.5 895.25 3</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </energy:surfaceGeometry>
              <energy:refurbishmentMeasure>
                <energy:RefurbishmentMeasure>
                  <energy:dateOfRefurbishment>
                    <energy:DateOfEvent>
                      <energy:instant>
                        <gml:TimeInstant><gml:timePosition>2018-03-20</gml:timePosition></gml:TimeInstant>
                      </energy:instant>
                      <energy:period>
                        <gml:TimePeriod>
                          <gml:beginPosition calendarEraName="Common Era">2023-06-01</gml:beginPosition>
                          <gml:endPosition indeterminatePosition="before">2023-09-15</gml:endPosition>
                        </gml:TimePeriod>
                      </energy:period>
                    </energy:DateOfEvent>
                  </energy:dateOfRefurbishment>
                  <energy:levelOfRefurbishment>advanced</energy:levelOfRefurbishment>
                  <energy:descriptionOfRefurbishment>Insulation from the inside</energy:descriptionOfRefurbishment>
                </energy:RefurbishmentMeasure>
              </energy:refurbishmentMeasure>
              <energy:construction>
                <energy:Construction gml:id="construction-wall">
                  <gml:name>Limestone wall, insulated</gml:name>
                  <energy:uValue uom="W/(m2.K)">0.24</energy:uValue>
                  <energy:opticalProperties>
                    <energy:OpticalProperties>
                      <energy:emissivity>
                        <energy:Emissivity>
                          <energy:fraction uom="1">0.9</energy:fraction>
                          <energy:surface>Outside</energy:surface>
                        </energy:Emissivity>
                      </energy:emissivity>
                      <energy:emissivity>
                        <energy:Emissivity>
                          <energy:fraction uom="1">0.35</energy:fraction>
                          <energy:surface>Inside</energy:surface>
                        </energy:Emissivity>
                      </energy:emissivity>
                      <energy:reflectance>
                        <energy:Reflectance>
                          <energy:fraction uom="1">0.62</energy:fraction>
                          <energy:surface>Outside</energy:surface>
                          <energy:wavelengthRange>Infrared</energy:wavelengthRange>
                        </energy:Reflectance>
                      </energy:reflectance>
                      <energy:transmittance>
                        <energy:Transmittance>
                          <energy:fraction uom="1">0.2</energy:fraction>
                          <energy:wavelengthRange>Visible</energy:wavelengthRange>
                        </energy:Transmittance>
                      </energy:transmittance>
                      <energy:glazingRatio uom="1">0.78</energy:glazingRatio>
                    </energy:OpticalProperties>
                  </energy:opticalProperties>
                  <energy:serviceLife>
                    <energy:ServiceLife>
                      <energy:startOfLife>2021-04</energy:startOfLife>
                      <energy:lifeExpectancy unit="year">25</energy:lifeExpectancy>
                      <energy:mainMaintenanceInterval unit="year">2</energy:mainMaintenanceInterval>
                    </energy:ServiceLife>
                  </energy:serviceLife>
                  <energy:layer>
                    <energy:Layer gml:id="layer-stone">
                      <gml:name>Masonry</gml:name>
                      <energy:layerComponent>
                        <energy:LayerComponent gml:id="part-stone">
                          <gml:name>Limestone</gml:name>
                          <energy:areaFraction uom="1">1</energy:areaFraction>
                          <energy:thickness uom="m">0.36</energy:thickness>
                          <energy:serviceLife>
                            <energy:ServiceLife>
                              <energy:startOfLife>2014-11-20</energy:startOfLife>
                              <energy:lifeExpectancy unit="year">20</energy:lifeExpectancy>
                              <energy:mainMaintenanceInterval unit="year">10</energy:mainMaintenanceInterval>
                            </energy:ServiceLife>
                          </energy:serviceLife>
                          <energy:material>
                            <energy:SolidMaterial gml:id="limestone">
                              <gml:name>Limestone</gml:name>
                              <energy:imageTexture>
                                <energy:ImageTexture gml:id="texture-limestone">
                                  <gml:name>Image of limestone</gml:name>
                                  <energy:url>textures/limestone.png</energy:url>
                                  <energy:repeatS>true</energy:repeatS>
                                  <energy:repeatT>false</energy:repeatT>
                                </energy:ImageTexture>
                              </energy:imageTexture>
                              <energy:conductivity uom="W/(m.K)">1.4</energy:conductivity>
                              <energy:density uom="kg/m3">2200</energy:density>
                              <energy:permeance uom="kg/(m2.s.Pa)">1.2e-10</energy:permeance>
                              <energy:porosity uom="1">0.08</energy:porosity>
                              <energy:specificHeat uom="J/(kg.K)">1000</energy:specificHeat>
                              <energy:embodiedCarbon uom="kg/kg">0.12</energy:embodiedCarbon>
                              <energy:embodiedEnergy uom="MJ/kg">1.6</energy:embodiedEnergy>
                            </energy:SolidMaterial>
                          </energy:material>
                        </energy:LayerComponent>
                      </energy:layerComponent>
                    </energy:Layer>
                  </energy:layer>
                  <energy:layer>
                    <energy:Layer gml:id="layer-insulation">
                      <gml:name>Insulation between battens</gml:name>
                      <energy:layerComponent>
                        <energy:LayerComponent gml:id="part-wool">
                          <gml:name>Hemp wool</gml:name>
                          <energy:areaFraction uom="1">0.85</energy:areaFraction>
                          <energy:thickness uom="m">0.14</energy:thickness>
                          <energy:serviceLife>
                            <energy:ServiceLife>
                              <energy:startOfLife>2019</energy:startOfLife>
                              <energy:lifeExpectancy unit="year">15</energy:lifeExpectancy>
                              <energy:mainMaintenanceInterval unit="year">5</energy:mainMaintenanceInterval>
                            </energy:ServiceLife>
                          </energy:serviceLife>
                          <energy:material>
                            <energy:SolidMaterial gml:id="hemp-wool">
                              <gml:name>Hemp wool</gml:name>
                              <energy:imageTexture xlink:href="#texture-limestone"/>
                              <energy:conductivity uom="W/(m.K)">0.038</energy:conductivity>
                              <energy:density uom="kg/m3">55</energy:density>
                              <energy:permeance uom="kg/(m2.s.Pa)">1.2e-10</energy:permeance>
                              <energy:porosity uom="1">0.9</energy:porosity>
                              <energy:specificHeat uom="J/(kg.K)">1450</energy:specificHeat>
                              <energy:embodiedCarbon uom="kg/kg">0.12</energy:embodiedCarbon>
                              <energy:embodiedEnergy uom="MJ/kg">1.6</energy:embodiedEnergy>
                            </energy:SolidMaterial>
                          </energy:material>
                        </energy:LayerComponent>
                      </energy:layerComponent>
                      <energy:layerComponent>
                        <energy:LayerComponent gml:id="part-air">
                          <gml:name>Air gap</gml:name>
                          <energy:areaFraction uom="1">0.15</energy:areaFraction>
                          <energy:thickness uom="m">0.14</energy:thickness>
                          <energy:serviceLife>
                            <energy:ServiceLife>
                              <energy:startOfLife>2017-09-04</energy:startOfLife>
                              <energy:lifeExpectancy unit="year">25</energy:lifeExpectancy>
                              <energy:mainMaintenanceInterval unit="year">2</energy:mainMaintenanceInterval>
                            </energy:ServiceLife>
                          </energy:serviceLife>
                          <energy:material>
                            <energy:Gas gml:id="air">
                              <gml:name>Air</gml:name>
                              <energy:imageTexture>
                                <energy:ImageTexture gml:id="texture-air">
                                  <gml:name>Image for the air gap</gml:name>
                                  <energy:url>textures/air.png</energy:url>
                                  <energy:repeatS>true</energy:repeatS>
                                  <energy:repeatT>false</energy:repeatT>
                                </energy:ImageTexture>
                              </energy:imageTexture>
                              <energy:isVentilated>true</energy:isVentilated>
                              <energy:rValue uom="m2.K/W">0.18</energy:rValue>
                            </energy:Gas>
                          </energy:material>
                        </energy:LayerComponent>
                      </energy:layerComponent>
                    </energy:Layer>
                  </energy:layer>
                </energy:Construction>
              </energy:construction>
              <energy:contains>
                <energy:ThermalOpening gml:id="opening-window">
                  <gml:name>Window of the living room</gml:name>
                  <core:creationDate>2019-03-12</core:creationDate>
                  <energy:area uom="m2">2.1</energy:area>
                  <energy:indoorShading>
                    <energy:ShadingType>
                      <energy:maximumCoverRatio uom="1">0.95</energy:maximumCoverRatio>
                      <energy:name>Venetian blind</energy:name>
                      <energy:transmittance>
                        <energy:Transmittance>
                          <energy:fraction uom="1">0.9</energy:fraction>
                          <energy:wavelengthRange>Total</energy:wavelengthRange>
                        </energy:Transmittance>
                      </energy:transmittance>
                    </energy:ShadingType>
                  </energy:indoorShading>
                  <energy:outdoorShading>
                    <energy:ShadingType>
                      <energy:maximumCoverRatio uom="1">0.7</energy:maximumCoverRatio>
                      <energy:name>Wooden shutter</energy:name>
                      <energy:transmittance>
                        <energy:Transmittance>
                          <energy:fraction uom="1">0.35</energy:fraction>
                          <energy:wavelengthRange>Solar</energy:wavelengthRange>
                        </energy:Transmittance>
                      </energy:transmittance>
                    </energy:ShadingType>
                  </energy:outdoorShading>
                  <energy:openableRatio uom="1">0.9</energy:openableRatio>
                  <energy:surfaceGeometry>
                    <gml:MultiSurface>
                      <gml:surfaceMember>
                        <gml:Polygon>
                          <gml:exterior>
                            <gml:LinearRing>
                              <gml:posList>1267.5 913.75 1.8 1269.9 913.75 1.8 1269.9 913.75 3.25 1267.5 913.75 3.25 1267.5 913.75 1.8</gml:posList>
                            </gml:LinearRing>
                          </gml:exterior>
                        </gml:Polygon>
                      </gml:surfaceMember>
                    </gml:MultiSurface>
                  </energy:surfaceGeometry>
                  <energy:construction>
                    <energy:ReverseConstruction gml:id="construction-reverse">
                      <gml:name>Wall seen from the outside</gml:name>
                      <energy:baseConstruction xlink:href="#construction-wall"/>
                    </energy:ReverseConstruction>
                  </energy:construction>
                  <energy:relatesTo xlink:href="#facade"/>
                </energy:ThermalOpening>
              </energy:contains>
              <energy:delimits xlink:href="#zone-homes"/>
              <energy:relatesTo xlink:href="#facade"/>
            </energy:ThermalBoundary>
          </energy:boundedBy>
          <energy:contains>
            <energy:UsageZone gml:id="usage-homes">
              <gml:name>Apartments</gml:name>
              <core:creationDate>2020-06-01</core:creationDate>
              <energy:coolingSchedule>
                <energy:DailyPatternSchedule>
                  <energy:periodOfYear>
                    <energy:PeriodOfYear>
                      <energy:period>
                        <gml:TimePeriod>
                          <gml:beginPosition>2023-01-01</gml:beginPosition>
                          <gml:endPosition>2023-12-31</gml:endPosition>
                        </gml:TimePeriod>
                      </energy:period>
                      <energy:dailySchedule>
                        <energy:DailySchedule>
                          <energy:dayType>Tuesday</energy:dayType>
                          <energy:schedule>
                            <energy:RegularTimeSeries>
                              <energy:variableProperties>
                                <energy:TimeValuesProperties>
                                  <energy:acquisitionMethod>Unknown</energy:acquisitionMethod>
                                  <energy:interpolationType>MinimumInPrecedingInterval</energy:interpolationType>
                                  <energy:qualityDescription>Checked by hand</energy:qualityDescription>
                                  <energy:source>Simulation</energy:source>
                                </energy:TimeValuesProperties>
                              </energy:variableProperties>
                              <energy:temporalExtent>
                                <gml:TimePeriod>
                                  <gml:beginPosition>2022-10-15</gml:beginPosition>
                                  <gml:endPosition>2023-04-15</gml:endPosition>
                                </gml:TimePeriod>
                              </energy:temporalExtent>
                              <energy:timeInterval unit="hour">1</energy:timeInterval>
                              <energy:values uom="kWh">2.1 2.4 2.2 1.9</energy:values>
                            </energy:RegularTimeSeries>
                          </energy:schedule>
                        </energy:DailySchedule>
                      </energy:dailySchedule>
                      <energy:dailySchedule>
                        <energy:DailySchedule>
                          <energy:dayType>Wednesday</energy:dayType>
                          <energy:schedule>
                            <energy:IrregularTimeSeries>
                              <energy:variableProperties>
                                <energy:TimeValuesProperties>
                                  <energy:acquisitionMethod>Measurement</energy:acquisitionMethod>
                                  <energy:interpolationType>MinimumInSucceedingInterval</energy:interpolationType>
                                  <energy:qualityDescription>Gaps filled by interpolation</energy:qualityDescription>
                                  <energy:source>Meter of the house</energy:source>
                                </energy:TimeValuesProperties>
                              </energy:variableProperties>
                              <energy:uom uom="kWh"/>
                            </energy:IrregularTimeSeries>
                          </energy:schedule>
                        </energy:DailySchedule>
                      </energy:dailySchedule>
                    </energy:PeriodOfYear>
                  </energy:periodOfYear>
                </energy:DailyPatternSchedule>
              </energy:coolingSchedule>
              <energy:heatingSchedule>
                <energy:DualValueSchedule>
                  <energy:usageHoursPerDay>15</energy:usageHoursPerDay>
                  <energy:usageDaysPerYear>320</energy:usageDaysPerYear>
                  <energy:usageValue uom="degC">20</energy:usageValue>
                  <energy:idleValue uom="degC">16</energy:idleValue>
                </energy:DualValueSchedule>
              </energy:heatingSchedule>
              <energy:usageZoneType>residential</energy:usageZoneType>
              <energy:usedFloors>0 1 2</energy:usedFloors>
              <energy:ventilationSchedule>
                <energy:ConstantValueSchedule>
                  <energy:averageValue uom="1/h">0.5</energy:averageValue>
                </energy:ConstantValueSchedule>
              </energy:ventilationSchedule>
              <energy:averageInternalGains>
                <energy:HeatExchangeType>
                  <energy:convectiveFraction uom="1">0.6</energy:convectiveFraction>
                  <energy:latentFraction uom="1">0.1</energy:latentFraction>
                  <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
                  <energy:totalValue uom="W">1250</energy:totalValue>
                </energy:HeatExchangeType>
              </energy:averageInternalGains>
              <energy:floorArea>
                <energy:FloorArea>
                  <energy:type>grossFloorArea</energy:type>
                  <energy:value uom="m2">412.5</energy:value>
                </energy:FloorArea>
              </energy:floorArea>
              <energy:volumeGeometry>
                <gml:Solid>
                  <gml:exterior>
                    <gml:CompositeSurface>
                      <gml:surfaceMember>
                        <gml:Polygon>
                          <gml:exterior>
                            <gml:LinearRing>
                              <gml:posList>1260 860 2.4 1260 869 2.4 1274 869 2.4 1274 860 2.4 1260 860 2.4</gml:posList>
                            </gml:LinearRing>
                          </gml:exterior>
                        </gml:Polygon>
                      </gml:surfaceMember>
                      <gml:surfaceMember>
                        <gml:Polygon>
                          <gml:exterior>
                            <gml:LinearRing>
                              <gml:posList>1260 860 8.4 1274 860 8.4 1274 869 8.4 1260 869 8.4 1260 860 8.4</gml:posList>
                            </gml:LinearRing>
                          </gml:exterior>
                        </gml:Polygon>
                      </gml:surfaceMember>
                      <gml:surfaceMember>
                        <gml:Polygon>
                          <gml:exterior>
                            <gml:LinearRing>
                              <gml:posList>1260 860 2.4 1274 860 2.4 1274 860 8.4 1260 860 8.4 1260 860 2.4</gml:posList>
                            </gml:LinearRing>
                          </gml:exterior>
                        </gml:Polygon>
                      </gml:surfaceMember>
                      <gml:surfaceMember>
                        <gml:Polygon>
                          <gml:exterior>
                            <gml:LinearRing>
                              <gml:posList>1274 860 2.4 1274 869 2.4 1274 869 8.4 1274 860 8.4 1274 860 2.4</gml:posList>
                            </gml:LinearRing>
                          </gml:exterior>
                        </gml:Polygon>
                      </gml:surfaceMember>
                      <gml:surfaceMember>
                        <gml:Polygon>
                          <gml:exterior>
                            <gml:LinearRing>
                              <gml:posList>1274 869 2.4 1260 869 2.4 1260 869 8.4 1274 869 8.4 1274 869 2.4</gml:posList>
                            </gml:LinearRing>
                          </gml:exterior>
                        </gml:Polygon>
                      </gml:surfaceMember>
                      <gml:surfaceMember>
                        <gml:Polygon>
                          <gml:exterior>
                            <gml:LinearRing>
                              <gml:posList>1260 869 2.4 1260 860 2.4 1260 860 8.4 1260 869 8.4 1260 869 2.4</gml:posList>
                            </gml:LinearRing>
                          </gml:exterior>
                        </gml:Polygon>
                      </gml:surfaceMember>
                    </gml:CompositeSurface>
                  </gml:exterior>
                </gml:Solid>
              </energy:volumeGeometry>
              <energy:contains>
                <energy:BuildingUnit gml:id="unit-2">
                  <gml:name>Apartment on the second floor</gml:name>
                  <core:creationDate>2021-11-23</core:creationDate>
                  <energy:energyPerformanceCertification>
                    <energy:EnergyPerformanceCertification>
                      <energy:certificationRating>C</energy:certificationRating>
                      <energy:certificationName>Port Vert</energy:certificationName>
                      <energy:certificationId>EPC-2022-0418</energy:certificationId>
                    </energy:EnergyPerformanceCertification>
                  </energy:energyPerformanceCertification>
                  <energy:floorArea>
                    <energy:FloorArea>
                      <energy:type>netFloorArea</energy:type>
                      <energy:value uom="m2">96.2</energy:value>
                    </energy:FloorArea>
                  </energy:floorArea>
                  <energy:numberOfRooms>5</energy:numberOfRooms>
                  <energy:ownerName>Lucie Marchand</energy:ownerName>
                  <energy:ownershipType>private</energy:ownershipType>
                  <energy:occupiedBy>
                    <energy:Occupants gml:id="occupants-unit">
                      <gml:name>Family Marchand</gml:name>
                      <energy:heatDissipation>
                        <energy:HeatExchangeType>
                          <energy:convectiveFraction uom="1">0.5</energy:convectiveFraction>
                          <energy:latentFraction uom="1">0.2</energy:latentFraction>
                          <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
                          <energy:totalValue uom="W">400</energy:totalValue>
                        </energy:HeatExchangeType>
                      </energy:heatDissipation>
                      <energy:numberOfOccupants>4</energy:numberOfOccupants>
                      <energy:occupancyRate>
                        <energy:ConstantValueSchedule>
                          <energy:averageValue uom="1/h">0.7</energy:averageValue>
                        </energy:ConstantValueSchedule>
                      </energy:occupancyRate>
                      <energy:occupantType>residents</energy:occupantType>
                      <energy:household>
                        <energy:Household gml:id="household-marchand">
                          <gml:name>Household Marchand</gml:name>
                          <energy:residenceType>SecondaryResidence</energy:residenceType>
                          <energy:householdType>MultiFamily</energy:householdType>
                        </energy:Household>
                      </energy:household>
                    </energy:Occupants>
                  </energy:occupiedBy>
                  <energy:equippedWith>
                    <energy:DHWFacilities gml:id="bathroom">
                      <gml:name>Bathroom</gml:name>
                      <energy:operationSchedule>
                        <energy:DualValueSchedule>
                          <energy:usageValue uom="degC">21</energy:usageValue>
                          <energy:idleValue uom="degC">15</energy:idleValue>
                        </energy:DualValueSchedule>
                      </energy:operationSchedule>
                      <energy:heatDissipation>
                        <energy:HeatExchangeType>
                          <energy:convectiveFraction uom="1">0.6</energy:convectiveFraction>
                          <energy:latentFraction uom="1">0.1</energy:latentFraction>
                          <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
                          <energy:totalValue uom="W">90</energy:totalValue>
                        </energy:HeatExchangeType>
                      </energy:heatDissipation>
                      <energy:numberOfBaths>1</energy:numberOfBaths>
                      <energy:numberOfShowers>2</energy:numberOfShowers>
                      <energy:numberOfWashBasins>3</energy:numberOfWashBasins>
                      <energy:waterStorageVolume uom="m3">0.3</energy:waterStorageVolume>
                    </energy:DHWFacilities>
                  </energy:equippedWith>
                </energy:BuildingUnit>
              </energy:contains>
              <energy:occupiedBy>
                <energy:Occupants gml:id="occupants-house">
                  <gml:name>Residents of the house</gml:name>
                  <energy:heatDissipation>
                    <energy:HeatExchangeType>
                      <energy:convectiveFraction uom="1">0.5</energy:convectiveFraction>
                      <energy:latentFraction uom="1">0.2</energy:latentFraction>
                      <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
                      <energy:totalValue uom="W">1250</energy:totalValue>
                    </energy:HeatExchangeType>
                  </energy:heatDissipation>
                  <energy:numberOfOccupants>12</energy:numberOfOccupants>
                  <energy:occupancyRate>
                    <energy:TimeSeriesSchedule>
                      <energy:timeDependingValues>
                        <energy:IrregularTimeSeriesFile>
                          <energy:variableProperties>
                            <energy:TimeValuesProperties>
                              <energy:acquisitionMethod>Simulation</energy:acquisitionMethod>
                              <energy:interpolationType>PrecedingTotal</energy:interpolationType>
                              <energy:qualityDescription>Checked by hand</energy:qualityDescription>
                              <energy:source>Station of the lighthouse</energy:source>
                            </energy:TimeValuesProperties>
                          </energy:variableProperties>
                          <energy:uom uom="kWh"/>
                          <energy:file>series/meter-2023.csv</energy:file>
                          <energy:fieldSeparator>,</energy:fieldSeparator>
                        </energy:IrregularTimeSeriesFile>
                      </energy:timeDependingValues>
                    </energy:TimeSeriesSchedule>
                  </energy:occupancyRate>
                  <energy:occupantType>visitors</energy:occupantType>
                  <energy:household xlink:href="#household-marchand"/>
                </energy:Occupants>
              </energy:occupiedBy>
              <energy:equippedWith>
                <energy:ElectricalAppliances gml:id="appliances">
                  <gml:name>Kitchens</gml:name>
                  <energy:operationSchedule>
                    <energy:ConstantValueSchedule>
                      <energy:averageValue uom="1/h">0.5</energy:averageValue>
                    </energy:ConstantValueSchedule>
                  </energy:operationSchedule>
                  <energy:heatDissipation>
                    <energy:HeatExchangeType>
                      <energy:convectiveFraction uom="1">0.6</energy:convectiveFraction>
                      <energy:latentFraction uom="1">0.1</energy:latentFraction>
                      <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
                      <energy:totalValue uom="W">400</energy:totalValue>
                    </energy:HeatExchangeType>
                  </energy:heatDissipation>
                  <energy:electricalPower uom="W">640</energy:electricalPower>
                </energy:ElectricalAppliances>
              </energy:equippedWith>
              <energy:equippedWith>
                <energy:LightingFacilities gml:id="stair-lights">
                  <gml:name>Light in the stairwell</gml:name>
                  <energy:operationSchedule>
                    <energy:DualValueSchedule>
                      <energy:usageValue uom="degC">20</energy:usageValue>
                      <energy:idleValue uom="degC">16</energy:idleValue>
                    </energy:DualValueSchedule>
                  </energy:operationSchedule>
                  <energy:heatDissipation>
                    <energy:HeatExchangeType>
                      <energy:convectiveFraction uom="1">0.5</energy:convectiveFraction>
                      <energy:latentFraction uom="1">0.2</energy:latentFraction>
                      <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
                      <energy:totalValue uom="W">90</energy:totalValue>
                    </energy:HeatExchangeType>
                  </energy:heatDissipation>
                  <energy:electricalPower uom="W">1800</energy:electricalPower>
                </energy:LightingFacilities>
              </energy:equippedWith>
              <energy:equippedWith>
                <energy:Facilities gml:id="lift">
                  <gml:name>Lift</gml:name>
                  <energy:operationSchedule>
                    <energy:TimeSeriesSchedule>
                      <energy:timeDependingValues>
                        <energy:RegularTimeSeries>
                          <energy:variableProperties>
                            <energy:TimeValuesProperties>
                              <energy:acquisitionMethod>CalibratedSimulation</energy:acquisitionMethod>
                              <energy:interpolationType>SucceedingTotal</energy:interpolationType>
                              <energy:qualityDescription>Gaps filled by interpolation</energy:qualityDescription>
                              <energy:source>Simulation</energy:source>
                            </energy:TimeValuesProperties>
                          </energy:variableProperties>
                          <energy:temporalExtent>
                            <gml:TimePeriod>
                              <gml:beginPosition>2023-06-01</gml:beginPosition>
                              <gml:endPosition>2023-09-15</gml:endPosition>
                            </gml:TimePeriod>
                          </energy:temporalExtent>
                          <energy:timeInterval unit="hour">6</energy:timeInterval>
                          <energy:values uom="kWh">0.4 0.3 0.6 0.5</energy:values>
                        </energy:RegularTimeSeries>
                      </energy:timeDependingValues>
                    </energy:TimeSeriesSchedule>
                  </energy:operationSchedule>
                  <energy:heatDissipation>
                    <energy:HeatExchangeType>
                      <energy:convectiveFraction uom="1">0.6</energy:convectiveFraction>
                      <energy:latentFraction uom="1">0.1</energy:latentFraction>
                      <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
                      <energy:totalValue uom="W">1250</energy:totalValue>
                    </energy:HeatExchangeType>
                  </energy:heatDissipation>
                </energy:Facilities>
              </energy:equippedWith>
            </energy:UsageZone>
          </energy:contains>
          <energy:interiorRoom>
            <bldg:Room gml:id="salon">
              <gml:name>Living room</gml:name>
              <bldg:function>living room</bldg:function>
            </bldg:Room>
          </energy:interiorRoom>
        </energy:ThermalZone>
      </energy:thermalZone>
      <energy:usageZone>
        <energy:UsageZone gml:id="usage-shops">
          <gml:name>Shops on the quay</gml:name>
          <core:creationDate>2022-02-08</core:creationDate>
          <energy:coolingSchedule>
            <energy:ConstantValueSchedule><energy:averageValue uom="1/h">0.7</energy:averageValue></energy:ConstantValueSchedule>
          </energy:coolingSchedule>
          <energy:heatingSchedule>
            <energy:DualValueSchedule>
              <energy:usageHoursPerDay>9.5</energy:usageHoursPerDay>
              <energy:usageDaysPerYear>250</energy:usageDaysPerYear>
              <energy:usageValue uom="degC">21</energy:usageValue>
              <energy:idleValue uom="degC">15</energy:idleValue>
            </energy:DualValueSchedule>
          </energy:heatingSchedule>
          <energy:usageZoneType>retail</energy:usageZoneType>
          <energy:usedFloors>1 2</energy:usedFloors>
          <energy:ventilationSchedule>
            <energy:TimeSeriesSchedule>
              <energy:timeDependingValues>
                <energy:IrregularTimeSeriesFile>
                  <energy:variableProperties>
                    <energy:TimeValuesProperties>
                      <energy:acquisitionMethod>Estimation</energy:acquisitionMethod>
                      <energy:interpolationType>AverageInPrecedingInterval</energy:interpolationType>
                      <energy:qualityDescription>Checked by hand</energy:qualityDescription>
                      <energy:source>Meter of the house</energy:source>
                    </energy:TimeValuesProperties>
                  </energy:variableProperties>
                  <energy:uom uom="kWh"/>
                  <energy:file>series/heating-2023.csv</energy:file>
                  <energy:numberOfHeaderLines>3</energy:numberOfHeaderLines>
                  <energy:fieldSeparator>;</energy:fieldSeparator>
                  <energy:recordSeparator>LF</energy:recordSeparator>
                  <energy:decimalSymbol>.</energy:decimalSymbol>
                  <energy:timeColumnNumber>1</energy:timeColumnNumber>
                  <energy:valueColumnNumber>2</energy:valueColumnNumber>
                </energy:IrregularTimeSeriesFile>
              </energy:timeDependingValues>
            </energy:TimeSeriesSchedule>
          </energy:ventilationSchedule>
          <energy:averageInternalGains>
            <energy:HeatExchangeType>
              <energy:convectiveFraction uom="1">0.5</energy:convectiveFraction>
              <energy:latentFraction uom="1">0.2</energy:latentFraction>
              <energy:radiantFraction uom="1">0.3</energy:radiantFraction>
              <energy:totalValue uom="W">400</energy:totalValue>
            </energy:HeatExchangeType>
          </energy:averageInternalGains>
          <energy:floorArea>
            <energy:FloorArea>
              <energy:type>energyReferenceArea</energy:type>
              <energy:value uom="m2">68.8</energy:value>
            </energy:FloorArea>
          </energy:floorArea>
          <energy:volumeGeometry>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1260 890.5 4.5 1260 899.5 4.5 1274 899.5 4.5 1274 890.5 4.5 1260 890.5 4.5</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1260 890.5 10.5 1274 890.5 10.5 1274 899.5 10.5 1260 899.5 10.5 1260 890.5 10.5</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1260 890.5 4.5 1274 890.5 4.5 1274 890.5 10.5 1260 890.5 10.5 1260 890.5 4.5</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1274 890.5 4.5 1274 899.5 4.5 1274 899.5 10.5 1274 890.5 10.5 1274 890.5 4.5</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1274 899.5 4.5 1260 899.5 4.5 1260 899.5 10.5 1274 899.5 10.5 1274 899.5 4.5</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon>
                      <gml:exterior>
                        <gml:LinearRing>
                          <gml:posList>1260 899.5 4.5 1260 890.5 4.5 1260 890.5 10.5 1260 899.5 10.5 1260 899.5 4.5</gml:posList>
                        </gml:LinearRing>
                      </gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </energy:volumeGeometry>
          <energy:contains xlink:href="#unit-2"/>
          <energy:occupiedBy xlink:href="#occupants-house"/>
          <energy:equippedWith xlink:href="#stair-lights"/>
        </energy:UsageZone>
      </energy:usageZone>
      <energy:volume>
        <energy:VolumeType>
          <energy:type>EnergyReferenceVolume</energy:type>
          <energy:value uom="m3">980.5</energy:value>
        </energy:VolumeType>
      </energy:volume>
    </bldg:Building>
  </core:cityObjectMember>
  <gml:featureMember>
    <energy:Household gml:id="household-lebrun">
      <gml:name>Household Lebrun</gml:name>
      <energy:residenceType>Vacant</energy:residenceType>
      <energy:householdType>OneFamily</energy:householdType>
    </energy:Household>
  </gml:featureMember>
</core:CityModel>
