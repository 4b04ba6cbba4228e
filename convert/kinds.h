// Conversion kinds: how one declared native type crosses, in and out.
//
// A kind is a small class. As an argument it is a local of the frame:
//     bool read(PyObject *object, const CallRow &row, unsigned index);   // false: exception set
//     Native native() const;                                             // after a true read
// As a result it has one static function:
//     static PyObject *result(Native value, const CallRow &row);         // new reference or null
// `Native` fixes width, sign and passing class, so that rows of a shape share machine code.
#pragma once

#include <Python.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <type_traits>

#include "convert/mac_text.h"
#include "convert/port_list.h"
#include "convert/readers.h"
#include "convert/refuse.h"
#include "convert/results.h"
#include "convert/row.h"
#include "runtime/pointer_conversion.h"
#include "runtime/type_table.h"

namespace ombra {

inline swig_type_info *slot(const CallRow &row, unsigned index) {
    return swig_type_slots[row.slots[index]];
}

// Signed numbers of 8, 16 and 32 bits. The range test is one biased, unsigned compare.
template <typename Number>
class SignedKind {
  public:
    using Native = Number;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        const int status = SWIG_AsVal_long(object, &value_);
        if (status < 0) return refuse(row, index, status);
        constexpr auto bias = static_cast<unsigned long>(std::numeric_limits<Number>::max()) + 1;
        if (static_cast<unsigned long>(value_) + bias > 2 * bias - 1)
            return refuse(row, index, STATUS_OVERFLOW);
        return true;
    }

    Native native() const { return static_cast<Native>(value_); }

    static PyObject *result(Native value, const CallRow &) { return PyInt_FromLong(value); }

  private:
    long value_;
};

// Unsigned numbers of 8, 16 and 32 bits.
template <typename Number>
class UnsignedKind {
  public:
    using Native = Number;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        const int status = SWIG_AsVal_unsigned_SS_long(object, &value_);
        if (status < 0) return refuse(row, index, status);
        if (value_ > std::numeric_limits<Number>::max()) return refuse(row, index, STATUS_OVERFLOW);
        return true;
    }

    Native native() const { return static_cast<Native>(value_); }

    static PyObject *result(Native value, const CallRow &) {
        if constexpr (sizeof(Number) == sizeof(std::uint32_t))
            return PyInt_FromSize_t(value);
        else
            return PyInt_FromLong(value);
    }

  private:
    unsigned long value_;
};

using Signed8 = SignedKind<signed char>;
using Signed16 = SignedKind<short>;
using Signed32 = SignedKind<int>;
using Unsigned8 = UnsignedKind<unsigned char>;
using Unsigned16 = UnsignedKind<unsigned short>;
using Unsigned32 = UnsignedKind<unsigned int>;

// `unsigned long`: the reader's own range.
class UnsignedLong {
  public:
    using Native = unsigned long;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        const int status = SWIG_AsVal_unsigned_SS_long(object, &value_);
        return status >= 0 || refuse(row, index, status);
    }

    Native native() const { return value_; }

  private:
    unsigned long value_;
};

// 64 bits unsigned. A result is an `int` as long as it fits one, else a `long`.
class Unsigned64 {
  public:
    using Native = uint64;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        const int status = SWIG_AsVal_unsigned_SS_long_SS_long(object, &value_);
        return status >= 0 || refuse(row, index, status);
    }

    Native native() const { return value_; }

    static PyObject *result(Native value, const CallRow &) {
        return value > static_cast<Native>(std::numeric_limits<long>::max())
                   ? PyLong_FromUnsignedLongLong(value)
                   : PyInt_FromLong(static_cast<long>(value));
    }

  protected:
    unsigned long long value_;
};

// A 32-bit address that is read like a 64-bit number: the upper half is dropped without an error.
class Address32 : public Unsigned64 {
  public:
    using Native = unsigned int;

    Native native() const { return static_cast<Native>(value_); }

    static PyObject *result(Native value, const CallRow &) { return PyInt_FromLong(value); }
};

// Exactly True or False.
class StrictBool {
  public:
    using Native = bool;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        if (Py_TYPE(object) != &PyBool_Type) return refuse(row, index, STATUS_TYPE);
        const int status = SWIG_AsVal_bool(object, &value_);
        return status >= 0 || refuse(row, index, status);
    }

    Native native() const { return value_; }

    static PyObject *result(Native value, const CallRow &) { return PyBool_FromLong(value); }

  private:
    bool value_;
};

// Text: the Python string's own storage, valid for the call. A copy, should the reader have made
// one, is released with the frame.
class Text {
  public:
    using Native = char *;

