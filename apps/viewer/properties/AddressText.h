#pragma once

#include <QStringList>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik::viewer {

/// Whether a feature is an address of something.
bool isAddress(const gml::AbstractFeatureType& feature);

/// The addresses that a feature is or has, in the order of the document, each in one line as on an envelope:
/// "17 Lantern Row, 40 217 Marrowby, Aldland". Those of the features inside are not among them.
///
/// The texts of an address are content that no schema class has members for, and come in the order of the
/// schema: the number stands in front of the street, whatever the custom of the country.
QStringList addressesOf(gml::AbstractFeatureType& feature);

} // namespace tolvik::viewer
