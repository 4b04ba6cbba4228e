// Names of the field processor: the C functions over name_text.h.
#include <span>

#include "sdk/constants.h"
#include "sdk/diag/format.h"
#include "sdk/diag/parse.h"
#include "standin/base/scan.h"
#include "standin/text/name_text.h"

using namespace standin;

namespace {

// What the set parsers and formatters need to know of a bit array.
struct BitSet {
    std::span<uint32> words;
    std::int32_t limit;  // members are below it
    const NameFamily &names;
};

bool test(const BitSet &set, std::int32_t member) {
    std::size_t at = static_cast<std::size_t>(member);
    return (set.words[at / 32] >> (at % 32) & 1U) != 0;
}

void put(const BitSet &set, std::int32_t member, bool value) {
    std::size_t at = static_cast<std::size_t>(member);
    uint32 bit = 1U << (at % 32);
    set.words[at / 32] = value ? set.words[at / 32] | bit : set.words[at / 32] & ~bit;
}

BitSet qualifiers(bcm_field_qset_t &qset) {
    return {qset.w, bcmFieldQualifyCount + 277, field_qualifier_names()};
}

BitSet actions(bcm_field_aset_t &aset) {
    return {aset.w, bcmFieldActionCount, field_action_names()};
}

char *format_set(char *buf, const BitSet &set, const char *separator) {
    std::string text;
    for (std::int32_t member = 0; member < set.limit; ++member) {
        if (!test(set, member)) continue;
        if (!text.empty()) text += separator != nullptr ? separator : ", ";
        text += set.names.name(member, true);
    }
    return copy_text(buf, text.empty() ? "none" : text);
}

template <class T>
T parse_name(const NameFamily &names, const char *text, int none) {
    return static_cast<T>(names.value(view_of(text)).value_or(none));
}

char *format_name(char *buf, const NameFamily &names, int value, int brief) {
    return copy_text(buf, names.name(value, brief != 0));
}

}  // namespace

bcm_field_qualify_t parse_field_qualifier(char *str) {
    return parse_name<bcm_field_qualify_t>(field_qualifier_names(), str, bcmFieldQualifyCount);
}

bcm_field_group_mode_t parse_field_group_mode(char *str) {
    return parse_name<bcm_field_group_mode_t>(field_group_mode_names(), str,
                                              bcmFieldGroupModeCount);
}

bcm_field_action_t parse_field_action(char *str) {
    return parse_name<bcm_field_action_t>(field_action_names(), str, bcmFieldActionCount);
}

bcm_field_decap_t parse_field_decap(char *str) {
    return parse_name<bcm_field_decap_t>(field_decap_names(), str, bcmFieldDecapCount);
}

bcm_field_MplsOam_Control_pktType_t parse_field_MplsOamCtrlPktType(char *str) {
    return parse_name<bcm_field_MplsOam_Control_pktType_t>(field_mpls_oam_names(), str,
                                                           bcmFieldMplsOamControlPktTypeCount);
}

bcm_field_oam_type_t parse_field_oam_type(char *str) {
    return parse_name<bcm_field_oam_type_t>(field_oam_type_names(), str, bcmFieldOamTypeCount);
}

bcm_field_olp_header_type_t parse_field_olp_hdr_type(char *str) {
    return parse_name<bcm_field_olp_header_type_t>(field_olp_header_names(), str,
                                                   bcmFieldOlpHeaderTypeCount);
}

int parse_field_qset(char *str, bcm_field_qset_t *qset) {
    if (qset == nullptr) return BCM_E_PARAM;
    BitSet set = qualifiers(*qset);
    auto members = read_name_list(set.names, view_of(str), set.limit);
    if (!members) return BCM_E_PARAM;
    *qset = {};
    for (std::int32_t member : *members) put(set, member, true);
    return BCM_E_NONE;
}

int parse_field_aset(char *str, bcm_field_aset_t *aset, uint8 add) {
    if (aset == nullptr) return BCM_E_PARAM;
    BitSet set = actions(*aset);
    auto members = read_name_list(set.names, view_of(str), set.limit);
    if (!members) return BCM_E_PARAM;
    for (std::int32_t member : *members) put(set, member, add != 0);
    return BCM_E_NONE;
}

char *format_field_qualifier(char *buf, bcm_field_qualify_t qual, int brief) {
    return format_name(buf, field_qualifier_names(), qual, brief);
}

char *format_field_qset(char *buf, bcm_field_qset_t qset, char *separator) {
    return format_set(buf, qualifiers(qset), separator);
}

char *format_field_group_mode(char *buf, bcm_field_group_mode_t mode, int brief) {
    return format_name(buf, field_group_mode_names(), mode, brief);
}

char *format_field_action(char *buf, bcm_field_action_t action, int brief) {
    return format_name(buf, field_action_names(), action, brief);
}

char *format_field_aset(char *buf, bcm_field_aset_t aset, char *separator) {
    return format_set(buf, actions(aset), separator);
}

char *format_field_decap(char *buf, bcm_field_decap_t decap) {
    return format_name(buf, field_decap_names(), decap, 0);
}
