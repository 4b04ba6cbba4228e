// The floor: a few rows written by hand, with the same checks, texts and results as the module's.
//
// Each function does what its row does and no more, in the straight line that one writes for one
// function. Pointer objects are the module's own: bind() is shown one of each type used here.

#include <Python.h>

#include <cstring>

#include "bench/floor.h"
#include "helper/device.h"
#include "sdk/bcm/field.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/petra.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/vlan.h"
#include "sdk/soc/init.h"

FloorTypes floor_types;

namespace {

PyObject *floor_zero(PyObject *, PyObject *args) {
    if (!PyArg_UnpackTuple(args, const_cast<char *>("getNumDevices"), 0, 0)) return nullptr;
    return PyInt_FromLong(getNumDevices());
}

PyObject *floor_one(PyObject *, PyObject *args) {
    PyObject *a = nullptr;
    int unit = 0;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("soc_init"), 1, 1, &a) ||
        !floor_int(a, &unit, "in method 'soc_init', argument 1 of type 'int'")) {
        return nullptr;
    }
    return PyInt_FromLong(soc_init(unit));
}

PyObject *floor_three(PyObject *, PyObject *args) {
    PyObject *a = nullptr;
    PyObject *b = nullptr;
    PyObject *c = nullptr;
    int unit = 0;
    int port = 0;
    int speed = 0;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bcm_port_speed_set"), 3, 3, &a, &b, &c) ||
        !floor_int(a, &unit, "in method 'bcm_port_speed_set', argument 1 of type 'int'") ||
        !floor_int(b, &port, "in method 'bcm_port_speed_set', argument 2 of type 'bcm_port_t'") ||
        !floor_int(c, &speed, "in method 'bcm_port_speed_set', argument 3 of type 'int'")) {
        return nullptr;
    }
    return PyInt_FromLong(bcm_port_speed_set(unit, port, speed));
}

PyObject *floor_five(PyObject *, PyObject *args) {
    PyObject *o[5] = {};
    int unit = 0;
    unsigned entry = 0;
    int action = 0;
    unsigned param0 = 0;
    unsigned param1 = 0;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bcm_field_action_add"), 5, 5, &o[0], &o[1],
                           &o[2], &o[3], &o[4]) ||
        !floor_int(o[0], &unit, "in method 'bcm_field_action_add', argument 1 of type 'int'") ||
        !floor_unsigned(o[1], &entry,
                        "in method 'bcm_field_action_add', argument 2 of type "
                        "'bcm_field_entry_t'") ||
        !floor_int(o[2], &action,
                   "in method 'bcm_field_action_add', argument 3 of type 'bcm_field_action_t'") ||
        !floor_unsigned(o[3], &param0,
                        "in method 'bcm_field_action_add', argument 4 of type 'uint32'") ||
        !floor_unsigned(o[4], &param1,
                        "in method 'bcm_field_action_add', argument 5 of type 'uint32'")) {
        return nullptr;
    }
    return PyInt_FromLong(bcm_field_action_add(unit, static_cast<bcm_field_entry_t>(entry),
                                               static_cast<bcm_field_action_t>(action), param0,
                                               param1));
}

PyObject *floor_nine(PyObject *, PyObject *args) {
    PyObject *o[9] = {};
    int n[7] = {};
    unsigned char tags[2] = {};
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bcm_petra_tpid_profile_info_set"), 9, 9, &o[0],
                           &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8]) ||
        !floor_int(o[0], &n[0],
                   "in method 'bcm_petra_tpid_profile_info_set', argument 1 of type 'int'") ||
        !floor_int(o[1], &n[1],
                   "in method 'bcm_petra_tpid_profile_info_set', argument 2 of type 'int'") ||
        !floor_int(o[2], &n[2],
                   "in method 'bcm_petra_tpid_profile_info_set', argument 3 of type 'int'") ||
        !floor_int(o[3], &n[3],
                   "in method 'bcm_petra_tpid_profile_info_set', argument 4 of type "
                   "'_bcm_petra_tpid_profile_t'") ||
        !floor_int(o[4], &n[4],
                   "in method 'bcm_petra_tpid_profile_info_set', argument 5 of type 'int'") ||
        !floor_int(o[5], &n[5],
                   "in method 'bcm_petra_tpid_profile_info_set', argument 6 of type "
                   "'_bcm_petra_dtag_mode_t'") ||
        !floor_int(o[6], &n[6],
                   "in method 'bcm_petra_tpid_profile_info_set', argument 7 of type "
                   "'_bcm_petra_ac_key_map_type_t'") ||
        !floor_byte(o[7], &tags[0],
                    "in method 'bcm_petra_tpid_profile_info_set', argument 8 of type 'uint8'") ||
        !floor_byte(o[8], &tags[1],
                    "in method 'bcm_petra_tpid_profile_info_set', argument 9 of type 'uint8'")) {
        return nullptr;
    }
    return PyInt_FromLong(bcm_petra_tpid_profile_info_set(
        n[0], n[1], n[2], static_cast<_bcm_petra_tpid_profile_t>(n[3]), n[4],
        static_cast<_bcm_petra_dtag_mode_t>(n[5]), static_cast<_bcm_petra_ac_key_map_type_t>(n[6]),
        tags[0], tags[1]));
}

