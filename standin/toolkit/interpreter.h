// Access to Python from native code on any thread.
//
// The libraries that use this serve the release and the debug interpreter alike, whose object
// layouts differ. So they call functions of the interpreter only, and no macro that looks into an
// object: Py_IncRef and not Py_INCREF.
#pragma once

#include <Python.h>
#include <pythread.h>

#include <atomic>

namespace ombra {

// Whether this thread has the interpreter lock, under whichever of its thread states.
// PyGILState_Ensure knows a thread's first state alone: a thread that holds the lock under that of
// a second interpreter would wait for itself. Only the holder's own state has this thread's number.
inline bool lock_is_held_here() {
    const PyThreadState *current = std::atomic_ref(_PyThreadState_Current).load();
    return current != nullptr && current->thread_id == PyThread_get_thread_ident();
}

// Holds the interpreter lock, and sets aside an exception that is pending on this thread. False
// when there is no interpreter, or none any more: then nothing of Python may be touched.
class InterpreterAccess {
  public:
    InterpreterAccess() : running_(Py_IsInitialized() != 0) {
        if (!running_) return;
        taken_ = !lock_is_held_here();
        if (taken_) state_ = PyGILState_Ensure();
        PyErr_Fetch(&type_, &value_, &traceback_);
    }

    InterpreterAccess(const InterpreterAccess &) = delete;
    InterpreterAccess &operator=(const InterpreterAccess &) = delete;

    ~InterpreterAccess() {
        if (!running_) return;
        PyErr_Restore(type_, value_, traceback_);
        if (taken_) PyGILState_Release(state_);
    }

    explicit operator bool() const { return running_; }

  private:
    bool running_;
    bool taken_ = false;
    PyGILState_STATE state_ = PyGILState_UNLOCKED;
    PyObject *type_ = nullptr;
    PyObject *value_ = nullptr;
    PyObject *traceback_ = nullptr;
};

}  // namespace ombra
