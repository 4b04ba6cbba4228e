// The constants by name, as the catalogue lists them: what turns a number back into a word.
#pragma once
#include <cstddef>
#include <cstdint>

struct ConstantName {
    const char *name;
    std::int32_t value;
};

// In the order of the catalogue; several names may share a number.
extern const ConstantName standin_constants[];
extern const std::size_t standin_constant_count;
