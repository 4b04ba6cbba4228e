// What Python code cannot bring about: null arguments, converters that allocate, forbidden flags,
// and the references and records behind the conversions. The rest is tests/companion/.
#include "runtime/pointer_conversion.h"

#include <array>

#include "tests/unit/runtime/tiny_module.h"

namespace {

using ombra::PyRef;

class PointerConversionTest : public tiny::Test {
  protected:
    PyRef make(void *pointer, tiny::Slot slot, int own = 0) {
        return PyRef(SwigPyObject_New(pointer, tiny::type(slot), own));
    }
    static SwigPyObject *raw(const PyRef &object) { return ombra::as_pointer_object(object.get()); }

    std::array<char, 64> memory_{};
};

TEST_F(PointerConversionTest, NullArguments) {
    void *out = this;
    EXPECT_EQ(SWIG_Python_ConvertPtrAndOwn(nullptr, &out, nullptr, 0), STATUS_GENERIC);
    EXPECT_EQ(SWIG_Python_ConvertFunctionPtr(nullptr, &out, nullptr), STATUS_GENERIC);
    EXPECT_EQ(out, this);
    const PyRef none(Py_BuildValue(""));
    EXPECT_EQ(SWIG_Python_ConvertPtrAndOwn(none.get(), nullptr, tiny::type(tiny::shape), 0),
              STATUS_OK);
    EXPECT_EQ(SwigPyClientData_New(nullptr), nullptr);
}

TEST_F(PointerConversionTest, MereTestRunsNoConverter) {
    const PyRef square = make(memory_.data(), tiny::square, 1);
    void *out = nullptr;
    swig_type_info *shape = tiny::type(tiny::shape);
    EXPECT_EQ(SWIG_Python_ConvertPtrAndOwn(square.get(), &out, shape, 0), STATUS_OK);
    EXPECT_EQ(out, memory_.data() + 16);
    EXPECT_EQ(SWIG_Python_ConvertPtrAndOwn(square.get(), nullptr, shape, FLAG_DISOWN), STATUS_OK);
    EXPECT_EQ(raw(square)->own, 0);
}

TEST_F(PointerConversionTest, LongChainsDieWithoutNesting) {
    PyRef head = make(memory_.data(), tiny::shape);
    for (int count = 0; count < 300000; ++count) {
        PyRef longer = make(memory_.data(), tiny::shape);
        raw(longer)->next = head.release();
        head = std::move(longer);
    }
    PyRef last = make(memory_.data() + 1, tiny::integer);
    SwigPyObject *link = raw(head);
    const Py_ssize_t before = Py_REFCNT(last.get());
    while (link->next != nullptr) link = ombra::as_pointer_object(link->next);
    link->next = ombra::new_ref(last.get()).release();
    void *out = nullptr;
    EXPECT_EQ(SWIG_Python_ConvertPtrAndOwn(head.get(), &out, tiny::type(tiny::integer), 0),
              STATUS_OK);
    EXPECT_EQ(out, memory_.data() + 1);
    head.reset();
    EXPECT_EQ(Py_REFCNT(last.get()), before);
}

// A built-in function with the docstring, converted to the type of `slot`.
int convert_documented(const char *docstring, void **out, swig_type_info *wanted) {
    PyMethodDef method = {"f", [](PyObject *, PyObject *) -> PyObject * { return nullptr; },
                          METH_NOARGS, docstring};
    const PyRef function(PyCFunction_New(&method, nullptr));
    return SWIG_Python_ConvertFunctionPtr(function.get(), out, wanted);
}

TEST_F(PointerConversionTest, DocstringsCarryFunctions) {
    void *const expected = reinterpret_cast<void *>(0x123456789abcdef0);
    void *const untouched = this;
    const struct {
        const char *docstring;
        int status;
        void *out;
    } cases[] = {
        {"f() swig_ptr: _f0debc9a78563412_p_int", STATUS_OK, expected},
        {"swig_ptr: _f0debc9a78563412_p_intp", STATUS_OK, expected},
        {"swig_ptr: _0000000000000000_p_int", STATUS_OK, nullptr},
        {"swig_ptr: NULL", STATUS_OK, nullptr},
        {"swig_ptr: NULL ", STATUS_GENERIC, untouched},
        {"swig_ptr: nULL", STATUS_GENERIC, untouched},
        {"swig_ptr: ", STATUS_GENERIC, untouched},
        {"swig_ptr: _", STATUS_GENERIC, untouched},
        {"swig_ptr: _F0DEBC9A78563412_p_int", STATUS_GENERIC, untouched},
        {"swig_ptr: _f0debc9a785634_p_int", STATUS_GENERIC, untouched},
        {"swig_ptr: _f0debc9a78563412_p_char", STATUS_GENERIC, untouched},
        {"swig_ptr: _f0debc9a78563412", STATUS_GENERIC, untouched},
        {"swig_ptr:_f0debc9a78563412_p_int", STATUS_GENERIC, untouched},
        {"f()", STATUS_GENERIC, untouched},
        {nullptr, STATUS_GENERIC, untouched},
    };
    for (const auto &entry : cases) {
        const char *shown = entry.docstring != nullptr ? entry.docstring : "none";
        void *out = untouched;
        EXPECT_EQ(convert_documented(entry.docstring, &out, tiny::type(tiny::integer)),
                  entry.status)
            << shown;
        EXPECT_EQ(out, entry.out) << shown;
        EXPECT_EQ(convert_documented(entry.docstring, &out, nullptr), STATUS_GENERIC) << shown;
    }
}

// A type whose only source allocates on conversion.
struct Allocating {
    swig_type_info source{"_p_int", nullptr, nullptr, nullptr, nullptr, 0};
    swig_cast_link link{&source,
                        [](void *pointer, int *new_memory) {
                            *new_memory = 2;
                            return pointer;
                        },
                        nullptr, nullptr};
    swig_type_info type{"_p_target", nullptr, nullptr, &link, nullptr, 0};
};

using PointerConversionDeathTest = PointerConversionTest;

TEST_F(PointerConversionDeathTest, ImpossibleConditionsEndTheProcess) {
    Allocating allocating;
    const PyRef object = make(memory_.data(), tiny::integer);
    void *out = nullptr;
    EXPECT_EQ(SWIG_Python_ConvertPtrAndOwn(object.get(), nullptr, &allocating.type, 0), STATUS_OK);
    EXPECT_DEATH(SWIG_Python_ConvertPtrAndOwn(object.get(), &out, &allocating.type, 0),
                 "TesselApiV2New_wrap: SWIG_Python_ConvertPtrAndOwn: Assertion `own' failed");
    EXPECT_DEATH(convert_documented("swig_ptr: _0000000000000000_p_int", &out, &allocating.type),
                 "SWIG_Python_ConvertFunctionPtr: Assertion `!newmemory' failed");
    EXPECT_DEATH(SWIG_Python_NewPointerObj(memory_.data(), nullptr, 4),
                 "SWIG_Python_NewPointerObj: Assertion `!\\(flags & \\(0x1 << 2\\)\\)' failed");
}

}  // namespace
