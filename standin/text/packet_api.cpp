// Bytes of packets, and records as text.
#include <algorithm>

#include "sdk/bcm/l2_types.h"
#include "sdk/constants.h"
#include "sdk/diag/text.h"
#include "sdk/variables.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/model/l2_table.h"
#include "standin/text/address_text.h"
#include "standin/text/unit_ports.h"

using namespace standin;

namespace {

// "static,0x40": the flags by name, what has none as a number.
std::string l2_flags_text(uint32 flags) {
    std::string text;
    // The count is a variable that a caller may raise; the texts stay as many as they are.
    const int count = std::min(bcm_l2_flags_count, kL2FlagTexts);
    for (int bit = 0; bit < count; ++bit) {
        const char *name = bcm_l2_flags_str[bit];
        if ((flags >> bit & 1U) == 0 || name == nullptr || *name == '\0') continue;
        text += (text.empty() ? "" : ",") + lower_case(name);
        flags &= ~(1U << bit);
    }
    if (flags != 0 || text.empty()) text += (text.empty() ? "" : ",") + text_of("0x%x", flags);
    return text;
}

// The state of packet_random_store: a fixed start makes two runs alike.
std::uint32_t next_random() {
    thread_local std::uint32_t state = 0x2545f491;
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    return state;
}

bool bytes_ok(const uint8 *bytes, int size) { return bytes != nullptr && size > 0; }

}  // namespace

uint32 packet_load(uint8 *addr, int size) {
    uint32 value = 0;
    if (!bytes_ok(addr, size)) return value;
    for (int at = 0; at < size && at < 4; ++at) value = value << 8 | addr[at];
    return value;
}

uint32 packet_store(uint8 *buf, int size, uint32 val, uint32 inc) {
    if (!bytes_ok(buf, size)) return val;
    for (int at = 0; at < size; ++at) {
        buf[at] = static_cast<uint8>(val >> (24 - at % 4 * 8));
        if (at % 4 == 3 || at == size - 1) val += inc;
    }
    return val;
}

void packet_random_store(uint8 *buf, int size) {
    if (!bytes_ok(buf, size)) return;
    for (int at = 0; at < size; ++at) buf[at] = static_cast<uint8>(next_random() >> 8);
}

int packet_compare(uint8 *p1, uint8 *p2, int size) {
    if (size < 0 || p1 == nullptr || p2 == nullptr) return BCM_E_PARAM;
    for (int at = 0; at < size; ++at)
        if (p1[at] != p2[at]) return at + 1;
    return 0;
}

void dump_l2_addr(int unit, char *pfx, bcm_l2_addr_t *l2addr) {
    if (l2addr == nullptr) return;
    PortNames names = unit_ports(unit);
    const bcm_l2_addr_t &row = *l2addr;
    std::string text(view_of(pfx));
    text += "mac=" + mac_text(row.mac) + " vlan=" + std::to_string(row.vid);
    text += " modid=" + std::to_string(row.modid) + " port=" + port_text(row.port, names);
    text += " trunk=" + std::to_string(row.tgid) + " flags=" + l2_flags_text(row.flags);
    if (row.l2mc_group != 0) text += " group=" + std::to_string(row.l2mc_group);
    if (row.encap_id != 0) text += " encap=" + std::to_string(row.encap_id);
    PortSet blocked = port_set_of(row.block_bitmap);
    if (blocked.any()) text += " block=" + port_list_text(blocked, names);
    out(text + '\n');
}

void dump_l2_cache_addr(int unit, char *pfx, bcm_l2_cache_addr_t *l2caddr) {
    if (l2caddr == nullptr) return;
    PortNames names = unit_ports(unit);
    const bcm_l2_cache_addr_t &row = *l2caddr;
    std::string text(view_of(pfx));
    text += "mac=" + mac_text(row.mac) + '/' + mac_text(row.mac_mask);
    text += text_of(" vlan=%u/0x%x", row.vlan, row.vlan_mask);
    text += " src=" + port_text(row.src_port, names);
    text += " dst=" + std::to_string(row.dest_modid) + ':' + port_text(row.dest_port, names);
    text += " trunk=" + std::to_string(row.dest_trunk) + " prio=" + std::to_string(row.prio);
    text += text_of(" flags=0x%x", row.flags);
    PortSet ports = port_set_of(row.dest_ports);
    if (ports.any()) text += " ports=" + port_list_text(ports, names);
    out(text + '\n');
}
