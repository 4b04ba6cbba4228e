// The commands as data: what the shell, its help, its completion and its manual are made from.
//
//   Command   "vlan"             one line of help, and its forms
//   Form      "create"           the words that choose it, help, an example, its handler, and
//   Param     VLAN  ports=PORTS  what may stand behind them: places in their order, options and
//                                flags anywhere
//
// Whatever lacks a line of help does not compile (`complete`).
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sdk/diag/shell_types.h"
#include "standin/base/rows.h"

namespace standin {

class CommandCall;
class NameFamily;

// What a word can be. values.cpp has a row for each: how it is read, what is right, what there is.
enum class Kind : std::uint8_t {
    kText,
    kNumber,  // from `low` to `high`
    kTruth,
    kChoice,    // one of `words`
    kPort,      // one port, local or global
    kPortList,  // a list of ports of the unit
    kMac,
    kIp,      // IPv4 or IPv6
    kPrefix,  // the same with a length
    kRegister,
    kMemory,
    kFieldValue,   // FIELD=VALUE of a register
    kStructField,  // FIELD=VALUE of the structure that the form names
    kName,         // a constant of a family, or its number
    kNames,        // several of them, with commas between
    kWide,         // a number of any width
    kSettings,     // NAME=VALUE
    kFile,
    kVariable,
    kConfig,  // the name of a setting of the store
    kUnit,
    kCommand,  // the name of a command
    kLine,     // commands in quotes
    kRest      // the rest of the command as it stands
};

struct Candidate {
    std::string word;
    std::string help;
};
// What there is of a thing on a unit.
using Lister = std::vector<Candidate> (*)(int unit);

struct Param {
    enum class How : std::uint8_t { kPlace, kOption, kFlag };

    const char *name;
    How how;
    Kind kind;
    const char *help;
    bool needed = false;
    bool repeats = false;
    char group = 0;  // of those with the same sign one at most, or exactly one if needed
    std::int64_t low = 0;
    std::int64_t high = 0;
    std::span<const char *const> words{};
    Lister list = nullptr;
    const NameFamily &(*names)() = nullptr;

    constexpr Param need() const {
        Param copy = *this;
        copy.needed = true;
        return copy;
    }
    constexpr Param many() const {
        Param copy = *this;
        copy.repeats = true;
        return copy;
    }
    constexpr Param among(char sign) const {
        Param copy = *this;
        copy.group = sign;
        return copy;
    }
    constexpr Param there(Lister lister) const {
        Param copy = *this;
        copy.list = lister;
        return copy;
    }
};

constexpr Param place(const char *name, Kind kind, const char *help) {
    return Param{name, Param::How::kPlace, kind, help};
}
constexpr Param option(const char *name, Kind kind, const char *help) {
    return Param{name, Param::How::kOption, kind, help};
}
constexpr Param flag(const char *name, const char *help) {
    return Param{name, Param::How::kFlag, Kind::kTruth, help};
}
// Numbers, and words out of a list.
constexpr Param number_param(const char *name, Param::How how, std::int64_t low, std::int64_t high,
                             const char *help) {
    Param one{name, how, Kind::kNumber, help};
    one.low = low;
    one.high = high;
    return one;
}
constexpr Param place(const char *name, std::int64_t low, std::int64_t high, const char *help) {
    return number_param(name, Param::How::kPlace, low, high, help);
}
constexpr Param option(const char *name, std::int64_t low, std::int64_t high, const char *help) {
    return number_param(name, Param::How::kOption, low, high, help);
}
constexpr Param place(const char *name, std::span<const char *const> words, const char *help) {
    Param one{name, Param::How::kPlace, Kind::kChoice, help};
    one.words = words;
    return one;
}
constexpr Param option(const char *name, std::span<const char *const> words, const char *help) {
    Param one{name, Param::How::kOption, Kind::kChoice, help};
    one.words = words;
    return one;
}

// Constants by name, up to a number.
using ConstantNames = const NameFamily &();
constexpr Param named_param(const char *name, Param::How how, ConstantNames *names, bool several,
                            std::int64_t high, const char *help) {
    Param one{name, how, several ? Kind::kNames : Kind::kName, help};
    one.high = high;
    one.names = names;
    return one;
}
constexpr Param place(const char *name, ConstantNames *names, bool several, std::int64_t high,
                      const char *help) {
    return named_param(name, Param::How::kPlace, names, several, high, help);
}
constexpr Param option(const char *name, ConstantNames *names, bool several, std::int64_t high,
                       const char *help) {
    return named_param(name, Param::How::kOption, names, several, high, help);
}

// What runs a form: a function that is there.
class CommandHandler {
  public:
    using Run = cmd_result_t(CommandCall &call);

    constexpr CommandHandler(Run *run) : run_(run) {}
    CommandHandler(std::nullptr_t) = delete;

    cmd_result_t operator()(CommandCall &call) const { return run_(call); }

  private:
    Run *run_;
};

struct Form {
    const char *name;  // "create", "entry create"; "" for the command alone
    const char *help;
    const char *example;
    CommandHandler run;
    std::span<const Param> params{};
    std::span<const RowColumn> columns{};  // of the table that it shows
    const char *layout = nullptr;  // structure or family whose fields are its columns and words
    bool whole = false;            // tried on a copy of the chip first: all of it or nothing
};

struct Command {
    const char *name;
    const char *help;
    std::span<const Form> forms;
    const char *fallback = "";   // the form without a word
    bool compares = false;       // `>` is a word of its own, and no file follows
    const char *more = nullptr;  // what else there is to know
    bool configures = false;     // a file that makes a state may have it
};

constexpr Command configuring(Command command) {
    command.configures = true;
    return command;
}

// Whether nothing is missing: for a static_assert beside each declaration.
constexpr bool complete(const Command &command) {
    const auto empty = [](const char *text) { return text == nullptr || *text == '\0'; };
    if (empty(command.name) || empty(command.help) || command.forms.empty()) return false;
    for (const Form &form : command.forms) {
        if (form.name == nullptr || empty(form.help) || empty(form.example)) return false;
        for (const Param &param : form.params)
            if (empty(param.name) || empty(param.help) || param.low > param.high) return false;
    }
    return true;
}

constexpr bool complete(std::span<const Command *const> commands) {
    for (const Command *one : commands)
        if (!complete(*one)) return false;
    return true;
}

// Whether a form takes the rest of its line as it stands, signs and all.
constexpr bool takes_rest(const Command &command) {
    for (const Form &form : command.forms)
        for (const Param &param : form.params)
            if (param.kind == Kind::kRest) return true;
    return false;
}

// Every command, by name.
std::span<const Command *const> all_commands();
// The command of a name or an alias; with `prefix` also of the beginning of one name alone.
const Command *find_command(std::string_view name, bool prefix = false);

// "create VLAN [ports=PORTS]", behind the name of the command.
std::string usage_of(const Command &command, const Form &form);

}  // namespace standin
