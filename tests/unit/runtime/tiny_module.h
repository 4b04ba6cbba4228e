// A module of the kind with a handful of types, for tests that need the real tables: it is
// imported once, before all tests, in the interpreter that the test program embeds.
#pragma once

#include <Python.h>
#include <gtest/gtest.h>

#include <string>

#include "runtime/py_ref.h"
#include "runtime/type_table.h"

namespace tiny {

// Slots of the table, in strcmp order of the names.
enum Slot : std::size_t { shape, square, unnamed, character, integer, integer_box, slot_count };

extern swig_module_table table;

// What SWIG_Python_GetModule answered before any module of the kind was there.
extern const swig_module_table *head_before_import;

void import_module();

// The dictionary of the module, borrowed.
PyObject *dictionary();

inline swig_type_info *type(Slot slot) { return swig_type_slots[slot]; }

// repr() of an object.
std::string repr(PyObject *object);

// Takes the pending exception, which has to be of the class, and returns its text.
std::string take_error(PyObject *exception_class);

// A test that may leave no exception behind.
class Test : public ::testing::Test {
  protected:
    void TearDown() override {
        EXPECT_EQ(PyErr_Occurred(), nullptr);
        PyErr_Clear();
    }
};

}  // namespace tiny
