// The emitters, one file each. They see the model and nothing else, and return the whole text of
// an output.
#pragma once

#include <string>
#include <vector>

#include "generator/model/model.h"

namespace generator {

std::string emit_rows(const Model &model, const std::string &header);  // records and entries
// The frame's code for every shape that a row has, in kShapeParts files of about one size.
inline constexpr unsigned kShapeParts = 4;
std::string emit_shapes(const Model &model, unsigned part);

std::string emit_helpers(const Model &model);  // boxes and arrays
std::string emit_method_table(const Model &model);
std::string emit_entries(const Model &model);  // prototypes of all entries
std::string emit_type_table(const Model &model);
std::string emit_type_slots(const Model &model);     // names for the slots, for hand-written code
std::string emit_install_table(const Model &model);  // constants, links, and their order
std::string emit_constants_header(const Model &model);
std::string emit_constant_names(const Model &model);  // number and name, for the stand-in's texts
std::string emit_model(const Model &model);           // JSON, for the tests, tools and reference
std::string emit_standin(const Model &model, const std::string &header);  // what no source models
std::string emit_standin_calls(const Model &model);  // who answers each function
// The rule that makes a function's answer, where no source models it.
struct GeneratedAnswer {
    std::string rule;    // "generic-pair", or "unavailable"
    std::string family;  // "bcm_x"
    std::string key;     // "port", or "map.gport" for a field behind an address, between blanks
    std::string values;
};
// REQUIRES: the function is one of the model's.
GeneratedAnswer generated_answer(const Model &model, const Function &function);

// The gates of a header's functions, the names behind them, and the table of all functions.
std::string emit_gates(const Model &model, const std::string &header);
std::string emit_gate_names(const Model &model);
std::string emit_gate_table(const Model &model);
std::string gates_file(const std::string &header);  // "gates_sdk_bcm_l2.cpp"

// How structures and rows of generic tables lie in memory, for the stand-in.
std::string emit_layouts(const Model &model);

// A row's whole way, for people: from its declaration to who answers it. Empty for an unknown name.
std::string explain(const Model &model, const std::string &name);
// The rows whose names are nearest, nearest first.
std::vector<std::string> near_names(const Model &model, const std::string &name);

std::string emit_standin_required(const Model &model);  // what its sources have to define
std::string emit_recording(const Model &model, const std::string &header);  // the recording SDK
std::string emit_proxy(const Model &model);                // the proxy module's tables, Python
std::string emit_manual(const Model &model);               // what describe() and find() know
std::string emit_stub(const Model &model);                 // .pyi, for editors
std::string emit_companion_elements(const Model &model);   // types that the companion lays out
std::string emit_companion_callbacks(const Model &model);  // its native callbacks

// A type that travels by value and has no class: the declared name and the slot of its pointer.
struct OpaqueValue {
    std::string type;
    int slot = 0;
};

// All of them, by name.
std::vector<OpaqueValue> opaque_values(const Model &model);

// "rows_sdk_bcm_l2.cpp" for "platform/sdk/bcm/l2.h".
std::string rows_file(const std::string &header);

// "recording_sdk_bcm_l2.cpp" for the same.
std::string recording_file(const std::string &header);

// "standin_sdk_bcm_l2.cpp" for the same.
std::string standin_file(const std::string &header);

// The kind class of a conversion as the frame's templates name it: "Signed32", "ByValue<160, 4>".
std::string kind_class(const Conversion &conversion);

// First lines of a generated file: what it is made of and by what.
std::string banner(const std::string &source, const std::string &emitter);

}  // namespace generator
