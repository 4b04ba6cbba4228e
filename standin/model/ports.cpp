// What a port is on the first day, and which speeds it can run at.
#include "standin/model/ports.h"

#include <algorithm>

#include "standin/model/device_table.h"

namespace standin {
namespace {

constexpr int kSpeeds[] = {10,     100,    1'000,  2'500,  5'000,   10'000,
                           20'000, 25'000, 40'000, 50'000, 100'000, 200'000};

}  // namespace

bool can_run_at(const Port &port, int speed) {
    return speed <= port.speed_max && std::ranges::find(kSpeeds, speed) != std::end(kSpeeds);
}

Ports::Ports() {
    const std::vector<int> &wired = platform().port_speeds;
    for (int number = 0; number < kPorts; ++number) {
        Port &port = ports_[static_cast<std::size_t>(number)];
        port.name = number == kCpuPort ? "cpu" : is_large(number) ? "ce" : "xe";
        port.name += std::to_string(number);
        port.speed_max = is_large(number) ? 100'000 : number == kCpuPort ? 10'000 : 25'000;
        port.speed = is_large(number) ? 100'000 : 10'000;
        const auto place = static_cast<std::size_t>(number) - 1;
        if (number != kCpuPort && place < wired.size() && wired[place] > 0) {
            port.speed = wired[place];
            port.speed_max = std::max(port.speed_max, port.speed);
        }
    }
}

Port *Ports::find(bcm_port_t port) {
    const int number = local_port(port);
    return number < 0 ? nullptr : &ports_[static_cast<std::size_t>(number)];
}

}  // namespace standin
