#pragma once

#include "fondo/Referenced.h"
#include "fondo/RefPtr.h"

#include <QList>
#include <QString>
#include <QVariant>
#include <QVector>

class QMenu;

namespace tolvik {

class AbstractUnit;

class CoreProperty : public Fondo::Referenced
{
public:
    CoreProperty(const QString& name, const QVariant& value) : label(name), stored(value) {}

    virtual QVariant value() { return stored; }
    virtual QVariant SIValue() { return value(); }
    virtual QVariant displayValue() { return value(); }
    virtual QVariant filterValue() { return value(); }
    virtual void setValue(const QVariant& value) { stored = value; }
    virtual QVariant defaultValue() const { return QVariant(); }
    virtual void setUnit(AbstractUnit* unit) { measureUnit = unit; }
    virtual CoreProperty* getOrCreateProperty(const QString& name, const QVariant& value)
    {
        if (CoreProperty* const known = getProperty(name, false)) {
            return known;
        }
        addProperty(new CoreProperty(name, value));
        return children.last().get();
    }
    virtual CoreProperty* getOrCreateProperty(const QString& name)
    {
        return getOrCreateProperty(name, QVariant());
    }
    virtual int propertyType() const { return 0; }
    virtual bool editable() const { return false; }
    virtual QList<QVariant> potentialValues() { return m_potentialValues; }
    virtual bool shared() const { return false; }
    virtual bool unshare() { return false; }
    virtual bool handleContextMenuEvent() { return false; }
    virtual void addContextMenuEventAction(QMenu* /*menu*/) {}

    bool addProperty(CoreProperty* property)
    {
        children.append(property);
        return true;
    }
    CoreProperty* getProperty(const QString& name, bool recursive) const
    {
        for (const auto& child : children) {
            if (child->name() == name) {
                return child.get();
            }
            CoreProperty* const deeper = recursive ? child->getProperty(name, true) : nullptr;
            if (deeper != nullptr) {
                return deeper;
            }
        }
        return nullptr;
    }
    const QString& name() const { return label; }
    AbstractUnit* unit() const { return measureUnit; }
    const QVector<Fondo::RefPtr<CoreProperty>>& properties() const { return children; }

private:
    QString label;
    QVariant stored;
    AbstractUnit* measureUnit = nullptr;
    QVector<Fondo::RefPtr<CoreProperty>> children;

protected:
    QList<QVariant> m_potentialValues;
};

} // namespace tolvik
