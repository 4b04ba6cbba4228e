// From a line of text to commands and words.
//
//   line      [unit:] command words... ; [unit:] command words...   # comment
//
// Words are parted by blanks. 'text' stands for itself; in "text" and outside of quotes a
// backslash takes the meaning off the sign behind it and variables are put in:
//   $name  ${name}      a variable, by letters, digits and `_`; nothing when it is not set
//   $?                  the result of the last command
//   $unit               the unit of the command
// What a variable stands for is not parted into words again. A `#` at the start of a word begins
// a comment. The unit is a number before ':', or '*' for each attached unit in turn.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

struct ShellFault {
    std::string text;  // "no closing '\"'"
};

struct UnitPrefix {
    bool every = false;
    int unit = 0;
};

// The commands of a line, as text; a fault for quotes that stay open.
struct SplitLine {
    std::vector<std::string> commands;
    bool comment = false;  // whether the line ends in one
    std::optional<ShellFault> fault;
};
SplitLine split_commands(std::string_view line);

// Takes the unit off the front of a command, if it has one. REQUIRES: no blank before it.
std::optional<UnitPrefix> take_unit_prefix(std::string_view &command);

using VariableLookup = std::function<std::string(std::string_view name)>;

// Where a word stands in its command.
struct WordPlace {
    std::size_t begin;
    std::size_t end;
    bool plain;  // no quote, backslash or variable in it: `|` and `>` are signs then
};

struct Words {
    std::vector<std::string> words;
    std::vector<WordPlace> places;  // of each
    std::optional<ShellFault> fault;
};
Words read_command_words(std::string_view command, const VariableLookup &lookup);

// Whether a line asks for another one behind it: it ends in a backslash that nothing escapes, and
// not in a comment, which ends with its line. The backslash is taken off.
bool take_continuation(std::string &line);

}  // namespace standin
