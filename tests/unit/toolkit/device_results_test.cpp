// What the helper library gives by value, on its way to Python: counted pointers, texts, and the
// two shapes of findChipMemory.
#include <Python.h>

#include <gtest/gtest.h>

#include <array>
#include <new>
#include <stdexcept>
#include <string>

#include "device/counted_result.h"
#include "device/find_chip_memory.h"
#include "device/text_result.h"
#include "failing_new.h"
#include "helper/shadow_cxx.h"
#include "python_fixture.h"
#include "toolkit/chip_memory.h"

using Hardware::ChipMemory;

// The types of this test, as the module's generated table would have them.
namespace {

swig_type_info address_type{"_p_Hardware__ChipAddress", "Hardware::ChipAddress *", {}, {}, {}, 0};
swig_type_info number_type{"_p_U32", "U32 *", {}, {}, {}, 0};
swig_type_info holder_type{
    "_p_Hardware__ChipMemory__Ptr", "Hardware::ChipMemory::Ptr *", {}, {}, {}, 0};

#define TEXT(n, type) "in method 'findChipMemory', argument " #n " of type '" type "'\0"
#define NULL_TEXT(n, type) "invalid null reference " TEXT(n, type)

constexpr ombra::FindChipMemoryRows rows = {
    {"findChipMemory",
     TEXT(1, "int") TEXT(2, "int") NULL_TEXT(3, "Hardware::ChipAddress") NULL_TEXT(4, "U32"),
     {0, 0, 0, 1, 0, 0, 0, 0, 0, 2}},
    {"findChipMemory", TEXT(1, "int") TEXT(2, "int") TEXT(3, "int"), {}},
};

// What the helper library was asked, and what it gives.
std::string asked;
ChipMemory::Ptr found;
bool helper_fails = false;

ChipMemory::Ptr answer(std::string question) {
    asked = std::move(question);
    if (helper_fails) throw std::runtime_error("no such unit");
    return found;
}

}  // namespace

swig_type_info *swig_type_slots[] = {&address_type, &number_type, &holder_type, nullptr};
swig_type_info *const swig_type_seeds[] = {&address_type, &number_type, &holder_type};
swig_cast_link *const swig_cast_seeds[] = {nullptr, nullptr, nullptr};

namespace TesselApi {

ChipMemory::Ptr findChipMemory(int unit, int mem, Hardware::ChipAddress sca, unsigned int size) {
    return answer("address " + std::to_string(unit) + " " + std::to_string(mem) + " " +
                  std::to_string(sca.value()) + " " + std::to_string(size));
}

ChipMemory::Ptr findChipMemory(int unit, int mem, int base) {
    return answer("base " + std::to_string(unit) + " " + std::to_string(mem) + " " +
                  std::to_string(base));
}

}  // namespace TesselApi

namespace {

class DeviceResults : public ::testing::Test {
  protected:
    void SetUp() override {
        asked.clear();
        helper_fails = false;
        found = Lumo::newTracked<ChipMemory>(ChipMemory::Place(), true);
        PyObject *main = PyImport_AddModule("__main__");
        PyModule_AddObject(main, "address", SWIG_Python_NewPointerObj(&address_, &address_type, 0));
        PyModule_AddObject(main, "size", SWIG_Python_NewPointerObj(&size_, &number_type, 0));
    }

    void TearDown() override {
        PyErr_Clear();
        found = nullptr;
    }

    PyObject *call(const char *arguments) {
        PyObject *args = eval_python(arguments);
        PyObject *result = ombra::find_chip_memory(rows, args);
        Py_DECREF(args);
        return result;
    }

    // The result's holder. It leaves Python's ownership first, so that its death leaks nothing.
    static ChipMemory::Ptr take_holder(PyObject *result) {
        SwigPyObject *object = ombra::as_pointer_object(result);
        EXPECT_EQ(object->type, &holder_type);
        EXPECT_EQ(object->own, 1);
        object->own = 0;
        auto *holder = static_cast<ChipMemory::Ptr *>(object->ptr);
        ChipMemory::Ptr pointer = *holder;
        delete holder;
        Py_DECREF(result);
        return pointer;
    }

