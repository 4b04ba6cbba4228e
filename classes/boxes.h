// Boxes and counted arrays: native storage that Python makes, reads and writes.
//
// A box is one element behind a pointer object of the box's own type. An array is a plain pointer
// to its first element, known by address and length (native_notes.h) until its delete_ row: an
// index outside raises IndexError. A pointer of the same type that is no live array is read and
// written as it stands, without a bound.
#pragma once

#include <Python.h>

#include <new>

#include "classes/accessor.h"
#include "convert/frame_body.h"
#include "runtime/native_notes.h"

namespace ombra {

// new_X of a box: one uninitialised element, owned by a bare pointer object.
template <typename Kind>
PyObject *new_box(const CallRow &row, PyObject *args) {
    return call_with<>(row, args, [&]() -> PyObject * {
        void *element = ::operator new(sizeof(typename Kind::Native), std::nothrow);
        if (element == nullptr) return PyErr_NoMemory();
        return own_bare(element, slot(row, kResultSlot));
    });
}

template <typename Kind>
PyObject *assign_box(const CallRow &row, PyObject *args) {
    return call_with<Pointer, Kind>(row, args,
                                    [&](void *self, typename Kind::Native value) -> PyObject * {
                                        if (self == nullptr) {
                                            refuse_null(row, 0);
                                            return nullptr;
                                        }
                                        std::memcpy(self, &value, sizeof value);
                                        Py_RETURN_NONE;
                                    });
}

template <typename Kind>
PyObject *box_value(const CallRow &row, PyObject *args) {
    return call_with<Pointer>(row, args, [&](void *self) -> PyObject * {
        if (self == nullptr) {
            refuse_null(row, 0);
            return nullptr;
        }
        typename Kind::Native value;
        std::memcpy(&value, self, sizeof value);
        return Kind::result(value, row);
    });
}

// X_cast and X_frompointer: the same address under another type, owned by nobody new.
inline PyObject *recast(const CallRow &row, PyObject *args) {
    return call_with<Pointer>(row, args, [&](void *pointer) {
        return SWIG_Python_NewPointerObj(pointer, slot(row, kResultSlot), 0);
    });
}

template <typename Kind>
PyObject *new_array(const CallRow &row, PyObject *args) {
    using Element = typename Kind::Native;
    return call_with<Signed32>(row, args, [&](int count) -> PyObject * {
        if (count < 0) {
            refuse_with(PyExc_ValueError, "the element count is negative");
            return nullptr;
        }
        const auto length = static_cast<std::size_t>(count);
        auto *array = new (std::nothrow) Element[length]();
        if (array == nullptr || !note_array(array, length * sizeof(Element))) {
            delete[] array;
            return PyErr_NoMemory();
        }
        PyObject *object = SWIG_Python_NewPointerObj(array, slot(row, kResultSlot), 0);
        if (object == nullptr) {
            forget_array(array);
            delete[] array;
        }
        return object;
    });
}

template <typename Kind>
PyObject *delete_array(const CallRow &row, PyObject *args) {
    return call_with<Pointer>(row, args, [&](void *array) -> PyObject * {
        if (array != nullptr && !forget_array(array)) {
            refuse_with(PyExc_ValueError, "the pointer is no live array");
            return nullptr;
        }
        delete[] static_cast<typename Kind::Native *>(array);
        Py_RETURN_NONE;
    });
}

// The element at `index`, or null with ValueError for a null array, IndexError for an index outside
// a live one.
inline void *element_address(const CallRow &row, void *array, int index, std::size_t size) {
    if (array == nullptr) {
        refuse_null(row, 0);
        return nullptr;
    }
    const std::size_t *bytes = array_size(array);
    if (bytes != nullptr && (index < 0 || (static_cast<std::size_t>(index) + 1) * size > *bytes)) {
        refuse_with(PyExc_IndexError, "the index is outside the array");
        return nullptr;
    }
    return static_cast<unsigned char *>(array) + index * static_cast<std::ptrdiff_t>(size);
}

template <typename Kind>
PyObject *get_item(const CallRow &row, PyObject *args) {
    return call_with<Pointer, Signed32>(row, args, [&](void *array, int index) -> PyObject * {
        typename Kind::Native value;
        const void *element = element_address(row, array, index, sizeof value);
        if (element == nullptr) return nullptr;
        std::memcpy(&value, element, sizeof value);
        return Kind::result(value, row);
    });
}

template <typename Kind>
PyObject *set_item(const CallRow &row, PyObject *args) {
    return call_with<Pointer, Signed32, Kind>(
        row, args, [&](void *array, int index, typename Kind::Native value) -> PyObject * {
            void *element = element_address(row, array, index, sizeof value);
            if (element == nullptr) return nullptr;
            std::memcpy(element, &value, sizeof value);
            Py_RETURN_NONE;
        });
}

}  // namespace ombra
