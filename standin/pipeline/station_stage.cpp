// Whether a frame is for the router in this switch: sent to the address of an interface of its
// VLAN, or to a station that the agent named.
#include "sdk/bcm/l2_types.h"
#include "standin/model/tables.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

// The interfaces of a VLAN are its users in the index, so that their number does not count.
const bcm_l3_intf_t *interface_of(const Packet &packet, const Switch &chip) {
    const bcm_l3_intf_t *found = nullptr;
    chip.references.each_user(
        object(ObjectKind::kVlan, packet.vid), Use::kInterfaceVlan, [&](const Object &user) {
            const auto *const one = find_in(chip.l3.interfaces, static_cast<bcm_if_t>(user.number));
            if (one != nullptr &&
                (found == nullptr ||
                 std::memcmp(one->l3a_mac_addr, packet.headers.ethernet.target, kMacSize) == 0))
                found = one;
        });
    return found;
}

bool is_station(const Packet &packet, const bcm_l2_station_t &station) {
    const std::uint8_t *const target = packet.headers.ethernet.target;
    for (std::size_t i = 0; i < kMacSize; ++i)
        if (((target[i] ^ station.dst_mac[i]) & station.dst_mac_mask[i]) != 0) return false;
    return ((packet.vid ^ station.vlan) & station.vlan_mask) == 0 &&
           ((packet.port ^ station.src_port) & station.src_port_mask) == 0;
}

bool any_station(const Packet &packet, const Switch &chip) {
    const auto table = chip.generic.find(std::string_view("bcm_l2_station"));
    if (table == chip.generic.end()) return false;
    for (const auto &[key, row] : table->second.rows) {
        bcm_l2_station_t station;
        std::memcpy(&station, row.bytes.data() + key.size(), sizeof station);
        if (is_station(packet, station)) return true;
    }
    return false;
}

}  // namespace

void station_stage(Run &run, Packet &packet) {
    if (!packet.headers.ip || packet.headers.ethernet.is_group()) return;
    const bcm_l3_intf_t *const intf = interface_of(packet, run.chip);
    const bool own = intf != nullptr &&
                     std::memcmp(intf->l3a_mac_addr, packet.headers.ethernet.target, kMacSize) == 0;
    if (!own && !any_station(packet, run.chip)) return;
    if (packet.port != kCpuPort && run.chip.ports.find(packet.port)->l3_enable == 0) {
        run.step("l3", [&] {
            return "port " + std::to_string(packet.port) + " does not route: bridged";
        });
        return;
    }
    packet.station = true;
    packet.vrf = intf == nullptr ? 0 : intf->l3a_vrf;
    run.step(
        "l3", [&] { return "sent to the router of VRF " + std::to_string(packet.vrf); },
        own ? text_of(object(ObjectKind::kInterface, intf->l3a_intf_id)) : "a station");
}

}  // namespace standin
