// Made from catalogue/constants.txt by generator/emit/emit_tables.cpp. Do not edit.
#include "standin/text/names.h"

const ConstantName standin_constants[] = {
    {"tinyFirst", 0},
    {"tinyLast", 63},
    {"tinyLeast", -2147483647},
};

const std::size_t standin_constant_count = 3;
