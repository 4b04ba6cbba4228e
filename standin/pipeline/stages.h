// The stages of the pipeline in their order, a file each. Each reads the model that the calls
// write, and either passes the frame on or ends it with a reason.
//
//     parse -> port -> control -> vlan -> stp -> station -> l3 / l2 -> rules -> learn
//           -> mirror -> forward (lag, multicast, flooding) -> egress -> counters
//
//     what goes to the processor branches off at control, rules and forward
#pragma once
#include <string_view>

#include "standin/pipeline/packet.h"

namespace standin {

Verdict parse_stage(Run &run, Packet &packet);
Verdict port_stage(Run &run, Packet &packet);
Verdict vlan_stage(Run &run, Packet &packet);
Verdict control_stage(Run &run, Packet &packet);  // link protocols, ARP, DHCP, IGMP, ND
Verdict stp_stage(Run &run, Packet &packet);
void station_stage(Run &run, Packet &packet);
void l3_stage(Run &run, Packet &packet);  // sets the way of what is routed
void l2_stage(Run &run, Packet &packet);  // and of what is bridged
void rule_stage(Run &run, Packet &packet);
Verdict learn_stage(Run &run, Packet &packet);
void mirror_stage(Run &run, const Packet &packet);
void forward_stage(Run &run, Packet &packet);

// One copy leaves by `port` in the VLAN of the packet. `flooded` copies know that the port is a
// member, up and forwarding.
void egress_stage(Run &run, const Packet &packet, int port);
// Whether a port would send in the VLAN of the packet; else why not.
std::optional<Reason> egress_refusal(Run &run, const Packet &packet, int port);

// The finished frame leaves the port, or comes back through it.
void dispatch(Run &run, int port, int queue, Bytes frame);

// The packet ends at the processor, or in front of it.
void processor_stage(Run &run, const Packet &packet);
// A copy does.
void copy_to_processor(Run &run, const Packet &packet);

// Copies the frame as it is to mirror destinations.
void mirror_to(Run &run, const Packet &packet, View frame, bcm_gport_t destination);
// Those of a port; `outwards` or inwards.
std::vector<bcm_gport_t> mirrors_of_port(const Switch &chip, int port, bool outwards);

// The member of a trunk that takes this packet: the same for all packets of a flow. -1: none is up.
int trunk_member(Run &run, const Packet &packet, bcm_trunk_t trunk);
// Of one flow always the same, for choosing among `count`.
std::uint32_t flow_hash(const Packet &packet, int selection);

// Fills in the way to a next hop: an egress object, a multipath group, or an interface with the
// address beside it.
void route_to(Run &run, Packet &packet, bcm_if_t hop, const bcm_mac_t beside, int port,
              std::string object);

// What a call without a model of its own keeps: the bytes of the row of that key behind the key;
// null if there is none. `key` is made of the arguments in their order.
const char *kept_row(const Switch &chip, std::string_view family, std::string_view key);
// The value of a kind of switch control, 0 if it was never set.
int switch_control(const Switch &chip, int kind);

// What the calls `bcm_vlan_translate_add` and `_egress_add` say of a VLAN on a port; a negative
// priority leaves the old one.
struct Translation {
    bcm_vlan_t vid;
    int priority;
};
std::optional<Translation> translation_of(const Switch &chip, std::string_view family, int port,
                                          bcm_vlan_t vid);

void count_in(Run &run, const Packet &packet);
void count_out(Run &run, const Packet &packet, int port, std::size_t size);

// Text for traces.
std::string text_of_mac(const std::uint8_t *mac);
std::string text_of_ip(const IpAddress &address);

}  // namespace standin
