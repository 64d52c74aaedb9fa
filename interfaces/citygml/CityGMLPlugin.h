#pragma once

#include "framework/ModelInterface.h"

namespace tolvik {

/// The embedded platform's plug-in for models of CityGML documents: it tells where a document lies.
///
/// It serves models whose first row is the document's root, with the feature as internal pointer of its
/// index.
class TOLVIK_PLATFORM_EXPORT CityGMLPlugin : public ModelInterface
{
public:
    ~CityGMLPlugin() override;

    /// The envelope that the document's root states, in the units of its reference system. A height that it
    /// leaves out is 0.
    /// \return false for a model without rows, and for a document without an envelope.
    bool envelope(const CoreModel& model, double (&lower)[3], double (&upper)[3]) const override;
};

} // namespace tolvik
