// Accessors of one struct, the readers of MAC texts and port lists, and results of several values,
// written by hand.

#include <bit>
#include <cstdio>

#include "bench/floor.h"
#include "sdk/bcm/l2_types.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/vlan.h"

namespace {

constexpr char kHex[] = "0123456789abcdef";
constexpr unsigned kPorts = 571;
constexpr unsigned kWords = 9;  // of 64 bits

constexpr std::array<signed char, 256> digits() {
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (int i = 0; i < 10; ++i) values[static_cast<std::size_t>('0' + i)] = static_cast<char>(i);
    for (int i = 0; i < 6; ++i) {
        values[static_cast<std::size_t>('a' + i)] = static_cast<char>(10 + i);
        values[static_cast<std::size_t>('A' + i)] = static_cast<char>(10 + i);
    }
    return values;
}
constexpr std::array<signed char, 256> kDigits = digits();

int digit(char c) { return kDigits[static_cast<unsigned char>(c)]; }

// Everything but a string of twelve digits and their colons.
[[gnu::cold, gnu::noinline]] bool scan_mac(PyObject *object, unsigned char mac[6]) {
    const char *text = PyString_AsString(object);
    if (text == nullptr) return floor_raise(PyExc_TypeError, "Expected a string");
    unsigned groups[6] = {};
    if (std::sscanf(text, "%2x:%2x:%2x:%2x:%2x:%2x", &groups[0], &groups[1], &groups[2], &groups[3],
                    &groups[4], &groups[5]) != 6) {
        return floor_raise(PyExc_ValueError, "Expected a string of the form 'AA:BB:CC:DD:EE:FF'");
    }
    for (int i = 0; i < 6; ++i) mac[i] = static_cast<unsigned char>(groups[i]);
    return true;
}

[[gnu::always_inline]] inline bcm_l2_addr_t *self_of(PyObject *object, const char *text) {
    void *self;
    if (!floor_address(object, floor_types.l2_addrs, &self, text)) return nullptr;
    if (self == nullptr) [[unlikely]]
        floor_raise(PyExc_ValueError, text);
    return static_cast<bcm_l2_addr_t *>(self);
}

// Bits of a word without the machine's own instruction, which not every machine has.
unsigned count_bits(std::uint64_t bits) {
    bits -= bits >> 1 & 0x5555555555555555U;
    bits = (bits & 0x3333333333333333U) + (bits >> 2 & 0x3333333333333333U);
    bits = (bits + (bits >> 4)) & 0x0f0f0f0f0f0f0f0fU;
    return static_cast<unsigned>(bits * 0x0101010101010101U >> 56);
}

}  // namespace

bool floor_read_mac(PyObject *object, unsigned char mac[6]) {
    if (!PyString_Check(object) || PyString_GET_SIZE(object) < 17) [[unlikely]]
        return scan_mac(object, mac);
    const char *text = PyString_AS_STRING(object);
    int bad = 0;
    for (int i = 0; i < 6; ++i) {
        const int byte = digit(text[3 * i]) * 16 | digit(text[3 * i + 1]);
        bad |= byte;
        if (i < 5) bad |= (text[3 * i + 2] == ':') - 1;
        mac[i] = static_cast<unsigned char>(byte);
    }
    return bad >= 0 || scan_mac(object, mac);
}

PyObject *floor_mac_text(const unsigned char mac[6]) {
    PyObject *text = PyString_FromStringAndSize(nullptr, 17);
    if (text == nullptr) return nullptr;
    char *out = PyString_AS_STRING(text);
    for (int i = 0; i < 6; ++i) {
        out[3 * i] = kHex[mac[i] >> 4];
        out[3 * i + 1] = kHex[mac[i] & 15];
        if (i < 5) out[3 * i + 2] = ':';
    }
    return text;
}

bool floor_read_ports(PyObject *object, bcm_pbmp_t *ports) {
    if (!PyList_Check(object)) [[unlikely]]
        return floor_raise(PyExc_TypeError, "Expected a list");
    std::memset(ports, 0, sizeof *ports);
    PyObject **const items = reinterpret_cast<PyListObject *>(object)->ob_item;
    const Py_ssize_t count = PyList_GET_SIZE(object);
    for (Py_ssize_t i = 0; i < count; ++i) {
        if (!PyInt_Check(items[i])) [[unlikely]]
            return floor_raise(PyExc_TypeError, "Port list must contain integers");
        const auto port = static_cast<unsigned long>(PyInt_AS_LONG(items[i]));
        if (port >= 576) [[unlikely]]
            return floor_raise(PyExc_ValueError, "Port number out of range");
        ports->pbits[port / 32] |= 1U << (port % 32);
    }
    return true;
}

PyObject *floor_ports_list(const bcm_pbmp_t *ports) {
    std::uint64_t words[kWords];
    std::memcpy(words, ports, sizeof words);
    words[kWords - 1] &= (std::uint64_t{1} << (kPorts % 64)) - 1;
    unsigned count = 0;
    for (const std::uint64_t word : words)
        if (word != 0) count += count_bits(word);
    PyObject *list = PyList_New(count);
    if (list == nullptr) return nullptr;
    PyObject **item = reinterpret_cast<PyListObject *>(list)->ob_item;
    for (unsigned word = 0; word < kWords; ++word) {
        for (std::uint64_t bits = words[word]; bits != 0; bits &= bits - 1) {
            PyObject *port =
                PyLong_FromUnsignedLong(word * 64 + static_cast<unsigned>(std::countr_zero(bits)));
            if (port == nullptr) [[unlikely]] {
                Py_DECREF(list);
                return nullptr;
            }
            *item++ = port;
        }
    }
    return list;
}

