// The spanning tree: what blocks, what only learns, what forwards.
#include "sdk/constants.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

constexpr const char *kStates[] = {"disabled", "blocking", "listening", "learning", "forwarding"};

}  // namespace

Verdict stp_stage(Run &run, Packet &packet) {
    const bcm_stg_t number = packet.vlan->stg;
    const auto port = static_cast<std::size_t>(packet.port);
    packet.stp = run.chip.vlans.find_stg(number)->state[port];
    if (packet.port == kCpuPort) return Verdict::next();
    run.step("stp", [&] {
        return "port " + std::to_string(packet.port) + " in group " + std::to_string(number) +
               " is " + kStates[packet.stp];
    });
    if (packet.stp == BCM_STG_STP_FORWARD) return Verdict::next();
    if (packet.stp == BCM_STG_STP_LEARN) {
        const Verdict learned = learn_stage(run, packet);
        if (learned.ended()) return learned;
    }
    return Verdict::end(run, packet, Reason::kStpState,
                        "spanning tree group " + std::to_string(number));
}

}  // namespace standin
