<?xml version="1.0" encoding="UTF-8"?>
<!-- A survey of the river at an invented town: GML's own kinds of features, which a city model may hold too. -->
<core:CityModel gml:id="marrowby-survey"
    xmlns:core="http://www.opengis.net/citygml/2.0"
    xmlns:gml="http://www.opengis.net/gml"
    xmlns:xlink="http://www.w3.org/1999/xlink">
  <gml:name>Survey of the Aldbrook</gml:name>
  <core:cityObjectMember>
    <gml:FeatureCollection gml:id="survey-walk">
      <gml:name>Walk along the bank</gml:name>
      <gml:featureMember>
        <gml:Observation gml:id="water-level">
          <gml:name>Water level at the bridge</gml:name>
          <gml:location><gml:Point><gml:pos>50 20 0</gml:pos></gml:Point></gml:location>
          <gml:validTime><gml:TimeInstant><gml:timePosition>2021-06-01T09:30:00Z</gml:timePosition></gml:TimeInstant></gml:validTime>
          <gml:using xlink:href="https://marrowby.example/instruments/staff-gauge"/>
          <gml:target><gml:Point><gml:pos>50 20 0</gml:pos></gml:Point></gml:target>
          <gml:resultOf><gml:Point><gml:pos>50 20 1.42</gml:pos></gml:Point></gml:resultOf>
        </gml:Observation>
      </gml:featureMember>
      <gml:featureMember>
        <gml:DirectedObservation gml:id="view">
          <gml:name>View to the weir</gml:name>
          <gml:validTime><gml:TimeInstant><gml:timePosition>2021-06-01T10:00:00Z</gml:timePosition></gml:TimeInstant></gml:validTime>
          <gml:resultOf xlink:href="https://marrowby.example/photographs/weir"/>
          <gml:direction><gml:CompassPoint>NNE</gml:CompassPoint></gml:direction>
        </gml:DirectedObservation>
      </gml:featureMember>
      <gml:featureMember>
        <gml:DirectedObservationAtDistance gml:id="sounding">
          <gml:name>Sounding of the far bank</gml:name>
          <gml:validTime>
            <gml:TimePeriod>
              <gml:beginPosition>2021-06-01T10:30:00Z</gml:beginPosition>
              <gml:endPosition>2021-06-01T10:45:00Z</gml:endPosition>
            </gml:TimePeriod>
          </gml:validTime>
          <gml:resultOf><gml:Point><gml:pos>59 21 0.3</gml:pos></gml:Point></gml:resultOf>
          <gml:direction>
            <gml:DirectionVector>
              <gml:horizontalAngle uom="deg">85</gml:horizontalAngle>
              <gml:verticalAngle uom="deg">-4</gml:verticalAngle>
            </gml:DirectionVector>
          </gml:direction>
          <gml:distance uom="m">17.6</gml:distance>
        </gml:DirectedObservationAtDistance>
      </gml:featureMember>
    </gml:FeatureCollection>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <gml:GridCoverage gml:id="flow-pattern">
      <gml:name>Pattern of the flow</gml:name>
      <gml:gridDomain>
        <gml:Grid dimension="2">
          <gml:limits>
            <gml:GridEnvelope><gml:low>0 0</gml:low><gml:high>1 1</gml:high></gml:GridEnvelope>
          </gml:limits>
          <gml:axisName>x</gml:axisName>
          <gml:axisName>y</gml:axisName>
        </gml:Grid>
      </gml:gridDomain>
      <gml:rangeSet><gml:CategoryList codeSpace="https://marrowby.example/codes/flow">calm calm rapid calm</gml:CategoryList></gml:rangeSet>
    </gml:GridCoverage>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <gml:RectifiedGridCoverage gml:id="depths">
      <gml:name>Depths</gml:name>
      <gml:rectifiedGridDomain>
        <gml:RectifiedGrid dimension="2">
          <gml:limits>
            <gml:GridEnvelope><gml:low>0 0</gml:low><gml:high>2 0</gml:high></gml:GridEnvelope>
          </gml:limits>
          <gml:axisName>x</gml:axisName>
          <gml:axisName>y</gml:axisName>
          <gml:origin><gml:Point><gml:pos>41 20</gml:pos></gml:Point></gml:origin>
          <gml:offsetVector>6 0</gml:offsetVector>
          <gml:offsetVector>0 6</gml:offsetVector>
        </gml:RectifiedGrid>
      </gml:rectifiedGridDomain>
      <gml:rangeSet><gml:QuantityList uom="m">0.4 2.9 1.1</gml:QuantityList></gml:rangeSet>
    </gml:RectifiedGridCoverage>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <gml:MultiPointCoverage gml:id="samples">
      <gml:name>Water samples</gml:name>
      <gml:multiPointDomain>
        <gml:MultiPoint>
          <gml:pointMember><gml:Point><gml:pos>45 10 -1</gml:pos></gml:Point></gml:pointMember>
          <gml:pointMember><gml:Point><gml:pos>55 60 -1</gml:pos></gml:Point></gml:pointMember>
        </gml:MultiPoint>
      </gml:multiPointDomain>
      <gml:rangeSet><gml:CountList>12 31</gml:CountList></gml:rangeSet>
    </gml:MultiPointCoverage>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <gml:MultiCurveCoverage gml:id="bank-state">
      <gml:name>State of the banks</gml:name>
      <gml:multiCurveDomain>
        <gml:MultiCurve>
          <gml:curveMember><gml:LineString><gml:posList>41 0 0 41 80 0</gml:posList></gml:LineString></gml:curveMember>
          <gml:curveMember><gml:LineString><gml:posList>59 0 0 59 80 0</gml:posList></gml:LineString></gml:curveMember>
        </gml:MultiCurve>
      </gml:multiCurveDomain>
      <gml:rangeSet><gml:BooleanList>true false</gml:BooleanList></gml:rangeSet>
    </gml:MultiCurveCoverage>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <gml:MultiSurfaceCoverage gml:id="bed-material">
      <gml:name>Material of the bed</gml:name>
      <gml:multiSurfaceDomain>
        <gml:MultiSurface>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 0 -3 59 0 -3 59 40 -3 41 40 -3 41 0 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
          <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 40 -3 59 40 -3 59 80 -3 41 80 -3 41 40 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
        </gml:MultiSurface>
      </gml:multiSurfaceDomain>
      <gml:rangeSet><gml:CategoryList codeSpace="https://marrowby.example/codes/bed">gravel silt</gml:CategoryList></gml:rangeSet>
    </gml:MultiSurfaceCoverage>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <gml:MultiSolidCoverage gml:id="water-volumes">
      <gml:name>Temperature of the water</gml:name>
      <gml:multiSolidDomain>
        <gml:MultiSolid>
          <gml:solidMember>
            <gml:Solid>
              <gml:exterior>
                <gml:CompositeSurface>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 80 -3 59 80 -3 59 0 -3 41 0 -3 41 80 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 0 0 59 0 0 59 80 0 41 80 0 41 0 0</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 0 -3 59 0 -3 59 0 0 41 0 0 41 0 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>59 80 -3 41 80 -3 41 80 0 59 80 0 59 80 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>59 0 -3 59 80 -3 59 80 0 59 0 0 59 0 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                  <gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>41 80 -3 41 0 -3 41 0 0 41 80 0 41 80 -3</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>
                </gml:CompositeSurface>
              </gml:exterior>
            </gml:Solid>
          </gml:solidMember>
        </gml:MultiSolid>
      </gml:multiSolidDomain>
      <gml:rangeSet><gml:QuantityList uom="urn:marrowby:uom:celsius">14.5</gml:QuantityList></gml:rangeSet>
    </gml:MultiSolidCoverage>
  </core:cityObjectMember>
</core:CityModel>
