// The Python type of `cvar`: its list of variables, their lookup and its text.
#include "runtime/variable_link.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "runtime/py_ref.h"
#include "runtime/ready_type.h"

using ombra::PyRef;

namespace {

PyTypeObject swig_varlink_type_object;

swig_varlink_object *as_link(PyObject *object) {
    return reinterpret_cast<swig_varlink_object *>(object);
}

const swig_varlink_entry *find_entry(PyObject *object, const char *name) {
    const swig_varlink_entry *entry = as_link(object)->vars;
    while (entry != nullptr && std::strcmp(entry->name, name) != 0) entry = entry->next;
    return entry;
}

// For a name that is not there, or whose accessor failed without an exception of its own.
void raise_unknown(const char *name) {
    if (PyErr_Occurred() == nullptr)
        PyErr_Format(PyExc_AttributeError, "Unknown C global variable '%s'", name);
}

PyObject *swig_varlink_getattr(PyObject *object, char *name) {
    const swig_varlink_entry *entry = find_entry(object, name);
    PyObject *value = entry != nullptr ? entry->get_attr() : nullptr;
    if (value == nullptr) raise_unknown(name);
    return value;
}

// A null value stands for a deletion. Only setters that read no value get to see it.
int swig_varlink_setattr(PyObject *object, char *name, PyObject *value) {
    const swig_varlink_entry *entry = find_entry(object, name);
    if (entry != nullptr && value == nullptr && !entry->read_only) {
        PyErr_Format(PyExc_TypeError, "can't delete variable '%s' of cvar", name);
        return 1;
    }
    const int result = entry != nullptr ? entry->set_attr(value) : 1;
    if (result == 1) raise_unknown(name);
    return result;
}

PyObject *swig_varlink_repr(PyObject *) { return PyString_FromString("<Swig global variables>"); }

PyObject *swig_varlink_str(PyObject *object) {
    PyObject *text = PyString_FromString("(");
    const swig_varlink_entry *entry = as_link(object)->vars;
    for (; entry != nullptr && text != nullptr; entry = entry->next) {
        const char *separator = entry->next != nullptr ? ", " : "";
        PyString_ConcatAndDel(&text, PyString_FromFormat("%s%s", entry->name, separator));
    }
    if (text != nullptr) PyString_ConcatAndDel(&text, PyString_FromString(")"));
    return text;
}

int swig_varlink_print(PyObject *object, FILE *file, int) {
    const PyRef text(swig_varlink_str(object));
    if (text == nullptr) return -1;
    std::fprintf(file, "Swig global variables %s\n", PyString_AS_STRING(text.get()));
    return 0;
}

// What dir() and completion show. As an attribute it is no name of a variable.
PyObject *swig_varlink_dir(PyObject *object, PyObject *) {
    PyRef names(PyList_New(0));
    const swig_varlink_entry *entry = as_link(object)->vars;
    for (; entry != nullptr && names != nullptr; entry = entry->next) {
        const PyRef name(PyString_FromString(entry->name));
        if (name == nullptr || PyList_Append(names.get(), name.get()) != 0) return nullptr;
    }
    return names.release();
}

PyMethodDef methods[] = {
    {"__dir__", swig_varlink_dir, METH_NOARGS, "the names of the variables"},
    {nullptr, nullptr, 0, nullptr},
};

void swig_varlink_dealloc(PyObject *object) {
    SWIG_Python_droplinks(object, nullptr);
    PyObject_FREE(object);
}

void fill_type(PyTypeObject &type) {
    type.tp_name = "swigvarlink";
    type.tp_basicsize = sizeof(swig_varlink_object);
    type.tp_dealloc = swig_varlink_dealloc;
    type.tp_print = swig_varlink_print;
    type.tp_getattr = swig_varlink_getattr;
    type.tp_setattr = swig_varlink_setattr;
    type.tp_repr = swig_varlink_repr;
    type.tp_str = swig_varlink_str;
    type.tp_flags = 0;
    type.tp_doc = "Swig var link object";
    type.tp_methods = methods;
}

PyTypeObject *swig_varlink_type() { return ombra::ready_type(swig_varlink_type_object, fill_type); }

}  // namespace

PyObject *SWIG_Python_newvarlink() {
    PyTypeObject *const type = swig_varlink_type();
    if (type == nullptr) return nullptr;
    auto *self = static_cast<swig_varlink_object *>(PyObject_MALLOC(sizeof(swig_varlink_object)));
    if (self == nullptr) return PyErr_NoMemory();
    PyObject_INIT(&self->head, type);
    self->vars = nullptr;
    return &self->head;
}

bool SWIG_Python_addvarlink(PyObject *object, const char *name, swig_variable_getter get_attr,
                            swig_variable_setter set_attr, bool read_only) {
    auto *entry = static_cast<swig_varlink_entry *>(std::malloc(sizeof(swig_varlink_entry)));
    char *copy = strdup(name);
    if (entry == nullptr || copy == nullptr) {
        std::free(entry);
        std::free(copy);
        PyErr_NoMemory();
        return false;
    }
    *entry = {copy, get_attr, set_attr, as_link(object)->vars, read_only};
    as_link(object)->vars = entry;
    return true;
}

void SWIG_Python_droplinks(PyObject *object, const swig_varlink_entry *kept) {
    swig_varlink_entry *entry = as_link(object)->vars;
    while (entry != kept) {
        swig_varlink_entry *next = entry->next;
        std::free(entry->name);
        std::free(entry);
        entry = next;
    }
    as_link(object)->vars = entry;
}

PyObject *SWIG_Python_cvar() {
    static PyObject *cvar = nullptr;
    if (cvar == nullptr) cvar = SWIG_Python_newvarlink();
    return cvar;
}
