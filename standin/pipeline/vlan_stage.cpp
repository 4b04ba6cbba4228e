// The VLAN of a frame: of its tag, of a translation, of the station, or the port's own.
#include "sdk/constants.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

template <class... T>
std::string key_of(const T &...parts) {
    std::string key;
    (key.append(reinterpret_cast<const char *>(&parts), sizeof parts), ...);
    return key;
}

template <class T>
T read_at(const char *bytes, std::size_t at) {
    T value;
    std::memcpy(&value, bytes + at, sizeof value);
    return value;
}

}  // namespace

std::optional<Translation> translation_of(const Switch &chip, std::string_view family, int port,
                                          bcm_vlan_t vid) {
    // The port may have been given as a number or a gport.
    const char *row = kept_row(chip, family, key_of(port, vid));
    if (row == nullptr) row = kept_row(chip, family, key_of(kLocalGport.of(port), vid));
    if (row == nullptr) return std::nullopt;
    return Translation{read_at<bcm_vlan_t>(row, 0), read_at<int>(row, sizeof(bcm_vlan_t))};
}

namespace {

// An untagged frame of a station that has a VLAN of its own.
bool by_station(Run &run, Packet &packet) {
    const std::string key(reinterpret_cast<const char *>(packet.headers.ethernet.source), kMacSize);
    const char *const row = kept_row(run.chip, "bcm_vlan_mac", key);
    if (row == nullptr) return false;
    packet.vid = read_at<bcm_vlan_t>(row, 0);
    packet.priority = static_cast<std::uint8_t>(read_at<int>(row, sizeof packet.vid) & 7);
    run.step("vlan", [&] { return std::to_string(packet.vid) + " by source address"; });
    return true;
}

void assign(Run &run, Packet &packet, const Port &port) {
    const EthernetHeader &header = packet.headers.ethernet;
    if (header.tags > 0) {
        packet.vid = header.tag[0].vlan();
        packet.priority = header.tag[0].priority();
        packet.drop_bit = header.tag[0].drop_bit();
    } else {
        packet.priority = static_cast<std::uint8_t>(port.untagged_priority & 7);
    }
    if (packet.vid != 0) {
        run.step("vlan", [&] { return std::to_string(packet.vid) + " by tag"; });
        const auto other = translation_of(run.chip, "bcm_vlan_translate", packet.port, packet.vid);
        if (!other) return;
        packet.vid = other->vid;
        if (other->priority >= 0) packet.priority = static_cast<std::uint8_t>(other->priority & 7);
        run.step("vlan", [&] { return "translated to " + std::to_string(packet.vid); });
        return;
    }
    if (header.tags == 0 && by_station(run, packet)) return;
    packet.vid = port.untagged_vlan;
    run.step("vlan", [&] { return std::to_string(packet.vid) + " by port"; });
}

}  // namespace

Verdict vlan_stage(Run &run, Packet &packet) {
    const Port &port = *run.chip.ports.find(packet.port);
    assign(run, packet, port);
    packet.internal_priority = packet.priority;
    packet.vlan = packet.out_vlan = run.chip.vlans.find(packet.vid);
    packet.out_vid = packet.vid;
    if (packet.vlan == nullptr) {
        if (switch_control(run.chip, bcmSwitchUnknownVlanToCpu) != 0) {
            add_reason(packet.reasons, bcmRxReasonUnknownVlan);
            copy_to_processor(run, packet);
        }
        return Verdict::end(run, packet, Reason::kUnknownVlan,
                            "VLAN " + std::to_string(packet.vid));
    }
    if (port.ifilter != 0 && packet.port != kCpuPort &&
        !has_port(packet.vlan->members, packet.port))
        return Verdict::end(run, packet, Reason::kVlanFilter, "VLAN " + std::to_string(packet.vid));
    return Verdict::next();
}

}  // namespace standin
