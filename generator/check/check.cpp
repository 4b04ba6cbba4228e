// The check pass.
#include "generator/check/check.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

#include "generator/check/rows.h"

namespace generator {
namespace {

constexpr std::size_t kMostArguments = 9;

struct Rule {
    const char *name;
    const char *says;
};

constexpr std::array<Rule, 38> kRules = {{
    {"grammar", "a header holds only what docs/declarations.md names"},
    {"purpose", "a header's first line is a comment that says what it is for"},
    {"prototype-place", "a header of types holds no prototypes"},
    {"table-missing", "every table is there"},
    {"columns", "a line of a table has all its columns"},
    {"blanks", "no line of a table ends in blanks"},
    {"kind-group", "a kinds table is made of [kind] groups"},
    {"kind-missing", "every declared type has a conversion kind"},
    {"kind-twice", "no type has two kinds"},
    {"kind-needed", "a line of the kinds table is used, and says what no declaration does"},
    {"kind-form", "a value fills its alignment"},
    {"slot-missing", "every pointer type has a row in the type table"},
    {"type-order", "the type table ascends by the bytes of the mangled name, each name once"},
    {"pretty-twice", "no spelling belongs to two types"},
    {"helper", "a helper is a box or an array, of numbers or structures"},
    {"bound-unknown", "every array bound is a positive number"},
    {"recursion", "no struct contains itself"},
    {"char-array", "an array of char stands only in a row that reads its arguments by hand"},
    {"result-kind", "a result's kind has a way back into Python"},
    {"duplicate-row", "no two rows of the method table have one name"},
    {"arity", "no row has more than nine arguments"},
    {"parameter-twice", "no two parameters of a row have one name"},
    {"constant-value", "a constant is a 32-bit decimal number"},
    {"constant-twice", "no two constants have one name"},
    {"link-unknown", "every @link names a variable, every variable is linked once"},
    {"variable-kind", "a variable's kind is one that the generator knows"},
    {"getter-names-differ", "a _get twin repeats the parameter names of its _set"},
    {"getter-types-differ", "what a _get twin reports is a pointer to what its _set takes"},
    {"departure-word", "a departure is one that the generator knows"},
    {"departure-details", "the details of a hand-written row are '-' or its visible form"},
    {"departure-output", "a hidden output is the last parameter, and a pointer to an int"},
    {"departure-reason", "every departure has its reason"},
    {"departure-unused", "every departure is needed"},
    {"standin-word", "a line of the stand-in's table has a word that the planner knows"},
    {"standin-field", "a key names fields of its struct"},
    {"standin-names", "a number of the stand-in names a kind of object that there is"},
    {"standin-unused", "every line of the stand-in's table is needed"},
    {"standin-none", "a function that the stand-in does not answer has its reason"},
}};

class Checker {
  public:
    Checker(Model &model, Faults &faults) : model_(model), faults_(faults) {}

    void run() {
        check_types();
        check_helpers();
        check_kinds();
        check_install();
        check_variables();
        check_rows();
        check_results();
        check_pairs();
        check_departures();
    }

  private:
    void check_types() {
        std::map<std::string, const TypeRow *> spellings;
        const TypeRow *last = nullptr;
        for (const auto &row : model_.types) {
            for (const auto &name : row.pretty) {
                const auto [found, fresh] = spellings.emplace(name, &row);
                if (!fresh) {
                    faults_.add(row.place, "pretty-twice",
                                "'" + name + "' also stands with '" + found->second->mangled +
                                    "' (line " + std::to_string(found->second->place.line) +
                                    "); keep it at one type");
                }
            }
            // Twins that the rules add have no line of their own.
            if (row.pretty.empty() && !has_line(row)) continue;
            if (last != nullptr && last->mangled == row.mangled) {
                const auto [first, second] = std::minmax(last->place.line, row.place.line);
                faults_.add({row.place.file, second}, "type-order",
                            "'" + row.mangled + "' stands on line " + std::to_string(first) +
                                " already; keep one");
            } else if (last != nullptr && last->place.line >= row.place.line) {
                faults_.add(row.place, "type-order",
                            "'" + row.mangled + "' belongs behind '" + last->mangled + "' (line " +
                                std::to_string(last->place.line) + ")");
            }
            last = &row;
        }
    }

