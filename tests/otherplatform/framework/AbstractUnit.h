#pragma once

#include <QString>

namespace tolvik {

class AbstractUnit
{
public:
    virtual ~AbstractUnit() = default;
    virtual QString name() const = 0;
};

} // namespace tolvik
