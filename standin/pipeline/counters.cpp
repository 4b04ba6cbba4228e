// The counters of ports and reasons.
#include "sdk/constants.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

void count(PortCounters &all, Traffic &kinds, const EthernetHeader &header, std::size_t size) {
    const std::size_t bytes = size + kChecksumSize;
    ++all.packets;
    all.bytes += bytes;
    if (header.target != nullptr && header.is_group())
        ++(header.is_broadcast() ? kinds.broadcast : kinds.multicast);
    ++kinds.by_size[size_class(bytes)];
}

PortTraffic &traffic_of(Run &run, int port) {
    return run.state.traffic[static_cast<std::size_t>(port)];
}

// Frames that nobody could have sent so are errors of the line, all others are discarded.
bool is_error(Reason reason) {
    return reason == Reason::kTooShort || reason == Reason::kTooLong ||
           reason == Reason::kTruncated || reason == Reason::kBadHeader;
}

bool is_egress(Reason reason) {
    return reason == Reason::kEgressDown || reason == Reason::kEgressDiscards ||
           reason == Reason::kEgressVlan || reason == Reason::kEgressStp ||
           reason == Reason::kEgressTooLong;
}

}  // namespace

void count_in(Run &run, const Packet &packet) {
    if (run.dry) return;
    count(run.chip.ports.find(packet.port)->in, traffic_of(run, packet.port).in,
          packet.headers.ethernet, packet.frame.size());
}

void count_out(Run &run, const Packet &packet, int port, std::size_t size) {
    if (run.dry) return;
    count(run.chip.ports.find(port)->out, traffic_of(run, port).out, packet.headers.ethernet, size);
}

void Run::end(Reason reason, int port, std::string object) {
    if (trace != nullptr) trace->end(reason, std::move(object));
    if (dry) return;
    ++state.ended[static_cast<std::size_t>(reason)];
    if (port < 0 || row_of(reason).outcome != Outcome::kDropped) return;
    PortTraffic &traffic = traffic_of(*this, port);
    Traffic &side = is_egress(reason) ? traffic.out : traffic.in;
    ++(is_error(reason) ? side.errors : side.discards);
}

}  // namespace standin
