// The arrays that new_A rows made and delete_A rows have not yet released, by address.
//
// The table gives each array its length, so that an index outside can be refused, and a deletion of
// anything else. It lives under the interpreter lock.
#pragma once

#include <cstddef>

namespace ombra {

// Notes an array of `count` elements. False when there is no memory for the note.
bool note_array(const void *array, std::size_t count);

// Forgets an array. False when it is not a live one.
bool forget_array(const void *array);

// Whether `address` is that of a live array. A look at an empty table costs one compare.
bool is_live_array(const void *address);

// The length of the live array at `address`, or null when there is none.
const std::size_t *array_length(const void *address);

}  // namespace ombra
