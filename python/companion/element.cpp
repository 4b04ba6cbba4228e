// Loading and storing one element of each form.
#include "python/companion/element.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <limits>

#include "convert/mac_text.h"
#include "convert/port_list.h"
#include "convert/readers.h"
#include "convert/results.h"
#include "generated/type_slots.h"
#include "python/companion/array.h"
#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"

namespace companion {

namespace {

bool refuse(const Element &element, int status) {
    PyErr_Format(SWIG_Python_ErrorType(status == STATUS_GENERIC ? STATUS_TYPE : status),
                 "in an element of type '%s'", element.name);
    return false;
}

// Whether `bits` is in the range of a number of the element's size and sign.
bool in_range(const Element &element, std::uint64_t bits) {
    if (element.size == sizeof bits) return true;
    const unsigned width = element.size * 8;
    if (!element.is_signed) return bits >> width == 0;
    return (bits + (std::uint64_t{1} << (width - 1))) >> width == 0;
}

bool store_number(const Element &element, void *place, PyObject *value) {
    std::uint64_t bits = 0;
    int status = STATUS_OK;
    if (element.is_signed) {
        long number = 0;
        status = SWIG_AsVal_long(value, &number);
        bits = static_cast<std::uint64_t>(number);
    } else {
        unsigned long long number = 0;
        status = SWIG_AsVal_unsigned_SS_long_SS_long(value, &number);
        bits = number;
    }
    if (status >= 0 && !in_range(element, bits)) status = STATUS_OVERFLOW;
    if (status < 0) return refuse(element, status);
    if (element.check != nullptr) {
        try {
            element.check(bits);
        } catch (const std::exception &failure) {
            PyErr_SetString(PyExc_ValueError, failure.what());
            return false;
        }
    }
    std::memcpy(place, &bits, element.size);  // the low bytes come first
    return true;
}

PyObject *load_number(const Element &element, const void *place) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, place, element.size);
    if (element.is_signed) {
        const unsigned unused = 64 - element.size * 8;
        return PyInt_FromLong(static_cast<long>(bits << unused) >> unused);
    }
    return bits <= std::uint64_t{std::numeric_limits<long>::max()}
               ? PyInt_FromLong(static_cast<long>(bits))
               : PyLong_FromUnsignedLongLong(bits);
}

bool store_text(const Element &element, void *place, PyObject *value) {
    char *text = nullptr;
    int borrowed = 0;
    const int status = SWIG_AsCharPtrAndSize(value, &text, nullptr, &borrowed);
    if (status < 0) return refuse(element, status);
    std::memcpy(place, &text, sizeof text);
    return true;
}

// A pointer without a type of its own is written as an address.
bool store_address(const Element &element, void *place, PyObject *value) {
    unsigned long address = 0;
    const int status = value == Py_None ? STATUS_OK : SWIG_AsVal_unsigned_SS_long(value, &address);
    if (status < 0) return refuse(element, status);
    std::memcpy(place, &address, sizeof address);
    return true;
}

bool store_pointer(const Element &element, void *place, PyObject *value) {
    if (element.form == Form::code_pointer && element.inner == 0)
        return store_address(element, place, value);
    swig_type_info *type = swig_type_slots[element.inner];
    void *pointer = nullptr;
    int status = STATUS_OK;
    if (element.form == Form::code_pointer) {
        status = SWIG_Python_ConvertFunctionPtr(value, &pointer, type);
    } else {
        const bool any = std::strcmp(type->name, "_p_void") == 0;
        status = SWIG_Python_ConvertPtrAndOwn(value, &pointer, any ? nullptr : type, 0);
    }
    if (status < 0) return refuse(element, status);
    std::memcpy(place, &pointer, sizeof pointer);
    return true;
}

PyObject *load_pointer(const Element &element, const void *place) {
    void *pointer = nullptr;
    std::memcpy(&pointer, place, sizeof pointer);
    if (element.form == Form::text) return ombra::text_result(static_cast<const char *>(pointer));
    if (element.form == Form::code_pointer && element.inner == 0)
        return PyLong_FromVoidPtr(pointer);
    return SWIG_Python_NewPointerObj(pointer, swig_type_slots[element.inner], 0);
}

PyObject *load_ports(const void *place) {
    bcm_pbmp_t ports;
    std::memcpy(&ports, place, sizeof ports);
    return make_ints(pbmpToPyList(ports));
}

