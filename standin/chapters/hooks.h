// What a test of an agent, or a test of the stand-in, may do that no agent can: let packets
// arrive, time pass and links break. C linkage, so that `ctypes` reaches them too.
#pragma once
#include "sdk/bcm/l2_types.h"

extern "C" {

// Forgets every device and the whole state of the platform. REQUIRES: no call is running.
void standin_reset(void);

// A packet with this source address arrives on `port` (a local number, or a global one of a
// trunk). The address is learned as a dynamic entry, or moves there, or is heard again.
// BCM_E_DISABLED: the table is frozen, the port does not learn, or a static entry stands.
// BCM_E_FULL: the table, or BCM_E_RESOURCE: a learn limit, is reached.
int standin_l2_learn(int unit, bcm_mac_t mac, bcm_vlan_t vid, int port);

// `seconds` pass for the MAC table: dynamic entries that were not heard for the age time go.
int standin_l2_age(int unit, int seconds);

// The far end of the link of `port` comes (1) or goes (0); it is there at the start.
int standin_port_peer_set(int unit, int port, int present);

// `packets` of `bytes` in all pass `port`: inwards for `outwards` 0, else outwards.
int standin_port_traffic(int unit, int port, int outwards, unsigned packets,
                         unsigned long long bytes);

// Counters of a field processor statistic grow by this.
int standin_field_stat_hit(int unit, int stat_id, unsigned packets, unsigned long long bytes);

// What the platform was told: `name` is one of standby_sup, sso, shutting_down, interrupts,
// ports; -1 for another name.
int standin_platform_value(const char *name);

// The agent's name as last told, never null; valid until the next call of setOmbraAgentName.
const char *standin_agent_name(void);
}
