// A plain module of the same rows: registers them and sets the constants, and nothing else.

#include <Python.h>

#include "api/install_table.h"
#include "api/method_table.h"

PyMODINIT_FUNC __attribute__((visibility("default"))) init_ombra_floor_import();

PyMODINIT_FUNC init_ombra_floor_import() {
    PyObject *module = Py_InitModule4("_ombra_floor_import", swig_method_table, nullptr, nullptr,
                                      PYTHON_API_VERSION);
    PyObject *dictionary = PyModule_GetDict(module);
    for (std::size_t step = 0; step < swig_install_step_count; ++step) {
        const swig_install_step &run = swig_install_steps[step];
        for (unsigned i = run.first;
             run.kind == swig_install_kind::constants && i < run.first + run.count; ++i) {
            PyObject *value = PyInt_FromLong(swig_constants[i].value);
            PyDict_SetItemString(dictionary, swig_constants[i].name, value);
            Py_DECREF(value);
        }
    }
}
