// The order of the stages, and what goes round.
#include "standin/pipeline/pipeline.h"

#include <algorithm>

#include "standin/base/log.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

// Whether the frame is to be forwarded; if not it has ended.
bool arrives(Run &run, Packet &packet) {
    using Stage = Verdict (*)(Run &, Packet &);
    constexpr Stage kStages[] = {parse_stage, port_stage, vlan_stage, control_stage, stp_stage};
    return std::ranges::all_of(kStages, [&](Stage stage) { return !stage(run, packet).ended(); });
}

void run_once(Run &run, int port, View frame) {
    Packet packet;
    packet.frame = frame;
    packet.port = port;
    const bool goes_on = arrives(run, packet);
    count_in(run, packet);
    if (!goes_on) return;
    l2_stage(run, packet);
    station_stage(run, packet);
    if (packet.station) l3_stage(run, packet);
    rule_stage(run, packet);
    if (learn_stage(run, packet).ended()) return;
    mirror_stage(run, packet);
    forward_stage(run, packet);
}

}  // namespace

void run_frame(Run &run, int port, View frame) {
    if (!run.dry)
        if (const auto capture = run.state.captures.find(port); capture != run.state.captures.end())
            capture->second.add(Capture::kIn, run.chip.now, frame);
    run_once(run, port, frame);
    for (int round = 0; !run.returning.empty(); ++round) {
        std::vector<std::pair<int, Bytes>> back;
        back.swap(run.returning);
        for (const auto &[from, bytes] : back) {
            run.enter([&, at = from] { return "back through port " + std::to_string(at); });
            if (round < kMostReturns)
                run_once(run, from, bytes);
            else
                run.end(Reason::kLoop, from);
            run.leave();
        }
    }
}

void send_as_is(Run &run, int port, View frame, bool untagged) {
    Packet packet;
    packet.frame = frame;
    if (const auto fault = parse(frame, packet.headers); fault && frame.size() < kEthernetSize)
        return run.end(*fault, -1);
    const Port &one = *run.chip.ports.find(port);
    if (one.link() == 0) return run.end(Reason::kEgressDown, port);
    Bytes bytes(frame.begin(), frame.end());
    if (untagged && packet.headers.ethernet.tags > 0)
        bytes.erase(bytes.begin() + 2 * kMacSize, bytes.begin() + 2 * kMacSize + kTagSize);
    count_out(run, packet, port, bytes.size());
    for (const bcm_gport_t destination : mirrors_of_port(run.chip, port, true))
        mirror_to(run, packet, bytes, destination);
    dispatch(run, port, packet.queue < 0 ? 0 : packet.queue, std::move(bytes));
}

PipelineState &pipeline_of(Switch &chip) { return chip.layers.of<PipelineState>(); }

void Run::cannot(const std::string &what) {
    if (!state.told.insert(what).second) return;
    log_message(kSeverityWarning, kLayerBcm, kSourcePacket, kNoUnit, what);
}

const char *kept_row(const Switch &chip, std::string_view family, std::string_view key) {
    const auto table = chip.generic.find(family);
    if (table == chip.generic.end()) return nullptr;
    const auto row = table->second.rows.find(key);
    return row == table->second.rows.end() ? nullptr : row->second.bytes.data() + key.size();
}

int switch_control(const Switch &chip, int kind) {
    const char *const row =
        kept_row(chip, "bcm_switch_control", {reinterpret_cast<const char *>(&kind), sizeof kind});
    int value = 0;
    if (row != nullptr) std::memcpy(&value, row, sizeof value);
    return value;
}

}  // namespace standin
