// The text form of the configuration store.
//
//   # a comment, up to the end of the line
//   name=value                 blanks around both are dropped
//   name="v\"al#ue\n"         a quoted value, kept as it is; escapes: \" \\ \n \r \t \xHH
//
// A backslash at the end of a line joins the next one, less the blanks before it.
//
// A name is made of letters, digits and `_ . - / : { } [ ] *` and is not empty. In a value without
// quotes a `#` after a blank starts a comment. A name that stands twice has its last value. Lines
// may end in CR LF. A line that breaks a rule is left out and reported; nothing else is lost.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace standin {

struct ConfigEntry {
    std::string name;   // "port_count.0"
    std::string value;  // "48"
    int line;           // 3, where it stood; 0 when it came from no file
};

struct ConfigFault {
    int line;          // 7: the first physical line of the broken one
    std::string text;  // "no '=' after the name"
};

struct ConfigText {
    std::vector<ConfigEntry> entries;  // in file order
    std::vector<ConfigFault> faults;   // in file order
};

// Whether `name` may name a setting.
bool config_name_ok(std::string_view name);

// Reads a whole file's text. Never fails: what is wrong stands in `faults`.
ConfigText parse_config_text(std::string_view text);

// One line, with its end, that parse_config_text reads back to the same pair. The value is put in
// quotes only where it would not survive without.
std::string format_config_line(std::string_view name, std::string_view value);

// Reads `path` into `text`. False when it cannot be read; errno tells why.
bool read_file(const std::string &path, std::string &text);

// Puts `text` at `path` as a whole or not at all: written to a temporary file that is made anew,
// flushed to the disk and renamed. A link is followed; what is there and is no plain file is
// refused. The file keeps its permissions; a new one gets 0644. The temporary file is `temporary`,
// or, for an empty name, one in the folder of the file that nobody can foretell. False on failure:
// `path` is then as it was, the temporary file is gone, errno tells why.
bool write_file(const std::string &path, const std::string &temporary, std::string_view text);

// Whether write_file would go on: a plain file, a link to one, or nothing at all. errno if not.
bool replaceable(const std::string &path);

}  // namespace standin
