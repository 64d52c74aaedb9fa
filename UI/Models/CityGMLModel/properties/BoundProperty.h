#pragma once

#include "citygml/Member.h"
#include "framework/CoreProperty.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

namespace tolvik {

/// A property that reads and writes a member of a schema object. Besides its value it can tell whether the
/// document has the member at all, and it can take it out and put back exactly what was there:
/// \code
/// if (auto* const bound = dynamic_cast<BoundProperty*>(property)) {
///     const citygml::MemberState before = bound->capture();
///     bound->setValue(12.5);
///     bound->restore(before); // code space, precision and comments included
/// }
/// \endcode
/// Whoever edits so tells the model, see CityGMLModel::propertyChanged().
class CITYGMLMODEL_EXPORT BoundProperty : public CoreProperty
{
public:
    /// \param label name of the property
    explicit BoundProperty(const QString& label);
    ~BoundProperty() override;

    /// The member, which is valid longer than the property: as long as the object that has it.
    virtual citygml::Member member() const = 0;

    /// Those of the member.
    /// @{
    bool present() const;
    void clear();
    citygml::MemberState capture() const;
    bool restore(const citygml::MemberState& state);
    /// @}
};

} // namespace tolvik
