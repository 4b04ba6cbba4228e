// Bytes as lower-case hexadecimal digits, two a byte, in memory order, high digit first. So do
// packed objects show their block, and callbacks of a module travel in docstrings.
#pragma once

#include <cstddef>

// Writes 2 * size digits, without a terminator. Returns the place behind the last.
char *SWIG_PackData(char *text, const void *bytes, std::size_t size);

// Reads 2 * size digits into `bytes`. Returns the place behind the last, or null at the first
// character that is no lower-case hexadecimal digit; `bytes` may then be partly written.
const char *SWIG_UnpackData(const char *text, void *bytes, std::size_t size);
