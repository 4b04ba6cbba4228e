// What the generated defaults of the SDK's functions are made of.
//
// A family of functions (`X_set` and `X_get`; `X_create`, `X_destroy`, `X_get`, `X_traverse`;
// `X_add`, `X_delete`) works on one table of each unit. A row of it is a block of bytes: the key,
// then the values. A call is an operation on that table with its arguments bound to places of the
// row; both are constants that the generator derives from the declarations. So
//
//     int bcm_x_set(int unit, bcm_port_t port, int value);
//     int bcm_x_get(int unit, bcm_port_t port, int *value);
//
// are `store` and `read` on rows of 8 bytes, whose first 4 are the key.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>

#include "standin/model/generic_tables.h"

namespace standin {

enum class Operation : std::uint8_t {
    store,       // makes or overwrites the row of the key; the values not bound become zeros
    update,      // overwrites what is bound; BCM_E_NOT_FOUND
    create,      // a new row with a new id, or with the caller's; BCM_E_EXISTS, BCM_E_FULL
    add,         // a new row of the key; BCM_E_EXISTS, BCM_E_FULL
    replace,     // takes the selected rows out, then adds one for each element
    read,        // the first selected row; zeros if there is none
    find,        // the first selected row; BCM_E_NOT_FOUND
    list,        // all selected rows, one an element
    remove,      // the selected rows; BCM_E_NOT_FOUND
    remove_all,  // the selected rows, if any
    forget       // every table whose name starts with the family's
};

// What an argument is to the row.
enum class Role : std::uint8_t {
    select,    // in: picks rows, and is part of new ones
    callback,  // the same, for a function that has to be there
    write,     // in: part of new rows only
    read,      // out
    id,        // in and out: the caller's id, or where the new one goes
    flags,     // in: the flags of the call, which may ask for the caller's id or for replacement
    list_in,   // in: an array that the row keeps whole, with the call's count
    list_out   // out: the same array
};

struct Binding {
    std::uint8_t argument = 0;  // index into the arguments, 0 being the unit
    Role role = Role::select;
    bool memory = false;       // the argument is the address of the bytes
    std::uint32_t at = 0;      // offset of the bytes behind that address
    std::uint32_t stride = 0;  // size of an element where the address is that of an array, else 0
    std::uint32_t row = 0;     // offset in the row, or the number of the list
    std::uint32_t size = 0;
};

// A column of the rows that a traversal hands out. Numbers pass by value, others by address.
struct Column {
    std::uint32_t row = 0;
    std::uint32_t size = 0;
    bool number = false;
};

// An argument that is a number of elements, or the address of one; 0, the unit's place, for none.
struct Number {
    std::uint8_t argument = 0;
    std::uint8_t size = 0;
};

struct Call {
    const char *name = nullptr;    // "bcm_x_set", by which faults are injected
    const char *family = nullptr;  // "bcm_x"
    const char *owner = nullptr;   // the family of the objects that these rows belong to, or null;
                                   // the key then begins with the key of the owner
    std::uint32_t owner_key = 0;   // its length
    std::uint32_t key = 0;         // bytes of the key
    std::uint32_t row = 0;         // bytes of the row
    Operation operation = Operation::store;
    Number count = {};   // how many elements come in; one without it
    Number max = {};     // how many elements fit
    Number filled = {};  // receives how many there are
    std::span<const Binding> bindings = {};
    std::span<const Reference> references = {};  // what has to be there, before anything changes
    IdColumn id = {};                            // by which others name the rows of the family
    std::int32_t first_id = 1;                   // of those that are given out
};

// Does the call: `arguments` are the addresses of the native arguments, the unit first. Faults
// pass first, then BCM_E_UNIT and BCM_E_INIT, then BCM_E_PARAM for a null address that is needed
// or a negative count, then the status of the first name of something that is not there.
// Thread-safe.
int answer(const Call &call, int unit, const void *const *arguments);

// For the functions without a model: a fault, BCM_E_UNIT, BCM_E_INIT or BCM_E_UNAVAIL.
int unavailable(const char *name, int unit);
int unavailable(const char *name);

// For the `_t_init` forms: clears the record, then copies each binding (whose `row` is the place
// in the record) into it. Null does nothing.
void clear_record(void *record, std::size_t size, std::span<const Binding> bindings,
                  const void *const *arguments);

}  // namespace standin
