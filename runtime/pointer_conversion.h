// Pointer conversion: from a Python object to a native pointer of a wanted type, and from a native
// pointer to a pointer object or an instance of the type's proxy class.
//
// The readers raise nothing: a failure is a status of runtime/status.h, and the frame makes the
// message. The usual cases, a pointer object of the very type wanted and None, are inline here;
// proxies, chains, casts and implicit conversion are out of line.
#pragma once

#include <Python.h>

#include "runtime/client_data.h"
#include "runtime/pointer_object.h"
#include "runtime/status.h"
#include "runtime/type_table.h"

// Flags of SWIG_Python_NewPointerObj.
inline constexpr int FLAG_OWN = 1;      // the new object owns the native allocation
inline constexpr int FLAG_NOPROXY = 2;  // the bare pointer object, whatever class is registered

// Flags of SWIG_Python_ConvertPtrAndOwn.
inline constexpr int FLAG_DISOWN = 1;    // on success clear `own` of the object that matched
inline constexpr int FLAG_IMPLICIT = 2;  // also try the constructor of the type's proxy class

// The pointer object inside an object, borrowed, or null: the object itself, or what is found by
// its attribute `this`, through weak proxies and further proxies. An object with an instance
// dictionary is asked by that dictionary alone. No error stays set.
SwigPyObject *SWIG_Python_GetSwigThis(PyObject *object);

// The string "this", made on first use; borrowed. Null with an error if it cannot be made.
PyObject *SWIG_This();

// Drops the module's reference to that string; it is made anew if anybody asks again.
void SWIG_Python_ReleaseThis();

namespace ombra {

// All of SWIG_Python_ConvertPtrAndOwn. Out of line, so that the usual path has no stack frame.
int convert_pointer(PyObject *object, void **out, swig_type_info *wanted, int flags);

}  // namespace ombra

// Converts an object to a native pointer of the wanted type; a null type takes any pointer. `out`
// may be null for a mere test. None is a null pointer of every type.
//
// Returns STATUS_OK, or STATUS_GENERIC with `out` untouched. With FLAG_IMPLICIT the result can be
// STATUS_NEWOBJ: the pointer is then a new object of the class that the caller has to release.
// The pointer lives as long as the pointer object in `object`, which keeps the ownership unless
// FLAG_DISOWN takes it off.
inline int SWIG_Python_ConvertPtrAndOwn(PyObject *object, void **out, swig_type_info *wanted,
                                        int flags) {
    if (object != nullptr && Py_TYPE(object) == &SwigPyObject_type_object) [[likely]] {
        SwigPyObject *self = ombra::as_pointer_object(object);
        if (self->type == wanted) [[likely]] {
            if (out != nullptr) *out = self->ptr;
            if ((flags & FLAG_DISOWN) != 0) self->own = 0;
            return STATUS_OK;
        }
    } else if (object == Py_None && (flags & FLAG_IMPLICIT) == 0) {
        if (out != nullptr) *out = nullptr;
        return STATUS_OK;
    }
    return ombra::convert_pointer(object, out, wanted, flags);
}

// Converts an object to a native function of the wanted type: as above, and besides a built-in
// function of a module of the kind whose docstring carries one behind "swig_ptr: ". No other
// callable is a native function. Returns STATUS_OK, or STATUS_GENERIC with `out` untouched.
int SWIG_Python_ConvertFunctionPtr(PyObject *object, void **out, swig_type_info *wanted);

// A Python object for a native pointer, new reference: None for a null pointer; an instance of the
// proxy class registered on the type; the bare pointer object if there is none, or for
// FLAG_NOPROXY. `type` can be null. Null with an exception on failure: with FLAG_OWN a pointer
// object that was made has then run the type's destroy function.
PyObject *SWIG_Python_NewPointerObj(void *pointer, swig_type_info *type, int flags);

// An instance of the class, made without running __init__, with the pointer object in `this`; new
// reference, or null with the exception of the class. An instance that comes with a dictionary, or
// has none, is left without `this`. `pointer_object` stays the caller's reference.
PyObject *SWIG_Python_NewProxyInstance(const SwigPyClientData *data, PyObject *pointer_object);
