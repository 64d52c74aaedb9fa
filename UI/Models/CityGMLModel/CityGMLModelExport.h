#pragma once

// What the library offers to a host. CITYGMLMODEL_BUILD is defined while the library itself is built.
#if defined(_WIN32)
#if defined(CITYGMLMODEL_BUILD)
#define CITYGMLMODEL_EXPORT __declspec(dllexport)
#else
#define CITYGMLMODEL_EXPORT __declspec(dllimport)
#endif
#else
#define CITYGMLMODEL_EXPORT __attribute__((visibility("default")))
#endif
