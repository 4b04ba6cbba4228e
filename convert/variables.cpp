// Refusing a value for a variable, and the copy that a text variable keeps.
#include "convert/variables.h"

#include <new>

namespace ombra {

int refuse_variable(int status, const char *text) {
    const int mapped = status == STATUS_GENERIC ? STATUS_TYPE : status;
    return refuse_variable_with(SWIG_Python_ErrorType(mapped), text);
}

int refuse_variable_with(PyObject *exception, const char *text) {
    PyErr_SetString(exception, text);
    return 1;
}

int copy_text(PyObject *object, char **copy) {
    char *text = nullptr;
    std::size_t size = 0;
    int alloc = STATUS_NEWOBJ;
    const int status = SWIG_AsCharPtrAndSize(object, &text, &size, &alloc);
    if (status < 0) return status;
    if (alloc == STATUS_NEWOBJ) {
        *copy = text;
    } else if (size != 0) {
        char *const owned = new (std::nothrow) char[size];
        if (owned == nullptr) return STATUS_MEMORY;
        std::memcpy(owned, text, size);
        *copy = owned;
    } else {
        *copy = nullptr;
    }
    return STATUS_OK;
}

}  // namespace ombra
