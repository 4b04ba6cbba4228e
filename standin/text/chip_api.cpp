// Registers, memories, IP addresses and port modes: C functions over their text forms.

#include "sdk/constants.h"
#include "sdk/diag/format.h"
#include "sdk/diag/parse.h"
#include "sdk/soc/reg.h"
#include "standin/base/number_text.h"
#include "standin/base/scan.h"
#include "standin/phy/mode_text.h"
#include "standin/regs/layout.h"
#include "standin/text/identifier_text.h"
#include "standin/text/register_list.h"
#include "standin/text/unit_ports.h"

using namespace standin;

namespace {

// Hands over what a parser found, if it found anything and the caller gave room.
template <class T, class V>
int give_value(const std::optional<V> &value, T *out) {
    if (!value || out == nullptr) return BCM_E_PARAM;
    *out = static_cast<T>(*value);
    return BCM_E_NONE;
}

// An index below `count`, or `min` or `max`; -1 for anything else.
int read_index(std::string_view text, int count) {
    std::optional<Range> range = read_range(text, {0, count - 1});
    return range && range->low == range->high ? range->low : -1;
}

}  // namespace

int parse_memory_index(int, soc_mem_t mem, char *val_str) {
    const standin::MemoryLayout *memory = standin::find_memory(mem);
    return read_index(view_of(val_str), memory != nullptr ? memory->entries : 0);
}

unsigned int parse_memory_array_index(int, soc_mem_t mem, char *val_str) {
    const standin::MemoryLayout *memory = standin::find_memory(mem);
    return static_cast<unsigned int>(
        read_index(view_of(val_str), memory != nullptr ? memory->arrays : 0));
}

int parse_memory_name(int, soc_mem_t *result, char *str, int *copyno, unsigned int *array_index) {
    if (result == nullptr || str == nullptr) return BCM_E_PARAM;
    std::optional<MemoryRef> ref = read_memory_ref(str);
    if (!ref) return BCM_E_PARAM;
    *result = ref->memory;
    if (copyno != nullptr) *copyno = ref->copy;
    if (array_index != nullptr) *array_index = ref->array_index;
    return BCM_E_NONE;
}

int parse_cmic_regname(int, char *name, uint32 *offset_ptr) {
    return give_value(read_cmic_register(view_of(name)), offset_ptr);
}

int parse_symbolic_reference(int unit, soc_regaddrlist_t *alist, char *ref) {
    if (alist == nullptr || alist->ainfo == nullptr || ref == nullptr) return BCM_E_PARAM;
    std::optional<RegisterRef> parsed = read_register_ref(ref, unit_ports(unit));
    if (!parsed) return BCM_E_PARAM;
    std::vector<soc_regaddrinfo_t> list;
    int status = register_addresses(unit, *parsed, kRegisterListRoom, list);
    if (status != BCM_E_NONE) return status;
    std::copy(list.begin(), list.end(), alist->ainfo);
    alist->count = static_cast<int>(list.size());
    return BCM_E_NONE;
}

int parse_ipaddr(char *str, ip_addr_t *ipaddr) { return give_value(read_ip(view_of(str)), ipaddr); }

void format_ipaddr(char buf[IPADDR_STR_LEN], ip_addr_t ipaddr) {
    copy_text(buf, IPADDR_STR_LEN, ip_text(ipaddr));
}

void format_ipaddr_mask(char *buf, ip_addr_t ipaddr, ip_addr_t mask) {
    copy_text(buf, ip_mask_text(ipaddr, mask));
}

int parse_port_mode(char *str, soc_port_mode_t *mode) {
    return give_value(read_port_mode(view_of(str)), mode);
}

void format_port_mode(char *buf, int bufsize, soc_port_mode_t mode, int abbrev) {
    copy_text(buf, bufsize, port_mode_text(mode, abbrev != 0));
}

int parse_port_ability(char *str, soc_port_ability_t *mode) {
    std::optional<std::uint32_t> bits = read_port_mode(view_of(str));
    if (!bits || mode == nullptr) return BCM_E_PARAM;
    ability_words(*bits, mode->words);
    return BCM_E_NONE;
}

int parse_phy_control_longreach_ability(char *str, soc_phy_control_longreach_ability_t *ability) {
    return give_value(read_long_reach(view_of(str)), ability);
}

void format_phy_control_longreach_ability(char *buf, int bufsize,
                                          soc_phy_control_longreach_ability_t ability) {
    copy_text(buf, bufsize, long_reach_text(ability));
}
