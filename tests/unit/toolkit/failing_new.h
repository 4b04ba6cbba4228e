// Makes operator new fail on demand, in the whole program and its libraries.
#pragma once

// How many allocations still succeed; the next one throws std::bad_alloc. -1: all succeed.
extern long allocations_left;
