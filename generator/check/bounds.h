// Values of array bounds: integer expressions over constants and defines.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace generator {

// What a name in a bound stands for: the text of a define, or a constant's number.
using Names = std::map<std::string, std::string>;

// The value of an expression of numbers, names, + - * / and parentheses, and of
// _SHR_BITDCLSIZE(bits), the words that hold so many bits. Nothing if a name is unknown or the text
// is no such expression.
std::optional<std::int64_t> evaluate(const std::string &text, const Names &names);

}  // namespace generator
