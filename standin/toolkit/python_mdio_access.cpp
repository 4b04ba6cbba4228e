// An MDIO accessor whose reads and writes are methods of a Python object.
#include "standin/toolkit/interpreter.h"

#include <utility>

#include "toolkit/mdio.h"

namespace Hardware::TesselApi {
namespace {

// The methods' names and argument formats; the interpreter's interface takes no constant text.
char read_name[] = "read";
char read_format[] = "IIII";
char write_name[] = "write";
char write_format[] = "IIIII";

// Says on sys.stderr what went wrong, and answers for it.
int report(PyObject *object) {
    PyErr_WriteUnraisable(object);
    return MdioHamImpl::HamImpl::statusFail;
}

// True with `value` set, or false with an exception.
bool register_value(PyObject *answer, std::uint16_t *value) {
    PyObject *index = PyNumber_Index(answer);
    if (!index) return false;
    // An integer that no long can hold raises here; what is left is compared below.
    const long number = PyInt_AsLong(index);
    Py_DecRef(index);
    if (number == -1 && PyErr_Occurred()) return false;
    if (number < 0 || number > 0xFFFF) {
        PyErr_Format(PyExc_ValueError, "MDIO read returned %ld, not 0 to 65535", number);
        return false;
    }
    *value = static_cast<std::uint16_t>(number);
    return true;
}

}  // namespace

Lumo::AllocTrackTypeInfo *PythonMdioAccessWrapper::lumoAllocTrackTypeInfo_ = nullptr;

// Users of the library pass the handle by reference.
PythonMdioAccessWrapper::PythonMdioAccessWrapper(
    Lumo::Name name, Mdio::BusId busId, Mdio::PortAddr portAddr,
    const Lumo::Ptr<HalMdioAccel::Accel> &,
    const Lumo::Ptr<Lumo::PyObjHandle> &handle)  // NOLINT(modernize-pass-by-value)
    : HamImpl(std::move(name), busId, portAddr), handle_(handle) {}

PythonMdioAccessWrapper::~PythonMdioAccessWrapper() {
    Lumo::AllocTrackTypeInfo::trackDeallocation(lumoAllocTrackTypeInfo_);
}

// In both operations the handle is a copy: the object may have this accessor replaced while it
// runs, after which `this` is gone. It is released under the interpreter lock, which is free for a
// thread that has it already.

int PythonMdioAccessWrapper::read(unsigned devAddr, unsigned regAddr, std::uint16_t *value) {
    ombra::InterpreterAccess const access;
    if (!access) return statusFail;
    const Lumo::Ptr<Lumo::PyObjHandle> handle = handle_;
    PyObject *answer =
        PyObject_CallMethod(handle->object(), read_name, read_format, unsigned{busId().value()},
                            unsigned{portAddr().value()}, devAddr, regAddr);
    if (!answer) return report(handle->object());
    const bool good = register_value(answer, value);
    Py_DecRef(answer);
    return good ? statusOk : report(handle->object());
}

int PythonMdioAccessWrapper::write(unsigned devAddr, unsigned regAddr, std::uint16_t value) {
    ombra::InterpreterAccess const access;
    if (!access) return statusFail;
    const Lumo::Ptr<Lumo::PyObjHandle> handle = handle_;
    PyObject *answer =
        PyObject_CallMethod(handle->object(), write_name, write_format, unsigned{busId().value()},
                            unsigned{portAddr().value()}, devAddr, regAddr, unsigned{value});
    if (!answer) return report(handle->object());
    Py_DecRef(answer);
    return statusOk;
}

}  // namespace Hardware::TesselApi
