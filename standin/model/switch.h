// Everything that one switch chip remembers. It comes into being with its device, and starts
// anew when the chip is reset. All of it stands under the model's lock.
#pragma once
#include <set>
#include <string>

#include "standin/model/events.h"
#include "standin/model/field.h"
#include "standin/model/generic_tables.h"
#include "standin/model/groups.h"
#include "standin/model/l2_chapter.h"
#include "standin/model/l3.h"
#include "standin/model/linkscan.h"
#include "standin/model/ports.h"
#include "standin/model/references.h"
#include "standin/model/slots.h"
#include "standin/model/vlans.h"

namespace standin {

// What is saved and loaded (state.h).
struct SwitchState {
    Ports ports;
    Vlans vlans;
    L2Chapter l2;
    Groups groups;
    Field field;
    L3 l3;
    GenericTables generic;  // of the calls that have no model of their own
    GenericIndex row_index;
    Slots layers;
    Linkscan linkscan;
    std::uint64_t now = 0;  // microseconds that have passed
    References references;
    std::set<std::string> stopped;  // chapters after their `_detach`, as "bcm_l2_"
};

struct Switch : SwitchState {
    Switch() { link_first_day(*this); }

    int unit = -1;
    Events events;
};

template <class T>
int assign(Switch &chip, const Object &self, T &slot, T value) {
    const Names names = names_of(value);
    if (const int status = check_names(chip, names); status != BCM_E_NONE) return status;
    chip.references.unlink(self, names_of(slot));
    chip.references.link(self, names);
    slot = std::move(value);
    return BCM_E_NONE;
}

template <class T, class Edit>
int change(Switch &chip, const Object &self, T &slot, Edit &&edit) {
    T made = slot;
    if (const int status = edit(made); status != BCM_E_NONE) return status;
    return assign(chip, self, slot, std::move(made));
}

template <class T>
int retire(Switch &chip, const Object &self, const T &value) {
    if (const int status = chip.references.check_unused(chip, self); status != BCM_E_NONE)
        return status;
    chip.references.dissolve(chip, self);
    chip.references.unlink(self, names_of(value));
    return BCM_E_NONE;
}

}  // namespace standin
