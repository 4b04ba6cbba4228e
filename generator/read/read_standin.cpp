// The names that a source defines, with their lines.
#include "generator/read/read_standin.h"

#include <cctype>
#include <regex>
#include <unordered_map>

namespace generator {
namespace {

// "TesselApi::tableBaseAddr" is defined inside its namespace.
std::string unqualified(const std::string &native) { return native.substr(native.rfind(':') + 1); }

// Where each name is defined first.
using Lines = std::unordered_map<std::string, int>;

void add_names(const std::string &text, int line, Lines &names) {
    static const std::regex name(R"(\w+)");
    for (std::sregex_iterator one(text.begin(), text.end(), name), end; one != end; ++one)
        names.emplace(one->str(), line);
}

// From the start of a line: the name that a definition defines, or the arguments of a macro.
void add_definitions(const std::string &text, int line, Lines &names) {
    const std::size_t stop = text.find_first_of(";{}#");
    const std::size_t open = text.find('(');
    if (open == std::string::npos || open > stop) return;
    const std::string head = text.substr(0, open);
    static const std::regex macro("[A-Z_]+");
    if (std::regex_match(head, macro))
        add_names(text.substr(open, text.find(')') - open), line, names);
    else if (stop != std::string::npos && text[stop] == '{')
        names.emplace(head.substr(head.find_last_of(" *&:") + 1), line);
}

}  // namespace

void read_definitions(const std::string &file, const std::string &source, Model &model) {
    Lines names;
    int line = 0;
    for (std::size_t at = 0; at < source.size(); at = source.find('\n', at) + 1) {
        ++line;
        if (std::isalpha(static_cast<unsigned char>(source[at])) != 0)
            add_definitions(source.substr(at, 2000), line, names);
        if (source.find('\n', at) == std::string::npos) break;
    }
    for (auto &function : model.functions) {
        const auto found = names.find(unqualified(function.native));
        if (!function.module_native && found != names.end())
            function.modelled = {file, found->second};
    }
}

}  // namespace generator
