// The model: what the generator knows of the declarations, as plain records.
//
// Passes fill it in this order: read_headers and read_catalogue make the first part of each
// record, resolve() the second, check() only looks, and the emitters see nothing else. Beside each
// field stands an example of its value.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "generator/model/kinds.h"

namespace generator {

struct Place {
    std::string file;  // "platform/sdk/bcm/l2.h"
    int line = 0;      // 41
};

// Everything a declared type decides about how a value crosses.
struct Conversion {
    Kind kind = Kind::none;  // Kind::pointer
    int slot = 0;            // 931, the index of `_p_int`; the table's size where any type will do
    int result_slot = 0;     // the same, but `_p_void` for `void *`
    std::size_t size = 0;    // bytes of the native value, or of one array element
    std::size_t align = 0;   // its alignment
    std::size_t count = 1;   // elements of an array, over all dimensions
    std::string text;        // "unsigned char [16]", as messages spell the type
};

// A parameter, a field or a typedef'd name.
struct Variable {
    std::string type;                 // "bcm_gport_t", "char const *"
    std::vector<std::string> bounds;  // {"16"}, {"(2)", "(4)"}
    std::string name;                 // "port"; empty where the declaration gives none
    Place place;
    Conversion conversion;   // resolved
    std::size_t offset = 0;  // of a field, resolved
};

struct Function {
    std::string row;     // "tableBaseAddr", the Python name
    std::string native;  // "TesselApi::tableBaseAddr"
    std::string result;  // "int"
    std::vector<Variable> parameters;
    Place place;
    std::string section;            // "Addresses in bulk", the comment above its group
    bool module_native = false;     // declared below api/: defined in the module itself
    Place modelled;                 // the definition in the stand-in's sources; no file for none
    std::vector<Variable> visible;  // the parameters that Python passes, resolved
    std::string visible_result;     // the docstring's result, resolved; empty for void
    Conversion conversion;          // of the result, resolved
    std::string hand_written;       // "", "body" or "entry", from the departures
    std::string appended;           // the hidden output that joins the result, or empty
};

struct Struct {
    std::string name;  // "bcm_l2_addr_t", the class
    std::string tag;   // "bcm_l2_addr_s", as messages name it
    bool is_union = false;
    std::vector<Variable> fields;
    Place place;
    int slot = 0;           // resolved
    std::size_t size = 0;   // resolved
    std::size_t align = 0;  // resolved
};

struct Typedef {
    std::string name;                 // "bcm_mac_t"
    std::string type;                 // "unsigned char"; "(*)" for a callback
    std::vector<std::string> bounds;  // {"6"}
    Place place;
};

struct TypeRow {
    std::string mangled;              // "_p_bcm_l2_addr_s"
    std::vector<std::string> pretty;  // {"bcm_l2_addr_s *", "bcm_l2_addr_t *"}
    Place place;
    std::string twin;  // mangled name of the type that also passes, or empty
};

struct KindRow {
    std::string type;  // "sal_vaddr_t"
    Kind kind = Kind::none;
    std::size_t size = 0;  // of a value
    std::size_t align = 0;
    Place place;
    bool derived = false;  // from a declaration; the table lists the exceptions
    bool used = false;
};

// One step of filling the module dictionary.
struct InstallRow {
    enum class What { constant, cvar, link } what = What::constant;
    std::string name;  // "bcmColorGreen"
    std::int64_t value = 0;
    Place place;
};

struct GlobalVariable {
    std::string name;     // "phy_port_info"
    std::string type;     // "soc_phy_info_t *[SOC_MAX_NUM_DEVICES]"
    std::string kind;     // "pointer-array"
    std::string mangled;  // "_p_p_soc_phy_info_s"; a dash for none
    std::string detail;   // "66"; a dash for none
    Place place;
    int slot = 0;  // resolved
};

// A one-element box of Python's, or a counted array of native elements.
struct Helper {
    enum class Form { box, array } form = Form::box;
    std::string name;     // "intp"
    std::string element;  // "int", as messages name it
    Place place;
    Conversion value;      // of the element, resolved
    int slot = 0;          // `_p_intp`, of a box, resolved
    int element_slot = 0;  // `_p_int`, resolved
};

struct Departure {
    std::string word;     // "append-output"
    std::string row;      // "bcm_field_qualify_ExactMatchGroupClassId_get"
    std::string details;  // "group"
    std::string reason;   // "the id of the group comes back as a number"
    Place place;
    bool used = false;
};

// What the stand-in's planner has to know of one name.
struct StandinRow {
    std::string word;     // "key"
    std::string name;     // "bcm_l2_addr_t"
    std::string details;  // "mac vid", or "-"
    std::string reason;   // "the MAC table is looked up by address and VLAN"
    Place place;
    mutable bool used = false;  // by the planner, which changes nothing else
};

struct Model {
    std::vector<std::string> headers;  // bound headers in path order
    std::vector<Function> functions;
    std::vector<Struct> structs;
    std::vector<Typedef> typedefs;
    std::map<std::string, std::string> aliases;   // "bcm_pkt_t" -> "bcm_pkt_s"
    std::map<std::string, std::string> defines;   // "SOC_MAX_NUM_DEVICES" -> "66"
    std::map<std::string, std::string> purposes;  // header -> its first comment
    std::vector<TypeRow> types;
    std::vector<KindRow> kinds;
    std::vector<InstallRow> install;
    std::vector<GlobalVariable> variables;
    std::vector<Helper> helpers;
    std::vector<Departure> departures;
    std::vector<StandinRow> standin;
};

// "unsigned char [16]": a declared type with its bounds.
std::string spelled(const std::string &type, const std::vector<std::string> &bounds);

// "int *speed", "unsigned int words[2]": the same with a name, as a declaration has it; the name
// may be empty.
std::string declared(const Variable &variable, const std::string &name);

// "standin/chapters/l2_calls.cpp:88".
std::string text_of(const Place &place);

}  // namespace generator
