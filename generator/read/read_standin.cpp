#include "generator/read/read_standin.h"

#include <cctype>
#include <regex>
#include <set>

namespace generator {
namespace {

// "TesselApi::tableBaseAddr" is defined inside its namespace.
std::string unqualified(const std::string &native) { return native.substr(native.rfind(':') + 1); }

void add_names(const std::string &text, std::set<std::string> &names) {
    static const std::regex name(R"(\w+)");
    for (std::sregex_iterator one(text.begin(), text.end(), name), end; one != end; ++one)
        names.insert(one->str());
}

// From the start of a line: the name that a definition defines, or the arguments of a macro.
void add_definitions(const std::string &text, std::set<std::string> &names) {
    const std::size_t stop = text.find_first_of(";{}#");
    const std::size_t open = text.find('(');
    if (open == std::string::npos || open > stop) return;
    const std::string head = text.substr(0, open);
    static const std::regex macro("[A-Z_]+");
    if (std::regex_match(head, macro))
        add_names(text.substr(open, text.find(')') - open), names);
    else if (stop != std::string::npos && text[stop] == '{')
        names.insert(head.substr(head.find_last_of(" *&:") + 1));
}

}  // namespace

void read_definitions(const std::string &file, const std::string &source, Model &model) {
    std::set<std::string> names;
    for (std::size_t at = 0; at < source.size(); at = source.find('\n', at) + 1) {
        if (std::isalpha(static_cast<unsigned char>(source[at])) != 0)
            add_definitions(source.substr(at, 2000), names);
        if (source.find('\n', at) == std::string::npos) break;
    }
    for (auto &function : model.functions)
        if (!function.module_native && names.contains(unqualified(function.native)))
            function.modelled = file;
}

}  // namespace generator
