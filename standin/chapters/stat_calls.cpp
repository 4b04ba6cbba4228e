// The calls of the statistics chapter on the counters of a port.
//
// All packets are unicast and none is broken, so the other counters stand at 0.
#include "sdk/bcm/stat.h"
#include "standin/chapters/port_access.h"

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

template <class T>
int get(const char *function, int unit, int number, const bcm_stat_val_t *kinds, int count,
        T *values) {
    return on_port(function, unit, number, [&](const Port &port) {
        if (count < 1 || kinds == nullptr || values == nullptr) return BCM_E_PARAM;
        for (int i = 0; i < count; ++i) {
            if (kinds[i] < 0) return BCM_E_PARAM;
            values[i] = static_cast<T>(value_of(port, kinds[i]));
        }
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

int bcm_stat_init(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        for (int port = 0; port < kPorts; ++port)
            chip.ports.find(port)->in = chip.ports.find(port)->out = PortCounters{};
        return BCM_E_NONE;
    });
}

// The counters are always up to date.
int bcm_stat_sync(int unit) {
    return on_switch(__func__, unit, [](Switch &) { return BCM_E_NONE; });
}

int bcm_stat_clear(int unit, bcm_port_t port) {
    return on_port(__func__, unit, port, [](Port &one) {
        one.in = one.out = PortCounters{};
        return BCM_E_NONE;
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
