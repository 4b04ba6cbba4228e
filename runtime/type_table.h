// Run-time types: the descriptors of native pointer types, the conversions between them, and the
// searches by name.
//
// The records below are shared by all modules of the kind in one process, whoever compiled them.
// Their layout is frozen; tests/unit/runtime/layout_test.cpp holds it.
//
// Invariants:
//   1. A type's identity is its mangled name. Two modules may each have a record for it; after the
//      join (runtime/module_list.h) both use the same one.
//   2. The types of a table stand in ascending strcmp order of their names.
//   3. `prev` of a list's head and `next` of its last link are null.
//   4. Cast lists change order on use. Whoever calls anything here holds the interpreter lock.
#pragma once

#include <Python.h>

#include <cstdint>

struct SwigPyClientData;
struct swig_cast_link;

// One native pointer type.
struct swig_type_info {
    const char *name;               // "_p_bcm_l2_addr_s"
    const char *pretty_names;       // "bcm_l2_addr_s *|bcm_l2_addr_t *", or null
    void *reserved;                 // null, read by nobody
    swig_cast_link *casts;          // what may pass as this type; null until the join
    SwigPyClientData *client_data;  // null until a proxy class is registered
    std::int32_t owns_client_data;  // 1 once a class was registered for this very type
};

// Takes the pointer and a mark, which it sets when the result is a new allocation.
using swig_converter = void *(*)(void *pointer, int *new_memory);

// One permitted conversion into the type whose list the link stands in.
struct swig_cast_link {
    swig_type_info *type;      // the source
    swig_converter converter;  // null: the pointer passes unchanged
    swig_cast_link *next;
    swig_cast_link *prev;
};

// The types of one module. Tables of a process form a ring through `next`.
struct swig_module_table {
    swig_type_info **types;             // swig_type_slots
    std::uint64_t size;                 // without the terminating null
    swig_module_table *next;            // null until the join
    swig_type_info *const *type_seeds;  // swig_type_seeds, set by the join
    swig_cast_link *const *cast_seeds;  // swig_cast_seeds, set by the join
    void *client_data;                  // null, read by nobody
};

// Defined by the module that links the runtime, all three of the table's size and in its order:
// its own descriptors; for each its cast rows, ended by one whose type is null; and the types as
// shared with the process, filled by the join, with one terminating slot more.
// Hidden, so that a wrapper reaches its slot without a detour through the loader's tables.
[[gnu::visibility("hidden")]] extern swig_type_info *const swig_type_seeds[];
[[gnu::visibility("hidden")]] extern swig_cast_link *const swig_cast_seeds[];
[[gnu::visibility("hidden")]] extern swig_type_info *swig_type_slots[];

// The link of `type` whose source is called `name`, or null. The link found becomes the head of
// the list: what was used last is found first. `type` may be null.
swig_cast_link *SWIG_TypeCheck(const char *name, swig_type_info *type);

// The type called `name` in the tables from `start` up to but not including `end`, or null. At
// least `start` is searched, so equal arguments mean the whole ring.
swig_type_info *SWIG_MangledTypeQueryModule(swig_module_table *start, swig_module_table *end,
                                            const char *name);

// The type for a mangled name or, if no table has that, for one of the declared spellings, blanks
// aside; null if there is none. Results that were found are cached for the life of the process.
// No error stays set.
swig_type_info *SWIG_Python_TypeQuery(const char *key);

// The descriptor of `_p_char`, queried once in the life of the process; null if there is none.
swig_type_info *SWIG_pchar_descriptor();

// Attaches client data to a type and to each type without any that converts into it unchanged.
void SWIG_TypeClientData(swig_type_info *type, SwigPyClientData *data);

// The name that a person sees: the last declared spelling, else the mangled name. Null for null.
const char *SWIG_TypeDisplayName(const swig_type_info *type);

namespace ombra {

// The type with that declared spelling, blanks aside, in the ring of a table; null if there is
// none.
swig_type_info *find_spelling(swig_module_table *head, const char *key);

// The same, "unknown" for null.
inline const char *display_name_or_unknown(const swig_type_info *type) {
    const char *name = SWIG_TypeDisplayName(type);
    return name != nullptr ? name : "unknown";
}

}  // namespace ombra
