// How the calls on one port are written: most read or write one field.
#pragma once
#include "standin/chapters/linkscan.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"

namespace standin {

// on_switch with the port found; BCM_E_PORT if the switch has no such port.
template <class Body>
int on_port(const char *function, int unit, int number, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        Port *const port = chip.ports.find(number);
        if (port == nullptr) return refused_port("port", number);
        const int status = body(*port);
        note_link(chip, local_port(number));
        return status;
    });
}

// A value from `low` to `high`, else BCM_E_PARAM.
template <class T>
int set_port_field(const char *function, int unit, int number, T Port::*field, T value, T low,
                   T high) {
    return on_port(function, unit, number, [&](Port &port) {
        if (!within(value, low, high)) return BCM_E_PARAM;
        port.*field = value;
        return BCM_E_NONE;
    });
}

template <class T>
int get_port_field(const char *function, int unit, int number, T Port::*field, T *value) {
    return on_port(function, unit, number,
                   [&](const Port &port) { return give(value, port.*field); });
}

}  // namespace standin
