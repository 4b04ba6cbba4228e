// What the floor's functions share: readers written for speed, as a careful hand would.
#pragma once

#include <Python.h>

#include <climits>

#include "native/values.h"
#include "runtime/pointer_object.h"

// The type of pointer objects and the descriptors used, as bind() saw them.
struct FloorTypes {
    PyTypeObject *object;
    swig_type_info *ints;
    swig_type_info *qsets;
    swig_type_info *l2_addrs;
};
extern FloorTypes floor_types;

inline bool floor_raise(PyObject *exception, const char *text) {
    PyErr_SetString(exception, text);
    return false;
}

inline bool floor_long(PyObject *object, long *value, const char *text) {
    if (PyInt_Check(object)) {
        *value = PyInt_AS_LONG(object);
        return true;
    }
    if (!PyLong_Check(object)) return floor_raise(PyExc_TypeError, text);
    *value = PyLong_AsLong(object);
    if (*value == -1 && PyErr_Occurred() != nullptr) {
        PyErr_Clear();
        return floor_raise(PyExc_OverflowError, text);
    }
    return true;
}

inline bool floor_int(PyObject *object, int *value, const char *text) {
    long wide = 0;
    if (!floor_long(object, &wide, text)) return false;
    if (wide < INT_MIN || wide > INT_MAX) return floor_raise(PyExc_OverflowError, text);
    *value = static_cast<int>(wide);
    return true;
}

inline bool floor_unsigned(PyObject *object, unsigned *value, const char *text) {
    long wide = 0;
    if (!floor_long(object, &wide, text)) return false;
    if (wide < 0 || wide > UINT_MAX) return floor_raise(PyExc_OverflowError, text);
    *value = static_cast<unsigned>(wide);
    return true;
}

inline bool floor_byte(PyObject *object, unsigned char *value, const char *text) {
    long wide = 0;
    if (!floor_long(object, &wide, text)) return false;
    if (wide < 0 || wide > UCHAR_MAX) return floor_raise(PyExc_OverflowError, text);
    *value = static_cast<unsigned char>(wide);
    return true;
}

inline bool floor_address(PyObject *object, swig_type_info *type, void **address,
                          const char *text) {
    if (Py_TYPE(object) == floor_types.object &&
        reinterpret_cast<SwigPyObject *>(object)->type == type) {
        *address = reinterpret_cast<SwigPyObject *>(object)->ptr;
        return true;
    }
    if (object == Py_None) {
        *address = nullptr;
        return true;
    }
    return floor_raise(PyExc_TypeError, text);
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
PyObject *floor_snapshot(PyObject *, PyObject *args);
