// The calls of the statistics chapter on the counters of a port.
//
// All packets are unicast and none is broken, so the other counters stand at 0.
#include <map>
#include <utility>

#include "sdk/bcm/stat.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"

using namespace standin;

namespace {

std::uint64_t value_of(const Port &port, int kind) {
    switch (kind) {
        case snmpIfInOctets:
        case snmpIfHCInOctets:
            return port.in.bytes;
        case snmpIfInUcastPkts:
        case snmpIfHCInUcastPkts:
        case snmpDot1dTpPortInFrames:
        case snmpEtherStatsRXNoErrors:
            return port.in.packets;
        case snmpIfOutOctets:
        case snmpIfHCOutOctets:
            return port.out.bytes;
        case snmpIfOutUcastPkts:
        case snmpIfHCOutUcastPkts:
        case snmpDot1dTpPortOutFrames:
        case snmpEtherStatsTXNoErrors:
            return port.out.packets;
        case snmpEtherStatsOctets:
            return port.in.bytes + port.out.bytes;
        case snmpEtherStatsPkts:
            return port.in.packets + port.out.packets;
        default:
            return 0;
    }
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

std::uint64_t counted(Switch &chip, int number, int kind) {
    const auto &cleared = chip.layers.of<Cleared>().at;
    const auto found = cleared.find({number, kind});
    const std::uint64_t value = value_of(*chip.ports.find(number), kind);
    return value - (found == cleared.end() ? 0 : found->second);
}

void clear_all(Switch &chip, int number) {
    Port &port = *chip.ports.find(number);
    port.in = port.out = PortCounters{};
    std::erase_if(chip.layers.of<Cleared>().at,
                  [&](const auto &one) { return one.first.first == number; });
}

// on_switch with the local number of the port.
template <class Body>
int on_counters(const char *function, int unit, bcm_port_t port, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        return number < 0 ? refused_port("port", port) : body(chip, number);
    });
}

template <class T>
int get(const char *function, int unit, int number, const bcm_stat_val_t *kinds, int count,
        T *values) {
    return on_counters(function, unit, number, [&](Switch &chip, int port) {
        if (count < 1 || kinds == nullptr || values == nullptr) return BCM_E_PARAM;
        for (int i = 0; i < count; ++i) {
            if (kinds[i] < 0) return BCM_E_PARAM;
            values[i] = static_cast<T>(counted(chip, port, kinds[i]));
        }
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

int bcm_stat_init(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        for (int port = 0; port < kPorts; ++port) clear_all(chip, port);
        return BCM_E_NONE;
    });
}

// The counters are always up to date.
int bcm_stat_sync(int unit) {
    return on_switch(__func__, unit, [](Switch &) { return BCM_E_NONE; });
}

int bcm_stat_clear(int unit, bcm_port_t port) {
    return on_counters(__func__, unit, port, [](Switch &chip, int number) {
        clear_all(chip, number);
        return BCM_E_NONE;
    });
}

int bcm_stat_clear_single(int unit, bcm_port_t port, bcm_stat_val_t type) {
    return on_counters(__func__, unit, port, [&](Switch &chip, int number) {
        if (type < 0) return int{BCM_E_PARAM};
        chip.layers.of<Cleared>().at[{number, type}] = value_of(*chip.ports.find(number), type);
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
