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

// The bits of a word. The machine's instruction for it is not on every machine, and would be a
// call.
unsigned count_bits(std::uint64_t bits) {
    bits -= bits >> 1U & 0x5555555555555555U;
    bits = (bits & 0x3333333333333333U) + (bits >> 2U & 0x3333333333333333U);
    bits = (bits + (bits >> 4U)) & 0x0f0f0f0f0f0f0f0fU;
    return static_cast<unsigned>(bits * 0x0101010101010101U >> 56U);
}

}  // namespace

bool ombra::add_ports(PyObject *object, bcm_pbmp_t &pbmp) {
    if (!PyList_Check(object)) return refuse_with(PyExc_TypeError, "Expected a list");
    PyObject **const items = reinterpret_cast<PyListObject *>(object)->ob_item;
    const Py_ssize_t count = PyList_GET_SIZE(object);
    for (Py_ssize_t i = 0; i < count; ++i) {
        if (!PyInt_Check(items[i])) [[unlikely]]
            return refuse_with(PyExc_TypeError, "Port list must contain integers");
        // Negative numbers become large ones here: one compare refuses both ends.
        const auto port = static_cast<unsigned long>(PyInt_AS_LONG(items[i]));
        if (port >= kBits) [[unlikely]]
            return refuse_with(PyExc_ValueError, "Port number out of range");
        pbmp.pbits[port / kWordBits] |= 1U << (port % kWordBits);
    }
    return true;
}

void pyListToPbmp(PyObject *object, bcm_pbmp_t *out) {
    bcm_pbmp_t pbmp{};
    if (ombra::add_ports(object, pbmp)) *out = pbmp;
}

PyObject *pbmpToPyList(const bcm_pbmp_t &pbmp) {
    const Chunks chunks = reported(pbmp);
    unsigned count = 0;
    for (const std::uint64_t chunk : chunks)
        if (chunk != 0) count += count_bits(chunk);  // most are empty
    PyObject *list = PyList_New(count);
    if (list == nullptr) return nullptr;
    PyObject **next = reinterpret_cast<PyListObject *>(list)->ob_item;
    for (unsigned i = 0; i < kChunks; ++i) {
        for (std::uint64_t bits = chunks[i]; bits != 0; bits &= bits - 1) {
            PyObject *port = PyLong_FromUnsignedLong(i * kChunkBits +
                                                     static_cast<unsigned>(std::countr_zero(bits)));
            if (port == nullptr) [[unlikely]] {
                Py_DECREF(list);
                return nullptr;
            }
            *next++ = port;
        }
    }
    return list;
}
