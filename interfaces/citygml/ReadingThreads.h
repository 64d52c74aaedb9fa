#pragma once

#include "BindingExport.h"

namespace citygml {

/// Number of threads that read one document, the one of the caller included.
///
/// \return what was set; else what the environment variable `TOLVIK_THREADS` says, a number from 1 up; else
/// as many as the machine has processors
TOLVIK_BINDING_EXPORT unsigned readingThreads();

/// Sets that number for the documents that are read from now on, in any thread.
///
/// \param count with 1 the caller's thread reads by itself; 0 takes back what was set
TOLVIK_BINDING_EXPORT void setReadingThreads(unsigned count);

} // namespace citygml
