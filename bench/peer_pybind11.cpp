// The twelve measured functions as one binds them with pybind11, with the checks of its own
// readers and, for MAC texts and port lists, those of the module.

#include <pybind11/pybind11.h>

#include <array>
#include <cstdlib>
#include <string>

#include "helper/device.h"
#include "sdk/bcm/field.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/petra.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/vlan.h"
#include "sdk/soc/init.h"

namespace py = pybind11;

namespace {

struct Int {
    int value = 0;
};

int digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    throw py::value_error("Expected a string of the form 'AA:BB:CC:DD:EE:FF'");
}

std::array<unsigned char, 6> mac_of(const std::string &text) {
    if (text.size() < 17)
        throw py::value_error("Expected a string of the form 'AA:BB:CC:DD:EE:FF'");
    std::array<unsigned char, 6> mac;
    for (std::size_t i = 0; i < 6; ++i) {
        if (i < 5 && text[3 * i + 2] != ':')
            throw py::value_error("Expected a string of the form 'AA:BB:CC:DD:EE:FF'");
        mac[i] = static_cast<unsigned char>(digit(text[3 * i]) * 16 + digit(text[3 * i + 1]));
    }
    return mac;
}

bcm_pbmp_t ports_of(const py::list &list) {
    bcm_pbmp_t ports{};
    for (const py::handle item : list) {
        if (!PyInt_Check(item.ptr())) throw py::type_error("Port list must contain integers");
        const auto port = static_cast<unsigned long>(PyInt_AS_LONG(item.ptr()));
        if (port >= 576) throw py::value_error("Port number out of range");
        ports.pbits[port / 32] |= 1U << (port % 32);
    }
    return ports;
}

py::list list_of(const bcm_pbmp_t &ports) {
    py::list list;
    for (unsigned word = 0; word < 18; ++word) {
        unsigned port = word * 32;
        for (unsigned bits = ports.pbits[word]; bits != 0 && port < 571; bits >>= 1, ++port)
            if ((bits & 1) != 0)
                list.append(py::reinterpret_steal<py::object>(PyLong_FromUnsignedLong(port)));
    }
    return list;
}

int field_action_add(int unit, unsigned entry, int action, unsigned param0, unsigned param1) {
    return bcm_field_action_add(unit, static_cast<bcm_field_entry_t>(entry),
                                static_cast<bcm_field_action_t>(action), param0, param1);
}

int tpid_set(int unit, int port, int index, int profile, int other, int mode, int key,
             unsigned char outer, unsigned char inner) {
    return bcm_petra_tpid_profile_info_set(
        unit, port, index, static_cast<_bcm_petra_tpid_profile_t>(profile), other,
        static_cast<_bcm_petra_dtag_mode_t>(mode), static_cast<_bcm_petra_ac_key_map_type_t>(key),
        outer, inner);
}

int group_create(int unit, const bcm_field_qset_t &qset, int pri, unsigned group) {
    return bcm_field_group_create_id(unit, qset, pri, static_cast<bcm_field_group_t>(group));
}

py::tuple pause_get(int unit, int port) {
    int sent = 0;
    int received = 0;
    const int status = bcm_port_pause_get(unit, port, &sent, &received);
    return py::make_tuple(status, sent != 0, received != 0);
}

py::tuple vlan_port_get(int unit, unsigned short vid) {
    bcm_pbmp_t ports{};
    bcm_pbmp_t untagged{};
    const int status = bcm_vlan_port_get(unit, vid, &ports, &untagged);
    if (status != 0) return py::make_tuple(status, py::none(), py::none());
    return py::make_tuple(status, list_of(ports), list_of(untagged));
}

}  // namespace

PYBIND11_MODULE(peer_pybind11, module) {
    py::class_<Int>(module, "Int").def(py::init<>()).def_readwrite("value", &Int::value);
    py::class_<bcm_field_qset_t>(module, "QualifierSet").def(py::init<>());
    module.def("getNumDevices", [] { return getNumDevices(); });
    module.def("soc_init", [](int unit) { return soc_init(unit); });
    module.def("bcm_port_speed_set",
               [](int unit, int port, int speed) { return bcm_port_speed_set(unit, port, speed); });
    module.def("bcm_field_action_add", field_action_add);
    module.def("bcm_petra_tpid_profile_info_set", tpid_set);
    module.def("bcm_port_speed_get", [](int unit, int port, Int *speed) {
        return bcm_port_speed_get(unit, port, speed == nullptr ? nullptr : &speed->value);
    });
    module.def("bcm_field_show", [](int unit, const std::string &text) {
        return bcm_field_show(unit, text.c_str());
    });
    module.def("bcm_field_group_create_id", group_create);
    module.def("bcm_l2_addr_delete", [](int unit, const std::string &mac, unsigned short vid) {
        return bcm_l2_addr_delete(unit, mac_of(mac).data(), vid);
    });
    module.def("bcm_vlan_port_add",
               [](int unit, unsigned short vid, const py::list &ports, const py::list &untagged) {
                   return bcm_vlan_port_add(unit, vid, ports_of(ports), ports_of(untagged));
               });
    module.def("bcm_port_pause_get", pause_get);
    module.def("bcm_vlan_port_get", vlan_port_get);
}
