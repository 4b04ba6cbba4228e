// The calls of the link scanning chapter, and the scans.
#include "sdk/bcm/linkscan.h"
#include "sdk/bcm/port.h"

#include "standin/base/output.h"
#include "standin/chapters/linkscan.h"
#include "standin/chapters/port_access.h"
#include "standin/chapters/registration.h"
#include "standin/model/device_table.h"
#include "standin/model/tables.h"
#include "standin/model/telling.h"

using namespace standin;

namespace {

bool is_scanned(const Switch &chip, const Port &port) {
    return chip.linkscan.interval != 0 && port.linkscan != BCM_LINKSCAN_MODE_NONE;
}

// The link was found to be `link`.
void find_link(Switch &chip, int number, int link) {
    Port &port = *chip.ports.find(number);
    if (port.scanned_link == link) return;
    port.scanned_link = link;
    if (!chip.events.handlers.any(Registration::kLinkscan)) return;
    bcm_port_info_t info = port_info(chip, number);
    info.linkstatus = link;
    chip.events.raise(Registration::kLinkscan, [number, info](int unit, const Handler &one) {
        bcm_port_info_t told = info;
        one.as<bcm_linkscan_handler_t>()(unit, number, &told);
    });
}

bool has_outside(const Switch &chip, int number) {
    return outside_link.reads != nullptr && outside_link.reads(chip.unit, number);
}

// Asks the handler of a port, or what stands outside the chip, for its link, without the lock.
void ask_for_link(Switch &chip, int number) {
    chip.events.raise([number](int unit) {
        const auto asked = first_handler(unit, Registration::kLinkscanPort, {number});
        int link = 0;
        const int answer = asked ? asked->as<bcm_linkscan_port_handler_t>()(unit, number, &link)
                           : outside_link.read == nullptr ? BCM_E_NOT_FOUND
                                                          : outside_link.read(unit, number, &link);
        if (answer < 0) return;
        on_switch("bcm_linkscan_update", unit, [&](Switch &now) {
            now.ports.find(number)->told_link = link != 0;
            find_link(now, number, now.ports.find(number)->link());
            return BCM_E_NONE;
        });
    });
}

template <class Body>
int on_ports(const char *function, int unit, const bcm_pbmp_t &ports, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!is_subset(ports, kAllPorts)) return refused_ports(ports);
        for (int number = 0; number < kPorts; ++number)
            if (has_port(ports, number)) body(chip, number);
        return BCM_E_NONE;
    });
}

void set_mode(Switch &chip, int number, int mode) {
    chip.ports.find(number)->linkscan = mode;
    scan_link(chip, number, ScanCause::kChange);
}

int clear_linkscan(Switch &chip) {
    chip.linkscan = Linkscan{};
    chip.events.handlers.remove_all(Registration::kLinkscan);
    chip.events.handlers.remove_all(Registration::kLinkscanPort);
    for (int number = 0; number < kPorts; ++number) {
        Port &port = *chip.ports.find(number);
        port.linkscan = BCM_LINKSCAN_MODE_NONE;
        port.scanned_link = 0;
        port.told_link.reset();
    }
    return BCM_E_NONE;
}

template <class Change>
int change_port_handler(const char *function, int unit, bcm_port_t port,
                        bcm_linkscan_port_handler_t handler_function, Change &&change_handlers) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        const int status = change_handlers(
            chip, handler(Registration::kLinkscanPort, handler_function, nullptr, {number}));
        if (status == BCM_E_NONE) {
            chip.ports.find(number)->told_link.reset();
            scan_link(chip, number, ScanCause::kChange);
        }
        return status;
    });
}

}  // namespace

namespace standin {

OutsideLink outside_link;

void scan_link(Switch &chip, int number, ScanCause cause) {
    Port &port = *chip.ports.find(number);
    const bool by_hardware = port.linkscan == BCM_LINKSCAN_MODE_HW;
    if (cause != ScanCause::kCall) {
        if (!is_scanned(chip, port)) return;
        if (by_hardware && (cause == ScanCause::kTime || !interrupts_reach(chip.unit))) return;
    }
    if (chip.events.handlers.find(Registration::kLinkscanPort, {number}) != nullptr ||
        has_outside(chip, number)) {
        ask_for_link(chip, number);
        return;
    }
    port.told_link.reset();
    find_link(chip, number, port.link());
}

void scan_due_links(Switch &chip) {
    Linkscan &scan = chip.linkscan;
    if (scan.interval == 0 || chip.now < scan.next) return;
    scan.next = chip.now + static_cast<std::uint64_t>(scan.interval);
    for (int number = 0; number < kPorts; ++number) scan_link(chip, number, ScanCause::kTime);
}

}  // namespace standin

