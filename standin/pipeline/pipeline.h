// A frame arrives: the whole way through the pipeline.
#pragma once
#include <optional>

#include "standin/pipeline/packet.h"

namespace standin {

constexpr int kMostReturns = 8;  // of a frame through ports in loopback

// Runs a frame that arrived on `port` (the processor's own for what that sends), and all that comes
// back through ports in loopback. REQUIRES: the model's lock.
void run_frame(Run &run, int port, View frame);

// Sends the frame out of a port as it is, as the processor may; without its tag if `untagged`.
void send_as_is(Run &run, int port, View frame, bool untagged);

// The state of the pipeline of a switch. REQUIRES: the model's lock.
PipelineState &pipeline_of(Switch &chip);

}  // namespace standin
