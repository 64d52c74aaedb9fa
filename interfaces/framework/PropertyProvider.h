#pragma once

#include "fondo/Referenced.h"
#include "PlatformExport.h"

class QModelIndex;

namespace tolvik {

class CoreProperty;

/// Adds properties of the host to the property trees of a model's rows, see
/// CoreModel::addPropertyProvider().
class TOLVIK_PLATFORM_EXPORT PropertyProvider : public Fondo::Referenced
{
public:
    ~PropertyProvider() override;

    /// Adds what the host knows of a row. It may be called again for the same tree, so a provider that must
    /// not repeat itself asks CoreProperty::getOrCreateProperty().
    /// \param index the row
    /// \param root root of the row's property tree
    virtual void addProperties(const QModelIndex& index, CoreProperty& root) = 0;
};

} // namespace tolvik
