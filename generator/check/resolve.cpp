// The resolve pass: conversions, layouts, twins and departures.
#include "generator/check/resolve.h"

#include <algorithm>
#include <optional>
#include <set>
#include <unordered_map>

#include "generator/check/bounds.h"
#include "generator/check/derive_kinds.h"

namespace generator {
namespace {

bool ends_with(const std::string &text, const std::string &end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// "uint8 const *" -> "uint8 *": the type table knows no qualifiers.
std::string without_const(std::string type) {
    for (std::size_t at = type.find(" const"); at != std::string::npos; at = type.find(" const"))
        type.erase(at, 6);
    return type;
}

class Resolver {
  public:
    Resolver(Model &model, Faults &faults) : model_(model), faults_(faults) {}

    void run() {
        derive_kinds(model_, faults_);
        add_twins();
        index();
        for (auto &record : model_.structs) lay_out(record);
        for (const auto &departure : model_.departures)
            if (is_hand_written(departure) && departure.details != "-")
                replaced_.insert(departure.row);
        for (auto &helper : model_.helpers) resolve_helper(helper);
        for (auto &function : model_.functions) resolve_function(function);
        apply_departures();
        for (auto &variable : model_.variables) resolve_variable(variable);
    }

  private:
    // A type whose mangled name ends in a number of C's that has a box has a twin, named after the
    // box, whose objects pass for it.
    std::string twin_of(const std::string &mangled) const {
        for (const auto &helper : model_.helpers) {
            std::string ending = helper.element;
            std::replace(ending.begin(), ending.end(), ' ', '_');
            if (helper.form == Helper::Form::box && kind_of_native(helper.element) != Kind::none &&
                ends_with(mangled, ending) && !ends_with(mangled, "unsigned_" + ending))
                return mangled.substr(0, mangled.size() - ending.size()) + helper.name;
        }
        return "";
    }

    void add_twins() {
        std::set<std::string> known;
        for (const auto &row : model_.types) known.insert(row.mangled);
        const std::size_t declared = model_.types.size();
        for (std::size_t i = 0; i < declared; ++i) {
            const std::string twin = twin_of(model_.types[i].mangled);
            if (twin.empty()) continue;
            model_.types[i].twin = twin;
            if (known.insert(twin).second)
                model_.types.push_back({twin, {}, model_.types[i].place, ""});
        }
        std::sort(model_.types.begin(), model_.types.end(),
                  [](const TypeRow &a, const TypeRow &b) { return a.mangled < b.mangled; });
    }

    void index() {
        for (std::size_t i = 0; i < model_.types.size(); ++i) {
            mangled_[model_.types[i].mangled] = static_cast<int>(i);
            for (const auto &name : model_.types[i].pretty) pretty_[name] = static_cast<int>(i);
        }
        for (auto &row : model_.kinds)
            if (!kinds_.emplace(row.type, &row).second) row.used = true;  // told by kind-twice
        for (const auto &row : model_.typedefs) typedefs_[row.name] = &row;
        for (auto &record : model_.structs) structs_[record.name] = &record;
        names_.insert(model_.defines.begin(), model_.defines.end());
        for (const auto &row : model_.install)
            if (row.what == InstallRow::What::constant)
                names_.emplace(row.name, std::to_string(row.value));
    }

    Struct *find_struct(const std::string &name) {
        const auto alias = model_.aliases.find(name);
        const auto found = structs_.find(alias == model_.aliases.end() ? name : alias->second);
        return found == structs_.end() ? nullptr : found->second;
    }

    int slot_of_pretty(const std::string &name, const Place &place) {
        const auto found = pretty_.find(name);
        if (found == pretty_.end()) {
            faults_.add(place, "slot-missing",
                        "'" + name +
                            "' is no pretty name of catalogue/types.txt; add it to its "
                            "type's line, or a line for a new type");
            return 0;
        }
        return found->second;
    }

    int slot_of_mangled(const std::string &name, const Place &place) {
        const auto found = mangled_.find(name);
        if (found != mangled_.end()) return found->second;
        faults_.add(place, "slot-missing",
                    "'" + name + "' is no type of catalogue/types.txt; add its line");
        return 0;
    }

    int any_slot() const { return static_cast<int>(model_.types.size()); }

    void set_pointer_slots(Conversion &conversion, const std::string &type, const Place &place) {
        const std::string plain = without_const(type);
        conversion.result_slot = slot_of_pretty(plain, place);
        conversion.slot = plain == "void *" ? any_slot() : conversion.result_slot;
    }

    // The conversion of a type as a parameter or a result; fields are bent below.
    Conversion convert(const Variable &variable) {
        Conversion conversion;
        conversion.text = spelled(variable.type, variable.bounds);
        const std::string &type = variable.type;
        const auto row = kinds_.find(type);
        if (!variable.bounds.empty()) {
            convert_array(conversion, type, variable.bounds, variable.place);
        } else if (row != kinds_.end()) {
            row->second->used = true;
            convert_named(conversion, *row->second, variable.place);
        } else if (ends_with(type, " &")) {
            const KindTraits &kind = traits(Kind::reference);
            convert_named(conversion, {type, kind.kind, kind.size, kind.align, variable.place},
                          variable.place);
        } else if (type == "void") {
            conversion.kind = Kind::nothing;
        } else if (type == "PyObject *") {
            conversion.kind = Kind::object;
        } else if (ends_with(type, "*")) {
            conversion.kind = Kind::pointer;
            conversion.size = traits(Kind::pointer).size;
            conversion.align = traits(Kind::pointer).align;
            set_pointer_slots(conversion, type, variable.place);
        } else if (Struct *record = find_struct(type)) {
            lay_out(*record);
            conversion.kind = Kind::by_value;
            conversion.size = record->size;
            conversion.align = record->align;
            conversion.slot = conversion.result_slot = record->slot;
        } else if (const auto array = typedefs_.find(type);
                   array != typedefs_.end() && !array->second->bounds.empty()) {
            conversion.text = spelled(array->second->type, array->second->bounds);
            convert_array(conversion, array->second->type, array->second->bounds, variable.place);
        } else {
            faults_.add(variable.place, "kind-missing",
                        "'" + type +
                            "' has no conversion kind; declare it by a typedef, OMBRA_ENUM "
                            "or struct, or add a line to catalogue/kinds.txt");
        }
        return conversion;
    }

    void convert_named(Conversion &conversion, const KindRow &row, const Place &place) {
        conversion.kind = row.kind;
        conversion.size = row.size;
        conversion.align = row.align;
        if (row.kind == Kind::by_value || row.kind == Kind::reference) {
            std::string target = without_const(row.type);
            if (row.kind == Kind::reference)
                target.erase(std::min(target.find(" &"), target.size()));
            conversion.slot = conversion.result_slot = slot_of_pretty(target + " *", place);
        } else if (row.kind == Kind::function_pointer) {
            conversion.slot = conversion.result_slot = slot_of_pretty(row.type, place);
        }
    }

    // Bytes of a plain number behind any number of typedefs, 0 for anything else: the element of an
    // array may be a name that crosses nowhere alone.
    std::size_t number_width(const std::string &type) const {
        const auto row = typedefs_.find(type);
        if (row != typedefs_.end() && row->second->bounds.empty())
            return number_width(row->second->type);
        return traits(kind_of_native(type)).size;
    }

    void convert_array(Conversion &conversion, const std::string &element,
                       const std::vector<std::string> &bounds, const Place &place) {
        conversion.kind = Kind::fixed_array;
        for (const auto &bound : bounds) {
            const auto value = evaluate(bound, names_);
            if (!value || *value <= 0) {
                faults_.add(place, "bound-unknown",
                            "the array bound '" + bound +
                                "' is no positive number; define its "
                                "names by #define or in catalogue/constants.txt");
                return;
            }
            conversion.count *= static_cast<std::size_t>(*value);
        }
        Variable one;
        one.type = without_const(element);
        one.place = place;
        if (one.type == "char") {  // only hand-written rows take text arrays
            conversion.size = conversion.align = 1;
            return;
        }
        if (const std::size_t bytes = number_width(one.type); bytes != 0) {
            conversion.size = conversion.align = bytes;
        } else {
            const Conversion inner = convert(one);
            conversion.size = inner.size * inner.count;
            conversion.align = inner.align;
        }
        if (bounds.size() == 2)
            conversion.slot = slot_of_pretty(one.type + " (*)[" + bounds[1] + "]", place);
        else
            conversion.slot = slot_of_pretty(one.type + " *", place);
        conversion.result_slot = conversion.slot;
    }

    void resolve_field(Variable &field) {
        field.conversion = convert(field);
        Conversion &conversion = field.conversion;
        if (conversion.kind == Kind::by_value && find_struct(field.type) != nullptr) {
            conversion.kind = Kind::nested_struct;
            conversion.text += " *";
        } else if (conversion.kind == Kind::pointer) {
            conversion.kind = Kind::pointer_field;
        }
    }

    void lay_out(Struct &record) {
        if (laid_out_.contains(&record)) return;
        if (!laying_out_.insert(&record).second) {
            faults_.add(record.place, "recursion", "'" + record.name + "' contains itself");
            return;
        }
        record.slot = slot_of_pretty(record.name + " *", record.place);
        record.align = 1;
        std::size_t end = 0;
        for (auto &field : record.fields) {
            resolve_field(field);
            const Conversion &conversion = field.conversion;
            const std::size_t align = std::max<std::size_t>(conversion.align, 1);
            record.align = std::max(record.align, align);
            field.offset = record.is_union ? 0 : (end + align - 1) / align * align;
            const std::size_t bytes = conversion.kind == Kind::fixed_array
                                          ? conversion.size * conversion.count
                                          : conversion.size;
            end = std::max(end, field.offset + bytes);
        }
        record.size = (end + record.align - 1) / record.align * record.align;
        laid_out_.insert(&record);
    }

    static bool is_hand_written(const Departure &departure) {
        return departure.word == "body" || departure.word == "entry";
    }

    // A row whose visible form is given by its departure: the native types may be any.
    bool is_replaced(const Function &function) const { return replaced_.contains(function.row); }

    void resolve_helper(Helper &helper) {
        Variable element;
        element.type = helper.element;
        element.place = helper.place;
        helper.value = convert(element);
        helper.element_slot = slot_of_pretty(helper.element + " *", helper.place);
        if (helper.form == Helper::Form::box)
            helper.slot = slot_of_mangled("_p_" + helper.name, helper.place);
    }

    void resolve_function(Function &function) {
        if (is_replaced(function)) return;
        for (auto &parameter : function.parameters) parameter.conversion = convert(parameter);
        function.visible = function.parameters;
        Variable result;
        result.type = function.result;
        result.place = function.place;
        function.conversion = convert(result);
        function.visible_result = function.result == "void" ? "" : function.result;
    }

    void apply_departures();
    void apply(Departure &departure, Function &function);
    void hide_output(const Departure &departure, Function &function);
    void set_visible(const Departure &departure, Function &function);

    void resolve_variable(GlobalVariable &variable) {
        if (const auto row = kinds_.find(variable.type); row != kinds_.end())
            row->second->used = true;
        if (variable.mangled == "-") {
            static const std::set<std::string> pointers = {"struct", "pointer-array", "function",
                                                           "read-only-array"};
            if (pointers.contains(variable.kind)) {
                faults_.add(variable.place, "slot-missing",
                            "'" + variable.name +
                                "' crosses as a pointer object; give the mangled "
                                "name of its type");
            }
            return;
        }
        variable.slot = slot_of_mangled(variable.mangled, variable.place);
    }

    Model &model_;
    Faults &faults_;
    std::unordered_map<std::string, int> mangled_;
    std::unordered_map<std::string, int> pretty_;
    std::unordered_map<std::string, KindRow *> kinds_;
    std::unordered_map<std::string, const Typedef *> typedefs_;
    std::unordered_map<std::string, Struct *> structs_;
    std::set<const Struct *> laying_out_;
    std::set<const Struct *> laid_out_;
    std::set<std::string> replaced_;
    Names names_;
};

void Resolver::apply_departures() {
    std::unordered_multimap<std::string, Function *> rows;
    for (auto &function : model_.functions) rows.emplace(function.row, &function);
    for (auto &departure : model_.departures) {
        const auto [first, last] = rows.equal_range(departure.row);
        for (auto row = first; row != last; ++row) apply(departure, *row->second);
    }
}

void Resolver::apply(Departure &departure, Function &function) {
    if (departure.word == "append-output") {
        departure.used = true;
        hide_output(departure, function);
    } else if (departure.word == "overload") {
        departure.used =
            std::count_if(model_.functions.begin(), model_.functions.end(),
                          [&](const Function &other) { return other.row == function.row; }) > 1;
    } else if (is_hand_written(departure)) {
        departure.used = true;
        function.hand_written = departure.word;
        set_visible(departure, function);
    }
}

// The native parameter that the departure names leaves the visible ones.
void Resolver::hide_output(const Departure &departure, Function &function) {
    const auto &parameters = function.parameters;
    const auto found = std::find_if(parameters.begin(), parameters.end(), [&](const Variable &one) {
        return one.name == departure.details;
    });
    const std::string wanted = "; the hidden output of '" + function.row + "' is ";
    std::string fault;
    if (found == parameters.end())
        fault = "is no parameter" + wanted + "its last one, named as the prototype names it";
    else if (found + 1 != parameters.end())
        fault = "is not the last parameter" + wanted + "its last one, or add a departure 'entry'";
    else if (!ends_with(found->type, " *") || !found->bounds.empty() ||
             number_width(found->type.substr(0, found->type.size() - 2)) != sizeof(int))
        fault = "is a '" + spelled(found->type, found->bounds) + "'" + wanted +
                "a pointer to an int, or add a departure 'entry'";
    if (!fault.empty()) {
        faults_.add(departure.place, "departure-output", "'" + departure.details + "' " + fault);
        return;
    }
    function.appended = departure.details;
    function.visible.pop_back();
}

// Details of a hand-written row: "-" where Python sees the prototype, else the visible form as a
// prototype without its name, "int unit, object pythonHam -> void".
void Resolver::set_visible(const Departure &departure, Function &function) {
    if (departure.details == "-") return;
    const std::size_t arrow = departure.details.find("-> ");
    if (arrow == std::string::npos) {
        faults_.add(departure.place, "departure-details",
                    "found '" + departure.details +
                        "'; write '-', or what Python sees: "
                        "'int unit, object any -> int'");
        return;
    }
    const std::string result = departure.details.substr(arrow + 3);
    function.visible_result = result == "void" ? "" : result;
    function.visible.clear();
    std::string rest = departure.details.substr(0, arrow);
    while (rest.find_first_not_of(' ') != std::string::npos) {
        const std::size_t comma = std::min(rest.find(','), rest.size());
        std::string one = rest.substr(0, comma);
        rest.erase(0, std::min(comma + 1, rest.size()));
        one.erase(0, one.find_first_not_of(' '));
        one.erase(one.find_last_not_of(' ') + 1);
        const std::size_t blank = one.rfind(' ');
        Variable parameter;
        parameter.place = departure.place;
        parameter.type = one.substr(0, blank);
        parameter.name = one.substr(blank + 1);
        if (parameter.type == "object") parameter.type = "PyObject *";
        parameter.conversion = convert(parameter);
        function.visible.push_back(std::move(parameter));
    }
}

}  // namespace

void resolve(Model &model, Faults &faults) { Resolver(model, faults).run(); }

std::string docstring_type(const Model &model, const Variable &variable) {
    const auto is_class = [&](const std::string &name) {
        return std::any_of(model.structs.begin(), model.structs.end(), [&](const Struct &record) {
            const auto alias = model.aliases.find(name);
            return record.name == (alias == model.aliases.end() ? name : alias->second);
        });
    };
    const std::string &type = variable.type;
    if (ends_with(type, " *") && is_class(type.substr(0, type.size() - 2)))
        return type.substr(0, type.size() - 2);
    return is_class(type) ? type : spelled(type, variable.bounds);
}

}  // namespace generator
