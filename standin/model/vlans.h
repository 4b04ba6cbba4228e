// VLANs and spanning tree groups of one switch.
//
// Invariants:
//   1. The default VLAN and the default group exist.
//   2. Each VLAN is in exactly one group; a new one is in the default group.
//   3. Untagged members are members.
#pragma once
#include <array>
#include <map>

#include "sdk/constants.h"
#include "sdk/scalars.h"
#include "standin/model/port_set.h"

namespace standin {

constexpr bcm_vlan_t kFirstVlan = 1;
constexpr bcm_vlan_t kLastVlan = 4094;
constexpr std::size_t kVlanCapacity = 4094;
constexpr bcm_stg_t kFirstStg = 1;
constexpr bcm_stg_t kLastStg = 255;
constexpr std::size_t kStgCapacity = 255;

// A bit of the flags of `bcm_vlan_gport_add`: the port sends this VLAN without a tag.
constexpr int kVlanGportUntagged = 0x1;

struct Vlan {
    bcm_pbmp_t members{};
    bcm_pbmp_t untagged{};
    bcm_stg_t stg = kFirstStg;
    std::map<bcm_gport_t, int> gports;  // members that are no local ports, with their flags
};

struct Stg {
    std::array<int, kPorts> state{};  // BCM_STG_STP_...
};

struct Vlans {
    Vlans();

    static Vlan first_vlan();

    Vlan *find(bcm_vlan_t vid);
    Stg *find_stg(bcm_stg_t stg);

    std::map<bcm_vlan_t, Vlan> vlans;
    bcm_vlan_t default_vlan = kFirstVlan;
    std::map<bcm_stg_t, Stg> stgs;
    bcm_stg_t default_stg = kFirstStg;
};

// The state of a port in a group. BCM_E_NOT_FOUND, BCM_E_PORT, BCM_E_PARAM.
int set_stp(Vlans &vlans, bcm_stg_t stg, bcm_port_t port, int state);
int get_stp(Vlans &vlans, bcm_stg_t stg, bcm_port_t port, int *state);

constexpr bool is_vlan(bcm_vlan_t vid) { return vid >= kFirstVlan && vid <= kLastVlan; }

}  // namespace standin
