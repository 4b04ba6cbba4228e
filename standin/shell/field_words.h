// The rule engine as words: sets of names, values that a rule matches, what it does.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "standin/model/field.h"
#include "standin/text/name_text.h"
#include "standin/text/port_text.h"

namespace standin {

const NameFamily &field_stat_names();
// Presels have no names: their numbers serve.
const NameFamily &field_presel_names();

// "SrcIp,InPort"; "none" for the empty set.
std::string names_text(std::span<const SHR_BITDCL> words, const NameFamily &names);

inline constexpr const char *kValueForms =
    "a number, a MAC, IPv4 or IPv6 address, or bytes as hex:0a0b";
// The bytes of one value: an address has those of its kind, a number `width`; nothing for a word
// that is neither, or too large.
std::optional<std::string> value_bytes(std::string_view word, std::size_t width);

// "SrcIp 0xa000000 0xff000000": the words behind `field qualify RULE` that give these bytes.
std::string qualifier_words(int qualifier, std::span<const std::uint8_t> bytes);

// "Drop", "CopyToCpu 1 2", "SrcMacNew mac=02:00:00:00:00:01": behind `field action add RULE`.
std::string action_words(int action, const FieldAction &given, const PortNames &names);

// "100-200:1"
std::optional<FieldRange::Part> read_part(std::string_view word);
std::string part_text(const FieldRange::Part &part);

}  // namespace standin
