// Starting and stopping the drivers of PHYs, resetting PHYs, and the tables behind the variables
// phy_port_info and phy_rmap.
#include <algorithm>
#include <memory>

#include "sdk/soc/phy.h"
#include "sdk/soc/phyctrl.h"
#include "standin/model/device_table.h"
#include "standin/phy/accessors.h"
#include "standin/phy/identity.h"
#include "standin/phy/phy.h"

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

// Starts or stops the drivers of all ports.
int attach_all(const char *function, int unit, bool attached) {
    return on_switch(function, unit, [&](Switch &chip) {
        for (Phy &phy : phys_of(chip).ports) phy.attached = attached;
        return BCM_E_NONE;
    });
}

int attach(const char *function, int unit, soc_port_t port, bool attached) {
    return on_any_phy(function, unit, port, [&](PhyView &view) {
        view.phy.attached = attached;
        return BCM_E_NONE;
    });
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

int soc_phy_init(int unit) { return attach_all(__func__, unit, true); }
int soc_phy_deinit(int unit) { return attach_all(__func__, unit, false); }
int soc_phyctrl_software_init(int unit) { return attach_all(__func__, unit, true); }
int soc_phyctrl_software_deinit(int unit) { return attach_all(__func__, unit, false); }

int soc_phy_port_init(int unit, soc_port_t port) { return attach(__func__, unit, port, true); }
int soc_phyctrl_probe(int unit, soc_port_t port) { return attach(__func__, unit, port, true); }
int soc_phyctrl_init(int unit, soc_port_t port) { return attach(__func__, unit, port, true); }
int soc_phyctrl_detach(int unit, soc_port_t port) { return attach(__func__, unit, port, false); }
int soc_phyctrl_software_port_init(int unit, soc_port_t port) {
    return attach(__func__, unit, port, true);
}

// `*okay_pbmp` receives the ports of `pbmp` that have a PHY.
int soc_phyctrl_pbm_probe_init(int unit, pbmp_t pbmp, pbmp_t *okay_pbmp) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (okay_pbmp == nullptr) return BCM_E_PARAM;
        *okay_pbmp = {};
        for (int port = 0; port < kPorts; ++port) {
            if (!has_port(pbmp, port)) continue;
            phys_of(chip).ports[static_cast<std::size_t>(port)].attached = true;
            add_port(*okay_pbmp, port);
        }
        return BCM_E_NONE;
    });
}

// -- reset ---------------------------------------------------------------------------------------

int soc_phyctrl_reset(int unit, soc_port_t port, void *) {
    return on_phy(__func__, unit, port, [](PhyView &view) {
        view.phy.reset();
        return BCM_E_NONE;
    });
}

// Callbacks run without the lock, in the order of their registration; a negative answer ends them
// and is the status.
int soc_phy_reset(int unit, soc_port_t port) {
    std::vector<ResetCallback> callbacks;
    const int status = on_phy(__func__, unit, port, [&](PhyView &view) {
        if (view.phy.default_reset) view.phy.reset();
        callbacks = view.phy.on_reset;
        port = view.number;
        return BCM_E_NONE;
    });
    if (status < 0) return status;
    for (const auto &one : callbacks)
        if (const int answer = one.call(unit, port, one.user); answer < 0) return answer;
    return BCM_E_NONE;
}

// With `reg_default` 0 the callbacks take the place of our own reset, which stands before them
// otherwise.
int soc_phy_reset_register(int unit, soc_port_t port, soc_port_phy_reset_cb_t callback,
                           void *user_data, int reg_default) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (callback == nullptr) return BCM_E_PARAM;
        auto &all = view.phy.on_reset;
        if (std::ranges::find(all, ResetCallback{callback, user_data}) != all.end())
            return BCM_E_EXISTS;
        all.push_back({callback, user_data});
        view.phy.default_reset = reg_default != 0;
        return BCM_E_NONE;
    });
}

// Our own reset stands again when the last callback has gone.
int soc_phy_reset_unregister(int unit, soc_port_t port, soc_port_phy_reset_cb_t callback,
                             void *user_data) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        auto &all = view.phy.on_reset;
        if (std::erase(all, ResetCallback{callback, user_data}) == 0) return BCM_E_NOT_FOUND;
        if (all.empty()) view.phy.default_reset = true;
        return BCM_E_NONE;
    });
}

// Resets the external PHY, through bit 15 of register 0 of its device 1. The address of the
// function that resets a PHY; null where there is no external PHY, or it did not answer.
void *soc_phyctrl_ext_phy_reset(int unit, soc_port_t port) {
    constexpr unsigned device = 1;
    constexpr std::uint16_t reset_bit = 0x8000;
    Accessor external;
    on_phy(__func__, unit, port, [&](const PhyView &view) {
        external = accessors().find(static_cast<std::uint32_t>(unit),
                                    static_cast<std::uint16_t>(view.number));
        return BCM_E_NONE;
    });
    if (!external || external->write(device, 0, reset_bit) < 0) return nullptr;
    return reinterpret_cast<void *>(&soc_phyctrl_reset);
}

}  // extern "C"
