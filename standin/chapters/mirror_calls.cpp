// The calls of the mirror chapter on destinations and the ports that are copied to them.
#include <algorithm>

#include "sdk/bcm/mirror.h"
#include "standin/model/loans.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr bcm_gport_t kFirst = kMirrorGport.of(1);
constexpr Numbering<bcm_gport_t> kNumbers{"mirror", kMirrorDestinations, kFirst,
                                          kFirst + static_cast<int>(kMirrorDestinations) - 1};

Mirrors &mirrors_of(Switch &chip) { return chip.groups.mirrors; }

std::map<bcm_gport_t, bcm_mirror_destination_t> &destinations_of(Switch &chip) {
    return mirrors_of(chip).destinations;
}

// Changes the destinations of a port under some flags by `edit(list)`, which answers a status.
template <class Edit>
int change_list(const char *function, int unit, bcm_port_t port, std::uint32_t flags, Edit &&edit) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        auto &lists = mirrors_of(chip).of_port;
        MirroredTo &list = lists[{number, flags}];
        const int status = change(chip, mirrored_object(number, flags), list,
                                  [&](MirroredTo &made) { return edit(made.destinations); });
        if (list.destinations.empty()) lists.erase({number, flags});
        return status;
    });
}

int add_destination(const char *function, int unit, bcm_port_t port, std::uint32_t flags,
                    bcm_gport_t mirror_dest_id) {
    return change_list(function, unit, port, flags, [&](std::vector<bcm_gport_t> &list) {
        if (std::ranges::find(list, mirror_dest_id) != list.end()) return BCM_E_EXISTS;
        list.push_back(mirror_dest_id);
        return BCM_E_NONE;
    });
}

int give_destinations(const char *function, int unit, bcm_port_t port, std::uint32_t flags,
                      int size, bcm_gport_t *destinations, int *count) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        const MirroredTo *const list = find_in(mirrors_of(chip).of_port, {number, flags});
        return give_array(list == nullptr ? std::vector<bcm_gport_t>{} : list->destinations, size,
                          destinations, count);
    });
}

int clear_mirrors(Switch &chip) {
    Mirrors &mirrors = mirrors_of(chip);
    References &references = chip.references;
    for (const auto &[key, list] : mirrors.of_port)
        references.unlink(mirrored_object(key.first, key.second), names_of(list));
    const int status = erase_objects(chip, mirrors.destinations, ObjectKind::kMirror);
    if (status == BCM_E_NONE) {
        mirrors = Mirrors{};
        return status;
    }
    for (const auto &[key, list] : mirrors.of_port)
        references.link(mirrored_object(key.first, key.second), names_of(list));
    return status;
}

int mark(const char *function, int unit, bcm_port_t port, int enable, bcm_pbmp_t Mirrors::*side) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        if (!within(enable, 0, 1)) return BCM_E_PARAM;
        bcm_pbmp_t &set = mirrors_of(chip).*side;
        enable != 0 ? add_port(set, number) : remove_port(set, number);
        return BCM_E_NONE;
    });
}

int marked(const char *function, int unit, bcm_port_t port, int *enable,
           bcm_pbmp_t Mirrors::*side) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        return number < 0 ? refused_port("port", port)
                          : give(enable, has_port(mirrors_of(chip).*side, number));
    });
}

}  // namespace

extern "C" {

int bcm_mirror_init(int unit) {
    return start_chapter(__func__, unit, "bcm_mirror_", clear_mirrors);
}

int bcm_mirror_mode_set(int unit, int mode) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!within(mode, 0, 2)) return BCM_E_PARAM;
        mirrors_of(chip).mode = mode;
        return BCM_E_NONE;
    });
}

int bcm_mirror_mode_get(int unit, int *mode) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return give(mode, mirrors_of(chip).mode); });
}

// -1 takes the port away again.
int bcm_mirror_to_set(int unit, bcm_port_t port) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0 && port != -1) return refused_port("port", port);
        mirrors_of(chip).to = number;
        return BCM_E_NONE;
    });
}

int bcm_mirror_to_get(int unit, bcm_port_t *port) {
    return on_switch(__func__, unit, [&](Switch &chip) { return give(port, mirrors_of(chip).to); });
}

int bcm_mirror_ingress_set(int unit, bcm_port_t port, int enable) {
    return mark(__func__, unit, port, enable, &Mirrors::ingress);
}

