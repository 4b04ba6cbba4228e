#include "convert/port_list.h"

#include <array>
#include <bit>
#include <cstdint>

#include "convert/refuse.h"

namespace {

constexpr unsigned kWords = 18;
constexpr unsigned kWordBits = 32;
constexpr unsigned long kBits = kWords * kWordBits;
constexpr unsigned kReportedPorts = 571;
constexpr std::uint32_t kLastWordMask = (1U << (kReportedPorts % kWordBits)) - 1;

static_assert(sizeof(bcm_pbmp_t) == kWords * sizeof(std::uint32_t));
static_assert(kReportedPorts / kWordBits == kWords - 1);

std::uint32_t reported(const bcm_pbmp_t &pbmp, unsigned word) {
    return word == kWords - 1 ? pbmp.pbits[word] & kLastWordMask : pbmp.pbits[word];
}

}  // namespace

void pyListToPbmp(PyObject *object, bcm_pbmp_t *out) {
    if (!PyList_Check(object)) {
        ombra::refuse_with(PyExc_TypeError, "Expected a list");
        return;
    }
    bcm_pbmp_t pbmp{};
    const Py_ssize_t count = PyList_GET_SIZE(object);
    for (Py_ssize_t i = 0; i < count; ++i) {
        PyObject *item = PyList_GET_ITEM(object, i);
        if (!PyInt_Check(item)) {
            ombra::refuse_with(PyExc_TypeError, "Port list must contain integers");
            return;
        }
        // Negative numbers become large ones here: one compare refuses both ends.
        const auto port = static_cast<unsigned long>(PyInt_AS_LONG(item));
        if (port >= kBits) {
            ombra::refuse_with(PyExc_ValueError, "Port number out of range");
            return;
        }
        pbmp.pbits[port / kWordBits] |= 1U << (port % kWordBits);
    }
    *out = pbmp;
}

PyObject *pbmpToPyList(const bcm_pbmp_t &pbmp) {
    int count = 0;
    for (unsigned word = 0; word < kWords; ++word) {
        count += std::popcount(reported(pbmp, word));
    }
    PyObject *list = PyList_New(count);
    if (list == nullptr) {
        return nullptr;
    }
    Py_ssize_t next = 0;
    for (unsigned word = 0; word < kWords; ++word) {
        for (std::uint32_t bits = reported(pbmp, word); bits != 0; bits &= bits - 1) {
            const auto bit = static_cast<unsigned>(std::countr_zero(bits));
            PyObject *port = PyLong_FromUnsignedLong(word * kWordBits + bit);
            if (port == nullptr) {
                Py_DECREF(list);
                return nullptr;
            }
            PyList_SET_ITEM(list, next++, port);
        }
    }
    return list;
}
