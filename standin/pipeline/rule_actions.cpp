// What each action of a rule does.
#include <algorithm>

#include "sdk/constants.h"
#include "standin/pipeline/rules.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

struct Act {
    Run &run;
    Packet &packet;
    const Match &match;
    RuleResult &result;
};

void say(Act &act, const std::string &text) {
    if (act.run.trace != nullptr) act.result.text += "; " + text;
}

// Some actions have a form for each colour; which colour, or -1 for all.
struct Base {
    int action;
    int color;
};

Base base_of(int action) {
    using enum_pair = std::pair<int, Base>;
    static constexpr enum_pair kForms[] = {
        {bcmFieldActionGpDrop, {bcmFieldActionDrop, bcmColorGreen}},
        {bcmFieldActionYpDrop, {bcmFieldActionDrop, bcmColorYellow}},
        {bcmFieldActionRpDrop, {bcmFieldActionDrop, bcmColorRed}},
        {bcmFieldActionGpCopyToCpu, {bcmFieldActionCopyToCpu, bcmColorGreen}},
        {bcmFieldActionYpCopyToCpu, {bcmFieldActionCopyToCpu, bcmColorYellow}},
        {bcmFieldActionRpCopyToCpu, {bcmFieldActionCopyToCpu, bcmColorRed}},
        {bcmFieldActionGpDscpNew, {bcmFieldActionDscpNew, bcmColorGreen}},
        {bcmFieldActionYpDscpNew, {bcmFieldActionDscpNew, bcmColorYellow}},
        {bcmFieldActionRpDscpNew, {bcmFieldActionDscpNew, bcmColorRed}},
        {bcmFieldActionGpCosQNew, {bcmFieldActionCosQNew, bcmColorGreen}},
        {bcmFieldActionYpCosQNew, {bcmFieldActionCosQNew, bcmColorYellow}},
        {bcmFieldActionRpCosQNew, {bcmFieldActionCosQNew, bcmColorRed}},
    };
    const auto found = std::ranges::find(kForms, action, &enum_pair::first);
    return found == std::end(kForms) ? Base{action, -1} : found->second;
}

void copy_to_processor(Act &act, int reason) {
    act.packet.copied = true;
    add_reason(act.packet.reasons, reason);
    act.packet.matched = static_cast<std::uint32_t>(act.match.id);
    say(act, "copied to the processor");
}

void redirect(Act &act, Way way, const std::string &where) {
    Packet &packet = act.packet;
    if (act.run.trace != nullptr) way.object = text_of(object(ObjectKind::kRule, act.match.id));
    if (way.kind == Way::Kind::kPort && way.number == kCpuPort) {
        way.kind = Way::Kind::kProcessor;
        add_reason(packet.reasons, bcmRxReasonFilterRedirect);
        packet.matched = static_cast<std::uint32_t>(act.match.id);
    }
    packet.way = std::move(way);
    say(act, "redirected to " + where);
}

// A port, a trunk, a multicast group, as a number or a gport.
void redirect_port(Act &act, std::uint32_t number) {
    const int gport = static_cast<int>(number);
    if (gport_type(gport) == kTrunkGport.type) {
        const int trunk = gport & kTrunkGport.mask;
        return redirect(act, {.kind = Way::Kind::kTrunk, .number = trunk},
                        "trunk " + std::to_string(trunk));
    }
    const int port = local_port(gport);
    if (port < 0)
        return redirect(act, {.kind = Way::Kind::kEnd, .reason = Reason::kElsewhere}, "elsewhere");
    redirect(act, {.kind = Way::Kind::kPort, .number = port}, "port " + std::to_string(port));
}

void redirect_hop(Act &act, std::uint32_t hop) {
    if (!act.packet.headers.ip) return say(act, "not routed: no IP");
    route_to(act.run, act.packet, static_cast<bcm_if_t>(hop), nullptr, -1,
             act.run.trace == nullptr ? std::string()
                                      : text_of(object(ObjectKind::kRule, act.match.id)));
}

void set_service(Act &act, std::uint32_t service, const char *what) {
    act.packet.service = static_cast<std::uint8_t>(service);
    say(act, std::string(what) + " becomes " + std::to_string(service));
}

