// Handlers by number, and the queue of the thread that tells them.
#include "standin/model/events.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "sdk/bcm/switch_types.h"
#include "sdk/constants.h"
#include "standin/base/faults.h"
#include "standin/model/device_marks.h"
#include "standin/model/model.h"
#include "standin/model/telling.h"

namespace standin {
namespace {

std::uint64_t last_number = 0;

struct Waiting {
    int unit;
    Task task;
};

// What the outermost call of a thread has still to tell; null while it tells nothing.
thread_local std::deque<Waiting> *queue = nullptr;

// The handlers of a unit that the row belongs to, or null.
Handlers *handlers_of(int unit, Registration row) {
    Device *const device = device_table().find(unit);
    if (device == nullptr) return nullptr;
    return row == Registration::kAttach ? &marks_of(*device).watchers.handlers
                                        : &device->chip->events.handlers;
}

bool same(const Handler &one, const Handler &other) {
    return one.row == other.row && one.call == other.call && one.user == other.user &&
           one.key == other.key;
}

}  // namespace

std::optional<Handler> next_handler(int unit, Registration row, std::uint64_t after,
                                    std::uint64_t last) {
    const std::lock_guard<std::mutex> guard(model_lock());
    const Handlers *const handlers = handlers_of(unit, row);
    const Handler *const found = handlers == nullptr ? nullptr : handlers->next(row, after, last);
    return found == nullptr ? std::nullopt : std::optional(*found);
}

std::optional<Handler> first_handler(int unit, Registration row, const HandlerKey &key) {
    const std::lock_guard<std::mutex> guard(model_lock());
    const Handlers *const handlers = handlers_of(unit, row);
    const Handler *const found = handlers == nullptr ? nullptr : handlers->find(row, key);
    return found == nullptr ? std::nullopt : std::optional(*found);
}

int Handlers::add(Handler one) {
    if (!registrations()[static_cast<std::size_t>(one.row)].callable) return BCM_E_UNAVAIL;
    if (one.call == nullptr) return BCM_E_PARAM;
    if (std::ranges::any_of(all_, [&](const Handler &other) { return same(one, other); }))
        return BCM_E_EXISTS;
    one.number = ++last_number;
    all_.push_back(one);
    return BCM_E_NONE;
}

int Handlers::remove(const Handler &one) {
    const auto count = std::erase_if(all_, [&](const Handler &other) { return same(one, other); });
    return count == 0 ? BCM_E_NOT_FOUND : BCM_E_NONE;
}

void Handlers::remove_all(Registration row) {
    std::erase_if(all_, [&](const Handler &one) { return one.row == row; });
}

const Handler *Handlers::find(Registration row, const HandlerKey &key) const {
    const auto found = std::ranges::find_if(
        all_, [&](const Handler &one) { return one.row == row && one.key == key; });
    return found == all_.end() ? nullptr : &*found;
}

const Handler *Handlers::next(Registration row, std::uint64_t after, std::uint64_t last) const {
    for (const Handler &one : all_)
        if (one.row == row && one.number > after) return one.number <= last ? &one : nullptr;
    return nullptr;
}

std::uint64_t last_handler() { return last_number; }

void Events::raise(Task task) {
    if (raised == nullptr) raised = std::make_unique<std::vector<Task>>();
    raised->push_back(std::move(task));
}

void Events::raise(Registration row, Tell tell) {
    if (!handlers.any(row)) return;
    raise([row, last = last_handler(), tell = std::move(tell)](int unit) {
        std::uint64_t at = 0;
        while (const auto next = next_handler(unit, row, at, last)) {
            at = next->number;
            const char *const function = registrations()[static_cast<std::size_t>(row)].function;
            if (callback_fault_check(function, unit) == 0) tell(unit, *next);
        }
    });
}

void note_switch_event(Events &events, int event, std::array<unsigned, 3> arguments) {
    events.raise(Registration::kSwitchEvent, [=](int unit, const Handler &one) {
        one.as<bcm_switch_event_cb_t>()(unit, static_cast<bcm_switch_event_t>(event), arguments[0],
                                        arguments[1], arguments[2], one.user);
    });
}

void tell_events(int unit, Events &events, std::unique_lock<std::mutex> &guard) {
    if (events.raised == nullptr) return;
    const auto raised = std::exchange(events.raised, nullptr);
    guard.unlock();
    std::deque<Waiting> mine;
    std::deque<Waiting> &waiting = queue == nullptr ? mine : *queue;
    for (Task &task : *raised) waiting.push_back({unit, std::move(task)});
    if (queue != nullptr) return;
    struct Telling {
        explicit Telling(std::deque<Waiting> &all) { queue = &all; }
        ~Telling() { queue = nullptr; }
    } const telling(mine);
    for (; !mine.empty(); mine.pop_front()) mine.front().task(mine.front().unit);
}

Events &events_of(Switch &chip) { return chip.events; }

}  // namespace standin
