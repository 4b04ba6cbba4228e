// Runs the tests with an interpreter, as the module meets one: started, with threads, locked.
#include <Python.h>
#include <gtest/gtest.h>

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    Py_NoSiteFlag = 1;
    Py_InitializeEx(0);
    PyEval_InitThreads();
    return RUN_ALL_TESTS();
}
