// What the pipeline keeps of a switch besides what the calls write: counters, token buckets, the
// rules in the form in which they are searched, captures. It stands under the model's lock and
// starts anew with the chip.
#pragma once
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "standin/model/ports.h"
#include "standin/model/queues.h"
#include "standin/pipeline/capture.h"
#include "standin/pipeline/classifier.h"
#include "standin/pipeline/meter.h"
#include "standin/pipeline/receiver.h"
#include "standin/pipeline/traffic.h"

namespace standin {

struct PipelineState {
    std::array<std::uint64_t, kReasons> ended{};  // by reason
    std::array<std::array<std::uint64_t, kQueues>, kPorts> queued{};
    std::array<PortTraffic, kPorts> traffic{};
    std::map<bcm_policer_t, Meter> meters;
    Classifier rules;
    Receiver receiver;
    std::map<int, Capture> captures;  // by port
    std::set<std::string> told;       // what no stage can do, told once by name
};

}  // namespace standin
