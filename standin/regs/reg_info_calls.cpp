// Descriptions of registers, their addresses, and walks over them.
#include <array>

#include "sdk/soc/reg.h"
#include "standin/base/number_text.h"
#include "standin/base/scan.h"
#include "standin/model/loans.h"
#include "standin/regs/access.h"
#include "standin/regs/bits.h"

using namespace standin;

namespace {

// Flags of the datamask calls: leave out what the chip changes by itself.
constexpr int kStableBits = 1;
// Options of soc_reg_addr_get: the offset in the block in place of the bus address.
constexpr uint32 kWithinBlock = 1;
// Kinds of access: one instance, or a write that reaches all cores.
constexpr uint8 kSingle = 0;
constexpr uint8 kBroadcast = 1;

// The bits of a register in words; none for a register that there isn't.
std::array<std::uint32_t, kMostWords> datamask(const char *function, int unit, soc_reg_t reg,
                                               int flags) {
    std::array<std::uint32_t, kMostWords> mask{};
    const RegisterLayout *const layout = find_register(reg);
    if (layout == nullptr || (layout->is_volatile && (flags & kStableBits) != 0)) return mask;
    on_unit(function, unit, Need::kDevice, [&](const Unit &) {
        for (unsigned word = 0; word < layout->words(); ++word) mask[word] = layout->mask(word);
        return BCM_E_NONE;
    });
    return mask;
}

struct Element {
    const RegisterLayout *layout;
    Instances instances;
    int index;
};

// BCM_E_NOT_FOUND, BCM_E_PORT, BCM_E_PARAM.
int find_element(soc_reg_t reg, int port, int index, Element &found) {
    found = {find_register(reg), {}, index};
    if (found.layout == nullptr) return BCM_E_NOT_FOUND;
    const int status = find_instances(*found.layout, port, found.instances);
    if (status < 0) return status;
    return within(index, 0, found.layout->elements - 1) ? BCM_E_NONE : BCM_E_PARAM;
}

soc_regaddrinfo_t describe_address(uint32 address) {
    const auto place = find_register_at(address);
    if (place && place->word == 0) return describe(*place->layout, place->instance, place->index);
    soc_regaddrinfo_t none{};
    none.addr = address;
    none.reg = none.cos = none.field = -1;
    none.block = static_cast<int>(address >> kBlockShift);
    none.port = REG_PORT_ANY;
    return none;
}

// The register that a description names, or null.
const RegisterLayout *described(const soc_regaddrinfo_t *info) {
    return info == nullptr || info->valid == 0 ? nullptr : find_register(info->reg);
}

}  // namespace

extern "C" {

uint32 soc_reg_datamask(int unit, soc_reg_t reg, int flags) {
    return datamask(__func__, unit, reg, flags)[0];
}

uint64 soc_reg64_datamask(int unit, soc_reg_t reg, int flags) {
    return get_bits(datamask(__func__, unit, reg, flags), 0, 64);
}

void soc_reg_above_64_datamask(int unit, soc_reg_t reg, int flags, unsigned int mask[20]) {
    if (mask != nullptr) std::ranges::copy(datamask(__func__, unit, reg, flags), mask);
}

// 4, 8, or all bytes of the words of a wider register; BCM_E_UNIT, BCM_E_NOT_FOUND.
int soc_reg_bytes(int unit, soc_reg_t reg) {
    return on_unit(__func__, unit, Need::kDevice, [&](const Unit &) {
        const RegisterLayout *const layout = find_register(reg);
        return layout == nullptr ? BCM_E_NOT_FOUND : static_cast<int>(layout->words() * 4);
    });
}

// All ones for a register, port or index that there isn't.
uint32 soc_reg_addr_get(int unit, soc_reg_t reg, int port, int index, uint32 options, int *blk,
                        uint8 *acc_type) {
    return unit_value(__func__, unit, kNoAddress, [&](const Unit &) {
        Element at;
        if (find_element(reg, port, index, at) < 0) return kNoAddress;
        const uint32 address = element_address(*at.layout, at.instances.first, index);
        if (blk != nullptr) *blk = static_cast<int>(address >> kBlockShift);
        if (acc_type != nullptr) *acc_type = at.instances.count > 1 ? kBroadcast : kSingle;
        return (options & kWithinBlock) != 0 ? address & kOffsetMask : address;
    });
}

uint32 soc_reg_addr(int unit, soc_reg_t reg, int port, int index) {
    return soc_reg_addr_get(unit, reg, port, index, 0, nullptr, nullptr);
}

int soc_reg_port_idx_valid(int unit, soc_reg_t reg, soc_port_t port, int idx) {
    return unit_value(__func__, unit, 0, [&](const Unit &) {
        Element at;
        return find_element(reg, port, idx, at) == BCM_E_NONE;
    });
}

// Where no element begins at `addr`, `valid` is 0 and `reg` -1.
void soc_regaddrinfo_get(int unit, soc_regaddrinfo_t *ainfo, uint32 addr) {
    if (ainfo == nullptr) return;
    soc_regaddrinfo_t none = describe_address(kNoAddress);
    none.addr = addr;
    *ainfo = unit_value(__func__, unit, none, [&](const Unit &) { return describe_address(addr); });
}

// `addr` is an offset in the block, or the bus address.
void soc_regaddrinfo_extended_get(int unit, soc_regaddrinfo_t *ainfo, soc_block_t block,
                                  int acc_type, uint32 addr) {
    if (ainfo == nullptr) return;
    const bool known = within(block, 0, static_cast<int>(kNoAddress >> kBlockShift));
    const uint32 place =
        known ? static_cast<uint32>(block) << kBlockShift | (addr & kOffsetMask) : kNoAddress;
    soc_regaddrinfo_get(unit, ainfo, place);
    ainfo->block = block;
    ainfo->acc_type = static_cast<uint8>(acc_type);
}

int soc_regaddrlist_alloc(soc_regaddrlist_t *addrlist) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    if (addrlist == nullptr) return BCM_E_PARAM;
    constexpr std::size_t most = kRegisterListRoom;
    addrlist->ainfo = new (std::nothrow) soc_regaddrinfo_t[most]();
    addrlist->count = 0;
    if (addrlist->ainfo == nullptr) return BCM_E_MEMORY;
    loan_book<soc_regaddrinfo_t>().lend(addrlist->ainfo, static_cast<int>(most));
    return BCM_E_NONE;
}

