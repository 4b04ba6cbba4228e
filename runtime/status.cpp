// The exception class of each failing status.
#include "runtime/status.h"

PyObject *SWIG_Python_ErrorType(int status) {
    switch (status) {
        case STATUS_IO:
            return PyExc_IOError;
        case STATUS_INDEX:
            return PyExc_IndexError;
        case STATUS_TYPE:
            return PyExc_TypeError;
        case STATUS_ZERODIV:
            return PyExc_ZeroDivisionError;
        case STATUS_OVERFLOW:
            return PyExc_OverflowError;
        case STATUS_SYNTAX:
            return PyExc_SyntaxError;
        case STATUS_VALUE:
            return PyExc_ValueError;
        case STATUS_SYSTEM:
            return PyExc_SystemError;
        case STATUS_ATTRIBUTE:
            return PyExc_AttributeError;
        case STATUS_MEMORY:
            return PyExc_MemoryError;
        default:
            return PyExc_RuntimeError;
    }
}
