// The PHY of each port, as its driver sees it. What the port itself has too, such as enable, speed,
// duplex, negotiation, loopback and abilities, is kept there and only there.
//
// Port n has the internal PHY n, of one lane or, for a large port, four. It has an external PHY
// too while an accessor is installed for its unit and ExternalPhyId n, of any kind.
#pragma once
#include <array>
#include <cstdint>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "native/values.h"
#include "sdk/variables.h"
#include "standin/chapters/linkscan.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"

namespace standin {

constexpr int kEveryLane = -1;
constexpr int kMostLanes = 4;
constexpr int kMediumCopper = 1;
constexpr int kMediumFiber = 2;
constexpr std::uint16_t kLastPhyAddress = 0x3ff;
constexpr std::uint16_t kInternalPhys = 0x80;  // address of the internal PHY of port 0

// One PHY of the chain of a port (0 internal, 1 external), one lane or all, and its side: 0 towards
// the line, 1 towards the system. {} is what the plain calls mean.
struct PhyPart {
    int phy = 0;
    int lane = kEveryLane;
    int system_side = 0;

    auto operator<=>(const PhyPart &) const = default;
    bool is_plain() const { return *this == PhyPart{}; }
    // The same PHY and side, all lanes.
    PhyPart whole() const { return {phy, kEveryLane, system_side}; }
};

// Whether `part` is one of the lanes of `whole`, or `whole` itself.
inline bool belongs(const PhyPart &part, const PhyPart &whole) {
    return whole.lane == kEveryLane && part.whole() == whole;
}

struct Phy {
    bool attached = true;  // its driver is
    int interface = 0;
    int mdix = 0;
    int medium = kMediumFiber;
    int primary = -1;  // the port itself
    int offset = 0;
    int tx_enabled = 1;
    int rx_enabled = 1;
    std::uint32_t serdes_mask = 0;
    std::uint16_t address = 0;
    std::uint16_t internal_address = 0;
    int event = -1;  // the last one told, with its data
    std::uint32_t event_data = 0;
    std::vector<std::uint8_t> firmware;
    std::map<std::pair<PhyPart, int>, std::uint32_t> controls;                // by kind of control
    std::map<PhyPart, int> loopback;                                          // but the plain one
    std::map<PhyPart, int> autoneg;                                           // but the plain one
    std::map<std::pair<int, std::uint32_t>, std::uint16_t> registers;         // lane, address
    std::map<std::pair<int, std::uint32_t>, std::uint16_t> access_addresses;  // lane, device
    std::map<std::uint8_t, std::uint16_t> top_registers;  // of a primary port, by offset
    std::map<std::uint32_t, std::uint32_t> diagnostics;
    bool default_reset = true;

    bool operator==(const Phy &) const = default;

    // The driver's settings as they were on the first day; addresses stay.
    void reset();
};

struct Phys {
    Phys();

    std::array<Phy, kPorts> ports;
    std::array<std::uint32_t, kPorts> fell{};  // by device: the link was down since that was told
    int dividend = 1;                          // of the clock on the MDIO bus
    int divisor = 128;
};

void visit_state(const Phys &phys, StateVisitor &to);

// A PHY, while the model's lock is held.
struct PhyView {
    Switch &chip;
    int number;  // of its port
    Port &port;
    Phy &phy;
    Phys &all;
};

// Up when the link of the port is, with both directions on.
inline int link_of(const PhyView &view) {
    return view.port.link() != 0 && view.phy.tx_enabled != 0 && view.phy.rx_enabled != 0;
}

// REQUIRES: the model's lock is held.
inline Phys &phys_of(Switch &chip) { return chip.layers.of<Phys>(); }

// The port behind an argument, after soc_phy_cb_xlate_port_func, where that is set.
int translated(int unit, soc_port_t port);

constexpr int lanes_of(int port) { return is_large(port) ? kMostLanes : 1; }

// on_switch with the PHY of a port. BCM_E_PORT: no such port.
template <class Body>
int on_any_phy(const char *function, int unit, soc_port_t port, Body &&body) {
    const int translated_port = translated(unit, port);
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(translated_port);
        if (number < 0) return BCM_E_PORT;
        Phys &all = phys_of(chip);
        PhyView view{chip, number, *chip.ports.find(number),
                     all.ports[static_cast<std::size_t>(number)], all};
        const int status = body(view);
        note_link(chip, number);
        return status;
    });
}

// The same with its driver at work; BCM_E_INIT where that was detached.
template <class Body>
int on_phy(const char *function, int unit, soc_port_t port, Body &&body) {
    return on_any_phy(function, unit, port,
                      [&](PhyView &view) { return view.phy.attached ? body(view) : BCM_E_INIT; });
}

}  // namespace standin
