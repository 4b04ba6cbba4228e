// Conditions that hold unless the module or the SDK is broken. Unlike assert() they are checked in
// every build type: going on would corrupt memory that belongs to somebody else.
#pragma once

namespace ombra {

// Prints the condition and the function to standard error, then aborts. Both texts are printed as
// they are given.
[[noreturn, gnu::cold]] void assertion_failed(const char *condition, const char *function);

}  // namespace ombra
