// Link, speed, medium and abilities. What the port has too is the port's.
#include <algorithm>

#include "sdk/bcm/petra.h"
#include "sdk/bcm/port.h"
#include "sdk/soc/phy.h"
#include "sdk/soc/phyctrl.h"
#include "standin/phy/abilities.h"
#include "standin/phy/external.h"
#include "standin/phy/mode_text.h"
#include "standin/phy/phy.h"

using namespace standin;

namespace {

constexpr int kMost = 0x7fffffff;

template <class T>
int set_phy_field(const char *function, int unit, soc_port_t port, T Phy::*field, T value, T low,
                  T high) {
    return on_phy(function, unit, port, [&](PhyView &view) {
        if (!within(value, low, high)) return BCM_E_PARAM;
        view.phy.*field = value;
        return BCM_E_NONE;
    });
}

template <class T, class Out>
int get_phy_field(const char *function, int unit, soc_port_t port, T Phy::*field, Out *value) {
    return on_phy(function, unit, port,
                  [&](const PhyView &view) { return give(value, view.phy.*field); });
}

int set_of_port(const char *function, int unit, soc_port_t port, int Port::*field, int value,
                int high) {
    return on_phy(function, unit, port, [&](PhyView &view) {
        if (!within(value, 0, high)) return BCM_E_PARAM;
        view.port.*field = value;
        return BCM_E_NONE;
    });
}

int get_of_port(const char *function, int unit, soc_port_t port, int Port::*field, int *value) {
    return on_phy(function, unit, port,
                  [&](const PhyView &view) { return give(value, view.port.*field); });
}

bool is_speed(int speed) {
    return std::ranges::find(kSpeedBits, speed, &SpeedBit::speed) != std::end(kSpeedBits);
}

int give_mode(const char *function, int unit, soc_port_t port, soc_port_mode_t *out,
              std::uint32_t (*mode)(const Port &)) {
    return on_phy(function, unit, port,
                  [&](const PhyView &view) { return give(out, mode(view.port)); });
}

int give_ability(const char *function, int unit, soc_port_t port, soc_port_ability_t *out,
                 std::uint32_t (*mode)(const Port &)) {
    return on_phy(function, unit, port, [&](const PhyView &view) {
        if (out == nullptr) return BCM_E_PARAM;
        *out = soc_port_ability_t{};
        ability_words(mode(view.port), out->words);
        return BCM_E_NONE;
    });
}

// `give_out(view)` once the port knows of its link what the external PHY, if there is one, says. A
// handler that reads the link in our place is not overruled.
template <class Give>
int with_link(const char *function, int unit, soc_port_t port, Give &&give_out) {
    int link = 0;
    bool asked = false;
    const auto outside = [&](const Accessor &external) {
        asked = true;
        return link_external(external, link);
    };
    return with_external(function, unit, port, outside, [&](PhyView &view) {
        const auto &handlers = view.chip.events.handlers;
        if (handlers.find(Registration::kLinkscanPort, {view.number}) == nullptr) {
            view.port.told_link.reset();
            if (asked) view.port.told_link = link;
        }
        return give_out(view);
    });
}

}  // namespace

