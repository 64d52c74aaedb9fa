#include "apps/viewer/properties/AddressText.h"

#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "citygml/OtherContent.h"
#include "core/AddressType.hxx"

#include <QVector>

namespace tolvik::viewer {

namespace {

/// A part of an address with the name of its element, without prefix.
struct Part
{
    QString name;
    QString text;
};

QString localName(const std::string& name)
{
    return QString::fromStdString(name).section(':', -1);
}

void collectParts(const std::vector<citygml::OtherContent>& contents, QVector<Part>& parts)
{
    for (const citygml::OtherContent& content : contents) {
        const QString name = localName(content.name());
        if (content.name().front() == '@') {
            continue;
        }
        const QString text = QString::fromStdString(content.text()).simplified();
        if (!text.isEmpty()) {
            parts += {name, text};
        }
        collectParts(content.children(), parts);
    }
}

/// Takes the parts of the given names out, in the order in which they stand.
QString take(QVector<Part>& parts, const QStringList& names)
{
    QStringList texts;
    for (int i = 0; i < parts.size();) {
        if (names.contains(parts[i].name)) {
            texts += parts.takeAt(i).text;
        } else {
            ++i;
        }
    }
    return texts.join(' ');
}

QString textOf(QVector<Part> parts)
{
    const QString street =
        take(parts, {"ThoroughfareNumberPrefix", "ThoroughfareNumber", "ThoroughfareNumberSuffix",
                     "ThoroughfarePreDirection", "ThoroughfareLeadingType", "ThoroughfareName",
                     "ThoroughfareTrailingType", "ThoroughfarePostDirection", "PremiseNumber"});
    const QString postCode = take(parts, {"PostalCodeNumber", "PostalCodeNumberExtension"});
    const QString town = take(parts, {"LocalityName", "PostTownName"});
    const QString code = take(parts, {"CountryNameCode"});
    QString country = take(parts, {"CountryName"});
    if (country.isEmpty()) {
        country = code;
    }
    QStringList lines;
    for (const Part& part : qAsConst(parts)) {
        lines += part.text;
    }
    lines << street << (postCode + ' ' + town).trimmed() << country;
    lines.removeAll(QString());
    return lines.join(QStringLiteral(", "));
}

QString textOf(core::AddressType& address)
{
    QVector<Part> parts;
    for (const auto& content : citygml::otherContentOf(address, [](auto&) { return true; })) {
        if (localName(content.name()) == QLatin1String("xalAddress")) {
            collectParts(content.children(), parts);
        }
    }
    return textOf(parts);
}

/// Whether an address stands in the feature itself, and not in one inside it.
bool isDirectlyIn(const core::AddressType& address, const gml::AbstractFeatureType& feature)
{
    const auto* around = address._container();
    while (around != nullptr && dynamic_cast<const gml::AbstractFeatureType*>(around) == nullptr) {
        around = around->_container();
    }
    return around == &feature;
}

} // namespace

bool isAddress(const gml::AbstractFeatureType& feature)
{
    return dynamic_cast<const core::AddressType*>(&feature) != nullptr;
}

QStringList addressesOf(gml::AbstractFeatureType& feature)
{
    if (auto* const self = dynamic_cast<core::AddressType*>(&feature)) {
        return {textOf(*self)};
    }
    CityGMLFeaturesFillVisitor visitor;
    feature.accept(&visitor);
    QStringList texts;
    for (gml::AbstractFeatureType* const inner : visitor.getModelFeatures()) {
        auto* const address = dynamic_cast<core::AddressType*>(inner);
        if (address != nullptr && isDirectlyIn(*address, feature)) {
            texts += textOf(*address);
        }
    }
    return texts;
}

} // namespace tolvik::viewer
