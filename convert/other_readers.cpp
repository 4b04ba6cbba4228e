// The readers that take what is not the usual case.
#include "convert/other_readers.h"

#include "convert/readers.h"
#include "convert/refuse.h"

namespace ombra {

PointerRead read_other_pointer(PyObject *object, const CallRow &row, unsigned index) {
    void *pointer = nullptr;
    const int status = SWIG_Python_ConvertPtrAndOwn(object, &pointer, slot(row, index), 0);
    if (status < 0) refuse(row, index, status);
    return {pointer, status};
}

TextRead read_other_text(PyObject *object, const CallRow &row, unsigned index) {
    char *text = nullptr;
    int alloc = 0;
    const int status = SWIG_AsCharPtrAndSize(object, &text, nullptr, &alloc);
    return {text, status >= 0 || refuse(row, index, status)};
}

}  // namespace ombra
