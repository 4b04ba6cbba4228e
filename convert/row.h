// A row of the method table, as the code of its shape sees it.
//
// A row is data: what two rows of one shape differ in stands here, and the machine code of the
// shape (frame.h, classes/accessor.h) is shared. Records are constant; the texts behind them are
// whole literals in read-only memory, so that a refusal formats nothing.
#pragma once

#include <cstdint>

namespace ombra {

// Arguments of the longest row, and one more slot for the result.
inline constexpr unsigned kMaxArguments = 9;
inline constexpr unsigned kResultSlot = kMaxArguments;

// `texts` holds one message for each argument, in order, each ended by a zero byte. A message
// that also has a null-reference form is stored in that longer form, "invalid null reference in
// method ...", of which the plain form is the tail. Only the cold path walks them.
struct CallRow {
    const char *name;   // "soc_init"
    const char *texts;  // "in method 'soc_init', argument 1 of type 'int'\0..."
    std::uint16_t slots[kMaxArguments + 1];  // type slot of each argument; the last: the result's
};

// A field accessor. A getter has the text of `self`; a setter those of `self` and the value, and
// behind them, for an inline array, the whole null-reference text of the field.
struct FieldRow {
    CallRow call;
    std::uint32_t offset;  // of the field in the struct, bytes
    std::uint32_t size;    // of the field or of one array element, bytes
    std::uint32_t count;   // elements of an array, rows of a two-dimensional one
};

}  // namespace ombra
