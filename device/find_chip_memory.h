// findChipMemory: the one row with two shapes.
#pragma once

#include <Python.h>

#include "convert/row.h"

namespace ombra {

// Both shapes of the row, each a record like any other, under the one name "findChipMemory". Their
// results are of one type, so its slot is read from `by_address` alone.
struct FindChipMemoryRows {
    const CallRow &by_address;  // unit, mem, sca, sizeBytes
    const CallRow &by_base;     // unit, mem, baseAddr
};

// Picks the shape by the number of arguments and by what they could be, raising nothing, then runs
// it. Returns a holder of the memory found (counted_result.h), or null with an exception:
// NotImplementedError if no shape fits, else what the shape's own arguments raise.
PyObject *find_chip_memory(const FindChipMemoryRows &rows, PyObject *args);

}  // namespace ombra
