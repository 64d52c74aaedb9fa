#pragma once

// What the schema binding offers. TOLVIK_BINDING_BUILD is defined while the binding itself is built.
#if defined(_WIN32)
#if defined(TOLVIK_BINDING_BUILD)
#define TOLVIK_BINDING_EXPORT __declspec(dllexport)
#else
#define TOLVIK_BINDING_EXPORT __declspec(dllimport)
#endif
#else
#define TOLVIK_BINDING_EXPORT __attribute__((visibility("default")))
#endif
