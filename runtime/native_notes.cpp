// Notes in one open-addressed table, and the ring of the modules that show theirs to each other.
#include "runtime/native_notes.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "runtime/module_list.h"
#include "runtime/py_ref.h"

namespace ombra {
namespace {

// Open addressing, linear probing, at most half full. A place without an address is free.
NativeNote *places = nullptr;
std::size_t place_count = 0;  // a power of two, or 0
std::size_t used = 0;
unsigned shift = 64;  // leaves the bits that index a place

std::size_t home_of(const void *address) {
    constexpr std::uint64_t golden = 0x9E3779B97F4A7C15;
    return reinterpret_cast<std::uint64_t>(address) * golden >> shift;
}

std::size_t after(std::size_t index) { return (index + 1) & (place_count - 1); }

// The place of the address, or the free one where it belongs. REQUIRES: there are places.
NativeNote &place_for(const void *address) {
    std::size_t index = home_of(address);
    while (places[index].address != nullptr && places[index].address != address)
        index = after(index);
    return places[index];
}

NativeNote *find(const void *address) {
    if (used == 0 || address == nullptr) return nullptr;
    NativeNote &place = place_for(address);
    return place.address != nullptr ? &place : nullptr;
}

[[gnu::cold, gnu::noinline]] bool grow() {
    const std::size_t wanted = place_count == 0 ? 64 : 2 * place_count;
    auto *const larger = static_cast<NativeNote *>(std::calloc(wanted, sizeof(NativeNote)));
    if (larger == nullptr) return false;
    NativeNote *const before = places;
    const std::size_t count = place_count;
    places = larger;
    place_count = wanted;
    shift = static_cast<unsigned>(__builtin_clzll(wanted) + 1);
    for (std::size_t index = 0; index < count; ++index)
        if (before[index].address != nullptr) place_for(before[index].address) = before[index];
    std::free(before);
    return true;
}

bool note(const NativeNote &made) {
    if (2 * used >= place_count && !grow()) [[unlikely]]
        return false;
    NativeNote &place = place_for(made.address);
    used += place.address == nullptr ? 1 : 0;
    place = made;
    return true;
}

// Frees a place, and moves up those behind that were pushed past it.
void forget(NativeNote &gone) {
    auto hole = static_cast<std::size_t>(&gone - places);
    for (std::size_t next = after(hole); places[next].address != nullptr; next = after(next)) {
        const std::size_t home = home_of(places[next].address);
        if (((next - home) & (place_count - 1)) >= ((next - hole) & (place_count - 1))) {
            places[hole] = places[next];
            hole = next;
        }
    }
    places[hole] = {};
    --used;
}

bool is_owned(const void *address, const swig_type_info *type) {
    const NativeNote *found = find(address);
    return found != nullptr && found->type == type && type != nullptr;
}

const std::size_t *own_array_size(const void *address) {
    const NativeNote *const found = find(address);
    return found != nullptr && found->type == nullptr ? &found->size : nullptr;
}

// What a module of the system shows to the others. They form a ring; the capsule of the list of
// types leads to it by its context, which nobody else uses.
struct Peer {
    char magic[16];
    Peer *next;
    bool (*is_owned)(const void *address, const swig_type_info *type);
    bool (*forget_owned)(const void *address, const swig_type_info *type);
    const std::size_t *(*array_size)(const void *address);
};

Peer self = {"ombra notes 2", &self, is_owned, forget_owned, own_array_size};

template <typename Question>
bool any_peer(Question question) {
    const Peer *peer = self.next;
    for (; peer != &self; peer = peer->next)
        if (question(*peer)) return true;
    return false;
}

// Whether the list of types has tables that no peer stands for.
bool is_foreign_module_there() {
    const swig_module_table *const head = SWIG_Python_GetModule();
    if (head == nullptr) return false;
    std::size_t tables = 1;
    std::size_t peers = 1;
    for (const swig_module_table *table = head->next; table != head; table = table->next) ++tables;
    any_peer([&](const Peer &) { return ++peers == 0; });
    return tables > peers;
}

}  // namespace

bool note_owned(const void *address, const swig_type_info *type) {
    return note({address, type, 0});
}

bool note_array(const void *array, std::size_t size) { return note({array, nullptr, size}); }

bool forget_owned(const void *address, const swig_type_info *type) {
    NativeNote *const found = find(address);
    if (found == nullptr || found->type != type || type == nullptr) return false;
    forget(*found);
    return true;
}

bool forget_array(const void *array) {
    NativeNote *const found = find(array);
    if (found == nullptr || found->type != nullptr) return false;
    forget(*found);
    return true;
}

const std::size_t *array_size(const void *address) {
    const std::size_t *size = own_array_size(address);
    if (size == nullptr)
        any_peer([&](const Peer &peer) { return (size = peer.array_size(address)) != nullptr; });
    return size;
}

bool forget_owned_elsewhere(const void *address, const swig_type_info *type) {
    return any_peer([&](const Peer &peer) { return peer.forget_owned(address, type); });
}

bool is_owned_anywhere(const void *address, const swig_type_info *type) {
    return is_owned(address, type) ||
           any_peer([&](const Peer &peer) { return peer.is_owned(address, type); });
}

bool may_free_unnoted(const void *address) {
    const char *refusal = nullptr;
    if (array_size(address) != nullptr)
        refusal = "a live array is deleted by its own row";
    else if (!is_foreign_module_there())
        refusal = "the pointer is no live object of this type that Python made";
    if (refusal != nullptr) PyErr_SetString(PyExc_ValueError, refusal);
    return refusal == nullptr;
}

bool share_notes() {
    static bool shared = false;
    if (shared) return true;
    const PyRef capsule(SWIG_Python_GetModuleCapsule());
    if (capsule == nullptr) {
        if (PyErr_ExceptionMatches(PyExc_MemoryError)) return false;
        PyErr_Clear();  // a second interpreter does not see the list
        return true;
    }
    auto *const first = static_cast<Peer *>(PyCapsule_GetContext(capsule.get()));
    if (first == nullptr) {
        PyCapsule_SetContext(capsule.get(), &self);
    } else if (std::memcmp(first->magic, self.magic, sizeof self.magic) == 0) {
        self.next = first->next;
        first->next = &self;
    }
    return shared = true;
}

void visit_notes(void (*visit)(const NativeNote &note)) {
    for (std::size_t index = 0; index < place_count; ++index)
        if (places[index].address != nullptr) visit(places[index]);
}

}  // namespace ombra
