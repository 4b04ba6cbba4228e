// What a single number names, asked by calls that keep no row of it.
#pragma once
#include <cstdint>

#include "standin/model/generic_tables.h"

namespace standin {

inline constexpr NameKind kPortKind{.name = "port", .sort = Sort::kPort};

// BCM_E_NONE where the number names something of that kind, else its refusal.
int check_named(Switch &chip, const NameKind &kind, const char *field, std::int64_t number);

}  // namespace standin
