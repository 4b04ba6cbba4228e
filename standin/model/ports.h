// The ports of one switch: the processor's port 0, ports 1 to 48 of up to 25 Gbit/s on one lane,
// ports 49 to 64 of up to 100 Gbit/s on four.
#pragma once
#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "native/values.h"
#include "sdk/constants.h"
#include "sdk/scalars.h"
#include "standin/model/port_set.h"

namespace standin {

constexpr int kLastSmallPort = 48;
constexpr int kSmallestFrame = 64;
constexpr int kLargestFrame = 16'384;

struct PortCounters {
    std::uint64_t packets = 0;
    std::uint64_t bytes = 0;
};

struct Port {
    std::string name;
    int enable = 1;
    int speed = 0;
    int speed_max = 0;
    int autoneg = 0;
    int duplex = 1;
    int frame_max = 1518;
    int loopback = BCM_PORT_LOOPBACK_NONE;
    int discard = BCM_PORT_DISCARD_NONE;
    int ifilter = 0;
    int bpdu_enable = 1;
    int l3_enable = 0;
    int master = 0;
    int jam = 0;
    int pfm = 0;
    int linkscan = 0;
    int untagged_priority = 0;
    std::uint32_t learn = 1;  // 0: no address is learned here
    bcm_vlan_t untagged_vlan = 1;
    int pause_tx = 0;
    int pause_rx = 0;
    std::array<std::uint8_t, 6> pause_address{};
    bcm_port_ability_t advertised{};
    std::map<int, int> controls;
    bool peer = true;  // somebody is at the far end
    bool link_failed = false;
    std::optional<int> told_link;  // by a handler that reads the link in place of the scanner
    int scanned_link = 0;          // as the scanner last found it
    PortCounters in;
    PortCounters out;

    // Up when enabled and somebody answers: the far end, or the port itself in loopback.
    int link() const {
        const bool answered = told_link ? *told_link != 0 : peer;
        return enable != 0 && (answered || loopback != BCM_PORT_LOOPBACK_NONE);
    }
};

class Ports {
  public:
    Ports();

    // Null unless `port` is a local number or a local gport of this switch.
    Port *find(bcm_port_t port);

  private:
    std::array<Port, kPorts> ports_;
};

// Whether `speed` is a link speed, in Mbit/s, and not above what the port can.
bool can_run_at(const Port &port, int speed);

constexpr int core_of(int port) { return port <= kFrontPorts / 2 ? 0 : 1; }
constexpr bool is_large(int port) { return port > kLastSmallPort; }

}  // namespace standin