extern "C" {

// -- pairs ---------------------------------------------------------------------------------------

#define PORT_PAIR(setter, getter, field, high)                                    \
    int setter(int unit, soc_port_t port, int value) {                            \
        return set_of_port(__func__, unit, port, &Port::field, value, int{high}); \
    }                                                                             \
    int getter(int unit, soc_port_t port, int *value) {                           \
        return get_of_port(__func__, unit, port, &Port::field, value);            \
    }
PORT_PAIR(soc_phyctrl_duplex_set, soc_phyctrl_duplex_get, duplex, 1)
PORT_PAIR(soc_phyctrl_master_set, soc_phyctrl_master_get, master, kMost)
#undef PORT_PAIR

int soc_phyctrl_enable_set(int unit, soc_port_t port, int value) {
    const auto outside = [&](const Accessor &external) {
        return within(value, 0, 1) ? enable_external(external, value != 0) : int{BCM_E_NONE};
    };
    return with_external(__func__, unit, port, outside, [&](PhyView &view) {
        if (!within(value, 0, 1)) return BCM_E_PARAM;
        view.port.enable = value;
        return BCM_E_NONE;
    });
}

int soc_phyctrl_enable_get(int unit, soc_port_t port, int *value) {
    return get_of_port(__func__, unit, port, &Port::enable, value);
}

#define PHY_PAIR(setter, getter, type, field)                                     \
    int setter(int unit, soc_port_t port, type value) {                           \
        return set_phy_field(__func__, unit, port, &Phy::field, value, 0, kMost); \
    }                                                                             \
    int getter(int unit, soc_port_t port, type *value) {                          \
        return get_phy_field(__func__, unit, port, &Phy::field, value);           \
    }
PHY_PAIR(soc_phyctrl_interface_set, soc_phyctrl_interface_get, soc_port_if_t, interface)
PHY_PAIR(soc_phyctrl_mdix_set, soc_phyctrl_mdix_get, soc_port_mdix_t, mdix)
PHY_PAIR(soc_phyctrl_offset_set, soc_phyctrl_offset_get, int, offset)
#undef PHY_PAIR

// The pairs of a wire are swapped where that was asked for.
int soc_phyctrl_mdix_status_get(int unit, soc_port_t port, soc_port_mdix_status_t *status) {
    return on_phy(__func__, unit, port,
                  [&](const PhyView &view) { return give(status, view.phy.mdix != 0 ? 1 : 0); });
}

// The port itself before another one was set.
int soc_phyctrl_primary_set(int unit, soc_port_t port, soc_port_t primary) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (local_port(primary) < 0) return BCM_E_PORT;
        view.phy.primary = local_port(primary);
        return BCM_E_NONE;
    });
}

int soc_phyctrl_primary_get(int unit, soc_port_t port, soc_port_t *primary) {
    return on_phy(__func__, unit, port, [&](const PhyView &view) {
        return give(primary, view.phy.primary < 0 ? view.number : view.phy.primary);
    });
}

int soc_phy_primary_and_offset_get(int unit, soc_port_t port, soc_port_t *primary_port,
                                   int *offset) {
    return on_phy(__func__, unit, port, [&](const PhyView &view) {
        if (primary_port == nullptr || offset == nullptr) return BCM_E_PARAM;
        *primary_port = view.phy.primary < 0 ? view.number : view.phy.primary;
        return give(offset, view.phy.offset);
    });
}

int soc_enable_txrx_set(int unit, soc_port_t port, int txEnable, int rxEnable) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (!within(txEnable, 0, 1) || !within(rxEnable, 0, 1)) return BCM_E_PARAM;
        view.phy.tx_enabled = txEnable;
        view.phy.rx_enabled = rxEnable;
        return BCM_E_NONE;
    });
}

int soc_enable_txrx_get(int unit, soc_port_t port, int *txEnabled, int *rxEnabled) {
    return on_phy(__func__, unit, port, [&](const PhyView &view) {
        if (txEnabled == nullptr || rxEnabled == nullptr) return BCM_E_PARAM;
        *txEnabled = view.phy.tx_enabled;
        return give(rxEnabled, view.phy.rx_enabled);
    });
}

int soc_serdes_mask_100G_set(int unit, soc_port_t port, uint32 mask) {
    return set_phy_field(__func__, unit, port, &Phy::serdes_mask, mask, 0u, ~0u);
}

int soc_serdes_mask_100G_get(int unit, soc_port_t port, uint32 *mask) {
    return get_phy_field(__func__, unit, port, &Phy::serdes_mask, mask);
}

// -- link ----------------------------------------------------------------------------------------

int soc_phyctrl_link_get(int unit, soc_port_t port, int *link) {
    return with_link(__func__, unit, port,
                     [&](const PhyView &view) { return give(link, link_of(view)); });
}

