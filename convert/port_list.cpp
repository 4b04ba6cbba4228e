// Port bitmaps filled from a list and turned into one.
#include "convert/port_list.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "convert/refuse.h"

namespace {

constexpr unsigned kWords = 18;
constexpr unsigned kWordBits = 32;
constexpr unsigned long kBits = kWords * kWordBits;
constexpr unsigned kReportedPorts = 571;

// Two words at a time for reading, which a little-endian machine holds in bit order.
constexpr unsigned kChunkBits = 64;
constexpr unsigned kChunks = kBits / kChunkBits;
using Chunks = std::array<std::uint64_t, kChunks>;

static_assert(sizeof(bcm_pbmp_t) == sizeof(Chunks));
static_assert(std::endian::native == std::endian::little);
static_assert(kReportedPorts / kChunkBits == kChunks - 1);

// The bitmap without the bits that are no ports.
Chunks reported(const bcm_pbmp_t &pbmp) {
    Chunks chunks;
    std::memcpy(chunks.data(), &pbmp, sizeof chunks);
    chunks.back() &= (std::uint64_t{1} << (kReportedPorts % kChunkBits)) - 1;
    return chunks;
}

}  // namespace

bool ombra::add_ports(PyObject *object, bcm_pbmp_t &pbmp) {
    if (!PyList_Check(object)) return refuse_with(PyExc_TypeError, "Expected a list");
    const Py_ssize_t count = PyList_GET_SIZE(object);
    for (Py_ssize_t i = 0; i < count; ++i) {
        PyObject *item = PyList_GET_ITEM(object, i);
        if (!PyInt_Check(item))
            return refuse_with(PyExc_TypeError, "Port list must contain integers");
        // Negative numbers become large ones here: one compare refuses both ends.
        const auto port = static_cast<unsigned long>(PyInt_AS_LONG(item));
        if (port >= kBits) return refuse_with(PyExc_ValueError, "Port number out of range");
        pbmp.pbits[port / kWordBits] |= 1U << (port % kWordBits);
    }
    return true;
}

void pyListToPbmp(PyObject *object, bcm_pbmp_t *out) {
    bcm_pbmp_t pbmp{};
    if (ombra::add_ports(object, pbmp)) *out = pbmp;
}

PyObject *pbmpToPyList(const bcm_pbmp_t &pbmp) {
    // Most words are empty, and counting bits is a call on the baseline machine.
    const Chunks chunks = reported(pbmp);
    int count = 0;
    for (const std::uint64_t chunk : chunks) count += chunk == 0 ? 0 : std::popcount(chunk);
    PyObject *list = PyList_New(count);
    Py_ssize_t next = 0;
    for (unsigned i = 0; list != nullptr && i < kChunks; ++i) {
        for (std::uint64_t bits = chunks[i]; bits != 0; bits &= bits - 1) {
            PyObject *port = PyLong_FromUnsignedLong(i * kChunkBits +
                                                     static_cast<unsigned>(std::countr_zero(bits)));
            if (port == nullptr) {
                Py_DECREF(list);
                return nullptr;
            }
            PyList_SET_ITEM(list, next++, port);
        }
    }
    return list;
}
