// Injecting, tracing, capturing and counting frames.
#include "standin/chapters/packet_hooks.h"

#include <algorithm>
#include <string>

#include "standin/chapters/packet_book.h"
#include "standin/chapters/packet_run.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

int check_frame(const uint8 *frame, int size) {
    return frame == nullptr || !within(size, 1, kLargestBuffer - 1) ? BCM_E_PARAM : BCM_E_NONE;
}

int inject(const char *function, int unit, int port, View frame, bool dry, Trace *trace,
           std::vector<Departure> *departures) {
    return run_packets(function, unit, dry, trace, departures, [&](Run &run) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        run_frame(run, number, frame);
        return int{BCM_E_NONE};
    });
}

View view_of(const uint8 *frame, int size) { return {frame, static_cast<std::size_t>(size)}; }

template <class Body>
int on_port_of(const char *function, int unit, int port, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        return number < 0 ? refused_port("port", port) : int{body(pipeline_of(chip), number)};
    });
}

void give_count(unsigned long long *out, std::uint64_t count) {
    if (out != nullptr) *out = count;
}

}  // namespace

extern "C" {

int standin_packet_inject(int unit, int port, const uint8 *frame, int size, standin_frame_f sent,
                          void *context) {
    if (const int status = check_frame(frame, size); status != BCM_E_NONE) return status;
    std::vector<Departure> departures;
    const int status =
        inject(__func__, unit, port, view_of(frame, size), false, nullptr, &departures);
    if (sent != nullptr)
        for (const Departure &one : departures)
            sent(context, one.port, one.frame.data(), static_cast<int>(one.frame.size()));
    return status;
}

const char *standin_packet_trace(int unit, int port, const uint8 *frame, int size, int json,
                                 int real, int *status) {
    thread_local std::string text;
    int answer = check_frame(frame, size);
    if (answer == BCM_E_NONE) {
        Trace trace("frame of " + std::to_string(size) + " bytes on port " + std::to_string(port));
        answer = inject(__func__, unit, port, view_of(frame, size), real == 0, &trace, nullptr);
        text = json != 0 ? trace.json() : trace.text();
    }
    if (status != nullptr) *status = answer;
    return answer == BCM_E_NONE ? text.c_str() : nullptr;
}

int standin_packet_capture(int unit, int port, int sides) {
    return on_port_of(__func__, unit, port, [&](PipelineState &state, int number) {
        if (!within(sides, 0, Capture::kIn | Capture::kOut)) return BCM_E_PARAM;
        state.captures.erase(number);
        if (sides != 0) state.captures.emplace(number, Capture(sides));
        return BCM_E_NONE;
    });
}

int standin_packet_capture_get(int unit, int port, const uint8 **file, int *size,
                               unsigned long long *left_out) {
    thread_local Bytes copy;
    return on_port_of(__func__, unit, port, [&](PipelineState &state, int number) {
        const Capture *const capture = find_in(state.captures, number);
        if (capture == nullptr) return missing(number);
        copy = capture->file();
        give_count(left_out, capture->left_out());
        if (size == nullptr) return int{BCM_E_PARAM};
        *size = static_cast<int>(copy.size());
        return give(file, copy.data());
    });
}

int standin_packet_ended(int unit, const char *reason, unsigned long long *count) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const std::string_view wanted = reason == nullptr ? "" : reason;
        for (std::size_t i = 0; i < kReasons; ++i) {
            if (wanted != row_of(static_cast<Reason>(i)).name) continue;
            give_count(count, pipeline_of(chip).ended[i]);
            return int{BCM_E_NONE};
        }
        return int{BCM_E_NOT_FOUND};
    });
}

const char *standin_packet_reason(int index) {
    thread_local std::string text;
    if (!within(index, 0, static_cast<int>(kReasons) - 1)) return nullptr;
    const ReasonRow &row = row_of(static_cast<Reason>(index));
    text = std::string(row.name) + '\t' + word_of(row.outcome) + '\t' + row.stage + '\t' +
           row.sentence;
    return text.c_str();
}

int standin_packet_queued(int unit, int port, int queue, unsigned long long *count) {
    return on_port_of(__func__, unit, port, [&](const PipelineState &state, int number) {
        if (!within(queue, 0, kQueues - 1)) return BCM_E_PARAM;
        give_count(count,
                   state.queued[static_cast<std::size_t>(number)][static_cast<std::size_t>(queue)]);
        return BCM_E_NONE;
    });
}

int standin_packet_received(int unit, unsigned long long *handled, unsigned long long *owned,
                            unsigned long long *unclaimed) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const Receiver &receiver = pipeline_of(chip).receiver;
        give_count(handled, receiver.handled);
        give_count(owned, receiver.owned);
        give_count(unclaimed, receiver.unclaimed);
        return BCM_E_NONE;
    });
}

void standin_packet_unfreed(int unit, int *packets, int *buffers) {
    const BookCounts counts = counts_of(unit);
    if (packets != nullptr) *packets = counts.packets;
    if (buffers != nullptr) *buffers = counts.buffers;
}

}  // extern "C"
