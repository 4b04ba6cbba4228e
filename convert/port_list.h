// Port lists: a set of ports as a Python list.
//
// Natively 18 words of 32 bits; port p is bit p % 32 of word p / 32.
#pragma once

#include <Python.h>

#include "native/values.h"

// Fills `out` from a list of `int` (bool and other subclasses pass, `long` does not), in any order,
// duplicates allowed. On failure an exception is pending and `out` is unwritten: TypeError
// "Expected a list" or "Port list must contain integers", ValueError "Port number out of range"
// for a port that has no bit (below 0, 576 and above).
void pyListToPbmp(PyObject *object, bcm_pbmp_t *out);

namespace ombra {

// The same without the copy: sets the ports of the list in `pbmp`, which on failure (false, an
// exception is pending) holds some of them.
bool add_ports(PyObject *object, bcm_pbmp_t &pbmp);

}  // namespace ombra

// A new ascending list of `long` port numbers, or null with an exception. Ports 0 to 570 are
// reported; the last five bits of the array are not ports.
PyObject *pbmpToPyList(const bcm_pbmp_t &pbmp);
