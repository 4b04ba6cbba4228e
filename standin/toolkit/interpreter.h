// Access to Python from native code on any thread.
//
// The libraries that use this serve the release and the debug interpreter alike, whose object
// layouts differ. So they call functions of the interpreter only, and no macro that looks into an
// object: Py_IncRef and not Py_INCREF.
#pragma once

#include <Python.h>

namespace ombra {

// Holds the interpreter lock, and sets aside an exception that is pending on this thread. False
// when there is no interpreter, or none any more: then nothing of Python may be touched.
class InterpreterAccess {
  public:
    InterpreterAccess() : running_(Py_IsInitialized() != 0) {
        if (!running_) return;
        state_ = PyGILState_Ensure();
        PyErr_Fetch(&type_, &value_, &traceback_);
    }

    InterpreterAccess(const InterpreterAccess &) = delete;
    InterpreterAccess &operator=(const InterpreterAccess &) = delete;

    ~InterpreterAccess() {
        if (!running_) return;
        PyErr_Restore(type_, value_, traceback_);
        PyGILState_Release(state_);
    }

    explicit operator bool() const { return running_; }

  private:
    bool running_;
    PyGILState_STATE state_ = PyGILState_UNLOCKED;
    PyObject *type_ = nullptr;
    PyObject *value_ = nullptr;
    PyObject *traceback_ = nullptr;
};

}  // namespace ombra
