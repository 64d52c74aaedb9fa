<?xml version="1.0" encoding="UTF-8"?>
<!-- A district of an invented town, with every thematic module of CityGML 2.0: each kind of feature stands in it at least once.
     Lengths are metres in a local reference system: x to the east, y to the north. -->
<core:CityModel gml:id="marrowby"
    xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:app="http://www.opengis.net/citygml/appearance/2.0"
    xmlns:bldg="http://www.opengis.net/citygml/building/2.0"
    xmlns:brid="http://www.opengis.net/citygml/bridge/2.0"
    xmlns:dem="http://www.opengis.net/citygml/relief/2.0"
    xmlns:frn="http://www.opengis.net/citygml/cityfurniture/2.0"
    xmlns:gen="http://www.opengis.net/citygml/generics/2.0"
    xmlns:grp="http://www.opengis.net/citygml/cityobjectgroup/2.0"
    xmlns:luse="http://www.opengis.net/citygml/landuse/2.0"
    xmlns:tex="http://www.opengis.net/citygml/texturedsurface/2.0"
    xmlns:tran="http://www.opengis.net/citygml/transportation/2.0"
    xmlns:tun="http://www.opengis.net/citygml/tunnel/2.0"
    xmlns:veg="http://www.opengis.net/citygml/vegetation/2.0"
    xmlns:wtr="http://www.opengis.net/citygml/waterbody/2.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:xAL="urn:oasis:names:tc:ciq:xsdschema:xAL:2.0"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:description>The old quarter of Marrowby, between the river Aldbrook and the hill</gml:description>
  <gml:name>Marrowby old quarter</gml:name>
  <gml:name codeSpace="https://marrowby.example/quarters">Q1</gml:name>
  <gml:boundedBy>
    <gml:Envelope srsName="urn:marrowby:crs:local-3d" srsDimension="3">
      <gml:lowerCorner>0 0 -12</gml:lowerCorner>
      <gml:upperCorner>120 80 30</gml:upperCorner>
    </gml:Envelope>
  </gml:boundedBy>
  <core:cityObjectMember>
    <bldg:Building gml:id="lantern-house">
      <gml:description>A town house with a shop on the ground floor</gml:description>
      <gml:name>Lantern House</gml:name>
      <gml:name codeSpace="https://marrowby.example/register">B-017</gml:name>
      <gml:boundedBy>
        <gml:Envelope srsName="urn:marrowby:crs:local-3d" srsDimension="3">
          <gml:lowerCorner>10 10 0</gml:lowerCorner>
          <gml:upperCorner>28 18 9</gml:upperCorner>
        </gml:Envelope>
      </gml:boundedBy>
      <core:creationDate>2021-03-14</core:creationDate>
      <core:terminationDate>2071-12-31</core:terminationDate>
      <core:externalReference>
        <core:informationSystem>https://marrowby.example/cadastre</core:informationSystem>
        <core:externalObject><core:name>parcel 17</core:name></core:externalObject>
      </core:externalReference>
      <core:externalReference>
        <core:informationSystem>https://marrowby.example/heritage</core:informationSystem>
        <core:externalObject><core:uri>https://marrowby.example/heritage/17</core:uri></core:externalObject>
      </core:externalReference>
      <core:generalizesTo xlink:href="#block-1"/>
      <core:relativeToTerrain>substantiallyAboveTerrain</core:relativeToTerrain>
      <core:relativeToWater>entirelyAboveWaterSurface</core:relativeToWater>
      <gen:stringAttribute name="owner"><gen:value>Society of Lamplighters</gen:value></gen:stringAttribute>
      <gen:intAttribute name="flats"><gen:value>6</gen:value></gen:intAttribute>
      <gen:doubleAttribute name="floor space index"><gen:value>1.85</gen:value></gen:doubleAttribute>
      <gen:dateAttribute name="last inspection"><gen:value>2020-09-01</gen:value></gen:dateAttribute>
      <gen:uriAttribute name="photograph">
        <gen:value>https://marrowby.example/photographs/17</gen:value>
      </gen:uriAttribute>
      <gen:measureAttribute name="eaves height"><gen:value uom="m">6.5</gen:value></gen:measureAttribute>
      <gen:genericAttributeSet name="insurance" codeSpace="https://marrowby.example/insurance">
        <gen:stringAttribute name="class"><gen:value>B</gen:value></gen:stringAttribute>
        <gen:measureAttribute name="value">
          <gen:value uom="urn:marrowby:uom:crown">420000</gen:value>
        </gen:measureAttribute>
        <gen:genericAttributeSet name="contract">
          <gen:dateAttribute name="from"><gen:value>2019-01-01</gen:value></gen:dateAttribute>
        </gen:genericAttributeSet>
      </gen:genericAttributeSet>
      <app:appearance>
        <app:Appearance gml:id="lantern-house-summer">
          <gml:name>Summer</gml:name>
          <app:theme>summer</app:theme>
          <app:surfaceDataMember>
            <app:X3DMaterial gml:id="plaster">
              <gml:name>Plaster</gml:name>
              <app:isFront>true</app:isFront>
              <app:ambientIntensity>0.3</app:ambientIntensity>
              <app:diffuseColor>0.9 0.85 0.7</app:diffuseColor>
              <app:emissiveColor>0 0 0</app:emissiveColor>
              <app:specularColor>0.2 0.2 0.2</app:specularColor>
              <app:shininess>0.1</app:shininess>
              <app:transparency>0</app:transparency>
              <app:isSmooth>false</app:isSmooth>
              <app:target>#lantern-house-south-face</app:target>
              <app:target>#lantern-house-north-face</app:target>
            </app:X3DMaterial>
          </app:surfaceDataMember>
          <app:surfaceDataMember>
            <app:ParameterizedTexture gml:id="roof-tiles">
              <gml:name>Roof tiles</gml:name>
              <app:isFront>true</app:isFront>
              <app:imageURI>textures/roof.png</app:imageURI>
              <app:mimeType>image/png</app:mimeType>
              <app:textureType>typical</app:textureType>
              <app:wrapMode>wrap</app:wrapMode>
              <app:borderColor>0.4 0.2 0.1 1</app:borderColor>
              <app:target uri="#lantern-house-roof-face">
                <app:TexCoordList>
                  <app:textureCoordinates ring="#lantern-house-roof-face-ring">0 0 6 0 6 4 0 4 0 0</app:textureCoordinates>
                </app:TexCoordList>
              </app:target>
              <app:target uri="#lantern-house-base-face">
                <app:TexCoordGen>
                  <app:worldToTexture>0.5 0 0 0 0 0.5 0 0 0 0 0 1</app:worldToTexture>
                </app:TexCoordGen>
              </app:target>
            </app:ParameterizedTexture>
          </app:surfaceDataMember>
        </app:Appearance>
      </app:appearance>
      <bldg:class codeSpace="https://marrowby.example/codes/class">1000</bldg:class>
      <bldg:function codeSpace="https://marrowby.example/codes/function">1000</bldg:function>
      <bldg:function codeSpace="https://marrowby.example/codes/function">1150</bldg:function>
      <bldg:usage codeSpace="https://marrowby.example/codes/function">1000</bldg:usage>
      <bldg:yearOfConstruction>1904</bldg:yearOfConstruction>
      <bldg:yearOfDemolition>2071</bldg:yearOfDemolition>
      <bldg:roofType>1000</bldg:roofType>
      <bldg:measuredHeight uom="m">9</bldg:measuredHeight>
      <bldg:storeysAboveGround>3</bldg:storeysAboveGround>
      <bldg:storeysBelowGround>1</bldg:storeysBelowGround>
      <bldg:storeyHeightsAboveGround uom="m">3.2 3 2.8</bldg:storeyHeightsAboveGround>
      <bldg:storeyHeightsBelowGround uom="m">2.4</bldg:storeyHeightsBelowGround>
      <bldg:lod0FootPrint>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 22 10 0 22 18 0 10 18 0 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </bldg:lod0FootPrint>
      <bldg:lod0RoofEdge>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>9.5 9.5 9 22.5 9.5 9 22.5 18.5 9 9.5 18.5 9 9.5 9.5 9</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </bldg:lod0RoofEdge>
      <bldg:lod1Solid>
        <gml:Solid gml:id="lantern-house-block">
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
      <bldg:lod1TerrainIntersection>
        <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>10 10 0 22 10 0.2 22 18 0.4 10 18 0.1 10 10 0</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
      </bldg:lod1TerrainIntersection>
      <bldg:lod2MultiCurve>
        <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>16 14 9 16 14 12</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
      </bldg:lod2MultiCurve>
      <bldg:outerBuildingInstallation>
        <bldg:BuildingInstallation gml:id="balcony">
          <gml:name>Balcony</gml:name>
          <bldg:class>1000</bldg:class>
          <bldg:function>1000</bldg:function>
          <bldg:usage>1000</bldg:usage>
          <bldg:usage>1010</bldg:usage>
          <bldg:lod2Geometry>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>14 9 6 18 9 6 18 10 6 14 10 6 14 9 6</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </bldg:lod2Geometry>
          <bldg:boundedBy>
            <bldg:OuterFloorSurface gml:id="balcony-floor">
              <gml:name>Floor of the balcony</gml:name>
              <bldg:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>14 9 6 18 9 6 18 10 6 14 10 6 14 9 6</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </bldg:lod3MultiSurface>
            </bldg:OuterFloorSurface>
          </bldg:boundedBy>
          <bldg:boundedBy>
            <bldg:OuterCeilingSurface gml:id="balcony-ceiling">
              <gml:name>Underside of the balcony</gml:name>
              <bldg:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>14 10 5.8 18 10 5.8 18 9 5.8 14 9 5.8 14 10 5.8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </bldg:lod3MultiSurface>
            </bldg:OuterCeilingSurface>
          </bldg:boundedBy>
        </bldg:BuildingInstallation>
      </bldg:outerBuildingInstallation>
      <bldg:interiorBuildingInstallation>
        <bldg:IntBuildingInstallation gml:id="main-stairs">
          <gml:name>Main stairs</gml:name>
          <bldg:class>8000</bldg:class>
          <bldg:function>8010</bldg:function>
          <bldg:usage>8010</bldg:usage>
          <bldg:lod4Geometry>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>12 15 0 13 15 0 13 17 0 12 17 0 12 15 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </bldg:lod4Geometry>
        </bldg:IntBuildingInstallation>
      </bldg:interiorBuildingInstallation>
      <bldg:boundedBy>
        <bldg:GroundSurface gml:id="lantern-house-base">
          <gml:name>Base</gml:name>
          <bldg:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="lantern-house-base-face">
                  <gml:exterior><gml:LinearRing gml:id="lantern-house-base-face-ring"><gml:posList>10 18 0 22 18 0 22 10 0 10 10 0 10 18 0</gml:posList></gml:LinearRing></gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </bldg:lod2MultiSurface>
        </bldg:GroundSurface>
      </bldg:boundedBy>
      <bldg:boundedBy>
        <bldg:RoofSurface gml:id="lantern-house-roof">
          <gml:name>Roof</gml:name>
          <bldg:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="lantern-house-roof-face">
                  <gml:exterior><gml:LinearRing gml:id="lantern-house-roof-face-ring"><gml:posList>10 10 9 22 10 9 22 18 9 10 18 9 10 10 9</gml:posList></gml:LinearRing></gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </bldg:lod2MultiSurface>
        </bldg:RoofSurface>
      </bldg:boundedBy>
      <bldg:boundedBy>
        <bldg:WallSurface gml:id="lantern-house-north">
          <gml:name>North wall</gml:name>
          <bldg:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="lantern-house-north-face">
                  <gml:exterior><gml:LinearRing gml:id="lantern-house-north-face-ring"><gml:posList>22 18 0 10 18 0 10 18 9 22 18 9 22 18 0</gml:posList></gml:LinearRing></gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </bldg:lod2MultiSurface>
        </bldg:WallSurface>
      </bldg:boundedBy>
      <bldg:boundedBy>
        <bldg:ClosureSurface gml:id="lantern-house-gateway">
          <gml:name>Gateway to the annex</gml:name>
          <bldg:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="lantern-house-gateway-face">
                  <gml:exterior><gml:LinearRing gml:id="lantern-house-gateway-face-ring"><gml:posList>22 10 0 22 18 0 22 18 9 22 10 9 22 10 0</gml:posList></gml:LinearRing></gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </bldg:lod2MultiSurface>
        </bldg:ClosureSurface>
      </bldg:boundedBy>
      <bldg:boundedBy>
        <bldg:WallSurface gml:id="lantern-house-south">
          <gml:name>South wall</gml:name>
          <bldg:lod3MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="lantern-house-south-face">
                  <gml:exterior><gml:LinearRing gml:id="lantern-house-south-face-ring"><gml:posList>10 10 0 22 10 0 22 10 9 10 10 9 10 10 0</gml:posList></gml:LinearRing></gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </bldg:lod3MultiSurface>
          <bldg:opening>
            <bldg:Door gml:id="shop-door">
              <gml:name>Shop door</gml:name>
              <bldg:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>12 10 0 13 10 0 13 10 2.2 12 10 2.2 12 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </bldg:lod3MultiSurface>
              <bldg:address>
                <core:Address gml:id="shop-address">
                  <gml:name>Shop</gml:name>
                  <core:xalAddress>
                    <xAL:AddressDetails>
                      <xAL:Country>
                        <xAL:CountryName>Aldland</xAL:CountryName>
                        <xAL:Locality Type="Town">
                          <xAL:LocalityName>Marrowby</xAL:LocalityName>
                          <xAL:Thoroughfare Type="Street">
                            <xAL:ThoroughfareNumber>17a</xAL:ThoroughfareNumber>
                            <xAL:ThoroughfareName>Lantern Row</xAL:ThoroughfareName>
                          </xAL:Thoroughfare>
                        </xAL:Locality>
                      </xAL:Country>
                    </xAL:AddressDetails>
                  </core:xalAddress>
                </core:Address>
              </bldg:address>
            </bldg:Door>
          </bldg:opening>
          <bldg:opening>
            <bldg:Window gml:id="shop-window">
              <gml:name>Shop window</gml:name>
              <bldg:lod3ImplicitRepresentation>
                <core:ImplicitGeometry>
                  <core:transformationMatrix>1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</core:transformationMatrix>
                  <core:relativeGMLGeometry xlink:href="#window-pane"/>
                  <core:referencePoint><gml:Point><gml:pos>15 10 1</gml:pos></gml:Point></core:referencePoint>
                </core:ImplicitGeometry>
              </bldg:lod3ImplicitRepresentation>
            </bldg:Window>
          </bldg:opening>
        </bldg:WallSurface>
      </bldg:boundedBy>
      <bldg:lod4Solid>
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
      </bldg:lod4Solid>
      <bldg:interiorRoom>
        <bldg:Room gml:id="shop">
          <gml:name>Shop</gml:name>
          <bldg:class>1070</bldg:class>
          <bldg:function>1070</bldg:function>
          <bldg:usage>1070</bldg:usage>
          <bldg:lod4Solid>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10.3 14 0 21.7 14 0 21.7 10.3 0 10.3 10.3 0 10.3 14 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10.3 10.3 3 21.7 10.3 3 21.7 14 3 10.3 14 3 10.3 10.3 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10.3 10.3 0 21.7 10.3 0 21.7 10.3 3 10.3 10.3 3 10.3 10.3 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>21.7 14 0 10.3 14 0 10.3 14 3 21.7 14 3 21.7 14 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>21.7 10.3 0 21.7 14 0 21.7 14 3 21.7 10.3 3 21.7 10.3 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10.3 14 0 10.3 10.3 0 10.3 10.3 3 10.3 14 3 10.3 14 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </bldg:lod4Solid>
          <bldg:boundedBy>
            <bldg:FloorSurface gml:id="shop-floor">
              <gml:name>Floor of the shop</gml:name>
              <bldg:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="shop-floor-face">
                      <gml:exterior><gml:LinearRing gml:id="shop-floor-face-ring"><gml:posList>10.3 14 0 21.7 14 0 21.7 10.3 0 10.3 10.3 0 10.3 14 0</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </bldg:lod4MultiSurface>
            </bldg:FloorSurface>
          </bldg:boundedBy>
          <bldg:boundedBy>
            <bldg:CeilingSurface gml:id="shop-ceiling">
              <gml:name>Ceiling of the shop</gml:name>
              <bldg:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="shop-ceiling-face">
                      <gml:exterior><gml:LinearRing gml:id="shop-ceiling-face-ring"><gml:posList>10.3 10.3 3 21.7 10.3 3 21.7 14 3 10.3 14 3 10.3 10.3 3</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </bldg:lod4MultiSurface>
            </bldg:CeilingSurface>
          </bldg:boundedBy>
          <bldg:boundedBy>
            <bldg:InteriorWallSurface gml:id="shop-wall">
              <gml:name>Back wall of the shop</gml:name>
              <bldg:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="shop-wall-face">
                      <gml:exterior><gml:LinearRing gml:id="shop-wall-face-ring"><gml:posList>21.7 14 0 10.3 14 0 10.3 14 3 21.7 14 3 21.7 14 0</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </bldg:lod4MultiSurface>
            </bldg:InteriorWallSurface>
          </bldg:boundedBy>
          <bldg:interiorFurniture>
            <bldg:BuildingFurniture gml:id="counter">
              <gml:name>Counter</gml:name>
              <bldg:class>1200</bldg:class>
              <bldg:function>1210</bldg:function>
              <bldg:usage>1210</bldg:usage>
              <bldg:lod4Geometry>
                <gml:Solid>
                  <gml:exterior>
                    <gml:CompositeSurface>
                      <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>12 13.6 0 16 13.6 0 16 13 0 12 13 0 12 13.6 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                      <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>12 13 1.1 16 13 1.1 16 13.6 1.1 12 13.6 1.1 12 13 1.1</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                      <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>12 13 0 16 13 0 16 13 1.1 12 13 1.1 12 13 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                      <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>16 13.6 0 12 13.6 0 12 13.6 1.1 16 13.6 1.1 16 13.6 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                      <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>16 13 0 16 13.6 0 16 13.6 1.1 16 13 1.1 16 13 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                      <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>12 13.6 0 12 13 0 12 13 1.1 12 13.6 1.1 12 13.6 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                    </gml:CompositeSurface>
                  </gml:exterior>
                </gml:Solid>
              </bldg:lod4Geometry>
            </bldg:BuildingFurniture>
          </bldg:interiorFurniture>
          <bldg:roomInstallation>
            <bldg:IntBuildingInstallation gml:id="stove">
              <gml:name>Tiled stove</gml:name>
              <bldg:class>1000</bldg:class>
              <bldg:function>1010</bldg:function>
              <bldg:usage>1010</bldg:usage>
              <bldg:lod4ImplicitRepresentation>
                <core:ImplicitGeometry>
                  <core:mimeType>model/vrml</core:mimeType>
                  <core:transformationMatrix>1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</core:transformationMatrix>
                  <core:libraryObject>models/stove.wrl</core:libraryObject>
                  <core:referencePoint><gml:Point><gml:pos>20 13 0</gml:pos></gml:Point></core:referencePoint>
                </core:ImplicitGeometry>
              </bldg:lod4ImplicitRepresentation>
            </bldg:IntBuildingInstallation>
          </bldg:roomInstallation>
        </bldg:Room>
      </bldg:interiorRoom>
      <bldg:consistsOfBuildingPart>
        <bldg:BuildingPart gml:id="annex">
          <gml:name>Annex</gml:name>
          <bldg:class>1000</bldg:class>
          <bldg:function>1150</bldg:function>
          <bldg:yearOfConstruction>1936</bldg:yearOfConstruction>
          <bldg:roofType>1010</bldg:roofType>
          <bldg:measuredHeight uom="m">5</bldg:measuredHeight>
          <bldg:storeysAboveGround>1</bldg:storeysAboveGround>
          <bldg:lod1Solid>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>22 18 0 28 18 0 28 10 0 22 10 0 22 18 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>22 10 5 28 10 5 28 18 5 22 18 5 22 10 5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>22 10 0 28 10 0 28 10 5 22 10 5 22 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>28 18 0 22 18 0 22 18 5 28 18 5 28 18 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>28 10 0 28 18 0 28 18 5 28 10 5 28 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>22 18 0 22 10 0 22 10 5 22 18 5 22 18 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </bldg:lod1Solid>
        </bldg:BuildingPart>
      </bldg:consistsOfBuildingPart>
      <bldg:address>
        <core:Address gml:id="lantern-house-address">
          <gml:name>Lantern House</gml:name>
          <core:xalAddress>
            <xAL:AddressDetails AddressType="residential" CurrentStatus="valid" ValidFromDate="1904-05-01" ValidToDate="2071-12-31" Usage="delivery" Code="M-017" AddressDetailsKey="17">
              <xAL:Country>
                <xAL:CountryNameCode Scheme="example">AL</xAL:CountryNameCode>
                <xAL:CountryName>Aldland</xAL:CountryName>
                <xAL:Locality Type="Town">
                  <xAL:LocalityName>Marrowby</xAL:LocalityName>
                  <xAL:Thoroughfare Type="Street">
                    <xAL:ThoroughfareNumber>17</xAL:ThoroughfareNumber>
                    <xAL:ThoroughfareName>Lantern Row</xAL:ThoroughfareName>
                  </xAL:Thoroughfare>
                  <xAL:PostalCode><xAL:PostalCodeNumber>40 217</xAL:PostalCodeNumber></xAL:PostalCode>
                </xAL:Locality>
              </xAL:Country>
            </xAL:AddressDetails>
          </core:xalAddress>
          <core:multiPoint>
            <gml:MultiPoint><gml:pointMember><gml:Point><gml:pos>12.5 10 0</gml:pos></gml:Point></gml:pointMember></gml:MultiPoint>
          </core:multiPoint>
        </core:Address>
      </bldg:address>
    </bldg:Building>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <bldg:Building gml:id="block-1">
      <gml:name>Block 1</gml:name>
      <core:creationDate>2021-03-14</core:creationDate>
      <bldg:lod1MultiSurface>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 9 28 10 9 28 18 9 10 18 9 10 10 9</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>10 10 0 28 10 0 28 10 9 10 10 9 10 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </bldg:lod1MultiSurface>
    </bldg:Building>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <brid:Bridge gml:id="heron-bridge">
      <gml:description>Stone bridge with a chapel, widened with a movable span</gml:description>
      <gml:name>Heron Bridge</gml:name>
      <core:creationDate>2021-03-14</core:creationDate>
      <core:generalizesTo>
        <brid:Bridge gml:id="heron-bridge-outline">
          <gml:name>Outline of Heron Bridge</gml:name>
          <core:creationDate>2021-03-14</core:creationDate>
        </brid:Bridge>
      </core:generalizesTo>
      <core:relativeToTerrain>entirelyAboveTerrain</core:relativeToTerrain>
      <core:relativeToWater>substantiallyAboveWaterSurface</core:relativeToWater>
      <brid:class>1000</brid:class>
      <brid:function>1010</brid:function>
      <brid:function>1020</brid:function>
      <brid:usage>1010</brid:usage>
      <brid:yearOfConstruction>1611</brid:yearOfConstruction>
      <brid:yearOfDemolition>2105</brid:yearOfDemolition>
      <brid:isMovable>false</brid:isMovable>
      <brid:lod1Solid>
        <gml:Solid>
          <gml:exterior>
            <gml:CompositeSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>40 26 3 60 26 3 60 20 3 40 20 3 40 26 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>40 20 4 60 20 4 60 26 4 40 26 4 40 20 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>40 20 3 60 20 3 60 20 4 40 20 4 40 20 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>60 26 3 40 26 3 40 26 4 60 26 4 60 26 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>60 20 3 60 26 3 60 26 4 60 20 4 60 20 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>40 26 3 40 20 3 40 20 4 40 26 4 40 26 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:CompositeSurface>
          </gml:exterior>
        </gml:Solid>
      </brid:lod1Solid>
      <brid:lod1TerrainIntersection>
        <gml:MultiCurve>
          <gml:curveMember><gml:LineString><gml:posList>40 20 3 40 26 3</gml:posList></gml:LineString></gml:curveMember>
          <gml:curveMember><gml:LineString><gml:posList>60 20 3 60 26 3</gml:posList></gml:LineString></gml:curveMember>
        </gml:MultiCurve>
      </brid:lod1TerrainIntersection>
      <brid:outerBridgeConstruction>
        <brid:BridgeConstructionElement gml:id="pier">
          <gml:name>Middle pier</gml:name>
          <brid:class>1000</brid:class>
          <brid:function>1010</brid:function>
          <brid:usage>1010</brid:usage>
          <brid:lod2Geometry>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>49 25 -3 51 25 -3 51 21 -3 49 21 -3 49 25 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>49 21 3 51 21 3 51 25 3 49 25 3 49 21 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>49 21 -3 51 21 -3 51 21 3 49 21 3 49 21 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>51 25 -3 49 25 -3 49 25 3 51 25 3 51 25 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>51 21 -3 51 25 -3 51 25 3 51 21 3 51 21 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>49 25 -3 49 21 -3 49 21 3 49 25 3 49 25 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </brid:lod2Geometry>
          <brid:boundedBy>
            <brid:OuterFloorSurface gml:id="pier-ledge">
              <gml:name>Ledge of the pier</gml:name>
              <brid:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>48.8 21 0 49 21 0 49 25 0 48.8 25 0 48.8 21 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </brid:lod3MultiSurface>
            </brid:OuterFloorSurface>
          </brid:boundedBy>
        </brid:BridgeConstructionElement>
      </brid:outerBridgeConstruction>
      <brid:outerBridgeInstallation>
        <brid:BridgeInstallation gml:id="parapet">
          <gml:name>Parapet</gml:name>
          <brid:class>1000</brid:class>
          <brid:function>1020</brid:function>
          <brid:usage>1020</brid:usage>
          <brid:lod2Geometry>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>40 20 4 60 20 4 60 20 5 40 20 5 40 20 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </brid:lod2Geometry>
          <brid:boundedBy>
            <brid:OuterCeilingSurface gml:id="arch">
              <gml:name>Underside of the arch</gml:name>
              <brid:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>40 26 3 49 26 3 49 20 3 40 20 3 40 26 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </brid:lod3MultiSurface>
            </brid:OuterCeilingSurface>
          </brid:boundedBy>
        </brid:BridgeInstallation>
      </brid:outerBridgeInstallation>
      <brid:interiorBridgeInstallation>
        <brid:IntBridgeInstallation gml:id="bridge-pipe">
          <gml:name>Water main</gml:name>
          <brid:class>1000</brid:class>
          <brid:function>1030</brid:function>
          <brid:usage>1030</brid:usage>
          <brid:lod4Geometry>
            <gml:LineString><gml:posList>40 23 3.5 60 23 3.5</gml:posList></gml:LineString>
          </brid:lod4Geometry>
        </brid:IntBridgeInstallation>
      </brid:interiorBridgeInstallation>
      <brid:boundedBy>
        <brid:GroundSurface gml:id="bridge-base">
          <gml:name>Abutment</gml:name>
          <brid:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="bridge-base-face"><gml:exterior><gml:LinearRing gml:id="bridge-base-face-ring"><gml:posList>40 26 3 60 26 3 60 20 3 40 20 3 40 26 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </brid:lod2MultiSurface>
        </brid:GroundSurface>
      </brid:boundedBy>
      <brid:boundedBy>
        <brid:RoofSurface gml:id="bridge-deck">
          <gml:name>Deck</gml:name>
          <brid:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="bridge-deck-face"><gml:exterior><gml:LinearRing gml:id="bridge-deck-face-ring"><gml:posList>40 20 4 60 20 4 60 26 4 40 26 4 40 20 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </brid:lod2MultiSurface>
        </brid:RoofSurface>
      </brid:boundedBy>
      <brid:boundedBy>
        <brid:ClosureSurface gml:id="bridge-end">
          <gml:name>East end</gml:name>
          <brid:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="bridge-end-face"><gml:exterior><gml:LinearRing gml:id="bridge-end-face-ring"><gml:posList>60 20 3 60 26 3 60 26 4 60 20 4 60 20 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </brid:lod2MultiSurface>
        </brid:ClosureSurface>
      </brid:boundedBy>
      <brid:boundedBy>
        <brid:WallSurface gml:id="bridge-south">
          <gml:name>South face</gml:name>
          <brid:lod3MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>40 20 3 60 20 3 60 20 4 40 20 4 40 20 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </brid:lod3MultiSurface>
          <brid:opening>
            <brid:Door gml:id="bridge-door">
              <gml:name>Door to the river steps</gml:name>
              <brid:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>44 20 3 45 20 3 45 20 4 44 20 4 44 20 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </brid:lod3MultiSurface>
            </brid:Door>
          </brid:opening>
          <brid:opening>
            <brid:Window gml:id="bridge-window">
              <gml:name>Slit</gml:name>
              <brid:lod3ImplicitRepresentation>
                <core:ImplicitGeometry>
                  <core:transformationMatrix>1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</core:transformationMatrix>
                  <core:relativeGMLGeometry xlink:href="#window-pane"/>
                  <core:referencePoint><gml:Point><gml:pos>46 20 3.2</gml:pos></gml:Point></core:referencePoint>
                </core:ImplicitGeometry>
              </brid:lod3ImplicitRepresentation>
            </brid:Window>
          </brid:opening>
        </brid:WallSurface>
      </brid:boundedBy>
      <brid:interiorBridgeRoom>
        <brid:BridgeRoom gml:id="chapel">
          <gml:name>Chapel</gml:name>
          <brid:class>1000</brid:class>
          <brid:function>1040</brid:function>
          <brid:usage>1040</brid:usage>
          <brid:lod4Solid>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>49 23 4 51 23 4 51 21 4 49 21 4 49 23 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>49 21 7 51 21 7 51 23 7 49 23 7 49 21 7</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>49 21 4 51 21 4 51 21 7 49 21 7 49 21 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>51 23 4 49 23 4 49 23 7 51 23 7 51 23 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>51 21 4 51 23 4 51 23 7 51 21 7 51 21 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>49 23 4 49 21 4 49 21 7 49 23 7 49 23 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </brid:lod4Solid>
          <brid:boundedBy>
            <brid:FloorSurface gml:id="chapel-floor">
              <gml:name>Floor of the chapel</gml:name>
              <brid:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="chapel-floor-face">
                      <gml:exterior><gml:LinearRing gml:id="chapel-floor-face-ring"><gml:posList>49 23 4 51 23 4 51 21 4 49 21 4 49 23 4</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </brid:lod4MultiSurface>
            </brid:FloorSurface>
          </brid:boundedBy>
          <brid:boundedBy>
            <brid:CeilingSurface gml:id="chapel-vault">
              <gml:name>Vault of the chapel</gml:name>
              <brid:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="chapel-vault-face">
                      <gml:exterior><gml:LinearRing gml:id="chapel-vault-face-ring"><gml:posList>49 21 7 51 21 7 51 23 7 49 23 7 49 21 7</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </brid:lod4MultiSurface>
            </brid:CeilingSurface>
          </brid:boundedBy>
          <brid:boundedBy>
            <brid:InteriorWallSurface gml:id="chapel-wall">
              <gml:name>Wall of the chapel</gml:name>
              <brid:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="chapel-wall-face">
                      <gml:exterior><gml:LinearRing gml:id="chapel-wall-face-ring"><gml:posList>49 21 4 51 21 4 51 21 7 49 21 7 49 21 4</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </brid:lod4MultiSurface>
            </brid:InteriorWallSurface>
          </brid:boundedBy>
          <brid:interiorFurniture>
            <brid:BridgeFurniture gml:id="pew">
              <gml:name>Pew</gml:name>
              <brid:class>1000</brid:class>
              <brid:function>1050</brid:function>
              <brid:usage>1050</brid:usage>
              <brid:lod4ImplicitRepresentation>
                <core:ImplicitGeometry>
                  <core:mimeType>model/vrml</core:mimeType>
                  <core:transformationMatrix>1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</core:transformationMatrix>
                  <core:libraryObject>models/pew.wrl</core:libraryObject>
                  <core:referencePoint><gml:Point><gml:pos>50 22 4</gml:pos></gml:Point></core:referencePoint>
                </core:ImplicitGeometry>
              </brid:lod4ImplicitRepresentation>
            </brid:BridgeFurniture>
          </brid:interiorFurniture>
          <brid:bridgeRoomInstallation>
            <brid:IntBridgeInstallation gml:id="bell">
              <gml:name>Bell</gml:name>
              <brid:class>1000</brid:class>
              <brid:lod4Geometry><gml:Point><gml:pos>50 22 6.5</gml:pos></gml:Point></brid:lod4Geometry>
            </brid:IntBridgeInstallation>
          </brid:bridgeRoomInstallation>
        </brid:BridgeRoom>
      </brid:interiorBridgeRoom>
      <brid:consistsOfBridgePart>
        <brid:BridgePart gml:id="drawbridge">
          <gml:name>Drawbridge</gml:name>
          <brid:class>1000</brid:class>
          <brid:yearOfConstruction>1898</brid:yearOfConstruction>
          <brid:isMovable>true</brid:isMovable>
          <brid:lod1Solid>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>60 26 3 66 26 3 66 20 3 60 20 3 60 26 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>60 20 3.5 66 20 3.5 66 26 3.5 60 26 3.5 60 20 3.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>60 20 3 66 20 3 66 20 3.5 60 20 3.5 60 20 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>66 26 3 60 26 3 60 26 3.5 66 26 3.5 66 26 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>66 20 3 66 26 3 66 26 3.5 66 20 3.5 66 20 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>60 26 3 60 20 3 60 20 3.5 60 26 3.5 60 26 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </brid:lod1Solid>
        </brid:BridgePart>
      </brid:consistsOfBridgePart>
      <brid:address>
        <core:Address gml:id="bridge-address">
          <core:xalAddress>
            <xAL:AddressDetails>
              <xAL:Address Type="free">Heron Bridge, Marrowby</xAL:Address>
            </xAL:AddressDetails>
          </core:xalAddress>
        </core:Address>
      </brid:address>
    </brid:Bridge>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tun:Tunnel gml:id="lark-tunnel">
      <gml:name>Lark Tunnel</gml:name>
      <core:creationDate>2021-03-15</core:creationDate>
      <core:relativeToTerrain>entirelyBelowTerrain</core:relativeToTerrain>
      <core:relativeToWater>entirelyBelowWaterSurface</core:relativeToWater>
      <tun:class>1000</tun:class>
      <tun:function>1010</tun:function>
      <tun:usage>1010</tun:usage>
      <tun:usage>1020</tun:usage>
      <tun:yearOfConstruction>1933</tun:yearOfConstruction>
      <tun:yearOfDemolition>2083</tun:yearOfDemolition>
      <tun:lod1Solid>
        <gml:Solid>
          <gml:exterior>
            <gml:CompositeSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 16 -8 110 16 -8 110 10 -8 80 10 -8 80 16 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 10 -3 110 10 -3 110 16 -3 80 16 -3 80 10 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 10 -8 110 10 -8 110 10 -3 80 10 -3 80 10 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>110 16 -8 80 16 -8 80 16 -3 110 16 -3 110 16 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>110 10 -8 110 16 -8 110 16 -3 110 10 -3 110 10 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 16 -8 80 10 -8 80 10 -3 80 16 -3 80 16 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:CompositeSurface>
          </gml:exterior>
        </gml:Solid>
      </tun:lod1Solid>
      <tun:lod1TerrainIntersection>
        <gml:MultiCurve>
          <gml:curveMember><gml:LineString><gml:posList>80 10 0 80 16 0</gml:posList></gml:LineString></gml:curveMember>
          <gml:curveMember><gml:LineString><gml:posList>110 10 2 110 16 2</gml:posList></gml:LineString></gml:curveMember>
        </gml:MultiCurve>
      </tun:lod1TerrainIntersection>
      <tun:outerTunnelInstallation>
        <tun:TunnelInstallation gml:id="portal">
          <gml:name>West portal</gml:name>
          <tun:class>1000</tun:class>
          <tun:function>1010</tun:function>
          <tun:usage>1010</tun:usage>
          <tun:lod2Geometry>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 9 -8 80 17 -8 80 17 0 80 9 0 80 9 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </tun:lod2Geometry>
          <tun:boundedBy>
            <tun:OuterFloorSurface gml:id="portal-apron">
              <gml:name>Apron</gml:name>
              <tun:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>78 9 -8 80 9 -8 80 17 -8 78 17 -8 78 9 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </tun:lod3MultiSurface>
            </tun:OuterFloorSurface>
          </tun:boundedBy>
          <tun:boundedBy>
            <tun:OuterCeilingSurface gml:id="portal-lintel">
              <gml:name>Lintel</gml:name>
              <tun:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>78 17 -3 80 17 -3 80 9 -3 78 9 -3 78 17 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </tun:lod3MultiSurface>
            </tun:OuterCeilingSurface>
          </tun:boundedBy>
        </tun:TunnelInstallation>
      </tun:outerTunnelInstallation>
      <tun:interiorTunnelInstallation>
        <tun:IntTunnelInstallation gml:id="walkway">
          <gml:name>Walkway</gml:name>
          <tun:class>1000</tun:class>
          <tun:function>1020</tun:function>
          <tun:usage>1020</tun:usage>
          <tun:lod4Geometry>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 10 -7.5 110 10 -7.5 110 11 -7.5 80 11 -7.5 80 10 -7.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </tun:lod4Geometry>
        </tun:IntTunnelInstallation>
      </tun:interiorTunnelInstallation>
      <tun:boundedBy>
        <tun:GroundSurface gml:id="tunnel-invert">
          <gml:name>Invert</gml:name>
          <tun:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="tunnel-invert-face">
                  <gml:exterior><gml:LinearRing gml:id="tunnel-invert-face-ring"><gml:posList>80 16 -8 110 16 -8 110 10 -8 80 10 -8 80 16 -8</gml:posList></gml:LinearRing></gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </tun:lod2MultiSurface>
        </tun:GroundSurface>
      </tun:boundedBy>
      <tun:boundedBy>
        <tun:RoofSurface gml:id="tunnel-crown">
          <gml:name>Crown</gml:name>
          <tun:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="tunnel-crown-face">
                  <gml:exterior><gml:LinearRing gml:id="tunnel-crown-face-ring"><gml:posList>80 10 -3 110 10 -3 110 16 -3 80 16 -3 80 10 -3</gml:posList></gml:LinearRing></gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </tun:lod2MultiSurface>
        </tun:RoofSurface>
      </tun:boundedBy>
      <tun:boundedBy>
        <tun:ClosureSurface gml:id="tunnel-mouth">
          <gml:name>East mouth</gml:name>
          <tun:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="tunnel-mouth-face">
                  <gml:exterior><gml:LinearRing gml:id="tunnel-mouth-face-ring"><gml:posList>110 10 -8 110 16 -8 110 16 -3 110 10 -3 110 10 -8</gml:posList></gml:LinearRing></gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </tun:lod2MultiSurface>
        </tun:ClosureSurface>
      </tun:boundedBy>
      <tun:boundedBy>
        <tun:WallSurface gml:id="tunnel-south">
          <gml:name>South lining</gml:name>
          <tun:lod3MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 10 -8 110 10 -8 110 10 -3 80 10 -3 80 10 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </tun:lod3MultiSurface>
          <tun:opening>
            <tun:Door gml:id="escape-door">
              <gml:name>Escape door</gml:name>
              <tun:lod3MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>95 10 -8 96 10 -8 96 10 -6 95 10 -6 95 10 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:MultiSurface>
              </tun:lod3MultiSurface>
            </tun:Door>
          </tun:opening>
          <tun:opening>
            <tun:Window gml:id="watch-window">
              <gml:name>Window of the watchman</gml:name>
              <tun:lod3ImplicitRepresentation>
                <core:ImplicitGeometry>
                  <core:transformationMatrix>1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</core:transformationMatrix>
                  <core:relativeGMLGeometry xlink:href="#window-pane"/>
                  <core:referencePoint><gml:Point><gml:pos>97 10 -7</gml:pos></gml:Point></core:referencePoint>
                </core:ImplicitGeometry>
              </tun:lod3ImplicitRepresentation>
            </tun:Window>
          </tun:opening>
        </tun:WallSurface>
      </tun:boundedBy>
      <tun:interiorHollowSpace>
        <tun:HollowSpace gml:id="tube">
          <gml:name>Tube</gml:name>
          <tun:class>1000</tun:class>
          <tun:function>1030</tun:function>
          <tun:usage>1030</tun:usage>
          <tun:lod4Solid>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember>
                    <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 15.5 -7.5 110 15.5 -7.5 110 10.5 -7.5 80 10.5 -7.5 80 15.5 -7.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 10.5 -3.5 110 10.5 -3.5 110 15.5 -3.5 80 15.5 -3.5 80 10.5 -3.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 10.5 -7.5 110 10.5 -7.5 110 10.5 -3.5 80 10.5 -3.5 80 10.5 -7.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>110 15.5 -7.5 80 15.5 -7.5 80 15.5 -3.5 110 15.5 -3.5 110 15.5 -7.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>110 10.5 -7.5 110 15.5 -7.5 110 15.5 -3.5 110 10.5 -3.5 110 10.5 -7.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
                  </gml:surfaceMember>
                  <gml:surfaceMember>
                    <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>80 15.5 -7.5 80 10.5 -7.5 80 10.5 -3.5 80 15.5 -3.5 80 15.5 -7.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
                  </gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </tun:lod4Solid>
          <tun:boundedBy>
            <tun:FloorSurface gml:id="tube-floor">
              <gml:name>Trackbed</gml:name>
              <tun:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="tube-floor-face">
                      <gml:exterior><gml:LinearRing gml:id="tube-floor-face-ring"><gml:posList>80 15.5 -7.5 110 15.5 -7.5 110 10.5 -7.5 80 10.5 -7.5 80 15.5 -7.5</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </tun:lod4MultiSurface>
            </tun:FloorSurface>
          </tun:boundedBy>
          <tun:boundedBy>
            <tun:CeilingSurface gml:id="tube-ceiling">
              <gml:name>Ceiling of the tube</gml:name>
              <tun:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="tube-ceiling-face">
                      <gml:exterior><gml:LinearRing gml:id="tube-ceiling-face-ring"><gml:posList>80 10.5 -3.5 110 10.5 -3.5 110 15.5 -3.5 80 15.5 -3.5 80 10.5 -3.5</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </tun:lod4MultiSurface>
            </tun:CeilingSurface>
          </tun:boundedBy>
          <tun:boundedBy>
            <tun:InteriorWallSurface gml:id="tube-wall">
              <gml:name>North wall of the tube</gml:name>
              <tun:lod4MultiSurface>
                <gml:MultiSurface>
                  <gml:surfaceMember>
                    <gml:Polygon gml:id="tube-wall-face">
                      <gml:exterior><gml:LinearRing gml:id="tube-wall-face-ring"><gml:posList>110 15.5 -7.5 80 15.5 -7.5 80 15.5 -3.5 110 15.5 -3.5 110 15.5 -7.5</gml:posList></gml:LinearRing></gml:exterior>
                    </gml:Polygon>
                  </gml:surfaceMember>
                </gml:MultiSurface>
              </tun:lod4MultiSurface>
            </tun:InteriorWallSurface>
          </tun:boundedBy>
          <tun:interiorFurniture>
            <tun:TunnelFurniture gml:id="telephone">
              <gml:name>Emergency telephone</gml:name>
              <tun:class>1000</tun:class>
              <tun:function>1040</tun:function>
              <tun:usage>1040</tun:usage>
              <tun:lod4Geometry><gml:Point><gml:pos>95 11 -6</gml:pos></gml:Point></tun:lod4Geometry>
            </tun:TunnelFurniture>
          </tun:interiorFurniture>
          <tun:hollowSpaceInstallation>
            <tun:IntTunnelInstallation gml:id="fan">
              <gml:name>Fan</gml:name>
              <tun:class>1000</tun:class>
              <tun:lod4ImplicitRepresentation>
                <core:ImplicitGeometry>
                  <core:mimeType>model/vrml</core:mimeType>
                  <core:transformationMatrix>1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</core:transformationMatrix>
                  <core:libraryObject>models/fan.wrl</core:libraryObject>
                  <core:referencePoint><gml:Point><gml:pos>100 13 -4</gml:pos></gml:Point></core:referencePoint>
                </core:ImplicitGeometry>
              </tun:lod4ImplicitRepresentation>
            </tun:IntTunnelInstallation>
          </tun:hollowSpaceInstallation>
        </tun:HollowSpace>
      </tun:interiorHollowSpace>
      <tun:consistsOfTunnelPart>
        <tun:TunnelPart gml:id="escape-gallery">
          <gml:name>Escape gallery</gml:name>
          <tun:class>1000</tun:class>
          <tun:function>1050</tun:function>
          <tun:yearOfConstruction>1987</tun:yearOfConstruction>
          <tun:lod1Solid>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>95 10 -8 97 10 -8 97 6 -8 95 6 -8 95 10 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>95 6 -5 97 6 -5 97 10 -5 95 10 -5 95 6 -5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>95 6 -8 97 6 -8 97 6 -5 95 6 -5 95 6 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>97 10 -8 95 10 -8 95 10 -5 97 10 -5 97 10 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>97 6 -8 97 10 -8 97 10 -5 97 6 -5 97 6 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>95 10 -8 95 6 -8 95 6 -5 95 10 -5 95 10 -8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </tun:lod1Solid>
        </tun:TunnelPart>
      </tun:consistsOfTunnelPart>
    </tun:Tunnel>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Road gml:id="lantern-row">
      <gml:name>Lantern Row</gml:name>
      <tran:class>1040</tran:class>
      <tran:function>1250</tran:function>
      <tran:usage>2</tran:usage>
      <tran:trafficArea>
        <tran:TrafficArea gml:id="carriageway">
          <gml:name>Carriageway</gml:name>
          <tran:class>1</tran:class>
          <tran:function>1</tran:function>
          <tran:usage>2</tran:usage>
          <tran:usage>3</tran:usage>
          <tran:surfaceMaterial>4</tran:surfaceMaterial>
          <tran:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>0 4 0 40 4 0 40 8 0 0 8 0 0 4 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </tran:lod2MultiSurface>
        </tran:TrafficArea>
      </tran:trafficArea>
      <tran:auxiliaryTrafficArea>
        <tran:AuxiliaryTrafficArea gml:id="verge">
          <gml:name>Verge</gml:name>
          <tran:class>1</tran:class>
          <tran:function>1200</tran:function>
          <tran:usage>1</tran:usage>
          <tran:surfaceMaterial>10</tran:surfaceMaterial>
          <tran:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>0 8 0 40 8 0 40 9 0 0 9 0 0 8 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:MultiSurface>
          </tran:lod2MultiSurface>
        </tran:AuxiliaryTrafficArea>
      </tran:auxiliaryTrafficArea>
      <tran:lod0Network>
        <gml:GeometricComplex><gml:element><gml:LineString><gml:posList>0 6 0 40 6 0</gml:posList></gml:LineString></gml:element></gml:GeometricComplex>
      </tran:lod0Network>
      <tran:lod1MultiSurface>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>0 4 0 40 4 0 40 9 0 0 9 0 0 4 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </tran:lod1MultiSurface>
    </tran:Road>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Square gml:id="lamplighters-square">
      <gml:name>Lamplighters' Square</gml:name>
      <tran:class>1040</tran:class>
      <tran:lod1MultiSurface>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>28 10 0 38 10 0 38 18 0 28 18 0 28 10 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </tran:lod1MultiSurface>
    </tran:Square>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Railway gml:id="harbour-line">
      <gml:name>Harbour line</gml:name>
      <tran:class>1060</tran:class>
      <tran:lod0Network>
        <gml:GeometricComplex><gml:element><gml:LineString><gml:posList>66 13 -7.5 120 13 -7.5</gml:posList></gml:LineString></gml:element></gml:GeometricComplex>
      </tran:lod0Network>
    </tran:Railway>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Track gml:id="tow-path">
      <gml:name>Tow path</gml:name>
      <tran:class>1040</tran:class>
      <tran:lod1MultiSurface>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>39 28 1 40 28 1 40 80 1 39 80 1 39 28 1</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </tran:lod1MultiSurface>
    </tran:Track>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:TransportationComplex gml:id="landing-stage">
      <gml:name>Landing stage</gml:name>
      <tran:class>1080</tran:class>
      <tran:lod1MultiSurface>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>40 30 0.5 43 30 0.5 43 34 0.5 40 34 0.5 40 30 0.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </tran:lod1MultiSurface>
    </tran:TransportationComplex>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <wtr:WaterBody gml:id="aldbrook">
      <gml:name>Aldbrook</gml:name>
      <wtr:class>1010</wtr:class>
      <wtr:function>1010</wtr:function>
      <wtr:usage>1010</wtr:usage>
      <wtr:usage>1020</wtr:usage>
      <wtr:lod0MultiCurve>
        <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>50 0 0 50 80 0</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
      </wtr:lod0MultiCurve>
      <wtr:lod1MultiSurface>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 0 0 59 0 0 59 80 0 41 80 0 41 0 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </wtr:lod1MultiSurface>
      <wtr:boundedBy>
        <wtr:WaterSurface gml:id="aldbrook-surface">
          <gml:name>Surface</gml:name>
          <wtr:lod2Surface>
            <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 0 0 59 0 0 59 80 0 41 80 0 41 0 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </wtr:lod2Surface>
          <wtr:waterLevel>mean water level</wtr:waterLevel>
        </wtr:WaterSurface>
      </wtr:boundedBy>
      <wtr:boundedBy>
        <wtr:WaterGroundSurface gml:id="aldbrook-bed">
          <gml:name>Bed</gml:name>
          <wtr:lod2Surface>
            <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 80 -3 59 80 -3 59 0 -3 41 0 -3 41 80 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </wtr:lod2Surface>
        </wtr:WaterGroundSurface>
      </wtr:boundedBy>
      <wtr:boundedBy>
        <wtr:WaterClosureSurface gml:id="aldbrook-south">
          <gml:name>Southern limit</gml:name>
          <wtr:lod2Surface>
            <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 0 -3 59 0 -3 59 0 0 41 0 0 41 0 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </wtr:lod2Surface>
        </wtr:WaterClosureSurface>
      </wtr:boundedBy>
    </wtr:WaterBody>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <veg:SolitaryVegetationObject gml:id="old-lime">
      <gml:name>Old lime tree</gml:name>
      <core:relativeToTerrain>substantiallyAboveAndBelowTerrain</core:relativeToTerrain>
      <veg:class>1070</veg:class>
      <veg:function>1010</veg:function>
      <veg:usage>1010</veg:usage>
      <veg:species>1600</veg:species>
      <veg:height uom="m">14.5</veg:height>
      <veg:trunkDiameter uom="m">0.9</veg:trunkDiameter>
      <veg:crownDiameter uom="m">11</veg:crownDiameter>
      <veg:lod1ImplicitRepresentation>
        <core:ImplicitGeometry>
          <core:mimeType>model/vrml</core:mimeType>
          <core:transformationMatrix>2 0 0 0 0 2 0 0 0 0 2.5 0 0 0 0 1</core:transformationMatrix>
          <core:libraryObject>models/lime.wrl</core:libraryObject>
          <core:referencePoint><gml:Point><gml:pos>33 14 0</gml:pos></gml:Point></core:referencePoint>
        </core:ImplicitGeometry>
      </veg:lod1ImplicitRepresentation>
    </veg:SolitaryVegetationObject>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <veg:PlantCover gml:id="reeds">
      <gml:name>Reeds</gml:name>
      <core:relativeToWater>temporarilyAboveAndBelowWaterSurface</core:relativeToWater>
      <veg:class>1180</veg:class>
      <veg:function>1010</veg:function>
      <veg:usage>1010</veg:usage>
      <veg:averageHeight uom="m">1.6</veg:averageHeight>
      <veg:lod1MultiSolid>
        <gml:MultiSolid>
          <gml:solidMember>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 70 0 43 70 0 43 50 0 41 50 0 41 70 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 50 1.6 43 50 1.6 43 70 1.6 41 70 1.6 41 50 1.6</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 50 0 43 50 0 43 50 1.6 41 50 1.6 41 50 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>43 70 0 41 70 0 41 70 1.6 43 70 1.6 43 70 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>43 50 0 43 70 0 43 70 1.6 43 50 1.6 43 50 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 70 0 41 50 0 41 50 1.6 41 70 1.6 41 70 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </gml:solidMember>
        </gml:MultiSolid>
      </veg:lod1MultiSolid>
    </veg:PlantCover>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="bench-1">
      <gml:name>Bench below the lime tree</gml:name>
      <frn:class>1000</frn:class>
      <frn:function>1150</frn:function>
      <frn:usage>1150</frn:usage>
      <frn:lod1Geometry>
        <gml:Solid>
          <gml:exterior>
            <gml:CompositeSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>31 12.5 0 33 12.5 0 33 12 0 31 12 0 31 12.5 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>31 12 0.5 33 12 0.5 33 12.5 0.5 31 12.5 0.5 31 12 0.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>31 12 0 33 12 0 33 12 0.5 31 12 0.5 31 12 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>33 12.5 0 31 12.5 0 31 12.5 0.5 33 12.5 0.5 33 12.5 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>33 12 0 33 12.5 0 33 12.5 0.5 33 12 0.5 33 12 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>31 12.5 0 31 12 0 31 12 0.5 31 12.5 0.5 31 12.5 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:CompositeSurface>
          </gml:exterior>
        </gml:Solid>
      </frn:lod1Geometry>
      <frn:lod1TerrainIntersection>
        <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>31 12 0 33 12 0</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
      </frn:lod1TerrainIntersection>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="fountain">
      <gml:name>Fountain</gml:name>
      <frn:class>1010</frn:class>
      <frn:lod3Geometry>
        <tex:TexturedSurface orientation="+">
          <gml:baseSurface>
            <gml:Polygon gml:id="fountain-basin"><gml:exterior><gml:LinearRing gml:id="fountain-basin-ring"><gml:posList>34 12 0.8 36 12 0.8 36 14 0.8 34 14 0.8 34 12 0.8</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </gml:baseSurface>
          <tex:appearance>
            <tex:Material>
              <tex:shininess>0.4</tex:shininess>
              <tex:transparency>0.6</tex:transparency>
              <tex:ambientIntensity>0.2</tex:ambientIntensity>
              <tex:specularColor>0.8 0.8 0.9</tex:specularColor>
              <tex:diffuseColor>0.3 0.5 0.7</tex:diffuseColor>
              <tex:emissiveColor>0 0 0</tex:emissiveColor>
            </tex:Material>
          </tex:appearance>
          <tex:appearance orientation="-">
            <tex:SimpleTexture>
              <tex:textureMap>textures/water.png</tex:textureMap>
              <tex:textureCoordinates>0 0 1 0 1 1 0 1 0 0</tex:textureCoordinates>
              <tex:textureType>typical</tex:textureType>
              <tex:repeat>true</tex:repeat>
            </tex:SimpleTexture>
          </tex:appearance>
        </tex:TexturedSurface>
      </frn:lod3Geometry>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <luse:LandUse gml:id="orchard">
      <gml:name>Orchard</gml:name>
      <luse:class>2000</luse:class>
      <luse:function>2010</luse:function>
      <luse:usage>2010</luse:usage>
      <luse:usage>2020</luse:usage>
      <luse:lod0MultiSurface>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>0 40 1 38 40 1 38 80 1 0 80 1 0 40 1</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </luse:lod0MultiSurface>
    </luse:LandUse>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <dem:ReliefFeature gml:id="terrain">
      <gml:name>Terrain</gml:name>
      <dem:lod>2</dem:lod>
      <dem:reliefComponent>
        <dem:TINRelief gml:id="terrain-tin">
          <gml:name>Hill</gml:name>
          <dem:lod>2</dem:lod>
          <dem:extent>
            <gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>70 20 0 120 20 0 120 80 0 70 80 0 70 20 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
          </dem:extent>
          <dem:tin>
            <gml:TriangulatedSurface>
              <gml:trianglePatches>
                <gml:Triangle><gml:exterior><gml:LinearRing><gml:posList>70 20 0 120 20 2 95 50 25 70 20 0</gml:posList></gml:LinearRing></gml:exterior></gml:Triangle>
                <gml:Triangle><gml:exterior><gml:LinearRing><gml:posList>120 20 2 120 80 6 95 50 25 120 20 2</gml:posList></gml:LinearRing></gml:exterior></gml:Triangle>
              </gml:trianglePatches>
            </gml:TriangulatedSurface>
          </dem:tin>
        </dem:TINRelief>
      </dem:reliefComponent>
      <dem:reliefComponent>
        <dem:TINRelief gml:id="terrain-meadow">
          <gml:name>Meadow</gml:name>
          <dem:lod>1</dem:lod>
          <dem:tin>
            <gml:Tin>
              <gml:trianglePatches/>
              <gml:breakLines><gml:LineStringSegment><gml:posList>60 40 1 70 60 2</gml:posList></gml:LineStringSegment></gml:breakLines>
              <gml:maxLength uom="m">20</gml:maxLength>
              <gml:controlPoint><gml:posList>60 30 1 70 30 1 70 70 2 60 70 1</gml:posList></gml:controlPoint>
            </gml:Tin>
          </dem:tin>
        </dem:TINRelief>
      </dem:reliefComponent>
      <dem:reliefComponent>
        <dem:MassPointRelief gml:id="terrain-points">
          <gml:name>Levelled points</gml:name>
          <dem:lod>1</dem:lod>
          <dem:reliefPoints>
            <gml:MultiPoint>
              <gml:pointMember><gml:Point><gml:pos>0 0 0</gml:pos></gml:Point></gml:pointMember>
              <gml:pointMember><gml:Point><gml:pos>40 0 0</gml:pos></gml:Point></gml:pointMember>
              <gml:pointMember><gml:Point><gml:pos>40 40 1</gml:pos></gml:Point></gml:pointMember>
              <gml:pointMember><gml:Point><gml:pos>0 40 1</gml:pos></gml:Point></gml:pointMember>
            </gml:MultiPoint>
          </dem:reliefPoints>
        </dem:MassPointRelief>
      </dem:reliefComponent>
      <dem:reliefComponent>
        <dem:BreaklineRelief gml:id="terrain-lines">
          <gml:name>Bank and ridge</gml:name>
          <dem:lod>1</dem:lod>
          <dem:ridgeOrValleyLines>
            <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>95 20 2 95 80 25</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
          </dem:ridgeOrValleyLines>
          <dem:breaklines>
            <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>40 0 1 40 80 1</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
          </dem:breaklines>
        </dem:BreaklineRelief>
      </dem:reliefComponent>
      <dem:reliefComponent>
        <dem:RasterRelief gml:id="terrain-raster">
          <gml:name>Raster</gml:name>
          <dem:lod>0</dem:lod>
          <dem:grid>
            <gml:RectifiedGridCoverage gml:id="terrain-grid">
              <gml:name>Grid of heights</gml:name>
              <gml:rectifiedGridDomain>
                <gml:RectifiedGrid dimension="2">
                  <gml:limits>
                    <gml:GridEnvelope><gml:low>0 0</gml:low><gml:high>2 1</gml:high></gml:GridEnvelope>
                  </gml:limits>
                  <gml:axisName>x</gml:axisName>
                  <gml:axisName>y</gml:axisName>
                  <gml:origin><gml:Point><gml:pos>0 0</gml:pos></gml:Point></gml:origin>
                  <gml:offsetVector>40 0</gml:offsetVector>
                  <gml:offsetVector>0 40</gml:offsetVector>
                </gml:RectifiedGrid>
              </gml:rectifiedGridDomain>
              <gml:rangeSet><gml:QuantityList uom="m">0 0 2 1 1 25</gml:QuantityList></gml:rangeSet>
              <gml:coverageFunction>
                <gml:GridFunction>
                  <gml:sequenceRule order="+x+y">Linear</gml:sequenceRule>
                  <gml:startPoint>0 0</gml:startPoint>
                </gml:GridFunction>
              </gml:coverageFunction>
            </gml:RectifiedGridCoverage>
          </dem:grid>
        </dem:RasterRelief>
      </dem:reliefComponent>
    </dem:ReliefFeature>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <gen:GenericCityObject gml:id="weir">
      <gml:name>Weir</gml:name>
      <core:relativeToWater>substantiallyAboveAndBelowWaterSurface</core:relativeToWater>
      <gen:class>1000</gen:class>
      <gen:function>1010</gen:function>
      <gen:usage>1010</gen:usage>
      <gen:lod0Geometry>
        <gml:LineString><gml:posList>41 60 0 59 60 0</gml:posList></gml:LineString>
      </gen:lod0Geometry>
      <gen:lod1Geometry>
        <gml:Solid>
          <gml:exterior>
            <gml:CompositeSurface>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 61 -3 59 61 -3 59 59 -3 41 59 -3 41 61 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 59 0.5 59 59 0.5 59 61 0.5 41 61 0.5 41 59 0.5</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 59 -3 59 59 -3 59 59 0.5 41 59 0.5 41 59 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>59 61 -3 41 61 -3 41 61 0.5 59 61 0.5 59 61 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>59 59 -3 59 61 -3 59 61 0.5 59 59 0.5 59 59 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
              <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 61 -3 41 59 -3 41 59 0.5 41 61 0.5 41 61 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
            </gml:CompositeSurface>
          </gml:exterior>
        </gml:Solid>
      </gen:lod1Geometry>
      <gen:lod1TerrainIntersection>
        <gml:MultiCurve><gml:curveMember><gml:LineString><gml:posList>41 59 -3 59 59 -3</gml:posList></gml:LineString></gml:curveMember></gml:MultiCurve>
      </gen:lod1TerrainIntersection>
      <gen:lod2ImplicitRepresentation>
        <core:ImplicitGeometry>
          <core:transformationMatrix>1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1</core:transformationMatrix>
          <core:relativeGMLGeometry xlink:href="#lantern-house-block"/>
          <core:referencePoint><gml:Point><gml:pos>50 60 0</gml:pos></gml:Point></core:referencePoint>
        </core:ImplicitGeometry>
      </gen:lod2ImplicitRepresentation>
    </gen:GenericCityObject>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <grp:CityObjectGroup gml:id="walk">
      <gml:name>Heritage walk</gml:name>
      <grp:class>1000</grp:class>
      <grp:function>1010</grp:function>
      <grp:usage>1010</grp:usage>
      <grp:groupMember role="start" xlink:href="#lantern-house"/>
      <grp:groupMember role="crossing" xlink:href="#heron-bridge"/>
      <grp:groupMember role="end">
        <gen:GenericCityObject gml:id="milestone">
          <gml:name>Milestone</gml:name>
          <gen:lod1Geometry>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>62 27.4 3 62.4 27.4 3 62.4 27 3 62 27 3 62 27.4 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>62 27 4 62.4 27 4 62.4 27.4 4 62 27.4 4 62 27 4</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>62 27 3 62.4 27 3 62.4 27 4 62 27 4 62 27 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>62.4 27.4 3 62 27.4 3 62 27.4 4 62.4 27.4 4 62.4 27.4 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>62.4 27 3 62.4 27.4 3 62.4 27.4 4 62.4 27 4 62.4 27 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>62 27.4 3 62 27 3 62 27 4 62 27.4 4 62 27.4 3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </gen:lod1Geometry>
        </gen:GenericCityObject>
      </grp:groupMember>
      <grp:parent xlink:href="#lantern-house"/>
      <grp:geometry>
        <gml:LineString><gml:posList>10 9 0 40 23 4 62 27 4</gml:posList></gml:LineString>
      </grp:geometry>
    </grp:CityObjectGroup>
  </core:cityObjectMember>
  <!-- Shapes that stand in the document once and are placed where they are referred to. -->
  <core:cityObjectMember>
    <gen:GenericCityObject gml:id="shapes">
      <gml:name>Shared shapes</gml:name>
      <gen:lod3Geometry>
        <gml:Polygon gml:id="window-pane"><gml:exterior><gml:LinearRing gml:id="window-pane-ring"><gml:posList>0 0 0 1 0 0 1 0 1.5 0 0 1.5 0 0 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>
      </gen:lod3Geometry>
    </gen:GenericCityObject>
  </core:cityObjectMember>
  <app:appearanceMember>
    <app:Appearance gml:id="aerial">
      <gml:name>Aerial photograph</gml:name>
      <app:theme>aerial</app:theme>
      <app:surfaceDataMember>
        <app:GeoreferencedTexture gml:id="aerial-image">
          <gml:name>Aerial image of 2020</gml:name>
          <app:isFront>true</app:isFront>
          <app:imageURI>textures/aerial.png</app:imageURI>
          <app:mimeType>image/png</app:mimeType>
          <app:textureType>specific</app:textureType>
          <app:wrapMode>none</app:wrapMode>
          <app:preferWorldFile>false</app:preferWorldFile>
          <app:referencePoint><gml:Point><gml:pos>0 80</gml:pos></gml:Point></app:referencePoint>
          <app:orientation>0.1 0 0 -0.1</app:orientation>
          <app:target>#terrain-tin</app:target>
        </app:GeoreferencedTexture>
      </app:surfaceDataMember>
    </app:Appearance>
  </app:appearanceMember>
</core:CityModel>
