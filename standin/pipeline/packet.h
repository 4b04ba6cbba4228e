// A frame on its way, and the run of the pipeline that it belongs to.
#pragma once
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sdk/bcm/field_types.h"
#include "standin/model/switch.h"
#include "standin/pipeline/headers.h"
#include "standin/pipeline/state.h"
#include "standin/pipeline/trace.h"

namespace standin {

// Where a frame goes.
struct Way {
    enum class Kind : std::uint8_t {
        kNowhere,
        kPort,
        kTrunk,
        kFlood,    // all members of the VLAN
        kGroup,    // of multicast
        kPortSet,  // a set that a rule names
        kProcessor,
        kEnd  // for a reason
    };
    Kind kind = Kind::kNowhere;
    int number = 0;  // of the port, trunk or group
    bcm_pbmp_t ports{};
    Reason reason{};
    std::string object{};  // what decided; kept for a trace only
};

// What routing changes in a frame.
struct Rewrite {
    const std::uint8_t *target = nullptr;
    const std::uint8_t *source = nullptr;
    bool hop = false;  // one hop less
};

struct Packet {
    View frame;
    Headers headers;
    int port = 0;    // where it arrived; the processor's own for what that sends
    int trunk = -1;  // of which the port is a member
    bcm_vlan_t vid = 0;
    const Vlan *vlan = nullptr;
    bcm_vlan_t out_vid = 0;  // where it leaves; another one if it is routed
    const Vlan *out_vlan = nullptr;
    std::uint8_t priority = 0;  // of the tag that it leaves with
    std::uint8_t drop_bit = 0;
    int internal_priority = 0;
    int queue = -1;  // -1: by priority
    int color = bcmColorGreen;

    bool station = false;  // sent to a router address of this switch
    bool routed = false;
    bool source_known = false;
    bool target_known = false;
    bool host_known = false;
    bool route_known = false;
    bcm_vrf_t vrf = 0;
    int stp = 0;
    Way way;
    Rewrite rewrite;
    bool learns = true;

    std::optional<std::uint8_t> service;  // a new DSCP with its ECN bits
    std::optional<std::uint8_t> hops;
    std::array<std::uint8_t, 6> new_source{};
    std::array<std::uint8_t, 6> new_target{};
    bcm_pbmp_t added{};                // ports that get it too
    bcm_pbmp_t masked{};               // ports that do not get it
    std::vector<bcm_gport_t> mirrors;  // destinations that get it as it came

    bool copied = false;  // to the processor, besides its way
    bcm_rx_reasons_t reasons{};
    std::uint32_t matched = 0;  // the rule that sent it there
    int cpu_queue = -1;
};

// A copy that left a port, or came to the processor.
struct Departure {
    int port = 0;
    int queue = 0;
    Bytes frame;
};

struct Delivery {
    Bytes frame;
    bcm_rx_reasons_t reasons{};
    int port = 0;
    int trunk = -1;
    bcm_vlan_t vid = 0;
    std::uint8_t priority = 0;
    std::uint8_t drop_bit = 0;
    int internal_priority = 0;
    int color = 0;
    int queue = 0;
    bool untagged = false;
    std::uint32_t matched = 0;
    std::uint64_t time = 0;
};

// One frame through the pipeline with all its copies. What has to happen without the lock is
// collected here.
struct Run {
    Run(Switch &its_chip, PipelineState &its_state, bool is_dry, Trace *its_trace)
        : chip(its_chip), state(its_state), dry(is_dry), trace(its_trace) {}

    Switch &chip;
    PipelineState &state;
    const bool dry;  // nothing is learned, counted, taken out of a bucket or kept
    Trace *const trace;
    std::vector<Departure> departures;
    std::vector<Delivery> deliveries;
    std::vector<std::pair<int, Bytes>> returning;  // from ports in loopback, to be run next

    // The text is made only if somebody traces.
    template <class Text>
    void step(const char *stage, Text &&text, std::string object = {}) {
        if (trace != nullptr) trace->step(stage, text(), std::move(object));
    }
    template <class Title>
    void enter(Title &&title) {
        if (trace != nullptr) trace->enter(title());
    }
    void leave() {
        if (trace != nullptr) trace->leave();
    }

    // A copy ends. `port` is where its end counts as a discard, if it is one; -1 for none.
    void end(Reason reason, int port, std::string object = {});

    // Says once, by name, what the pipeline does not do.
    void cannot(const std::string &what);
};

// What a stage says: go on, or the frame has ended.
class [[nodiscard]] Verdict {
  public:
    static Verdict next() { return Verdict(false); }
    // Counts and traces the end of the frame that arrived.
    static Verdict end(Run &run, const Packet &packet, Reason reason, std::string object = {}) {
        run.end(reason, packet.port, std::move(object));
        return Verdict(true);
    }

    // The stage has seen to the end itself.
    static Verdict taken() { return Verdict(true); }

    bool ended() const { return ended_; }

  private:
    explicit Verdict(bool ended) : ended_(ended) {}
    bool ended_;
};

}  // namespace standin
