// Who is told of what happens in a switch, and the telling.
//
//   1. A call changes the model under its lock, and raises what others are to hear of.
//   2. When the lock is free, and before the call returns, its own thread tells them. No thread is
//      started for it, and no clock looked at: time passes when standin_time_pass says so.
//   3. Events are told in the order in which they were raised. What the calls of a handler raise
//      is told after what waits already, by the outermost call of the thread.
//   4. A handler hears of an event if it was there when that was raised and is there still: what
//      unregisters it, also another handler, a `_detach` or a reset of the chip, ends it at once.
#pragma once
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "standin/model/registrations.h"

namespace standin {

struct Switch;

using AnyFunction = void (*)();

// What a handler asked for besides its row: a port, a queue, a mask.
using HandlerKey = std::array<std::int64_t, 3>;

struct Handler {
    Registration row{};
    AnyFunction call = nullptr;
    void *user = nullptr;
    HandlerKey key{};
    std::uint64_t number = 0;  // of all handlers of the process, ascending

    template <class Function>
    Function as() const {
        return reinterpret_cast<Function>(call);
    }
};

template <class Function>
Handler handler(Registration row, Function call, void *user = nullptr, HandlerKey key = {}) {
    return {row, reinterpret_cast<AnyFunction>(call), user, key, 0};
}

class Handlers {
  public:
    // BCM_E_PARAM: no function; BCM_E_EXISTS: that one, with this argument and key, is there;
    // BCM_E_UNAVAIL: nothing ever calls a handler of this row.
    int add(Handler one);
    int remove(const Handler &one);  // BCM_E_NOT_FOUND
    void remove_all(Registration row);

    // The first one, or null: for rows of one handler.
    const Handler *find(Registration row, const HandlerKey &key = {}) const;
    // The next one of a row after number `after`, up to `last`; null at the end.
    const Handler *next(Registration row, std::uint64_t after, std::uint64_t last) const;
    bool any(Registration row) const { return next(row, 0, ~std::uint64_t{0}) != nullptr; }

  private:
    std::vector<Handler> all_;  // by number
};

// One thing to be done with the lock free.
using Task = std::function<void(int unit)>;
using Tell = std::function<void(int unit, const Handler &)>;

struct Events {
    Handlers handlers;
    std::unique_ptr<std::vector<Task>> raised;

    // Something has happened of which the handlers of `row` are to hear, each by `tell`. Nothing is
    // kept while there are none.
    void raise(Registration row, Tell tell);
    // Something else is to be done when the lock is free.
    void raise(Task task);
};

// Tells what `events` has raised. `guard` holds the model's lock; if there is something to tell it
// is free afterwards.
void tell_events(int unit, Events &events, std::unique_lock<std::mutex> &guard);

Events &events_of(Switch &chip);

// The number of the last handler that was made. REQUIRES: the model's lock is held.
std::uint64_t last_handler();

}  // namespace standin
