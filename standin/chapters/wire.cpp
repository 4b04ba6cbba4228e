// A packet socket on an interface.
#include "standin/chapters/wire.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <linux/if_packet.h>
#include <linux/rtnetlink.h>
#include <net/ethernet.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>

#include "sdk/constants.h"
#include "standin/base/log.h"
#include "standin/pipeline/offload.h"

namespace standin {
namespace {

// What stands in front of each frame on a socket with PACKET_VNET_HDR, in the order of this
// machine. The kernel's own header of it is no C++.
struct NetHeader {
    enum Flags : std::uint8_t { kNeedsSum = 1 };
    enum Segments : std::uint8_t { kTcp4 = 1, kTcp6 = 4, kEcn = 0x80 };

    std::uint8_t flags = 0;
    std::uint8_t segments = 0;  // 0: none are to be cut
    std::uint16_t header_size = 0;
    std::uint16_t segment_size = 0;
    std::uint16_t sum_start = 0;
    std::uint16_t sum_offset = 0;
};
static_assert(sizeof(NetHeader) == 10);

// Whether the interface is part of a bridge or bond: the kernel names its master then.
bool has_master(unsigned index) {
    struct {
        nlmsghdr head;
        ifinfomsg info;
    } request{};
    request.head.nlmsg_len = sizeof request;
    request.head.nlmsg_type = RTM_GETLINK;
    request.head.nlmsg_flags = NLM_F_REQUEST;
    request.info.ifi_index = static_cast<int>(index);
    const int line = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    if (line < 0) return false;
    alignas(nlmsghdr) std::array<char, 16'384> answer;
    ssize_t got = -1;
    if (send(line, &request, sizeof request, 0) == static_cast<ssize_t>(sizeof request))
        got = recv(line, answer.data(), answer.size(), 0);
    close(line);
    const auto *const head = reinterpret_cast<const nlmsghdr *>(answer.data());
    if (got < static_cast<ssize_t>(NLMSG_LENGTH(sizeof(ifinfomsg))) ||
        head->nlmsg_type != RTM_NEWLINK)
        return false;
    auto left = static_cast<unsigned>(got) - NLMSG_LENGTH(sizeof(ifinfomsg));
    const auto *one =
        reinterpret_cast<const rtattr *>(answer.data() + NLMSG_SPACE(sizeof(ifinfomsg)));
    for (; RTA_OK(one, left); one = RTA_NEXT(one, left))
        if (one->rta_type == IFLA_MASTER) return true;
    return false;
}

// Why the kernel would handle frames of the interface itself; empty if it would not.
std::string why_taken(const std::string &interface, unsigned index) {
    if (has_master(index)) return "is part of a bridge or bond";
    ifaddrs *all = nullptr;
    if (getifaddrs(&all) != 0) return {};
    std::string why;
    for (const ifaddrs *one = all; one != nullptr; one = one->ifa_next) {
        if (one->ifa_addr == nullptr || interface != one->ifa_name) continue;
        if (one->ifa_addr->sa_family == AF_INET) why = "has an address of its own";
        if (one->ifa_addr->sa_family != AF_INET6) continue;
        in6_addr address;
        std::memcpy(&address,
                    reinterpret_cast<const char *>(one->ifa_addr) + 8,  // behind port and flow
                    sizeof address);
        if (!IN6_IS_ADDR_LINKLOCAL(&address)) why = "has an address of its own";
    }
    freeifaddrs(all);
    return why;
}

template <class T>
bool set(int socket, int option, const T &value) {
    return setsockopt(socket, SOL_PACKET, option, &value, sizeof value) == 0;
}

// Binds the socket and tells the kernel how to hand over frames.
bool prepare(int socket, unsigned index) {
    sockaddr_ll address{};
    address.sll_family = AF_PACKET;
    address.sll_protocol = htons(ETH_P_ALL);
    address.sll_ifindex = static_cast<int>(index);
    packet_mreq everything{};
    everything.mr_ifindex = static_cast<int>(index);
    everything.mr_type = PACKET_MR_PROMISC;
    set(socket, PACKET_IGNORE_OUTGOING, 1);  // kernels before 4.20 do not know it
    return set(socket, PACKET_VNET_HDR, 1) && set(socket, PACKET_AUXDATA, 1) &&
           set(socket, PACKET_ADD_MEMBERSHIP, everything) &&
           bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}

void bring_up(int socket, const std::string &interface) {
    ifreq request{};
    interface.copy(request.ifr_name, IFNAMSIZ - 1);
    if (ioctl(socket, SIOCGIFFLAGS, &request) != 0) return;
    request.ifr_flags = static_cast<short>(request.ifr_flags | IFF_UP);
    ioctl(socket, SIOCSIFFLAGS, &request);
}

Offload offload_of(const NetHeader &header) {
    Offload offload;
    offload.sums = (header.flags & NetHeader::kNeedsSum) != 0;
    offload.from = header.sum_start;
    offload.at = header.sum_offset;
    const int kind = header.segments & ~NetHeader::kEcn;
    if (kind == NetHeader::kTcp4 || kind == NetHeader::kTcp6) offload.segment = header.segment_size;
    return offload;
}

// The tag that the kernel took out of the frame, or null.
const tpacket_auxdata *tag_of(msghdr &message) {
    for (cmsghdr *one = CMSG_FIRSTHDR(&message); one != nullptr; one = CMSG_NXTHDR(&message, one)) {
        if (one->cmsg_level != SOL_PACKET || one->cmsg_type != PACKET_AUXDATA) continue;
        const auto *const data = reinterpret_cast<const tpacket_auxdata *>(CMSG_DATA(one));
        return (data->tp_status & TP_STATUS_VLAN_VALID) != 0 ? data : nullptr;
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<Wire> Wire::open(const std::string &interface, int &status, std::string &why) {
    const auto refuse = [&](int answer, const std::string &text) {
        status = answer;
        why = "interface " + interface + " " + text;
        return nullptr;
    };
    const unsigned index = interface.size() < IFNAMSIZ ? if_nametoindex(interface.c_str()) : 0;
    if (index == 0) return refuse(BCM_E_NOT_FOUND, "is not there");
    if (const std::string taken = why_taken(interface, index); !taken.empty())
        return refuse(BCM_E_BUSY, taken + ": the kernel would answer beside the switch");
    const int made = socket(AF_PACKET, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (made < 0)
        return refuse(BCM_E_UNAVAIL, "cannot be had: " + std::string(std::strerror(errno)));
    std::unique_ptr<Wire> wire(new Wire(interface, made));
    wire->silence();
    bring_up(made, interface);
    if (!prepare(made, index))
        return refuse(BCM_E_UNAVAIL, "cannot be had: " + std::string(std::strerror(errno)));
    status = BCM_E_NONE;
    return wire;
}

Wire::~Wire() {
    restore();
    close(socket_);
}

// The kernel neither speaks IPv6 of its own there, nor answers ARP, nor forwards.
void Wire::silence() {
    const std::pair<std::string, const char *> wanted[] = {
        {"/proc/sys/net/ipv6/conf/" + interface_ + "/disable_ipv6", "1"},
        {"/proc/sys/net/ipv4/conf/" + interface_ + "/forwarding", "0"},
        {"/proc/sys/net/ipv4/conf/" + interface_ + "/arp_ignore", "8"}};
    for (const auto &[setting, value] : wanted) {
        std::string before;
        std::ifstream(setting) >> before;
        if (before.empty() || before == value) continue;
        if (std::ofstream(setting) << value << std::flush)
            before_.emplace_back(setting, before);
        else
            log_message(kSeverityWarning, kLayerBcm, kSourcePacket, kNoUnit,
                        setting + " stays " + before +
                            ": the kernel may speak on the interface beside the switch");
    }
}

void Wire::restore() {
    for (const auto &[setting, before] : before_) std::ofstream(setting) << before;
    before_.clear();
}

bool Wire::receive(std::vector<Bytes> &frames) {
    NetHeader header;
    sockaddr_ll from{};
    iovec parts[] = {{&header, sizeof header}, {buffer_.data(), buffer_.size()}};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(tpacket_auxdata))];
    msghdr message{};
    message.msg_name = &from;
    message.msg_namelen = sizeof from;
    message.msg_iov = parts;
    message.msg_iovlen = 2;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    const ssize_t got = recvmsg(socket_, &message, MSG_DONTWAIT);
    if (got < 0) return errno == EAGAIN || errno == EINTR || errno == ENETDOWN;
    if (from.sll_pkttype == PACKET_OUTGOING) return true;
    if (static_cast<std::size_t>(got) <= sizeof header) return true;
    const auto size = static_cast<std::ptrdiff_t>(got) - static_cast<std::ptrdiff_t>(sizeof header);
    frames = finish(Bytes(buffer_.begin(), buffer_.begin() + size), offload_of(header));
    if (const tpacket_auxdata *const tag = tag_of(message))
        for (Bytes &frame : frames)
            insert_tag(frame,
                       (tag->tp_status & TP_STATUS_VLAN_TPID_VALID) != 0 ? tag->tp_vlan_tpid
                                                                         : ETHERTYPE_VLAN,
                       tag->tp_vlan_tci);
    return true;
}

void Wire::send(View frame) {
    NetHeader header;  // nothing is left to do
    iovec parts[] = {{&header, sizeof header},
                     {const_cast<std::uint8_t *>(frame.data()), frame.size()}};
    msghdr message{};
    message.msg_iov = parts;
    message.msg_iovlen = 2;
    while (sendmsg(socket_, &message, MSG_DONTWAIT | MSG_NOSIGNAL) < 0 && errno == EINTR) {
    }
}

}  // namespace standin