// Changes of the packet; false for an action of another sort.
bool change_packet(Act &act, int action, const FieldAction &given) {
    Packet &packet = act.packet;
    const std::uint32_t value = given.param0;
    switch (action) {
        case bcmFieldActionCosQNew:
        case bcmFieldActionUcastCosQNew:
        case bcmFieldActionMcastCosQNew:
            packet.queue = static_cast<int>(value % kQueues);
            say(act, "queue " + std::to_string(packet.queue));
            return true;
        case bcmFieldActionCosQCpuNew:
            packet.cpu_queue = static_cast<int>(value % kCpuQueues);
            return true;
        case bcmFieldActionPrioPktAndIntNew:
            packet.internal_priority = static_cast<int>(value & 7);
            [[fallthrough]];
        case bcmFieldActionPrioPktNew:
        case bcmFieldActionOuterVlanPrioNew:
            packet.priority = value & 7;
            say(act, "priority " + std::to_string(value & 7));
            return true;
        case bcmFieldActionPrioIntNew:
            packet.internal_priority = static_cast<int>(value & 7);
            say(act, "internal priority " + std::to_string(value & 7));
            return true;
        case bcmFieldActionOuterVlanCfiNew:
            packet.drop_bit = value & 1;
            return true;
        case bcmFieldActionDscpNew:
            if (packet.headers.ip)
                set_service(act, value << 2 | (packet.headers.ip->service & 3u), "service");
            return true;
        case bcmFieldActionTosNew:
            if (packet.headers.ip) set_service(act, value, "service");
            return true;
        case bcmFieldActionTtlSet:
        case bcmFieldActionReplaceTtl:
            packet.hops = static_cast<std::uint8_t>(value);
            say(act, "hops become " + std::to_string(value));
            return true;
        case bcmFieldActionDoNotChangeTtl:
            packet.rewrite.hop = false;
            return true;
        case bcmFieldActionDropPrecedence:
            packet.color = static_cast<int>(value);
            return true;
        case bcmFieldActionOuterVlanNew:
            if (const Vlan *const vlan = act.run.chip.vlans.find(static_cast<bcm_vlan_t>(value))) {
                packet.out_vid = static_cast<bcm_vlan_t>(value);
                packet.out_vlan = vlan;
                say(act, "VLAN becomes " + std::to_string(value));
            }
            return true;
        case bcmFieldActionSrcMacNew:
        case bcmFieldActionReplaceSrcMac:
            if (given.mac) {
                packet.new_source = *given.mac;
                packet.rewrite.source = packet.new_source.data();
            }
            return true;
        case bcmFieldActionDstMacNew:
        case bcmFieldActionReplaceDstMac:
        case bcmFieldActionL3ChangeMacDa:
            if (given.mac) {
                packet.new_target = *given.mac;
                packet.rewrite.target = packet.new_target.data();
            }
            return true;
        default:
            return false;
    }
}

// Changes of the way; false for an action of another sort.
bool change_way(Act &act, int action, const FieldAction &given) {
    Packet &packet = act.packet;
    switch (action) {
        case bcmFieldActionDrop:
            act.result.drops = true;
            say(act, "drop");
            return true;
        case bcmFieldActionDropCancel:
            act.result.drops = false;
            return true;
        case bcmFieldActionCopyToCpu:
            copy_to_processor(act, bcmRxReasonFilterMatch);
            return true;
        case bcmFieldActionTrap:
            copy_to_processor(act, bcmRxReasonFilterMatch);
            act.result.drops = true;
            return true;
        case bcmFieldActionCopyToCpuCancel:
        case bcmFieldActionSwitchToCpuCancel:
            packet.copied = false;
            return true;
        case bcmFieldActionRedirectPort:  // module and port, or a gport
            redirect_port(
                act, gport_type(static_cast<int>(given.param0)) != 0 ? given.param0 : given.param1);
            return true;
        case bcmFieldActionRedirectTrunk:
            redirect_port(
                act, static_cast<std::uint32_t>(kTrunkGport.of(static_cast<int>(given.param0))));
            return true;
        case bcmFieldActionRedirectMcast:
        case bcmFieldActionRedirectIpmc:
            redirect(act, {.kind = Way::Kind::kGroup, .number = static_cast<int>(given.param0)},
                     "multicast group " + std::to_string(given.param0));
            return true;
        case bcmFieldActionRedirectPbmp:
        case bcmFieldActionRedirectBcastPbmp:
            if (given.ports)
                redirect(act, {.kind = Way::Kind::kPortSet, .ports = *given.ports}, "ports");
            return true;
        case bcmFieldActionRedirectEgrNextHop:
        case bcmFieldActionL3Switch:
            redirect_hop(act, given.param0);
            return true;
        case bcmFieldActionEgressMask:
            if (given.ports) add_ports(packet.masked, *given.ports);
            return true;
        case bcmFieldActionEgressPortsAdd:
            if (given.ports) add_ports(packet.added, *given.ports);
            return true;
        case bcmFieldActionDoNotLearn:
            packet.learns = false;
            say(act, "not learned");
            return true;
        case bcmFieldActionMirrorIngress:
        case bcmFieldActionMirrorEgress:
            packet.mirrors.push_back(static_cast<bcm_gport_t>(given.param1));
            say(act, "mirrored");
            return true;
        default:
            return false;
    }
}

// Actions that need nothing done: their meaning stands elsewhere.
bool says_nothing(int action) {
    return action == bcmFieldActionUpdateCounter || action == bcmFieldActionMeterConfig ||
           action == bcmFieldActionColorIndependent;
}

}  // namespace

void apply_actions(Run &run, Packet &packet, const Match &match, std::vector<int> &taken,
                   RuleResult &result) {
    Act act{run, packet, match, result};
    for (const auto &[action, given] : match.rule->actions) {
        const Base base = base_of(action);
        if (base.color >= 0 && base.color != result.color) continue;
        const int kind = base.action;
        if (std::ranges::find(taken, kind) != taken.end()) continue;
        if (!change_packet(act, base.action, given) && !change_way(act, base.action, given) &&
            !says_nothing(base.action)) {
            run.cannot("the action " + action_name(action) + " does nothing");
            continue;
        }
        taken.push_back(kind);
        // What is cancelled here is not done by a group of lower priority either.
        if (kind == bcmFieldActionDropCancel) taken.push_back(bcmFieldActionDrop);
        if (kind == bcmFieldActionCopyToCpuCancel) taken.push_back(bcmFieldActionCopyToCpu);
    }
}

}  // namespace standin
