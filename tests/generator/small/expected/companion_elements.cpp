// Made from all declarations by generator/emit/emit_companion.cpp. Do not edit.
#include "python/companion/element_of.h"

#include "helper/tiny_cxx.h"
#include "sdk/bcm/tiny.h"
#include "sdk/bcm/tiny_types.h"

namespace companion {

const Element elements[] = {
    element_of<char>("char", 3, 0),
    element_of<int>("int", 5, 0),
    structure_of<tiny_all_t>("tiny_all_t", 7, 0),
    structure_of<tiny_any>("tiny_any", 8, 0),
    element_of<tiny_opaque_t>("tiny_opaque_t", 9, 0),
    structure_of<tiny_pair_t>("tiny_pair_t", 10, 0),
    element_of<uint16>("uint16", 15, 0),
    element_of<uint16 [4]>("uint16 [4]", 2, 0),
    element_of<unsigned int>("unsigned int", 14, 0),
};

const std::size_t element_count = sizeof elements / sizeof elements[0];

}  // namespace companion
