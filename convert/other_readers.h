// Readers of pointers and texts for the frame: the usual case in line, the others in one call each.
//
// What they find comes back in registers. An exception is set where it says that nothing good came.
#pragma once

#include <Python.h>

#include "convert/row.h"
#include "runtime/pointer_conversion.h"
#include "runtime/type_table.h"

namespace ombra {

inline swig_type_info *slot(const CallRow &row, unsigned index) {
    return swig_type_slots[slot_number(row, index)];
}

struct PointerRead {
    void *pointer;
    int status;  // negative: exception set
};

// Proxies, None, other types that pass, and refusals.
[[gnu::noinline]] PointerRead read_other_pointer(PyObject *object, const CallRow &row,
                                                 unsigned index);

// A pointer of the argument's type slot. None is the null pointer.
[[gnu::always_inline]] inline PointerRead read_pointer(PyObject *object, const CallRow &row,
                                                       unsigned index) {
    if (Py_TYPE(object) == &SwigPyObject_type_object &&
        as_pointer_object(object)->type == slot(row, index)) [[likely]] {
        return {as_pointer_object(object)->ptr, STATUS_OK};
    }
    return read_other_pointer(object, row, index);
}

struct TextRead {
    char *text;
    bool good;  // false: exception set
};

// The text of what is no `str`, which is not copied.
[[gnu::noinline]] TextRead read_other_text(PyObject *object, const CallRow &row, unsigned index);

}  // namespace ombra
