// Python objects behind native ones: the handle, and the accessor that calls the object.
#include <Python.h>

#include <unistd.h>

#include "toolkit/mdio.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <thread>
#include <vector>

#include "python_fixture.h"

namespace {

using Hardware::TesselApi::PythonMdioAccessWrapper;
using MdioHamImpl::HamImpl;

HamImpl::Ptr accessor_of(PyObject *object) {
    return Lumo::newTracked<PythonMdioAccessWrapper>(
        Lumo::Name(Lumo::format("test")), Hardware::Mdio::BusId(7), Hardware::Mdio::PortAddr(9),
        Lumo::Ptr<HalMdioAccel::Accel>(), Lumo::newTracked<Lumo::PyObjHandle>(object, false));
}

// The accessor of the value of `expression`, which then has no other owner.
HamImpl::Ptr accessor_of(const char *expression) {
    PyObject *object = eval_python(expression);
    HamImpl::Ptr accessor = accessor_of(object);
    Py_DECREF(object);
    return accessor;
}

// Every test leaves the totals as it found them.
class PythonMdio : public ::testing::Test {
  protected:
    void TearDown() override { EXPECT_EQ(Lumo::AllocTrackTypeInfo::totals(), before_); }

    const Lumo::AllocTotals before_ = Lumo::AllocTrackTypeInfo::totals();
};

TEST_F(PythonMdio, HandleHoldsOneReference) {
    PyObject *object = PyList_New(0);
    {
        const auto borrowed = Lumo::newTracked<Lumo::PyObjHandle>(object, false);
        EXPECT_EQ(Py_REFCNT(object), 2);
        Py_INCREF(object);
        const auto owned = Lumo::newTracked<Lumo::PyObjHandle>(object, true);
        EXPECT_EQ(Py_REFCNT(object), 3);
        EXPECT_EQ(owned->object(), object);
    }
    EXPECT_EQ(Py_REFCNT(object), 1);
    Py_DECREF(object);
}

TEST_F(PythonMdio, HandleIsMadeAndDroppedOnAnyThread) {
    PyObject *object = PyList_New(0);
    {
        const InterpreterReleased released;
        std::jthread([object] {
            for (int n = 0; n < 1'000; ++n) Lumo::newTracked<Lumo::PyObjHandle>(object, false);
        });
    }
    EXPECT_EQ(Py_REFCNT(object), 1);
    Py_DECREF(object);
}

TEST_F(PythonMdio, ReadsAndWritesThroughTheObject) {
    run_python(
        "class Phy(object):\n"
        "    log = []\n"
        "    def read(self, *where):\n"
        "        self.log.append(where)\n"
        "        return 0xFFFFL\n"
        "    def write(self, *where):\n"
        "        self.log.append(where)\n"
        "        return 'not looked at'\n");
    const auto accessor = accessor_of("Phy()");
    std::uint16_t value = 0;
    EXPECT_EQ(accessor->read(31, 0xFFFF, &value), HamImpl::statusOk);
    EXPECT_EQ(value, 0xFFFF);
    EXPECT_EQ(accessor->write(1, 2, 3), HamImpl::statusOk);
    EXPECT_EQ(eval_text("repr(Phy.log)"), "[(7, 9, 31, 65535), (7, 9, 1, 2, 3)]");
}

TEST_F(PythonMdio, FailureOfTheObjectIsReportedAndAnswered) {
    struct Case {
        const char *object;
        const char *report;
    };
    run_python(
        "def phy(answer):\n"
        "    class Phy(object):\n"
        "        def read(self, *where):\n"
        "            return answer()\n"
        "    return Phy()\n");
    const std::array cases{
        Case{"phy(lambda: 1 / 0)", "ZeroDivisionError"},
        Case{"phy(lambda: sys.exit(3))", "SystemExit"},
        Case{"phy(lambda: None)", "TypeError"},
        Case{"phy(lambda: 1.0)", "TypeError"},
        Case{"phy(lambda: '1')", "TypeError"},
        Case{"phy(lambda: -1)", "MDIO read returned -1, not 0 to 65535"},
        Case{"phy(lambda: 65536)", "MDIO read returned 65536, not 0 to 65535"},
        Case{"phy(lambda: 1 << 70)", "OverflowError"},
        Case{"None", "AttributeError"},
    };
    CapturedStderr captured;
    for (const Case &test : cases) {
        SCOPED_TRACE(test.object);
        const auto accessor = accessor_of(test.object);
        // An exception that is on its way already must not be lost.
        PyErr_SetString(PyExc_KeyError, "on its way");
        std::uint16_t value = 0x1234;
        EXPECT_EQ(accessor->read(0, 0, &value), HamImpl::statusFail);
        EXPECT_EQ(value, 0x1234);
        EXPECT_EQ(accessor->write(0, 0, 0), HamImpl::statusFail);
        EXPECT_TRUE(PyErr_ExceptionMatches(PyExc_KeyError));
        PyErr_Clear();
        const std::string text = captured.take();
        EXPECT_NE(text.find(test.report), std::string::npos) << text;
        EXPECT_NE(text.find("ignored"), std::string::npos) << text;
    }
}

HamImpl::Ptr installed;

PyObject *drop_installed(PyObject *, PyObject *) {
    installed = nullptr;
    Py_RETURN_NONE;
}

TEST_F(PythonMdio, ObjectMayRemoveTheAccessorThatCallsIt) {
    static PyMethodDef drop = {"drop_installed", drop_installed, METH_NOARGS, nullptr};
    PyObject *function = PyCFunction_New(&drop, nullptr);
    PyModule_AddObject(PyImport_AddModule("__main__"), "drop_installed", function);
    run_python(
        "died = []\n"
        "class Fickle(object):\n"
        "    def read(self, *where):\n"
        "        drop_installed()\n"
        "        return 5\n"
        "    def __del__(self):\n"
        "        died.append(1)\n");
    installed = accessor_of("Fickle()");
    std::uint16_t value = 0;
    EXPECT_EQ(installed.get()->read(0, 0, &value), HamImpl::statusOk);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(eval_text("repr(died)"), "[1]");
}

TEST_F(PythonMdio, TwoThreadsShareOneObject) {
    run_python(
        "class Echo(object):\n"
        "    def read(self, bus, port, dev, reg):\n"
        "        return reg ^ dev\n");
    const auto accessor = accessor_of("Echo()");
    const InterpreterReleased released;
    std::vector<std::jthread> threads;
    threads.reserve(2);
    std::array<int, 2> wrong{};
    for (unsigned dev = 0; dev < 2; ++dev) {
        threads.emplace_back([accessor, dev, &wrong] {
            for (unsigned reg = 0; reg < 20'000; ++reg) {
                std::uint16_t value = 0;
                const int status = accessor->read(dev, reg, &value);
                wrong[dev] += status != HamImpl::statusOk || value != (reg ^ dev);
            }
        });
    }
    threads.clear();
    EXPECT_EQ(wrong, (std::array<int, 2>{}));
}

// A thread may hold the interpreter lock under another state than its first.
TEST_F(PythonMdio, ASecondInterpreterOfTheThreadIsServed) {
    ::alarm(60);  // what waits for itself ends
    PyThreadState *const first = PyThreadState_Get();
    PyThreadState *const second = Py_NewInterpreter();
    run_python(
        "class Phy(object):\n"
        "    def read(self, *where):\n"
        "        return 5\n");
    auto accessor = accessor_of("Phy()");
    std::uint16_t value = 0;
    EXPECT_EQ(accessor->read(0, 0, &value), HamImpl::statusOk);
    EXPECT_EQ(value, 5);
    {
        const InterpreterReleased released;
        std::jthread([&accessor, &value] {
            EXPECT_EQ(accessor->read(0, 0, &value), HamImpl::statusOk);
        });
    }
    EXPECT_EQ(PyThreadState_Get(), second);
    accessor = nullptr;
    Py_EndInterpreter(second);
    PyThreadState_Swap(first);
    ::alarm(0);
}

TEST_F(PythonMdio, OutlivingTheInterpreterTouchesNothing) {
    auto accessor = accessor_of("[]");
    EXPECT_EXIT(
        {
            Py_Finalize();
            std::uint16_t value = 0;
            const int read = accessor->read(0, 0, &value);
            const int write = accessor->write(0, 0, 0);
            accessor = nullptr;
            std::_Exit(read == HamImpl::statusFail && write == HamImpl::statusFail ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "^$");
}

}  // namespace
