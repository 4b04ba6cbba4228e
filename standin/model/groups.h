// Trunks, multicast groups, mirrors and policers of one switch.
#pragma once
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "sdk/bcm/mirror_types.h"
#include "sdk/bcm/policer_types.h"
#include "sdk/bcm/trunk_types.h"
#include "standin/model/numbered_map.h"
#include "standin/model/port_set.h"

namespace standin {

constexpr int kTrunks = 256;
constexpr int kTrunkMembers = 64;
constexpr std::size_t kMulticastGroups = 4096;
constexpr std::size_t kMirrorDestinations = 32;
constexpr std::size_t kPolicers = 4096;

// A local port or a system port is member of one trunk at most.
struct Trunk {
    bcm_trunk_info_t info{};
    std::vector<bcm_trunk_member_t> members;          // each port in the form of a gport
    std::map<bcm_gport_t, std::uint32_t> member_ids;  // of those that came as LAG members
    bcm_pbmp_t egress = kAllPorts;
};

struct MulticastGroup {
    using Member = std::pair<bcm_gport_t, bcm_if_t>;  // port and encapsulation

    std::uint32_t flags = 0;
    std::vector<Member> ingress;
    std::vector<Member> egress;
};

// The destinations to which a port is copied.
struct MirroredTo {
    std::vector<bcm_gport_t> destinations;
};

struct Mirrors {
    int mode = 0;
    bcm_port_t to = -1;
    std::map<bcm_gport_t, bcm_mirror_destination_t> destinations;
    // Destinations of a port, by port and flags.
    std::map<std::pair<int, std::uint32_t>, MirroredTo> of_port;
    bcm_pbmp_t ingress{};
    bcm_pbmp_t egress{};
};

struct Policer {
    bcm_policer_config_t config{};
};

struct Groups {
    std::map<bcm_trunk_t, Trunk> trunks;
    std::map<bcm_gport_t, bcm_trunk_t> trunk_of;  // by member
    NumberedMap<bcm_multicast_t, MulticastGroup, 1> multicast;
    Mirrors mirrors;
    NumberedMap<bcm_policer_t, Policer, 1> policers;
};

}  // namespace standin
