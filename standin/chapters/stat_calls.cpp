// The calls of the statistics chapter on the counters of a port.
#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "sdk/bcm/stat.h"
#include "standin/chapters/packet_run.h"

using namespace standin;

namespace {

// All counters of one direction.
struct Side : Traffic {
    Side(const PortCounters &all, const Traffic &kinds)
        : Traffic(kinds),
          packets(all.packets),
          bytes(all.bytes),
          unicast(all.packets - kinds.multicast - kinds.broadcast) {}

    std::uint64_t packets;
    std::uint64_t bytes;
    std::uint64_t unicast;
};

// What a kind counts: fields of one side, or of both.
struct StatRow {
    int kind;
    std::uint64_t Side::*field;
    bool in;
    bool out;
};

constexpr StatRow kStats[] = {
    {snmpIfInOctets, &Side::bytes, true, false},
    {snmpIfHCInOctets, &Side::bytes, true, false},
    {snmpIfInUcastPkts, &Side::unicast, true, false},
    {snmpIfHCInUcastPkts, &Side::unicast, true, false},
    {snmpIfInMulticastPkts, &Side::multicast, true, false},
    {snmpIfHCInMulticastPkts, &Side::multicast, true, false},
    {snmpIfInBroadcastPkts, &Side::broadcast, true, false},
    {snmpIfHCInBroadcastPkts, &Side::broadcast, true, false},
    {snmpIfInDiscards, &Side::discards, true, false},
    {snmpDot1dPortInDiscards, &Side::discards, true, false},
    {snmpIfInErrors, &Side::errors, true, false},
    {snmpDot1dTpPortInFrames, &Side::packets, true, false},
    {snmpIfOutOctets, &Side::bytes, false, true},
    {snmpIfHCOutOctets, &Side::bytes, false, true},
    {snmpIfOutUcastPkts, &Side::unicast, false, true},
    {snmpIfHCOutUcastPkts, &Side::unicast, false, true},
    {snmpIfOutMulticastPkts, &Side::multicast, false, true},
    {snmpIfHCOutMulticastPkts, &Side::multicast, false, true},
    {snmpIfOutBroadcastPkts, &Side::broadcast, false, true},
    {snmpIfHCOutBroadcastPckts, &Side::broadcast, false, true},
    {snmpIfOutDiscards, &Side::discards, false, true},
    {snmpIfOutErrors, &Side::errors, false, true},
    {snmpDot1dTpPortOutFrames, &Side::packets, false, true},
    {snmpEtherStatsTXNoErrors, &Side::packets, false, true},
    {snmpEtherStatsOctets, &Side::bytes, true, true},
    {snmpEtherStatsPkts, &Side::packets, true, true},
    {snmpEtherStatsMulticastPkts, &Side::multicast, true, true},
    {snmpEtherStatsBroadcastPkts, &Side::broadcast, true, true},
    {snmpEtherStatsDropEvents, &Side::discards, true, true},
};

// The first kind of a row of size classes, both sides together, and of each alone.
constexpr int kSizeKinds[kSizeClasses][3] = {
    {snmpEtherStatsPkts64Octets, snmpBcmReceivedPkts64Octets, snmpBcmTransmittedPkts64Octets},
    {snmpEtherStatsPkts65to127Octets, snmpBcmReceivedPkts65to127Octets,
     snmpBcmTransmittedPkts65to127Octets},
    {snmpEtherStatsPkts128to255Octets, snmpBcmReceivedPkts128to255Octets,
     snmpBcmTransmittedPkts128to255Octets},
    {snmpEtherStatsPkts256to511Octets, snmpBcmReceivedPkts256to511Octets,
     snmpBcmTransmittedPkts256to511Octets},
    {snmpEtherStatsPkts512to1023Octets, snmpBcmReceivedPkts512to1023Octets,
     snmpBcmTransmittedPkts512to1023Octets},
    {snmpEtherStatsPkts1024to1518Octets, snmpBcmReceivedPkts1024to1518Octets,
     snmpBcmTransmittedPkts1024to1518Octets},
    {snmpBcmEtherStatsPkts1522to2047Octets, snmpBcmReceivedPkts1519to2047Octets,
     snmpBcmTransmittedPkts1519to2047Octets},
    {snmpBcmEtherStatsPkts2048to4095Octets, snmpBcmReceivedPkts2048to4095Octets,
     snmpBcmTransmittedPkts2048to4095Octets},
    {snmpBcmEtherStatsPkts4095to9216Octets, snmpBcmReceivedPkts4095to9216Octets,
     snmpBcmTransmittedPkts4095to9216Octets},
    {snmpBcmEtherStatsPkts9217to16383Octets, snmpBcmReceivedPkts9217to16383Octets,
     snmpBcmTransmittedPkts9217to16383Octets},
};

// Nothing else is told apart, so the other counters stand at 0.
std::uint64_t value_of(const Side &in, const Side &out, int kind) {
    const auto *const row = std::ranges::find(kStats, kind, &StatRow::kind);
    if (row != std::end(kStats))
        return (row->in ? in.*row->field : 0) + (row->out ? out.*row->field : 0);
    if (kind == snmpEtherStatsRXNoErrors) return in.packets - in.errors;
    if (kind == snmpIfInNUcastPkts) return in.multicast + in.broadcast;
    if (kind == snmpIfOutNUcastPkts) return out.multicast + out.broadcast;
    for (std::size_t i = 0; i < kSizeClasses; ++i) {
        if (kind == kSizeKinds[i][0]) return in.by_size[i] + out.by_size[i];
        if (kind == kSizeKinds[i][1]) return in.by_size[i];
        if (kind == kSizeKinds[i][2]) return out.by_size[i];
    }
    return 0;
}

PortTraffic &traffic_of(Switch &chip, int port) {
    return pipeline_of(chip).traffic[static_cast<std::size_t>(port)];
}

// What counters had when they were cleared alone, by port and kind.
struct Cleared {
    std::map<std::pair<int, int>, std::uint64_t> at;
};

void visit_state(const Cleared &cleared, StateVisitor &to) {
    for (const auto &[counter, value] : cleared.at) {
        to.object("stat_cleared",
                  std::to_string(counter.first) + " " + std::to_string(counter.second));
        to.number("at", static_cast<std::int64_t>(value));
    }
}

std::uint64_t counted(Switch &chip, int port, int kind) {
    const Port &one = *chip.ports.find(port);
    const PortTraffic &traffic = traffic_of(chip, port);
    const auto &cleared = chip.layers.of<Cleared>().at;
    const auto found = cleared.find({port, kind});
    return value_of({one.in, traffic.in}, {one.out, traffic.out}, kind) -
           (found == cleared.end() ? 0 : found->second);
}

// With the switch and a local port.
template <class Body>
int on_counters(const char *function, int unit, int number, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int port = local_port(number);
        return port < 0 ? refused_port("port", number) : int{body(chip, port)};
    });
}