int bcm_mirror_ingress_get(int unit, bcm_port_t port, int *enable) {
    return marked(__func__, unit, port, enable, &Mirrors::ingress);
}

int bcm_mirror_egress_set(int unit, bcm_port_t port, int enable) {
    return mark(__func__, unit, port, enable, &Mirrors::egress);
}

int bcm_mirror_egress_get(int unit, bcm_port_t port, int *enable) {
    return marked(__func__, unit, port, enable, &Mirrors::egress);
}

// The id goes into the caller's structure, or comes from it.
int bcm_mirror_destination_create(int unit, bcm_mirror_destination_t *mirror_dest) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (mirror_dest == nullptr) return BCM_E_PARAM;
        int status = check_names(chip, names_of(*mirror_dest));
        if (status != BCM_E_NONE) return status;
        bcm_gport_t &id = mirror_dest->mirror_dest_id;
        const bool given = (mirror_dest->flags & kWithId) != 0;
        auto *const made = new_entry(destinations_of(chip), kNumbers, given, &id, status);
        return made == nullptr ? status
                               : assign(chip, object(ObjectKind::kMirror, id), *made, *mirror_dest);
    });
}

int bcm_mirror_destination_get(int unit, bcm_gport_t mirror_dest_id,
                               bcm_mirror_destination_t *mirror_dest) {
    return on_entry(__func__, unit, destinations_of, mirror_dest_id,
                    [&](const bcm_mirror_destination_t &one) { return give(mirror_dest, one); });
}

int bcm_mirror_destination_destroy(int unit, bcm_gport_t mirror_dest_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return erase_object(chip, destinations_of(chip), ObjectKind::kMirror, mirror_dest_id);
    });
}

int bcm_mirror_destination_traverse(int unit, bcm_mirror_destination_traverse_cb cb,
                                    void *user_data) {
    if (cb == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, destinations_of, [&](bcm_gport_t, bcm_mirror_destination_t &one) {
        return cb(unit, &one, user_data);
    });
}

int bcm_mirror_port_dest_add(int unit, bcm_port_t port, uint32 flags, bcm_gport_t mirror_dest_id) {
    return add_destination(__func__, unit, port, flags, mirror_dest_id);
}

int bcm_mirror_port_destination_add(int unit, bcm_port_t port, uint32 flags,
                                    bcm_gport_t mirror_dest_id, bcm_mirror_options_t options) {
    if (options.flags != 0 || options.forward_strength != 0 || options.copy_strength != 0 ||
        options.recycle_cmd != 0) {
        return on_switch(__func__, unit, [](Switch &) {
            return refused(BCM_E_UNAVAIL, "copies have no options of their own");
        });
    }
    return add_destination(__func__, unit, port, flags, mirror_dest_id);
}

int bcm_mirror_port_dest_get(int unit, bcm_port_t port, uint32 flags, int mirror_dest_size,
                             bcm_gport_t *mirror_dest, int *mirror_dest_count) {
    return give_destinations(__func__, unit, port, flags, mirror_dest_size, mirror_dest,
                             mirror_dest_count);
}

int bcm_mirror_port_destination_get(int unit, bcm_port_t port, uint32 flags, int mirror_dest_size,
                                    bcm_gport_t *mirror_dest, int *mirror_dest_count,
                                    bcm_mirror_options_t *options) {
    if (mirror_dest_size > 0 && options == nullptr) return refuse(__func__, unit);
    const int status = give_destinations(__func__, unit, port, flags, mirror_dest_size, mirror_dest,
                                         mirror_dest_count);
    for (int i = 0; status == BCM_E_NONE && mirror_dest_size > 0 && i < *mirror_dest_count; ++i)
        options[i] = {};
    return status;
}

int bcm_mirror_port_dest_delete(int unit, bcm_port_t port, uint32 flags,
                                bcm_gport_t mirror_dest_id) {
    return change_list(__func__, unit, port, flags, [&](std::vector<bcm_gport_t> &list) {
        return std::erase(list, mirror_dest_id) == 0 ? missing(mirror_dest_id) : BCM_E_NONE;
    });
}

int bcm_mirror_port_dest_delete_all(int unit, bcm_port_t port, uint32 flags) {
    return change_list(__func__, unit, port, flags, [](std::vector<bcm_gport_t> &list) {
        list.clear();
        return BCM_E_NONE;
    });
}

}  // extern "C"
