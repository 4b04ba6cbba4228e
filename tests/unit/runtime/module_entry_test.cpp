// What import leaves in a module, tried on a module of a handful of types.
#include "runtime/module_entry.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "runtime/collector_pause.h"
#include "runtime/module_list.h"
#include "runtime/name_hash.h"
#include "runtime/packed_object.h"
#include "tests/unit/runtime/tiny_module.h"

namespace {

using ombra::PyRef;
using ModuleEntryTest = tiny::Test;

// repr() of an expression in the module's dictionary, or the text of its exception.
std::string evaluate(const char *expression) {
    PyObject *globals = tiny::dictionary();
    const PyRef value(PyRun_String(expression, Py_eval_input, globals, globals));
    return value != nullptr ? tiny::repr(value.get()) : tiny::take_error(PyExc_Exception);
}

// Runs a statement, returns the text of its exception, which has to be of the class.
std::string refused(const char *statement, PyObject *exception_class) {
    PyObject *globals = tiny::dictionary();
    const PyRef done(PyRun_String(statement, Py_file_input, globals, globals));
    return done == nullptr ? tiny::take_error(exception_class) : "";
}

TEST_F(ModuleEntryTest, VariableLink) {
    EXPECT_EQ(evaluate("str(cvar)"), "'(limit, silent, level)'");
    EXPECT_EQ(refused("cvar.level = 5", PyExc_Exception), "");
    EXPECT_EQ(evaluate("(cvar.level, cvar.limit)"), "(5, 5)");
    EXPECT_EQ(refused("cvar.level = 'x'", PyExc_TypeError), "an integer is required");
    EXPECT_EQ(refused("del cvar.level", PyExc_TypeError), "can't delete variable 'level' of cvar");
    EXPECT_EQ(refused("del cvar.other", PyExc_AttributeError), "Unknown C global variable 'other'");
    const char *silent = "Unknown C global variable 'silent'";
    EXPECT_EQ(refused("cvar.silent", PyExc_AttributeError), silent);
    EXPECT_EQ(refused("cvar.silent = 1", PyExc_AttributeError), silent);
}

// What a pause leaves: the collector's own state, no module that was not there, and the exception
// that was pending. Where the module cannot be had, it does nothing.
TEST_F(ModuleEntryTest, CollectorPauseLeavesNoTrace) {
    const struct {
        const char *before;
        const char *during;
        const char *after;
    } cases[] = {
        {"import gc; gc.enable()", "False", "True"},
        {"import gc; gc.disable()", "False", "False"},
        {"gc.enable(); import sys; sys.modules['gc'] = None", "True", "True"},
        {"del sys.modules['gc']; sys.modules.pop('time', None)", "False", "True"},
    };
    for (const auto &entry : cases) {
        ASSERT_EQ(refused(entry.before, PyExc_Exception), "") << entry.before;
        const std::string modules = evaluate("sorted(__import__('sys').modules)");
        PyErr_SetString(PyExc_KeyError, "pending");
        {
            const ombra::CollectorPause pause(tiny::dictionary());
            EXPECT_EQ(tiny::take_error(PyExc_KeyError), "pending");
            EXPECT_EQ(evaluate("gc.isenabled()"), entry.during) << entry.before;
            PyErr_SetString(PyExc_KeyError, "pending");
        }
        EXPECT_EQ(tiny::take_error(PyExc_KeyError), "pending");
        EXPECT_EQ(evaluate("gc.isenabled()"), entry.after) << entry.before;
        EXPECT_EQ(evaluate("sorted(__import__('sys').modules)"), modules) << entry.before;
    }
}

// A string with a hash of another making would be in the dictionary and never found.
TEST_F(ModuleEntryTest, NamesHashAsTheInterpreterHashes) {
    for (const char *text : {"in order", "in ordinary", "", "\xff other"}) {
        const std::size_t length = std::strlen(text);
        const long hash = ombra::string_hash(text, length);
        const PyRef interned(ombra::intern_hashed(text, length, hash));
        const PyRef fresh(PyString_FromString(text));
        EXPECT_TRUE(PyString_CHECK_INTERNED(interned.get()));
        EXPECT_EQ(PyObject_Hash(fresh.get()), hash) << text;
    }
    const auto seed = _Py_HashSecret;
    _Py_HashSecret.prefix = 5;
    EXPECT_FALSE(ombra::hashes_without_seed());
    _Py_HashSecret = seed;
    EXPECT_TRUE(ombra::hashes_without_seed());
}

// Runs the entry in a second interpreter, in a process of its own: the variables go into the one
// link object once more, the constants into the new dictionary, and types and casts stay.
TEST(ModuleEntryDeathTest, SecondInterpreter) {
    const auto run = [] {
        swig_type_info *const shape = tiny::type(tiny::shape);
        const swig_cast_link *const head = shape->casts;
        PyObject *const first = tiny::dictionary();
        Py_NewInterpreter();
        tiny::import_module();
        const bool good = tiny::dictionary() != first && tiny::type(tiny::shape) == shape &&
                          shape->casts == head && evaluate("two") == "2" &&
                          evaluate("str(cvar)") == "'(limit, silent, level, limit, silent, level)'";
        std::_Exit(good ? 0 : 1);
    };
    EXPECT_EXIT(run(), ::testing::ExitedWithCode(0), "");
}

TEST_F(ModuleEntryTest, LaterLinkHidesAnEarlierOne) {
    const PyRef link(SWIG_Python_newvarlink());
    const auto one = [] { return PyInt_FromLong(1); };
    const auto two = [] { return PyInt_FromLong(2); };
    EXPECT_TRUE(SWIG_Python_addvarlink(link.get(), "x", one, nullptr));
    EXPECT_TRUE(SWIG_Python_addvarlink(link.get(), "x", two, nullptr));
    const PyRef value(PyObject_GetAttrString(link.get(), "x"));
    EXPECT_EQ(tiny::repr(value.get()), "2");
    const PyRef text(PyObject_Str(link.get()));
    EXPECT_STREQ(PyString_AsString(text.get()), "(x, x)");
}

// Prints an object as the print statement does to a real file.
std::string printed(PyObject *object) {
    char text[2048] = "";
    FILE *file = fmemopen(text, sizeof text, "w");
    EXPECT_EQ(PyObject_Print(object, file, 0), 0);
    std::fclose(file);
    return text;
}

TEST_F(ModuleEntryTest, PackedObjectsShowUpTo511Bytes) {
    const std::string bytes(512, '\x5a');
    std::string digits;
    for (int count = 0; count < 511; ++count) digits += "5a";
    swig_type_info *type = tiny::type(tiny::shape);
    const PyRef longest(SwigPyPacked_New(bytes.data(), 511, type));
    EXPECT_EQ(tiny::repr(longest.get()), "<Swig Packed at _" + digits + "_p_Shape>");
    EXPECT_EQ(printed(longest.get()), "<Swig Packed at _" + digits + "_p_Shape>");
    const PyRef longer(SwigPyPacked_New(bytes.data(), 512, type));
    EXPECT_EQ(tiny::repr(longer.get()), "<Swig Packed _p_Shape>");
    EXPECT_EQ(printed(longer.get()), "<Swig Packed _p_Shape>");
    const PyRef text(PyObject_Str(longer.get()));
    EXPECT_STREQ(PyString_AsString(text.get()), "_p_Shape");
    EXPECT_EQ(printed(SWIG_Python_cvar()), "Swig global variables (limit, silent, level)\n");
}

TEST_F(ModuleEntryTest, PackedObjectsOrderBySizeThenBytes) {
    const struct {
        const char *left, *right;
        std::size_t left_size, right_size;
        int expected;
    } cases[] = {
        {"z", "aa", 1, 2, -1},  {"aa", "z", 2, 1, 1},      {"ab", "aa", 2, 2, 1},
        {"aa", "ab", 2, 2, -1}, {"a\0b", "a\0c", 3, 3, 0}, {"", "", 0, 0, 0},
    };
    for (const auto &entry : cases) {
        const PyRef left(SwigPyPacked_New(entry.left, entry.left_size, tiny::type(tiny::shape)));
        const PyRef right(SwigPyPacked_New(entry.right, entry.right_size, tiny::type(tiny::shape)));
        EXPECT_EQ(PyObject_Compare(left.get(), right.get()), entry.expected) << entry.left;
    }
}

TEST_F(ModuleEntryTest, DocstringsOfCallbacksGetTheAddress) {
    const swig_const_row rows[] = {
        {SWIG_CONST_PACKED, "packed", 1, nullptr, nullptr},
        {SWIG_CONST_POINTER, "null", 0, nullptr, &swig_type_slots[tiny::integer]},
        {SWIG_CONST_POINTER, "call", 0, reinterpret_cast<void *>(0x0102030405060708),
         &swig_type_slots[tiny::integer]},
        {SWIG_CONST_POINTER, "callback", 0, reinterpret_cast<void *>(1),
         &swig_type_slots[tiny::character]},
        {SWIG_CONST_END, nullptr, 0, nullptr, nullptr},
    };
    const char *patched = "f(int) swig_ptr: _0807060504030201_p_int";
    const struct {
        const char *before, *after;
    } cases[] = {
        {"f(int) swig_ptr: call", patched},     {"f(int) swig_ptr: call and more", patched},
        {"f(int) swig_ptr: callback", patched},  // the first row that is a prefix
        {"swig_ptr: null", "swig_ptr: null"},   {"swig_ptr: packed", "swig_ptr: packed"},
        {"swig_ptr: other", "swig_ptr: other"}, {"f(int) call", "f(int) call"},
    };
    for (const auto &entry : cases) {
        PyMethodDef methods[] = {{"plain", nullptr, METH_VARARGS, nullptr},
                                 {"f", nullptr, METH_VARARGS, entry.before},
                                 {nullptr, nullptr, 0, nullptr}};
        SWIG_Python_PatchDocstrings(methods, rows, swig_type_seeds, swig_type_slots);
        EXPECT_STREQ(methods[1].ml_doc, entry.after);
        EXPECT_EQ(methods[0].ml_doc, nullptr);
        if (methods[1].ml_doc != entry.before) std::free(const_cast<char *>(methods[1].ml_doc));
    }
}

TEST_F(ModuleEntryTest, SetConstantLeavesOneReference) {
    const PyRef value(PyFloat_FromDouble(0.5));
    SWIG_Python_SetConstant(tiny::dictionary(), "half", ombra::new_ref(value.get()).release());
    EXPECT_EQ(Py_REFCNT(value.get()), 2);
    SWIG_Python_SetConstant(tiny::dictionary(), "missing", nullptr);
    EXPECT_EQ(PyDict_GetItemString(tiny::dictionary(), "missing"), nullptr);
}

}  // namespace
