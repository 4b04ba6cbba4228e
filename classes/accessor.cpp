// Reading `self` and the value, and the store or load of each kind of field.
#include "classes/accessor.h"

#include <cstring>
#include <new>

#include "convert/results.h"
#include "runtime/native_notes.h"

namespace ombra {
namespace {

constexpr unsigned kSelf = 0;
constexpr unsigned kField = 1;

// Takes `self` out of a getter's tuple. Null with an exception for a wrong count, a wrong type or a
// null pointer.
[[gnu::always_inline]] inline void *read_self(const FieldRow &row, PyObject *args) {
    PyObject *object = nullptr;
    if (!PyArg_UnpackTuple(args, const_cast<char *>(row.call.name), 1, 1, &object)) return nullptr;
    const PointerRead self = read_pointer(object, row.call, kSelf);
    if (self.pointer == nullptr && self.status >= 0) [[unlikely]]
        refuse_null(row.call, kSelf);
    return self.pointer;
}

// Both arguments of a setter: `self` converted, which may be null, and the value.
struct Setter {
    void *self;
    PyObject *value;  // null: exception set
};

[[gnu::always_inline]] inline Setter read_setter(const FieldRow &row, PyObject *args) {
    PyObject *object = nullptr;
    PyObject *value = nullptr;
    if (!PyArg_UnpackTuple(args, const_cast<char *>(row.call.name), 2, 2, &object, &value))
        return {nullptr, nullptr};
    const PointerRead self = read_pointer(object, row.call, kSelf);
    return {self.pointer, self.status >= 0 ? value : nullptr};
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
    Text value;
    const auto [self, object] = read_setter(row, args);
    if (object == nullptr || !value.read(object, row.call, kField) || !require_self(row, self))
        return nullptr;
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
    void *const self = read_self(row, args);
    if (self == nullptr) return nullptr;
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
    Kind value;
    const auto [self, object] = read_setter(row, args);
    if (object == nullptr || !value.read(object, row.call, kField)) return nullptr;
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
    void *const self = read_self(row, args);
    if (self == nullptr) return nullptr;
    return owned_copy(field_address(row, self), row.size, slot(row.call, kField));
}

PyObject *set_copy(const FieldRow &row, PyObject *args) {
    Reference value;
    const auto [self, object] = read_setter(row, args);
    if (object == nullptr || !value.read(object, row.call, kField)) return nullptr;
    if (self != nullptr) std::memmove(field_address(row, self), value.native(), row.size);
    Py_RETURN_NONE;
}

PyObject *get_alias(const FieldRow &row, PyObject *args) {
    void *const self = read_self(row, args);
    if (self == nullptr) return nullptr;
    return SWIG_Python_NewPointerObj(field_address(row, self), slot(row.call, kField), 0);
}

PyObject *set_array(const FieldRow &row, PyObject *args) {
    Pointer value;
    const auto [self, object] = read_setter(row, args);
    if (object == nullptr || !value.read(object, row.call, kField)) return nullptr;
    if (value.native() == nullptr) {
        refuse_null_field(row.call, kField + 1);
        return nullptr;
    }
    if (!require_self(row, self)) return nullptr;
    copy_elements(field_address(row, self), value.native(), row.size, row.count);
    Py_RETURN_NONE;
}

PyObject *get_pointer(const FieldRow &row, PyObject *args) {
    void *const self = read_self(row, args);
    if (self == nullptr) return nullptr;
    return SWIG_Python_NewPointerObj(load<void *>(field_address(row, self)), slot(row.call, kField),
                                     0);
}

PyObject *set_pointer(const FieldRow &row, PyObject *args) {
    const auto [self, object] = read_setter(row, args);
    if (object == nullptr) return nullptr;
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
    void *const self = read_self(row, args);
    if (self == nullptr) return nullptr;
    return MacString::result(static_cast<const uint8 *>(field_address(row, self)), row.call);
}

PyObject *set_mac(const FieldRow &row, PyObject *args) {
    MacString value;
    const auto [self, object] = read_setter(row, args);
    if (object == nullptr || !value.read(object, row.call, kField) || !require_self(row, self))
        return nullptr;
    std::memcpy(field_address(row, self), value.native(), row.size);
    Py_RETURN_NONE;
}

PyObject *get_text(const FieldRow &row, PyObject *args) {
    void *const self = read_self(row, args);
    if (self == nullptr) return nullptr;
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
    return own_bare(memory, slot(row, kResultSlot));
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
    if (memory != nullptr && !forget_owned(memory, slot(row, kSelf)) && !may_free_unnoted(memory))
        [[unlikely]]
        return nullptr;
    ::operator delete(memory);
    Py_RETURN_NONE;
}

}  // namespace ombra
