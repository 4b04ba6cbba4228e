// Controls, loopback and negotiation, of the whole PHY, of a lane, or of one PHY of the chain.
//
// A part of a PHY that was not told apart does what the whole PHY does; telling the whole PHY
// something ends what was told to its parts.
#include <algorithm>

#include "sdk/soc/phyctrl.h"
#include "standin/phy/phy.h"

using namespace standin;

namespace {

bool is_control(int type) {
    return within(type, 0, SOC_PHY_CONTROL_COUNT - 1) ||
           within(type, PHY_DIAG_CTRL_START, PHY_DIAG_CTRL_LAST);
}

bool is_part(const PhyPart &part, int port) {
    return within(part.phy, 0, 1) && within(part.system_side, 0, 1) &&
           within(part.lane, kEveryLane, lanes_of(port) - 1);
}

// on_phy with a part of the PHY that there is, else BCM_E_PARAM.
template <class Body>
int on_part(const char *function, int unit, soc_port_t port, const PhyPart &part, Body &&body) {
    return on_phy(function, unit, port, [&](PhyView &view) {
        return is_part(part, view.number) ? body(view) : BCM_E_PARAM;
    });
}

int set_control(const char *function, int unit, soc_port_t port, const PhyPart &part, int type,
                uint32 value) {
    return on_part(function, unit, port, part, [&](PhyView &view) {
        if (!is_control(type)) return BCM_E_PARAM;
        auto &all = view.phy.controls;
        std::erase_if(all, [&](const auto &one) {
            return one.first.second == type && belongs(one.first.first, part);
        });
        all[{part, type}] = value;
        return BCM_E_NONE;
    });
}

int get_control(const char *function, int unit, soc_port_t port, const PhyPart &part, int type,
                uint32 *value) {
    return on_part(function, unit, port, part, [&](const PhyView &view) {
        if (!is_control(type)) return BCM_E_PARAM;
        const auto &all = view.phy.controls;
        auto found = all.find({part, type});
        if (found == all.end()) found = all.find({part.whole(), type});
        return give(value, found == all.end() ? 0 : found->second);
    });
}

using Settings = std::map<PhyPart, int>;

int set_switch(const char *function, int unit, soc_port_t port, const PhyPart &part,
               Settings Phy::*settings, int value) {
    return on_part(function, unit, port, part, [&](PhyView &view) {
        if (!within(value, 0, 1)) return BCM_E_PARAM;
        Settings &all = view.phy.*settings;
        std::erase_if(all, [&](const auto &one) { return belongs(one.first, part); });
        all[part] = value;
        return BCM_E_NONE;
    });
}

// `otherwise` where neither the part nor its whole was told.
int get_switch(const PhyPart &part, const Settings &all, int otherwise) {
    auto found = all.find(part);
    if (found == all.end()) found = all.find(part.whole());
    return found != all.end() ? found->second : otherwise;
}

int set_loopback(const char *function, int unit, soc_port_t port, int enable) {
    return on_phy(function, unit, port, [&](PhyView &view) {
        if (!within(enable, 0, 1)) return BCM_E_PARAM;
        if (enable != 0)
            view.port.loopback = BCM_PORT_LOOPBACK_PHY;
        else if (view.port.loopback == BCM_PORT_LOOPBACK_PHY)  // not one of the MAC's
            view.port.loopback = BCM_PORT_LOOPBACK_NONE;
        std::erase_if(view.phy.loopback,
                      [](const auto &one) { return belongs(one.first, PhyPart{}); });
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

// -- the whole PHY -------------------------------------------------------------------------------

// BCM_E_PARAM for a number that is neither a SOC_PHY_CONTROL_ nor a PHY_DIAG_CTRL_ one. A control
// that was never set is 0.
int soc_phyctrl_control_set(int unit, soc_port_t port, soc_phy_control_t ctrl_type, uint32 value) {
    return set_control(__func__, unit, port, {}, ctrl_type, value);
}

int soc_phyctrl_control_get(int unit, soc_port_t port, soc_phy_control_t ctrl_type, uint32 *value) {
    return get_control(__func__, unit, port, {}, ctrl_type, value);
}

// In loopback the link of an enabled port is up, with nobody at the far end; there is no need to
// wait for it.
int soc_phyctrl_loopback_set(int unit, soc_port_t port, int enable, int) {
    return set_loopback(__func__, unit, port, enable);
}

// The PHYs behind the internal one follow it, so `en_int_phy` makes no difference.
int soc_phyctrl_loopback_extended_set(int unit, soc_port_t port, int enable, int, uint32) {
    return set_loopback(__func__, unit, port, enable);
}

int soc_phyctrl_loopback_get(int unit, soc_port_t port, int *enable) {
    return on_phy(__func__, unit, port, [&](const PhyView &view) {
        return give(enable, view.port.loopback == BCM_PORT_LOOPBACK_PHY);
    });
}

// Remembered; the event of a reset of the PHY has no number of ours.
int soc_phyctrl_notify(int unit, soc_port_t port, soc_phy_event_t event, uint32 data) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (event < 0) return BCM_E_PARAM;
        view.phy.event = event;
        view.phy.event_data = data;
        return BCM_E_NONE;
    });
}

// -- a lane --------------------------------------------------------------------------------------

int soc_phyctrl_lane_control_set(int unit, soc_port_t port, int lane, soc_phy_control_t ctrl_type,
                                 uint32 value) {
    return set_control(__func__, unit, port, {0, lane, 0}, ctrl_type, value);
}

int soc_phyctrl_lane_control_get(int unit, soc_port_t port, int lane, soc_phy_control_t ctrl_type,
                                 uint32 *value) {
    return get_control(__func__, unit, port, {0, lane, 0}, ctrl_type, value);
}

// -- one PHY of the chain ------------------------------------------------------------------------

int soc_phyctrl_redirect_control_set(int unit, soc_port_t port, int phyn, int phy_lane,
                                     int sys_side, soc_phy_control_t ctrl_type, uint32 value) {
    return set_control(__func__, unit, port, {phyn, phy_lane, sys_side}, ctrl_type, value);
}

int soc_phyctrl_redirect_control_get(int unit, soc_port_t port, int phyn, int phy_lane,
                                     int sys_side, soc_phy_control_t ctrl_type, uint32 *value) {
    return get_control(__func__, unit, port, {phyn, phy_lane, sys_side}, ctrl_type, value);
}

int soc_phyctrl_redirect_auto_negotiate_set(int unit, soc_port_t port, int phyn, int phy_lane,
                                            int sys_side, int an) {
    const PhyPart part{phyn, phy_lane, sys_side};
    if (part.is_plain()) return soc_phyctrl_auto_negotiate_set(unit, port, an);
    return set_switch(__func__, unit, port, part, &Phy::autoneg, an);
}

int soc_phyctrl_redirect_auto_negotiate_get(int unit, soc_port_t port, int phyn, int phy_lane,
                                            int sys_side, int *an, int *an_done) {
    const PhyPart part{phyn, phy_lane, sys_side};
    if (part.is_plain()) return soc_phyctrl_auto_negotiate_get(unit, port, an, an_done);
    return on_part(__func__, unit, port, part, [&](const PhyView &view) {
        if (an == nullptr || an_done == nullptr) return BCM_E_PARAM;
        *an = get_switch(part, view.phy.autoneg, view.port.autoneg);
        return give(an_done, *an != 0 && view.port.link() != 0);
    });
}

int soc_phyctrl_redirect_loopback_set(int unit, soc_port_t port, int phyn, int phy_lane,
                                      int sys_side, int enable, int serdes_linkup_wait) {
    const PhyPart part{phyn, phy_lane, sys_side};
    if (part.is_plain()) return soc_phyctrl_loopback_set(unit, port, enable, serdes_linkup_wait);
    return set_switch(__func__, unit, port, part, &Phy::loopback, enable);
}

int soc_phyctrl_redirect_loopback_get(int unit, soc_port_t port, int phyn, int phy_lane,
                                      int sys_side, int *enable) {
    const PhyPart part{phyn, phy_lane, sys_side};
    if (part.is_plain()) return soc_phyctrl_loopback_get(unit, port, enable);
    return on_part(__func__, unit, port, part, [&](const PhyView &view) {
        const int usual = view.port.loopback == BCM_PORT_LOOPBACK_PHY;
        return give(enable, get_switch(part, view.phy.loopback, usual));
    });
}

// -- diagnostics ---------------------------------------------------------------------------------

// `op_cmd` is a PHY_DIAG_CTRL_ number. `op_type` 1 stores the uint32 behind `arg` under it, 2 reads
// it back, and 0 and 3 are commands, which take note of nothing. The first argument after the port
// says which PHY, and is not looked at.
int soc_phyctrl_diag_ctrl(int unit, soc_port_t port, uint32, int op_type, int op_cmd, void *arg) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (!within(op_cmd, PHY_DIAG_CTRL_START, PHY_DIAG_CTRL_LAST) || !within(op_type, 0, 3))
            return BCM_E_PARAM;
        const auto key = static_cast<std::uint32_t>(op_cmd);
        if (op_type == 1) {
            if (arg == nullptr) return BCM_E_PARAM;
            view.phy.diagnostics[key] = *static_cast<uint32 *>(arg);
        } else if (op_type == 2) {
            const auto found = view.phy.diagnostics.find(key);
            return give(static_cast<uint32 *>(arg),
                        found == view.phy.diagnostics.end() ? 0 : found->second);
        }
        return BCM_E_NONE;
    });
}

}  // extern "C"
