// The L2 table snapshot: a whole hardware table in one call.

#include "api/hand_rows.h"
#include "convert/mac_text.h"
#include "runtime/py_ref.h"
#include "sdk/bcm/l2.h"

namespace {

constexpr unsigned kDiscard = 0x00000004;  // the destination is the black hole
constexpr unsigned kStatic = 0x00000020;
constexpr unsigned kTrunk = 0x00000080;  // the destination is a trunk

// Global port numbers keep their type from bit 26 upward.
constexpr unsigned kTypeShift = 26;
constexpr unsigned long kLocal = 1UL << kTypeShift;
constexpr unsigned long kLag = 3UL << kTypeShift;
constexpr unsigned long kBlackHole = 4UL << kTypeShift;
constexpr unsigned kLocalMask = 0x7ff;
constexpr unsigned kLagMask = 0x3ffffff;

unsigned long global_port(const bcm_l2_addr_t &entry) {
    if ((entry.flags & kDiscard) != 0) return kBlackHole;
    if ((entry.flags & kTrunk) != 0) return (static_cast<unsigned>(entry.tgid) & kLagMask) | kLag;
    return (static_cast<unsigned>(entry.port) & kLocalMask) | kLocal;
}

// One row, or null with an exception. Built item by item: a format string would be read again for
// each of up to 65,536 rows.
PyObject *snapshot_row(const bcm_l2_addr_t &entry) {
    PyObject *row = PyTuple_New(4);
    if (row == nullptr) return nullptr;
    const bool is_static = (entry.flags & kStatic) != 0;
    PyObject *const items[] = {
        PyString_FromStringAndSize(macaddrToString(entry.mac), kMacTextLength),
        PyInt_FromLong(entry.vid),
        PyInt_FromLong(static_cast<long>(global_port(entry))),
        PyString_FromString(is_static ? "static" : "dynamic"),
    };
    bool whole = true;
    for (Py_ssize_t i = 0; i < 4; ++i) {
        whole = whole && items[i] != nullptr;
        PyTuple_SET_ITEM(row, i, items[i]);  // a tuple may hold nulls until it dies
    }
    if (!whole) {
        Py_DECREF(row);
        return nullptr;
    }
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
    const unsigned long type = gport >> kTypeShift;
    const char *word = "unknown";
    if ((type & type_mask) == 1 && (gport & reserved) == 0)
        word = "local";
    else if (type == 3)
        word = "lag";
    else if (gport == kBlackHole)
        word = "blackhole";
    return PyString_FromString(word);
}

PyObject *l2_traverse_cb(int, bcm_l2_addr_t *, void *) {
    PyErr_SetString(PyExc_ValueError, "l2_traverse_cb serves the walk of getHwMacTable only");
    return nullptr;
}

}  // namespace ombra::rows
