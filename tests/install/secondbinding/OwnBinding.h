#pragma once

#include <string>

/// Reads a street with the other binding, changes it, and says what it is like then.
__attribute__((visibility("default"))) std::string describeStreet(const std::string& xml);
