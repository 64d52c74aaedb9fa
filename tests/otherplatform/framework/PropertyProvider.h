#pragma once

#include "fondo/Referenced.h"

class QModelIndex;

namespace tolvik {

class CoreProperty;

class PropertyProvider : public Fondo::Referenced
{
public:
    virtual void addProperties(const QModelIndex& index, CoreProperty& root) = 0;
};

} // namespace tolvik
