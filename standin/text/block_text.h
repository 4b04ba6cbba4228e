// Blocks of the chip as text, and the lists of block types that registers carry.
//
// A block type is numbered by its place in the list of names below, from 0. Text of a range of
// copies: "IHP" is every copy, "IHP1" one, "IHP0-1" and "IHP0-IHP1" some; "0-1" or "all" leave
// the type open. Copies are 0 to 15.
#pragma once

#include <optional>
#include <string_view>

#include "standin/text/address_text.h"

namespace standin {

inline constexpr int kAnyBlock = -1;
inline constexpr Range kBlockCopies = {0, 15};

struct BlockRange {
    int type;  // kAnyBlock when the text names none
    Range copies;
};
std::optional<BlockRange> read_block_range(std::string_view text);

// "IHP", or an empty text for a number that is no type.
std::string_view block_type_name(int type);

// Whether a list that ends in a negative number has the type; a null list has every type, and
// every list has kAnyBlock.
bool block_type_in(int type, const int *list);

}  // namespace standin