PyObject *floor_port_get(PyObject *, PyObject *args) {
    PyObject *a;
    if (!floor_unpack(args, "bcm_l2_addr_t_port_get", &a)) return nullptr;
    const bcm_l2_addr_t *self =
        self_of(a, "in method 'bcm_l2_addr_t_port_get', argument 1 of type 'bcm_l2_addr_s *'");
    return self == nullptr ? nullptr : PyInt_FromLong(self->port);
}

PyObject *floor_port_set(PyObject *, PyObject *args) {
    PyObject *a;
    PyObject *b;
    int port;
    if (!floor_unpack(args, "bcm_l2_addr_t_port_set", &a, &b)) return nullptr;
    bcm_l2_addr_t *self =
        self_of(a, "in method 'bcm_l2_addr_t_port_set', argument 1 of type 'bcm_l2_addr_s *'");
    if (self == nullptr ||
        !floor_number(b, &port, "in method 'bcm_l2_addr_t_port_set', argument 2 of type 'int'"))
        return nullptr;
    self->port = port;
    Py_RETURN_NONE;
}

PyObject *floor_mac_get(PyObject *, PyObject *args) {
    PyObject *a;
    if (!floor_unpack(args, "bcm_l2_addr_t_mac_get", &a)) return nullptr;
    const bcm_l2_addr_t *self =
        self_of(a, "in method 'bcm_l2_addr_t_mac_get', argument 1 of type 'bcm_l2_addr_s *'");
    return self == nullptr ? nullptr : floor_mac_text(self->mac);
}

PyObject *floor_mac_set(PyObject *, PyObject *args) {
    PyObject *a;
    PyObject *b;
    unsigned char mac[6];
    if (!floor_unpack(args, "bcm_l2_addr_t_mac_set", &a, &b)) return nullptr;
    bcm_l2_addr_t *self =
        self_of(a, "in method 'bcm_l2_addr_t_mac_set', argument 1 of type 'bcm_l2_addr_s *'");
    if (self == nullptr || !floor_read_mac(b, mac)) return nullptr;
    std::memcpy(self->mac, mac, sizeof mac);
    Py_RETURN_NONE;
}

PyObject *floor_ports_get(PyObject *, PyObject *args) {
    PyObject *a;
    if (!floor_unpack(args, "bcm_l2_addr_t_block_bitmap_get", &a)) return nullptr;
    const bcm_l2_addr_t *self = self_of(
        a, "in method 'bcm_l2_addr_t_block_bitmap_get', argument 1 of type 'bcm_l2_addr_s *'");
    return self == nullptr ? nullptr : floor_ports_list(&self->block_bitmap);
}

PyObject *floor_ports_set(PyObject *, PyObject *args) {
    PyObject *a;
    PyObject *b;
    bcm_pbmp_t ports;
    if (!floor_unpack(args, "bcm_l2_addr_t_block_bitmap_set", &a, &b)) return nullptr;
    bcm_l2_addr_t *self = self_of(
        a, "in method 'bcm_l2_addr_t_block_bitmap_set', argument 1 of type 'bcm_l2_addr_s *'");
    if (self == nullptr || !floor_read_ports(b, &ports)) return nullptr;
    self->block_bitmap = ports;
    Py_RETURN_NONE;
}

PyObject *floor_pause(PyObject *, PyObject *args) {
    PyObject *a;
    PyObject *b;
    int unit;
    int port;
    if (!floor_unpack(args, "bcm_port_pause_get", &a, &b) ||
        !floor_number(a, &unit, "in method 'bcm_port_pause_get', argument 1 of type 'int'") ||
        !floor_number(b, &port, "in method 'bcm_port_pause_get', argument 2 of type 'bcm_port_t'"))
        return nullptr;
    int sent = 0;
    int received = 0;
    const int status = bcm_port_pause_get(unit, port, &sent, &received);
    PyObject *number = PyInt_FromLong(status);
    PyObject *tuple = number == nullptr ? nullptr : PyTuple_New(3);
    if (tuple == nullptr) [[unlikely]] {
        Py_XDECREF(number);
        return nullptr;
    }
    PyTuple_SET_ITEM(tuple, 0, number);
    PyTuple_SET_ITEM(tuple, 1, PyBool_FromLong(sent));
    PyTuple_SET_ITEM(tuple, 2, PyBool_FromLong(received));
    return tuple;
}

PyObject *floor_vlan_ports(PyObject *, PyObject *args) {
    PyObject *a;
    PyObject *b;
    int unit;
    unsigned short vid;
    if (!floor_unpack(args, "bcm_vlan_port_get", &a, &b) ||
        !floor_number(a, &unit, "in method 'bcm_vlan_port_get', argument 1 of type 'int'") ||
        !floor_number(b, &vid, "in method 'bcm_vlan_port_get', argument 2 of type 'bcm_vlan_t'"))
        return nullptr;
    bcm_pbmp_t ports{};
    bcm_pbmp_t untagged{};
    const int status = bcm_vlan_port_get(unit, vid, &ports, &untagged);
    PyObject *tuple = PyTuple_New(3);
    if (tuple == nullptr) return nullptr;
    PyTuple_SET_ITEM(tuple, 0, PyInt_FromLong(status));
    PyTuple_SET_ITEM(tuple, 1, status == 0 ? floor_ports_list(&ports) : Py_BuildValue(""));
    PyTuple_SET_ITEM(tuple, 2, status == 0 ? floor_ports_list(&untagged) : Py_BuildValue(""));
    for (Py_ssize_t i = 0; i < 3; ++i) {
        if (PyTuple_GET_ITEM(tuple, i) == nullptr) [[unlikely]] {
            Py_DECREF(tuple);
            return nullptr;
        }
    }
    return tuple;
}
