#include "UI/Models/CityGMLModel/properties/BoundProperty.h"

namespace tolvik {

BoundProperty::BoundProperty(const QString& label) : CoreProperty(label, QVariant()) {}

BoundProperty::~BoundProperty() = default;

bool BoundProperty::present() const
{
    return member().present();
}

void BoundProperty::clear()
{
    member().clear();
}

citygml::MemberState BoundProperty::capture() const
{
    return member().capture();
}

bool BoundProperty::restore(const citygml::MemberState& state)
{
    return member().restore(state);
}

} // namespace tolvik
