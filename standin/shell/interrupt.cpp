// The mark that SIGINT leaves, and the handler that stands meanwhile.
#include "standin/shell/interrupt.h"

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <vector>

namespace standin {
namespace {

static_assert(std::atomic<bool>::is_always_lock_free, "the handler needs it");
std::atomic<bool> pending{false};
std::atomic<int> blocked{0};
std::atomic<int> scopes{0};

struct Points {
    std::mutex lock;
    std::vector<const void *> stack;
};
Points &points() {
    static Points &all = *new Points;
    return all;
}

extern "C" void note_interrupt(int) { pending = true; }

}  // namespace

InterruptScope::InterruptScope(bool interactive)
    : outermost_(scopes++ == 0), interactive_(interactive) {
    if (!outermost_) return;
    struct sigaction ours {};
    ours.sa_handler = note_interrupt;
    sigemptyset(&ours.sa_mask);
    sigaction(SIGINT, &ours, &before_);
}

InterruptScope::~InterruptScope() {
    --scopes;
    if (!outermost_) return;
    sigaction(SIGINT, &before_, nullptr);
    if (blocked == 0 && pending.exchange(false) && !interactive_) std::raise(SIGINT);
}

bool interrupted() { return blocked == 0 && pending; }

bool wait_seconds(int seconds) {
    constexpr int kStep = 50;
    for (int left = seconds * 1000; left > 0 && !interrupted(); left -= kStep)
        std::this_thread::sleep_for(std::chrono::milliseconds(kStep));
    return !interrupted();
}

bool interrupt_take() { return pending.exchange(false); }

void interrupt_block(bool block) {
    if (block)
        ++blocked;
    else if (blocked > 0)
        --blocked;
}

void interrupt_push(const void *point) {
    std::lock_guard hold(points().lock);
    points().stack.push_back(point);
}

bool interrupt_pop() {
    std::lock_guard hold(points().lock);
    if (points().stack.empty()) return false;
    points().stack.pop_back();
    return true;
}

std::size_t interrupt_points() {
    std::lock_guard hold(points().lock);
    return points().stack.size();
}

}  // namespace standin
