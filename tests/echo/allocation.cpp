// Allocations that fail on demand, and the count of native blocks.
//
// The linker directs this module's calls of the functions below to their __wrap_ forms (--wrap in
// CMakeLists.txt); __real_ is the function itself. So nothing changes for the interpreter, the
// libraries and the sanitizers. The list in CMakeLists.txt and this file name the same functions.

#include <Python.h>

#include <new>

#include "control.h"

namespace {

long allowed = -1;  // that still succeed before one fails; -1: all
bool failed = false;
long blocks = 0;

bool fails() {
    if (allowed != 0) {
        allowed -= allowed > 0 ? 1 : 0;
        return false;
    }
    allowed = -1;
    failed = true;
    return true;
}

void *counted(void *block) {
    blocks += block != nullptr ? 1 : 0;
    return block;
}

void discount(const void *block) { blocks -= block != nullptr ? 1 : 0; }

template <typename Result>
Result no_memory(Result failure) {
    PyErr_NoMemory();
    return failure;
}

}  // namespace

namespace echo {

void fail_allocation(long n) {
    allowed = n - 1;
    failed = false;
}

bool allocation_failed() {
    allowed = -1;
    return failed;
}

long live_blocks() { return blocks; }

}  // namespace echo

// operator new and delete, by their names in the object files.
extern "C" {

void *__real__Znwm(std::size_t size);
void *__real__Znam(std::size_t size);
void *__real__ZnwmRKSt9nothrow_t(std::size_t size, const std::nothrow_t &tag);
void *__real__ZnamRKSt9nothrow_t(std::size_t size, const std::nothrow_t &tag);
void __real__ZdlPv(void *block);
void __real__ZdaPv(void *block);
void __real__ZdlPvm(void *block, std::size_t size);
void __real__ZdaPvm(void *block, std::size_t size);

void *__wrap__Znwm(std::size_t size) {
    if (fails()) throw std::bad_alloc();
    return counted(__real__Znwm(size));
}

void *__wrap__Znam(std::size_t size) {
    if (fails()) throw std::bad_alloc();
    return counted(__real__Znam(size));
}

void *__wrap__ZnwmRKSt9nothrow_t(std::size_t size, const std::nothrow_t &tag) {
    return fails() ? nullptr : counted(__real__ZnwmRKSt9nothrow_t(size, tag));
}

void *__wrap__ZnamRKSt9nothrow_t(std::size_t size, const std::nothrow_t &tag) {
    return fails() ? nullptr : counted(__real__ZnamRKSt9nothrow_t(size, tag));
}

void __wrap__ZdlPv(void *block) {
    discount(block);
    __real__ZdlPv(block);
}

void __wrap__ZdaPv(void *block) {
    discount(block);
    __real__ZdaPv(block);
}

void __wrap__ZdlPvm(void *block, std::size_t size) {
    discount(block);
    __real__ZdlPvm(block, size);
}

void __wrap__ZdaPvm(void *block, std::size_t size) {
    discount(block);
    __real__ZdaPvm(block, size);
}

}  // extern "C"

// Functions of the interpreter that answer with `failure` and MemoryError when they fail.
#define ECHO_WRAP(result, name, failure, parameters, arguments)                \
    extern "C" result __real_##name parameters;                                \
    extern "C" result __wrap_##name parameters {                               \
        return fails() ? no_memory<result>(failure) : __real_##name arguments; \
    }

#define FALLIBLE ECHO_WRAP
#include "tests/fallible_functions.inc"

// These set no exception themselves.
#define ECHO_WRAP_BLOCK(name)                           \
    extern "C" void *__real_##name(std::size_t size);   \
    extern "C" void *__wrap_##name(std::size_t size) {  \
        return fails() ? nullptr : __real_##name(size); \
    }

#undef malloc
ECHO_WRAP_BLOCK(malloc)
#ifdef PYMALLOC_DEBUG
ECHO_WRAP_BLOCK(_PyObject_DebugMalloc)
#else
ECHO_WRAP_BLOCK(PyObject_Malloc)
#endif
