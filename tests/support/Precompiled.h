#pragma once

// What most tests include and seldom changes.

#include "bldg/BuildingType.hxx"
#include "core/CityModelType.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"

#include <algorithm>
#include <functional>
#include <memory>
#include <QtTest>
#include <QtWidgets>
#include <sstream>
#include <string>
#include <vector>
