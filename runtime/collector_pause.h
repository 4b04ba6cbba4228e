// Cyclic collection, off for a while.
#pragma once

#include "runtime/py_ref.h"

namespace ombra {

// While it lives, the interpreter looks for no cycles: thousands of objects are about to be made of
// which none can be garbage, and each few hundred would start a search. What a search would have
// cost is not put off for good, the next allocation after the pause starts one.
//
// `filled` is a dictionary about to receive those objects. A search of the youngest generation lets
// it grow old first, so that no later one walks all that it came to hold.
//
// Leaves no trace: an exception that is set stays set, modules that were not imported before are
// not afterwards, and a collector that was off stays off. Where the collector cannot be had, the
// pause does nothing.
class CollectorPause {
  public:
    explicit CollectorPause(PyObject *filled);
    CollectorPause(const CollectorPause &) = delete;
    CollectorPause &operator=(const CollectorPause &) = delete;
    ~CollectorPause();

  private:
    PyRef collector_;  // the module, while it has to be switched on again
};

}  // namespace ombra
