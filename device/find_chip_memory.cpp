// Choosing the shape of findChipMemory by its arguments, and its counted result.
#include "device/find_chip_memory.h"

#include <cstring>
#include <limits>
#include <type_traits>

#include "convert/frame_body.h"
#include "device/counted_result.h"
#include "helper/shadow_cxx.h"

namespace ombra {
namespace {

// The places of the pointers in the by-address shape.
constexpr unsigned kAddress = 2;
constexpr unsigned kSizeBytes = 3;

constexpr char kNoShapeFits[] =
    "Wrong number or type of arguments for overloaded function 'findChipMemory'.\n"
    "  Possible C/C++ prototypes are:\n"
    "    TesselApi::findChipMemory(int,int,Hardware::ChipAddress,U32)\n"
    "    TesselApi::findChipMemory(int,int,int)\n";

// The value that the bytes of a by-value argument are.
template <class T, class Bytes>
T value_of(const Bytes &bytes) {
    static_assert(sizeof(T) == sizeof(Bytes) && std::is_trivially_copyable_v<T>);
    T value;
    std::memcpy(static_cast<void *>(&value), &bytes, sizeof value);
    return value;
}

bool could_be_int(PyObject *object) {
    long value = 0;
    return SWIG_AsVal_long(object, &value) >= 0 && value >= std::numeric_limits<int>::min() &&
           value <= std::numeric_limits<int>::max();
}

// Looks at the type only, so None passes.
bool could_be_pointer(PyObject *object, swig_type_info *type) {
    return SWIG_Python_ConvertPtrAndOwn(object, nullptr, type, 0) >= 0;
}

swig_type_info *result_type(const FindChipMemoryRows &rows) {
    return slot(rows.by_address, kResultSlot);
}

PyObject *by_address(const FindChipMemoryRows &rows, PyObject *args) {
    using Address = ByValue<sizeof(Hardware::ChipAddress), alignof(Hardware::ChipAddress)>;
    using Size = ByValue<sizeof(U32), alignof(U32)>;
    return call_with<Signed32, Signed32, Address, Size>(
        rows.by_address, args, [&rows](int unit, int mem, const auto &sca, const auto &size) {
            return counted_result(
                TesselApi::findChipMemory(unit, mem, value_of<Hardware::ChipAddress>(sca),
                                          value_of<U32>(size)),
                result_type(rows));
        });
}

PyObject *by_base(const FindChipMemoryRows &rows, PyObject *args) {
    return call_with<Signed32, Signed32, Signed32>(
        rows.by_base, args, [&rows](int unit, int mem, int base) {
            return counted_result(TesselApi::findChipMemory(unit, mem, base), result_type(rows));
        });
}

}  // namespace

PyObject *find_chip_memory(const FindChipMemoryRows &rows, PyObject *args) {
    const Py_ssize_t count = PyTuple_GET_SIZE(args);
    PyObject *items[4] = {};
    for (Py_ssize_t i = 0; i < count && i < 4; ++i) items[i] = PyTuple_GET_ITEM(args, i);

    if (count == 3 && could_be_int(items[0]) && could_be_int(items[1]) && could_be_int(items[2]))
        return by_base(rows, args);
    if (count == 4 && could_be_int(items[0]) && could_be_int(items[1]) &&
        could_be_pointer(items[2], slot(rows.by_address, kAddress)) &&
        could_be_pointer(items[3], slot(rows.by_address, kSizeBytes))) {
        return by_address(rows, args);
    }
    PyErr_SetString(PyExc_NotImplementedError, kNoShapeFits);
    return nullptr;
}

}  // namespace ombra
