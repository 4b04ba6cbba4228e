// The module: what happens around a unit, faults, and what the hooks of the stand-in tell.
#include "standin/bench/bench.h"

#include "standin/base/config_store.h"
#include "standin/base/faults.h"
#include "standin/chapters/hooks.h"
#include "standin/model/registrations.h"
#include "standin/phy/hooks.h"
#include "standin/regs/hooks.h"

namespace bench {

bool read_argument(PyObject *object, Mac &mac) {
    if (!PyString_Check(object)) {
        PyErr_SetString(PyExc_TypeError, "a MAC address is a str");
        return false;
    }
    const std::string_view text(PyString_AS_STRING(object),
                                static_cast<std::size_t>(PyString_GET_SIZE(object)));
    constexpr std::size_t kTextLength = 17;  // "02:00:00:00:00:0a"
    bool good = text.size() == kTextLength;
    for (std::size_t i = 0; good && i < mac.bytes.size(); ++i) {
        unsigned byte = 0;
        for (const char digit : text.substr(3 * i, 2)) {
            const std::size_t value = std::string_view("0123456789abcdef").find(digit);
            good = good && value != std::string_view::npos;
            byte = byte << 4 | static_cast<unsigned>(value & 0xf);
        }
        good = good && (i + 1 == mac.bytes.size() || text[3 * i + 2] == ':');
        mac.bytes[i] = static_cast<unsigned char>(byte);
    }
    if (!good) PyErr_SetString(PyExc_ValueError, "a MAC address is as '02:00:00:00:00:0a'");
    return good;
}

bool read_argument(PyObject *object, const char *&text) {
    text = PyString_AsString(object);
    return text != nullptr;
}

namespace {

void reset() {
    standin_mdio_clear();
    standin_reset();
    standin_shadow_reset();
}

PyObject *fault_set(PyObject *arguments) {
    const char *name = nullptr;
    const char *value = nullptr;
    if (!PyArg_ParseTuple(arguments, "ss:fault_set", &name, &value)) return nullptr;
    const std::string setting = std::string("fault.") + name;
    std::string wrong;
    if (!standin::config_setting_ok(setting, value, wrong)) {
        PyErr_SetString(PyExc_ValueError, wrong.c_str());
        return nullptr;
    }
    standin::config_set(setting, value);
    Py_RETURN_NONE;
}

// Whether it was still set.
PyObject *fault_end(PyObject *arguments) {
    const char *name = nullptr;
    if (!PyArg_ParseTuple(arguments, "s:fault_end", &name)) return nullptr;
    return PyBool_FromLong(standin::config_remove(std::string("fault.") + name) ? 1 : 0);
}

PyObject *faults_never_met(PyObject *arguments) {
    if (!PyArg_ParseTuple(arguments, ":faults_never_met")) return nullptr;
    return list_of(standin::faults_never_met(),
                   [](const std::string &one) { return text_object(one); });
}

// (function, cause, whether it can be called) of each.
PyObject *registrations(PyObject *arguments) {
    if (!PyArg_ParseTuple(arguments, ":registrations")) return nullptr;
    return list_of(standin::registrations(), [](const standin::RegistrationRow &one) {
        return Py_BuildValue("(ssN)", one.function, one.cause, PyBool_FromLong(one.callable));
    });
}

constexpr auto kUnset = "The setting of a fault, without 'fault.', goes. Whether it was there.";

PyMethodDef rows[] = {
    {"reset", row<reset>, METH_VARARGS, "Forgets all devices, their shadows and accessors."},
    {"link_set", row<standin_link_set>, METH_VARARGS,
     "link_set(unit, port, present): the far end of a link comes or goes."},
    {"learn", row<standin_l2_learn>, METH_VARARGS,
     "learn(unit, mac, vlan, port): a packet with this source arrives."},
    {"time_pass", row<standin_time_pass>, METH_VARARGS,
     "time_pass(unit, microseconds): time passes for a unit."},
    {"traffic", row<standin_port_traffic>, METH_VARARGS,
     "traffic(unit, port, outwards, packets, bytes): packets pass a port."},
    {"field_stat_hit", row<standin_field_stat_hit>, METH_VARARGS,
     "field_stat_hit(unit, stat, packets, bytes): a counter of a rule grows."},
    {"switch_event", row<standin_switch_event>, METH_VARARGS,
     "switch_event(unit, event, arg1, arg2, arg3): the chip tells of itself."},
    {"oam_event", row<standin_oam_event>, METH_VARARGS,
     "oam_event(unit, type, flags, group, endpoint): so does maintenance,"},
    {"oam_performance_event", row<standin_oam_performance_event>, METH_VARARGS,
     "oam_performance_event(unit, type, group, endpoint): of performance,"},
    {"oam_pm_event", row<standin_oam_pm_event>, METH_VARARGS,
     "oam_pm_event(unit, type): and of measurements."},
    {"cosq_event", row<standin_cosq_event>, METH_VARARGS,
     "cosq_event(unit, type, gport, cosq, index, value): a queue tells."},
    {"pfc_deadlock", row<standin_pfc_deadlock>, METH_VARARGS,
     "pfc_deadlock(unit, port, cosq, event): the recovery of one begins or ends."},
    {"registrations", guarded<registrations>, METH_VARARGS,
     "A list of (function, cause, callable): what calls whom one registers."},
    {"last_refusal", row<standin_last_refusal>, METH_VARARGS,
     "Why the last call that was refused on this thread has its status."},
    {"platform_value", row<standin_platform_value>, METH_VARARGS,
     "platform_value(name): what the platform was told."},
    {"agent_name", row<standin_agent_name>, METH_VARARGS, "The agent's name as last told."},
    {"mdio_remove", row<standin_mdio_remove>, METH_VARARGS,
     "mdio_remove(unit, phy, kind): an accessor of an external PHY goes."},
    {"mdio_clear", row<standin_mdio_clear>, METH_VARARGS, "All accessors go."},
    {"mdio_count", row<standin_mdio_count>, METH_VARARGS, "How many accessors there are."},
    {"phy_version", row<standin_phy_version>, METH_VARARGS,
     "phy_version(unit, phy): as told for the time on standby, or -1."},
    {"live_objects", row<standin_live_objects>, METH_VARARGS,
     "How many objects of the toolkit are alive."},
    {"shadow_reset", row<standin_shadow_reset>, METH_VARARGS,
     "Forgets what was set for the shadows of all units."},
    {"shadow_words", row<standin_shadow_words>, METH_VARARGS,
     "shadow_words(unit): how many words the shadow has, or -1."},
    {"shadow_value", row<standin_shadow_value>, METH_VARARGS,
     "shadow_value(name): one of configured, pci, forced, sim."},
    {"fault_set", guarded<fault_set>, METH_VARARGS,
     "fault_set(name, value): a setting of a fault, without 'fault.'."},
    {"fault_end", guarded<fault_end>, METH_VARARGS, kUnset},
    {"faults_never_met", guarded<faults_never_met>, METH_VARARGS,
     "The faults that were set and that no call has met."},
    {"forget_faults", row<standin::forget_faults>, METH_VARARGS, "faults_never_met() starts anew."},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace
}  // namespace bench

PyMODINIT_FUNC __attribute__((visibility("default"))) init_OmbraSdkV2Bench() {
    PyObject *const module = Py_InitModule("_OmbraSdkV2Bench", bench::rows);
    if (module == nullptr || !bench::add_constants(module)) return;
    const bench::PyRef name(bench::text_object("_OmbraSdkV2Bench"));
    if (name == nullptr) return;
    for (PyMethodDef *one = bench::shown_rows; one->ml_name != nullptr; ++one) {
        PyObject *const function = PyCFunction_NewEx(one, nullptr, name.get());
        if (function == nullptr || PyModule_AddObject(module, one->ml_name, function) != 0) return;
    }
}