// The port is on and has no link.
int soc_phyctrl_linkfault_get(int unit, soc_port_t port, int *fault) {
    return with_link(__func__, unit, port, [&](const PhyView &view) {
        return give(fault, view.port.enable != 0 && link_of(view) == 0);
    });
}

int soc_phyctrl_link_change(int unit, soc_port_t port, int *link) {
    return with_link(__func__, unit, port,
                     [&](const PhyView &view) { return give(link, link_of(view)); });
}

// The driver has nothing to do when a link comes or goes.
int soc_phyctrl_linkup_evt(int unit, soc_port_t port) {
    return on_phy(__func__, unit, port, [](const PhyView &) { return BCM_E_NONE; });
}

int soc_phyctrl_linkdn_evt(int unit, soc_port_t port) {
    return on_phy(__func__, unit, port, [](const PhyView &) { return BCM_E_NONE; });
}

// -- speed ---------------------------------------------------------------------------------------

// BCM_E_CONFIG: no speed, or one that the port can't run at.
int soc_phyctrl_speed_set(int unit, soc_port_t port, int speed) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (!is_speed(speed) || speed > view.port.speed_max) return BCM_E_CONFIG;
        view.port.speed = speed;
        return BCM_E_NONE;
    });
}

int soc_phyctrl_speed_get(int unit, soc_port_t port, int *speed) {
    return get_of_port(__func__, unit, port, &Port::speed, speed);
}

// A port that ran faster slows down.
int soc_phyctrl_set_speed_max(int unit, soc_port_t port, int speed_max) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (!is_speed(speed_max)) return BCM_E_CONFIG;
        view.port.speed_max = speed_max;
        view.port.speed = std::min(view.port.speed, speed_max);
        return BCM_E_NONE;
    });
}

int soc_phyctrl_auto_negotiate_set(int unit, soc_port_t port, int an) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (!within(an, 0, 1)) return BCM_E_PARAM;
        view.port.autoneg = an;
        std::erase_if(view.phy.autoneg,
                      [](const auto &one) { return belongs(one.first, PhyPart{}); });
        return BCM_E_NONE;
    });
}

// Negotiation is done as soon as the link is up.
int soc_phyctrl_auto_negotiate_get(int unit, soc_port_t port, int *an, int *an_done) {
    return on_phy(__func__, unit, port, [&](const PhyView &view) {
        if (an == nullptr || an_done == nullptr) return BCM_E_PARAM;
        *an = view.port.autoneg;
        return give(an_done, view.port.autoneg != 0 && link_of(view) != 0);
    });
}

// -- medium --------------------------------------------------------------------------------------

int soc_phyctrl_medium_get(int unit, soc_port_t port, soc_port_medium_t *medium) {
    return get_phy_field(__func__, unit, port, &Phy::medium, medium);
}

// The record of a medium's settings is known by address only, so there is nothing to keep or give.
int soc_phyctrl_medium_config_set(int unit, soc_port_t port, soc_port_medium_t,
                                  soc_phy_config_t *cfg) {
    return on_phy(__func__, unit, port,
                  [&](const PhyView &) { return cfg == nullptr ? BCM_E_PARAM : BCM_E_UNAVAIL; });
}

int soc_phyctrl_medium_config_get(int unit, soc_port_t port, soc_port_medium_t,
                                  soc_phy_config_t *cfg) {
    return on_phy(__func__, unit, port,
                  [&](const PhyView &) { return cfg == nullptr ? BCM_E_PARAM : BCM_E_UNAVAIL; });
}

int soc_phyctrl_cable_diag(int unit, soc_port_t port, soc_port_cable_diag_t *status) {
    return on_phy(__func__, unit, port,
                  [&](const PhyView &) { return status == nullptr ? BCM_E_PARAM : BCM_E_UNAVAIL; });
}

int soc_phy_medium_status_register(int unit, soc_port_t port, soc_port_medium_status_cb_t cb,
                                   void *user_data) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        return view.chip.events.handlers.add(
            handler(Registration::kSocMediumStatus, cb, user_data, {view.number}));
    });
}

