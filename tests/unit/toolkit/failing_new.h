// Makes operator new fail on demand, and counts, in the whole program and its libraries.
#pragma once
#include <atomic>

// How many allocations still succeed; the next one throws std::bad_alloc. -1: all succeed.
extern long allocations_left;

// How many were not released yet.
extern std::atomic<long> live_allocations;
