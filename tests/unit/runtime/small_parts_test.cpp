// The small parts that stand alone: error types, appended outputs, hexadecimal text.
#include <climits>
#include <cstring>

#include "runtime/append_output.h"
#include "runtime/assertions.h"
#include "runtime/hex_text.h"
#include "runtime/status.h"
#include "tests/unit/runtime/tiny_module.h"

namespace {

using ombra::PyRef;
using SmallPartsTest = tiny::Test;

TEST_F(SmallPartsTest, ErrorTypes) {
    const struct {
        int status;
        PyObject *expected;
    } cases[] = {
        {-1, PyExc_RuntimeError},    {-2, PyExc_IOError},         {-3, PyExc_RuntimeError},
        {-4, PyExc_IndexError},      {-5, PyExc_TypeError},       {-6, PyExc_ZeroDivisionError},
        {-7, PyExc_OverflowError},   {-8, PyExc_SyntaxError},     {-9, PyExc_ValueError},
        {-10, PyExc_SystemError},    {-11, PyExc_AttributeError}, {-12, PyExc_MemoryError},
        {-13, PyExc_RuntimeError},   {0, PyExc_RuntimeError},     {INT_MIN, PyExc_RuntimeError},
        {0x200, PyExc_RuntimeError},
    };
    for (const auto &entry : cases)
        EXPECT_EQ(SWIG_Python_ErrorType(entry.status), entry.expected) << entry.status;
}

// Each line: what stands there, what is appended, what comes out; "!" is a null reference.
TEST_F(SmallPartsTest, AppendOutput) {
    const struct {
        const char *result, *object, *expected;
    } cases[] = {
        {"!", "5", "5"},          {"None", "5", "5"},
        {"0", "5", "[0, 5]"},     {"[0, 5]", "6", "[0, 5, 6]"},
        {"[]", "None", "[None]"}, {"(1,)", "2", "[(1,), 2]"},
        {"0", "[1]", "[0, [1]]"},
    };
    PyObject *globals = tiny::dictionary();
    const auto evaluate = [globals](const char *text) {
        return *text == '!' ? nullptr : PyRun_String(text, Py_eval_input, globals, globals);
    };
    for (const auto &entry : cases) {
        const PyRef merged(
            SWIG_Python_AppendOutput(evaluate(entry.result), evaluate(entry.object)));
        ASSERT_NE(merged, nullptr);
        EXPECT_EQ(tiny::repr(merged.get()), entry.expected);
    }
}

TEST_F(SmallPartsTest, AppendOutputOwnsBothReferences) {
    const PyRef status(PyInt_FromLong(123456));
    const PyRef value(PyInt_FromLong(234567));
    const Py_ssize_t before = Py_REFCNT(status.get());
    Py_INCREF(status.get());
    Py_INCREF(value.get());
    PyRef merged(SWIG_Python_AppendOutput(status.get(), value.get()));
    merged.reset();
    Py_INCREF(status.get());
    EXPECT_EQ(SWIG_Python_AppendOutput(status.get(), nullptr), nullptr);
    EXPECT_EQ(Py_REFCNT(status.get()), before);
    EXPECT_EQ(Py_REFCNT(value.get()), before);
}

TEST_F(SmallPartsTest, HexTextGoesBothWays) {
    const unsigned char bytes[] = {0x00, 0x1f, 0xf1, 0xab};
    char text[9] = "........";
    EXPECT_EQ(SWIG_PackData(text, bytes, sizeof bytes), text + 8);
    EXPECT_STREQ(text, "001ff1ab");
    unsigned char read[sizeof bytes] = {};
    EXPECT_EQ(SWIG_UnpackData(text, read, sizeof read), text + 8);
    EXPECT_EQ(std::memcmp(bytes, read, sizeof read), 0);
    for (const char *bad : {"", "0", "001", "001ff1a", "001FF1AB", "001ff1ag", " 01ff1ab"})
        EXPECT_EQ(SWIG_UnpackData(bad, read, sizeof read), nullptr) << bad;
}

TEST(AssertionsDeathTest, PrintConditionAndFunctionInEveryBuild) {
    EXPECT_DEATH(
        ombra::assertion_failed("rc == BCM_E_NONE", "PyObject* f(int)"),
        "TesselApiV2New_wrap: PyObject\\* f\\(int\\): Assertion `rc == BCM_E_NONE' failed");
}

}  // namespace
