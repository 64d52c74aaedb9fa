#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/ReferenceType.hxx"
#include "UI/Models/CityGMLModel/catalogues/Rows.h"

#include <QUrl>

namespace tolvik {

namespace {

/// A new group at the end of \a parent.
CoreProperty* groupBelow(CoreProperty* parent, const QString& name)
{
    auto* const group = new CoreProperty(name, QVariant());
    parent->addProperty(group);
    return group;
}

} // namespace

GmlCorePropertyCreator::GmlCorePropertyCreator(bool existingOnly)
    : m_property(new CoreProperty(QString(), QVariant())), m_existingOnly(existingOnly)
{
}

GmlCorePropertyCreator::~GmlCorePropertyCreator() = default;

CoreProperty* GmlCorePropertyCreator::createProperty(gml::AbstractFeatureType* feature, bool existingOnly)
{
    GmlCorePropertyCreator creator(existingOnly);
    feature->accept(&creator);
    return creator.getProperty();
}

CoreProperty* GmlCorePropertyCreator::getProperty() const
{
    return m_property;
}

CoreProperty* GmlCorePropertyCreator::getOrCreateFieldPartProp()
{
    if (m_fieldPart == nullptr) {
        m_fieldPart = groupBelow(m_property, QStringLiteral("Fields"));
    }
    return m_fieldPart;
}

CoreProperty* GmlCorePropertyCreator::getOrCreateRootADEPartProp(const QString& name)
{
    CoreProperty*& part = m_adeParts[name];
    if (part == nullptr) {
        if (m_adeRoot == nullptr) {
            m_adeRoot = groupBelow(m_property, QStringLiteral("Properties"));
        }
        part = groupBelow(m_adeRoot, name);
    }
    return part;
}

/// A group that several rows share: the one of that name, or else a new one.
CoreProperty* GmlCorePropertyCreator::getOrCreateProperty(CoreProperty* parent, const QString& name)
{
    CoreProperty* const group = parent->getProperty(name, false);
    return group != nullptr ? group : groupBelow(parent, name);
}

/// A new group at the end of \a target.
CoreProperty* GmlCorePropertyCreator::addGroup(const Target& target, const QString& label)
{
    return groupBelow(target.find(*this), label);
}

/// What a reference points to, or an invalid variant.
QVariant GmlCorePropertyCreator::getReferenceUrl(const gml::ReferenceType& reference)
{
    return reference.href().present()
               ? QVariant(QUrl(QString::fromStdString(reference.href().get()), QUrl::TolerantMode))
               : QVariant();
}

/// Visits an object inside the feature; its rows go to \a group.
void GmlCorePropertyCreator::enter(CoreProperty* group, xml_schema::type& object)
{
    const QScopedValueRollback<CoreProperty*> inside(m_currentParent, group);
    object.accept(this);
}

CoreProperty* GmlCorePropertyCreator::Target::find(GmlCorePropertyCreator& creator) const
{
    switch (kind) {
    case Kind::Extension:
        return creator.getOrCreateRootADEPartProp(name);
    case Kind::Group:
        return property;
    case Kind::Current:
        return creator.m_currentParent != nullptr ? creator.m_currentParent
                                                  : creator.getOrCreateFieldPartProp();
    case Kind::Fields:
        break;
    }
    return creator.getOrCreateFieldPartProp();
}

} // namespace tolvik
