// Finding the callable of a native call, running it, and cookies and bindings.
#include "python/companion/callbacks.h"

#include <pythread.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <unordered_map>
#include <utility>

#include "convert/mac_text.h"
#include "convert/readers.h"
#include "convert/results.h"
#include "generated/type_slots.h"
#include "python/companion/array.h"
#include "runtime/exit_count.h"
#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"

namespace companion {

namespace {

// Both tables are used under the interpreter lock alone. They are never destroyed: a native thread
// may call late.
//
// A cookie is no address but a number that is used once, far from all memory: one that was
// released, or is no cookie at all, finds nothing and touches nothing.
struct Callable {
    ombra::PyRef object;
    const PyInterpreterState *home;  // whose it is
};

using Cookies = std::unordered_map<std::uint64_t, Callable>;
using Bindings = std::unordered_map<const Callback *, Callable>;

// In place, so that nothing can fail.
template <typename Table>
Table &lasting() {
    alignas(Table) static unsigned char storage[sizeof(Table)];
    static auto *const table = new (storage) Table;
    return *table;
}

Cookies &cookies() { return lasting<Cookies>(); }

Bindings &bindings() { return lasting<Bindings>(); }

// Of callback_errors(); null: sys.excepthook.
Callable &error_hook() { return lasting<Callable>(); }

std::uint64_t next_cookie() {
    static std::uint64_t last = 0x4F4D000000000000;  // above every address of a process
    return ++last;
}

PyObject *find_cookie(const void *pointer) {
    const auto found = cookies().find(reinterpret_cast<std::uint64_t>(pointer));
    return found != cookies().end() ? found->second.object.get() : nullptr;
}

// The callable of a call: new reference, or null. `cookie` receives the argument that named it.
ombra::PyRef find_callable(const Callback &callback, const Argument *arguments, std::size_t count,
                           const Argument *&cookie) {
    for (const Argument *one = arguments; one != arguments + count; ++one) {
        PyObject *callable =
            one->form == Argument::Form::address ? find_cookie(one->pointer) : nullptr;
        if (callable != nullptr) {
            cookie = one;
            return ombra::new_ref(callable);
        }
    }
    const auto bound = bindings().find(&callback);
    return bound != bindings().end() ? ombra::new_ref(bound->second.object.get()) : nullptr;
}

PyObject *pointer_object(const Argument &argument) {
    void *pointer = const_cast<void *>(argument.pointer);
    const Element *element = element_behind(argument.slot);
    if (pointer == nullptr || element == nullptr || element->form == Form::structure ||
        element->form == Form::array) {
        return SWIG_Python_NewPointerObj(pointer, swig_type_slots[argument.slot], 0);
    }
    return new_view(*element, pointer, 1, nullptr);  // a number that the callable may write
}

PyObject *to_python(const Argument &argument) {
    switch (argument.form) {
        case Argument::Form::number:
            return PyInt_FromLong(static_cast<long>(argument.bits));
        case Argument::Form::text:
            return ombra::text_result(static_cast<const char *>(argument.pointer));
        case Argument::Form::mac:
            return PyString_FromString(
                macaddrToString(static_cast<const uint8 *>(argument.pointer)));
        case Argument::Form::address:
            return SWIG_Python_NewPointerObj(const_cast<void *>(argument.pointer),
                                             swig_type_slots[argument.slot], FLAG_NOPROXY);
        default:
            return pointer_object(argument);
    }
}

ombra::PyRef make_tuple(const Argument *arguments, std::size_t count, const Argument *cookie) {
    ombra::PyRef tuple(PyTuple_New(static_cast<Py_ssize_t>(count - (cookie != nullptr ? 1 : 0))));
    Py_ssize_t index = 0;
    for (const Argument *one = arguments; tuple != nullptr && one != arguments + count; ++one) {
        if (one == cookie) continue;
        PyObject *object = to_python(*one);
        if (object == nullptr) return nullptr;
        PyTuple_SET_ITEM(tuple.get(), index++, object);
    }
    return tuple;
}

// Takes the native memory away from objects that may outlive it.
void empty_objects(PyObject *tuple) {
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(tuple); ++i) {
        PyObject *object = PyTuple_GET_ITEM(tuple, i);
        if (Py_TYPE(object) == array_type()) {
            forget_view(object);
        } else if (!PyInt_Check(object) && !PyString_Check(object) && object != Py_None) {
            if (SwigPyObject *pointer = SWIG_Python_GetSwigThis(object)) pointer->ptr = nullptr;
        }
    }
}

// The native answer for what a callable returned; false with an exception.
bool read_answer(const Callback &callback, PyObject *result, int &answer) {
    if (result == Py_None) {
        answer = callback.answers.success;
        return true;
    }
    long number = 0;
    if (SWIG_AsVal_long(result, &number) < 0 || number != static_cast<int>(number)) {
        PyErr_Format(PyExc_TypeError, "%s returns None or a number of 32 bits", callback.name);
        return false;
    }
    answer = static_cast<int>(number);
    return true;
}


// Hands the exception of a callable to the hook, traceback and all. One of the hook itself is
// written out: there is nobody left to tell.
void report_error(PyObject *callable) {
    PyObject *type = nullptr;
    PyObject *value = nullptr;
    PyObject *traceback = nullptr;
    PyErr_Fetch(&type, &value, &traceback);
    PyErr_NormalizeException(&type, &value, &traceback);
    const ombra::PyRef parts[] = {ombra::PyRef(type), ombra::PyRef(value), ombra::PyRef(traceback)};
    PyObject *const set = error_hook().object != nullptr
                              ? error_hook().object.get()
                              : PySys_GetObject(const_cast<char *>("excepthook"));
    if (set == nullptr) return;
    const ombra::PyRef hook = ombra::new_ref(set);
    const ombra::PyRef result(
        PyObject_CallFunctionObjArgs(hook.get(), type, value != nullptr ? value : Py_None,
                                     traceback != nullptr ? traceback : Py_None, nullptr));
    if (result == nullptr) PyErr_WriteUnraisable(callable);
}

int call_python(const Callback &callback, const Argument *arguments, std::size_t count) {
    const Argument *cookie = nullptr;
    const ombra::PyRef callable = find_callable(callback, arguments, count, cookie);
    if (callable == nullptr) return callback.answers.failure;
    int answer = callback.answers.failure;
    const ombra::PyRef tuple = make_tuple(arguments, count, cookie);
    const ombra::PyRef result(tuple != nullptr ? PyObject_Call(callable.get(), tuple.get(), nullptr)
                                               : nullptr);
    if (result == nullptr || !read_answer(callback, result.get(), answer))
        report_error(callable.get());
    if (tuple != nullptr && !callback.keeps_arguments) empty_objects(tuple.get());
    return answer;
}

// Returns the one before, which may run code of its own as it dies.
ombra::PyRef set_error_hook(ombra::PyRef hook) {
    Callable set{std::move(hook), PyThreadState_GET()->interp};
    std::swap(set, error_hook());
    return std::move(set.object);
}

// Lets go of an interpreter's callables. Code of theirs may run as they die: the table is in order
// by then.
template <typename Table>
void drop_callables(Table &table, const PyInterpreterState *home) {
    const auto is_of_home = [&](const auto &entry) { return entry.second.home == home; };
    for (auto found = table.begin(); found != table.end();) {
        found = std::find_if(found, table.end(), is_of_home);
        if (found == table.end()) return;
        const auto node = table.extract(found);
        found = table.begin();
    }
}

// The end of a second interpreter: its `sys` lets go of this capsule.
void end_of_interpreter(PyObject *) {
    const PyInterpreterState *const home = PyThreadState_GET()->interp;
    drop_callables(cookies(), home);
    drop_callables(bindings(), home);
    if (error_hook().home == home) set_error_hook(nullptr);
}

// False with MemoryError.
bool hear_of_the_end() {
    static const char kKey[] = "_OmbraSdkV2Companion.end";
    PyObject *const names = PyThreadState_GET()->interp->sysdict;
    if (is_first_interpreter() || PyDict_GetItemString(names, kKey) != nullptr) return true;
    const ombra::PyRef capsule(PyCapsule_New(&bindings(), kKey, end_of_interpreter));
    return capsule != nullptr && PyDict_SetItemString(names, kKey, capsule.get()) == 0;
}

// Enters a callable into a table. False with MemoryError.
template <typename Table, typename Key>
bool enter(Table &table, Key key, PyObject *callable) {
    if (!hear_of_the_end()) return false;
    try {
        table.emplace(key, Callable{ombra::new_ref(callable), PyThreadState_GET()->interp});
        return true;
    } catch (const std::bad_alloc &) {
        PyErr_NoMemory();
        return false;
    }
}

// A callback by the built-in that stands for it, the class of its values, or its name.
const Callback *callback_of_object(PyObject *object) {
    const ombra::PyRef name(PyString_Check(object) ? ombra::new_ref(object).release()
                                                   : PyObject_GetAttrString(object, "__name__"));
    const Callback *callback = name != nullptr && PyString_Check(name.get())
                                   ? find_callback(PyString_AS_STRING(name.get()))
                                   : nullptr;
    if (callback == nullptr) PyErr_SetString(PyExc_ValueError, "no native callback has this name");
    return callback;
}

// Whether this thread holds the interpreter lock, under whichever thread state: that of a second
// interpreter is not the one that PyGILState_Ensure knows, and would be waited for for ever.
// Another thread's state, which can go at any time, is only looked at by a thread that runs Python
// and has let go of the lock.
bool holds_interpreter_lock() {
    if (PyGILState_GetThisThreadState() == nullptr) return false;
    const PyThreadState *const current = _PyThreadState_Current;
    return current != nullptr && current->thread_id == PyThread_get_thread_ident();
}

bool check_callable(PyObject *object) {
    if (!PyCallable_Check(object)) {
        PyErr_SetString(PyExc_TypeError, "a callable is wanted");
        return false;
    }
    return true;
}

}  // namespace

