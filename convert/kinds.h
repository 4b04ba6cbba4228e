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
#include "convert/other_readers.h"
#include "convert/port_list.h"
#include "convert/readers.h"
#include "convert/refuse.h"
#include "convert/results.h"
#include "convert/row.h"
#include "runtime/pointer_conversion.h"
#include "runtime/type_table.h"

namespace ombra {

// What a reader out of line gives back: in registers, so that no value of the frame needs an
// address.
template <typename Number>
struct NumberRead {
    Number value;
    bool good;  // false: exception set
};

// A number that comes as an `int` in range is read in line, whatever the argument's position.
// `long` objects and refusals are one call; `Reader` is the whole reader with its wide type.
template <typename Number, typename Wide, int (*Reader)(PyObject *, Wide *)>
class NumberKind {
  public:
    using Native = Number;

    [[gnu::always_inline]] bool read(PyObject *object, const CallRow &row, unsigned index) {
        if (PyInt_Check(object) && fits(PyInt_AS_LONG(object))) [[likely]] {
            value_ = static_cast<Number>(PyInt_AS_LONG(object));
            return true;
        }
        const NumberRead<Number> result = read_other(object, row, index);
        value_ = result.value;
        return result.good;
    }

    Native native() const { return value_; }

  protected:
    Number value_;

  private:
    // Whether an `int` needs no second look. All bits above the number's own are zero, or its sign.
    static bool fits(long value) {
        if constexpr (sizeof(Number) == sizeof(long))
            return value >= 0;
        else
            return value == static_cast<long>(static_cast<Number>(value));
    }

    [[gnu::noinline]] static NumberRead<Number> read_other(PyObject *object, const CallRow &row,
                                                           unsigned index) {
        Wide value = 0;
        const int status = Reader(object, &value);
        if (status < 0) return {0, refuse(row, index, status)};
        if (value != static_cast<Wide>(static_cast<Number>(value)))
            return {0, refuse(row, index, STATUS_OVERFLOW)};
        return {static_cast<Number>(value), true};
    }
};

template <typename Number>
class SignedKind : public NumberKind<Number, long, SWIG_AsVal_long> {
  public:
    static PyObject *result(Number value, const CallRow &) { return PyInt_FromLong(value); }
};

template <typename Number>
class UnsignedKind : public NumberKind<Number, unsigned long, SWIG_AsVal_unsigned_SS_long> {
  public:
    static PyObject *result(Number value, const CallRow &) {
        if constexpr (sizeof(Number) == sizeof(std::uint32_t))
            return PyInt_FromSize_t(value);
        else
            return PyInt_FromLong(value);
    }
};

using Signed8 = SignedKind<signed char>;
using Signed16 = SignedKind<short>;
using Signed32 = SignedKind<int>;
using Unsigned8 = UnsignedKind<unsigned char>;
using Unsigned16 = UnsignedKind<unsigned short>;
using Unsigned32 = UnsignedKind<unsigned int>;

// `unsigned long`: the reader's own range.
using UnsignedLong = NumberKind<unsigned long, unsigned long, SWIG_AsVal_unsigned_SS_long>;

// 64 bits unsigned. A result is an `int` as long as it fits one, else a `long`.
class Unsigned64
    : public NumberKind<uint64, unsigned long long, SWIG_AsVal_unsigned_SS_long_SS_long> {
  public:
    static PyObject *result(Native value, const CallRow &) {
        return value > static_cast<Native>(std::numeric_limits<long>::max())
                   ? PyLong_FromUnsignedLongLong(value)
                   : PyInt_FromLong(static_cast<long>(value));
    }
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

    [[gnu::always_inline]] bool read(PyObject *object, const CallRow &row, unsigned index) {
        value_ = object == Py_True;
        return value_ || object == Py_False || refuse(row, index, STATUS_TYPE);
    }

    Native native() const { return value_; }

    static PyObject *result(Native value, const CallRow &) { return PyBool_FromLong(value); }

  private:
    bool value_;
};

// Text: the storage of the Python string or behind the pointer, valid for the call. The reader is
// asked for no copy, so there is nothing to release.
class Text {
  public:
    using Native = char *;

    [[gnu::always_inline]] bool read(PyObject *object, const CallRow &row, unsigned index) {
        if (PyString_Check(object)) [[likely]] {
            text_ = PyString_AS_STRING(object);
            return true;
        }
        const TextRead result = read_other_text(object, row, index);
        text_ = result.text;
        return result.good;
    }

    Native native() const { return text_; }

    static PyObject *result(const char *value, const CallRow &) { return text_result(value); }

  private:
    char *text_;
};

// A pointer of the argument's type slot; slot kAnyPointer takes a pointer of any type. None is the
// null pointer. Inline arrays as arguments are the same: the address of the first element.
class Pointer {
  public:
    using Native = void *;

    [[gnu::always_inline]] bool read(PyObject *object, const CallRow &row, unsigned index) {
        const PointerRead result = read_pointer(object, row, index);
        value_ = result.pointer;
        return result.status >= 0;
    }

    Native native() const { return value_; }

    static PyObject *result(const void *value, const CallRow &row) {
        return SWIG_Python_NewPointerObj(const_cast<void *>(value), slot(row, kResultSlot), 0);
    }

  private:
    void *value_;
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
class Reference : public Pointer {
  public:
    [[gnu::always_inline]] bool read(PyObject *object, const CallRow &row, unsigned index) {
        if (!Pointer::read(object, row, index)) return false;
        return native() != nullptr || refuse_null(row, index);
    }
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

    [[gnu::always_inline]] bool read(PyObject *object, const CallRow &row, unsigned index) {
        const PointerRead source = read_pointer(object, row, index);
        if (source.status < 0) return false;
        if (source.pointer == nullptr) return refuse_null(row, index);
        std::memcpy(&value_, source.pointer, Size);
        if ((source.status & STATUS_NEWOBJ) != 0) ::operator delete(source.pointer);
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

    bool read(PyObject *object, const CallRow &, unsigned) { return read_mac(object, bytes_); }

    // The native prototype takes a plain pointer, also where it only reads.
    Native native() const { return const_cast<uint8 *>(bytes_); }

    static PyObject *result(const uint8 *value, const CallRow &) { return mac_text(value); }

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
