// Taking and dropping the handle's reference under the interpreter lock.
#include "standin/toolkit/interpreter.h"

#include "toolkit/py_handle.h"

namespace Lumo {

AllocTrackTypeInfo *PyObjHandle::lumoAllocTrackTypeInfo_ = nullptr;

PyObjHandle::PyObjHandle(PyObject *object, bool ownsReference) : object_(object) {
    if (ownsReference) return;
    if (ombra::InterpreterAccess const access; access) Py_IncRef(object_);
}

PyObjHandle::~PyObjHandle() {
    AllocTrackTypeInfo::trackDeallocation(lumoAllocTrackTypeInfo_);
    if (ombra::InterpreterAccess const access; access) Py_DecRef(object_);
}

}  // namespace Lumo