int soc_phy_medium_status_unregister(int unit, soc_port_t port, soc_port_medium_status_cb_t cb,
                                     void *user_data) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        return view.chip.events.handlers.remove(
            handler(Registration::kSocMediumStatus, cb, user_data, {view.number}));
    });
}

// Sets the medium, 1 copper or 2 fiber, and tells who registered.
void soc_phy_medium_status_notify(int unit, soc_port_t port, soc_port_medium_t medium) {
    on_phy(__func__, unit, port, [&](PhyView &view) {
        if (!within(medium, kMediumCopper, kMediumFiber)) return BCM_E_PARAM;
        view.phy.medium = medium;
        const int number = view.number;
        view.chip.events.raise(
            Registration::kSocMediumStatus, [number, medium](int of, const Handler &one) {
                if (one.key == HandlerKey{number})
                    one.as<_shr_port_medium_status_cb_t>()(of, number, medium, one.user);
            });
        return BCM_E_NONE;
    });
}

// -- abilities -----------------------------------------------------------------------------------

int soc_phyctrl_ability_get(int unit, soc_port_t port, soc_port_mode_t *mode) {
    return give_mode(__func__, unit, port, mode, supported);
}

int soc_phyctrl_adv_remote_get(int unit, soc_port_t port, soc_port_mode_t *mode) {
    return give_mode(__func__, unit, port, mode, remote);
}

int soc_phyctrl_adv_local_get(int unit, soc_port_t port, soc_port_mode_t *mode) {
    return give_mode(__func__, unit, port, mode, advertised);
}

int soc_phyctrl_adv_local_set(int unit, soc_port_t port, soc_port_mode_t mode) {
    return on_phy(__func__, unit, port, [&](PhyView &view) { return advertise(view.port, mode); });
}

int soc_phyctrl_ability_local_get(int unit, soc_port_t port, soc_port_ability_t *ability) {
    return give_ability(__func__, unit, port, ability, supported);
}

int soc_phyctrl_ability_remote_get(int unit, soc_port_t port, soc_port_ability_t *ability) {
    return give_ability(__func__, unit, port, ability, remote);
}

int soc_phyctrl_ability_advert_get(int unit, soc_port_t port, soc_port_ability_t *ability) {
    return give_ability(__func__, unit, port, ability, advertised);
}

int soc_phyctrl_ability_advert_set(int unit, soc_port_t port, soc_port_ability_t *ability) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        std::uint32_t mode = 0;
        if (ability == nullptr) return BCM_E_PARAM;
        for (const std::uint32_t word : ability->words) mode |= word;
        return advertise(view.port, mode);
    });
}

// The port chapter asks the same.
int bcm_port_ability_get(int unit, bcm_port_t port, bcm_port_abil_t *ability_mask) {
    return give_mode(__func__, unit, port, ability_mask, supported);
}
int bcm_port_advert_remote_get(int unit, bcm_port_t port, bcm_port_abil_t *ability_mask) {
    return give_mode(__func__, unit, port, ability_mask, remote);
}
int bcm_petra_port_advert_remote_get(int unit, bcm_port_t port, bcm_port_abil_t *ability_mask) {
    return give_mode(__func__, unit, port, ability_mask, remote);
}
int bcm_port_ability_local_get(int unit, bcm_port_t port, bcm_port_ability_t *ability_mask) {
    return give_ability(__func__, unit, port, ability_mask, supported);
}
int bcm_port_ability_remote_get(int unit, bcm_port_t port, bcm_port_ability_t *ability_mask) {
    return give_ability(__func__, unit, port, ability_mask, remote);
}
int bcm_port_medium_get(int unit, bcm_port_t port, bcm_port_medium_t *medium) {
    return get_phy_field(__func__, unit, port, &Phy::medium, medium);
}
void bcm_port_ability_t_init(bcm_port_ability_t *ability_mask) {
    if (ability_mask != nullptr) *ability_mask = {};
}

}  // extern "C"
