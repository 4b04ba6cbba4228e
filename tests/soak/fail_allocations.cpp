// A preloaded allocator whose n-th call fails: from below, all of the process (malloc and its like,
// operator new included), or above, what modules ask of the interpreter. The interpreter's own
// program calls its functions directly, so that those below are met by modules alone.
//
// The loader is spared: the C library ends the process when it has no memory for a thread's storage
// or for a library.
#include <Python.h>
#include <dlfcn.h>
#include <link.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
}

namespace {

enum Layer : int { none, process, module };

std::atomic<int> layer{none};
std::atomic<long> left{0};  // calls before the one that fails
std::atomic<bool> failed{false};
std::atomic<bool> all_later{false};

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

bool fails(Layer asking) {
    if (layer.load(std::memory_order_relaxed) != asking) return false;
    const long before = left.fetch_sub(1);
    if (before > 0 || (before < 0 && !all_later)) return false;
    failed = true;
    return true;
}

bool fails_below(const void *caller) {
    if (layer.load(std::memory_order_relaxed) != process) return false;
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
    failed = false;
    all_later = later != 0;
    left = n - 1;
    layer = which;
}

// Ends that; whether a call failed.
int soak_stop() {
    layer = none;
    return failed ? 1 : 0;
}

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

// The interpreter's functions: each answers with `failure` and MemoryError.
#define SOAK_WRAP(result, name, failure, parameters, arguments)        \
    result name parameters {                                           \
        static const auto real = next_of<result(*) parameters>(#name); \
        if (!fails(module)) return real arguments;                     \
        PyErr_NoMemory();                                              \
        return failure;                                                \
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

// This one sets no exception.
void *PyObject_Malloc(std::size_t size) {
    static const auto real = next_of<void *(*)(std::size_t)>("PyObject_Malloc");
    return fails(module) ? nullptr : real(size);
}

}  // extern "C"
