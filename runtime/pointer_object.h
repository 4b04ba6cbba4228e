// Pointer objects: the Python object that carries one native pointer, its type and a mark that
// says whether it owns the native allocation.
//
//     [ interpreter's header | ptr | type | own | next ]
//
// The layout is shared with the other modules of the kind in the process, whose objects have a
// type object of their own and pass here by the name of that type.
//
// Ownership: whichever object has `own` set owns the native allocation. Its death is the one point
// at which that is acted upon: the type's destroy function runs, through the proxy class.
#pragma once

#include <Python.h>

#include <cstddef>
#include <cstdint>

#include "runtime/foreign_type.h"
#include "runtime/type_table.h"

struct SwigPyObject {
    PyObject head;
    void *ptr;             // never null in an object of SWIG_Python_NewPointerObj
    swig_type_info *type;  // can be null
    std::int32_t own;      // 1: owns the native allocation
    PyObject *next;        // further pointer object of a chain, one reference held, or null
};

// The storage of this module's type object. It is ready once SwigPyObject_type() has run, and no
// object of the type exists before. Compare with its address: that costs no load.
[[gnu::visibility("hidden")]] extern PyTypeObject SwigPyObject_type_object;

// The type object, readied on first use; null with an error if that failed.
PyTypeObject *SwigPyObject_type();

// Whether an object is a pointer object of this or another module of the kind.
inline bool SwigPyObject_Test(PyObject *object) {
    const PyTypeObject *const type = Py_TYPE(object);
    return type == &SwigPyObject_type_object ||
           ombra::is_foreign_type(type, "SwigPyObject", sizeof(SwigPyObject));
}

// A new object without a chain, `own` being 0 or 1. Null with MemoryError on failure, and the
// native allocation is then still the caller's.
PyObject *SwigPyObject_New(void *ptr, swig_type_info *type, int own);

// -1, 0 or 1 by the unsigned values of `ptr`. REQUIRES: two pointer objects.
int SwigPyObject_compare(PyObject *left, PyObject *right);

// Equality by `ptr` alone. NotImplemented for the order operators, which then fall to
// SwigPyObject_compare, and for a second operand that is no pointer object.
PyObject *SwigPyObject_richcompare(PyObject *left, PyObject *right, int operation);

// The methods and slots seen from Python, each with a new reference as result. `append` lets go of
// a link that was there before.
PyObject *SwigPyObject_long(PyObject *object);
PyObject *SwigPyObject_oct(PyObject *object);
PyObject *SwigPyObject_hex(PyObject *object);
PyObject *SwigPyObject_repr(PyObject *object);
PyObject *SwigPyObject_disown(PyObject *object);
PyObject *SwigPyObject_acquire(PyObject *object);
PyObject *SwigPyObject_own(PyObject *object, PyObject *args);
PyObject *SwigPyObject_append(PyObject *object, PyObject *other);
PyObject *SwigPyObject_next(PyObject *object);

namespace ombra {

// REQUIRES: a pointer object, or null.
inline SwigPyObject *as_pointer_object(PyObject *object) {
    return reinterpret_cast<SwigPyObject *>(object);
}

// Finds out that a walk through linked objects runs in a ring, as Python code can make one with
// `o.append(o)` or `a.this = a`. Costs one comparison a step and no memory: it remembers one
// object, and at every power of two of steps a later one.
class RingGuard {
  public:
    // Whether the walk was at `link` before. A ring is found out within a few rounds.
    bool closes(const void *link) {
        if (link == mark_) return true;
        if (++steps_ == limit_) {
            mark_ = link;
            limit_ *= 2;
        }
        return false;
    }

  private:
    const void *mark_ = nullptr;
    std::size_t steps_ = 0;
    std::size_t limit_ = 1;
};

}  // namespace ombra
