<?xml version="1.0" encoding="UTF-8"?>
<!-- A house and its building components: wall, floor, roof, foundation, window, their layers and product references -->
<core:CityModel xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:bldg="http://www.opengis.net/citygml/building/2.0"
    xmlns:component="urn:tolvik:citygml:component:1.0"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Maison du Port, components</gml:name>
  <gml:boundedBy>
    <gml:Envelope srsName="urn:ogc:def:crs:EPSG::2154" srsDimension="3">
      <gml:lowerCorner>1200 860 0</gml:lowerCorner>
      <gml:upperCorner>1290 920 20</gml:upperCorner>
    </gml:Envelope>
  </gml:boundedBy>
  <core:cityObjectMember>
    <bldg:Building gml:id="maison-du-port">
      <gml:name>Maison du Port</gml:name>
      <core:creationDate>1998-05-12</core:creationDate>
      <component:component>
        <component:Component gml:id="component-wall">
          <gml:description>Wall towards the quay, as built</gml:description>
          <gml:name>Facade of the quay</gml:name>
          <gml:name codeSpace="urn:clairval:register">PC-COMPONENT-WALL</gml:name>
          <core:creationDate>2019-03-12</core:creationDate>
          <core:terminationDate>2095-12-31</core:terminationDate>
          <core:externalReference>
            <core:informationSystem>https://register.example/clairval</core:informationSystem>
            <core:externalObject><core:uri>urn:clairval:object:412</core:uri></core:externalObject>
          </core:externalReference>
          <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
          <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
          <component:area uom="m2">42.5</component:area>
          <component:length uom="m">12.4</component:length>
          <component:volume uom="m3">15.3</component:volume>
          <component:unit>1</component:unit>
          <component:startOfLife>1998-05-12</component:startOfLife>
          <component:componentType>
            <component:WallComponentType gml:id="wall-type">
              <gml:description>Wall of two layers with a window</gml:description>
              <gml:name>Limestone wall</gml:name>
              <component:lifeExpectancy unit="year" radix="10" factor="0">80</component:lifeExpectancy>
              <component:constructionPackage>shell</component:constructionPackage>
              <component:typeOfComponent>wall</component:typeOfComponent>
              <component:componentReference>
                <component:ComponentReference gml:id="reference-brick">
                  <gml:name>Brick of the catalogue</gml:name>
                  <component:dataSourceURI>https://catalogue.example/bricks/310</component:dataSourceURI>
                  <component:productID>BRQ-310</component:productID>
                  <component:dataSourceName>Catalogue des tuileries de Clairval</component:dataSourceName>
                </component:ComponentReference>
              </component:componentReference>
              <component:mainMaterial>limestone</component:mainMaterial>
              <component:mainFillingMaterial>hemp wool</component:mainFillingMaterial>
              <component:layer>
                <component:LayeredComponentType gml:id="layer-limestone">
                  <gml:name>Limestone</gml:name>
                  <component:lifeExpectancy unit="year">50</component:lifeExpectancy>
                  <component:constructionPackage>envelope</component:constructionPackage>
                  <component:typeOfComponent>facing</component:typeOfComponent>
                  <component:componentReference xlink:href="#reference-brick"/>
                  <component:thickness uom="m">0.36</component:thickness>
                </component:LayeredComponentType>
              </component:layer>
              <component:layer>
                <component:LayeredComponentType gml:id="layer-cork">
                  <gml:name>Cork insulation</gml:name>
                  <component:lifeExpectancy unit="year">30</component:lifeExpectancy>
                  <component:constructionPackage>fittings</component:constructionPackage>
                  <component:typeOfComponent>insulation</component:typeOfComponent>
                  <component:componentReference xlink:href="#reference-window"/>
                  <component:thickness uom="m">0.14</component:thickness>
                </component:LayeredComponentType>
              </component:layer>
              <component:constructiveSystem>load-bearing masonry</component:constructiveSystem>
              <component:opening>
                <component:OpeningComponentType gml:id="window-type">
                  <gml:name>Window with two panels</gml:name>
                  <component:lifeExpectancy unit="year">25</component:lifeExpectancy>
                  <component:constructionPackage>shell</component:constructionPackage>
                  <component:typeOfComponent>window</component:typeOfComponent>
                  <component:componentReference>
                    <component:ComponentReference gml:id="reference-window">
                      <gml:name>Window of the catalogue</gml:name>
                      <component:dataSourceURI>https://catalogue.example/windows/12</component:dataSourceURI>
                      <component:productID>WIN-1245</component:productID>
                      <component:dataSourceName>Menuiseries de l'Anse</component:dataSourceName>
                    </component:ComponentReference>
                  </component:componentReference>
                  <component:width uom="m">1.2</component:width>
                  <component:height uom="m">1.45</component:height>
                  <component:dateOfRefurbishment>2016</component:dateOfRefurbishment>
                  <component:solarFactor uom="1">0.62</component:solarFactor>
                  <component:openableRatio uom="1">0.9</component:openableRatio>
                  <component:openingType>TwoPanelFrenchWindow</component:openingType>
                  <component:openingPosition>InTheMiddleOfTheWall</component:openingPosition>
                  <component:openingManagement>ManualManagement</component:openingManagement>
                  <component:closeShadingType>Overhang</component:closeShadingType>
                  <component:airIntakeModule uom="m3/h">30</component:airIntakeModule>
                  <component:depth uom="m">0.07</component:depth>
                  <component:part>
                    <component:GeneralComponentType gml:id="handle-type">
                      <gml:description>Brass handle with lock</gml:description>
                      <gml:name>Handle of the window</gml:name>
                      <component:lifeExpectancy unit="year">80</component:lifeExpectancy>
                      <component:constructionPackage>envelope</component:constructionPackage>
                      <component:typeOfComponent>handle</component:typeOfComponent>
                      <component:componentReference xlink:href="#reference-brick"/>
                    </component:GeneralComponentType>
                  </component:part>
                </component:OpeningComponentType>
              </component:opening>
              <component:opening>
                <component:OpeningComponentType gml:id="door-type">
                  <gml:name>Door to the quay</gml:name>
                  <component:lifeExpectancy unit="year">50</component:lifeExpectancy>
                  <component:constructionPackage>fittings</component:constructionPackage>
                  <component:typeOfComponent>door</component:typeOfComponent>
                  <component:componentReference xlink:href="#reference-window"/>
                  <component:width uom="m">0.9</component:width>
                  <component:height uom="m">2.15</component:height>
                  <component:dateOfRefurbishment>2020</component:dateOfRefurbishment>
                  <component:solarFactor uom="1">0.48</component:solarFactor>
                  <component:openableRatio uom="1">0.5</component:openableRatio>
                  <component:openingType>Door</component:openingType>
                  <component:openingPosition>OnTheInsideOfTheWall</component:openingPosition>
                  <component:openingManagement>AutomaticManagement</component:openingManagement>
                  <component:closeShadingType>Framing</component:closeShadingType>
                  <component:airIntakeModule uom="m3/h">45</component:airIntakeModule>
                  <component:depth uom="m">0.09</component:depth>
                  <component:part xlink:href="#handle-type"/>
                </component:OpeningComponentType>
              </component:opening>
            </component:WallComponentType>
          </component:componentType>
        </component:Component>
      </component:component>
      <component:component>
        <component:Component gml:id="component-window">
          <gml:name>Window of the first floor</gml:name>
          <core:creationDate>2020-06-01</core:creationDate>
          <component:area uom="m2">118</component:area>
          <component:length uom="m">9.8</component:length>
          <component:volume uom="m3">23.6</component:volume>
          <component:unit>6</component:unit>
          <component:startOfLife>2011-09</component:startOfLife>
          <component:componentType xlink:href="#window-type"/>
        </component:Component>
      </component:component>
      <bldg:class>habitation</bldg:class>
      <bldg:yearOfConstruction>1974</bldg:yearOfConstruction>
      <bldg:measuredHeight uom="m">12.8</bldg:measuredHeight>
      <bldg:storeysAboveGround>4</bldg:storeysAboveGround>
    </bldg:Building>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <component:Component gml:id="component-floor">
      <gml:name>Floor above the shops</gml:name>
      <core:creationDate>2021-11-23</core:creationDate>
      <component:area uom="m2">96.4</component:area>
      <component:length uom="m">15</component:length>
      <component:volume uom="m3">19.1</component:volume>
      <component:unit>6</component:unit>
      <component:startOfLife>2019-03-01</component:startOfLife>
      <component:componentType>
        <component:FloorComponentType gml:id="floor-type">
          <gml:name>Ribbed concrete slab</gml:name>
          <component:lifeExpectancy unit="year">30</component:lifeExpectancy>
          <component:constructionPackage>shell</component:constructionPackage>
          <component:typeOfComponent>floor</component:typeOfComponent>
          <component:componentReference xlink:href="#reference-window"/>
          <component:mainMaterial>oak</component:mainMaterial>
          <component:mainFillingMaterial>cork</component:mainFillingMaterial>
          <component:layer>
            <component:LayeredComponentType gml:id="layer-floor">
              <gml:name>Oak boards</gml:name>
              <component:lifeExpectancy unit="year">25</component:lifeExpectancy>
              <component:constructionPackage>envelope</component:constructionPackage>
              <component:typeOfComponent>finish</component:typeOfComponent>
              <component:componentReference xlink:href="#reference-brick"/>
              <component:thickness uom="m">0.14</component:thickness>
            </component:LayeredComponentType>
          </component:layer>
          <component:constructiveSystem>ribbed slab</component:constructiveSystem>
        </component:FloorComponentType>
      </component:componentType>
    </component:Component>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <component:Component gml:id="component-roof">
      <gml:name>Roof over the loft</gml:name>
      <core:creationDate>2022-02-08</core:creationDate>
      <component:area uom="m2">3.2</component:area>
      <component:length uom="m">1.6</component:length>
      <component:volume uom="m3">0.4</component:volume>
      <component:unit>24</component:unit>
      <component:startOfLife>1974</component:startOfLife>
      <component:componentType>
        <component:RoofComponentType gml:id="roof-type">
          <gml:name>Rafter roof with tiles</gml:name>
          <component:lifeExpectancy unit="year">80</component:lifeExpectancy>
          <component:constructionPackage>fittings</component:constructionPackage>
          <component:typeOfComponent>roof</component:typeOfComponent>
          <component:componentReference xlink:href="#reference-window"/>
          <component:mainMaterial>concrete</component:mainMaterial>
          <component:mainFillingMaterial>wood fibre</component:mainFillingMaterial>
          <component:layer>
            <component:LayeredComponentType gml:id="layer-roof">
              <gml:name>Clay tiles</gml:name>
              <component:lifeExpectancy unit="year">50</component:lifeExpectancy>
              <component:constructionPackage>shell</component:constructionPackage>
              <component:typeOfComponent>finish</component:typeOfComponent>
              <component:componentReference xlink:href="#reference-brick"/>
              <component:thickness uom="m">0.02</component:thickness>
            </component:LayeredComponentType>
          </component:layer>
          <component:constructiveSystem>rafter roof</component:constructiveSystem>
        </component:RoofComponentType>
      </component:componentType>
    </component:Component>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <component:Component gml:id="component-footing">
      <gml:name>Footing along the quay</gml:name>
      <core:creationDate>2018-09-30</core:creationDate>
      <component:area uom="m2">42.5</component:area>
      <component:length uom="m">12.4</component:length>
      <component:volume uom="m3">15.3</component:volume>
      <component:unit>2</component:unit>
      <component:startOfLife>1998-05-12</component:startOfLife>
      <component:componentType>
        <component:FoundationComponentType gml:id="foundation-type">
          <gml:name>Strip footing</gml:name>
          <component:lifeExpectancy unit="year">30</component:lifeExpectancy>
          <component:constructionPackage>envelope</component:constructionPackage>
          <component:typeOfComponent>foundation</component:typeOfComponent>
          <component:componentReference xlink:href="#reference-window"/>
          <component:constructiveSystem>strip footing</component:constructiveSystem>
        </component:FoundationComponentType>
      </component:componentType>
    </component:Component>
  </core:cityObjectMember>
</core:CityModel>
