// Native callbacks that call Python.
//
// For every callback type of the SDK there is a native function, and a built-in of its name that
// stands for it: the built-in carries the function's address in its docstring, so it passes where
// the SDK takes such a callback. The native function calls a Python callable, found in this order:
//
//   1. by a cookie: a `void *` argument that cookie() made. The callable gets the other arguments.
//   2. by its name: what bind() set for the callback. The callable gets all arguments.
//
// The callable runs under the interpreter lock, on whichever native thread the SDK calls from.
// What it returns goes to the SDK: a number, or None for success. If it raises, the exception
// goes to the hook of callback_errors(), by default sys.excepthook, and the SDK gets a failure,
// which ends a traversal; so it does when there is no callable. After the interpreter has ended
// every callback answers with a failure; the callables of a second interpreter are let go when that
// one ends. A callable runs in the interpreter whose call led to it, and in the first one on a
// native thread.
//
// A structure that comes as an argument is the SDK's and lives until the callable returns. The
// object that stands for it is then emptied: a copy() is what may be kept, and neither the object
// nor what was read out of it in place. The packets that a bcm_rx_cb_f gets are left alone, since
// the handler may keep them.
#pragma once

#include <Python.h>

#include <cstddef>
#include <cstdint>

#include "runtime/module_entry.h"

namespace companion {

// What a native callback returns in the cases that are no number of Python's.
struct Answers {
    int success;  // the callable returned None
    int failure;  // it raised, or there is none
};

struct Callback {
    const char *name;  // "bcm_l2_traverse_cb"
    void *address;     // of the native function
    Answers answers;
    bool keeps_arguments;  // the callable may go on using its arguments
};

// Generated: the callbacks, and the built-ins that stand for them.
extern const Callback callbacks[];
extern const std::size_t callback_count;
extern const swig_const_row callback_rows[];
extern PyMethodDef callback_methods[];

// One native argument on its way to Python.
struct Argument {
    enum class Form : std::uint8_t { number, text, mac, address, pointer } form;
    unsigned slot;        // of a pointer's type
    std::uint64_t bits;   // of a number, sign-extended
    const void *pointer;  // of the others
};

// Calls the callable of a callback from any thread; needs no lock held.
int run_callback(const Callback &callback, const Argument *arguments, std::size_t count);

// The callback of a name, or null.
const Callback *find_callback(const char *name);

// The built-in that is called from Python: TypeError.
PyObject *refuse_call(PyObject *, PyObject *);

// Whether the calling interpreter is the first of the process, which ends last.
bool is_first_interpreter();

// Tells on standard error how many cookies are live, and which callbacks are bound.
void tell_live_callbacks();

// The functions of the module, METH_O but for bind(callback, callable). A cookie is a number that
// is used once and no address: a stale one finds nothing. It keeps its callable until it is
// released, whoever holds or drops its object, since the SDK may still have it.
PyObject *new_cookie(PyObject *, PyObject *callable);
PyObject *release_cookie(PyObject *, PyObject *cookie);
PyObject *bind(PyObject *, PyObject *args);
PyObject *callback_errors(PyObject *, PyObject *hook);

}  // namespace companion
