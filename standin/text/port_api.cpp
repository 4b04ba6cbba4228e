// Ports, sets of ports and ranges: the C functions over port_text.h and address_text.h.
#include "sdk/constants.h"
#include "sdk/diag/format.h"
#include "sdk/diag/parse.h"
#include "sdk/diag/text.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/text/address_text.h"
#include "standin/text/block_text.h"
#include "standin/text/unit_ports.h"

using namespace standin;
using namespace standin;

namespace {

// `say` prints why the text was refused.
int parse_ports(const char *text, const PortNames &names, _shr_pbmp_t *pbmp, bool say) {
    if (text == nullptr || pbmp == nullptr) return BCM_E_PARAM;
    std::string fault;
    std::optional<PortSet> set = read_port_list(text, names, fault);
    if (set) {
        *pbmp = pbmp_of(*set);
        return BCM_E_NONE;
    }
    if (say) outf("%s\n", fault.c_str());
    return BCM_E_PARAM;
}

int give_range(const std::optional<Range> &range, int *min, int *max) {
    if (min == nullptr || max == nullptr || !range) return BCM_E_PARAM;
    *min = range->low;
    *max = range->high;
    return BCM_E_NONE;
}

}  // namespace

int parse_small_integers(int, char *s, soc_pbmp_t *pbmp) { return parse_ports(s, {}, pbmp, false); }

int parse_pbmp(int unit, char *s, soc_pbmp_t *pbmp) {
    return parse_ports(s, unit_ports(unit), pbmp, true);
}

int parse_pp_pbmp(int unit, char *s, soc_pbmp_t *pbmp) {
    return parse_ports(s, unit_ports(unit), pbmp, true);
}

int parse_bcm_pbmp(int unit, char *s, bcm_pbmp_t *pbmp) {
    return parse_ports(s, unit_ports(unit), pbmp, true);
}

int parse_pbmp_no_error(int unit, char *s, soc_pbmp_t *pbmp) {
    return parse_ports(s, unit_ports(unit), pbmp, false);
}

int parse_port(int unit, char *s, soc_port_t *portp) {
    if (s == nullptr || portp == nullptr) return BCM_E_PARAM;
    PortNames names = unit_ports(unit);
    std::optional<int> port = read_port(s, names);
    if (!port) return BCM_E_PARAM;
    bool there = names.empty();
    for (const PortName &entry : names) there = there || entry.port == *port;
    if (!there) return BCM_E_PORT;
    *portp = *port;
    return BCM_E_NONE;
}

int parse_bcm_port(int unit, char *s, bcm_port_t *portp) {
    if (s == nullptr || portp == nullptr) return BCM_E_PARAM;
    std::optional<std::int32_t> gport = read_gport(s, unit_ports(unit));
    if (!gport) return BCM_E_PARAM;
    *portp = *gport;
    return BCM_E_NONE;
}

int parse_mod_port(int unit, char *s, bcm_mod_port_t *mp) {
    if (s == nullptr || mp == nullptr) return BCM_E_PARAM;
    std::optional<ModPort> at = read_mod_port(s, unit_ports(unit));
    if (!at) return BCM_E_PARAM;
    mp->mod = at->mod;
    mp->port = at->port;
    return BCM_E_NONE;
}

char *mod_port_name(int unit, int modid, int port) {
    // The text is the library's own: it lasts until this thread asks for the next one.
    thread_local std::string name;
    name = mod_port_text({modid, port}, unit_ports(unit));
    return name.data();
}

char *format_pbmp(int unit, char *buf, int bufsize, soc_pbmp_t pbmp) {
    PortSet set = port_set_of(pbmp);
    return copy_text(buf, bufsize, port_list_text(set, unit_ports(unit)));
}

char *format_bcm_pbmp(int unit, char *buf, int bufsize, bcm_pbmp_t pbmp) {
    return format_pbmp(unit, buf, bufsize, pbmp);
}

char *format_gport(char *buf, bcm_gport_t gport) { return copy_text(buf, gport_text(gport)); }

int parse_num_range(int, char *s, int *min, int *max, int legal_min, int legal_max) {
    return give_range(read_range(view_of(s), {legal_min, legal_max}), min, max);
}

int diag_parse_range(char *low, char *high, int *min, int *max, int legal_min, int legal_max) {
    return give_range(read_range(view_of(low), view_of(high), {legal_min, legal_max}), min, max);
}

int parse_block_range(int, soc_block_types_t regtype, char *s, int *min, int *max,
                      soc_block_types_t mask) {
    std::optional<BlockRange> blocks = read_block_range(view_of(s));
    if (!blocks) return BCM_E_PARAM;
    if (!block_type_in(blocks->type, regtype) || !block_type_in(blocks->type, mask))
        return BCM_E_NOT_FOUND;
    return give_range(blocks->copies, min, max);
}
