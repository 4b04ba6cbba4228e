// Raising the exception that belongs to each refusal.
#include "convert/refuse.h"

#include <cstring>
#include <exception>

#include "runtime/status.h"
#include "toolkit/exception.h"

namespace ombra {
namespace {

constexpr char kNullPrefix[] = "invalid null reference ";

const char *stored_text(const CallRow &row, unsigned index) {
    const char *text = row.texts;
    for (; index > 0; --index) text += std::strlen(text) + 1;
    return text;
}

// A value that the toolkit refused. Another toolkit may throw a class of its own for it, so the two
// texts count as well.
bool is_range_failure(const std::exception &error) {
    static constexpr const char *texts[] = {"ExternalPhyId::value < 0 or > 0x03ff not allowed",
                                            "UnitId::value < 0 or > 255 not allowed"};
    return Lumo::isRangeException(error) || std::strcmp(error.what(), texts[0]) == 0 ||
           std::strcmp(error.what(), texts[1]) == 0;
}

}  // namespace

const char *argument_text(const CallRow &row, unsigned index) {
    const char *text = stored_text(row, index);
    constexpr std::size_t length = sizeof(kNullPrefix) - 1;
    return std::strncmp(text, kNullPrefix, length) == 0 ? text + length : text;
}

bool refuse(const CallRow &row, unsigned index, int status) {
    const int mapped = status == STATUS_GENERIC ? STATUS_TYPE : status;
    return refuse_with(SWIG_Python_ErrorType(mapped), argument_text(row, index));
}

bool refuse_null(const CallRow &row, unsigned index) {
    return refuse_with(PyExc_ValueError, stored_text(row, index));
}

bool refuse_null_field(const CallRow &row, unsigned index) {
    return refuse_with(PyExc_ValueError, stored_text(row, index));
}

bool refuse_with(PyObject *exception, const char *text) {
    PyErr_SetString(exception, text);
    return false;
}

PyObject *native_exception() {
    try {
        throw;
    } catch (const std::exception &error) {
        PyErr_SetString(is_range_failure(error) ? PyExc_ValueError : PyExc_RuntimeError,
                        error.what());
    } catch (...) {
        PyErr_SetString(PyExc_RuntimeError, "native exception");
    }
    return nullptr;
}

}  // namespace ombra
