#pragma once

// What a host's platform provides. The embedded platform defines TOLVIK_PLATFORM_BUILD while it is built.
#if defined(_WIN32)
#if defined(TOLVIK_PLATFORM_BUILD)
#define TOLVIK_PLATFORM_EXPORT __declspec(dllexport)
#else
#define TOLVIK_PLATFORM_EXPORT __declspec(dllimport)
#endif
#else
#define TOLVIK_PLATFORM_EXPORT __attribute__((visibility("default")))
#endif
