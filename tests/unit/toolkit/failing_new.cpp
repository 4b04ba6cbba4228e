// In a file of its own, so that the compiler does not inline one half of a pair.
#include "failing_new.h"

#include <cstdlib>
#include <new>

long allocations_left = -1;
std::atomic<long> live_allocations = 0;

void *operator new(std::size_t size) {
    if (allocations_left == 0) throw std::bad_alloc();
    if (allocations_left > 0) --allocations_left;
    void *memory = std::malloc(size);
    if (!memory) throw std::bad_alloc();
    ++live_allocations;
    return memory;
}

void operator delete(void *memory) noexcept {
    live_allocations -= memory != nullptr;
    std::free(memory);
}
void operator delete(void *memory, std::size_t) noexcept { operator delete(memory); }