bool is_first_interpreter() {
    PyInterpreterState *first = PyInterpreterState_Head();  // new ones are put in front
    while (PyInterpreterState *next = PyInterpreterState_Next(first)) first = next;
    return PyThreadState_GET()->interp == first;
}

void tell_live_callbacks() {
    ombra::tell_live("_OmbraSdkV2Companion", cookies().size(), "cookie");
    for (const auto &bound : bindings())
        ombra::tell_live("_OmbraSdkV2Companion", 1, bound.first->name);
}

int run_callback(const Callback &callback, const Argument *arguments, std::size_t count) {
    if (Py_IsInitialized() == 0) return callback.answers.failure;
    if (holds_interpreter_lock()) return call_python(callback, arguments, count);
    const PyGILState_STATE state = PyGILState_Ensure();
    const int answer = call_python(callback, arguments, count);
    PyGILState_Release(state);
    return answer;
}

const Callback *find_callback(const char *name) {
    for (const Callback *one = callbacks; one != callbacks + callback_count; ++one)
        if (std::strcmp(one->name, name) == 0) return one;
    return nullptr;
}

PyObject *refuse_call(PyObject *, PyObject *) {
    PyErr_SetString(PyExc_TypeError, "a native callback is passed to the SDK, not called");
    return nullptr;
}

