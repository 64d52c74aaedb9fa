#pragma once

namespace tolvik {

class ModelInterface
{
public:
    virtual ~ModelInterface() = default;
};

} // namespace tolvik