PyObject *floor_pointer(PyObject *, PyObject *args) {
    PyObject *a = nullptr;
    PyObject *b = nullptr;
    PyObject *c = nullptr;
    int unit = 0;
    int port = 0;
    void *speed = nullptr;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bcm_port_speed_get"), 3, 3, &a, &b, &c) ||
        !floor_int(a, &unit, "in method 'bcm_port_speed_get', argument 1 of type 'int'") ||
        !floor_int(b, &port, "in method 'bcm_port_speed_get', argument 2 of type 'bcm_port_t'") ||
        !floor_address(c, floor_types.ints, &speed,
                       "in method 'bcm_port_speed_get', argument 3 of type 'int *'")) {
        return nullptr;
    }
    return PyInt_FromLong(bcm_port_speed_get(unit, port, static_cast<int *>(speed)));
}

PyObject *floor_text(PyObject *, PyObject *args) {
    PyObject *a = nullptr;
    PyObject *b = nullptr;
    int unit = 0;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bcm_field_show"), 2, 2, &a, &b) ||
        !floor_int(a, &unit, "in method 'bcm_field_show', argument 1 of type 'int'")) {
        return nullptr;
    }
    if (!PyString_Check(b)) {
        PyErr_SetString(PyExc_TypeError,
                        "in method 'bcm_field_show', argument 2 of type 'char const *'");
        return nullptr;
    }
    return PyInt_FromLong(bcm_field_show(unit, PyString_AS_STRING(b)));
}

PyObject *floor_value(PyObject *, PyObject *args) {
    PyObject *o[4] = {};
    int unit = 0;
    void *qset = nullptr;
    int pri = 0;
    unsigned group = 0;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bcm_field_group_create_id"), 4, 4, &o[0],
                           &o[1], &o[2], &o[3]) ||
        !floor_int(o[0], &unit,
                   "in method 'bcm_field_group_create_id', argument 1 of type 'int'") ||
        !floor_address(o[1], floor_types.qsets, &qset,
                       "in method 'bcm_field_group_create_id', argument 2 of type "
                       "'bcm_field_qset_t'")) {
        return nullptr;
    }
    if (qset == nullptr) {
        PyErr_SetString(PyExc_ValueError,
                        "invalid null reference in method 'bcm_field_group_create_id', argument 2 "
                        "of type 'bcm_field_qset_t'");
        return nullptr;
    }
    bcm_field_qset_t value;
    std::memcpy(&value, qset, sizeof value);
    if (!floor_int(o[2], &pri, "in method 'bcm_field_group_create_id', argument 3 of type 'int'") ||
        !floor_unsigned(o[3], &group,
                        "in method 'bcm_field_group_create_id', argument 4 of type "
                        "'bcm_field_group_t'")) {
        return nullptr;
    }
    return PyInt_FromLong(
        bcm_field_group_create_id(unit, value, pri, static_cast<bcm_field_group_t>(group)));
}

