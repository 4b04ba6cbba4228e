// Refusals: the cold ends of every conversion. Out of line, so that the usual path carries none of
// their code. Each sets one Python exception from a literal and returns false (or null).
#pragma once

#include <Python.h>

#include "convert/row.h"

namespace ombra {

// The message of argument `index` (from 0) in its plain form, "in method ...".
const char *argument_text(const CallRow &row, unsigned index);

// Raises the exception class of `status` (-1 counts as a wrong type) with the argument's message.
[[gnu::cold, gnu::noinline]] bool refuse(const CallRow &row, unsigned index, int status);

// Raises ValueError with "invalid null reference in method ...".
// REQUIRES: the argument's message is stored in its null-reference form.
[[gnu::cold, gnu::noinline]] bool refuse_null(const CallRow &row, unsigned index);

// Raises ValueError with the text behind the argument messages of a row, as it stands.
[[gnu::cold, gnu::noinline]] bool refuse_null_field(const CallRow &row, unsigned index);

// Raises `exception` with `text`.
[[gnu::cold, gnu::noinline]] bool refuse_with(PyObject *exception, const char *text);

// Called inside a catch clause: turns the exception in flight into a Python one. A range failure
// of the toolkit becomes ValueError, any std::exception RuntimeError, both with what(); anything
// else RuntimeError, "native exception". Returns null. A forced unwind must not come here.
[[gnu::cold, gnu::noinline]] PyObject *native_exception();

}  // namespace ombra