bool store_ports(void *place, PyObject *value) {
    const ombra::PyRef list(make_ints(PySequence_List(value)));
    bcm_pbmp_t ports;
    if (list == nullptr) return false;
    pyListToPbmp(list.get(), &ports);
    return PyErr_Occurred() == nullptr && std::memcpy(place, &ports, sizeof ports) != nullptr;
}

bool store_mac(void *place, PyObject *value) {
    uint8 bytes[6];
    pyStringToMacaddr(value, bytes);
    return PyErr_Occurred() == nullptr && std::memcpy(place, bytes, sizeof bytes) != nullptr;
}

bool store_structure(const Element &element, void *place, PyObject *value) {
    void *source = nullptr;
    const int status =
        SWIG_Python_ConvertPtrAndOwn(value, &source, swig_type_slots[element.slot], 0);
    if (status < 0 || source == nullptr) return refuse(element, STATUS_TYPE);
    std::memmove(place, source, element.size);
    return true;
}

// An alias of the structure, which keeps the owner of the memory when it is a proxy.
PyObject *load_structure(const Element &element, void *place, PyObject *owner) {
    PyObject *alias = SWIG_Python_NewPointerObj(place, swig_type_slots[element.slot], 0);
    PyObject **dictionary = alias != nullptr ? _PyObject_GetDictPtr(alias) : nullptr;
    if (owner != nullptr && dictionary != nullptr && *dictionary != nullptr &&
        PyDict_SetItemString(*dictionary, "_owner", owner) != 0) {
        Py_CLEAR(alias);
    }
    return alias;
}

// Where the element of a type stands in a table that needs no memory of its own: with twice as many
// places as there are types, a free one ends each search.
const Element *&shortest_for(const swig_type_info *type) {
    constexpr std::size_t places = 2048;

    static const Element *table[places];
    std::size_t index = reinterpret_cast<std::uintptr_t>(type) / sizeof(swig_type_info) % places;
    while (table[index] != nullptr && swig_type_slots[table[index]->slot] != type)
        index = (index + 1) % places;
    return table[index];
}

}  // namespace

PyObject *make_ints(PyObject *list) {
    for (Py_ssize_t i = 0; list != nullptr && i < PyList_GET_SIZE(list); ++i) {
        PyObject *port = PyList_GET_ITEM(list, i);
        if (PyInt_Check(port)) continue;
        const ombra::PyRef index(PyNumber_Index(port));
        PyObject *number = index != nullptr ? PyNumber_Int(index.get()) : nullptr;
        if (number == nullptr || PyList_SetItem(list, i, number) != 0) Py_CLEAR(list);
    }
    return list;
}

const Element *find_element(const char *name) {
    const Element *end = elements + element_count;
    const Element *found =
        std::lower_bound(elements, end, name, [](const Element &element, const char *wanted) {
            return std::strcmp(element.name, wanted) < 0;
        });
    if (found == end || std::strcmp(found->name, name) != 0) {
        PyErr_Format(PyExc_ValueError, "no native type is called '%s'", name);
        return nullptr;
    }
    return found;
}

const Element *element_behind(const swig_type_info *type) {
    static bool filled = false;
    if (!filled) {
        for (const Element *element = elements; element != elements + element_count; ++element) {
            const Element *&best = shortest_for(swig_type_slots[element->slot]);
            if (best == nullptr || std::strlen(element->name) < std::strlen(best->name))
                best = element;
        }
        filled = true;
    }
    return shortest_for(type);
}

const Element *element_behind(unsigned slot) { return element_behind(swig_type_slots[slot]); }

PyObject *load(const Element &element, void *place, PyObject *owner) {
    switch (element.form) {
        case Form::number:
            return load_number(element, place);
        case Form::mac:
            return PyString_FromString(macaddrToString(static_cast<const uint8 *>(place)));
        case Form::port_list:
            return load_ports(place);
        case Form::array:
            return new_view(*element_behind(element.inner), place, element.count, owner);
        case Form::structure:
            return load_structure(element, place, owner);
        default:
            return load_pointer(element, place);
    }
}

bool store(const Element &element, void *place, PyObject *value) {
    switch (element.form) {
        case Form::number:
            return store_number(element, place, value);
        case Form::text:
            return store_text(element, place, value);
        case Form::structure:
            return store_structure(element, place, value);
        case Form::array:
            return store_items(*element_behind(element.inner), place, element.count, value);
        case Form::mac:
            return store_mac(place, value);
        case Form::port_list:
            return store_ports(place, value);
        default:
            return store_pointer(element, place, value);
    }
}

}  // namespace companion
