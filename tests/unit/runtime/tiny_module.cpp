// A module of a handful of types, linked with the runtime alone.
#include "tests/unit/runtime/tiny_module.h"

#include "runtime/module_entry.h"
#include "runtime/module_list.h"

namespace {

// A square's shape starts 16 bytes into it.
void *square_to_shape(void *pointer, int *) { return static_cast<char *>(pointer) + 16; }
void *unchanged(void *pointer, int *) { return pointer; }

swig_type_info types[tiny::slot_count] = {
    {"_p_Shape", "Shape *|shape_t *", nullptr, nullptr, nullptr, 0},
    {"_p_Square", "square_t *", nullptr, nullptr, nullptr, 0},
    {"_p_Unnamed", nullptr, nullptr, nullptr, nullptr, 0},
    {"_p_char", "char *", nullptr, nullptr, nullptr, 0},
    {"_p_int", "int *|tiny_t *", nullptr, nullptr, nullptr, 0},
    {"_p_intp", nullptr, nullptr, nullptr, nullptr, 0},
};

using Rows = swig_cast_link[3];
Rows casts[tiny::slot_count] = {
    {{&types[tiny::shape], nullptr, nullptr, nullptr},
     {&types[tiny::square], square_to_shape, nullptr, nullptr}},
    {{&types[tiny::square], nullptr, nullptr, nullptr}},
    {{&types[tiny::unnamed], nullptr, nullptr, nullptr}},
    {{&types[tiny::character], nullptr, nullptr, nullptr}},
    {{&types[tiny::integer], nullptr, nullptr, nullptr},
     {&types[tiny::integer_box], unchanged, nullptr, nullptr}},
    {{&types[tiny::integer_box], nullptr, nullptr, nullptr}},
};

long level = 3;
PyObject *get_level() { return PyInt_FromLong(level); }
int set_level(PyObject *value) {
    const long number = PyInt_AsLong(value);
    if (number == -1 && PyErr_Occurred() != nullptr) return 1;
    level = number;
    return 0;
}
PyObject *get_nothing() { return nullptr; }
int refuse_silently(PyObject *) { return 1; }
int refuse_read_only(PyObject *) {
    PyErr_SetString(PyExc_AttributeError, "Variable limit is read-only.");
    return 1;
}

int target = 7;
PyMethodDef methods[] = {
    {"SWIG_PyInstanceMethod_New", SWIG_PyInstanceMethod_New, METH_O, nullptr},
    {nullptr, nullptr, 0, nullptr},
};
const swig_const_row const_rows[] = {
    {SWIG_CONST_POINTER, "target", 0, &target, &swig_type_slots[tiny::integer]},
    {3, "skipped", 0, nullptr, nullptr},
    {SWIG_CONST_PACKED, "packed", sizeof target, &target, &swig_type_slots[tiny::integer]},
    {SWIG_CONST_PACKED, "nothing", sizeof target, nullptr, &swig_type_slots[tiny::integer]},
    {SWIG_CONST_END, nullptr, 0, nullptr, nullptr},
};
const swig_constant constants[] = {{"least", -2147483647 - 1}, {"two", 2}, {"most", 2147483647}};
const swig_variable variables[] = {
    {"level", get_level, set_level, false},
    {"silent", get_nothing, refuse_silently, false},
    {"limit", get_level, refuse_read_only, true},
};
const swig_install_step steps[] = {
    {swig_install_kind::constants, 0, 2}, {swig_install_kind::cvar, 0, 0},
    {swig_install_kind::link, 0, 1},      {swig_install_kind::constants, 2, 1},
    {swig_install_kind::link, 1, 2},
};

}  // namespace

swig_type_info *const swig_type_seeds[] = {&types[0], &types[1], &types[2],
                                           &types[3], &types[4], &types[5]};
swig_cast_link *const swig_cast_seeds[] = {casts[0], casts[1], casts[2],
                                           casts[3], casts[4], casts[5]};
swig_type_info *swig_type_slots[tiny::slot_count + 1] = {types};

swig_module_table tiny::table = {swig_type_slots, slot_count, nullptr, nullptr, nullptr, nullptr};

const swig_module_table *tiny::head_before_import = &tiny::table;

void tiny::import_module() {
    head_before_import = SWIG_Python_GetModule();
    SWIG_Python_RunEntry({"tiny", methods, const_rows, &table, constants, variables, steps,
                          sizeof steps / sizeof steps[0]});
    PyDict_SetItemString(dictionary(), "__builtins__", PyEval_GetBuiltins());
}

PyObject *tiny::dictionary() { return PyModule_GetDict(PyImport_AddModule("tiny")); }

std::string tiny::repr(PyObject *object) {
    const ombra::PyRef text(PyObject_Repr(object));
    return text != nullptr ? PyString_AsString(text.get()) : "";
}

std::string tiny::take_error(PyObject *exception_class) {
    EXPECT_TRUE(PyErr_ExceptionMatches(exception_class));
    PyObject *parts[3];
    PyErr_Fetch(&parts[0], &parts[1], &parts[2]);
    const ombra::PyRef type(parts[0]);
    const ombra::PyRef value(parts[1]);
    const ombra::PyRef traceback(parts[2]);
    const ombra::PyRef text(value != nullptr ? PyObject_Str(value.get()) : nullptr);
    return text != nullptr ? PyString_AsString(text.get()) : "";
}

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    Py_NoSiteFlag = 1;
    Py_InitializeEx(0);
    tiny::import_module();
    const int result = RUN_ALL_TESTS();
    Py_Finalize();
    return result;
}
