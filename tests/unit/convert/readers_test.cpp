// The readers by themselves: null outputs, markers of the text reader, outputs after a failure.

#include "convert/readers.h"

#include <memory>

#include "runtime/pointer_object.h"
#include "tests/unit/runtime/tiny_module.h"

namespace {

using ombra::PyRef;
using ReadersTest = tiny::Test;

PyRef evaluate(const char *text) {
    PyObject *const names = PyModule_GetDict(PyImport_AddModule("__main__"));
    return PyRef(PyRun_String(text, Py_eval_input, names, names));
}

// Each reader as a mere test, and that it does not touch its output when it refuses.
TEST_F(ReadersTest, NumbersWithAndWithoutOutput) {
    const struct {
        const char *text;
        int as_long, as_unsigned, as_long_long;
    } cases[] = {
        {"5", 0, 0, 0},
        {"-1L", 0, STATUS_OVERFLOW, STATUS_OVERFLOW},
        {"2**63", STATUS_OVERFLOW, 0, 0},
        {"-2**63 - 1", STATUS_OVERFLOW, STATUS_OVERFLOW, STATUS_OVERFLOW},
        {"1.0", STATUS_TYPE, STATUS_TYPE, STATUS_TYPE},
    };
    const auto check = [](auto reader, PyObject *object, int expected, auto untouched) {
        auto value = untouched;
        EXPECT_EQ(reader(object, nullptr), expected);
        EXPECT_EQ(reader(object, &value), expected);
        EXPECT_EQ(value == untouched, expected < 0);
    };
    for (const auto &entry : cases) {
        SCOPED_TRACE(entry.text);
        const PyRef object = evaluate(entry.text);
        ASSERT_NE(object, nullptr);
        check(SWIG_AsVal_long, object.get(), entry.as_long, 1234L);
        check(SWIG_AsVal_unsigned_SS_long, object.get(), entry.as_unsigned, 1234UL);
        check(SWIG_AsVal_unsigned_SS_long_SS_long, object.get(), entry.as_long_long, 1234ULL);
    }
}

TEST_F(ReadersTest, TruthOfAnyObject) {
    PyRun_SimpleString(
        "class Raising(object):\n"
        "    def __nonzero__(self): raise KeyboardInterrupt\n");
    const struct {
        const char *text;
        int status;
        bool value;
    } cases[] = {{"True", 0, true}, {"False", 0, false}, {"[]", 0, false},
                 {"[0]", 0, true},  {"None", 0, false},  {"Raising()", STATUS_GENERIC, false}};
    for (const auto &entry : cases) {
        SCOPED_TRACE(entry.text);
        const PyRef object = evaluate(entry.text);
        bool value = !entry.value;
        EXPECT_EQ(SWIG_AsVal_bool(object.get(), nullptr), entry.status);
        EXPECT_EQ(SWIG_AsVal_bool(object.get(), &value), entry.status);
        EXPECT_EQ(value, entry.status == 0 ? entry.value : !entry.value);
    }
}

// Borrowed unless the marker asks for a copy; without a place for the text nothing is copied,
// whatever the marker says.
TEST_F(ReadersTest, TextIsBorrowedOrCopied) {
    const PyRef object(PyString_FromStringAndSize("cut\0off", 7));
    char *const own = PyString_AS_STRING(object.get());
    for (const int marker : {0, 1, STATUS_TMPOBJ, STATUS_NEWOBJ}) {
        char *text = nullptr;
        std::size_t size = 0;
        int alloc = marker;
        EXPECT_EQ(SWIG_AsCharPtrAndSize(object.get(), &text, &size, &alloc), STATUS_OK);
        const std::unique_ptr<char[]> copy(marker == STATUS_NEWOBJ ? text : nullptr);
        EXPECT_EQ(text == own, marker != STATUS_NEWOBJ);
        EXPECT_EQ(std::string(text, size), std::string("cut\0off\0", 8));
        EXPECT_EQ(alloc, marker == STATUS_NEWOBJ ? marker : 0);
        alloc = marker;
        EXPECT_EQ(SWIG_AsCharPtrAndSize(object.get(), nullptr, &size, &alloc), STATUS_OK);
    }
    EXPECT_EQ(SWIG_AsCharPtrAndSize(object.get(), nullptr, nullptr, nullptr), STATUS_OK);
}

// A pointer object and None are never copied: the marker comes back as 0.
TEST_F(ReadersTest, TextBehindAPointer) {
    char native[] = "native\0more";
    const PyRef pointer(SwigPyObject_New(native, tiny::type(tiny::character), 0));
    const PyRef other(SwigPyObject_New(native, tiny::type(tiny::integer), 0));
    const struct {
        PyObject *object;
        int status;
        char *text;
        std::size_t size;
    } cases[] = {{pointer.get(), STATUS_OK, native, 7},
                 {Py_None, STATUS_OK, nullptr, 0},
                 {other.get(), STATUS_TYPE, nullptr, 99}};
    for (const auto &entry : cases) {
        char *text = nullptr;
        std::size_t size = 99;
        int alloc = STATUS_NEWOBJ;
        EXPECT_EQ(SWIG_AsCharPtrAndSize(entry.object, &text, &size, &alloc), entry.status);
        EXPECT_EQ(text, entry.text);
        EXPECT_EQ(size, entry.size);
        EXPECT_EQ(alloc, entry.status == STATUS_OK ? 0 : STATUS_NEWOBJ);
        EXPECT_EQ(SWIG_AsCharPtrAndSize(entry.object, nullptr, nullptr, nullptr), entry.status);
    }
}

}  // namespace
