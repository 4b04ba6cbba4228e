// Learning where a station is.
#include "standin/model/l2_learn.h"
#include "standin/pipeline/stages.h"

namespace standin {

Verdict learn_stage(Run &run, Packet &packet) {
    const std::uint8_t *const source = packet.headers.ethernet.source;
    if ((source[0] & 1) != 0) return Verdict::end(run, packet, Reason::kGroupSource);
    if (packet.port == kCpuPort || !packet.learns || run.dry) return Verdict::next();
    if ((run.chip.ports.find(packet.port)->learn & 1) == 0) return Verdict::next();
    bcm_l2_addr_t entry{};
    std::memcpy(entry.mac, source, kMacSize);
    entry.vid = packet.vid;
    if (packet.trunk >= 0) {
        entry.flags = kL2Trunk;
        entry.tgid = packet.trunk;
    } else {
        entry.port = packet.port;
    }
    // A full table or a reached limit does not stop the frame.
    const int status = learn_entry(run.chip, entry);
    run.step("learn", [&] {
        return text_of_mac(source) +
               (status == BCM_E_NONE ? " is here" : " is not learned: " + std::to_string(status));
    });
    return Verdict::next();
}

}  // namespace standin
