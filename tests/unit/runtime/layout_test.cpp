// Compiling this file is the test: it only asserts.
//
// The records below lie in memory that all modules of the kind in a process read, whoever compiled
// them. When an assertion fails, a record was changed: put it back. There is no other remedy, for
// the other modules cannot be changed. Offsets of objects count from the interpreter's header,
// which is larger in a debug build.
#include <cstddef>

#include "runtime/client_data.h"
#include "runtime/packed_object.h"
#include "runtime/pointer_object.h"
#include "runtime/type_table.h"

static_assert(sizeof(swig_type_info) == 48);
static_assert(offsetof(swig_type_info, name) == 0);
static_assert(offsetof(swig_type_info, pretty_names) == 8);
static_assert(offsetof(swig_type_info, reserved) == 16);
static_assert(offsetof(swig_type_info, casts) == 24);
static_assert(offsetof(swig_type_info, client_data) == 32);
static_assert(offsetof(swig_type_info, owns_client_data) == 40);
static_assert(sizeof(swig_type_info::owns_client_data) == 4);

static_assert(sizeof(swig_cast_link) == 32);
static_assert(offsetof(swig_cast_link, type) == 0);
static_assert(offsetof(swig_cast_link, converter) == 8);
static_assert(offsetof(swig_cast_link, next) == 16);
static_assert(offsetof(swig_cast_link, prev) == 24);

static_assert(sizeof(swig_module_table) == 48);
static_assert(offsetof(swig_module_table, types) == 0);
static_assert(offsetof(swig_module_table, size) == 8);
static_assert(sizeof(swig_module_table::size) == 8);
static_assert(offsetof(swig_module_table, next) == 16);
static_assert(offsetof(swig_module_table, type_seeds) == 24);
static_assert(offsetof(swig_module_table, cast_seeds) == 32);
static_assert(offsetof(swig_module_table, client_data) == 40);

#ifdef Py_TRACE_REFS
static_assert(sizeof(PyObject) == 32);
#else
static_assert(sizeof(PyObject) == 16);
#endif

static_assert(sizeof(SwigPyObject) == sizeof(PyObject) + 32);
static_assert(offsetof(SwigPyObject, ptr) == sizeof(PyObject));
static_assert(offsetof(SwigPyObject, type) == sizeof(PyObject) + 8);
static_assert(offsetof(SwigPyObject, own) == sizeof(PyObject) + 16);
static_assert(sizeof(SwigPyObject::own) == 4);
static_assert(offsetof(SwigPyObject, next) == sizeof(PyObject) + 24);

static_assert(sizeof(SwigPyPacked) == sizeof(PyObject) + 24);
static_assert(offsetof(SwigPyPacked, pack) == sizeof(PyObject));
static_assert(offsetof(SwigPyPacked, type) == sizeof(PyObject) + 8);
static_assert(offsetof(SwigPyPacked, size) == sizeof(PyObject) + 16);

static_assert(sizeof(SwigPyClientData) == 48);
static_assert(offsetof(SwigPyClientData, proxy_class) == 0);
static_assert(offsetof(SwigPyClientData, raw_new) == 8);
static_assert(offsetof(SwigPyClientData, raw_new_args) == 16);
static_assert(offsetof(SwigPyClientData, destroy) == 24);
static_assert(offsetof(SwigPyClientData, destroy_takes_tuple) == 32);
static_assert(offsetof(SwigPyClientData, converting) == 36);
static_assert(offsetof(SwigPyClientData, direct_type) == 40);