PyObject *floor_mac(PyObject *, PyObject *args) {
    PyObject *o[3] = {};
    int unit = 0;
    unsigned vid = 0;
    unsigned char mac[6];
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bcm_l2_addr_delete"), 3, 3, &o[0], &o[1],
                           &o[2]) ||
        !floor_int(o[0], &unit, "in method 'bcm_l2_addr_delete', argument 1 of type 'int'") ||
        !floor_read_mac(o[1], mac) ||
        !floor_unsigned(o[2], &vid,
                        "in method 'bcm_l2_addr_delete', argument 3 of type 'bcm_vlan_t'")) {
        return nullptr;
    }
    return PyInt_FromLong(bcm_l2_addr_delete(unit, mac, static_cast<bcm_vlan_t>(vid)));
}

PyObject *floor_ports(PyObject *, PyObject *args) {
    PyObject *o[4] = {};
    int unit = 0;
    unsigned vid = 0;
    bcm_pbmp_t ports;
    bcm_pbmp_t untagged;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bcm_vlan_port_add"), 4, 4, &o[0], &o[1], &o[2],
                           &o[3]) ||
        !floor_int(o[0], &unit, "in method 'bcm_vlan_port_add', argument 1 of type 'int'") ||
        !floor_unsigned(o[1], &vid,
                        "in method 'bcm_vlan_port_add', argument 2 of type 'bcm_vlan_t'") ||
        !floor_read_ports(o[2], &ports) || !floor_read_ports(o[3], &untagged)) {
        return nullptr;
    }
    return PyInt_FromLong(bcm_vlan_port_add(unit, static_cast<bcm_vlan_t>(vid), ports, untagged));
}

// Learns the types from an `int *`, a bcm_field_qset_t and a bcm_l2_addr_t of the module.
PyObject *floor_bind(PyObject *, PyObject *args) {
    PyObject *ints = nullptr;
    PyObject *qset = nullptr;
    PyObject *entry = nullptr;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("bind"), 3, 3, &ints, &qset, &entry))
        return nullptr;
    floor_types.object = Py_TYPE(ints);
    floor_types.ints = reinterpret_cast<SwigPyObject *>(ints)->type;
    floor_types.qsets = reinterpret_cast<SwigPyObject *>(qset)->type;
    floor_types.l2_addrs = reinterpret_cast<SwigPyObject *>(entry)->type;
    Py_RETURN_NONE;
}

PyMethodDef methods[] = {{"bind", floor_bind, METH_VARARGS, nullptr},
                         {"getNumDevices", floor_zero, METH_VARARGS, nullptr},
                         {"soc_init", floor_one, METH_VARARGS, nullptr},
                         {"bcm_port_speed_set", floor_three, METH_VARARGS, nullptr},
                         {"bcm_field_action_add", floor_five, METH_VARARGS, nullptr},
                         {"bcm_petra_tpid_profile_info_set", floor_nine, METH_VARARGS, nullptr},
                         {"bcm_port_speed_get", floor_pointer, METH_VARARGS, nullptr},
                         {"bcm_field_show", floor_text, METH_VARARGS, nullptr},
                         {"bcm_field_group_create_id", floor_value, METH_VARARGS, nullptr},
                         {"bcm_l2_addr_delete", floor_mac, METH_VARARGS, nullptr},
                         {"bcm_vlan_port_add", floor_ports, METH_VARARGS, nullptr},
                         {"bcm_l2_addr_t_port_get", floor_port_get, METH_VARARGS, nullptr},
                         {"bcm_l2_addr_t_port_set", floor_port_set, METH_VARARGS, nullptr},
                         {"bcm_l2_addr_t_mac_get", floor_mac_get, METH_VARARGS, nullptr},
                         {"bcm_l2_addr_t_mac_set", floor_mac_set, METH_VARARGS, nullptr},
                         {"bcm_l2_addr_t_block_bitmap_get", floor_ports_get, METH_VARARGS, nullptr},
                         {"bcm_l2_addr_t_block_bitmap_set", floor_ports_set, METH_VARARGS, nullptr},
                         {"getHwMacTable", floor_snapshot, METH_VARARGS, nullptr},
                         {nullptr, nullptr, 0, nullptr}};

}  // namespace

PyMODINIT_FUNC __attribute__((visibility("default"))) init_ombra_floor();

PyMODINIT_FUNC init_ombra_floor() {
    Py_InitModule4("_ombra_floor", methods, nullptr, nullptr, PYTHON_API_VERSION);
}
