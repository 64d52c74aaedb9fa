#pragma once

#include "PlatformExport.h"

namespace tolvik {

class CoreModel;

/// The host's plug-in that a model belongs to. A model only passes the pointer on and asks it where in the
/// world the model lies, which takes more knowledge of the document than the framework has.
class TOLVIK_PLATFORM_EXPORT ModelInterface
{
public:
    ModelInterface() = default;
    ModelInterface(const ModelInterface&) = delete;
    ModelInterface& operator=(const ModelInterface&) = delete;
    virtual ~ModelInterface();

    /// The box around a model's document, in the document's reference system and axis order.
    /// \param model the model that asks
    /// \param lower takes the smallest x, y, z
    /// \param upper takes the largest x, y, z
    /// \return false, with \a lower and \a upper untouched, if the document tells none. So the base does.
    virtual bool envelope(const CoreModel& model, double (&lower)[3], double (&upper)[3]) const;
};

} // namespace tolvik
