// Constants by name: families of one prefix, and the names of registers, memories and fields.
//
// A name is read without regard to case, with its prefix or without. A number is read too, so
// that a value without a name keeps its way back. Where two names have one value, both are read
// and the one that comes first in the list of constants is written.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

class NameFamily {
  public:
    // Every constant `<prefix>...`, but `<prefix>Count`, which is the first value that is none.
    explicit NameFamily(std::string_view prefix);

    // The value of a name or number, or nothing.
    std::optional<std::int32_t> value(std::string_view text) const;

    // The name of a value, less its prefix when `brief`; the number where it has no name.
    std::string name(std::int32_t value, bool brief) const;

    // Value and name, less its prefix, ascending.
    const std::map<std::int32_t, std::string> &all() const { return names_; }

    // The characters that `name` takes at the most.
    std::size_t longest() const { return longest_; }

  private:
    std::string prefix_;
    std::map<std::string, std::int32_t, std::less<>> values_;  // by name in lower case, unprefixed
    std::map<std::int32_t, std::string> names_;                // unprefixed
    std::size_t longest_;
};

// Made at the first call, kept for good.
const NameFamily &field_qualifier_names();
const NameFamily &field_action_names();
const NameFamily &field_group_mode_names();
const NameFamily &field_decap_names();
const NameFamily &field_mpls_oam_names();
const NameFamily &field_oam_type_names();
const NameFamily &field_olp_header_names();

// What follows reads the three lists of identifiers: upper-case names that end in `r` for a
// register, `m` for a memory, `f` for a field. The ending may be left off in a text.
enum class Identifier : char { kRegister = 'r', kMemory = 'm', kField = 'f' };

struct IdentifierName {
    std::string_view name;  // "IHP_RESERVED_MC", without its ending
    std::int32_t id;        // 4340
};

// All of a kind, by ascending number.
const std::vector<IdentifierName> &identifiers(Identifier kind);

// By name or, for a number that the list need not have, by itself.
std::optional<std::int32_t> identifier_of(Identifier kind, std::string_view text);

// The name without its ending, or the number.
std::string identifier_text(Identifier kind, std::int32_t id);

// A set of bits as names, as in a qualifier set: names or numbers, joined by any signs that no
// name has; "none" for the empty set. Nothing when one of them is no member below `limit`.
std::optional<std::vector<std::int32_t>> read_name_list(const NameFamily &names,
                                                        std::string_view text, std::int32_t limit);

}  // namespace standin
