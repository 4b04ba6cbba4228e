// The L2 snapshot, written by hand with the interpreter's own tuple calls.

#include "bench/floor.h"
#include "sdk/bcm/l2.h"

namespace {

int append(int, bcm_l2_addr_t *entry, void *list) {
    unsigned long gport = 0x4000000UL | (static_cast<unsigned>(entry->port) & 0x7ffU);
    if ((entry->flags & 4U) != 0)
        gport = 0x10000000UL;
    else if ((entry->flags & 0x80U) != 0)
        gport = 0xc000000UL | (static_cast<unsigned>(entry->tgid) & 0x3ffffffU);
    PyObject *row = PyTuple_New(4);
    PyTuple_SET_ITEM(row, 0, floor_mac_text(entry->mac));
    PyTuple_SET_ITEM(row, 1, PyInt_FromLong(entry->vid));
    PyTuple_SET_ITEM(row, 2, PyInt_FromLong(static_cast<long>(gport)));
    PyTuple_SET_ITEM(row, 3,
                     PyString_FromString((entry->flags & 0x20U) != 0 ? "static" : "dynamic"));
    PyList_Append(static_cast<PyObject *>(list), row);
    Py_DECREF(row);
    return 0;
}

}  // namespace

PyObject *floor_snapshot(PyObject *, PyObject *args) {
    PyObject *a = nullptr;
    int unit = 0;
    if (!PyArg_UnpackTuple(args, const_cast<char *>("getHwMacTable"), 1, 1, &a) ||
        !floor_int(a, &unit, "in method 'getHwMacTable', argument 1 of type 'int'")) {
        return nullptr;
    }
    PyObject *list = PyList_New(0);
    bcm_l2_traverse(unit, append, list);
    return list;
}