    void check_helpers() {
        for (const auto &helper : model_.helpers) {
            const Kind kind = helper.value.kind;
            const bool number = kind <= Kind::strict_bool && !traits(kind).no_result;
            if (number || kind == Kind::by_value) continue;
            faults_.add(helper.place, "helper",
                        "'" + helper.element + "' is no number and no structure; name one");
        }
    }

    // Whether a row without spellings has a line, and is not a twin made by rule.
    bool has_line(const TypeRow &row) const {
        return std::none_of(model_.types.begin(), model_.types.end(), [&](const TypeRow &other) {
            return other.twin == row.mangled && other.place.line == row.place.line;
        });
    }

    void check_kinds() {
        std::map<std::string, const KindRow *> seen;
        for (const auto &row : model_.kinds) {
            const auto [found, fresh] = seen.emplace(row.type, &row);
            if (!fresh) {
                faults_.add(row.place, "kind-twice",
                            "'" + row.type + "' has a kind on line " +
                                std::to_string(found->second->place.line) + "; keep one");
            }
            if (!row.derived && !row.used) {
                faults_.add(row.place, "kind-needed",
                            "'" + row.type + "' is no parameter, field or result; remove the line");
            }
            if (row.kind == Kind::by_value && !fills_alignment(row)) {
                faults_.add(row.place, "kind-form",
                            "'" + row.type + "' has " + std::to_string(row.size) +
                                " bytes aligned to " + std::to_string(row.align) +
                                "; give a multiple of 1, 2, 4 or 8");
            }
        }
    }

    static bool fills_alignment(const KindRow &row) {
        const bool power = row.align == 1 || row.align == 2 || row.align == 4 || row.align == 8;
        return power && row.size != 0 && row.size % row.align == 0;
    }

    void check_install() {
        std::map<std::string, int> constants;
        std::map<std::string, int> links;
        for (const auto &row : model_.install) {
            auto &seen = row.what == InstallRow::What::constant ? constants : links;
            const auto [found, fresh] = seen.emplace(row.name, row.place.line);
            if (!fresh) {
                const std::string name = row.name.empty() ? "@cvar" : row.name;
                faults_.add(row.place, "constant-twice",
                            "'" + name + "' stands on line " + std::to_string(found->second) +
                                " already; keep one");
            }
        }
        for (const auto &variable : model_.variables) {
            if (links.erase(variable.name) == 0) {
                faults_.add(
                    variable.place, "link-unknown",
                    "'" + variable.name + "' is never linked; add its @link line to the constants");
            }
        }
        links.erase("");  // @cvar
        for (const auto &[name, line] : links) {
            faults_.add({model_.install.front().place.file, line}, "link-unknown",
                        "'" + name + "' is no variable of catalogue/variables.txt");
        }
    }

    void check_variables() {
        static const std::set<std::string> kinds = {"int",
                                                    "text",
                                                    "struct",
                                                    "pointer-array",
                                                    "function",
                                                    "read-only-array",
                                                    "read-only-constant"};
        for (const auto &variable : model_.variables) {
            if (!kinds.contains(variable.kind)) {
                faults_.add(variable.place, "variable-kind",
                            "'" + variable.kind + "' is no kind of a variable");
            }
        }
    }

    void check_results() {
        for (const auto &function : model_.functions) {
            const Kind kind = function.conversion.kind;
            if (traits(kind).no_result && function.hand_written.empty()) {
                faults_.add(function.place, "result-kind",
                            "'" + function.row + "' returns '" + function.result + "', of kind " +
                                traits(kind).name +
                                ", which has no result; return another type, "
                                "or add a departure 'body'");
            }
        }
    }

