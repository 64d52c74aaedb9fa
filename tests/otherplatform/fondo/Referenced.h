#pragma once

#include "fondo/ClassType.h"

#include <string>

namespace Fondo {

class Referenced
{
public:
    Referenced() = default;
    Referenced(const Referenced&) {}
    Referenced& operator=(const Referenced&) { return *this; }

    virtual const std::string& type() const
    {
        static const std::string name("Referenced");
        return name;
    }
    virtual const ClassType& getType() const
    {
        static const ClassType record;
        return record;
    }
    virtual bool isOfType(const ClassType& other) const { return &other == &getType(); }
    virtual ~Referenced() = default;

    void ref() const { ++count; }
    void unref() const
    {
        if (--count == 0) {
            delete this;
        }
    }

private:
    mutable int count = 0;
};

} // namespace Fondo
