// Writing outputs: only what differs is written, so that nothing is compiled for an unchanged file.
#pragma once

#include <map>
#include <string>

namespace generator {

// Replaces each `@name@` of a template by its value. An unknown hole stays, so that it is seen.
std::string fill(std::string text, const std::map<std::string, std::string> &holes);

// `text` as a C string literal, with quotes.
std::string quoted(const std::string &text);

// The whole file, or an empty text when there is none.
std::string read_file(const std::string &path);

// Writes `text` unless the file already holds it; makes missing folders. False on failure.
bool write_if_changed(const std::string &path, const std::string &text);

}  // namespace generator
