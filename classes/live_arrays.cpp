// The table of counted arrays, by address.
#include "classes/live_arrays.h"

#include <new>
#include <unordered_map>

namespace ombra {
namespace {

using Lengths = std::unordered_map<const void *, std::size_t>;

// Never destroyed: rows can run until the interpreter is gone. Made in place: no row may throw
// here.
Lengths &lengths() {
    alignas(Lengths) static unsigned char storage[sizeof(Lengths)];
    static auto *const table = new (storage) Lengths;
    return *table;
}

}  // namespace

bool note_array(const void *array, std::size_t count) {
    try {
        lengths()[array] = count;
        return true;
    } catch (const std::bad_alloc &) {
        return false;
    }
}

bool forget_array(const void *array) { return lengths().erase(array) != 0; }

bool is_live_array(const void *address) {
    return !lengths().empty() && lengths().contains(address);
}

const std::size_t *array_length(const void *address) {
    const auto found = lengths().find(address);
    return found == lengths().end() ? nullptr : &found->second;
}

}  // namespace ombra
