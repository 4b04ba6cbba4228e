// What one switch remembers for the functions that have no model of their own. It is part of the
// switch, so it starts anew and goes with it, and stands under the model's lock.
//
// A row may name objects, modelled ones and other rows; `Reference` says where in the row, and the
// row then uses them with one of the three bonds of references.h. For the index of users each row
// has a serial number.
#pragma once
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "standin/model/object.h"

namespace standin {

struct Switch;

// What a number can name. All but `kMade` are judged by the model.
enum class Sort : std::uint8_t {
    kNumber,  // nothing: it only has bounds
    kPort,    // a port or a global port number of any type
    kVlan,
    kStg,
    kTrunk,
    kHop,  // interface, egress object or multipath group
    kMulticast,
    kMirror,
    kPolicer,
    kGroup,
    kRule,
    kRange,
    kMade  // a row that has the number as its id; the kinds above may be such rows too
};

struct NameKind {
    const char *name = nullptr;  // "port"
    Sort sort = Sort::kMade;
    std::int32_t low = 0;  // of kNumber
    std::int32_t high = 0;
};

// Where a row, or an element of one of its lists, names something.
struct Reference {
    const NameKind *kind = nullptr;
    const char *field = nullptr;  // "port"
    Bond bond = Bond::kHolds;
    bool list = false;      // `row` is the number of a list, `at` the place in its element
    bool optional = false;  // 0 and -1 name nothing
    std::uint32_t row = 0;
    std::uint32_t at = 0;
    std::uint32_t stride = 0;  // of a list: the size of an element
    std::uint8_t size = 0;
};

// The column of a family that is an id of its own, by which others name its rows.
struct IdColumn {
    const NameKind *kind = nullptr;  // null for none
    std::uint32_t row = 0;
    std::uint8_t size = 0;
};

// A name that a row uses, and where the row has it.
struct RowName {
    const Reference *reference;
    std::size_t place;  // in the row, or in the list
    Object target;
};

struct GenericRow {
    std::string bytes;               // the key, then the values
    std::vector<std::string> lists;  // arrays that the row keeps whole
    std::uint64_t order = 0;         // rows are handed out in the order in which they came
    std::uint64_t serial = 0;        // in the index of users
    std::vector<RowName> names = {};
    IdColumn id = {};
};

struct GenericTable {
    std::string owner;  // the family whose rows these rows go with, or empty
    std::map<std::string, GenericRow, std::less<>> rows;  // by key
    std::uint64_t last_order = 0;
    std::uint64_t last_id = 0;
};

using GenericTables = std::map<std::string, GenericTable, std::less<>>;  // by family
using RowPlace = std::map<std::string, GenericRow, std::less<>>::iterator;

// Rows by their serial number, and the numbers by which they are named.
struct GenericIndex {
    struct Place {
        std::string family;
        std::string key;
    };
    std::unordered_map<std::uint64_t, Place> rows;
    std::multimap<std::pair<std::string, std::int64_t>, std::uint64_t> ids;  // by kind and number
    std::uint64_t last = 0;
};

// What a row that is filled in names; BCM_E_PORT, BCM_E_NOT_FOUND or BCM_E_PARAM for the first
// name of something that is not there.
int find_names(Switch &chip, std::span<const Reference> references, const GenericRow &row,
               std::vector<RowName> &names);

// Puts a row under its key, or in the place of the one there, whose users it keeps.
void put_row(Switch &chip, const std::string &family, GenericTable &table, std::string_view key,
             GenericRow row);
// Changes what a row names.
void rename_row(Switch &chip, GenericRow &row, std::vector<RowName> names);

// BCM_E_BUSY for a row that something holds.
int check_row_unused(Switch &chip, const GenericRow &row);
// Takes a row out with all that belongs to it. REQUIRES: nobody holds it.
void erase_row(Switch &chip, const std::string &family, const std::string &key);

// The end of a chapter's rows, of the families whose names start with the prefix: BCM_E_BUSY while
// a row of another family holds one; they name nothing from here (and again); they are gone.
int check_forgettable(Switch &chip, std::string_view prefix);
void suspend_rows(Switch &chip, std::string_view prefix);
void resume_rows(Switch &chip, std::string_view prefix);
void forget_rows(Switch &chip, std::string_view prefix);

// What becomes of a row when an object that it names goes.
void leave_row(Switch &chip, const Object &row, const Object &target);
void fall_row(Switch &chip, const Object &row);

// "vlan_port 2013265921".
std::string row_text(const Switch &chip, const Object &row);

}  // namespace standin
