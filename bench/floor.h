// What the floor's functions share: readers written for speed, as a careful hand would.
//
// The usual case of each is inline; whatever refuses, and every object that is seldom seen, is one
// cold call out of line.
#pragma once

#include <Python.h>

#include <array>
#include <climits>
#include <cstdint>
#include <cstring>

#include "native/values.h"
#include "runtime/pointer_object.h"

// The type of pointer objects and the descriptors used, as bind() saw them.
struct FloorTypes {
    PyTypeObject *object;
    swig_type_info *ints;
    swig_type_info *qsets;
    swig_type_info *l2_addrs;
};
[[gnu::visibility("hidden")]] extern FloorTypes floor_types;

// Cold: sets the exception, returns false.
[[gnu::cold, gnu::noinline]] bool floor_raise(PyObject *exception, const char *text);

// Cold: the value of a `long`; false, with an exception, for what is no number or too large.
[[gnu::cold, gnu::noinline]] bool floor_from_long(PyObject *object, long *value, const char *text);

// Cold: pointer objects of another type, None and refusals.
[[gnu::cold, gnu::noinline]] bool floor_other_address(PyObject *object, void **address,
                                                      const char *text);

template <typename Number>
[[gnu::always_inline]] inline bool floor_number(PyObject *object, Number *value, const char *text) {
    long wide;
    if (PyInt_Check(object)) [[likely]]
        wide = PyInt_AS_LONG(object);
    else if (!floor_from_long(object, &wide, text))
        return false;
    if (wide != static_cast<long>(static_cast<Number>(wide))) [[unlikely]]
        return floor_raise(PyExc_OverflowError, text);
    *value = static_cast<Number>(wide);
    return true;
}

[[gnu::always_inline]] inline bool floor_address(PyObject *object, swig_type_info *type,
                                                 void **address, const char *text) {
    if (Py_TYPE(object) == floor_types.object &&
        reinterpret_cast<SwigPyObject *>(object)->type == type) [[likely]] {
        *address = reinterpret_cast<SwigPyObject *>(object)->ptr;
        return true;
    }
    return floor_other_address(object, address, text);
}

// The tuple apart, by the one means that the module has as well.
template <typename... Slots>
[[gnu::always_inline]] inline bool floor_unpack(PyObject *args, const char *name, Slots *...slots) {
    constexpr Py_ssize_t count = sizeof...(Slots);
    ((*slots = nullptr), ...);
    return PyArg_UnpackTuple(args, const_cast<char *>(name), count, count, slots...) != 0;
}

bool floor_read_mac(PyObject *object, unsigned char mac[6]);
bool floor_read_ports(PyObject *object, bcm_pbmp_t *ports);
PyObject *floor_mac_text(const unsigned char mac[6]);
PyObject *floor_ports_list(const bcm_pbmp_t *ports);

PyObject *floor_port_get(PyObject *, PyObject *args);
PyObject *floor_port_set(PyObject *, PyObject *args);
PyObject *floor_mac_get(PyObject *, PyObject *args);
PyObject *floor_mac_set(PyObject *, PyObject *args);
PyObject *floor_ports_get(PyObject *, PyObject *args);
PyObject *floor_ports_set(PyObject *, PyObject *args);
PyObject *floor_pause(PyObject *, PyObject *args);
PyObject *floor_vlan_ports(PyObject *, PyObject *args);
PyObject *floor_snapshot(PyObject *, PyObject *args);
