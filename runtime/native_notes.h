// Notes on the native memory that this module made for Python: owned structs and boxes by address
// and type, arrays by address and size. They let a deletion be refused of what is none
// of them, or no more, and an index outside an array.
//
// A module of the system shares its notes with the others of the system in the process (module and
// companion), so that none frees what is the other's; a foreign module of the kind has no notes,
// and while there is one, an address without a note may be its.
//
// All of it runs under the interpreter lock.
#pragma once

#include <cstddef>

#include "runtime/type_table.h"

namespace ombra {

struct NativeNote {
    const void *address;
    const swig_type_info *type;  // of the pointer; null for an array
    std::size_t size;            // of an array, in bytes
};

// Notes memory; false when there is no memory for the note. What was noted at the address before
// is gone: the allocator gives none out twice.
bool note_owned(const void *address, const swig_type_info *type);
bool note_array(const void *array, std::size_t size);

// Takes the note away. False when there is none of an owned object of that type, or of an array.
bool forget_owned(const void *address, const swig_type_info *type);
bool forget_array(const void *array);

// The bytes of the live array at `address`, of whichever module of the system, or null when there
// is none.
const std::size_t *array_size(const void *address);

// The same for the other modules of the system.
bool forget_owned_elsewhere(const void *address, const swig_type_info *type);

// Whether an owned object of the type is noted in any module of the system.
bool is_owned_anywhere(const void *address, const swig_type_info *type);

// Whether an address without a note of its own may be freed: it is nobody's array, and a foreign
// module is there that may have made it. Otherwise false with ValueError.
bool may_free_unnoted(const void *address);

// Joins the notes to those of the other modules of the system, once. False with MemoryError.
// REQUIRES: the module is in the list of the process (module_list.h).
bool share_notes();

// Calls `visit(note)` for each note.
void visit_notes(void (*visit)(const NativeNote &note));

}  // namespace ombra
