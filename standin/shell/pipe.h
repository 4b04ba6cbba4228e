// What stands behind a command: filters of its rows, and the file that takes them.
//
//   l2 show | include 02: | sort port | json        counters > file        ps | columns port,speed
//
// Filters work on the rows of a table, and on the lines of a command that shows none; those are a
// table with the one column `line`.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/base/rows.h"
#include "standin/shell/grammar.h"
#include "standin/shell/reader.h"

namespace standin {

struct Stage {
    const struct Filter *filter;
    std::string word;  // behind it, if it takes one
};

struct Pipe {
    std::size_t words = 0;  // how many belong to the command itself
    std::vector<Stage> stages;
    std::string file;  // empty: none
    bool append = false;
    std::string fault;  // why it cannot be read; empty if it can

    bool empty() const { return stages.empty() && file.empty(); }
};

// With `compares`, `>` is a word of the command.
Pipe read_pipe(const Words &words, bool compares, bool prefix);

// Sends what a command printed through the stages; false with a line of text for a stage that
// cannot take it, or a file that cannot be written.
bool run_pipe(const Pipe &pipe, std::vector<RowCatcher::Item> items);

struct Filter {
    const char *name;
    const char *word;  // "PATTERN", null for none
    const char *help;
    const char *example;
};
std::span<const Filter> all_filters();

// The rows as JSON text: a list of objects, one a line.
std::string json_text(const Rows &rows);

}  // namespace standin
