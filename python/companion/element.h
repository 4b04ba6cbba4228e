// Elements: the native types that the companion lays out in memory, and how one crosses to Python.
//
//   form           Python object
//   number         int or long in the type's range
//   text           str, or None; the storage is the str's own
//   mac            "aa:bb:cc:dd:ee:ff"
//   port_list      list of port numbers
//   array          Array in place; takes a sequence of the same length
//   structure      instance in place; takes one to copy
//   data_pointer   pointer object, or None
//   code_pointer   pointer object or native callback, or None
#pragma once

#include <Python.h>

#include <cstddef>
#include <cstdint>

#include "runtime/type_table.h"

namespace companion {

enum class Form : std::uint8_t {
    number,
    text,
    mac,
    port_list,
    array,
    structure,
    data_pointer,
    code_pointer
};

struct Element {
    const char *name;     // "bcm_color_t"
    std::uint16_t slot;   // of the pointer to it
    std::uint16_t inner;  // slot: of a pointer's own type; of the pointer to an array's item
    std::uint32_t size;   // bytes
    std::uint32_t count;  // items of an array
    Form form;
    bool is_signed;                // numbers
    void (*check)(std::uint64_t);  // throws for a number that the type itself refuses, or null
};

// Generated, in strcmp order of the names.
extern const Element elements[];
extern const std::size_t element_count;

// The element of a declared name. Null with ValueError if there is none.
const Element *find_element(const char *name);

// The element behind a pointer of the type, the one with the shortest name; null for none.
const Element *element_behind(const swig_type_info *type);
const Element *element_behind(unsigned slot);

// The object for the element at `place`. What is shown in place holds a reference to `owner`.
// A new reference, or null with an exception.
PyObject *load(const Element &element, void *place, PyObject *owner);

// Writes the element at `place`. False with an exception, and the place as it was: TypeError,
// OverflowError, or ValueError for what the type itself refuses. A pointer or text does not keep
// what it points to; needs_keeping() says where the caller has to.
bool store(const Element &element, void *place, PyObject *value);

// Makes every number of a list an `int`, as the module's port lists want them: what comes out of
// them is `long`. Takes the reference over and gives it back, or null with an exception; a null
// list is passed on. REQUIRES: nobody else has the list.
PyObject *make_ints(PyObject *list);

inline bool needs_keeping(const Element &element) {
    return element.form == Form::text || element.form == Form::data_pointer ||
           element.form == Form::code_pointer;
}

}  // namespace companion
