// A preloaded allocator whose n-th call fails: from below, all of the process (malloc and its like,
// operator new included), or above, what modules ask of the interpreter. The interpreter's own
// program calls its functions directly, so that those below are met by modules alone.
//
// The loader is spared: the C library ends the process when it has no memory for a thread's storage
// or for a library.
#include <Python.h>
#include <dlfcn.h>
#include <execinfo.h>
#include <link.h>
#include <sys/mman.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);

// The layer that fails, or 0. Written by the test itself, which takes no memory.
std::atomic<int> soak_layer{0};
}

namespace {

enum Layer : int { process = 1, module = 2 };

std::atomic<long> left{0};  // calls before the one that fails
std::atomic<bool> failed{false};
std::atomic<bool> all_later{false};

// Whether a failure met the module's code; told to the parent of a process that dies.
std::atomic<bool> &module_asked() {
    static void *const shared = mmap(nullptr, sizeof(std::atomic<bool>), PROT_READ | PROT_WRITE,
                                     MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return *static_cast<std::atomic<bool> *>(shared);
}

struct Range {
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
};
Range loader;

int find_loader(dl_phdr_info *info, std::size_t, void *) {
    if (info->dlpi_name == nullptr || std::strstr(info->dlpi_name, "ld-linux") == nullptr) return 0;
    loader.begin = info->dlpi_addr;
    for (int i = 0; i < info->dlpi_phnum; ++i) {
        const std::uintptr_t end =
            info->dlpi_addr + info->dlpi_phdr[i].p_vaddr + info->dlpi_phdr[i].p_memsz;
        if (end > loader.end) loader.end = end;
    }
    return 1;
}

// Whether code of the module, its companion or the libraries behind them is on the stack.
bool is_module_asking() {
    void *frames[64];
    const int count = backtrace(frames, static_cast<int>(std::size(frames)));
    for (int i = 0; i < count; ++i) {
        Dl_info info{};
        if (dladdr(frames[i], &info) == 0 || info.dli_fname == nullptr) continue;
        const std::string_view path = info.dli_fname;
        const std::string_view name = path.substr(path.rfind('/') + 1);
        for (const char *own : {"_OmbraSdkV2", "libOmbraSdkV2", "liblumo.", "libTesselApi"})
            if (name.starts_with(own)) return true;
    }
    return false;
}

bool fails(Layer asking) {
    if (soak_layer.load(std::memory_order_relaxed) != asking) return false;
    const long before = left.fetch_sub(1);
    if (before > 0 || (before < 0 && !all_later)) return false;
    failed = true;
    if (!module_asked() && is_module_asking()) module_asked() = true;
    return true;
}

bool fails_below(const void *caller) {
    if (soak_layer.load(std::memory_order_relaxed) != process) return false;
    const auto address = reinterpret_cast<std::uintptr_t>(caller);
    return (address < loader.begin || address >= loader.end) && fails(process);
}

template <typename Function>
Function next_of(const char *name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

// The n-th call from now on, counted from 1, fails, and with `later` all behind it.
void soak_fail(int which, long n, int later) {
    if (loader.end == 0) dl_iterate_phdr(find_loader, nullptr);
    void *warm_up = nullptr;
    backtrace(&warm_up, 1);  // the first one loads a library
    failed = module_asked() = false;
    all_later = later != 0;
    left = n - 1;
    soak_layer = which;
}

// Whether a call failed.
int soak_failed() { return failed ? 1 : 0; }

// Whether one of the calls that failed was made under the module's code, in this process or in a
// child that failed some.
int soak_module_asked() { return module_asked() ? 1 : 0; }

void *malloc(std::size_t size) {
    if (!fails_below(__builtin_return_address(0))) return __libc_malloc(size);
    errno = ENOMEM;
    return nullptr;
}

void *calloc(std::size_t count, std::size_t size) {
    if (!fails_below(__builtin_return_address(0))) return __libc_calloc(count, size);
    errno = ENOMEM;
    return nullptr;
}

void *realloc(void *block, std::size_t size) {
    if (!fails_below(__builtin_return_address(0))) return __libc_realloc(block, size);
    errno = ENOMEM;
    return nullptr;
}

// As the interpreter spells some of its names by macros.
#define TEXT(name) #name
#define SYMBOL(name) TEXT(name)

// The interpreter's functions: each answers with `failure` and MemoryError.
#define SOAK_WRAP(result, name, failure, parameters, arguments)               \
    result name parameters {                                                  \
        static const auto real = next_of<result(*) parameters>(SYMBOL(name)); \
        if (!fails(module)) return real arguments;                            \
        PyErr_NoMemory();                                                     \
        return failure;                                                       \
    }

#define FALLIBLE SOAK_WRAP
#include "tests/fallible_functions.inc"

// What the echo module does not call.
SOAK_WRAP(PyObject *, PyTuple_New, nullptr, (Py_ssize_t size), (size))
SOAK_WRAP(int, PyDict_SetItemString, -1, (PyObject * dictionary, const char *key, PyObject *item),
          (dictionary, key, item))
SOAK_WRAP(PyObject *, PyObject_GetAttrString, nullptr, (PyObject * object, const char *name),
          (object, name))
SOAK_WRAP(PyObject *, PyCapsule_New, nullptr,
          (void *pointer, const char *name, PyCapsule_Destructor destroy), (pointer, name, destroy))
SOAK_WRAP(PyObject *, PySequence_Tuple, nullptr, (PyObject * sequence), (sequence))
SOAK_WRAP(PyObject *, PySequence_List, nullptr, (PyObject * sequence), (sequence))
SOAK_WRAP(int, PyType_Ready, -1, (PyTypeObject * type), (type))
SOAK_WRAP(PyObject *, PyImport_ImportModule, nullptr, (const char *name), (name))
SOAK_WRAP(PyObject *, PyImport_AddModule, nullptr, (const char *name), (name))
SOAK_WRAP(PyObject *, Py_InitModule4, nullptr,
          (const char *name, PyMethodDef *methods, const char *doc, PyObject *self, int version),
          (name, methods, doc, self, version))
SOAK_WRAP(int, PyModule_AddObject, -1, (PyObject * owner, const char *name, PyObject *value),
          (owner, name, value))
SOAK_WRAP(PyObject *, PyCFunction_NewEx, nullptr,
          (PyMethodDef * method, PyObject *self, PyObject *owner), (method, self, owner))
SOAK_WRAP(PyObject *, PyDict_Copy, nullptr, (PyObject * dictionary), (dictionary))
SOAK_WRAP(PyObject *, PyInt_FromSsize_t, nullptr, (Py_ssize_t value), (value))
SOAK_WRAP(PyObject *, PyList_AsTuple, nullptr, (PyObject * list), (list))
SOAK_WRAP(PyObject *, PyString_Format, nullptr, (PyObject * format, PyObject *values),
          (format, values))
SOAK_WRAP(PyObject *, PyObject_Repr, nullptr, (PyObject * object), (object))
SOAK_WRAP(PyObject *, PySequence_Fast, nullptr, (PyObject * sequence, const char *refusal),
          (sequence, refusal))
SOAK_WRAP(PyObject *, PyType_GenericAlloc, nullptr, (PyTypeObject * type, Py_ssize_t count),
          (type, count))
SOAK_WRAP(PyObject *, _PyObject_New, nullptr, (PyTypeObject * type), (type))

PyObject *PyString_FromFormat(const char *format, ...) {
    if (fails(module)) return PyErr_NoMemory();
    va_list values;
    va_start(values, format);
    PyObject *const text = PyString_FromFormatV(format, values);
    va_end(values);
    return text;
}

// These set no exception.
#define SOAK_WRAP_PLAIN(name)                                            \
    void *name(std::size_t size) {                                       \
        static const auto real = next_of<void *(*)(std::size_t)>(#name); \
        return fails(module) ? nullptr : real(size);                     \
    }
SOAK_WRAP_PLAIN(PyObject_Malloc)
SOAK_WRAP_PLAIN(PyMem_Malloc)

}  // extern "C"
