// The two records of the library's own readers of arguments, which no caller sees into.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct args_s {
    std::string command;             // "l2", for messages
    std::vector<std::string> words;  // what stands behind it
    std::size_t next = 0;            // the first word that nobody has taken
};

struct parse_table_s {
    std::string fault;  // why the words could not be read; empty if they could
};
