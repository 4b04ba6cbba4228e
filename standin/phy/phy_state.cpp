// The PHYs of a unit as objects of its state.
#include "standin/phy/phy.h"

namespace standin {
namespace {

std::string text_of(const PhyPart &part) {
    return std::to_string(part.phy) + " " + std::to_string(part.lane) + " " +
           std::to_string(part.system_side);
}

template <class Map, class Text>
void visit_numbers(StateVisitor &to, const std::string &name, const Map &map, Text text) {
    for (const auto &[key, value] : map) to.number(name + "[" + text(key) + "]", value);
}

void visit_phy(StateVisitor &to, const Phy &phy) {
    const std::pair<const char *, std::int64_t> numbers[] = {
        {"attached", phy.attached},
        {"interface", phy.interface},
        {"mdix", phy.mdix},
        {"medium", phy.medium},
        {"primary", phy.primary},
        {"offset", phy.offset},
        {"tx_enabled", phy.tx_enabled},
        {"rx_enabled", phy.rx_enabled},
        {"serdes_mask", phy.serdes_mask},
        {"address", phy.address},
        {"internal_address", phy.internal_address},
        {"event", phy.event},
        {"event_data", phy.event_data},
        {"default_reset", phy.default_reset},
    };
    for (const auto &[name, value] : numbers) to.number(name, value);
    to.text("firmware", hex_text(phy.firmware.data(), phy.firmware.size()));
    const auto number = [](auto key) { return std::to_string(key); };
    const auto pair = [](const auto &key) {
        return std::to_string(key.first) + " " + std::to_string(key.second);
    };
    visit_numbers(to, "control", phy.controls, [](const auto &key) {
        return text_of(key.first) + " " + std::to_string(key.second);
    });
    visit_numbers(to, "loopback", phy.loopback, text_of);
    visit_numbers(to, "autoneg", phy.autoneg, text_of);
    visit_numbers(to, "register", phy.registers, pair);
    visit_numbers(to, "access_address", phy.access_addresses, pair);
    visit_numbers(to, "top_register", phy.top_registers, number);
    visit_numbers(to, "diagnostic", phy.diagnostics, number);
}

}  // namespace

// Those that are not as on the first day.
void visit_state(const Phys &phys, StateVisitor &to) {
    static const Phys first;
    if (phys.dividend != first.dividend || phys.divisor != first.divisor) {
        to.object("mdio_clock", "");
        to.number("dividend", phys.dividend);
        to.number("divisor", phys.divisor);
    }
    for (std::size_t port = 0; port < phys.ports.size(); ++port) {
        if (phys.ports[port] == first.ports[port]) continue;
        to.object("phy", std::to_string(port));
        visit_phy(to, phys.ports[port]);
    }
}

}  // namespace standin
