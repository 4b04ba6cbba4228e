// The record of calls, and states of a unit, as Python objects.
#include <algorithm>

#include "standin/base/call_record.h"
#include "standin/bench/bench.h"
#include "standin/model/state.h"

namespace bench {
namespace {

constexpr const char *kCapsule = "OmbraSdkV2Bench.state";

PyObject *value_object(const std::variant<std::int64_t, std::string> &value) {
    if (const auto *const number = std::get_if<std::int64_t>(&value)) return number_object(*number);
    return text_object(std::get<std::string>(value));
}

// A number as it came, a text, a MAC address; an address is known as None or True.
PyObject *argument_object(const standin::RecordedCall::Argument &argument) {
    using Form = standin::Given::Form;
    if (argument.form == Form::kOther) return PyString_FromString("?");
    if (argument.form != Form::kAddress) return value_object(argument.value);
    PyObject *const known = std::get<std::int64_t>(argument.value) == 0 ? Py_None : Py_True;
    return ombra::new_ref(known).release();
}

// (function, [(name, value), ...], result, layer)
PyObject *call_object(const standin::RecordedCall &call) {
    std::string_view names = call.row->parameters;
    PyRef arguments(list_of(call.arguments, [&](const auto &argument) -> PyObject * {
        const std::size_t end = std::min(names.find(' '), names.size());
        const std::string_view name = names.substr(0, end);
        names.remove_prefix(std::min(end + 1, names.size()));
        const PyRef value(argument_object(argument));
        return value == nullptr ? nullptr
                                : Py_BuildValue("(s#O)", name.data(), static_cast<int>(name.size()),
                                                value.get());
    }));
    if (arguments == nullptr) return nullptr;
    return Py_BuildValue("(sNLs)", call.row->name, arguments.release(),
                         static_cast<long long>(call.result), call.layer);
}

void record(int on) { standin::record_calls(on != 0); }

// ([call, ...], how many had no room)
PyObject *recorded(PyObject *arguments) {
    if (!PyArg_ParseTuple(arguments, ":recorded")) return nullptr;
    std::size_t left_out = 0;
    PyRef calls(list_of(standin::recorded_calls(left_out), call_object));
    if (calls == nullptr) return nullptr;
    return Py_BuildValue("(Nn)", calls.release(), static_cast<Py_ssize_t>(left_out));
}

PyObject *state_object(standin::SavedState state) {
    auto *const kept = new standin::SavedState(std::move(state));
    PyObject *const capsule = PyCapsule_New(kept, kCapsule, [](PyObject *object) {
        delete static_cast<standin::SavedState *>(PyCapsule_GetPointer(object, kCapsule));
    });
    if (capsule == nullptr) delete kept;
    return capsule;
}

// Null with an exception set.
const standin::SavedState *as_state(PyObject *object) {
    return static_cast<standin::SavedState *>(PyCapsule_GetPointer(object, kCapsule));
}

// The state of a unit, or the status that a call on it would have.
PyObject *save(PyObject *arguments) {
    int unit = 0;
    if (!PyArg_ParseTuple(arguments, "i:save", &unit)) return nullptr;
    int status = 0;
    standin::SavedState state = standin::save_state(unit, status);
    return state == nullptr ? number_object(status) : state_object(std::move(state));
}

PyObject *first(PyObject *arguments) {
    if (!PyArg_ParseTuple(arguments, ":first")) return nullptr;
    return state_object(standin::first_state());
}

PyObject *load(PyObject *arguments) {
    int unit = 0;
    PyObject *object = nullptr;
    if (!PyArg_ParseTuple(arguments, "iO:load", &unit, &object)) return nullptr;
    const standin::SavedState *const state = as_state(object);
    return state == nullptr ? nullptr : number_object(standin::load_state(unit, *state));
}

// [(kind, key, [(field, value), ...]), ...]
PyObject *objects(PyObject *arguments) {
    PyObject *object = nullptr;
    if (!PyArg_ParseTuple(arguments, "O:objects", &object)) return nullptr;
    const standin::SavedState *const state = as_state(object);
    if (state == nullptr) return nullptr;
    return list_of(standin::objects_of(*state), [](const standin::StateObject &one) -> PyObject * {
        PyRef fields(list_of(one.fields, [](const standin::StateField &field) {
            return Py_BuildValue("(sN)", field.name.c_str(), value_object(field.value));
        }));
        if (fields == nullptr) return nullptr;
        return Py_BuildValue("(ssN)", one.kind.c_str(), one.key.c_str(), fields.release());
    });
}

// [(kind, key, was there, is there, [(field, was, is), ...]), ...]
PyObject *compare(PyObject *arguments) {
    PyObject *before = nullptr;
    PyObject *after = nullptr;
    if (!PyArg_ParseTuple(arguments, "OO:compare", &before, &after)) return nullptr;
    const standin::SavedState *const was = as_state(before);
    const standin::SavedState *const is = was == nullptr ? nullptr : as_state(after);
    if (is == nullptr) return nullptr;
    return list_of(standin::compare_states(*was, *is), [](const auto &one) -> PyObject * {
        PyRef fields(list_of(one.fields, [](const auto &field) {
            return Py_BuildValue("(sNN)", field.name.c_str(), value_object(field.was),
                                 value_object(field.is));
        }));
        if (fields == nullptr) return nullptr;
        return Py_BuildValue("(ssNNN)", one.kind.c_str(), one.key.c_str(),
                             PyBool_FromLong(one.was_there ? 1 : 0),
                             PyBool_FromLong(one.is_there ? 1 : 0), fields.release());
    });
}

}  // namespace

PyMethodDef shown_rows[] = {
    {"record", row<record>, METH_VARARGS, "record(on): starts a record of calls, or ends it."},
    {"recorded", guarded<recorded>, METH_VARARGS,
     "([(function, [(argument, value)], result, layer)], how many had no room)"},
    {"save", guarded<save>, METH_VARARGS, "save(unit): its state, or a negative status."},
    {"first", guarded<first>, METH_VARARGS, "The state of a unit that was just started."},
    {"load", guarded<load>, METH_VARARGS, "load(unit, state): a status."},
    {"digest", row<standin::state_digest>, METH_VARARGS,
     "digest(unit): a number for the whole state of a unit; 0 for one that does not run."},
    {"objects", guarded<objects>, METH_VARARGS, "objects(state): [(kind, key, fields)]"},
    {"compare", guarded<compare>, METH_VARARGS,
     "compare(before, after): [(kind, key, was there, is there, fields)]"},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace bench
