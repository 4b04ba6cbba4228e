// Every command, and the names that find one.
#include <algorithm>
#include <array>

#include "standin/base/scan.h"
#include "standin/shell/commands.h"

namespace standin {
namespace {

struct Alias {
    std::string_view name;
    std::string_view command;
};
constexpr std::array kAliases = {Alias{"?", "help"}, Alias{"quit", "exit"}, Alias{"g", "getreg"},
                                 Alias{"s", "setreg"}, Alias{"d", "dump"}};

std::vector<const Command *> by_name() {
    std::vector<const Command *> all;
    for (std::span<const Command *const> group :
         {shell_commands(), port_commands(), switch_commands(), register_commands(),
          system_commands(), group_commands(), l3_commands(), field_commands(), queue_commands(),
          packet_commands(), state_commands()})
        all.insert(all.end(), group.begin(), group.end());
    std::sort(all.begin(), all.end(), [](const Command *one, const Command *other) {
        return std::string_view(one->name) < other->name;
    });
    return all;
}

}  // namespace

std::span<const Command *const> all_commands() {
    static const std::vector<const Command *> &all = *new std::vector<const Command *>(by_name());
    return all;
}

const Command *find_command(std::string_view name, bool prefix) {
    for (const Alias &alias : kAliases)
        if (same_word(alias.name, name)) name = alias.command;
    const Command *found = nullptr;
    for (const Command *one : all_commands()) {
        if (same_word(one->name, name)) return one;
        if (!prefix || name.empty() || !starts_with_word(one->name, name)) continue;
        if (found != nullptr) return nullptr;
        found = one;
    }
    return found;
}

}  // namespace standin
