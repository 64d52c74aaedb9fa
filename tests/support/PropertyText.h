#pragma once

#include "fondo/RefPtr.h"
#include "framework/CoreProperty.h"
#include "support/Documents.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>

namespace testsupport {

/// A document with the given feature as its only member, which may use the prefixes of all extensions.
class FeatureDocument
{
public:
    explicit FeatureDocument(const QByteArray& feature);
    explicit FeatureDocument(const gml::AbstractFeatureType& feature);

    gml::AbstractFeatureType& feature();

    /// The document as it is written.
    QByteArray text() const { return writeWithoutPrefixes(*document); }

    /// Writes the document and reads what was written.
    void reload() { document = readStrictly(text()); }

private:
    Document document;
};

Fondo::RefPtr<tolvik::CoreProperty> propertiesOf(gml::AbstractFeatureType& feature, bool existingOnly);

/// Those that the feature of the document has.
Fondo::RefPtr<tolvik::CoreProperty> propertiesOf(FeatureDocument& document, bool existingOnly = true);

/// A line for each property below, indented by two blanks a level: the name, and the value and unit if there
/// are some.
QString treeText(const tolvik::CoreProperty& property, const QString& indent = QString());

/// The property tree of a feature that is given as XML.
QString treeText(const QByteArray& feature, bool existingOnly = true);

/// The first property below the names, or null.
tolvik::CoreProperty* findProperty(const Fondo::RefPtr<tolvik::CoreProperty>& root, const QStringList& path);

/// Text of features that are entered one after the other by a creator of a caller, and of what the caller
/// enters then: a generic attribute, which goes to the group that is the current one.
QString textWithAttributeBehind(const QByteArrayList& features);

/// Name of the property's unit; empty if it has none.
QString unitOf(tolvik::CoreProperty* property);

} // namespace testsupport
