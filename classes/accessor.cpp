// Reading `self` and the value, and the store or load of each kind of field.
#include "classes/accessor.h"

#include <cstring>
#include <new>

#include "classes/live_arrays.h"

namespace ombra {
namespace {

constexpr unsigned kSelf = 0;
constexpr unsigned kField = 1;

// Takes `self` out of a getter's tuple. False with an exception for a wrong count, a wrong type or
// a null pointer.
bool read_self(const FieldRow &row, PyObject *args, void *&self) {
    PyObject *object = nullptr;
    if (!PyArg_UnpackTuple(args, const_cast<char *>(row.call.name), 1, 1, &object)) return false;
    const int status = SWIG_Python_ConvertPtrAndOwn(object, &self, slot(row.call, kSelf), 0);
    if (status < 0) return refuse(row.call, kSelf, status);
    return self != nullptr || refuse_null(row.call, kSelf);
}

// Takes both arguments of a setter apart and converts `self`, which may come out null.
bool read_setter(const FieldRow &row, PyObject *args, void *&self, PyObject *&value) {
    PyObject *object = nullptr;
    if (!PyArg_UnpackTuple(args, const_cast<char *>(row.call.name), 2, 2, &object, &value))
        return false;
    const int status = SWIG_Python_ConvertPtrAndOwn(object, &self, slot(row.call, kSelf), 0);
    return status >= 0 || refuse(row.call, kSelf, status);
}

void *field_address(const FieldRow &row, void *self) {
    return static_cast<unsigned char *>(self) + row.offset;
}

// A text or MAC or array setter has no store to skip: a null `self` is refused.
bool require_self(const FieldRow &row, const void *self) {
    return self != nullptr || refuse_null(row.call, kSelf);
}

template <typename Stored>
Stored load(const void *address) {
    Stored value;
    std::memcpy(&value, address, sizeof value);
    return value;
}

template <typename Stored>
void store(void *address, Stored value) {
    std::memcpy(address, &value, sizeof value);
}

// Elements in index order, which shows only where source and field overlap.
void copy_elements(void *to, const void *from, std::size_t size, std::size_t count) {
    auto *target = static_cast<unsigned char *>(to);
    const auto *source = static_cast<const unsigned char *>(from);
    const std::size_t bytes = size * count;
    if (target + bytes <= source || source + bytes <= target) {
        std::memcpy(target, source, bytes);
        return;
    }
    for (std::size_t i = 0; i < count; ++i)
        std::memmove(target + i * size, source + i * size, size);
}

PyObject *set_text_field(const FieldRow &row, PyObject *args, bool free_old) {
    void *self = nullptr;
    PyObject *object = nullptr;
    Text value;
    if (!read_setter(row, args, self, object) || !value.read(object, row.call, kField) ||
        !require_self(row, self)) {
        return nullptr;
    }
    char *copy = nullptr;
    if (value.native() != nullptr) {
        const std::size_t bytes = std::strlen(value.native()) + 1;
        copy = new (std::nothrow) char[bytes];
        if (copy == nullptr) return PyErr_NoMemory();
        std::memcpy(copy, value.native(), bytes);
    }
    void *const field = field_address(row, self);
    if (free_old) delete[] load<char *>(field);
    store(field, copy);
    Py_RETURN_NONE;
}

}  // namespace

template <typename Kind>
PyObject *get_value(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    if (!read_self(row, args, self)) return nullptr;
    if constexpr (std::is_class_v<typename Kind::Native>) {
        // A port list is read where it lies.
        return Kind::result(*static_cast<const typename Kind::Native *>(field_address(row, self)),
                            row.call);
    } else {
        typename Kind::Native value;
        std::memcpy(&value, field_address(row, self), sizeof value);
        return Kind::result(value, row.call);
    }
}

template <typename Kind>
PyObject *set_value(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    PyObject *object = nullptr;
    Kind value;
    if (!read_setter(row, args, self, object) || !value.read(object, row.call, kField))
        return nullptr;
    if (self != nullptr) {
        const auto &native = value.native();
        std::memcpy(field_address(row, self), &native, sizeof native);
    }
    Py_RETURN_NONE;
}

#define OMBRA_FIELD_KIND(Kind)                                        \
    template PyObject *get_value<Kind>(const FieldRow &, PyObject *); \
    template PyObject *set_value<Kind>(const FieldRow &, PyObject *)

OMBRA_FIELD_KIND(Signed8);
OMBRA_FIELD_KIND(Signed16);
OMBRA_FIELD_KIND(Signed32);
OMBRA_FIELD_KIND(Unsigned8);
OMBRA_FIELD_KIND(Unsigned16);
OMBRA_FIELD_KIND(Unsigned32);
OMBRA_FIELD_KIND(Unsigned64);
OMBRA_FIELD_KIND(Address32);
OMBRA_FIELD_KIND(StrictBool);
OMBRA_FIELD_KIND(PortBitmap);
template PyObject *set_value<FunctionPointer>(const FieldRow &, PyObject *);

#undef OMBRA_FIELD_KIND

PyObject *get_copy(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    if (!read_self(row, args, self)) return nullptr;
    return owned_copy(field_address(row, self), row.size, slot(row.call, kField));
}

PyObject *set_copy(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    PyObject *object = nullptr;
    Reference value;
    if (!read_setter(row, args, self, object) || !value.read(object, row.call, kField))
        return nullptr;
    if (self != nullptr) std::memmove(field_address(row, self), value.native(), row.size);
    Py_RETURN_NONE;
}

PyObject *get_alias(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    if (!read_self(row, args, self)) return nullptr;
    return SWIG_Python_NewPointerObj(field_address(row, self), slot(row.call, kField), 0);
}

PyObject *set_array(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    PyObject *object = nullptr;
    Pointer value;
    if (!read_setter(row, args, self, object) || !value.read(object, row.call, kField))
        return nullptr;
    if (value.native() == nullptr) {
        refuse_null_field(row.call, kField + 1);
        return nullptr;
    }
    if (!require_self(row, self)) return nullptr;
    copy_elements(field_address(row, self), value.native(), row.size, row.count);
    Py_RETURN_NONE;
}

PyObject *get_pointer(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    if (!read_self(row, args, self)) return nullptr;
    return SWIG_Python_NewPointerObj(load<void *>(field_address(row, self)), slot(row.call, kField),
                                     0);
}

PyObject *set_pointer(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    PyObject *object = nullptr;
    if (!read_setter(row, args, self, object)) return nullptr;
    void *value = nullptr;
    const int status =
        SWIG_Python_ConvertPtrAndOwn(object, &value, slot(row.call, kField), FLAG_DISOWN);
    if (status < 0) {
        refuse(row.call, kField, status);
        return nullptr;
    }
    if (self != nullptr) store(field_address(row, self), value);
    Py_RETURN_NONE;
}

PyObject *get_mac(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    if (!read_self(row, args, self)) return nullptr;
    return MacString::result(static_cast<const uint8 *>(field_address(row, self)), row.call);
}

PyObject *set_mac(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    PyObject *object = nullptr;
    MacString value;
    if (!read_setter(row, args, self, object) || !value.read(object, row.call, kField) ||
        !require_self(row, self)) {
        return nullptr;
    }
    std::memcpy(field_address(row, self), value.native(), row.size);
    Py_RETURN_NONE;
}

PyObject *get_text(const FieldRow &row, PyObject *args) {
    void *self = nullptr;
    if (!read_self(row, args, self)) return nullptr;
    return text_result(load<const char *>(field_address(row, self)));
}

PyObject *set_text(const FieldRow &row, PyObject *args) { return set_text_field(row, args, true); }

PyObject *set_constant_text(const FieldRow &row, PyObject *args) {
    return set_text_field(row, args, false);
}

PyObject *new_struct(const CallRow &row, PyObject *args, std::size_t size) {
    if (!PyArg_UnpackTuple(args, const_cast<char *>(row.name), 0, 0)) return nullptr;
    void *memory = ::operator new(size, std::nothrow);
    if (memory == nullptr) return PyErr_NoMemory();
    std::memset(memory, 0, size);
    PyObject *object =
        SWIG_Python_NewPointerObj(memory, slot(row, kResultSlot), FLAG_OWN | FLAG_NOPROXY);
    if (object == nullptr) ::operator delete(memory);
    return object;
}

PyObject *delete_struct(const CallRow &row, PyObject *args) {
    PyObject *object = nullptr;
    if (!PyArg_UnpackTuple(args, const_cast<char *>(row.name), 1, 1, &object)) return nullptr;
    void *memory = nullptr;
    const int status = SWIG_Python_ConvertPtrAndOwn(object, &memory, slot(row, kSelf), FLAG_DISOWN);
    if (status < 0) {
        refuse(row, kSelf, status);
        return nullptr;
    }
    if (is_live_array(memory)) {
        refuse_with(PyExc_ValueError, "a live array is deleted by its own row");
        return nullptr;
    }
    ::operator delete(memory);
    Py_RETURN_NONE;
}

}  // namespace ombra