extern "C" {

int bcm_linkscan_init(int unit) {
    return start_chapter(__func__, unit, "bcm_linkscan_", clear_linkscan);
}

int bcm_linkscan_detach(int unit) {
    return start_chapter(__func__, unit, "bcm_linkscan_", clear_linkscan);
}

// The ports are scanned, whatever their modes.
int bcm_linkscan_update(int unit, bcm_pbmp_t pbm) {
    return on_ports(__func__, unit, pbm,
                    [](Switch &chip, int number) { scan_link(chip, number, ScanCause::kCall); });
}

// Makes a link that is up go down and, as it is still up, come again.
int bcm_link_change(int unit, bcm_pbmp_t pbmp) {
    return on_ports(__func__, unit, pbmp, [](Switch &chip, int number) {
        find_link(chip, number, 0);
        scan_link(chip, number, ScanCause::kCall);
    });
}

// The time between two scans; 0 stops them.
int bcm_linkscan_enable_set(int unit, int us) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (us < 0) return BCM_E_PARAM;
        chip.linkscan = {us, chip.now + static_cast<std::uint64_t>(us)};
        for (int number = 0; number < kPorts; ++number) scan_link(chip, number, ScanCause::kChange);
        return BCM_E_NONE;
    });
}

int bcm_linkscan_enable_get(int unit, int *us) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return give(us, chip.linkscan.interval); });
}

int bcm_linkscan_enable_port_get(int unit, bcm_port_t port) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const Port *const one = chip.ports.find(port);
        if (one == nullptr) return refused_port("port", port);
        return is_scanned(chip, *one) ? BCM_E_NONE
                                      : refused(BCM_E_DISABLED, "the port is not scanned");
    });
}

int bcm_linkscan_mode_set(int unit, bcm_port_t port, int mode) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        if (!within(mode, 0, BCM_LINKSCAN_MODE_COUNT - 1)) return BCM_E_PARAM;
        set_mode(chip, number, mode);
        return BCM_E_NONE;
    });
}

int bcm_linkscan_mode_set_pbm(int unit, bcm_pbmp_t pbm, int mode) {
    if (!within(mode, 0, BCM_LINKSCAN_MODE_COUNT - 1)) return refuse(__func__, unit);
    return on_ports(__func__, unit, pbm,
                    [&](Switch &chip, int number) { set_mode(chip, number, mode); });
}

int bcm_linkscan_mode_get(int unit, bcm_port_t port, int *mode) {
    return get_port_field(__func__, unit, port, &Port::linkscan, mode);
}

int bcm_port_linkscan_set(int unit, bcm_port_t port, int mode) {
    return bcm_linkscan_mode_set(unit, port, mode);
}

int bcm_port_linkscan_get(int unit, bcm_port_t port, int *mode) {
    return get_port_field(__func__, unit, port, &Port::linkscan, mode);
}

int bcm_linkscan_register(int unit, bcm_linkscan_handler_t handler_function) {
    return add_handler(__func__, unit, Registration::kLinkscan, handler_function, nullptr);
}

int bcm_linkscan_unregister(int unit, bcm_linkscan_handler_t handler_function) {
    return remove_handler(__func__, unit, Registration::kLinkscan, handler_function, nullptr);
}

// A port has one such handler: BCM_E_EXISTS for a second one.
int bcm_linkscan_port_register(int unit, bcm_port_t port, bcm_linkscan_port_handler_t handler) {
    return change_port_handler(__func__, unit, port, handler, [](Switch &chip, const Handler &one) {
        return set_handler(chip, one);
    });
}

int bcm_linkscan_port_unregister(int unit, bcm_port_t port, bcm_linkscan_port_handler_t handler) {
    return change_port_handler(__func__, unit, port, handler, [](Switch &chip, const Handler &one) {
        return chip.events.handlers.remove(one);
    });
}

// Links do not change while a call waits, so it answers at once: `*pbm` are the ports of it that
// are up, and BCM_E_TIMEOUT says that they are not all.
int bcm_link_wait(int unit, bcm_pbmp_t *pbm, int us) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (pbm == nullptr || us < 0) return BCM_E_PARAM;
        if (!is_subset(*pbm, kAllPorts)) return refused_ports(*pbm);
        bcm_pbmp_t up{};
        for (int number = 0; number < kPorts; ++number)
            if (has_port(*pbm, number) && chip.ports.find(number)->link() != 0)
                add_port(up, number);
        const bool all = is_subset(*pbm, up);
        *pbm = up;
        return all ? BCM_E_NONE : refused(BCM_E_TIMEOUT, "some of the ports are down");
    });
}

int bcm_linkscan_dump(int unit) {
    static constexpr const char *kModes[] = {"none", "software", "hardware"};
    std::string text;
    const int status = on_switch(__func__, unit, [&](Switch &chip) {
        text = "interval " + std::to_string(chip.linkscan.interval) + " us\n";
        for (int number = 0; number < kPorts; ++number) {
            const Port &port = *chip.ports.find(number);
            if (port.linkscan == BCM_LINKSCAN_MODE_NONE) continue;
            text += port.name + " " + kModes[port.linkscan] +
                    (port.scanned_link != 0 ? " up\n" : " down\n");
        }
        return BCM_E_NONE;
    });
    out(text);
    return status;
}

}  // extern "C"
