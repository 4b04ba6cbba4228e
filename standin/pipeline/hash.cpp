// What spreads the packets over the members of a trunk or the paths of a group: the same way for
// all packets of a flow, whatever else passes.
#include <algorithm>

#include "standin/model/tables.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

// What of a packet counts, by the selection criterion of a trunk; 0 and others count all.
enum Selection : int {
    kSourceMac = 1,
    kTargetMac = 2,
    kBothMacs = 3,
    kSourceIp = 4,
    kTargetIp = 5,
    kBothIps = 6
};

class Mix {
  public:
    void add(const std::uint8_t *bytes, std::size_t size) {  // FNV-1a
        for (std::size_t i = 0; i < size; ++i) value_ = (value_ ^ bytes[i]) * 0x01000193u;
    }
    template <class T>
    void add(T number) {
        add(reinterpret_cast<const std::uint8_t *>(&number), sizeof number);
    }
    std::uint32_t value() const {
        std::uint32_t mixed = value_ ^ value_ >> 16;  // so that the low bits hang on all
        mixed *= 0x7feb352du;
        return mixed ^ mixed >> 15;
    }

  private:
    std::uint32_t value_ = 0x811c9dc5u;
};

}  // namespace

std::uint32_t flow_hash(const Packet &packet, int selection) {
    const Headers &headers = packet.headers;
    const bool by_ip = headers.ip && (selection < kSourceMac || selection > kBothMacs);
    const bool one_way = selection >= kSourceMac && selection <= kBothIps;
    Mix mix;
    if (by_ip) {
        const IpHeader &ip = *headers.ip;
        if (selection != kTargetIp) mix.add(ip.source.bytes.data(), ip.source.bytes.size());
        if (selection != kSourceIp) mix.add(ip.target.bytes.data(), ip.target.bytes.size());
        if (one_way) return mix.value();
        mix.add(ip.protocol);
        // Only the first fragment has ports, and all of a packet go one way.
        if (headers.ports && !ip.is_fragment()) {
            mix.add(headers.ports->source);
            mix.add(headers.ports->target);
        }
        return mix.value();
    }
    if (selection != kTargetMac) mix.add(headers.ethernet.source, kMacSize);
    if (selection != kSourceMac) mix.add(headers.ethernet.target, kMacSize);
    mix.add(packet.vid);
    return mix.value();
}

int trunk_member(Run &run, const Packet &packet, bcm_trunk_t trunk) {
    const Trunk *const found = find_in(run.chip.groups.trunks, trunk);
    if (found == nullptr) return -1;
    std::array<int, kTrunkMembers> up{};
    std::size_t count = 0;
    for (const bcm_trunk_member_t &member : found->members) {
        const int port = local_port(member.gport);
        if (port > 0 && count < up.size() && has_port(found->egress, port) &&
            run.chip.ports.find(port)->link() != 0)
            up[count++] = port;
    }
    if (count == 0) return -1;
    const int port = up[flow_hash(packet, found->info.psc) % count];
    run.step(
        "lag",
        [&] { return "port " + std::to_string(port) + " of " + std::to_string(count) + " up"; },
        run.trace == nullptr ? std::string() : text_of(object(ObjectKind::kTrunk, trunk)));
    return port;
}

}  // namespace standin
