// The calls of the rule engine on what an entry matches; those of one qualifier with one value, or
// with data and mask, are generated from their declarations.
#include "standin/chapters/field_qualify.h"

#include <cstring>

#include "sdk/bcm/field_qualify.h"
#include "sdk/bcm/field_qualify_get.h"
#include "standin/chapters/field_access.h"

using namespace standin;

namespace standin {

int set_qualifier(const char *function, int unit, bcm_field_entry_t entry, int id,
                  std::initializer_list<Source> values) {
    return on_switch(function, unit, [&](Switch &chip) {
        FieldEntry *const rule = find_in(entries_of(chip), entry);
        if (rule == nullptr) return BCM_E_NOT_FOUND;
        if (!in_set(groups_of(chip)[rule->group].qualifiers.w, id)) return BCM_E_PARAM;
        std::vector<std::uint8_t> bytes;
        for (const Source &value : values) {
            if (value.bytes == nullptr) return BCM_E_PARAM;
            const auto *const first = static_cast<const std::uint8_t *>(value.bytes);
            bytes.insert(bytes.end(), first, first + value.size);
        }
        rule->qualifiers[{id, bytes.size()}] = bytes;
        return BCM_E_NONE;
    });
}

int get_qualifier(const char *function, int unit, bcm_field_entry_t entry, int id,
                  std::initializer_list<Target> values) {
    return on_rule(function, unit, entry, [&](const FieldEntry &rule) {
        std::size_t size = 0;
        for (const Target &value : values) {
            if (value.bytes == nullptr) return BCM_E_PARAM;
            size += value.size;
        }
        const std::vector<std::uint8_t> *const bytes = find_in(rule.qualifiers, {id, size});
        if (bytes == nullptr) return BCM_E_NOT_FOUND;
        const std::uint8_t *from = bytes->data();
        for (const Target &value : values) {
            std::memcpy(value.bytes, from, value.size);
            from += value.size;
        }
        return BCM_E_NONE;
    });
}

}  // namespace standin

namespace {

template <class... T>
int set_values(const char *function, int unit, bcm_field_entry_t entry, int id,
               const T &...values) {
    return set_qualifier(function, unit, entry, id, {Source{&values, sizeof values}...});
}

template <class... T>
int get_values(const char *function, int unit, bcm_field_entry_t entry, int id, T *...values) {
    return get_qualifier(function, unit, entry, id, {Target{values, sizeof *values}...});
}

}  // namespace

extern "C" {

int bcm_field_qualify_SrcPort(int unit, bcm_field_entry_t entry, bcm_module_t data_modid,
                              bcm_module_t mask_modid, bcm_port_t data_port, bcm_port_t mask_port) {
    return set_values(__func__, unit, entry, bcmFieldQualifySrcPort, data_modid, mask_modid,
                      data_port, mask_port);
}

int bcm_field_qualify_SrcPort_get(int unit, bcm_field_entry_t entry, bcm_module_t *data_modid,
                                  bcm_module_t *mask_modid, bcm_port_t *data_port,
                                  bcm_port_t *mask_port) {
    return get_values(__func__, unit, entry, bcmFieldQualifySrcPort, data_modid, mask_modid,
                      data_port, mask_port);
}

int bcm_field_qualify_DstPort(int unit, bcm_field_entry_t entry, bcm_module_t data_modid,
                              bcm_module_t mask_modid, bcm_port_t data_port, bcm_port_t mask_port) {
    return set_values(__func__, unit, entry, bcmFieldQualifyDstPort, data_modid, mask_modid,
                      data_port, mask_port);
}

int bcm_field_qualify_DstPort_get(int unit, bcm_field_entry_t entry, bcm_module_t *data_modid,
                                  bcm_module_t *mask_modid, bcm_port_t *data_port,
                                  bcm_port_t *mask_port) {
    return get_values(__func__, unit, entry, bcmFieldQualifyDstPort, data_modid, mask_modid,
                      data_port, mask_port);
}

// All qualifiers of the entry.
int bcm_field_qualify_clear(int unit, bcm_field_entry_t entry) {
    return change_rule(__func__, unit, entry, [](Switch &, FieldEntry &rule) {
        rule.qualifiers.clear();
        rule.ranges.clear();
        return BCM_E_NONE;
    });
}

int bcm_field_qualifier_delete(int unit, bcm_field_entry_t entry, bcm_field_qualify_t qual) {
    return change_rule(__func__, unit, entry, [&](Switch &, FieldEntry &rule) {
        const auto gone = std::erase_if(rule.qualifiers,
                                        [&](const auto &one) { return one.first.first == qual; }) +
                          rule.ranges.erase(qual);
        return gone == 0 ? BCM_E_NOT_FOUND : BCM_E_NONE;
    });
}

}  // extern "C"
