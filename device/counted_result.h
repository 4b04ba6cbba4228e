// Results that are counted pointers of the toolkit.
#pragma once

#include <memory>
#include <utility>

#include "convert/results.h"
#include "toolkit/ptr.h"

namespace ombra {

// A pointer object that owns a new holder, one Lumo::Ptr<T> on the heap. `type` is that of
// `<T>::Ptr *`. A null pointer has a holder too, so None never comes back. The holder adds one
// reference, and `result` is dropped at the end.
//
// No type has a destructor for a holder: when the pointer object dies, it says so on standard
// output, and the holder's reference stays.
//
// Returns null, with the interpreter's exception and nothing kept, when there is no memory for the
// pointer object. Throws std::bad_alloc when there is none for the holder.
template <class T>
PyObject *counted_result(Lumo::Ptr<T> result, swig_type_info *type) {
    auto holder = std::make_unique<Lumo::Ptr<T>>(result);
    PyObject *bare = noted_pointer(holder.get(), type);
    if (bare == nullptr) return nullptr;
    static_cast<void>(holder.release());  // from here on it dies with the pointer object
    return in_proxy(bare, type);
}

}  // namespace ombra
