// A row of the method table, as the code of its shape sees it.
//
// A row is data: what two rows of one shape differ in stands here, and the machine code of the
// shape (frame.h, classes/accessor.h) is shared. Records are constant; the texts behind them are
// whole literals in read-only memory, so that a refusal formats nothing.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ombra {

// `texts` holds one message for each argument, in order, each ended by a zero byte. A message
// that also has a null-reference form is stored in that longer form, "invalid null reference in
// method ...", of which the plain form is the tail. Only the cold path walks them.
struct CallRow {
    const char *name;   // "soc_init"
    const char *texts;  // "in method 'soc_init', argument 1 of type 'int'\0..."
};

// A native function without its type, which the shape knows.
using NativeFunction = void (*)();

// The row of a plain function.
struct FunctionRow {
    NativeFunction native;
    CallRow call;
};

// Type slots stand right behind a row: that of the result, then those of the arguments, as far as
// the row has any that are read. `Row` ends in a CallRow.
template <typename Row, unsigned Count>
struct Record : Row {
    std::uint16_t slots[Count];
};
template <typename Row>
struct Record<Row, 0> : Row {};

// The index of a type slot is that of its argument, from 0. The result's stands before them.
inline constexpr unsigned kResultSlot = static_cast<unsigned>(-1);

inline unsigned slot_number(const CallRow &row, unsigned index) {
    return reinterpret_cast<const std::uint16_t *>(&row + 1)[index + 1];
}

// A field accessor. A getter has the text of `self`; a setter those of `self` and the value, and
// behind them, for an inline array, the whole null-reference text of the field.
struct FieldRow {
    CallRow call;
    std::uint16_t slots[3];  // none, `self`, the field
    std::uint16_t count;     // elements of an array, rows of a two-dimensional one
    std::uint32_t offset;    // of the field in the struct, bytes
    std::uint32_t size;      // of the field or of one array element, bytes
};

static_assert(offsetof(FieldRow, slots) == sizeof(CallRow));

}  // namespace ombra