    void check_rows() {
        std::map<std::string, Place> seen;
        for (const auto &row : all_rows(model_)) {
            const Place place = row.function != nullptr ? row.function->place
                                : row.record != nullptr ? row.record->place
                                                        : row.helper->place;
            const auto [found, fresh] = seen.emplace(row.name, place);
            if (!fresh) {
                faults_.add(place, "duplicate-row",
                            "'" + row.name + "' is declared at " + found->second.file + ":" +
                                std::to_string(found->second.line) + " already");
            }
            if (row.arguments.size() > kMostArguments) {
                faults_.add(place, "arity",
                            "'" + row.name + "' has " + std::to_string(row.arguments.size()) +
                                " arguments; the frame takes nine");
            }
            const bool by_hand = row.function != nullptr && row.function->hand_written == "entry";
            std::set<std::string> names;
            for (const auto &argument : row.arguments) {
                if (!by_hand && argument.conversion.kind == Kind::fixed_array &&
                    argument.type.starts_with("char ")) {
                    faults_.add(place, "char-array",
                                "'" + row.name + "' takes '" + argument.type +
                                    "', which has no "
                                    "conversion; add a departure 'entry', or use uint8");
                }
                if (!argument.name.empty() && !names.insert(argument.name).second) {
                    faults_.add(place, "parameter-twice",
                                "'" + row.name + "' has two parameters '" + argument.name + "'");
                }
            }
        }
    }

    void check_pairs() {
        std::map<std::string, const Function *> rows;
        for (const auto &function : model_.functions) rows[function.row] = &function;
        for (const auto &[name, set] : rows) {
            if (name.size() < 4 || name.compare(name.size() - 4, 4, "_set") != 0) continue;
            const auto get = rows.find(name.substr(0, name.size() - 4) + "_get");
            if (get != rows.end()) check_pair(*set, *get->second);
        }
    }

    void check_pair(const Function &set, const Function &get) {
        const std::string names = differing_names(set, get);
        const std::string types = names.empty() ? differing_types(set, get) : "";
        if ((names.empty() && types.empty()) || excuse("pair", get.row)) return;
        faults_.add(get.place, names.empty() ? "getter-types-differ" : "getter-names-differ",
                    "'" + get.row + "' " + (names.empty() ? types : names) + " ('" + set.row +
                        "' is at " + set.place.file + ":" + std::to_string(set.place.line) +
                        "); make them agree, or add a departure 'pair' with its reason");
    }

    static std::string differing_names(const Function &set, const Function &get) {
        if (set.parameters.size() != get.parameters.size()) {
            return "has " + std::to_string(get.parameters.size()) + " parameters, its twin " +
                   std::to_string(set.parameters.size());
        }
        for (std::size_t i = 0; i < set.parameters.size(); ++i) {
            if (set.parameters[i].name != get.parameters[i].name) {
                return "names parameter " + std::to_string(i + 1) + " '" + get.parameters[i].name +
                       "', its twin '" + set.parameters[i].name + "'";
            }
        }
        return "";
    }

    static std::string differing_types(const Function &set, const Function &get) {
        for (std::size_t i = 0; i < set.parameters.size(); ++i) {
            const Variable &in = set.parameters[i];
            const Variable &out = get.parameters[i];
            const std::string given = spelled(in.type, in.bounds);
            const std::string taken = spelled(out.type, out.bounds);
            const char *const star = given.back() == '*' ? "*" : " *";
            if (given != taken && taken != given + star)
                return "takes '" + taken + "' for '" + out.name + "', its twin '" + given + "'";
        }
        return "";
    }

    bool excuse(const std::string &word, const std::string &row) {
        for (auto &departure : model_.departures) {
            if (departure.word == word && departure.row == row) {
                departure.used = true;
                return true;
            }
        }
        return false;
    }

    void check_departures() {
        static const std::set<std::string> words = {"append-output", "body",     "entry",
                                                    "number",        "overload", "pair"};
        for (const auto &function : model_.functions)
            if (function.visible_result == "int") excuse("number", function.row);
        for (const auto &departure : model_.departures) {
            if (!words.contains(departure.word)) {
                faults_.add(departure.place, "departure-word",
                            "'" + departure.word +
                                "' is no departure; the table's head lists "
                                "them");
            } else if (departure.reason.empty()) {
                faults_.add(departure.place, "departure-reason",
                            "the departure of '" + departure.row + "' gives no reason");
            } else if (!departure.used) {
                faults_.add(departure.place, "departure-unused",
                            "'" + departure.row + "' needs no departure '" + departure.word +
                                "', or does not exist; remove the line");
            }
        }
    }

    Model &model_;
    Faults &faults_;
};

}  // namespace

void check(Model &model, Faults &faults) { Checker(model, faults).run(); }

void list_rules(std::ostream &out) {
    for (const auto &rule : kRules) out << rule.name << ": " << rule.says << "\n";
}

}  // namespace generator
