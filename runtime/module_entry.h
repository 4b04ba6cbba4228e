// The module entry: what import runs, once in each interpreter.
#pragma once

#include <Python.h>

#include <cstddef>
#include <cstdint>

#include "runtime/name_hash.h"
#include "runtime/type_table.h"
#include "runtime/variable_link.h"

// A row of the module's constant table. Other kinds than those named are skipped.
inline constexpr std::int32_t SWIG_CONST_END = 0;
inline constexpr std::int32_t SWIG_CONST_POINTER = 4;  // a pointer object
inline constexpr std::int32_t SWIG_CONST_PACKED = 5;   // a packed object of `size` bytes

struct swig_const_row {
    std::int32_t kind;
    const char *name;
    std::size_t size;
    void *pointer;
    swig_type_info **type;  // a slot of swig_type_slots
};

struct swig_constant {
    template <std::size_t size>
    constexpr swig_constant(const char (&text)[size], std::int32_t number)
        : name(text), value(number), length(size - 1), hash(ombra::string_hash(text, size - 1)) {}

    const char *name;
    std::int32_t value;
    std::uint32_t length;  // of the name
    long hash;             // of the name, without a seed
};

struct swig_variable {
    const char *name;
    swig_variable_getter get;
    swig_variable_setter set;
    bool read_only;  // `set` looks at no value and always raises
};

// The steps that fill the module dictionary, in their order.
enum class swig_install_kind : std::uint8_t {
    constants,  // constants[first, first + count)
    cvar,       // the link object, under the name "cvar"
    link,       // variables[first, first + count)
};

struct swig_install_step {
    swig_install_kind kind;
    std::uint16_t first;
    std::uint16_t count;
};

// Everything that makes one module. The tables live as long as the process.
struct swig_module_definition {
    const char *name;
    PyMethodDef *methods;              // ended by a row without a name
    const swig_const_row *const_rows;  // ended by SWIG_CONST_END
    swig_module_table *table;          // over swig_type_slots
    const swig_constant *constants;
    const swig_variable *variables;
    const swig_install_step *steps;
    std::size_t step_count;
    bool (*finish)() = nullptr;  // what is left to do in the end; false with an exception
};

// The entry, in order: patch docstrings, register the methods, join the type table to the list of
// the process, install the rows of the constant table, prepare the interpreter for threads, run
// the install steps, finish. On failure an exception is set, by which the interpreter judges the
// import, false is returned, and the half-made module and its links are taken back: the next import
// makes it anew.
bool SWIG_Python_RunEntry(const swig_module_definition &definition);

// Gives methods that are native callbacks a docstring that carries their address: a text with
// "swig_ptr: NAME" gets, from the marker on, "swig_ptr: _<pointer><type>" of the first constant
// row whose name NAME begins with. A row that is not of kind 4, or has a null pointer, changes
// nothing. New texts are never freed. REQUIRES: `type_seeds` is in the order of `type_slots`.
void SWIG_Python_PatchDocstrings(PyMethodDef *methods, const swig_const_row *rows,
                                 swig_type_info *const *type_seeds, swig_type_info **type_slots);

// Puts an object for each constant row into the dictionary: a pointer object or proxy, a packed
// object, or None for a null pointer. A row of another kind is skipped; the first exception ends
// it.
void SWIG_Python_InstallRows(PyObject *dictionary, const swig_const_row *rows);

// Stores an object under a name and takes its reference over. Null is not stored.
void SWIG_Python_SetConstant(PyObject *dictionary, const char *name, PyObject *object);

// The first row of every method table, METH_O. It is no wrapper: it returns null and sets nothing.
PyObject *SWIG_PyInstanceMethod_New(PyObject *self, PyObject *function);