PyObject *new_cookie(PyObject *, PyObject *callable) {
    if (!check_callable(callable)) return nullptr;
    const std::uint64_t number = next_cookie();
    PyObject *object = SWIG_Python_NewPointerObj(reinterpret_cast<void *>(number),
                                                 swig_type_slots[slots::_p_void], FLAG_NOPROXY);
    if (object != nullptr && !enter(cookies(), number, callable)) Py_CLEAR(object);
    return object;
}

PyObject *release_cookie(PyObject *, PyObject *cookie) {
    void *pointer = nullptr;
    if (SWIG_Python_ConvertPtrAndOwn(cookie, &pointer, swig_type_slots[slots::_p_void], 0) < 0) {
        PyErr_SetString(PyExc_TypeError, "a cookie is wanted");
        return nullptr;
    }
    // The callable may run code of its own when it dies: the table is in order by then.
    auto node = cookies().extract(reinterpret_cast<std::uint64_t>(pointer));
    return PyBool_FromLong(!node.empty());
}

PyObject *callback_errors(PyObject *, PyObject *hook) {
    if (hook != Py_None && (!check_callable(hook) || !hear_of_the_end())) return nullptr;
    ombra::PyRef before = set_error_hook(hook != Py_None ? ombra::new_ref(hook) : nullptr);
    return before != nullptr ? before.release() : ombra::new_ref(Py_None).release();
}

PyObject *bind(PyObject *, PyObject *args) {
    PyObject *name = nullptr;
    PyObject *callable = nullptr;
    if (!PyArg_ParseTuple(args, "OO:bind", &name, &callable)) return nullptr;
    const Callback *callback = callback_of_object(name);
    if (callback == nullptr || (callable != Py_None && !check_callable(callable))) return nullptr;
    auto node = bindings().extract(callback);
    if (callable != Py_None && !enter(bindings(), callback, callable)) {
        if (!node.empty()) bindings().insert(std::move(node));
        return nullptr;
    }
    return node.empty() ? ombra::new_ref(Py_None).release() : node.mapped().object.release();
}

}  // namespace companion