    static void expect_raised(PyObject *type, const char *text) {
        EXPECT_TRUE(PyErr_ExceptionMatches(type));
        PyObject *kind = nullptr, *value = nullptr, *traceback = nullptr;
        PyErr_Fetch(&kind, &value, &traceback);
        PyErr_NormalizeException(&kind, &value, &traceback);
        PyObject *shown = PyObject_Str(value);
        EXPECT_STREQ(PyString_AsString(shown), text);
        for (PyObject *object : {kind, value, traceback, shown}) Py_XDECREF(object);
    }

    Hardware::ChipAddress address_{0x123456789A};
    U32 size_ = 0xFFFFFFFF;
};

TEST_F(DeviceResults, HolderAddsOneReference) {
    PyObject *result = call("(1, 2, 3)");
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(found->references(), 2u);
    EXPECT_EQ(take_holder(result).get(), found.get());
    EXPECT_EQ(found->references(), 1u);
}

TEST_F(DeviceResults, NothingFoundIsAHolderOfNull) {
    found = nullptr;
    PyObject *result = call("(1, 2, 3)");
    ASSERT_NE(result, Py_None);
    EXPECT_FALSE(take_holder(result));
}

TEST_F(DeviceResults, NoMemoryForTheHolderDropsTheReference) {
    allocations_left = 0;
    EXPECT_THROW(ombra::counted_result(found, &holder_type), std::bad_alloc);
    allocations_left = -1;
    EXPECT_EQ(found->references(), 1u);
}

TEST_F(DeviceResults, ArgumentsPickTheShape) {
    struct Case {
        const char *arguments;
        const char *question;
    };
    for (const Case &test : {
             Case{"(1, 2, -3)", "base 1 2 -3"},
             Case{"(True, 2L, 2147483647)", "base 1 2 2147483647"},
             Case{"(1, -2147483648, address, size)",
                  "address 1 -2147483648 78187493530 4294967295"},
         }) {
        PyObject *result = call(test.arguments);
        ASSERT_NE(result, nullptr) << test.arguments;
        EXPECT_EQ(asked, test.question);
        take_holder(result);
    }
}

TEST_F(DeviceResults, ArgumentsOfNoShape) {
    for (const char *arguments :
         {"()", "(1, 2)", "(1, 2, 3, 4, 5)", "(1, 2, 'x')", "(1, 2, 2147483648)", "(1, 2.0, 3)",
          "(1, 1 << 70, 3)", "(0, 1, 2, None)", "(0, 1, size, size)", "(0, 1, address, address)",
          "(None, 1, address, size)"}) {
        SCOPED_TRACE(arguments);
        EXPECT_EQ(call(arguments), nullptr);
        expect_raised(PyExc_NotImplementedError,
                      "Wrong number or type of arguments for overloaded function "
                      "'findChipMemory'.\n"
                      "  Possible C/C++ prototypes are:\n"
                      "    TesselApi::findChipMemory(int,int,Hardware::ChipAddress,U32)\n"
                      "    TesselApi::findChipMemory(int,int,int)\n");
    }
    EXPECT_EQ(asked, "");
}

TEST_F(DeviceResults, NullReferencesAreTheShapesOwnAffair) {
    struct Case {
        const char *arguments;
        const char *text;
    };
    for (const Case &test : {
             Case{"(1, 2, None, size)", NULL_TEXT(3, "Hardware::ChipAddress")},
             Case{"(0, 1, None, None)", NULL_TEXT(3, "Hardware::ChipAddress")},
             Case{"(1, 2, address, None)", NULL_TEXT(4, "U32")},
         }) {
        EXPECT_EQ(call(test.arguments), nullptr);
        expect_raised(PyExc_ValueError, test.text);
    }
    EXPECT_EQ(asked, "");
}

TEST_F(DeviceResults, NativeExceptionBecomesAPythonOne) {
    helper_fails = true;
    EXPECT_EQ(call("(1, 2, 3)"), nullptr);
    expect_raised(PyExc_RuntimeError, "no such unit");
    EXPECT_EQ(found->references(), 1u);
}

TEST_F(DeviceResults, TextEndsAtItsFirstZeroByte) {
    using std::string_view_literals::operator""sv;
    for (const auto &[text, seen] :
         {std::pair{"trace\n"sv, "trace\n"sv}, {"cut\0off"sv, "cut"sv}, {""sv, ""sv}}) {
        PyObject *result = ombra::text_result(Lumo::String(text));
        ASSERT_NE(result, nullptr);
        EXPECT_EQ(PyString_AsString(result), seen);
        Py_DECREF(result);
    }
}

}  // namespace
