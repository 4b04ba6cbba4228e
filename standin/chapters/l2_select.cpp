// Matching rows of the MAC table, settling their destination, telling the watchers.
#include "standin/chapters/l2_select.h"

#include <cstring>

namespace standin {
namespace {

bool macs_agree(const bcm_mac_t one, const bcm_mac_t other, const bcm_mac_t mask) {
    for (int i = 0; i < 6; ++i)
        if (((one[i] ^ other[i]) & mask[i]) != 0) return false;
    return true;
}

bool same_destination(const bcm_l2_addr_t &one, const bcm_l2_addr_t &other) {
    const std::uint32_t kinds = kL2BlackHole | kL2Trunk;
    if ((one.flags & kinds) != (other.flags & kinds)) return false;
    if ((one.flags & kL2BlackHole) != 0) return true;
    if ((one.flags & kL2Trunk) != 0) return one.tgid == other.tgid;
    return one.port == other.port && one.modid == other.modid;
}

}  // namespace

bool L2Match::operator()(const bcm_l2_addr_t &entry) const {
    if ((entry.flags & kL2Static) != 0 && (flags & kMatchStatic) == 0) return false;
    if ((flags & kMatchMac) != 0 && !macs_agree(entry.mac, pattern.mac, mask.mac)) return false;
    if ((flags & kMatchVlan) != 0 && ((entry.vid ^ pattern.vid) & mask.vid) != 0) return false;
    return (flags & kMatchDestination) == 0 || same_destination(entry, pattern);
}

bcm_l2_addr_t full_l2_mask() {
    bcm_l2_addr_t mask;
    std::memset(&mask, 0xff, sizeof mask);
    return mask;
}

bool points_at(const bcm_l2_addr_t &entry, int modid, int port) {
    bcm_l2_addr_t target{};
    target.port = port;
    target.modid = modid;
    return settle_destination(target) == BCM_E_NONE && same_destination(entry, target);
}

int settle_destination(bcm_l2_addr_t &entry) {
    if ((entry.flags & kL2BlackHole) != 0) return BCM_E_NONE;
    if ((entry.flags & kL2Trunk) == 0) {
        switch (gport_type(entry.port)) {
            case kTrunkGport.type:
                entry.flags |= kL2Trunk;
                entry.tgid = entry.port & kTrunkGport.mask;
                entry.port = 0;
                return BCM_E_NONE;
            case kBlackHoleGport.type:
                entry.flags |= kL2BlackHole;
                entry.port = 0;
                return BCM_E_NONE;
            case kSystemGport.type:
                return BCM_E_NONE;
            default:
                break;
        }
        // What ports another module has is not known here.
        if (entry.modid != 0) return within(entry.port, 0, kLocalGport.mask) ? 0 : BCM_E_PORT;
        const int port = local_port(entry.port);
        if (port < 0) return refused_port("port", entry.port);
        entry.port = port;
        return BCM_E_NONE;
    }
    return within(entry.tgid, 0, kTrunkGport.mask) ? BCM_E_NONE : BCM_E_PARAM;
}

int walk_l2(const char *function, int unit, const L2Match &match,
            const std::function<int(bcm_l2_addr_t &)> &visit) {
    if (const int fault = fault_check(function, unit); fault != BCM_E_NONE) return fault;
    L2Table::Cursor cursor;
    for (;;) {
        bcm_l2_addr_t entry;
        {
            const std::lock_guard<std::mutex> guard(model_lock());
            int status = BCM_E_NONE;
            Switch *const chip = ready_switch(unit, status);
            if (chip == nullptr) return status;
            if (is_stopped(*chip, function)) return BCM_E_INIT;
            L2Row *row = chip->l2.table.next(cursor);
            while (row != nullptr && !match(row->entry)) row = chip->l2.table.next(cursor);
            if (row == nullptr) return BCM_E_NONE;
            entry = row->entry;
        }
        int answer = callback_fault_check(function, unit);
        if (answer == 0) answer = visit(entry);
        if (answer < 0) return answer;
    }
}

}  // namespace standin
