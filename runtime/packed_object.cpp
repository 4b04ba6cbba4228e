// The Python type of packed objects: printing, comparing, freeing.
#include "runtime/packed_object.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "runtime/foreign_type.h"
#include "runtime/hex_text.h"
#include "runtime/ready_type.h"

namespace {

PyTypeObject SwigPyPacked_type_object;

SwigPyPacked *as_packed(PyObject *object) { return reinterpret_cast<SwigPyPacked *>(object); }

void SwigPyPacked_dealloc(PyObject *object) {
    if (SwigPyPacked_Test(object)) std::free(as_packed(object)->pack);
    PyObject_FREE(object);
}

int SwigPyPacked_print(PyObject *object, FILE *file, int) {
    const SwigPyPacked *self = as_packed(object);
    char text[SWIG_PACKED_TEXT_SIZE];
    std::fputs("<Swig Packed ", file);
    if (SWIG_PackDataName(text, self->pack, self->size) != nullptr) {
        std::fputs("at ", file);
        std::fputs(text, file);
    }
    std::fputs(self->type->name, file);
    std::fputs(">", file);
    return 0;
}

PyObject *SwigPyPacked_repr(PyObject *object) {
    const SwigPyPacked *self = as_packed(object);
    char text[SWIG_PACKED_TEXT_SIZE];
    if (SWIG_PackDataName(text, self->pack, self->size) == nullptr)
        return PyString_FromFormat("<Swig Packed %s>", self->type->name);
    return PyString_FromFormat("<Swig Packed at %s%s>", text, self->type->name);
}

PyObject *SwigPyPacked_str(PyObject *object) {
    const SwigPyPacked *self = as_packed(object);
    char text[SWIG_PACKED_TEXT_SIZE];
    if (SWIG_PackDataName(text, self->pack, self->size) == nullptr)
        return PyString_FromString(self->type->name);
    return PyString_FromFormat("%s%s", text, self->type->name);
}

int SwigPyPacked_compare(PyObject *left, PyObject *right) {
    const SwigPyPacked *a = as_packed(left);
    const SwigPyPacked *b = as_packed(right);
    if (a->size != b->size) return a->size < b->size ? -1 : 1;
    // Like texts: nothing behind a common zero byte counts. The interpreter wants -1, 0 or 1.
    const int order = std::strncmp(static_cast<const char *>(a->pack),
                                   static_cast<const char *>(b->pack), a->size);
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

void fill_type(PyTypeObject &type) {
    type.tp_name = "SwigPyPacked";
    type.tp_basicsize = sizeof(SwigPyPacked);
    type.tp_dealloc = SwigPyPacked_dealloc;
    type.tp_print = SwigPyPacked_print;
    type.tp_compare = SwigPyPacked_compare;
    type.tp_repr = SwigPyPacked_repr;
    type.tp_str = SwigPyPacked_str;
    type.tp_getattro = PyObject_GenericGetAttr;
    type.tp_doc = "Swig object carries a C/C++ instance pointer";
}

PyTypeObject *SwigPyPacked_TypeOnce() {
    return ombra::ready_type(SwigPyPacked_type_object, fill_type);
}

}  // namespace

PyTypeObject *SwigPyPacked_type() {
    static PyTypeObject *type = nullptr;
    if (type == nullptr) type = SwigPyPacked_TypeOnce();
    return type;
}

bool SwigPyPacked_Test(PyObject *object) {
    return Py_TYPE(object) == SwigPyPacked_type() ||
           ombra::is_foreign_type(Py_TYPE(object), "SwigPyPacked", sizeof(SwigPyPacked));
}

PyObject *SwigPyPacked_New(const void *bytes, std::size_t size, swig_type_info *type) {
    PyTypeObject *const object_type = SwigPyPacked_type();
    if (object_type == nullptr) return nullptr;
    auto *self = static_cast<SwigPyPacked *>(PyObject_MALLOC(sizeof(SwigPyPacked)));
    void *pack = std::malloc(size != 0 ? size : 1);
    if (self == nullptr || pack == nullptr) {
        PyObject_FREE(self);
        std::free(pack);
        return PyErr_NoMemory();
    }
    PyObject_INIT(&self->head, object_type);
    std::memcpy(pack, bytes, size);
    self->pack = pack;
    self->type = type;
    self->size = size;
    return &self->head;
}

char *SWIG_PackDataName(char *buffer, const void *bytes, std::size_t size) {
    if (size > SWIG_PACKED_TEXT_SIZE / 2 - 1)  // 2 * size + 2 > SWIG_PACKED_TEXT_SIZE
        return nullptr;
    buffer[0] = '_';
    *SWIG_PackData(buffer + 1, bytes, size) = '\0';
    return buffer;
}
