<?xml version="1.0" encoding="UTF-8"?>
<!-- The energy extension: a house with its zones, constructions, systems and demands, every kind of object once. -->
<core:CityModel gml:id="marrowby-energy"
    xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:bldg="http://www.opengis.net/citygml/building/2.0"
    xmlns:energy="http://www.sig3d.org/citygml/2.0/energy/1.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Energy of Lantern House</gml:name>
  <core:cityObjectMember>
    <bldg:Building gml:id="building">
      <gml:name>Lantern House</gml:name>
      <energy:demands>
        <energy:EnergyDemand gml:id="energy-demand">
          <gml:name>Energy demand</gml:name>
          <energy:energyAmount>
            <energy:IrregularTimeSeries gml:id="irregular-time-series">
              <gml:name>Irregular time series</gml:name>
              <energy:variableProperties>
                <energy:TimeValuesProperties>
                  <energy:acquisitionMethod>Measurement</energy:acquisitionMethod>
                  <energy:interpolationType>AverageInPrecedingInterval</energy:interpolationType>
                  <energy:qualityDescription>checked on site</energy:qualityDescription>
                  <energy:source>survey of the quarter</energy:source>
                </energy:TimeValuesProperties>
              </energy:variableProperties>
              <energy:uom uom="kW"/>
              <energy:contains>
                <energy:MeasurementPoint>
                  <energy:time frame="#ISO-8601">2019-05-01</energy:time>
                  <energy:value>0.8</energy:value>
                </energy:MeasurementPoint>
              </energy:contains>
            </energy:IrregularTimeSeries>
          </energy:energyAmount>
          <energy:endUse>Cooking</energy:endUse>
          <energy:maximumLoad uom="kW">4.5</energy:maximumLoad>
          <energy:energySource>
            <energy:EnergyConversionSystem gml:id="energy-conversion-system">
              <gml:name>Energy conversion system</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>0.8</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">0.85</energy:nominalEfficiency>
              <energy:number>2</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>1904</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation>
                <energy:SystemOperation gml:id="system-operation">
                  <gml:name>System operation</gml:name>
                  <energy:endUse>DomesticHotWater</energy:endUse>
                  <energy:operationTime xlink:href="#constant-value-schedule"/>
                  <energy:yearlyGlobalEfficiency>3.6</energy:yearlyGlobalEfficiency>
                </energy:SystemOperation>
              </energy:hasOperation>
              <energy:consumes>
                <energy:FinalEnergy gml:id="final-energy">
                  <gml:name>Final energy</gml:name>
                  <energy:energyAmount>
                    <energy:RegularTimeSeries gml:id="regular-time-series">
                      <gml:name>Regular time series</gml:name>
                      <energy:variableProperties>
                        <energy:TimeValuesProperties>
                          <energy:acquisitionMethod>CalibratedSimulation</energy:acquisitionMethod>
                          <energy:interpolationType>ConstantInPrecedingInterval</energy:interpolationType>
                          <energy:qualityDescription>checked on site</energy:qualityDescription>
                          <energy:source>survey of the quarter</energy:source>
                        </energy:TimeValuesProperties>
                      </energy:variableProperties>
                      <energy:temporalExtent>
                        <gml:TimePeriod>
                          <gml:beginPosition frame="#ISO-8601" calendarEraName="common era">2021-01-01</gml:beginPosition>
                          <gml:endPosition indeterminatePosition="unknown"/>
                          <gml:duration>P1Y</gml:duration>
                        </gml:TimePeriod>
                      </energy:temporalExtent>
                      <energy:timeInterval unit="year" radix="10" factor="0">50</energy:timeInterval>
                      <energy:values uom="kW">2.4 3.6 4.8 1.2</energy:values>
                    </energy:RegularTimeSeries>
                  </energy:energyAmount>
                  <energy:energyCarrier>
                    <energy:EnergyCarrier>
                      <energy:co2EmissionFactor uom="ratio">0.85</energy:co2EmissionFactor>
                      <energy:energyDensity uom="kWh/m3">10.4</energy:energyDensity>
                      <energy:primaryEnergyFactor uom="ratio">0.85</energy:primaryEnergyFactor>
                      <energy:type>gross</energy:type>
                    </energy:EnergyCarrier>
                  </energy:energyCarrier>
                  <energy:isProducedBy xlink:href="#photovoltaic-system"/>
                  <energy:isConsumedBy xlink:href="#photovoltaic-system"/>
                </energy:FinalEnergy>
              </energy:consumes>
              <energy:produces xlink:href="#final-energy"/>
            </energy:EnergyConversionSystem>
          </energy:energySource>
          <energy:energySource>
            <energy:PhotovoltaicSystem gml:id="photovoltaic-system">
              <gml:name>Photovoltaic system</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>3.6</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">3.4</energy:nominalEfficiency>
              <energy:number>4</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2004</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:installedOnBoundarySurface xlink:href="#room"/>
              <energy:surfaceGeometry>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 22 10 0 22 18 0 10 18 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </energy:surfaceGeometry>
              <energy:energyStorage xlink:href="#power-storage-system"/>
              <energy:cellType>Monocrystalline</energy:cellType>
              <energy:moduleArea uom="m2">24</energy:moduleArea>
            </energy:PhotovoltaicSystem>
          </energy:energySource>
          <energy:energySource>
            <energy:PhotovoltaicThermalSystem gml:id="photovoltaic-thermal-system">
              <gml:name>Photovoltaic thermal system</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>0.015</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">2.9</energy:nominalEfficiency>
              <energy:number>1</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2019</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:installedOnBoundarySurface xlink:href="#room"/>
              <energy:surfaceGeometry>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 22 10 0 22 18 0 10 18 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </energy:surfaceGeometry>
              <energy:energyStorage xlink:href="#power-storage-system"/>
              <energy:cellType>Polycrystalline</energy:cellType>
              <energy:collectorType>FlatPlaneCollector</energy:collectorType>
              <energy:moduleArea uom="m2">41.5</energy:moduleArea>
              <energy:apertureArea uom="m2">96</energy:apertureArea>
              <energy:eta0>120</energy:eta0>
              <energy:a1>7.5</energy:a1>
              <energy:a2>0.8</energy:a2>
            </energy:PhotovoltaicThermalSystem>
          </energy:energySource>
          <energy:energySource>
            <energy:SolarThermalSystem gml:id="solar-thermal-system">
              <gml:name>Solar thermal system</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>3.6</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">0.62</energy:nominalEfficiency>
              <energy:number>3</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>1987</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:installedOnBoundarySurface xlink:href="#room"/>
              <energy:surfaceGeometry>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 22 10 0 22 18 0 10 18 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </energy:surfaceGeometry>
              <energy:energyStorage xlink:href="#power-storage-system"/>
              <energy:collectorType>EvacuatedTubeCollector</energy:collectorType>
              <energy:apertureArea uom="m2">24</energy:apertureArea>
              <energy:eta0>0.015</energy:eta0>
              <energy:a1>120</energy:a1>
              <energy:a2>7.5</energy:a2>
            </energy:SolarThermalSystem>
          </energy:energySource>
          <energy:energySource>
            <energy:AirCompressor gml:id="air-compressor">
              <gml:name>Air compressor</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>0.8</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">0.85</energy:nominalEfficiency>
              <energy:number>6</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>1904</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:compressorType>ReciprocatingCompressorHermetic</energy:compressorType>
              <energy:pressure uom="Pa">50</energy:pressure>
            </energy:AirCompressor>
          </energy:energySource>
          <energy:energySource>
            <energy:Boiler gml:id="boiler">
              <gml:name>Boiler</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>3.6</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">3.4</energy:nominalEfficiency>
              <energy:number>12</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2004</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:condensation>false</energy:condensation>
            </energy:Boiler>
          </energy:energySource>
          <energy:energySource>
            <energy:Chiller gml:id="chiller">
              <gml:name>Chiller</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>0.015</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">2.9</energy:nominalEfficiency>
              <energy:number>2</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2019</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:condensationType>DryCooling</energy:condensationType>
              <energy:compressorType>ReciprocatingCompressorSemiHermetic</energy:compressorType>
              <energy:refrigerant>R290</energy:refrigerant>
            </energy:Chiller>
          </energy:energySource>
          <energy:energySource>
            <energy:CombinedHeatPower gml:id="combined-heat-power">
              <gml:name>Combined heat power</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>120</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">0.62</energy:nominalEfficiency>
              <energy:number>4</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>1987</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:technologyType>condensing</energy:technologyType>
              <energy:thermalEfficiency uom="scale">0.75</energy:thermalEfficiency>
              <energy:electricalEfficiency uom="scale">0.9</energy:electricalEfficiency>
            </energy:CombinedHeatPower>
          </energy:energySource>
          <energy:energySource>
            <energy:ElectricalResistance gml:id="electrical-resistance">
              <gml:name>Electrical resistance</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>7.5</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">0.85</energy:nominalEfficiency>
              <energy:number>1</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>1904</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
            </energy:ElectricalResistance>
          </energy:energySource>
          <energy:energySource>
            <energy:HeatExchanger gml:id="heat-exchanger">
              <gml:name>Heat exchanger</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>0.8</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">3.4</energy:nominalEfficiency>
              <energy:number>3</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2004</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:networkId>heat-net-1</energy:networkId>
              <energy:networkNodeId>node-12</energy:networkNodeId>
              <energy:primaryHeatSupplier>Marrowby heat works</energy:primaryHeatSupplier>
            </energy:HeatExchanger>
          </energy:energySource>
          <energy:energySource>
            <energy:HeatPump gml:id="heat-pump">
              <gml:name>Heat pump</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>3.6</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">2.9</energy:nominalEfficiency>
              <energy:number>6</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>2019</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:heatSource>AmbientAir</energy:heatSource>
              <energy:copSourceTemperature uom="Cel">55</energy:copSourceTemperature>
              <energy:copOperationTemperature uom="Cel">55</energy:copOperationTemperature>
            </energy:HeatPump>
          </energy:energySource>
          <energy:energySource>
            <energy:MechanicalVentilation gml:id="mechanical-ventilation">
              <gml:name>Mechanical ventilation</gml:name>
              <energy:efficiencyIndicator>A+</energy:efficiencyIndicator>
              <energy:installedNominalPower>0.015</energy:installedNominalPower>
              <energy:model>Ember 24</energy:model>
              <energy:nominalEfficiency uom="ratio">0.62</energy:nominalEfficiency>
              <energy:number>12</energy:number>
              <energy:productAndInstallationDocument>
                <core:informationSystem>https://marrowby.example/information-system</core:informationSystem>
                <core:externalObject>
                  <core:name>Aldbrook</core:name>
                  <core:uri>https://marrowby.example/uri</core:uri>
                </core:externalObject>
              </energy:productAndInstallationDocument>
              <energy:yearOfManufacture>1987</energy:yearOfManufacture>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:installedIn xlink:href="#room"/>
              <energy:hasOperation xlink:href="#system-operation"/>
              <energy:consumes xlink:href="#final-energy"/>
              <energy:produces xlink:href="#final-energy"/>
              <energy:heatRecovery>true</energy:heatRecovery>
              <energy:recuperationFactor uom="scale">0.25</energy:recuperationFactor>
            </energy:MechanicalVentilation>
          </energy:energySource>
          <energy:energyDistribution>
            <energy:EnergyDistributionSystem gml:id="energy-distribution-system">
              <gml:name>Energy distribution system</gml:name>
              <energy:distributionPerimeter>Building</energy:distributionPerimeter>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
            </energy:EnergyDistributionSystem>
          </energy:energyDistribution>
          <energy:energyDistribution>
            <energy:PowerDistributionSystem gml:id="power-distribution-system">
              <gml:name>Power distribution system</gml:name>
              <energy:distributionPerimeter>Dwelling</energy:distributionPerimeter>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:current uom="A">16</energy:current>
              <energy:voltage uom="V">230</energy:voltage>
            </energy:PowerDistributionSystem>
          </energy:energyDistribution>
          <energy:energyDistribution>
            <energy:ThermalDistributionSystem gml:id="thermal-distribution-system">
              <gml:name>Thermal distribution system</gml:name>
              <energy:distributionPerimeter>GroupOfBuildings</energy:distributionPerimeter>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:isCirculation>false</energy:isCirculation>
              <energy:medium>Air</energy:medium>
              <energy:nominalFlow uom="m3/h">90</energy:nominalFlow>
              <energy:returnTemperature uom="Cel">55</energy:returnTemperature>
              <energy:supplyTemperature uom="Cel">55</energy:supplyTemperature>
              <energy:thermalLossesFactor uom="ratio">0.85</energy:thermalLossesFactor>
            </energy:ThermalDistributionSystem>
          </energy:energyDistribution>
          <energy:energyStorage>
            <energy:PowerStorageSystem gml:id="power-storage-system">
              <gml:name>Power storage system</gml:name>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:batteryTechnology>lithium iron phosphate</energy:batteryTechnology>
              <energy:powerCapacity uom="kW">4.5</energy:powerCapacity>
            </energy:PowerStorageSystem>
          </energy:energyStorage>
          <energy:energyStorage>
            <energy:ThermalStorageSystem gml:id="thermal-storage-system">
              <gml:name>Thermal storage system</gml:name>
              <energy:serviceLife>
                <energy:ServiceLife>
                  <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                  <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                  <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                </energy:ServiceLife>
              </energy:serviceLife>
              <energy:preparationTemperature uom="Cel">55</energy:preparationTemperature>
              <energy:medium>Steam</energy:medium>
              <energy:thermalLossesFactor uom="ratio">3.4</energy:thermalLossesFactor>
              <energy:volume uom="m3">0.3</energy:volume>
            </energy:ThermalStorageSystem>
          </energy:energyStorage>
          <energy:energyEmission>
            <energy:Emitter gml:id="emitter">
              <gml:name>Emitter</gml:name>
              <energy:emitterType>Radiator</energy:emitterType>
              <energy:unitNumber>2</energy:unitNumber>
              <energy:installedPower uom="kW">4.5</energy:installedPower>
              <energy:thermalExchange>
                <energy:HeatExchangeType>
                  <energy:convectiveFraction uom="scale">0.25</energy:convectiveFraction>
                  <energy:latentFraction uom="scale">0.4</energy:latentFraction>
                  <energy:radiantFraction uom="scale">0.75</energy:radiantFraction>
                  <energy:totalValue uom="K*m2/W">3.6</energy:totalValue>
                </energy:HeatExchangeType>
              </energy:thermalExchange>
            </energy:Emitter>
          </energy:energyEmission>
        </energy:EnergyDemand>
      </energy:demands>
      <energy:weatherData>
        <energy:WeatherData gml:id="weather-data">
          <gml:name>Weather data</gml:name>
          <energy:weatherDataType>AirTemperature</energy:weatherDataType>
          <energy:values>
            <energy:IrregularTimeSeriesFile gml:id="irregular-time-series-file">
              <gml:name>Irregular time series file</gml:name>
              <energy:variableProperties>
                <energy:TimeValuesProperties>
                  <energy:acquisitionMethod>Simulation</energy:acquisitionMethod>
                  <energy:interpolationType>AverageInSucceedingInterval</energy:interpolationType>
                  <energy:qualityDescription>checked on site</energy:qualityDescription>
                  <energy:source>survey of the quarter</energy:source>
                </energy:TimeValuesProperties>
              </energy:variableProperties>
              <energy:uom uom="kW"/>
              <energy:file>https://marrowby.example/file</energy:file>
              <energy:numberOfHeaderLines>4</energy:numberOfHeaderLines>
              <energy:fieldSeparator>;</energy:fieldSeparator>
              <energy:recordSeparator>newline</energy:recordSeparator>
              <energy:decimalSymbol>.</energy:decimalSymbol>
              <energy:timeColumnNumber>1</energy:timeColumnNumber>
              <energy:valueColumnNumber>3</energy:valueColumnNumber>
            </energy:IrregularTimeSeriesFile>
          </energy:values>
          <energy:position><gml:Point><gml:pos>14 12 3</gml:pos></gml:Point></energy:position>
        </energy:WeatherData>
      </energy:weatherData>
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
      <energy:buildingType codeSpace="https://marrowby.example/codes/building-type">Building type</energy:buildingType>
      <energy:constructionWeight>VeryLight</energy:constructionWeight>
      <energy:constructionWeight>Light</energy:constructionWeight>
      <energy:energyPerformanceCertification>
        <energy:EnergyPerformanceCertification>
          <energy:certificationRating>gold</energy:certificationRating>
          <energy:certificationName>Green Lantern</energy:certificationName>
          <energy:certificationId>GL-2019-044</energy:certificationId>
        </energy:EnergyPerformanceCertification>
      </energy:energyPerformanceCertification>
      <energy:floorArea>
        <energy:FloorArea>
          <energy:type>gross</energy:type>
          <energy:value uom="m2">96</energy:value>
        </energy:FloorArea>
      </energy:floorArea>
      <energy:heightAboveGround>
        <energy:HeightAboveGround>
          <energy:heightReference>bottomOfConstruction</energy:heightReference>
          <energy:value uom="m">0.24</energy:value>
        </energy:HeightAboveGround>
      </energy:heightAboveGround>
      <energy:isLandmarked>true</energy:isLandmarked>
      <energy:refurbishmentMeasure>
        <energy:RefurbishmentMeasure>
          <energy:dateOfRefurbishment>
            <energy:DateOfEvent>
              <energy:instant>
                <gml:TimeInstant><gml:timePosition>2021-06-01T09:30:00Z</gml:timePosition></gml:TimeInstant>
              </energy:instant>
              <energy:period>
                <gml:TimePeriod>
                  <gml:beginPosition frame="#ISO-8601" calendarEraName="common era">2021-01-01</gml:beginPosition>
                  <gml:endPosition indeterminatePosition="unknown"/>
                  <gml:duration>P1Y</gml:duration>
                </gml:TimePeriod>
              </energy:period>
            </energy:DateOfEvent>
          </energy:dateOfRefurbishment>
          <energy:levelOfRefurbishment>medium refurbishment</energy:levelOfRefurbishment>
          <energy:descriptionOfRefurbishment>Roof insulated, windows replaced</energy:descriptionOfRefurbishment>
        </energy:RefurbishmentMeasure>
      </energy:refurbishmentMeasure>
      <energy:thermalZone>
        <energy:ThermalZone gml:id="thermal-zone">
          <gml:name>Thermal zone</gml:name>
          <energy:additionalThermalBridgeUValue uom="W/(K*m2)">1.1</energy:additionalThermalBridgeUValue>
          <energy:effectiveThermalCapacity uom="Wh/(K*m2)">165</energy:effectiveThermalCapacity>
          <energy:floorArea>
            <energy:FloorArea>
              <energy:type>gross</energy:type>
              <energy:value uom="m2">41.5</energy:value>
            </energy:FloorArea>
          </energy:floorArea>
          <energy:indirectlyHeatedAreaRatio uom="scale">0.4</energy:indirectlyHeatedAreaRatio>
          <energy:infiltrationRate uom="1/h">0.4</energy:infiltrationRate>
          <energy:isCooled>false</energy:isCooled>
          <energy:isHeated>true</energy:isHeated>
          <energy:volume>
            <energy:VolumeType>
              <energy:type>GrossVolume</energy:type>
              <energy:value uom="m3">310</energy:value>
            </energy:VolumeType>
          </energy:volume>
          <energy:volumeGeometry>
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
          </energy:volumeGeometry>
          <energy:boundedBy>
            <energy:ThermalBoundary gml:id="thermal-boundary">
              <gml:name>Thermal boundary</gml:name>
              <energy:thermalBoundaryType>InteriorWall</energy:thermalBoundaryType>
              <energy:azimuth uom="deg">35</energy:azimuth>
              <energy:inclination uom="deg">180</energy:inclination>
              <energy:area uom="m2">96</energy:area>
              <energy:surfaceGeometry>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 22 10 0 22 18 0 10 18 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </energy:surfaceGeometry>
              <energy:refurbishmentMeasure>
                <energy:RefurbishmentMeasure>
                  <energy:dateOfRefurbishment>
                    <energy:DateOfEvent>
                      <energy:instant>
                        <gml:TimeInstant><gml:timePosition>2021-06-01T09:30:00Z</gml:timePosition></gml:TimeInstant>
                      </energy:instant>
                      <energy:period>
                        <gml:TimePeriod>
                          <gml:beginPosition frame="#ISO-8601" calendarEraName="common era">2021-01-01</gml:beginPosition>
                          <gml:endPosition indeterminatePosition="unknown"/>
                          <gml:duration>P1Y</gml:duration>
                        </gml:TimePeriod>
                      </energy:period>
                    </energy:DateOfEvent>
                  </energy:dateOfRefurbishment>
                  <energy:levelOfRefurbishment>medium refurbishment</energy:levelOfRefurbishment>
                  <energy:descriptionOfRefurbishment>Roof insulated, windows replaced</energy:descriptionOfRefurbishment>
                </energy:RefurbishmentMeasure>
              </energy:refurbishmentMeasure>
              <energy:construction>
                <energy:Construction gml:id="construction">
                  <gml:name>Construction</gml:name>
                  <energy:uValue uom="W/(K*m2)">1.1</energy:uValue>
                  <energy:opticalProperties>
                    <energy:OpticalProperties>
                      <energy:emissivity>
                        <energy:Emissivity>
                          <energy:fraction uom="scale">0.75</energy:fraction>
                          <energy:surface>Inside</energy:surface>
                        </energy:Emissivity>
                      </energy:emissivity>
                      <energy:reflectance>
                        <energy:Reflectance>
                          <energy:fraction uom="scale">0.9</energy:fraction>
                          <energy:surface>Outside</energy:surface>
                          <energy:wavelengthRange>Solar</energy:wavelengthRange>
                        </energy:Reflectance>
                      </energy:reflectance>
                      <energy:transmittance>
                        <energy:Transmittance>
                          <energy:fraction uom="scale">0.25</energy:fraction>
                          <energy:wavelengthRange>Infrared</energy:wavelengthRange>
                        </energy:Transmittance>
                      </energy:transmittance>
                      <energy:glazingRatio uom="scale">0.9</energy:glazingRatio>
                    </energy:OpticalProperties>
                  </energy:opticalProperties>
                  <energy:serviceLife>
                    <energy:ServiceLife>
                      <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                      <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                      <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                    </energy:ServiceLife>
                  </energy:serviceLife>
                  <energy:layer>
                    <energy:Layer gml:id="layer">
                      <gml:name>Layer</gml:name>
                      <energy:layerComponent>
                        <energy:LayerComponent gml:id="layer-component">
                          <gml:name>Layer component</gml:name>
                          <energy:areaFraction uom="scale">0.4</energy:areaFraction>
                          <energy:thickness uom="m">1.35</energy:thickness>
                          <energy:serviceLife>
                            <energy:ServiceLife>
                              <energy:startOfLife frame="#ISO-8601">2019-05-01</energy:startOfLife>
                              <energy:lifeExpectancy unit="year" radix="10" factor="0">50</energy:lifeExpectancy>
                              <energy:mainMaintenanceInterval unit="year" radix="10" factor="0">50</energy:mainMaintenanceInterval>
                            </energy:ServiceLife>
                          </energy:serviceLife>
                          <energy:material>
                            <energy:Gas gml:id="gas">
                              <gml:name>Gas</gml:name>
                              <energy:imageTexture>
                                <energy:ImageTexture gml:id="image-texture">
                                  <gml:name>Image texture</gml:name>
                                  <energy:url>https://marrowby.example/url</energy:url>
                                  <energy:repeatS>false</energy:repeatS>
                                  <energy:repeatT>true</energy:repeatT>
                                </energy:ImageTexture>
                              </energy:imageTexture>
                              <energy:isVentilated>true</energy:isVentilated>
                              <energy:rValue uom="K*m2/W">4.2</energy:rValue>
                            </energy:Gas>
                          </energy:material>
                        </energy:LayerComponent>
                      </energy:layerComponent>
                    </energy:Layer>
                  </energy:layer>
                </energy:Construction>
              </energy:construction>
              <energy:contains>
                <energy:ThermalOpening gml:id="thermal-opening">
                  <gml:name>Thermal opening</gml:name>
                  <energy:area uom="m2">41.5</energy:area>
                  <energy:indoorShading>
                    <energy:ShadingType>
                      <energy:maximumCoverRatio uom="scale">0.25</energy:maximumCoverRatio>
                      <energy:name>Aldbrook</energy:name>
                      <energy:transmittance>
                        <energy:Transmittance>
                          <energy:fraction uom="scale">0.75</energy:fraction>
                          <energy:wavelengthRange>Visible</energy:wavelengthRange>
                        </energy:Transmittance>
                      </energy:transmittance>
                    </energy:ShadingType>
                  </energy:indoorShading>
                  <energy:outdoorShading>
                    <energy:ShadingType>
                      <energy:maximumCoverRatio uom="scale">0.4</energy:maximumCoverRatio>
                      <energy:name>Aldbrook</energy:name>
                      <energy:transmittance>
                        <energy:Transmittance>
                          <energy:fraction uom="scale">0.9</energy:fraction>
                          <energy:wavelengthRange>Total</energy:wavelengthRange>
                        </energy:Transmittance>
                      </energy:transmittance>
                    </energy:ShadingType>
                  </energy:outdoorShading>
                  <energy:openableRatio uom="scale">0.9</energy:openableRatio>
                  <energy:surfaceGeometry>
                    <gml:MultiSurface>
                      <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 22 10 0 22 18 0 10 18 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                    </gml:MultiSurface>
                  </energy:surfaceGeometry>
                  <energy:construction>
                    <energy:ReverseConstruction gml:id="reverse-construction">
                      <gml:name>Reverse construction</gml:name>
                      <energy:baseConstruction xlink:href="#construction"/>
                    </energy:ReverseConstruction>
                  </energy:construction>
                  <energy:relatesTo xlink:href="#room"/>
                </energy:ThermalOpening>
              </energy:contains>
              <energy:delimits xlink:href="#thermal-zone"/>
              <energy:relatesTo xlink:href="#room"/>
            </energy:ThermalBoundary>
          </energy:boundedBy>
          <energy:contains xlink:href="#usage-zone"/>
          <energy:interiorRoom>
            <bldg:Room gml:id="room"><gml:name>Room</gml:name></bldg:Room>
          </energy:interiorRoom>
        </energy:ThermalZone>
      </energy:thermalZone>
      <energy:usageZone>
        <energy:UsageZone gml:id="usage-zone">
          <gml:name>Usage zone</gml:name>
          <energy:coolingSchedule>
            <energy:ConstantValueSchedule gml:id="constant-value-schedule">
              <gml:name>Constant value schedule</gml:name>
              <energy:averageValue uom="kW">2.4</energy:averageValue>
            </energy:ConstantValueSchedule>
          </energy:coolingSchedule>
          <energy:heatingSchedule>
            <energy:DailyPatternSchedule gml:id="daily-pattern-schedule">
              <gml:name>Daily pattern schedule</gml:name>
              <energy:periodOfYear>
                <energy:PeriodOfYear>
                  <energy:period>
                    <gml:TimePeriod>
                      <gml:beginPosition frame="#ISO-8601" calendarEraName="common era">2021-01-01</gml:beginPosition>
                      <gml:endPosition indeterminatePosition="unknown"/>
                      <gml:duration>P1Y</gml:duration>
                    </gml:TimePeriod>
                  </energy:period>
                  <energy:dailySchedule>
                    <energy:DailySchedule>
                      <energy:dayType>Monday</energy:dayType>
                      <energy:schedule xlink:href="#irregular-time-series"/>
                    </energy:DailySchedule>
                  </energy:dailySchedule>
                </energy:PeriodOfYear>
              </energy:periodOfYear>
            </energy:DailyPatternSchedule>
          </energy:heatingSchedule>
          <energy:usageZoneType>residential</energy:usageZoneType>
          <energy:usedFloors>0 1 2</energy:usedFloors>
          <energy:ventilationSchedule>
            <energy:DualValueSchedule gml:id="dual-value-schedule">
              <gml:name>Dual value schedule</gml:name>
              <energy:usageHoursPerDay>120</energy:usageHoursPerDay>
              <energy:usageDaysPerYear>7.5</energy:usageDaysPerYear>
              <energy:usageValue uom="kW">2.4</energy:usageValue>
              <energy:idleValue uom="kW">2.4</energy:idleValue>
            </energy:DualValueSchedule>
          </energy:ventilationSchedule>
          <energy:averageInternalGains>
            <energy:HeatExchangeType>
              <energy:convectiveFraction uom="scale">0.4</energy:convectiveFraction>
              <energy:latentFraction uom="scale">0.75</energy:latentFraction>
              <energy:radiantFraction uom="scale">0.9</energy:radiantFraction>
              <energy:totalValue uom="K*m2/W">4.2</energy:totalValue>
            </energy:HeatExchangeType>
          </energy:averageInternalGains>
          <energy:floorArea>
            <energy:FloorArea>
              <energy:type>gross</energy:type>
              <energy:value uom="m2">24</energy:value>
            </energy:FloorArea>
          </energy:floorArea>
          <energy:volumeGeometry>
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
          </energy:volumeGeometry>
          <energy:contains>
            <energy:BuildingUnit gml:id="building-unit">
              <gml:name>Building unit</gml:name>
              <energy:energyPerformanceCertification>
                <energy:EnergyPerformanceCertification>
                  <energy:certificationRating>gold</energy:certificationRating>
                  <energy:certificationName>Green Lantern</energy:certificationName>
                  <energy:certificationId>GL-2019-044</energy:certificationId>
                </energy:EnergyPerformanceCertification>
              </energy:energyPerformanceCertification>
              <energy:floorArea>
                <energy:FloorArea>
                  <energy:type>gross</energy:type>
                  <energy:value uom="m2">96</energy:value>
                </energy:FloorArea>
              </energy:floorArea>
              <energy:numberOfRooms>6</energy:numberOfRooms>
              <energy:ownerName>Society of Lamplighters</energy:ownerName>
              <energy:ownershipType>private</energy:ownershipType>
              <energy:occupiedBy xlink:href="#occupants"/>
              <energy:equippedWith xlink:href="#facilities"/>
            </energy:BuildingUnit>
          </energy:contains>
          <energy:occupiedBy>
            <energy:Occupants gml:id="occupants">
              <gml:name>Occupants</gml:name>
              <energy:heatDissipation>
                <energy:HeatExchangeType>
                  <energy:convectiveFraction uom="scale">0.25</energy:convectiveFraction>
                  <energy:latentFraction uom="scale">0.4</energy:latentFraction>
                  <energy:radiantFraction uom="scale">0.75</energy:radiantFraction>
                  <energy:totalValue uom="K*m2/W">4.2</energy:totalValue>
                </energy:HeatExchangeType>
              </energy:heatDissipation>
              <energy:numberOfOccupants>12</energy:numberOfOccupants>
              <energy:occupancyRate>
                <energy:TimeSeriesSchedule gml:id="time-series-schedule">
                  <gml:name>Time series schedule</gml:name>
                  <energy:timeDependingValues>
                    <energy:RegularTimeSeriesFile gml:id="regular-time-series-file">
                      <gml:name>Regular time series file</gml:name>
                      <energy:variableProperties>
                        <energy:TimeValuesProperties>
                          <energy:acquisitionMethod>Estimation</energy:acquisitionMethod>
                          <energy:interpolationType>ConstantInSucceedingInterval</energy:interpolationType>
                          <energy:qualityDescription>checked on site</energy:qualityDescription>
                          <energy:source>survey of the quarter</energy:source>
                        </energy:TimeValuesProperties>
                      </energy:variableProperties>
                      <energy:uom uom="kW"/>
                      <energy:file>https://marrowby.example/file</energy:file>
                      <energy:temporalExtent>
                        <gml:TimePeriod>
                          <gml:beginPosition frame="#ISO-8601" calendarEraName="common era">2021-01-01</gml:beginPosition>
                          <gml:endPosition indeterminatePosition="unknown"/>
                          <gml:duration>P1Y</gml:duration>
                        </gml:TimePeriod>
                      </energy:temporalExtent>
                      <energy:timeInterval unit="year" radix="10" factor="0">50</energy:timeInterval>
                      <energy:numberOfHeaderLines>3</energy:numberOfHeaderLines>
                      <energy:fieldSeparator>;</energy:fieldSeparator>
                      <energy:recordSeparator>newline</energy:recordSeparator>
                      <energy:decimalSymbol>.</energy:decimalSymbol>
                      <energy:valueColumnNumber>6</energy:valueColumnNumber>
                    </energy:RegularTimeSeriesFile>
                  </energy:timeDependingValues>
                </energy:TimeSeriesSchedule>
              </energy:occupancyRate>
              <energy:occupantType>residents</energy:occupantType>
              <energy:household>
                <energy:Household gml:id="household">
                  <gml:name>Household</gml:name>
                  <energy:residenceType>MainResidence</energy:residenceType>
                  <energy:householdType>LoneAdult</energy:householdType>
                </energy:Household>
              </energy:household>
            </energy:Occupants>
          </energy:occupiedBy>
          <energy:equippedWith>
            <energy:Facilities gml:id="facilities">
              <gml:name>Facilities</gml:name>
              <energy:operationSchedule xlink:href="#constant-value-schedule"/>
              <energy:heatDissipation>
                <energy:HeatExchangeType>
                  <energy:convectiveFraction uom="scale">0.9</energy:convectiveFraction>
                  <energy:latentFraction uom="scale">0.25</energy:latentFraction>
                  <energy:radiantFraction uom="scale">0.4</energy:radiantFraction>
                  <energy:totalValue uom="K*m2/W">3.6</energy:totalValue>
                </energy:HeatExchangeType>
              </energy:heatDissipation>
            </energy:Facilities>
          </energy:equippedWith>
          <energy:equippedWith>
            <energy:DHWFacilities gml:id="dhw-facilities">
              <gml:name>DHW facilities</gml:name>
              <energy:operationSchedule xlink:href="#constant-value-schedule"/>
              <energy:heatDissipation>
                <energy:HeatExchangeType>
                  <energy:convectiveFraction uom="scale">0.75</energy:convectiveFraction>
                  <energy:latentFraction uom="scale">0.9</energy:latentFraction>
                  <energy:radiantFraction uom="scale">0.25</energy:radiantFraction>
                  <energy:totalValue uom="K*m2/W">4.2</energy:totalValue>
                </energy:HeatExchangeType>
              </energy:heatDissipation>
              <energy:numberOfBaths>2</energy:numberOfBaths>
              <energy:numberOfShowers>4</energy:numberOfShowers>
              <energy:numberOfWashBasins>1</energy:numberOfWashBasins>
              <energy:waterStorageVolume uom="m3">0.3</energy:waterStorageVolume>
            </energy:DHWFacilities>
          </energy:equippedWith>
          <energy:equippedWith>
            <energy:ElectricalAppliances gml:id="electrical-appliances">
              <gml:name>Electrical appliances</gml:name>
              <energy:operationSchedule xlink:href="#constant-value-schedule"/>
              <energy:heatDissipation>
                <energy:HeatExchangeType>
                  <energy:convectiveFraction uom="scale">0.4</energy:convectiveFraction>
                  <energy:latentFraction uom="scale">0.75</energy:latentFraction>
                  <energy:radiantFraction uom="scale">0.9</energy:radiantFraction>
                  <energy:totalValue uom="K*m2/W">3.6</energy:totalValue>
                </energy:HeatExchangeType>
              </energy:heatDissipation>
              <energy:electricalPower uom="kW">4.5</energy:electricalPower>
            </energy:ElectricalAppliances>
          </energy:equippedWith>
          <energy:equippedWith>
            <energy:LightingFacilities gml:id="lighting-facilities">
              <gml:name>Lighting facilities</gml:name>
              <energy:operationSchedule xlink:href="#constant-value-schedule"/>
              <energy:heatDissipation>
                <energy:HeatExchangeType>
                  <energy:convectiveFraction uom="scale">0.25</energy:convectiveFraction>
                  <energy:latentFraction uom="scale">0.4</energy:latentFraction>
                  <energy:radiantFraction uom="scale">0.75</energy:radiantFraction>
                  <energy:totalValue uom="K*m2/W">4.2</energy:totalValue>
                </energy:HeatExchangeType>
              </energy:heatDissipation>
              <energy:electricalPower uom="kW">12</energy:electricalPower>
            </energy:LightingFacilities>
          </energy:equippedWith>
        </energy:UsageZone>
      </energy:usageZone>
      <energy:volume>
        <energy:VolumeType>
          <energy:type>NetVolume</energy:type>
          <energy:value uom="m3">310</energy:value>
        </energy:VolumeType>
      </energy:volume>
    </bldg:Building>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <energy:SolidMaterial gml:id="solid-material">
      <gml:name>Solid material</gml:name>
      <energy:imageTexture xlink:href="#image-texture"/>
      <energy:conductivity uom="W/(K*m)">0.035</energy:conductivity>
      <energy:density uom="kg/m3">1800</energy:density>
      <energy:permeance uom="kg/(m2*s*Pa)">2e-10</energy:permeance>
      <energy:porosity uom="scale">0.25</energy:porosity>
      <energy:specificHeat uom="J/(K*kg)">840</energy:specificHeat>
      <energy:embodiedCarbon uom="kg/kg">0.63</energy:embodiedCarbon>
      <energy:embodiedEnergy uom="MJ/kg">8.4</energy:embodiedEnergy>
    </energy:SolidMaterial>
  </core:cityObjectMember>
</core:CityModel>
