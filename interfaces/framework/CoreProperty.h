#pragma once

#include "fondo/Referenced.h"
#include "fondo/RefPtr.h"
#include "PlatformExport.h"

#include <QList>
#include <QString>
#include <QVariant>
#include <QVector>

class QMenu;

namespace tolvik {
class AbstractUnit;
class CoreProperty;
} // namespace tolvik

Q_DECLARE_TYPEINFO(Fondo::RefPtr<tolvik::CoreProperty>, Q_MOVABLE_TYPE);

namespace tolvik {

/// One line of a property tree: a name, a value, a unit and the properties below it.
///
/// A tree is held by a RefPtr to its root, and every property holds its children in the same way. There may
/// be millions of properties, so the class is kept small: shared containers that cost a pointer while empty,
/// and no way back to the parent.
class TOLVIK_PLATFORM_EXPORT CoreProperty : public Fondo::Referenced
{
public:
    /// \param name the label, see name()
    /// \param value the stored value; invalid for a group
    CoreProperty(QString name, QVariant value);
    CoreProperty(const CoreProperty&) = delete;
    CoreProperty& operator=(const CoreProperty&) = delete;

    /// Type record of the class.
    static const Fondo::ClassType& classType();
    const Fondo::ClassType& getType() const override;

    /// Gives the children up.
    ~CoreProperty() override;

    /// The value as it is. Here the stored one, invalid for a group.
    virtual QVariant value();

    /// The value in SI units: a number goes through the unit, and anything else is value().
    virtual QVariant SIValue();

    /// The value for the eye: a number with a unit as text, such as "12.5 m", and anything else value().
    virtual QVariant displayValue();

    /// What filters and comparisons of rows look at, so that numbers in different units compare: SIValue().
    virtual QVariant filterValue();

    /// Stores the value. A property bound to something else writes it there.
    virtual void setValue(const QVariant& value);

    /// What a host offers where there is no value yet. Here invalid.
    virtual QVariant defaultValue() const;

    /// Sets the unit of the value.
    /// \param unit may be null; not owned, see UnitCreator
    virtual void setUnit(AbstractUnit* unit);

    /// The first child of that name, or a new plain one with \a value behind the others.
    /// \return never null; owned by this
    virtual CoreProperty* getOrCreateProperty(const QString& name, const QVariant& value);

    /// The same with an invalid value for a new child.
    virtual CoreProperty* getOrCreateProperty(const QString& name);

    /// The kind of the property, for hosts that choose an editor by it: 0, a property like any other. A
    /// host's own kinds are above 0.
    virtual int propertyType() const;

    /// Whether a host may offer the value for editing. A plain property holds a copy of something, so that an
    /// edit would reach nothing: false.
    virtual bool editable() const;

    /// The values to choose from, empty where any will do.
    virtual QList<QVariant> potentialValues();

    /// Whether an edit of this property shows at other rows too. False for a plain property.
    virtual bool shared() const;

    /// Makes a shared property the row's own.
    /// \return whether something changed; false for a plain property
    virtual bool unshare();

    /// Whether the property has entries of its own for a context menu, see addContextMenuEventAction(). False
    /// here.
    virtual bool handleContextMenuEvent();

    /// Adds those entries to \a menu. None here.
    virtual void addContextMenuEventAction(QMenu* menu);

    /// Appends a child and takes a reference on it. Several children may have the same name.
    /// \return false, with nothing done, for null and for the property itself
    bool addProperty(CoreProperty* property);

    /// The first child of that name.
    /// \param name label to look for
    /// \param recursive also looks below the children: all that is below the first child comes before the
    /// second
    /// \return null if there is none; owned by this
    CoreProperty* getProperty(const QString& name, bool recursive) const;

    /// The label on screen.
    const QString& name() const { return label; }

    /// The unit of the value, null if it has none. Not owned.
    AbstractUnit* unit() const { return measureUnit; }

    /// The children in order. None is null.
    const QVector<Fondo::RefPtr<CoreProperty>>& properties() const { return children; }

private:
    QString label;
    QVariant storedValue;
    AbstractUnit* measureUnit = nullptr;
    QVector<Fondo::RefPtr<CoreProperty>> children;

protected:
    QList<QVariant> m_potentialValues; ///< the values to choose from, see potentialValues()
};

} // namespace tolvik
