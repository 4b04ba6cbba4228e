// Made from catalogue/constants.txt by generator/emit/emit_tables.cpp. Do not edit.
#include "convert/variables.h"
#include "api/install_table.h"
#include "generated/type_slots.h"
#include "sdk/variables.h"

using namespace ombra;

const swig_constant swig_constants[] = {
    {"tinyFirst", 0},
    {"tinyLast", 63},
    {"tinyLeast", -2147483647},
};

const swig_variable swig_variables[] = {
    {"tiny_depth", IntVariable<&tiny_depth, Literal{"in variable 'tiny_depth' of type 'int'"}>::get, IntVariable<&tiny_depth, Literal{"in variable 'tiny_depth' of type 'int'"}>::set, false},
    {"tiny_names", ReadOnlyArray<tiny_names, slots::_p_void, Literal{"in variable 'read-only tiny_names' of type 'char *[]'"}>::get, ReadOnlyArray<tiny_names, slots::_p_void, Literal{"in variable 'read-only tiny_names' of type 'char *[]'"}>::set, true},
};

const swig_install_step swig_install_steps[] = {
    {swig_install_kind::constants, 0, 1},
    {swig_install_kind::cvar, 0, 0},
    {swig_install_kind::link, 0, 1},
    {swig_install_kind::constants, 1, 2},
    {swig_install_kind::link, 1, 1},
};

const std::size_t swig_install_step_count = 5;