// BCM_E_NOT_FOUND: no list that soc_regaddrlist_alloc made, or free already.
int soc_regaddrlist_free(soc_regaddrlist_t *addrlist) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    if (addrlist == nullptr) return BCM_E_PARAM;
    const int status = take_back(addrlist->ainfo, static_cast<int>(kRegisterListRoom));
    if (status == BCM_E_NONE) *addrlist = {};
    return status;
}

// Every element of every instance, by ascending number of the register. A negative answer ends
// the walk and is its status. The lock is free during each call.
int soc_reg_iterate(int unit, soc_reg_iter_f do_it, void *data) {
    const int status = on_unit(__func__, unit, Need::kReset, [&](const Unit &) {
        return do_it == nullptr ? BCM_E_PARAM : BCM_E_NONE;
    });
    if (status < 0) return status;
    for (const RegisterLayout &layout : all_registers()) {
        for (int instance = 0; instance < layout.instances(); ++instance) {
            for (int index = 0; index < layout.elements; ++index) {
                soc_regaddrinfo_t info = describe(layout, instance, index);
                if (const int answer = do_it(unit, &info, data); answer < 0) return answer;
            }
        }
    }
    return BCM_E_NONE;
}

// "IHP_GENERAL_TRAP.1[2]", a reference that the shell reads; "0x00001a40" where no register is.
void soc_reg_sprint_addr(int, char *bp, soc_regaddrinfo_t *ainfo) {
    if (ainfo == nullptr) return;
    const RegisterLayout *const layout = described(ainfo);
    copy_text(bp, layout != nullptr ? register_text(*layout, ainfo->port, ainfo->idx)
                                    : text_of("0x%08x", ainfo->addr));
}

// "MC_DB_TH=0x12,UC_DB_TH=0x0": the fields that lie in the first 32 bits, with `infix`, or '=',
// between name and value; the empty text for a register that there isn't.
void soc_reg_sprint_data(int, char *bp, char *infix, soc_reg_t reg, uint32 value) {
    std::string text;
    const RegisterLayout *const layout = find_register(reg);
    for (const FieldPlace &field : layout == nullptr ? std::vector<FieldPlace>() : layout->fields) {
        if (field.first + field.bits > kWordBits) break;
        if (!text.empty()) text += ',';
        text += field.name;
        text += infix == nullptr ? "=" : infix;
        text += text_of("0x%lx", get_bits({&value, 1}, field.first, field.bits));
    }
    copy_text(bp, text);
}

// Leaves in `*mask` the bits that a test may write and expect back: none of a register that the
// chip changes by itself. 1 if bits went, 0 if none did; BCM_E_NOT_FOUND for no register.
int reg_mask_subset(int unit, soc_regaddrinfo_t *ainfo, uint64 *mask) {
    return on_unit(__func__, unit, Need::kDevice, [&](const Unit &) {
        if (ainfo == nullptr || mask == nullptr) return BCM_E_PARAM;
        const RegisterLayout *const layout = described(ainfo);
        if (layout == nullptr) return BCM_E_NOT_FOUND;
        const uint64 testable = layout->is_volatile ? 0 : low_mask(layout->bits);
        const uint64 before = *mask;
        *mask &= testable;
        return *mask != before ? 1 : 0;
    });
}

// Whether a test passes over the register, one that the chip changes by itself. Counts in `rd`
// those that it would not pass over, and passes over the first `start_from` of them too.
int rval_test_skip_reg(int unit, soc_regaddrinfo_t *ainfo, reg_data_t *rd) {
    return on_unit(__func__, unit, Need::kDevice, [&](const Unit &) {
        if (ainfo == nullptr || rd == nullptr) return BCM_E_PARAM;
        const RegisterLayout *const layout = described(ainfo);
        if (layout == nullptr || layout->is_volatile) return 1;
        return rd->count++ < rd->start_from ? 1 : 0;
    });
}

}  // extern "C"
