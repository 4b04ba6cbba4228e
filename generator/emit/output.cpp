// Templates with holes, literals, and files written only when they differ.
#include "generator/emit/output.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace generator {

std::string fill(std::string text, const std::map<std::string, std::string> &holes) {
    std::string result;
    std::size_t at = 0;
    while (true) {
        const std::size_t open = text.find('@', at);
        const std::size_t close = open == std::string::npos ? open : text.find('@', open + 1);
        if (close == std::string::npos) return result + text.substr(at);
        const auto hole = holes.find(text.substr(open + 1, close - open - 1));
        if (hole == holes.end()) {
            result += text.substr(at, close - at);
            at = close;
            continue;
        }
        result += text.substr(at, open - at) + hole->second;
        at = close + 1;
    }
}

std::string quoted(const std::string &text) {
    std::string literal = "\"";
    for (const char c : text) {
        if (c == '\n') {
            literal += "\\n";
            continue;
        }
        if (c == '"' || c == '\\') literal += '\\';
        literal += c;
    }
    return literal + "\"";
}

std::string read_file(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

bool write_if_changed(const std::string &path, const std::string &text) {
    if (std::filesystem::exists(path) && read_file(path) == text) return true;
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    std::ofstream file(path, std::ios::binary);
    file << text;
    return static_cast<bool>(file.flush());
}

}  // namespace generator
