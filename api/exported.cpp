// Bits of field sets, system ports, copy numbers and LAG members.
#include "api/exported.h"

#include <cstddef>
#include <cstring>

#include "layout/sdk_words.h"
#include "native/symbols.h"
#include "sdk/constants.h"
#include "sdk/variables.h"

using namespace sdk_words;

namespace {

// Identifiers of a qualifier set: the SDK's own and the user-defined ones behind them.
constexpr int kQualifiers = bcmFieldQualifyCount + 277;
constexpr int kActions = bcmFieldActionCount;
constexpr int kWordBits = 32;

bool inside(int id, int count) { return id >= 0 && id < count; }

SHR_BITDCL bit_of(int id) { return SHR_BITDCL{1} << (id % kWordBits); }

constexpr int kAllCores = -17;

int read_cell(int unit, std::size_t position) {
    if (!inside(unit, SOC_MAX_NUM_DEVICES) || soc_control[unit] == nullptr) return -1;
    int value = 0;
    std::memcpy(&value, reinterpret_cast<const unsigned char *>(soc_control[unit]) + position,
                sizeof value);
    return value;
}

int read_core_cell(int unit, int core, const CopyCells &cells) {
    if (core == kAllCores) return read_cell(unit, cells.all_cores);
    return inside(core, kCores) ? read_cell(unit, cells.of_core(core)) : -1;
}

SOC_PPC_LAG_MEMBER lag_member(uint32 sys_port, uint32 member_id) {
    SOC_PPC_LAG_MEMBER member{};
    SOC_PPC_LAG_MEMBER_clear(&member);
    member.sys_port = sys_port;
    member.member_id = member_id;
    return member;
}

}  // namespace

void bcm_field_qset_init(bcm_field_qset_t &qset) { qset = {}; }

void bcm_field_qset_add(bcm_field_qset_t &qset, bcm_field_qualify_e e) {
    if (inside(e, kQualifiers)) qset.w[e / kWordBits] |= bit_of(e);
}

void bcm_field_qset_remove(bcm_field_qset_t &qset, bcm_field_qualify_e e) {
    if (inside(e, kQualifiers)) qset.w[e / kWordBits] &= ~bit_of(e);
}

unsigned int bcm_field_qset_test(bcm_field_qset_t &qset, bcm_field_qualify_e e) {
    return inside(e, kQualifiers) ? qset.w[e / kWordBits] & bit_of(e) : 0;
}

void bcm_field_aset_init(bcm_field_aset_t &aset) { aset = {}; }

void bcm_field_aset_add(bcm_field_aset_t &aset, bcm_field_action_e e) {
    if (inside(e, kActions)) aset.w[e / kWordBits] |= bit_of(e);
}

void bcm_field_aset_remove(bcm_field_aset_t &aset, bcm_field_action_e e) {
    if (inside(e, kActions)) aset.w[e / kWordBits] &= ~bit_of(e);
}

unsigned int bcm_field_aset_test(bcm_field_aset_t &aset, bcm_field_action_e e) {
    return inside(e, kActions) ? aset.w[e / kWordBits] & bit_of(e) : 0;
}

int bcm_get_gport_from_sys_port_id(int sysPortId) { return kSystemGport.cut(sysPortId); }

int bcm_get_sys_port_id_from_gport(int gPort) {
    return gport_type(gPort) == kSystemGport.type ? gPort & kSystemGport.mask : -1;
}

int get_copyno_any(int unit, int mem) {
    return inside(mem, kMemories) ? read_cell(unit, memory_cell(mem)) : -1;
}

int get_copyno_egq(int unit, int core) { return read_core_cell(unit, core, kEgressQueueing); }

int get_copyno_ihb(int unit, int core) { return read_core_cell(unit, core, kIngressHeader1); }

int get_copyno_ihp(int unit, int core) { return read_core_cell(unit, core, kIngressHeader2); }

int get_copyno_iqm(int unit, int core) { return read_core_cell(unit, core, kIngressQueueManager); }

void soc_ppd_lag_member_add_wrapper(int unit, uint32 lag_ndx, uint32 sys_port, uint32 member_id) {
    SOC_PPC_LAG_MEMBER member = lag_member(sys_port, member_id);
    int success[2] = {};  // room for an SDK whose flag is wider
    soc_ppd_lag_member_add(unit, lag_ndx, &member, success);
}

void soc_ppd_lag_member_remove_wrapper(int unit, uint32 lag_ndx, uint32 sys_port,
                                       uint32 member_id) {
    SOC_PPC_LAG_MEMBER member = lag_member(sys_port, member_id);
    soc_ppd_lag_member_remove(unit, lag_ndx, &member);
}
