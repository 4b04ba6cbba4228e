// Conversion statuses: what a reader of an argument answers, and the exception that follows.
//
// A status is a signed 32-bit number. Zero or positive is success, negative is failure. A success
// can carry marker bits.
#pragma once

#include <Python.h>

inline constexpr int STATUS_OK = 0;

inline constexpr int STATUS_GENERIC = -1;  // a frame turns it into STATUS_TYPE before it raises
inline constexpr int STATUS_IO = -2;
inline constexpr int STATUS_RUNTIME = -3;
inline constexpr int STATUS_INDEX = -4;
inline constexpr int STATUS_TYPE = -5;
inline constexpr int STATUS_ZERODIV = -6;
inline constexpr int STATUS_OVERFLOW = -7;
inline constexpr int STATUS_SYNTAX = -8;
inline constexpr int STATUS_VALUE = -9;
inline constexpr int STATUS_SYSTEM = -10;
inline constexpr int STATUS_ATTRIBUTE = -11;
inline constexpr int STATUS_MEMORY = -12;

// Marker bits of a success.
inline constexpr int STATUS_NEWOBJ = 0x200;  // a new allocation that the caller must release
inline constexpr int STATUS_TMPOBJ = 0x400;  // the value lives in a temporary of the caller

// The exception class of a status, borrowed; RuntimeError for a status without one of its own.
// Sets no error.
PyObject *SWIG_Python_ErrorType(int status);
