// The L2 snapshot, written by hand with the interpreter's own tuple calls.

#include "bench/floor.h"
#include "sdk/bcm/l2.h"

namespace {

// What all rows of one walk share.
struct Walk {
    PyObject *list;
    PyObject *words[2];  // "dynamic", "static"
    PyObject *vlan;      // the number of the last row
    bool failed;
};

PyObject *word(Walk &walk, bool is_static) {
    PyObject *&shared = walk.words[is_static ? 1 : 0];
    if (shared == nullptr) shared = PyString_FromString(is_static ? "static" : "dynamic");
    Py_XINCREF(shared);
    return shared;
}

PyObject *vlan(Walk &walk, long vid) {
    if (walk.vlan == nullptr || PyInt_AS_LONG(walk.vlan) != vid) {
        Py_XDECREF(walk.vlan);
        walk.vlan = PyInt_FromLong(vid);
    }
    Py_XINCREF(walk.vlan);
    return walk.vlan;
}

int append(int, bcm_l2_addr_t *entry, void *user_data) {
    Walk &walk = *static_cast<Walk *>(user_data);
    if (walk.failed) return 0;
    unsigned long gport = 0x4000000UL | (static_cast<unsigned>(entry->port) & 0x7ffU);
    if ((entry->flags & 4U) != 0)
        gport = 0x10000000UL;
    else if ((entry->flags & 0x80U) != 0)
        gport = 0xc000000UL | (static_cast<unsigned>(entry->tgid) & 0x3ffffffU);
    walk.failed = true;
    PyObject *row = PyTuple_New(4);
    if (row == nullptr) return 0;
    PyObject *const items[] = {floor_mac_text(entry->mac), vlan(walk, entry->vid),
                               PyInt_FromLong(static_cast<long>(gport)),
                               word(walk, (entry->flags & 0x20U) != 0)};
    for (Py_ssize_t i = 0; i < 4; ++i) PyTuple_SET_ITEM(row, i, items[i]);
    if (items[0] != nullptr && items[1] != nullptr && items[2] != nullptr && items[3] != nullptr)
        walk.failed = PyList_Append(walk.list, row) != 0;
    Py_DECREF(row);
    return 0;
}

}  // namespace

PyObject *floor_snapshot(PyObject *, PyObject *args) {
    PyObject *a;
    int unit;
    if (!floor_unpack(args, "getHwMacTable", &a) ||
        !floor_number(a, &unit, "in method 'getHwMacTable', argument 1 of type 'int'"))
        return nullptr;
    Walk walk{PyList_New(0), {nullptr, nullptr}, nullptr, false};
    if (walk.list != nullptr) bcm_l2_traverse(unit, append, &walk);
    if (walk.failed) Py_CLEAR(walk.list);
    Py_XDECREF(walk.words[0]);
    Py_XDECREF(walk.words[1]);
    Py_XDECREF(walk.vlan);
    return walk.list;
}
