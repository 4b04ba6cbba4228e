// Rows that return a tuple.

#include <array>
#include <cstddef>

#include "api/hand_rows.h"
#include "convert/port_list.h"
#include "runtime/assertions.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/stg.h"
#include "sdk/bcm/vlan.h"
#include "sdk/constants.h"

namespace {

// A tuple of the items, whose references it takes over. A null item, whose maker has set an
// exception, gives null and keeps nothing.
template <typename... Items>
[[gnu::always_inline]] inline PyObject *tuple_of(Items... items) {
    PyObject *tuple = ((items != nullptr) && ...) ? PyTuple_New(sizeof...(Items)) : nullptr;
    if (tuple == nullptr) [[unlikely]] {
        ([](PyObject *item) { Py_XDECREF(item); }(items), ...);
        return nullptr;
    }
    Py_ssize_t next = 0;
    ((PyTuple_SET_ITEM(tuple, next, items), ++next), ...);
    return tuple;
}

PyObject *none() { Py_RETURN_NONE; }

// PyBool_FromLong without the call.
PyObject *truth(int value) {
    PyObject *const result = value != 0 ? Py_True : Py_False;
    Py_INCREF(result);
    return result;
}

// The word of a spanning tree state. Listening has no constant of the binding's table of words,
// and a state that the SDK does not know is still a whole tuple.
const char *state_word(int state) {
    static constexpr std::array<const char *, 5> words = {"disable", "discarding", "listening",
                                                          "learning", "forwarding"};
    const auto index = static_cast<std::size_t>(state);
    return state >= 0 && index < words.size() ? words[index] : "unknown";
}

template <typename Id>
PyObject *list_of(const Id *ids, int count) {
    PyObject *list = PyList_New(count < 0 ? 0 : count);
    for (Py_ssize_t i = 0; list != nullptr && i < count; ++i) {
        PyObject *id = PyInt_FromLong(ids[i]);
        if (id == nullptr) {
            Py_CLEAR(list);
            break;
        }
        PyList_SET_ITEM(list, i, id);
    }
    return list;
}

// The SDK owns the array and has just handed it out: a failing release means that its own state is
// broken, and no agent may go on with it.
void require_released(int rc, const char *function) {
    if (rc != BCM_E_NONE) ombra::assertion_failed("rc == BCM_E_NONE", function);
}

}  // namespace

PyObject *bcm_stg_list_wrapper(int unit) {
    bcm_stg_t *list = nullptr;
    int count = 0;
    const int status = bcm_stg_list(unit, &list, &count);
    if (status != BCM_E_NONE) return tuple_of(PyInt_FromLong(status));
    PyObject *ids = list_of(list, count);
    require_released(bcm_stg_list_destroy(unit, list, count),
                     "PyObject* bcm_stg_list_wrapper(int)");
    return tuple_of(PyInt_FromLong(status), ids);
}

PyObject *bcm_stg_vlan_list_wrapper(int unit, bcm_stg_t stg) {
    bcm_vlan_t *list = nullptr;
    int count = 0;
    const int status = bcm_stg_vlan_list(unit, stg, &list, &count);
    if (status != BCM_E_NONE) return tuple_of(PyInt_FromLong(status));
    PyObject *ids = list_of(list, count);
    require_released(bcm_stg_vlan_list_destroy(unit, list, count),
                     "PyObject* bcm_stg_vlan_list_wrapper(int, bcm_stg_t)");
    return tuple_of(PyInt_FromLong(status), ids);
}

namespace ombra::rows {

PyObject *bcm_port_pause_get(int unit, bcm_port_t port) {
    int pause_tx = 0;
    int pause_rx = 0;
    const int status = ::bcm_port_pause_get(unit, port, &pause_tx, &pause_rx);
    return tuple_of(PyInt_FromLong(status), truth(pause_tx), truth(pause_rx));
}

PyObject *bcm_port_untagged_vlan_get(int unit, bcm_port_t port) {
    bcm_vlan_t vid = 0;
    const int status = ::bcm_port_untagged_vlan_get(unit, port, &vid);
    return tuple_of(PyInt_FromLong(status), PyInt_FromLong(vid));
}

PyObject *bcm_vlan_port_get(int unit, bcm_vlan_t vid) {
    bcm_pbmp_t pbmp{};
    bcm_pbmp_t ubmp{};
    const int status = ::bcm_vlan_port_get(unit, vid, &pbmp, &ubmp);
    if (status != BCM_E_NONE) return tuple_of(PyInt_FromLong(status), none(), none());
    return tuple_of(PyInt_FromLong(status), pbmpToPyList(pbmp), pbmpToPyList(ubmp));
}

PyObject *bcm_stg_stp_get(int unit, bcm_stg_t stg, bcm_port_t port) {
    int state = 0;
    const int status = ::bcm_stg_stp_get(unit, stg, port, &state);
    if (status != BCM_E_NONE) return tuple_of(PyInt_FromLong(status));
    return tuple_of(PyInt_FromLong(status), PyString_FromString(state_word(state)));
}

PyObject *bcm_stg_list(int unit) { return bcm_stg_list_wrapper(unit); }

PyObject *bcm_stg_vlan_list(int unit, bcm_stg_t stg) {
    return bcm_stg_vlan_list_wrapper(unit, stg);
}

}  // namespace ombra::rows
