// An interpreter for tests, started by python_main.cpp.
#pragma once

#include <Python.h>
#include <gtest/gtest.h>

#include <string>

// Runs `code` in __main__. Fails the test if it raises.
inline void run_python(const char *code) { ASSERT_EQ(PyRun_SimpleString(code), 0) << code; }

// The value of `expression` in __main__, a new reference.
inline PyObject *eval_python(const char *expression) {
    PyObject *names = PyModule_GetDict(PyImport_AddModule("__main__"));
    PyObject *value = PyRun_String(expression, Py_eval_input, names, names);
    if (!value) PyErr_Print();
    return value;
}

inline std::string eval_text(const char *expression) {
    PyObject *value = eval_python(expression);
    std::string text = value ? PyString_AsString(value) : "(raised)";
    Py_XDECREF(value);
    return text;
}

// What Python writes to sys.stderr while this lives.
class CapturedStderr {
  public:
    CapturedStderr() { run_python("import sys, StringIO\nsys.stderr = StringIO.StringIO()"); }
    ~CapturedStderr() { run_python("sys.stderr = sys.__stderr__"); }
    CapturedStderr(const CapturedStderr &) = delete;
    CapturedStderr &operator=(const CapturedStderr &) = delete;

    // What came since the last call.
    std::string take() {
        std::string text = eval_text("sys.stderr.getvalue()");
        run_python("sys.stderr.truncate(0)");
        return text;
    }
};

// Lets other threads at the interpreter while it lives.
class InterpreterReleased {
  public:
    InterpreterReleased() : state_(PyEval_SaveThread()) {}
    ~InterpreterReleased() { PyEval_RestoreThread(state_); }
    InterpreterReleased(const InterpreterReleased &) = delete;
    InterpreterReleased &operator=(const InterpreterReleased &) = delete;

  private:
    PyThreadState *state_;
};
