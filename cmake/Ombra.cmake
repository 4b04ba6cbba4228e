# Shared by all folders: the interpreter as targets, warnings, and the generator's outputs.

set(OMBRA_MADE ${CMAKE_BINARY_DIR}/made)

# Tells this folder that the generator makes these sources: before CMake 3.20 a folder knows that
# only of what its own commands make.
function(ombra_made_here)
    set_source_files_properties(${ARGN} PROPERTIES GENERATED TRUE)
endfunction()

# Interpreters as targets: `python27` carries the headers, `python27_embed` the library as well;
# the same with `_debug` in a tree for the debug interpreter. A module never links the library: it
# runs inside a program that has it.
function(ombra_interpreter target include_dir library)
    add_library(${target} INTERFACE)
    target_include_directories(${target} SYSTEM INTERFACE ${include_dir})
    add_library(${target}_embed INTERFACE)
    target_link_libraries(${target}_embed INTERFACE ${target} ${library})
    # Also where only the toolkit below the program calls it.
    target_link_options(${target}_embed INTERFACE -Wl,--no-as-needed)
endfunction()

ombra_interpreter(python27 ${PYTHON27_INCLUDE_DIR} "${PYTHON27_LIBRARY}")
if(OMBRA_DEBUG_INTERPRETER)
    ombra_interpreter(python27_debug ${PYTHON27_DEBUG_INCLUDE_DIR} "${PYTHON27_DEBUG_LIBRARY}")
    # The debug headers are links to the release ones but for the configuration: g++ must not follow
    # the links before it looks for that.
    target_compile_options(python27_debug INTERFACE -fno-canonical-system-headers)
endif()

# Our own code is clean under these, and stays so. Left out: two warnings that g++ 12 raises on
# std::string itself.
function(ombra_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Werror
        $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-maybe-uninitialized>)
endfunction()

# An object library of the module, for each interpreter of this tree: `name`, and `name_d` for the
# debug interpreter. Hidden symbols: the module exports what api/exports.map lists.
function(ombra_module_objects name)
    foreach(variant "" _d)
        if(variant STREQUAL "")
            set(python python27)
        elseif(OMBRA_DEBUG_INTERPRETER)
            set(python python27_debug)
        else()
            continue()
        endif()
        add_library(${name}${variant} OBJECT ${ARGN})
        target_link_libraries(${name}${variant} PUBLIC ${python})
        set_target_properties(${name}${variant} PROPERTIES
            CXX_VISIBILITY_PRESET hidden
            VISIBILITY_INLINES_HIDDEN ON)
        ombra_warnings(${name}${variant})
        add_dependencies(${name}${variant} made)
    endforeach()
endfunction()