    Text() = default;
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;
    ~Text() {
        if (alloc_ == STATUS_NEWOBJ) delete[] text_;
    }

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        if (PyString_Check(object)) {
            text_ = PyString_AS_STRING(object);  // what the reader gives for a marker of 0
            return true;
        }
        const int status = SWIG_AsCharPtrAndSize(object, &text_, nullptr, &alloc_);
        return status >= 0 || refuse(row, index, status);
    }

    Native native() const { return text_; }

    static PyObject *result(const char *value, const CallRow &) { return text_result(value); }

  private:
    char *text_ = nullptr;
    int alloc_ = 0;
};

// A pointer of the argument's type slot; slot kAnyPointer takes a pointer of any type. None is the
// null pointer. Inline arrays as arguments are the same: the address of the first element.
class Pointer {
  public:
    using Native = void *;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        const int status = SWIG_Python_ConvertPtrAndOwn(object, &value_, slot(row, index), 0);
        return status >= 0 || refuse(row, index, status);
    }

    Native native() const { return value_; }

    static PyObject *result(const void *value, const CallRow &row) {
        return SWIG_Python_NewPointerObj(const_cast<void *>(value), slot(row, kResultSlot), 0);
    }

  private:
    void *value_ = nullptr;
};

// A native function: None, a pointer object of the callback's type, or a built-in function whose
// docstring names one.
class FunctionPointer {
  public:
    using Native = void *;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        const int status = SWIG_Python_ConvertFunctionPtr(object, &value_, slot(row, index));
        return status >= 0 || refuse(row, index, status);
    }

    Native native() const { return value_; }

    static PyObject *result(const void *value, const CallRow &row) {
        return Pointer::result(value, row);
    }

  private:
    void *value_ = nullptr;
};

// The address behind a C++ reference: a pointer object that must not be null.
class Reference {
  public:
    using Native = void *;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        const int status = SWIG_Python_ConvertPtrAndOwn(object, &value_, slot(row, index), 0);
        if (status < 0) return refuse(row, index, status);
        return value_ != nullptr || refuse_null(row, index);
    }

    Native native() const { return value_; }

  private:
    void *value_ = nullptr;
};

// The bytes of a value that travels whole. Structures of more than 16 bytes pass in memory, smaller
// ones in integer registers: size and alignment decide, the members do not.
template <std::size_t Size, std::size_t Align>
struct alignas(Align) Blob {
    unsigned char bytes[Size];
};

// A value copied out of a pointer object and passed by value. A result is a new heap copy, owned by
// its pointer object.
template <std::size_t Size, std::size_t Align>
class ByValue {
  public:
    using Native = Blob<Size, Align>;

    ByValue() {}  // not zeroed: a read fills it whole, or the call does not happen

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        void *source = nullptr;
        const int status = SWIG_Python_ConvertPtrAndOwn(object, &source, slot(row, index), 0);
        if (status < 0) return refuse(row, index, status);
        if (source == nullptr) return refuse_null(row, index);
        std::memcpy(&value_, source, Size);
        if ((status & STATUS_NEWOBJ) != 0) ::operator delete(source);
        return true;
    }

    const Native &native() const { return value_; }

    static PyObject *result(const Native &value, const CallRow &row) {
        return owned_copy(&value, Size, slot(row, kResultSlot));
    }

  private:
    Native value_;
};

// A MAC text. The native function gets a local of the frame; what it writes there is dropped.
class MacString {
  public:
    using Native = uint8 *;

    bool read(PyObject *object, const CallRow &, unsigned) {
        pyStringToMacaddr(object, bytes_);
        return PyErr_Occurred() == nullptr;
    }

    // The native prototype takes a plain pointer, also where it only reads.
    Native native() const { return const_cast<uint8 *>(bytes_); }

    static PyObject *result(const uint8 *value, const CallRow &) {
        return PyString_FromStringAndSize(macaddrToString(value), kMacTextLength);
    }

  private:
    uint8 bytes_[6];
};

// A port list, passed as 18 words by value.
class PortBitmap {
  public:
    using Native = bcm_pbmp_t;

    PortBitmap() {}  // not zeroed: a read does that

    bool read(PyObject *object, const CallRow &, unsigned) {
        pbmp_ = {};
        return ombra::add_ports(object, pbmp_);
    }

    const Native &native() const { return pbmp_; }

    static PyObject *result(const Native &value, const CallRow &) { return pbmpToPyList(value); }

  private:
    bcm_pbmp_t pbmp_;
};

// Any object, unlooked at: a borrowed reference in, a new one (or null) out.
class Object {
  public:
    using Native = PyObject *;

    bool read(PyObject *object, const CallRow &, unsigned) {
        value_ = object;
        return true;
    }

    Native native() const { return value_; }

    static PyObject *result(Native value, const CallRow &) { return value; }

  private:
    PyObject *value_ = nullptr;
};

// Result of a native function that returns nothing.
struct Nothing {
    using Native = void;
};

}  // namespace ombra
