#pragma once

#include "framework/AbstractUnit.h"

namespace tolvik {

class SingleUnit : public AbstractUnit
{
public:
    explicit SingleUnit(const QString& name) : text(name) {}
    QString name() const override { return text; }

private:
    QString text;
};

} // namespace tolvik
