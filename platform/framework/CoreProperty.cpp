#include "framework/CoreProperty.h"

#include "fondo/ClassType.h"
#include "framework/AbstractUnit.h"

#include <utility>

namespace tolvik {

namespace {

bool isNumber(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

} // namespace

CoreProperty::CoreProperty(QString name, QVariant value)
    : label(std::move(name)), storedValue(std::move(value))
{
}

CoreProperty::~CoreProperty() = default;

const Fondo::ClassType& CoreProperty::classType()
{
    static const Fondo::ClassType record("tolvik::CoreProperty", &Fondo::Referenced::classType());
    return record;
}

const Fondo::ClassType& CoreProperty::getType() const
{
    return classType();
}

QVariant CoreProperty::value()
{
    return storedValue;
}

QVariant CoreProperty::SIValue()
{
    const QVariant number = value();
    return measureUnit != nullptr && isNumber(number) ? QVariant(measureUnit->toSI(number.toDouble()))
                                                      : number;
}

QVariant CoreProperty::displayValue()
{
    const QVariant number = value();
    return measureUnit != nullptr && isNumber(number)
               ? QVariant(number.toString() + QLatin1Char(' ') + measureUnit->name())
               : number;
}

QVariant CoreProperty::filterValue()
{
    return SIValue();
}

void CoreProperty::setValue(const QVariant& value)
{
    storedValue = value;
}

QVariant CoreProperty::defaultValue() const
{
    return QVariant();
}

void CoreProperty::setUnit(AbstractUnit* unit)
{
    measureUnit = unit;
}

CoreProperty* CoreProperty::getOrCreateProperty(const QString& name, const QVariant& value)
{
    CoreProperty* property = getProperty(name, false);
    if (property == nullptr) {
        property = new CoreProperty(name, value);
        addProperty(property);
    }
    return property;
}

CoreProperty* CoreProperty::getOrCreateProperty(const QString& name)
{
    return getOrCreateProperty(name, QVariant());
}

int CoreProperty::propertyType() const
{
    return 0;
}

bool CoreProperty::editable() const
{
    return false;
}

QList<QVariant> CoreProperty::potentialValues()
{
    return m_potentialValues;
}

bool CoreProperty::shared() const
{
    return false;
}

bool CoreProperty::unshare()
{
    return false;
}

bool CoreProperty::handleContextMenuEvent()
{
    return false;
}

void CoreProperty::addContextMenuEventAction(QMenu* /*menu*/) {}

bool CoreProperty::addProperty(CoreProperty* property)
{
    if (property == nullptr || property == this) {
        return false;
    }
    children.append(property);
    return true;
}

CoreProperty* CoreProperty::getProperty(const QString& name, bool recursive) const
{
    for (const auto& child : children) {
        if (child->label == name) {
            return child.get();
        }
        if (recursive) {
            if (CoreProperty* const below = child->getProperty(name, true)) {
                return below;
            }
        }
    }
    return nullptr;
}

} // namespace tolvik
