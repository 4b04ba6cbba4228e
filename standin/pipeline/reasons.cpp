// The table of reasons.
#include "standin/pipeline/reasons.h"

#include <algorithm>
#include <iterator>

namespace standin {
namespace {

constexpr Outcome kSent = Outcome::kSent;
constexpr Outcome kToProcessor = Outcome::kToProcessor;
constexpr Outcome kDropped = Outcome::kDropped;
constexpr Outcome kConsumed = Outcome::kConsumed;

constexpr ReasonRow kRows[] = {
    {Reason::kSent, kSent, "sent", "egress", "sent"},
    {Reason::kToProcessor, kToProcessor, "to_processor", "processor", "handed to the processor"},
    {Reason::kPause, kConsumed, "pause", "port", "a pause frame is for the port itself"},
    {Reason::kTooShort, kDropped, "too_short", "parse", "shorter than an Ethernet header"},
    {Reason::kTooLong, kDropped, "too_long", "port", "longer than the largest frame of the port"},
    {Reason::kTruncated, kDropped, "truncated", "parse", "a header or its packet is cut off"},
    {Reason::kBadHeader, kDropped, "bad_header", "parse", "a header contradicts itself"},
    {Reason::kPortDown, kDropped, "port_down", "port", "the port it arrived on is down"},
    {Reason::kPortDiscards, kDropped, "port_discards", "port", "the port discards such frames"},
    {Reason::kReservedAddress, kDropped, "reserved_address", "control",
     "addresses of link protocols are not forwarded"},
    {Reason::kUnknownVlan, kDropped, "unknown_vlan", "vlan", "there is no such VLAN"},
    {Reason::kVlanFilter, kDropped, "vlan_filter", "vlan",
     "the port filters, and is no member of the VLAN"},
    {Reason::kStpState, kDropped, "stp_state", "stp",
     "the port does not forward in the spanning tree"},
    {Reason::kGroupSource, kDropped, "group_source", "learn", "the source is a group address"},
    {Reason::kProtocolDrop, kDropped, "protocol_drop", "control", "the switch drops this protocol"},
    {Reason::kBlackHole, kDropped, "black_hole", "l2", "the address is a black hole"},
    {Reason::kRuleDrop, kDropped, "rule_drop", "rules", "a rule drops it"},
    {Reason::kBadChecksum, kDropped, "bad_checksum", "l3", "the checksum of the header is wrong"},
    {Reason::kTtlExpired, kDropped, "ttl_expired", "l3", "it has no hop left"},
    {Reason::kNoRoute, kDropped, "no_route", "l3", "no host and no route fits the address"},
    {Reason::kRouteDrop, kDropped, "route_drop", "l3", "the route leads nowhere"},
    {Reason::kTooLargeToRoute, kDropped, "too_large_to_route", "l3",
     "the packet is larger than the interface takes"},
    {Reason::kNoMember, kDropped, "no_member", "l2", "there is no port to which it could go"},
    {Reason::kSamePort, kDropped, "same_port", "l2", "its way out is the way it came in"},
    {Reason::kTrunkEmpty, kDropped, "trunk_empty", "lag", "no member of the trunk is up"},
    {Reason::kElsewhere, kDropped, "elsewhere", "l2", "the way leads to another module"},
    {Reason::kEgressDown, kDropped, "egress_down", "egress", "the port it should leave is down"},
    {Reason::kEgressDiscards, kDropped, "egress_discards", "egress",
     "the port it should leave discards what it sends"},
    {Reason::kEgressVlan, kDropped, "egress_vlan", "egress",
     "the port it should leave is no member of the VLAN"},
    {Reason::kEgressStp, kDropped, "egress_stp", "egress",
     "the port it should leave does not forward in the spanning tree"},
    {Reason::kEgressTooLong, kDropped, "egress_too_long", "egress",
     "longer than the largest frame of the port it should leave"},
    {Reason::kLoop, kDropped, "loop", "loopback", "it has come back too often"},
    {Reason::kRxStopped, kDropped, "rx_stopped", "processor", "nobody has started to receive"},
    {Reason::kRxTooLong, kDropped, "rx_too_long", "processor",
     "longer than the buffers of the receiver"},
    {Reason::kRxRate, kDropped, "rx_rate", "processor", "above the rate of the receiver"},
    {Reason::kRxNoBuffer, kDropped, "rx_no_buffer", "processor",
     "the receiver's allocator gave no buffer"},
};

static_assert(std::size(kRows) == kReasons);
static_assert(std::ranges::all_of(kRows, [](const ReasonRow &row) {
    return &row - kRows == static_cast<std::ptrdiff_t>(row.reason);
}));

}  // namespace

const char *word_of(Outcome outcome) {
    switch (outcome) {
        case Outcome::kSent:
            return "sent";
        case Outcome::kToProcessor:
            return "to the processor";
        case Outcome::kDropped:
            return "dropped";
        case Outcome::kConsumed:
            return "consumed";
    }
    return "";
}

const ReasonRow &row_of(Reason reason) { return kRows[static_cast<std::size_t>(reason)]; }

}  // namespace standin
