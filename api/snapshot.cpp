// The L2 table snapshot: a whole hardware table in one call.

#include "api/hand_rows.h"
#include "convert/mac_text.h"
#include "layout/sdk_words.h"
#include "runtime/py_ref.h"
#include "sdk/bcm/l2.h"

using namespace sdk_words;

namespace {

int global_port(const bcm_l2_addr_t &entry) {
    if ((entry.flags & kL2BlackHole) != 0) return kBlackHoleGport.of(0);
    if ((entry.flags & kL2Trunk) != 0) return kTrunkGport.cut(entry.tgid);
    return kLocalGport.cut(entry.port);
}

// "static" or "dynamic", the same object each time; new reference, or null with an exception.
PyObject *word(bool is_static) {
    static PyObject *words[2] = {};
    PyObject *&shared = words[is_static ? 1 : 0];
    if (shared == nullptr) [[unlikely]] {
        shared = PyString_InternFromString(is_static ? "static" : "dynamic");
        if (shared == nullptr) return nullptr;
    }
    Py_INCREF(shared);
    return shared;
}

// The number of a VLAN, the same object as long as it stays the same.
PyObject *vlan_number(long vid) {
    static PyObject *last = nullptr;
    if (last == nullptr || PyInt_AS_LONG(last) != vid) {
        PyObject *number = PyInt_FromLong(vid);
        if (number == nullptr) return nullptr;
        Py_XDECREF(last);
        last = number;
    }
    Py_INCREF(last);
    return last;
}

// One row, or null with an exception. Built item by item: a format string would be read again for
// each of up to 65,536 rows.
PyObject *snapshot_row(const bcm_l2_addr_t &entry) {
    PyObject *row = PyTuple_New(4);
    if (row == nullptr) return nullptr;
    PyObject *const items[] = {
        ombra::mac_text(entry.mac),
        vlan_number(entry.vid),
        PyInt_FromLong(global_port(entry)),
        word((entry.flags & kL2Static) != 0),
    };
    for (Py_ssize_t i = 0; i < 4; ++i) PyTuple_SET_ITEM(row, i, items[i]);
    if (!items[0] || !items[1] || !items[2] || !items[3]) [[unlikely]]
        Py_CLEAR(row);  // a tuple may hold nulls until it dies
    return row;
}

// The callback of the walk. It runs inside the row's own call, under the interpreter lock. Once an
// exception is pending, the rest of the table is passed over.
int l2_traverse_cb(int, bcm_l2_addr_t *info, void *user_data) {
    if (PyErr_Occurred() != nullptr) return 0;
    PyObject *row = snapshot_row(*info);
    if (row != nullptr) {
        PyList_Append(static_cast<PyObject *>(user_data), row);
        Py_DECREF(row);
    }
    return 0;
}

}  // namespace

namespace ombra::rows {

PyObject *getHwMacTable(int unit) {
    ombra::PyRef list(PyList_New(0));  // goes again should the walk throw
    if (list == nullptr) return nullptr;
    bcm_l2_traverse(unit, ::l2_traverse_cb, list.get());
    return PyErr_Occurred() == nullptr ? list.release() : nullptr;
}

PyObject *getGPortType(unsigned long gport) {
    constexpr unsigned long type_mask = 0x3f;
    constexpr unsigned long reserved = 0x3e00000;
    const unsigned long type = gport >> kGportTypeShift;
    const char *word = "unknown";
    if ((type & type_mask) == kLocalGport.type && (gport & reserved) == 0)
        word = "local";
    else if (type == kTrunkGport.type)
        word = "lag";
    else if (gport == kBlackHoleGport.of(0))
        word = "blackhole";
    return PyString_FromString(word);
}

PyObject *l2_traverse_cb(int, bcm_l2_addr_t *, void *) {
    PyErr_SetString(PyExc_ValueError, "l2_traverse_cb serves the walk of getHwMacTable only");
    return nullptr;
}

}  // namespace ombra::rows
