// Starting and stopping the drivers of PHYs, resetting PHYs, and the tables behind the variables
// phy_port_info and phy_rmap.
#include <algorithm>
#include <memory>

#include "sdk/soc/phy.h"
#include "sdk/soc/phyctrl.h"
#include "standin/model/device_table.h"
#include "standin/model/tables.h"
#include "standin/model/telling.h"
#include "standin/phy/external.h"
#include "standin/phy/identity.h"
#include "standin/phy/standard_registers.h"

using namespace standin;

namespace {

// The tables of a unit. A pointer in the variables is ours as long as it is the one that we put
// there; when the tables go, it goes.
struct PhyTables {
    PhyTables() = default;
    PhyTables(const PhyTables &) = delete;
    PhyTables &operator=(const PhyTables &) = delete;
    ~PhyTables() { close(); }

    void open(int of_unit, const Phys &phys) {
        close();
        unit = static_cast<std::size_t>(of_unit);
        infos = std::make_unique<soc_phy_info_t[]>(kPorts);
        ports = std::make_unique<soc_port_t[]>(kLastPhyAddress + 1);
        std::fill_n(ports.get(), kLastPhyAddress + 1, -1);
        for (std::size_t port = kPorts; port-- > 0;) {
            fill_info(phys.ports[port], static_cast<int>(port), infos[port]);
            ports[phys.ports[port].address] = static_cast<soc_port_t>(port);
        }
        phy_port_info[unit] = infos.get();
        phy_rmap[unit] = ports.get();
    }

    void close() {
        if (!infos) return;
        if (phy_port_info[unit] == infos.get()) phy_port_info[unit] = nullptr;
        if (phy_rmap[unit] == ports.get()) phy_rmap[unit] = nullptr;
        for (int port = 0; port < kPorts; ++port)
            delete[] infos[static_cast<std::size_t>(port)].phy_name;
        infos.reset();
        ports.reset();
    }

    std::size_t unit = 0;
    std::unique_ptr<soc_phy_info_t[]> infos;
    std::unique_ptr<soc_port_t[]> ports;  // by PHY address
};

// REQUIRES: the model's lock is held, and the unit is there.
PhyTables &tables_of(int unit) { return device_table().find(unit)->layers.of<PhyTables>(); }

int detach(const char *function, int unit, soc_port_t port) {
    return on_any_phy(function, unit, port, [&](PhyView &view) {
        view.phy.attached = false;
        return BCM_E_NONE;
    });
}

// The driver of a port looks for its PHY before it starts, and comes to nothing where an external
// one does not answer.
template <class Outside>
int attach(const char *function, int unit, soc_port_t port, Outside &&outside) {
    const int status = with_external<true>(function, unit, port, outside, [](PhyView &view) {
        view.phy.attached = true;
        return BCM_E_NONE;
    });
    if (status < 0) detach(function, unit, port);
    return status;
}

int find_and_start(const Accessor &external) {
    const int status = probe_external(external);
    return status < 0 ? status : start_external(external);
}

int detach_all(const char *function, int unit) {
    return on_switch(function, unit, [&](Switch &chip) {
        for (Phy &phy : phys_of(chip).ports) phy.attached = false;
        return BCM_E_NONE;
    });
}

// The first failure is the status; the drivers of the other ports are at work.
int attach_all(const char *function, int unit) {
    const int status = on_switch(function, unit, [&](Switch &chip) {
        for (Phy &phy : phys_of(chip).ports) phy.attached = true;
        return BCM_E_NONE;
    });
    int first = status;
    for (int port = 0; status >= 0 && port < kPorts; ++port) {
        if (!find_external(unit, port)) continue;
        const int one = attach(function, unit, port, find_and_start);
        if (first >= 0) first = one;
    }
    return first;
}

}  // namespace

extern "C" {

// Makes the tables of phy_port_info and phy_rmap.
int soc_phy_common_init(int unit) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        tables_of(unit).open(unit, phys_of(chip));
        return BCM_E_NONE;
    });
}

int soc_phy_common_detach(int unit) {
    return on_switch(__func__, unit, [&](Switch &) {
        tables_of(unit).close();
        return BCM_E_NONE;
    });
}

