// The record under its lock.
#include "standin/base/call_record.h"

#include <atomic>
#include <mutex>

#include "standin/base/faults.h"
#include "standin/base/number_text.h"

namespace standin {
namespace {

struct Record {
    std::mutex lock;
    std::atomic<bool> on{false};
    std::vector<RecordedCall> calls;
    std::size_t left_out = 0;
    std::size_t first = 1;  // number of the first call
};

// Never destroyed: native threads may still call while the process ends.
Record &record() {
    static Record &the_record = *new Record;
    return the_record;
}

RecordedCall::Argument noted(const Given &given) {
    RecordedCall::Argument argument{given.form, given.number};
    if (given.form == Given::Form::kNumber || given.form == Given::Form::kOther) return argument;
    if (given.address == nullptr || given.form == Given::Form::kAddress) {
        argument.form = Given::Form::kAddress;
        argument.value = std::int64_t{given.address != nullptr};
    } else if (given.form == Given::Form::kText) {
        argument.value = std::string(static_cast<const char *>(given.address));
    } else {
        argument.value = mac_text(static_cast<const std::uint8_t *>(given.address));
    }
    return argument;
}

}  // namespace

void record_calls(bool on) {
    Record &all = record();
    {
        const std::lock_guard<std::mutex> guard(all.lock);
        if (on) {
            all.first += all.calls.size();
            all.calls.clear();
            all.left_out = 0;
        }
        all.on = on;
    }
    set_gates();
}

bool is_recording() { return record().on; }

std::vector<RecordedCall> recorded_calls(std::size_t &left_out) {
    Record &all = record();
    const std::lock_guard<std::mutex> guard(all.lock);
    left_out = all.left_out;
    return all.calls;
}

std::size_t record_call(const OpenCall &call) {
    Record &all = record();
    if (!all.on) return 0;
    RecordedCall one{&call.row(), {}, 0, ""};
    for (const Given &given : call.arguments()) one.arguments.push_back(noted(given));
    const std::lock_guard<std::mutex> guard(all.lock);
    if (all.calls.size() == kRecordedCalls) {
        ++all.left_out;
        return 0;
    }
    all.calls.push_back(std::move(one));
    return all.first + all.calls.size() - 1;
}

void record_result(std::size_t number, std::int64_t result, const char *layer) {
    if (number == 0) return;
    Record &all = record();
    const std::lock_guard<std::mutex> guard(all.lock);
    if (number < all.first || number - all.first >= all.calls.size()) return;
    RecordedCall &one = all.calls[number - all.first];
    one.result = result;
    one.layer = layer;
}

}  // namespace standin