void clear(Switch &chip, int port) {
    chip.ports.find(port)->in = chip.ports.find(port)->out = PortCounters{};
    traffic_of(chip, port) = PortTraffic{};
    std::erase_if(chip.layers.of<Cleared>().at,
                  [&](const auto &one) { return one.first.first == port; });
}

template <class T>
int get(const char *function, int unit, int number, const bcm_stat_val_t *kinds, int count,
        T *values) {
    return on_counters(function, unit, number, [&](Switch &chip, int local) {
        if (count < 1 || kinds == nullptr || values == nullptr) return BCM_E_PARAM;
        for (int i = 0; i < count; ++i) {
            if (kinds[i] < 0) return BCM_E_PARAM;
            values[i] = static_cast<T>(counted(chip, local, kinds[i]));
        }
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

int bcm_stat_init(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        for (int port = 0; port < kPorts; ++port) clear(chip, port);
        return BCM_E_NONE;
    });
}

// The counters are always up to date.
int bcm_stat_sync(int unit) {
    return on_switch(__func__, unit, [](Switch &) { return BCM_E_NONE; });
}

int bcm_stat_clear(int unit, bcm_port_t port) {
    return on_counters(__func__, unit, port, [](Switch &chip, int local) {
        clear(chip, local);
        return BCM_E_NONE;
    });
}

// The counter goes on from here; those beside it stay.
int bcm_stat_clear_single(int unit, bcm_port_t port, bcm_stat_val_t type) {
    return on_counters(__func__, unit, port, [&](Switch &chip, int local) {
        if (type < 0) return int{BCM_E_PARAM};
        chip.layers.of<Cleared>().at[{local, type}] += counted(chip, local, type);
        return int{BCM_E_NONE};
    });
}

#define STAT_GET(name, T)                                                \
    int name(int unit, bcm_port_t port, bcm_stat_val_t type, T *value) { \
        return get(__func__, unit, port, &type, 1, value);               \
    }
#define STAT_MULTI_GET(name, T)                                                              \
    int name(int unit, bcm_port_t port, int nstat, bcm_stat_val_t *stat_arr, T *value_arr) { \
        return get(__func__, unit, port, stat_arr, nstat, value_arr);                        \
    }
STAT_GET(bcm_stat_get, uint64)
STAT_GET(bcm_stat_get32, uint32)
STAT_GET(bcm_stat_sync_get, uint64)
STAT_GET(bcm_stat_sync_get32, uint32)
STAT_MULTI_GET(bcm_stat_multi_get, uint64)
STAT_MULTI_GET(bcm_stat_multi_get32, uint32)
STAT_MULTI_GET(bcm_stat_sync_multi_get, uint64)
STAT_MULTI_GET(bcm_stat_sync_multi_get32, uint32)
#undef STAT_GET
#undef STAT_MULTI_GET

}  // extern "C"
