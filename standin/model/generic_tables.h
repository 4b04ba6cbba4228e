// What one switch remembers for the functions that have no model of their own. It is part of the
// switch, so it starts anew and goes with it, and stands under the model's lock.
#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace standin {

struct GenericRow {
    std::string bytes;               // the key, then the values
    std::vector<std::string> lists;  // arrays that the row keeps whole
    std::uint64_t order = 0;         // rows are handed out in the order in which they came
};

struct GenericTable {
    std::string owner;  // the family whose rows these rows go with, or empty
    std::map<std::string, GenericRow, std::less<>> rows;  // by key
    std::uint64_t last_order = 0;
    std::uint64_t last_id = 0;
};

using GenericTables = std::map<std::string, GenericTable, std::less<>>;  // by family

}  // namespace standin
