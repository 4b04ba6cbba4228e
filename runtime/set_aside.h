// The exception that is set, out of the way for a while.
#pragma once

#include <Python.h>

namespace ombra {

// Sets the exception of the caller aside, and in the end puts it back over whatever is raised
// meanwhile.
class SetAside {
  public:
    SetAside() { PyErr_Fetch(&type_, &value_, &traceback_); }
    SetAside(const SetAside &) = delete;
    SetAside &operator=(const SetAside &) = delete;
    ~SetAside() { PyErr_Restore(type_, value_, traceback_); }

  private:
    PyObject *type_ = nullptr;
    PyObject *value_ = nullptr;
    PyObject *traceback_ = nullptr;
};

}  // namespace ombra
