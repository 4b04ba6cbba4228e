// Fields of structures as descriptors over the module's rows.

#include <cstdlib>
#include <cstring>
#include <string>

#include "python/companion/array.h"
#include "python/companion/instance.h"
#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"
#include "runtime/ready_type.h"

namespace companion {

namespace {

enum class Shape : std::uint8_t { unknown, plain, nested, ports, array, pointer };

struct Field {
    PyObject head;
    PyObject *owner;  // name of the class
    PyObject *name;   // of the field
    PyObject *table;  // text that says its declared type, at `place`
    PyObject *get;    // rows of the module, once they are looked up
    PyObject *set;
    const Element *item;  // of an array
    std::uint32_t place;
    std::uint32_t length;
    std::uint32_t count;  // items of an array
    Shape shape;
};

// The dictionary of the main module, whose rows the fields call.
PyObject *rows = nullptr;

Field *as_field(PyObject *object) { return reinterpret_cast<Field *>(object); }

std::string declared(const Field &self) {
    return {PyString_AS_STRING(self.table) + self.place, self.length};
}

PyObject *find_row(const Field &self, const char *verb) {
    const ombra::PyRef name(PyString_FromFormat("%s_%s_%s", PyString_AS_STRING(self.owner),
                                                PyString_AS_STRING(self.name), verb));
    PyObject *const row = name != nullptr ? PyDict_GetItem(rows, name.get()) : nullptr;
    if (row != nullptr && PyCFunction_Check(row)) return ombra::new_ref(row).release();
    if (name != nullptr)
        PyErr_Format(PyExc_AttributeError, "the module has no row %s",
                     PyString_AS_STRING(name.get()));
    return nullptr;
}

// "uint16 [2][4]" has 2 items "uint16 [4]", "uint8 [16]" has 16 "uint8".
bool find_item(Field &self, const std::string &type) {
    const std::size_t bound = type.find(" [");
    const std::size_t end = type.find(']', bound);
    self.count = static_cast<std::uint32_t>(std::atoi(type.c_str() + bound + 2));
    std::string item = type.substr(0, bound);
    if (end + 1 < type.size()) item += " " + type.substr(end + 1);
    self.item = find_element(item.c_str());
    return self.item != nullptr;
}

// What the field needs to know, when it is first used. False with an exception.
bool resolve(Field &self) {
    if (self.get == nullptr) self.get = find_row(self, "get");
    if (self.get != nullptr && self.set == nullptr) self.set = find_row(self, "set");
    if (self.set == nullptr) return false;
    const std::string type = declared(self);
    Shape shape = Shape::plain;
    if (type.back() == ']') {
        if (!find_item(self, type)) return false;
        shape = Shape::array;
    } else if (type.back() == '*') {
        shape = Shape::pointer;
    } else if (type == "bcm_pbmp_t") {
        shape = Shape::ports;
    } else if (PyDict_GetItemString(rows, ("new_" + type).c_str()) != nullptr) {
        shape = Shape::nested;
    }
    self.shape = shape;
    return true;
}

// What the row gets for an instance: its pointer object, which the call then keeps; the instance
// itself where there is none, so that the row says so.
PyObject *pointer_of(PyObject *object) {
    PyObject **const dictionary = _PyObject_GetDictPtr(object);
    PyObject *const name = SWIG_This();
    PyObject *const found = dictionary != nullptr && *dictionary != nullptr && name != nullptr
                                ? PyDict_GetItem(*dictionary, name)
                                : nullptr;
    return found != nullptr ? found : object;
}

PyObject *call_row(PyObject *row, PyObject *object, PyObject *value) {
    const ombra::PyRef args(PyTuple_New(value != nullptr ? 2 : 1));
    if (args == nullptr) return nullptr;
    PyObject *const pointer = pointer_of(object);
    Py_INCREF(pointer);
    PyTuple_SET_ITEM(args.get(), 0, pointer);
    if (value != nullptr) {
        Py_INCREF(value);
        PyTuple_SET_ITEM(args.get(), 1, value);
    }
    return PyCFunction_GET_FUNCTION(row)(PyCFunction_GET_SELF(row), args.get());
}

// Makes an alias keep what it lies in.
PyObject *keep_owner(PyObject *alias, PyObject *owner) {
    PyObject **const dictionary = alias != nullptr ? _PyObject_GetDictPtr(alias) : nullptr;
    if (dictionary != nullptr && *dictionary != nullptr &&
        PyDict_SetItemString(*dictionary, "_owner", owner) != 0) {
        Py_CLEAR(alias);
    }
    return alias;
}

PyObject *view_of(const Field &self, PyObject *object, PyObject *pointer) {
    const ombra::PyRef held(pointer);
    void *place = nullptr;
    if (held == nullptr) return nullptr;
    if (SWIG_Python_ConvertPtrAndOwn(pointer, &place, nullptr, 0) < 0 || place == nullptr)
        return PyErr_Format(PyExc_ValueError, "a view of a null pointer");
    return new_view(*self.item, place, self.count, object);
}

PyObject *field_get(PyObject *descriptor, PyObject *object, PyObject *) {
    Field &self = *as_field(descriptor);
    if (object == nullptr) return ombra::new_ref(descriptor).release();
    if (self.shape == Shape::unknown && !resolve(self)) return nullptr;
    PyObject *const value = call_row(self.get, object, nullptr);
    switch (self.shape) {
        case Shape::nested:
            return keep_owner(value, object);
        case Shape::ports:
            return make_ints(value);
        case Shape::array:
            return view_of(self, object, value);
        default:
            return value;
    }
}

// The value as the row takes it: new reference, or null with an exception.
PyObject *for_row(const Field &self, PyObject *value) {
    if (self.shape == Shape::ports) return make_ints(PySequence_List(value));
    if (self.shape != Shape::array) return ombra::new_ref(value).release();
    ombra::PyRef array(Py_TYPE(value) == array_type() ? ombra::new_ref(value).release()
                                                      : new_filled(*self.item, value));
    if (array == nullptr) return nullptr;
    const Py_ssize_t length = PySequence_Size(array.get());
    if (length == static_cast<Py_ssize_t>(self.count)) return array.release();
    return PyErr_Format(PyExc_ValueError, "the field takes %u elements, not %zd", self.count,
                        length);
}

// The structure takes over a structure that is stored in it. An array goes on owning its memory, so
// it is kept.
bool keep_value(const Field &self, PyObject *object, PyObject *value) {
    PyObject **const dictionary = _PyObject_GetDictPtr(object);
    const ombra::PyRef name(PyString_FromFormat("_kept_%s", PyString_AS_STRING(self.name)));
    return name != nullptr && (dictionary == nullptr || *dictionary == nullptr ||
                               PyDict_SetItem(*dictionary, name.get(), value) == 0);
}

int field_set(PyObject *descriptor, PyObject *object, PyObject *value) {
    Field &self = *as_field(descriptor);
    if (value == nullptr) {
        PyErr_SetString(PyExc_AttributeError, "fields cannot be deleted");
        return -1;
    }
    if (self.shape == Shape::unknown && !resolve(self)) return -1;
    if (self.shape == Shape::plain || self.shape == Shape::nested) {
        PyObject *const none = call_row(self.set, object, value);
        Py_XDECREF(none);
        return none != nullptr ? 0 : -1;
    }
    const ombra::PyRef given(for_row(self, value));
    const ombra::PyRef none(given != nullptr ? call_row(self.set, object, given.get()) : nullptr);
    if (none == nullptr) return -1;
    return self.shape != Shape::pointer || keep_value(self, object, value) ? 0 : -1;
}

void field_dealloc(PyObject *object) {
    Field &self = *as_field(object);
    Py_CLEAR(self.owner);
    Py_CLEAR(self.name);
    Py_CLEAR(self.table);
    Py_CLEAR(self.get);
    Py_CLEAR(self.set);
    PyObject_FREE(object);
}

PyObject *get_doc(PyObject *object, void *) {
    const Field &self = *as_field(object);
    return PyString_FromStringAndSize(PyString_AS_STRING(self.table) + self.place, self.length);
}

PyObject *get_name(PyObject *object, void *) {
    return ombra::new_ref(as_field(object)->name).release();
}

PyGetSetDef attributes[] = {
    {const_cast<char *>("__doc__"), get_doc, nullptr, nullptr, nullptr},
    {const_cast<char *>("__name__"), get_name, nullptr, nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyTypeObject type_object = {};

void fill_type(PyTypeObject &type) {
    type.tp_name = "_OmbraSdkV2Companion.Field";
    type.tp_basicsize = sizeof(Field);
    type.tp_dealloc = field_dealloc;
    type.tp_getattro = PyObject_GenericGetAttr;
    type.tp_getset = attributes;
    type.tp_descr_get = field_get;
    type.tp_descr_set = field_set;
}

// One field of a line "name: type"; null with an exception.
PyObject *new_field(PyObject *owner, PyObject *table, const char *line, const char *end) {
    const char *const colon =
        static_cast<const char *>(std::memchr(line, ':', static_cast<std::size_t>(end - line)));
    if (colon == nullptr || end - colon < 3)
        return PyErr_Format(PyExc_ValueError, "a line of the table is no 'name: type'");
    // Not interned: the interpreter's table of such names would double for them, 1.5 MB.
    ombra::PyRef name(PyString_FromStringAndSize(line, colon - line));
    if (name == nullptr) return nullptr;
    Field *const self = PyObject_New(Field, &type_object);
    if (self == nullptr) return nullptr;
    self->owner = ombra::new_ref(owner).release();
    self->name = name.release();
    self->table = ombra::new_ref(table).release();
    self->get = nullptr;
    self->set = nullptr;
    self->item = nullptr;
    self->place = static_cast<std::uint32_t>(colon + 2 - PyString_AS_STRING(table));
    self->length = static_cast<std::uint32_t>(end - colon - 2);
    self->count = 0;
    self->shape = Shape::unknown;
    return &self->head;
}

}  // namespace

PyTypeObject *field_type() { return ombra::ready_type(type_object, fill_type); }

PyObject *add_fields(PyObject *, PyObject *args) {
    PyObject *members = nullptr;
    PyObject *owner = nullptr;
    PyObject *table = nullptr;
    PyObject *all_rows = nullptr;
    if (!PyArg_ParseTuple(args, "O!SSO!:add_fields", &PyDict_Type, &members, &owner, &table,
                          &PyDict_Type, &all_rows) ||
        field_type() == nullptr) {
        return nullptr;
    }
    if (rows == nullptr) rows = ombra::new_ref(all_rows).release();
    const ombra::PyRef names(PyList_New(0));
    const char *line = PyString_AS_STRING(table);
    while (names != nullptr && *line != '\0') {
        const char *const end = std::strchr(line, '\n');
        const ombra::PyRef field(
            end != nullptr ? new_field(owner, table, line, end)
                           : PyErr_Format(PyExc_ValueError, "the table ends within a line"));
        if (field == nullptr) return nullptr;
        PyObject *const name = as_field(field.get())->name;
        if (PyDict_SetItem(members, name, field.get()) != 0 ||
            PyList_Append(names.get(), name) != 0) {
            return nullptr;
        }
        line = end + 1;
    }
    return names != nullptr ? PyList_AsTuple(names.get()) : nullptr;
}

}  // namespace companion
