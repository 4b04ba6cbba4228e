// Ports that are joined to interfaces, with a thread for each of those.
//
//   1. A thread holds no lock of the stand-in while it waits, reads, writes or delivers.
//   2. Nobody waits for a thread: leaving marks its join, wakes it, and goes on. It ends by itself.
//   3. Where nothing is joined there is no socket and no thread.
//   4. The clock of the unit follows the one of the machine while a port of it is joined.
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <map>
#include <mutex>
#include <thread>

#include "standin/chapters/hooks.h"
#include "standin/chapters/packet_hooks.h"
#include "standin/chapters/packet_run.h"
#include "standin/chapters/wire.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

struct Join {
    Join(int its_unit, int its_port, std::unique_ptr<Wire> its_wire)
        : unit(its_unit), port(its_port), wire(std::move(its_wire)) {}
    ~Join() { close(wake); }
    Join(const Join &) = delete;
    Join &operator=(const Join &) = delete;

    const int unit;
    const int port;
    const std::unique_ptr<Wire> wire;
    const int wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    std::atomic<bool> left{false};
};

struct Joins {
    std::mutex lock;
    std::map<std::pair<int, int>, std::shared_ptr<Join>> by_port;  // unit and port
    std::map<int, std::uint64_t> clock;                            // when a unit was last moved on
    std::atomic<int> count{0};
};

Joins &joins() {
    static Joins &all = *new Joins;
    return all;
}

std::uint64_t machine_time() {
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::microseconds>(
                                          std::chrono::steady_clock::now().time_since_epoch())
                                          .count());
}

// The clock of the unit moves on, by a millisecond at least.
void follow_clock(int unit) {
    std::uint64_t passed = 0;
    {
        const std::lock_guard<std::mutex> guard(joins().lock);
        std::uint64_t &last = joins().clock[unit];
        const std::uint64_t now = machine_time();
        if (last == 0) last = now;
        if (now - last < 1000) return;
        passed = now - last;
        last = now;
    }
    standin_time_pass(unit, passed);
}

void read_frames(const std::shared_ptr<Join> &join) {
    pollfd waits[] = {{join->wire->descriptor(), POLLIN, 0}, {join->wake, POLLIN, 0}};
    std::vector<Bytes> frames;
    while (!join->left) {
        if (poll(waits, 2, 100) < 0 && errno != EINTR) break;
        follow_clock(join->unit);
        do {
            frames.clear();
            if (!join->wire->receive(frames)) return;
            for (const Bytes &frame : frames) {
                if (join->left) return;
                standin_packet_inject(join->unit, join->port, frame.data(),
                                      static_cast<int>(frame.size()), nullptr, nullptr);
            }
        } while (!frames.empty() && !join->left);
    }
}

// REQUIRES: the lock of the joins.
void end(Joins &all, std::map<std::pair<int, int>, std::shared_ptr<Join>>::iterator at) {
    Join &join = *at->second;
    join.left = true;
    join.wire->restore();
    eventfd_write(join.wake, 1);
    all.by_port.erase(at);
    --all.count;
}

int add(int unit, int port, const std::string &interface) {
    Joins &all = joins();
    const std::lock_guard<std::mutex> guard(all.lock);
    for (const auto &[where, join] : all.by_port) {
        if (where == std::pair(unit, port))
            return refused(BCM_E_EXISTS, "port " + std::to_string(port) + " is joined to " +
                                             join->wire->interface());
        if (join->wire->interface() == interface)
            return refused(BCM_E_EXISTS, "interface " + interface + " is joined to port " +
                                             std::to_string(where.second));
    }
    int status = BCM_E_NONE;
    std::string why;
    std::unique_ptr<Wire> wire = Wire::open(interface, status, why);
    if (wire == nullptr) return refused(status, why);
    const auto join = std::make_shared<Join>(unit, port, std::move(wire));
    all.by_port[{unit, port}] = join;
    all.clock[unit] = machine_time();
    ++all.count;
    std::thread(read_frames, join).detach();
    return BCM_E_NONE;
}

// Threads that are still reading stop before what they use goes.
struct AtExit {
    ~AtExit() {
        for (const auto &[where, join] : joins().by_port) join->left = true;
    }
} const at_exit;

}  // namespace

namespace standin {

bool any_joined() { return joins().count != 0; }

void send_to_interface(int unit, int port, View frame) {
    std::shared_ptr<Join> join;
    {
        const std::lock_guard<std::mutex> guard(joins().lock);
        const auto found = joins().by_port.find({unit, port});
        if (found == joins().by_port.end()) return;
        join = found->second;
    }
    join->wire->send(frame);
}

void leave_all() {
    Joins &all = joins();
    const std::lock_guard<std::mutex> guard(all.lock);
    while (!all.by_port.empty()) end(all, all.by_port.begin());
}

}  // namespace standin

extern "C" {

int standin_port_join(int unit, int port, const char *interface) {
    return on_switch(__func__, unit, [&](Switch &) {
        const int number = local_port(port);
        if (number <= 0) return refused_port("port", port);
        return interface == nullptr ? int{BCM_E_PARAM} : add(unit, number, interface);
    });
}

int standin_port_leave(int unit, int port) {
    Joins &all = joins();
    const std::lock_guard<std::mutex> guard(all.lock);
    const auto found = all.by_port.find({unit, local_port(port)});
    if (found == all.by_port.end()) return BCM_E_NOT_FOUND;
    end(all, found);
    return BCM_E_NONE;
}

}  // extern "C"
