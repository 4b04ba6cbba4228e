// The calls by which the processor sends packets.
//
// A packet with ports leaves them as its bytes are, on those among them that are untagged without
// its tag. One without ports goes through the pipeline, as if it had arrived on the processor's
// port. A callback for its end is called before the call returns.
#include "sdk/bcm/tx.h"

#include <atomic>
#include <vector>

#include "standin/chapters/packet_run.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr int kMostListed = 65'536;

// The bytes of the blocks; BCM_E_PARAM for a packet without any.
int gather(const bcm_pkt_t *packet, Bytes &frame) {
    if (packet == nullptr || packet->pkt_data == nullptr || packet->blk_count == 0)
        return BCM_E_PARAM;
    for (int i = 0; i < packet->blk_count; ++i) {
        const bcm_pkt_blk_t &block = packet->pkt_data[i];
        if (block.len < 0 || (block.data == nullptr && block.len > 0)) return BCM_E_PARAM;
        frame.insert(frame.end(), block.data, block.data + block.len);
    }
    return frame.empty() ? BCM_E_PARAM : BCM_E_NONE;
}

// The ports of a packet: its bitmap, else the port or trunk of its gport.
int ports_of(Run &run, const bcm_pkt_t &packet, bcm_pbmp_t &ports) {
    ports = packet.tx_pbmp;
    if (!is_subset(ports, kAllPorts)) return refused_ports(ports);
    if (any_common(ports, kAllPorts) || packet.dst_gport == 0) return BCM_E_NONE;
    if (gport_type(packet.dst_gport) != kLocalGport.type) return BCM_E_NONE;
    const int port = local_port(packet.dst_gport);
    if (port < 0) return refused_port("dst_gport", packet.dst_gport);
    add_port(ports, port);
    run.step("tx", [&] { return "to port " + std::to_string(port); });
    return BCM_E_NONE;
}

int send(Run &run, const bcm_pkt_t *packet) {
    Bytes frame;
    if (const int status = gather(packet, frame); status != BCM_E_NONE) return status;
    bcm_pbmp_t ports{};
    if (const int status = ports_of(run, *packet, ports); status != BCM_E_NONE) return status;
    if (!any_common(ports, kAllPorts)) {
        run_frame(run, kCpuPort, frame);
        return BCM_E_NONE;
    }
    for (int port = 1; port < kPorts; ++port)
        if (has_port(ports, port)) send_as_is(run, port, frame, has_port(packet->tx_upbmp, port));
    return BCM_E_NONE;
}

// Sends them in order until one is refused; what was sent has its callback.
int send_all(const char *function, int unit, const std::vector<bcm_pkt_t *> &packets) {
    std::size_t sent = 0;
    const int status = run_packets(function, unit, false, nullptr, nullptr, [&](Run &run) {
        for (const bcm_pkt_t *const one : packets) {
            if (const int answer = send(run, one); answer != BCM_E_NONE) return answer;
            ++sent;
        }
        return int{BCM_E_NONE};
    });
    for (std::size_t i = 0; i < sent; ++i)
        if (packets[i]->call_back != nullptr)
            packets[i]->call_back(unit, packets[i], packets[i]->cookie);
    return status;
}

std::atomic<bcm_tx_cpu_tunnel_f> cpu_tunnel{nullptr};

}  // namespace

extern "C" {

int bcm_tx_init(int unit) {
    return on_switch(__func__, unit, [](Switch &) { return int{BCM_E_NONE}; });
}

int bcm_tx(int unit, bcm_pkt_t *tx_pkt, void *cookie) {
    if (tx_pkt != nullptr && cookie != nullptr) tx_pkt->cookie = cookie;
    return send_all(__func__, unit, {tx_pkt});
}

int bcm_tx_array(int unit, bcm_pkt_t **pkt, int count, bcm_pkt_cb_f all_done_cb, void *cookie) {
    if (pkt == nullptr || !within(count, 1, kMostListed)) return refuse(__func__, unit);
    const std::vector<bcm_pkt_t *> packets(pkt, pkt + count);
    const int status = send_all(__func__, unit, packets);
    if (status == BCM_E_NONE && all_done_cb != nullptr) all_done_cb(unit, packets[0], cookie);
    return status;
}

// Each packet names the next by `_next`.
int bcm_tx_list(int unit, bcm_pkt_t *pkt, bcm_pkt_cb_f all_done_cb, void *cookie) {
    std::vector<bcm_pkt_t *> packets;
    for (bcm_pkt_t *one = pkt; one != nullptr; one = one->_next) {
        if (packets.size() == kMostListed) return refuse(__func__, unit);
        packets.push_back(one);
    }
    if (packets.empty()) return refuse(__func__, unit);
    const int status = send_all(__func__, unit, packets);
    if (status == BCM_E_NONE && all_done_cb != nullptr) all_done_cb(unit, pkt, cookie);
    return status;
}

// There is nothing to prepare.
int bcm_tx_pkt_setup(int unit, bcm_pkt_t *pkt) {
    return on_switch(__func__, unit,
                     [&](Switch &) { return int{pkt == nullptr ? BCM_E_PARAM : BCM_E_NONE}; });
}

// The port of the address where it is known, else the members of the VLAN.
int bcm_tx_pkt_l2_map(int unit, bcm_pkt_t *pkt, bcm_mac_t dest_mac, int vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (pkt == nullptr || dest_mac == nullptr || !within(vid, 1, +kLastVlan))
            return int{BCM_E_PARAM};
        const Vlan *const vlan = chip.vlans.find(static_cast<bcm_vlan_t>(vid));
        if (vlan == nullptr) return missing(vid);
        const L2Row *const row = chip.l2.table.find(dest_mac, static_cast<bcm_vlan_t>(vid));
        pkt->tx_pbmp = vlan->members;
        remove_port(pkt->tx_pbmp, kCpuPort);
        if (row != nullptr && !on_trunk(row->entry) && local_port(row->entry.port) > 0) {
            pkt->tx_pbmp = {};
            add_port(pkt->tx_pbmp, local_port(row->entry.port));
        }
        pkt->tx_upbmp = vlan->untagged;
        return int{BCM_E_NONE};
    });
}

int bcm_tx_cpu_tunnel_set(bcm_tx_cpu_tunnel_f func) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    cpu_tunnel = func;
    return BCM_E_NONE;
}

int bcm_tx_cpu_tunnel_get(bcm_tx_cpu_tunnel_f *func) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    return give(func, cpu_tunnel.load());
}

// There is no other module: only the function that was set can carry a packet there.
int bcm_tx_cpu_tunnel(bcm_pkt_t *pkt, int dest_unit, int remote_port, uint32 flags,
                      bcm_cpu_tunnel_mode_t mode) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    const bcm_tx_cpu_tunnel_f function = cpu_tunnel;
    if (pkt == nullptr) return BCM_E_PARAM;
    return function == nullptr ? BCM_E_CONFIG : function(pkt, dest_unit, remote_port, flags, mode);
}

}  // extern "C"
