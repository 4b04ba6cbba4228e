// Rows that return [status, value] and read an argument, or keep a structure, in their own way.

#include <new>

#include "api/hand_rows.h"
#include "convert/frame_body.h"
#include "generated/type_slots.h"
#include "runtime/append_output.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/trunk.h"

namespace ombra {
namespace {

// Memory for a structure that the native function fills, released unless Python takes it over.
template <typename Struct>
class Filled {
  public:
    Filled() : memory_(::operator new(sizeof(Struct), std::nothrow)) {}
    Filled(const Filled &) = delete;
    Filled &operator=(const Filled &) = delete;
    ~Filled() { ::operator delete(memory_); }

    Struct *get() const { return static_cast<Struct *>(memory_); }

    // [status, object]; the object owns the memory. Null with an exception on failure.
    PyObject *result(int status, unsigned type_slot) {
        void *memory = memory_;
        memory_ = nullptr;
        PyObject *object = own_pointer(memory, swig_type_slots[type_slot]);
        return SWIG_Python_AppendOutput(PyInt_FromLong(status), object);
    }

  private:
    void *memory_;
};

// A VLAN id that the interpreter's own conversion reads: anything that `int()` takes, cut to 16
// bits without a range error, and the interpreter's own exception for the rest.
class CutVlan {
  public:
    using Native = bcm_vlan_t;

    bool read(PyObject *object, const CallRow &, unsigned) {
        const long value = PyInt_AsLong(object);
        value_ = static_cast<bcm_vlan_t>(value);
        return PyErr_Occurred() == nullptr;
    }

    Native native() const { return value_; }

  private:
    bcm_vlan_t value_ = 0;
};

// The trunk id of bcm_trunk_create goes in and out: the address in a pointer object, or a number
// that is kept here.
class InOutTrunk {
  public:
    using Native = InOutTrunk *;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        const int status =
            SWIG_Python_ConvertPtrAndOwn(object, &address_, swig_type_slots[slots::_p_int], 0);
        if (status >= 0) return true;
        kept_ = number_.read(object, row, index);
        value_ = kept_ ? number_.native() : 0;
        address_ = &value_;
        return kept_;
    }

    Native native() const { return const_cast<InOutTrunk *>(this); }

    bcm_trunk_t *address() const { return static_cast<bcm_trunk_t *>(address_); }

    // The number as it came back, or a new pointer object at the caller's address.
    PyObject *output() const {
        return kept_ ? PyInt_FromLong(value_)
                     : SWIG_Python_NewPointerObj(address_, swig_type_slots[slots::_p_int], 0);
    }

  private:
    void *address_ = nullptr;
    Signed32 number_;
    bcm_trunk_t value_ = 0;
    bool kept_ = false;
};

}  // namespace

namespace rows {

PyObject *bcm_trunk_create(const CallRow &row, PyObject *args) {
    return call_with<Signed32, Unsigned32, InOutTrunk>(
        row, args, [](int unit, unsigned int flags, InOutTrunk *trunk) {
            const int status = ::bcm_trunk_create(unit, flags, trunk->address());
            return SWIG_Python_AppendOutput(PyInt_FromLong(status), trunk->output());
        });
}

PyObject *bcm_l2_addr_get(const CallRow &row, PyObject *args) {
    return call_with<Signed32, MacString, CutVlan>(
        row, args, [](int unit, uint8 *mac, bcm_vlan_t vid) -> PyObject * {
            Filled<bcm_l2_addr_t> entry;
            if (entry.get() == nullptr) return PyErr_NoMemory();
            const int status = ::bcm_l2_addr_get(unit, mac, vid, entry.get());
            return entry.result(status, slots::_p_bcm_l2_addr_s);
        });
}

// The structure exists before the arguments are looked at, and goes again when they fail.
PyObject *bcm_port_config_get(const CallRow &row, PyObject *args) {
    Filled<bcm_port_config_t> config;
    if (config.get() == nullptr) return PyErr_NoMemory();
    return call_with<Signed32>(row, args, [&](int unit) {
        const int status = ::bcm_port_config_get(unit, config.get());
        return config.result(status, slots::_p_bcm_port_config_s);
    });
}

}  // namespace rows
}  // namespace ombra
