// Making, indexing, slicing and freeing an Array.
#include "python/companion/array.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "runtime/native_notes.h"
#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"
#include "runtime/ready_type.h"

namespace companion {

namespace {

struct Array {
    PyObject head;
    const Element *element;
    unsigned char *data;
    Py_ssize_t length;
    PyObject *owner;  // of a view; null: `data` is this object's own
    bool is_view;
    PyObject *pointer;  // `this`
    PyObject *kept;     // dictionary: index of a pointer -> the object that it was made from
    PyObject *weak_references;
};

Array *as_array(PyObject *object) { return reinterpret_cast<Array *>(object); }

unsigned char *item_place(const Array *self, Py_ssize_t index) {
    return self->data + static_cast<std::size_t>(index) * self->element->size;
}

PyObject *new_array(const Element &element, unsigned char *data, std::size_t count) {
    PyTypeObject *type = array_type();
    PyObject *object = type != nullptr ? type->tp_alloc(type, 0) : nullptr;
    if (object == nullptr) return nullptr;
    Array *self = as_array(object);
    self->element = &element;
    self->data = data;
    self->length = static_cast<Py_ssize_t>(count);
    self->is_view = true;  // until the memory is handed over
    self->pointer = SWIG_Python_NewPointerObj(data, swig_type_slots[element.slot], FLAG_NOPROXY);
    if (self->pointer == nullptr) Py_CLEAR(object);
    return object;
}

PyObject *new_zeroes(const Element &element, std::size_t count) {
    if (count > PY_SSIZE_T_MAX / element.size) return PyErr_NoMemory();
    // An empty array has an address as well.
    void *data = std::calloc(count == 0 ? 1 : count, element.size);
    PyObject *object = data != nullptr
                           ? new_array(element, static_cast<unsigned char *>(data), count)
                           : PyErr_NoMemory();
    if (object != nullptr && !ombra::note_array(data, count * element.size)) {
        Py_CLEAR(object);
        PyErr_NoMemory();
    }
    if (object == nullptr)
        std::free(data);
    else
        as_array(object)->is_view = false;
    return object;
}

// The values as a tuple: a list could change while one of them is looked at. Bytes of a str stand
// for numbers where the elements are bytes.
PyObject *as_items(const Element &element, PyObject *values) {
    if (PyString_Check(values) && element.form == Form::number && element.size == 1) {
        const ombra::PyRef bytes(PyByteArray_FromObject(values));
        return bytes != nullptr ? PySequence_Tuple(bytes.get()) : nullptr;
    }
    const ombra::PyRef items(PySequence_Fast(values, "an array takes a sequence"));
    return items != nullptr ? PySequence_Tuple(items.get()) : nullptr;
}

int store_item(Array *self, Py_ssize_t index, PyObject *value);

// Array(type, count or values).
PyObject *array_new(PyTypeObject *, PyObject *args, PyObject *keywords) {
    const char *name = nullptr;
    PyObject *content = nullptr;
    if (keywords != nullptr && PyDict_Size(keywords) != 0)
        return PyErr_Format(PyExc_TypeError, "Array takes no keywords");
    if (!PyArg_ParseTuple(args, "sO:Array", &name, &content)) return nullptr;
    const Element *element = find_element(name);
    if (element == nullptr) return nullptr;
    if (!PyInt_Check(content) && !PyLong_Check(content)) return new_filled(*element, content);
    const Py_ssize_t count = PyNumber_AsSsize_t(content, PyExc_OverflowError);
    if (count >= 0) return new_zeroes(*element, static_cast<std::size_t>(count));
    return PyErr_Occurred() != nullptr
               ? nullptr
               : PyErr_Format(PyExc_ValueError, "the element count is negative");
}

void array_dealloc(PyObject *object) {
    Array *self = as_array(object);
    if (self->weak_references != nullptr) PyObject_ClearWeakRefs(object);
    unsigned char *own_memory = self->is_view ? nullptr : self->data;
    if (self->pointer != nullptr) forget_view(object);  // whoever holds `this` finds a null pointer
    if (own_memory != nullptr) ombra::forget_array(own_memory);
    std::free(own_memory);
    Py_CLEAR(self->pointer);
    Py_CLEAR(self->kept);
    Py_CLEAR(self->owner);
    Py_TYPE(object)->tp_free(object);
}

Py_ssize_t array_length(PyObject *object) { return as_array(object)->length; }

bool in_bounds(const Array *self, Py_ssize_t index) {
    if (index < 0 || index >= self->length) {
        PyErr_SetString(PyExc_IndexError, "the index is outside the array");
        return false;
    }
    return true;
}

PyObject *array_item(PyObject *object, Py_ssize_t index) {
    const Array *self = as_array(object);
    return in_bounds(self, index) ? load(*self->element, item_place(self, index), object) : nullptr;
}

int store_item(Array *self, Py_ssize_t index, PyObject *value) {
    if (!store(*self->element, item_place(self, index), value)) return -1;
    if (!needs_keeping(*self->element)) return 0;
    if (self->kept == nullptr) self->kept = PyDict_New();
    const ombra::PyRef key(PyInt_FromSsize_t(index));
    return self->kept != nullptr && key != nullptr ? PyDict_SetItem(self->kept, key.get(), value)
                                                   : -1;
}

int array_set_item(PyObject *object, Py_ssize_t index, PyObject *value) {
    Array *self = as_array(object);
    if (value == nullptr) {
        PyErr_SetString(PyExc_TypeError, "elements cannot be deleted");
        return -1;
    }
    return in_bounds(self, index) ? store_item(self, index, value) : -1;
}

bool has_length(PyObject *items, Py_ssize_t length) {
    if (PySequence_Fast_GET_SIZE(items) != length) {
        PyErr_Format(PyExc_ValueError, "the array takes %zd elements, not %zd", length,
                     PySequence_Fast_GET_SIZE(items));
        return false;
    }
    return true;
}

// The items of a slice, or one item.
PyObject *array_subscript(PyObject *object, PyObject *key) {
    const Array *self = as_array(object);
    Py_ssize_t start = 0;
    Py_ssize_t stop = 0;
    Py_ssize_t step = 0;
    Py_ssize_t count = 0;
    if (!PySlice_Check(key)) {
        Py_ssize_t index = PyNumber_AsSsize_t(key, PyExc_IndexError);
        if (index == -1 && PyErr_Occurred() != nullptr) return nullptr;
        return array_item(object, index < 0 ? index + self->length : index);
    }
    if (PySlice_GetIndicesEx(reinterpret_cast<PySliceObject *>(key), self->length, &start, &stop,
                             &step, &count) != 0) {
        return nullptr;
    }
    ombra::PyRef list(PyList_New(count));
    for (Py_ssize_t i = 0; list != nullptr && i < count; ++i) {
        PyObject *item = array_item(object, start + i * step);
        if (item == nullptr) return nullptr;
        PyList_SET_ITEM(list.get(), i, item);
    }
    return list.release();
}

int array_set_subscript(PyObject *object, PyObject *key, PyObject *value) {
    Array *self = as_array(object);
    Py_ssize_t start = 0;
    Py_ssize_t stop = 0;
    Py_ssize_t step = 0;
    Py_ssize_t count = 0;
    if (!PySlice_Check(key)) {
        const Py_ssize_t index = PyNumber_AsSsize_t(key, PyExc_IndexError);
        if (index == -1 && PyErr_Occurred() != nullptr) return -1;
        return array_set_item(object, index < 0 ? index + self->length : index, value);
    }
    if (value == nullptr || PySlice_GetIndicesEx(reinterpret_cast<PySliceObject *>(key),
                                                 self->length, &start, &stop, &step, &count) != 0) {
        if (value == nullptr) PyErr_SetString(PyExc_TypeError, "elements cannot be deleted");
        return -1;
    }
    const ombra::PyRef items(as_items(*self->element, value));
    if (items == nullptr || !has_length(items.get(), count)) return -1;
    for (Py_ssize_t i = 0; i < count; ++i)
        if (store_item(self, start + i * step, PySequence_Fast_GET_ITEM(items.get(), i)) != 0)
            return -1;
    return 0;
}

PyObject *array_repr(PyObject *object) {
    constexpr Py_ssize_t most = 64;
    const Array *self = as_array(object);
    const ombra::PyRef items(PySequence_GetSlice(object, 0, most));
    const ombra::PyRef text(items != nullptr ? PyObject_Repr(items.get()) : nullptr);
    if (text == nullptr) return nullptr;
    return self->length <= most
               ? PyString_FromFormat("Array('%s', %s)", self->element->name,
                                     PyString_AS_STRING(text.get()))
               : PyString_FromFormat("<Array of %zd '%s': %s ...>", self->length,
                                     self->element->name, PyString_AS_STRING(text.get()));
}

// Equal to a sequence of equal items. No order.
PyObject *array_compare(PyObject *object, PyObject *other, int operation) {
    if ((operation != Py_EQ && operation != Py_NE) || !PySequence_Check(other))
        return ombra::new_ref(Py_NotImplemented).release();
    const ombra::PyRef left(PySequence_List(object));
    const ombra::PyRef right(PySequence_List(other));
    return left != nullptr && right != nullptr
               ? PyObject_RichCompare(left.get(), right.get(), operation)
               : nullptr;
}

PyObject *get_this(PyObject *object, void *) {
    return ombra::new_ref(as_array(object)->pointer).release();
}

PyObject *get_first(PyObject *object, void *) { return array_item(object, 0); }

int set_first(PyObject *object, PyObject *value, void *) {
    return array_set_item(object, 0, value);
}

PyObject *get_type(PyObject *object, void *) {
    return PyString_FromString(as_array(object)->element->name);
}

PyObject *get_bytes(PyObject *object, PyObject *) {
    const Array *self = as_array(object);
    return PyString_FromStringAndSize(reinterpret_cast<const char *>(self->data),
                                      self->length * static_cast<Py_ssize_t>(self->element->size));
}

PyObject *get_text(PyObject *object, PyObject *) {
    const Array *self = as_array(object);
    const auto *begin = reinterpret_cast<const char *>(self->data);
    const std::size_t room = static_cast<std::size_t>(self->length) * self->element->size;
    const std::size_t length = begin != nullptr ? strnlen(begin, room) : 0;
    return PyString_FromStringAndSize(begin, static_cast<Py_ssize_t>(length));
}

// An Array of its own memory with the same elements. Pointers are copied as pointers.
PyObject *copy_array(PyObject *object, PyObject *) {
    const Array *self = as_array(object);
    ombra::PyRef twin(new_zeroes(*self->element, static_cast<std::size_t>(self->length)));
    if (twin == nullptr) return nullptr;
    Array *made = as_array(twin.get());
    if (self->length != 0)
        std::memcpy(made->data, self->data,
                    static_cast<std::size_t>(self->length) * self->element->size);
    if (self->kept != nullptr && (made->kept = PyDict_Copy(self->kept)) == nullptr) return nullptr;
    return twin.release();
}

PyObject *first_as_int(PyObject *object) {
    if (as_array(object)->length != 1)
        return PyErr_Format(PyExc_TypeError, "only an Array of one element is a number");
    const ombra::PyRef item(array_item(object, 0));
    return item != nullptr ? PyNumber_Int(item.get()) : nullptr;
}

PyGetSetDef attributes[] = {
    {const_cast<char *>("this"), get_this, nullptr, const_cast<char *>("the pointer object"),
     nullptr},
    {const_cast<char *>("value"), get_first, set_first, const_cast<char *>("the first element"),
     nullptr},
    {const_cast<char *>("type"), get_type, nullptr,
     const_cast<char *>("the declared name of the element's type"), nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyMethodDef methods[] = {
    {"copy", copy_array, METH_NOARGS, "copy() -> Array: one of its own memory, pointers shared"},
    {"__copy__", copy_array, METH_NOARGS, nullptr},
    {"__deepcopy__", copy_array, METH_O, nullptr},
    {"bytes", get_bytes, METH_NOARGS, "bytes() -> str: the memory as it is"},
    {"text", get_text, METH_NOARGS, "text() -> str: the memory up to the first zero byte"},
    {nullptr, nullptr, 0, nullptr},
};

PyNumberMethods number = {};
PySequenceMethods sequence = {};
PyMappingMethods mapping = {};
PyTypeObject type_object = {};

const char kDoc[] =
    "Array(type, count) or Array(type, values): native elements that Python reads and writes in\n"
    "place, with len, index, slices and iteration. Passes wherever the SDK takes a `type *`:\n\n"
    "    Array('int', 16)    Array('bcm_mac_t', ['00:11:22:33:44:55'])    Array('uint8', 'bytes')";

void fill_type(PyTypeObject &type) {
    number.nb_int = first_as_int;
    sequence.sq_length = array_length;
    sequence.sq_item = array_item;
    sequence.sq_ass_item = array_set_item;
    mapping.mp_length = array_length;
    mapping.mp_subscript = array_subscript;
    mapping.mp_ass_subscript = array_set_subscript;
    type.tp_name = "_OmbraSdkV2Companion.Array";
    type.tp_basicsize = sizeof(Array);
    type.tp_dealloc = array_dealloc;
    type.tp_repr = array_repr;
    type.tp_as_number = &number;
    type.tp_as_sequence = &sequence;
    type.tp_as_mapping = &mapping;
    type.tp_hash = PyObject_HashNotImplemented;
    type.tp_doc = kDoc;
    type.tp_richcompare = array_compare;
    type.tp_weaklistoffset = offsetof(Array, weak_references);
    type.tp_methods = methods;
    type.tp_getset = attributes;
    type.tp_new = array_new;
}

}  // namespace

PyTypeObject *array_type() { return ombra::ready_type(type_object, fill_type); }

PyObject *new_filled(const Element &element, PyObject *values) {
    const ombra::PyRef items(as_items(element, values));
    if (items == nullptr) return nullptr;
    const Py_ssize_t count = PySequence_Fast_GET_SIZE(items.get());
    ombra::PyRef object(new_zeroes(element, static_cast<std::size_t>(count)));
    for (Py_ssize_t i = 0; object != nullptr && i < count; ++i)
        if (store_item(as_array(object.get()), i, PySequence_Fast_GET_ITEM(items.get(), i)) != 0)
            return nullptr;
    return object.release();
}

PyObject *new_view(const Element &element, void *place, std::size_t count, PyObject *owner) {
    PyObject *object = new_array(element, static_cast<unsigned char *>(place), count);
    if (object != nullptr) {
        Py_XINCREF(owner);
        as_array(object)->owner = owner;
    }
    return object;
}

void forget_view(PyObject *array) {
    Array *self = as_array(array);
    ombra::as_pointer_object(self->pointer)->ptr = nullptr;
    self->data = nullptr;
    self->length = 0;
}

bool store_items(const Element &element, void *place, std::size_t count, PyObject *values) {
    const ombra::PyRef items(as_items(element, values));
    if (items == nullptr || !has_length(items.get(), static_cast<Py_ssize_t>(count))) return false;
    auto *item = static_cast<unsigned char *>(place);
    for (std::size_t i = 0; i < count; ++i, item += element.size) {
        if (!store(element, item,
                   PySequence_Fast_GET_ITEM(items.get(), static_cast<Py_ssize_t>(i)))) {
            return false;
        }
    }
    return true;
}

}  // namespace companion
