// MAC addresses as text.
#pragma once

#include <Python.h>

#include "native/base.h"

// Reads a text of the form "AA:BB:CC:DD:EE:FF" with the meaning of
// sscanf("%2x:%2x:%2x:%2x:%2x:%2x"): one or two digits a group, white space before a group passes,
// what follows the sixth group is ignored. A `str` passes, and a `unicode` that encodes. On failure
// an exception is pending: TypeError "Expected a string", or ValueError with the expected form;
// the content of `out` then means nothing.
void pyStringToMacaddr(PyObject *object, uint8 out[6]);

namespace ombra {

// The same; false with the exception.
bool read_mac(PyObject *object, uint8 out[6]);

// The address in lower case as a new `str`, or null with an exception.
PyObject *mac_text(const uint8 mac[6]);

}  // namespace ombra

// The address in lower case, 17 characters, in one buffer of the module: the next call overwrites
// it. REQUIRES: the interpreter lock is held until the caller has copied the text.
const char *macaddrToString(const uint8 mac[6]);
