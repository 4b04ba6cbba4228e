// What a test of an agent, or a test of the stand-in, may do that no agent can: let packets
// arrive, time pass and links break. From Python they are called by the bench.
#pragma once
#include "sdk/bcm/l2_types.h"

extern "C" {

// Forgets every device and the whole state of the platform. REQUIRES: no call is running.
void standin_reset(void);

// A packet with this source address arrives on `port` (a local number, or a global one of a
// trunk). The address is learned as a dynamic entry, or moves there, or is heard again.
// The packet carries the tag of the VLAN; on a member of a trunk it has come from the trunk.
// BCM_E_DISABLED: the table is frozen, a static entry stands, or the port does not learn, is
// disabled, discards, filters the VLAN or is blocked in its spanning tree. BCM_E_NOT_FOUND: there
// is no such VLAN or trunk.
// BCM_E_FULL: the table, or BCM_E_RESOURCE: a learn limit, is reached.
int standin_l2_learn(int unit, bcm_mac_t mac, bcm_vlan_t vid, int port);

// `microseconds` pass for the unit: MAC addresses age, links are scanned, heartbeats beat. Whoever
// is to hear of it does so before the call returns.
int standin_time_pass(int unit, unsigned long long microseconds);

// The far end of the link of `port` comes (1) or goes (0); it is there at the start.
int standin_link_set(int unit, int port, int present);

// The chip tells of itself: an event of BCM_SWITCH_EVENT_, bcmOAMEvent, bcmCosqEvent, or of the
// recovery from a deadlock of a queue. BCM_E_DISABLED: the interrupts of the chip do not reach us.
int standin_switch_event(int unit, int event, unsigned arg1, unsigned arg2, unsigned arg3);
int standin_oam_event(int unit, int type, unsigned flags, int group, int endpoint);
int standin_oam_performance_event(int unit, int type, int group, int endpoint);
int standin_oam_pm_event(int unit, int type);
int standin_cosq_event(int unit, int type, int gport, int cosq, int index, int value);
int standin_pfc_deadlock(int unit, int port, int cosq, int event);

// `packets` of `bytes` in all pass `port`: inwards for `outwards` 0, else outwards.
int standin_port_traffic(int unit, int port, int outwards, unsigned packets,
                         unsigned long long bytes);

// Why the last call that was refused on this thread has its status, in one sentence: "call(unit):
// STATUS: field, what was found, what is allowed or who holds it". Never null; valid until the next
// call of this function on the thread.
const char *standin_last_refusal(void);

// Counters of a field processor statistic grow by this.
int standin_field_stat_hit(int unit, int stat_id, unsigned packets, unsigned long long bytes);

// What the platform was told: `name` is one of standby_sup, sso, shutting_down, interrupts,
// ports; -1 for another name.
int standin_platform_value(const char *name);

// The agent's name as last told, never null; valid until the next call of setOmbraAgentName.
const char *standin_agent_name(void);
}