int soc_phy_init(int unit) { return attach_all(__func__, unit); }
int soc_phy_deinit(int unit) { return detach_all(__func__, unit); }
int soc_phyctrl_software_init(int unit) { return attach_all(__func__, unit); }
int soc_phyctrl_software_deinit(int unit) { return detach_all(__func__, unit); }

int soc_phy_port_init(int unit, soc_port_t port) {
    return attach(__func__, unit, port, find_and_start);
}
int soc_phyctrl_probe(int unit, soc_port_t port) {
    return attach(__func__, unit, port, probe_external);
}
int soc_phyctrl_init(int unit, soc_port_t port) {
    return attach(__func__, unit, port, start_external);
}
int soc_phyctrl_detach(int unit, soc_port_t port) { return detach(__func__, unit, port); }
int soc_phyctrl_software_port_init(int unit, soc_port_t port) {
    return attach(__func__, unit, port, start_external);
}

// `*okay_pbmp` receives the ports of `pbmp` whose PHY answers.
int soc_phyctrl_pbm_probe_init(int unit, pbmp_t pbmp, pbmp_t *okay_pbmp) {
    if (okay_pbmp == nullptr) return refuse(__func__, unit);
    const int status = on_switch(__func__, unit, [&](Switch &) {
        *okay_pbmp = {};
        return BCM_E_NONE;
    });
    for (int port = 0; status >= 0 && port < kPorts; ++port)
        if (has_port(pbmp, port) && attach(__func__, unit, port, find_and_start) >= 0)
            add_port(*okay_pbmp, port);
    return status;
}

// -- reset ---------------------------------------------------------------------------------------

int soc_phyctrl_reset(int unit, soc_port_t port, void *) {
    return with_external(__func__, unit, port, reset_external, [](PhyView &view) {
        reset_internal(view);
        return BCM_E_NONE;
    });
}

// Callbacks run without the lock, in the order of their registration; a negative answer ends them
// and is the status.
int soc_phy_reset(int unit, soc_port_t port) {
    std::uint64_t last = 0;
    bool ours = false;
    int status = on_phy(__func__, unit, port, [&](PhyView &view) {
        ours = view.phy.default_reset;
        last = last_handler();
        port = view.number;
        return BCM_E_NONE;
    });
    if (status >= 0 && ours) status = soc_phyctrl_reset(unit, port, nullptr);
    if (status < 0) return status;
    std::uint64_t at = 0;
    while (const auto one = next_handler(unit, Registration::kSocPhyReset, at, last)) {
        at = one->number;
        if (one->key != HandlerKey{port} ||
            callback_fault_check("soc_phy_reset_register", unit) != 0)
            continue;
        const int answer = one->as<_shr_port_phy_reset_cb_t>()(unit, port, one->user);
        if (answer < 0) return answer;
    }
    return BCM_E_NONE;
}

// With `reg_default` 0 the callbacks take the place of our own reset, which stands before them
// otherwise.
int soc_phy_reset_register(int unit, soc_port_t port, soc_port_phy_reset_cb_t callback,
                           void *user_data, int reg_default) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        const int status = view.chip.events.handlers.add(
            handler(Registration::kSocPhyReset, callback, user_data, {view.number}));
        if (status == BCM_E_NONE) view.phy.default_reset = reg_default != 0;
        return status;
    });
}

// Our own reset stands again when the last callback has gone.
int soc_phy_reset_unregister(int unit, soc_port_t port, soc_port_phy_reset_cb_t callback,
                             void *user_data) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        auto &handlers = view.chip.events.handlers;
        const int status = handlers.remove(
            handler(Registration::kSocPhyReset, callback, user_data, {view.number}));
        if (handlers.find(Registration::kSocPhyReset, {view.number}) == nullptr)
            view.phy.default_reset = true;
        return status;
    });
}

// Resets the external PHY, through bit 15 of register 0 of its device 1. The address of the
// function that resets a PHY; null where there is no external PHY, or it did not answer.
void *soc_phyctrl_ext_phy_reset(int unit, soc_port_t port) {
    Accessor external;
    on_phy(__func__, unit, port, [&](const PhyView &view) {
        external = find_external(unit, view.number);
        return BCM_E_NONE;
    });
    if (!external || external_write(external, kPma << 16, kResetBit) < 0) return nullptr;
    return reinterpret_cast<void *>(&soc_phyctrl_reset);
}

}  // extern "C"
