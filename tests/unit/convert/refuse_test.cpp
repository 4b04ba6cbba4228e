// The texts of a row: where each message begins, and which form of it is told.

#include "convert/refuse.h"

#include "runtime/status.h"
#include "tests/unit/runtime/tiny_module.h"

namespace {

using RefuseTest = tiny::Test;

// As the generator writes them: plain, with a null-reference form, and the text of a field behind.
const ombra::CallRow row{"f",
                         "in method 'f', argument 1 of type 'int'\0"
                         "invalid null reference in method 'f', argument 2 of type 'x_t'\0"
                         "in method 'f', argument 3 of type 'invalid null reference *'\0"
                         "invalid null reference in variable 'v' of type 'int [2]'",
                         {}};

TEST_F(RefuseTest, PlainTexts) {
    const char *const texts[] = {"in method 'f', argument 1 of type 'int'",
                                 "in method 'f', argument 2 of type 'x_t'",
                                 "in method 'f', argument 3 of type 'invalid null reference *'"};
    for (unsigned index = 0; index < 3; ++index) {
        EXPECT_STREQ(ombra::argument_text(row, index), texts[index]);
        EXPECT_FALSE(ombra::refuse(row, index, STATUS_TYPE));
        EXPECT_EQ(tiny::take_error(PyExc_TypeError), texts[index]);
    }
}

TEST_F(RefuseTest, ClassesByStatus) {
    const struct {
        int status;
        PyObject *expected;
    } cases[] = {{STATUS_GENERIC, PyExc_TypeError},      {STATUS_TYPE, PyExc_TypeError},
                 {STATUS_OVERFLOW, PyExc_OverflowError}, {STATUS_VALUE, PyExc_ValueError},
                 {STATUS_MEMORY, PyExc_MemoryError},     {-99, PyExc_RuntimeError}};
    for (const auto &entry : cases) {
        EXPECT_FALSE(ombra::refuse(row, 0, entry.status));
        EXPECT_EQ(tiny::take_error(entry.expected), "in method 'f', argument 1 of type 'int'");
    }
}

TEST_F(RefuseTest, NullTexts) {
    EXPECT_FALSE(ombra::refuse_null(row, 1));
    EXPECT_EQ(tiny::take_error(PyExc_ValueError),
              "invalid null reference in method 'f', argument 2 of type 'x_t'");
    EXPECT_FALSE(ombra::refuse_null_field(row, 3));
    EXPECT_EQ(tiny::take_error(PyExc_ValueError),
              "invalid null reference in variable 'v' of type 'int [2]'");
}

// A pending exception is replaced, not chained.
TEST_F(RefuseTest, ReplacesAnotherException) {
    PyErr_SetString(PyExc_KeyError, "earlier");
    ombra::refuse_with(PyExc_ValueError, "later");
    EXPECT_EQ(tiny::take_error(PyExc_ValueError), "later");
}

}  // namespace
