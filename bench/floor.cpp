// The floor: a few rows written by hand, with the same checks, texts and results as the module's.
//
// Each function does what its row does and no more, in the straight line that one writes for one
// function. Pointer objects are the module's own: bind() is shown one of each type used here.

#include "bench/floor.h"

#include "helper/device.h"
#include "sdk/bcm/field.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/petra.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/vlan.h"
#include "sdk/soc/init.h"

FloorTypes floor_types;

bool floor_raise(PyObject *exception, const char *text) {
    PyErr_SetString(exception, text);
    return false;
}

bool floor_from_long(PyObject *object, long *value, const char *text) {
    if (!PyLong_Check(object)) return floor_raise(PyExc_TypeError, text);
    *value = PyLong_AsLong(object);
    if (*value != -1 || PyErr_Occurred() == nullptr) return true;
    PyErr_Clear();
    return floor_raise(PyExc_OverflowError, text);
}

bool floor_other_address(PyObject *object, void **address, const char *text) {
    *address = nullptr;
    return object == Py_None || floor_raise(PyExc_TypeError, text);
}

// Where the measuring of instructions cuts: the profiler writes its counts at each call.
extern "C" [[gnu::noinline, gnu::used]] void ombra_bench_mark() { __asm__ volatile(""); }

namespace {

PyObject *floor_zero(PyObject *, PyObject *args) {
    if (!floor_unpack(args, "getNumDevices")) return nullptr;
    return PyInt_FromLong(getNumDevices());
}

PyObject *floor_one(PyObject *, PyObject *args) {
    PyObject *a;
    int unit;
    if (!floor_unpack(args, "soc_init", &a) ||
        !floor_number(a, &unit, "in method 'soc_init', argument 1 of type 'int'"))
        return nullptr;
    return PyInt_FromLong(soc_init(unit));
}

PyObject *floor_three(PyObject *, PyObject *args) {
    PyObject *o[3];
    int unit;
    int port;
    int speed;
    if (!floor_unpack(args, "bcm_port_speed_set", &o[0], &o[1], &o[2]) ||
        !floor_number(o[0], &unit, "in method 'bcm_port_speed_set', argument 1 of type 'int'") ||
        !floor_number(o[1], &port,
                      "in method 'bcm_port_speed_set', argument 2 of type 'bcm_port_t'") ||
        !floor_number(o[2], &speed, "in method 'bcm_port_speed_set', argument 3 of type 'int'"))
        return nullptr;
    return PyInt_FromLong(bcm_port_speed_set(unit, port, speed));
}

PyObject *floor_five(PyObject *, PyObject *args) {
    PyObject *o[5];
    int unit;
    unsigned entry;
    int action;
    unsigned param0;
    unsigned param1;
    if (!floor_unpack(args, "bcm_field_action_add", &o[0], &o[1], &o[2], &o[3], &o[4]) ||
        !floor_number(o[0], &unit, "in method 'bcm_field_action_add', argument 1 of type 'int'") ||
        !floor_number(o[1], &entry,
                      "in method 'bcm_field_action_add', argument 2 of type 'bcm_field_entry_t'") ||
        !floor_number(
            o[2], &action,
            "in method 'bcm_field_action_add', argument 3 of type 'bcm_field_action_t'") ||
        !floor_number(o[3], &param0,
                      "in method 'bcm_field_action_add', argument 4 of type 'uint32'") ||
        !floor_number(o[4], &param1,
                      "in method 'bcm_field_action_add', argument 5 of type 'uint32'"))
        return nullptr;
    return PyInt_FromLong(bcm_field_action_add(unit, static_cast<bcm_field_entry_t>(entry),
                                               static_cast<bcm_field_action_t>(action), param0,
                                               param1));
}

#define TPID_TEXT(number, type) \
    "in method 'bcm_petra_tpid_profile_info_set', argument " #number " of type '" type "'"

PyObject *floor_nine(PyObject *, PyObject *args) {
    PyObject *o[9];
    int n[7];
    unsigned char tags[2];
    if (!floor_unpack(args, "bcm_petra_tpid_profile_info_set", &o[0], &o[1], &o[2], &o[3], &o[4],
                      &o[5], &o[6], &o[7], &o[8]) ||
        !floor_number(o[0], &n[0], TPID_TEXT(1, "int")) ||
        !floor_number(o[1], &n[1], TPID_TEXT(2, "int")) ||
        !floor_number(o[2], &n[2], TPID_TEXT(3, "int")) ||
        !floor_number(o[3], &n[3], TPID_TEXT(4, "_bcm_petra_tpid_profile_t")) ||
        !floor_number(o[4], &n[4], TPID_TEXT(5, "int")) ||
        !floor_number(o[5], &n[5], TPID_TEXT(6, "_bcm_petra_dtag_mode_t")) ||
        !floor_number(o[6], &n[6], TPID_TEXT(7, "_bcm_petra_ac_key_map_type_t")) ||
        !floor_number(o[7], &tags[0], TPID_TEXT(8, "uint8")) ||
        !floor_number(o[8], &tags[1], TPID_TEXT(9, "uint8")))
        return nullptr;
    return PyInt_FromLong(bcm_petra_tpid_profile_info_set(
        n[0], n[1], n[2], static_cast<_bcm_petra_tpid_profile_t>(n[3]), n[4],
        static_cast<_bcm_petra_dtag_mode_t>(n[5]), static_cast<_bcm_petra_ac_key_map_type_t>(n[6]),
        tags[0], tags[1]));
}

PyObject *floor_pointer(PyObject *, PyObject *args) {
    PyObject *o[3];
    int unit;
    int port;
    void *speed;
    if (!floor_unpack(args, "bcm_port_speed_get", &o[0], &o[1], &o[2]) ||
        !floor_number(o[0], &unit, "in method 'bcm_port_speed_get', argument 1 of type 'int'") ||
        !floor_number(o[1], &port,
                      "in method 'bcm_port_speed_get', argument 2 of type 'bcm_port_t'") ||
        !floor_address(o[2], floor_types.ints, &speed,
                       "in method 'bcm_port_speed_get', argument 3 of type 'int *'"))
        return nullptr;
    return PyInt_FromLong(bcm_port_speed_get(unit, port, static_cast<int *>(speed)));
}

PyObject *floor_text(PyObject *, PyObject *args) {
    PyObject *a;
    PyObject *b;
    int unit;
    if (!floor_unpack(args, "bcm_field_show", &a, &b) ||
        !floor_number(a, &unit, "in method 'bcm_field_show', argument 1 of type 'int'"))
        return nullptr;
    if (!PyString_Check(b)) [[unlikely]] {
        floor_raise(PyExc_TypeError,
                    "in method 'bcm_field_show', argument 2 of type 'char const *'");
        return nullptr;
    }
    return PyInt_FromLong(bcm_field_show(unit, PyString_AS_STRING(b)));
}

#define GROUP_TEXT(number, type) \
    "in method 'bcm_field_group_create_id', argument " #number " of type '" type "'"

PyObject *floor_value(PyObject *, PyObject *args) {
    PyObject *o[4];
    int unit;
    void *qset;
    int pri;
    unsigned group;
    if (!floor_unpack(args, "bcm_field_group_create_id", &o[0], &o[1], &o[2], &o[3]) ||
        !floor_number(o[0], &unit, GROUP_TEXT(1, "int")) ||
        !floor_address(o[1], floor_types.qsets, &qset, GROUP_TEXT(2, "bcm_field_qset_t")))
        return nullptr;
    if (qset == nullptr) [[unlikely]] {
        floor_raise(PyExc_ValueError, "invalid null reference " GROUP_TEXT(2, "bcm_field_qset_t"));
        return nullptr;
    }
    bcm_field_qset_t value;
    std::memcpy(&value, qset, sizeof value);
    if (!floor_number(o[2], &pri, GROUP_TEXT(3, "int")) ||
        !floor_number(o[3], &group, GROUP_TEXT(4, "bcm_field_group_t")))
        return nullptr;
    return PyInt_FromLong(
        bcm_field_group_create_id(unit, value, pri, static_cast<bcm_field_group_t>(group)));
}

PyObject *floor_mac(PyObject *, PyObject *args) {
    PyObject *o[3];
    int unit;
    unsigned short vid;
    unsigned char mac[6];
    if (!floor_unpack(args, "bcm_l2_addr_delete", &o[0], &o[1], &o[2]) ||
        !floor_number(o[0], &unit, "in method 'bcm_l2_addr_delete', argument 1 of type 'int'") ||
        !floor_read_mac(o[1], mac) ||
        !floor_number(o[2], &vid,
                      "in method 'bcm_l2_addr_delete', argument 3 of type 'bcm_vlan_t'"))
        return nullptr;
    return PyInt_FromLong(bcm_l2_addr_delete(unit, mac, vid));
}

PyObject *floor_ports(PyObject *, PyObject *args) {
    PyObject *o[4];
    int unit;
    unsigned short vid;
    bcm_pbmp_t ports;
    bcm_pbmp_t untagged;
    if (!floor_unpack(args, "bcm_vlan_port_add", &o[0], &o[1], &o[2], &o[3]) ||
        !floor_number(o[0], &unit, "in method 'bcm_vlan_port_add', argument 1 of type 'int'") ||
        !floor_number(o[1], &vid,
                      "in method 'bcm_vlan_port_add', argument 2 of type 'bcm_vlan_t'") ||
        !floor_read_ports(o[2], &ports) || !floor_read_ports(o[3], &untagged))
        return nullptr;
    return PyInt_FromLong(bcm_vlan_port_add(unit, vid, ports, untagged));
}

// Learns the types from an `int *`, a bcm_field_qset_t and a bcm_l2_addr_t of the module.
PyObject *floor_bind(PyObject *, PyObject *args) {
    PyObject *o[3];
    if (!floor_unpack(args, "bind", &o[0], &o[1], &o[2])) return nullptr;
    floor_types.object = Py_TYPE(o[0]);
    floor_types.ints = reinterpret_cast<SwigPyObject *>(o[0])->type;
    floor_types.qsets = reinterpret_cast<SwigPyObject *>(o[1])->type;
    floor_types.l2_addrs = reinterpret_cast<SwigPyObject *>(o[2])->type;
    Py_RETURN_NONE;
}

PyObject *floor_mark(PyObject *, PyObject *) {
    ombra_bench_mark();
    Py_RETURN_NONE;
}

PyMethodDef methods[] = {{"bind", floor_bind, METH_VARARGS, nullptr},
                         {"mark", floor_mark, METH_VARARGS, nullptr},
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
                         {"bcm_port_pause_get", floor_pause, METH_VARARGS, nullptr},
                         {"bcm_vlan_port_get", floor_vlan_ports, METH_VARARGS, nullptr},
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

PyMODINIT_FUNC init_ombra_floor() { Py_InitModule("_ombra_floor", methods); }
