#pragma once

#include "core/CityModelType.hxx"

#include <list>
#include <memory>
#include <QByteArray>
#include <QString>
#include <QStringList>

namespace testsupport {

using Document = std::unique_ptr<core::CityModelType>;

/// The text of a document with the given members and attributes of the root. It declares `core` and other
/// prefixes by which the schemas are known, and `x` for a namespace that no schema has.
QByteArray documentText(const QByteArray& members, const QByteArray& attributes = QByteArray());

/// A building as it stands below a member, with an identifier if it is not empty.
QByteArray buildingText(const QByteArray& content, const QByteArray& id = QByteArray());

/// The same as a member of a document.
QByteArray buildingMember(const QByteArray& content, const QByteArray& id = "b");

/// A document that has nothing but this member.
QByteArray documentWithBuilding(const QByteArray& content);

/// Reads a document as loads of the model do. Throws the errors of the reader.
Document read(const QByteArray& xml);

/// The same where only documents without fault are wanted.
Document readStrictly(const QByteArray& xml);

/// The text of a save.
QByteArray write(const core::CityModelType& document);

/// The same without the prefixes and schema locations that a save gives to all namespaces it knows.
QByteArray writeWithoutPrefixes(const core::CityModelType& document);

/// What strict reading reports; empty if it succeeds.
/// \param document where the document goes, if it is wanted
QString errorOf(const QByteArray& xml, Document* document = nullptr);

/// The features of a document, in the order of the walk.
std::list<gml::AbstractFeatureType*> featuresOf(core::CityModelType& document);

/// Type, identifier and first name of each feature, in the order of the walk.
QStringList listOf(core::CityModelType& document);

} // namespace testsupport
