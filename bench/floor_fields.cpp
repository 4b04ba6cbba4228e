// Accessors of one struct, and the readers of MAC texts and port lists, written by hand.

#include <cstdio>
#include <cstring>

#include "bench/floor.h"
#include "sdk/bcm/l2_types.h"

namespace {

bcm_l2_addr_t *self_of(PyObject *object, const char *text) {
    void *self = nullptr;
    if (!floor_address(object, floor_types.l2_addrs, &self, text)) return nullptr;
    if (self == nullptr) floor_raise(PyExc_ValueError, text);
    return static_cast<bcm_l2_addr_t *>(self);
}

bcm_l2_addr_t *getter_self(PyObject *args, const char *name, const char *text) {
    PyObject *object = nullptr;
    return PyArg_UnpackTuple(args, const_cast<char *>(name), 1, 1, &object) ? self_of(object, text)
                                                                            : nullptr;
}

bcm_l2_addr_t *setter_self(PyObject *args, const char *name, const char *text, PyObject **value) {
    PyObject *object = nullptr;
    return PyArg_UnpackTuple(args, const_cast<char *>(name), 2, 2, &object, value)
               ? self_of(object, text)
               : nullptr;
}

int digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

}  // namespace

bool floor_read_mac(PyObject *object, unsigned char mac[6]) {
    if (!PyString_Check(object) || PyString_GET_SIZE(object) != 17)
        return floor_raise(PyExc_TypeError, "Expected a string");
    const char *text = PyString_AS_STRING(object);
    for (int i = 0; i < 6; ++i) {
        const int high = digit(text[3 * i]);
        const int low = digit(text[3 * i + 1]);
        if (high < 0 || low < 0 || (i < 5 && text[3 * i + 2] != ':')) {
            return floor_raise(PyExc_ValueError,
                               "Expected a string of the form 'AA:BB:CC:DD:EE:FF'");
        }
        mac[i] = static_cast<unsigned char>(high << 4 | low);
    }
    return true;
}

PyObject *floor_mac_text(const unsigned char mac[6]) {
    static const char hex[] = "0123456789abcdef";
    char text[17];
    for (int i = 0; i < 6; ++i) {
        text[3 * i] = hex[mac[i] >> 4];
        text[3 * i + 1] = hex[mac[i] & 15];
        if (i < 5) text[3 * i + 2] = ':';
    }
    return PyString_FromStringAndSize(text, sizeof text);
}

bool floor_read_ports(PyObject *object, bcm_pbmp_t *ports) {
    if (!PyList_Check(object)) return floor_raise(PyExc_TypeError, "Expected a list");
    std::memset(ports, 0, sizeof *ports);
    for (Py_ssize_t i = 0; i < PyList_GET_SIZE(object); ++i) {
        PyObject *item = PyList_GET_ITEM(object, i);
        if (!PyInt_Check(item))
            return floor_raise(PyExc_TypeError, "Port list must contain integers");
        const long port = PyInt_AS_LONG(item);
        if (port < 0 || port >= 576)
            return floor_raise(PyExc_ValueError, "Port number out of range");
        ports->pbits[port / 32] |= 1U << (port % 32);
    }
    return true;
}

PyObject *floor_ports_list(const bcm_pbmp_t *ports) {
    PyObject *list = PyList_New(0);
    for (unsigned word = 0; word < 18; ++word) {
        unsigned bits = ports->pbits[word];
        while (bits != 0) {
            const auto bit = static_cast<unsigned>(__builtin_ctz(bits));
            bits &= bits - 1;
            if (word * 32 + bit > 570) break;
            PyObject *port = PyLong_FromUnsignedLong(word * 32 + bit);
            PyList_Append(list, port);
            Py_DECREF(port);
        }
    }
    return list;
}

PyObject *floor_port_get(PyObject *, PyObject *args) {
    const bcm_l2_addr_t *self =
        getter_self(args, "bcm_l2_addr_t_port_get",
                    "in method 'bcm_l2_addr_t_port_get', argument 1 of type 'bcm_l2_addr_s *'");
    return self == nullptr ? nullptr : PyInt_FromLong(self->port);
}

PyObject *floor_port_set(PyObject *, PyObject *args) {
    PyObject *value = nullptr;
    bcm_l2_addr_t *self = setter_self(
        args, "bcm_l2_addr_t_port_set",
        "in method 'bcm_l2_addr_t_port_set', argument 1 of type 'bcm_l2_addr_s *'", &value);
    if (self == nullptr ||
        !floor_int(value, &self->port,
                   "in method 'bcm_l2_addr_t_port_set', argument 2 of type 'int'")) {
        return nullptr;
    }
    Py_RETURN_NONE;
}

PyObject *floor_mac_get(PyObject *, PyObject *args) {
    const bcm_l2_addr_t *self =
        getter_self(args, "bcm_l2_addr_t_mac_get",
                    "in method 'bcm_l2_addr_t_mac_get', argument 1 of type 'bcm_l2_addr_s *'");
    return self == nullptr ? nullptr : floor_mac_text(self->mac);
}

PyObject *floor_mac_set(PyObject *, PyObject *args) {
    PyObject *value = nullptr;
    unsigned char mac[6];
    bcm_l2_addr_t *self = setter_self(
        args, "bcm_l2_addr_t_mac_set",
        "in method 'bcm_l2_addr_t_mac_set', argument 1 of type 'bcm_l2_addr_s *'", &value);
    if (self == nullptr || !floor_read_mac(value, mac)) return nullptr;
    std::memcpy(self->mac, mac, sizeof mac);
    Py_RETURN_NONE;
}

PyObject *floor_ports_get(PyObject *, PyObject *args) {
    const bcm_l2_addr_t *self = getter_self(
        args, "bcm_l2_addr_t_block_bitmap_get",
        "in method 'bcm_l2_addr_t_block_bitmap_get', argument 1 of type 'bcm_l2_addr_s *'");
    return self == nullptr ? nullptr : floor_ports_list(&self->block_bitmap);
}

PyObject *floor_ports_set(PyObject *, PyObject *args) {
    PyObject *value = nullptr;
    bcm_pbmp_t ports;
    bcm_l2_addr_t *self = setter_self(
        args, "bcm_l2_addr_t_block_bitmap_set",
        "in method 'bcm_l2_addr_t_block_bitmap_set', argument 1 of type 'bcm_l2_addr_s *'", &value);
    if (self == nullptr || !floor_read_ports(value, &ports)) return nullptr;
    self->block_bitmap = ports;
    Py_RETURN_NONE;
}
