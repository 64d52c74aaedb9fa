<?xml version="1.0" encoding="UTF-8"?>
<!-- A corner of an invented town in CityGML 1.0, with a feature of each of its modules. -->
<core:CityModel gml:id="oldcorner"
    xmlns="http://www.opengis.net/citygml/profiles/base/1.0"
    xmlns:core="http://www.opengis.net/citygml/1.0"
    xmlns:app="http://www.opengis.net/citygml/appearance/1.0"
    xmlns:bldg="http://www.opengis.net/citygml/building/1.0"
    xmlns:dem="http://www.opengis.net/citygml/relief/1.0"
    xmlns:frn="http://www.opengis.net/citygml/cityfurniture/1.0"
    xmlns:gen="http://www.opengis.net/citygml/generics/1.0"
    xmlns:grp="http://www.opengis.net/citygml/cityobjectgroup/1.0"
    xmlns:luse="http://www.opengis.net/citygml/landuse/1.0"
    xmlns:tex="http://www.opengis.net/citygml/texturedsurface/1.0"
    xmlns:tran="http://www.opengis.net/citygml/transportation/1.0"
    xmlns:veg="http://www.opengis.net/citygml/vegetation/1.0"
    xmlns:wtr="http://www.opengis.net/citygml/waterbody/1.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:xAL="urn:oasis:names:tc:ciq:xsdschema:xAL:2.0"
    xmlns:xlink="http://www.w3.org/1999/xlink"
    xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"
    xmlns:survey="urn:marrowby:survey"
    xsi:schemaLocation="http://www.opengis.net/citygml/1.0 http://schemas.opengis.net/citygml/1.0/cityGMLBase.xsd
        http://www.opengis.net/citygml/building/1.0 http://schemas.opengis.net/citygml/building/1.0/building.xsd
        urn:marrowby:survey survey.xsd">
  <gml:description>The corner of Weaver Lane before the bridge was built</gml:description>
  <gml:name>Weaver Lane</gml:name>
  <gml:boundedBy>
    <gml:Envelope srsName="urn:marrowby:crs:local-3d" srsDimension="3">
      <gml:lowerCorner>0 0 0</gml:lowerCorner>
      <gml:upperCorner>60 40 12</gml:upperCorner>
    </gml:Envelope>
  </gml:boundedBy>
  <core:cityObjectMember>
    <bldg:Building gml:id="weaver-1">
      <gml:name>Weaver Lane 1</gml:name>
      <core:creationDate>2009-04-02</core:creationDate>
      <core:externalReference>
        <core:informationSystem>https://marrowby.example/register</core:informationSystem>
        <core:externalObject>
          <core:name>W-1</core:name>
        </core:externalObject>
      </core:externalReference>
      <gen:stringAttribute name="owner">
        <gen:value>Guild of weavers</gen:value>
      </gen:stringAttribute>
      <gen:intAttribute name="looms">
        <gen:value>12</gen:value>
      </gen:intAttribute>
      <bldg:class>1000</bldg:class>
      <bldg:function>1010</bldg:function>
      <bldg:yearOfConstruction>1781</bldg:yearOfConstruction>
      <bldg:roofType>1030</bldg:roofType>
      <bldg:measuredHeight uom="m">9.5</bldg:measuredHeight>
      <bldg:storeysAboveGround>2</bldg:storeysAboveGround>
      <bldg:boundedBy>
        <bldg:WallSurface gml:id="weaver-1-wall">
          <bldg:lod2MultiSurface>
            <gml:MultiSurface>
              <gml:surfaceMember>
                <gml:Polygon gml:id="weaver-1-wall-face">
                  <gml:exterior>
                    <gml:LinearRing>
                      <gml:posList srsDimension="3">2 2 0 12 2 0 12 2 9.5 2 2 9.5 2 2 0</gml:posList>
                    </gml:LinearRing>
                  </gml:exterior>
                </gml:Polygon>
              </gml:surfaceMember>
            </gml:MultiSurface>
          </bldg:lod2MultiSurface>
        </bldg:WallSurface>
      </bldg:boundedBy>
      <bldg:address>
        <core:Address>
          <core:xalAddress>
            <xAL:AddressDetails>
              <xAL:Locality Type="Town">
                <xAL:LocalityName>Marrowby</xAL:LocalityName>
              </xAL:Locality>
            </xAL:AddressDetails>
          </core:xalAddress>
        </core:Address>
      </bldg:address>
    </bldg:Building>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <frn:CityFurniture gml:id="lamp">
      <gml:name>Oil lamp</gml:name>
      <frn:function>1080</frn:function>
    </frn:CityFurniture>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <luse:LandUse gml:id="yard">
      <luse:class>1000</luse:class>
    </luse:LandUse>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <dem:ReliefFeature gml:id="slope">
      <dem:lod>1</dem:lod>
      <dem:reliefComponent>
        <dem:MassPointRelief gml:id="slope-points">
          <dem:lod>1</dem:lod>
          <dem:reliefPoints>
            <gml:MultiPoint>
              <gml:pointMember>
                <gml:Point>
                  <gml:pos>1 2 3.25</gml:pos>
                </gml:Point>
              </gml:pointMember>
            </gml:MultiPoint>
          </dem:reliefPoints>
        </dem:MassPointRelief>
      </dem:reliefComponent>
    </dem:ReliefFeature>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <tran:Road gml:id="lane">
      <gml:name>Weaver Lane</gml:name>
      <tran:function>1</tran:function>
    </tran:Road>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <veg:SolitaryVegetationObject gml:id="lime">
      <veg:species>1060</veg:species>
      <veg:height uom="m">11</veg:height>
    </veg:SolitaryVegetationObject>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <wtr:WaterBody gml:id="brook">
      <wtr:class>1020</wtr:class>
    </wtr:WaterBody>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <gen:GenericCityObject gml:id="well">
      <gen:function>well</gen:function>
    </gen:GenericCityObject>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <grp:CityObjectGroup gml:id="corner">
      <grp:groupMember role="house" xlink:href="#weaver-1"/>
    </grp:CityObjectGroup>
  </core:cityObjectMember>
  <app:appearanceMember>
    <app:Appearance>
      <app:theme>daylight</app:theme>
      <app:surfaceDataMember>
        <app:X3DMaterial>
          <app:isFront>1</app:isFront>
          <app:diffuseColor>0.8 0.75 0.7</app:diffuseColor>
          <app:target>#weaver-1-wall-face</app:target>
        </app:X3DMaterial>
      </app:surfaceDataMember>
    </app:Appearance>
  </app:appearanceMember>
  <gml:featureMember>
    <bldg:Building gml:id="weaver-2">
      <gml:name>Weaver Lane 2</gml:name>
      <bldg:lod1Solid xsi:type="gml:SolidPropertyType">
        <gml:Solid xsi:type="gml:SolidType"/>
      </bldg:lod1Solid>
      <bldg:consistsOfBuildingPart>
        <bldg:BuildingPart gml:id="weaver-2-shed" xsi:type="bldg:BuildingPartType"/>
      </bldg:consistsOfBuildingPart>
    </bldg:Building>
  </gml:featureMember>
</core:CityModel>
