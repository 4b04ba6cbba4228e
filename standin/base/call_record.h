// The record of the calls that the user of the library makes, in their order: what was called with
// what, who answered, and what.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "standin/base/gate.h"

namespace standin {

struct RecordedCall {
    const GateRow *row = nullptr;
    // By the names of the row; an address is known as null (0) or not (1) only, a text or a MAC
    // address is copied.
    struct Argument {
        Given::Form form{};
        std::variant<std::int64_t, std::string> value;
    };
    std::vector<Argument> arguments;
    std::int64_t result = 0;
    // Of the row, or "fault"; empty for a call that has given no number, or still runs.
    const char *layer = "";
};

// On: forgets what was recorded, and records anew. Off: keeps it. At most kRecordedCalls are kept;
// how many came after those is counted.
constexpr std::size_t kRecordedCalls = 1'000'000;
void record_calls(bool on);
bool is_recording();
std::vector<RecordedCall> recorded_calls(std::size_t &left_out);

// For the gates. The number of the call in the record, or 0 where nothing is recorded.
std::size_t record_call(const OpenCall &call);
void record_result(std::size_t number, std::int64_t result, const char *layer);

}  // namespace standin
