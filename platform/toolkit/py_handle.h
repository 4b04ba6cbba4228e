// Toolkit: a counted object that keeps a Python object alive.
#pragma once

#include "toolkit/alloc_track.h"
#include "toolkit/ptr.h"

typedef struct _object PyObject;

namespace Lumo {

// Holds one reference to a Python object. Handles are made and dropped on any thread, whether or
// not it has the interpreter lock; the handle takes the lock for itself. A handle that outlives the
// interpreter leaves the object alone.
class PyObjHandle final : public PtrInterface {
  public:
    static AllocTrackTypeInfo *lumoAllocTrackTypeInfo_;

    // `ownsReference` false: `object` is borrowed, and the handle takes a reference of its own.
    // True: the handle takes over the caller's reference.
    // REQUIRES: `object` is not null.
    PyObjHandle(PyObject *object, bool ownsReference);
    ~PyObjHandle() override;

    PyObject *object() const noexcept { return object_; }

  private:
    PyObject *object_;
};

}  // namespace Lumo
