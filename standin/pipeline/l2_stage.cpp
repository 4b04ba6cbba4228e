// Bridging: where the target address is.
#include "sdk/bcm/mcast_types.h"
#include "sdk/constants.h"
#include "standin/model/tables.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

// The ports of a multicast address that has no group, by address and VLAN.
bool by_address(Run &run, Packet &packet) {
    std::string key(reinterpret_cast<const char *>(packet.headers.ethernet.target), kMacSize);
    key.append(reinterpret_cast<const char *>(&packet.vid), sizeof packet.vid);
    const char *const row = kept_row(run.chip, "bcm_mcast_addr", key);
    if (row == nullptr) return false;
    bcm_mcast_addr_t address{};
    std::memcpy(&address, row, sizeof address);
    packet.way = {
        .kind = Way::Kind::kPortSet, .ports = address.pbmp, .object = "multicast address"};
    return true;
}

void to_entry(Run &run, Packet &packet, const bcm_l2_addr_t &entry) {
    std::string by = run.trace == nullptr ? std::string() : text_of(mac_object(entry));
    packet.target_known = true;
    if ((entry.flags & kL2BlackHole) != 0) {
        packet.way = {.kind = Way::Kind::kEnd, .reason = Reason::kBlackHole, .object = by};
    } else if (packet.headers.ethernet.is_group() && entry.l2mc_group != 0) {
        packet.way = {.kind = Way::Kind::kGroup, .number = entry.l2mc_group, .object = by};
    } else if ((entry.flags & kL2Trunk) != 0) {
        packet.way = {.kind = Way::Kind::kTrunk, .number = entry.tgid, .object = by};
    } else if (entry.modid != 0 || local_port(entry.port) < 0) {
        packet.way = {.kind = Way::Kind::kEnd, .reason = Reason::kElsewhere, .object = by};
    } else if (local_port(entry.port) == kCpuPort) {
        packet.way = {.kind = Way::Kind::kProcessor, .object = by};
        add_reason(packet.reasons, bcmRxReasonL2Cpu);
    } else {
        packet.way = {.kind = Way::Kind::kPort, .number = local_port(entry.port), .object = by};
    }
    run.step(
        "l2", [&] { return std::string("found"); }, by);
}

}  // namespace

void l2_stage(Run &run, Packet &packet) {
    const EthernetHeader &header = packet.headers.ethernet;
    L2Table &table = run.chip.l2.table;
    packet.source_known = table.find_key(l2_key(header.source, packet.vid)) != nullptr;
    const L2Row *const row = table.find_key(l2_key(header.target, packet.vid));
    if (row != nullptr) return to_entry(run, packet, row->entry);
    if (header.is_group() && !header.is_broadcast() && by_address(run, packet)) return;
    packet.way = {.kind = Way::Kind::kFlood};
    const char *what = "an unknown address: flooded";
    if (header.is_broadcast()) {
        what = "broadcast: flooded";
    } else {
        const int control =
            header.is_group() ? bcmSwitchUnknownMcastToCpu : bcmSwitchUnknownUcastToCpu;
        if (switch_control(run.chip, control) != 0) {
            packet.copied = true;
            add_reason(packet.reasons,
                       header.is_group() ? bcmRxReasonMcastMiss : bcmRxReasonL2DestMiss);
        }
    }
    run.step("l2", [&] { return std::string(what); });
}

}  // namespace standin
