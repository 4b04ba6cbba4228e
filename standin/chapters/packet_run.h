// How calls let frames run: the pipeline under the model's lock, everything that calls somebody or
// waits for something after it.
#pragma once
#include <utility>
#include <vector>

#include "standin/model/model.h"
#include "standin/pipeline/pipeline.h"

namespace standin {

// Sees to it that, when the lock is free, the processor gets the packets of the run and interfaces
// that are joined to ports their frames.
void hand_over(Run &run);

// on_switch with a run of the pipeline: `body(run)` answers a status. The copies that left ports
// are moved to `departures`, which may be null.
template <class Body>
int run_packets(const char *function, int unit, bool dry, Trace *trace,
                std::vector<Departure> *departures, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        Run run(chip, pipeline_of(chip), dry, trace);
        const int answer = body(run);
        if (!dry) hand_over(run);
        if (departures != nullptr) *departures = std::move(run.departures);
        return answer;
    });
}

// The key of a handler of received packets, which is called in the order of priorities.
constexpr std::size_t kKeyPriority = 0;
constexpr std::size_t kKeyQueue = 1;
constexpr std::size_t kKeyFlags = 2;

// Whether any port is joined to an interface, and sending a frame to the one that is joined to a
// port, if there is one. Neither waits.
bool any_joined();
void send_to_interface(int unit, int port, View frame);
// Ends all joins.
void leave_all();

}  // namespace standin
