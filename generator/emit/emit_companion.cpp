// The tables of the companion module: the native types that it lays out, and a native callback for
// every callback type.

#include <algorithm>
#include <map>
#include <set>

#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kElements = R"(@banner@
#include "python/companion/element_of.h"

@headers@
namespace companion {

const Element elements[] = {
@elements@};

const std::size_t element_count = sizeof elements / sizeof elements[0];

}  // namespace companion
)";

const std::string kElement = R"(    @form@<@native@>("@name@", @slot@, @inner@),
)";

const std::string kCallbacks = R"(@banner@
#include "python/companion/trampoline.h"

@headers@
namespace companion {

@pointees@
const Callback callbacks[] = {
@callbacks@};

const std::size_t callback_count = sizeof callbacks / sizeof callbacks[0];

const swig_const_row callback_rows[] = {
@rows@    {SWIG_CONST_END, nullptr, 0, nullptr, nullptr},
};

PyMethodDef callback_methods[] = {
@methods@    {nullptr, nullptr, 0, nullptr},
};

}  // namespace companion
)";

const std::string kPointee = R"(template <>
inline constexpr unsigned pointee_slot<@class@> = @slot@;
)";

const std::string kCallback = R"(    callback_of<@index@, @native@>("@name@"),
)";

const std::string kRow =
    R"(    {SWIG_CONST_POINTER, "@name@_address", 0, callbacks[@index@].address,
     &swig_type_slots[@slot@]},
)";

const std::string kMethod = R"(    {"@name@", refuse_call, METH_VARARGS,
     "@name@: native callback, @signature@\nswig_ptr: @name@_address"},
)";

bool ends_with(const std::string &text, const std::string &end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::string without_const(std::string type) {
    for (std::size_t at = type.find(" const"); at != std::string::npos; at = type.find(" const"))
        type.erase(at, 6);
    return type;
}

std::string includes(const Model &model) {
    const std::string root = "platform/";
    std::string text;
    for (const auto &header : model.headers)
        if (header.rfind(root, 0) == 0) text += "#include \"" + header.substr(root.size()) + "\"\n";
    return text;
}

// The slot of a declared pointer type, 0 for none.
int slot_of_pretty(const Model &model, const std::string &name) {
    for (std::size_t i = 0; i < model.types.size(); ++i) {
        const auto &pretty = model.types[i].pretty;
        if (std::find(pretty.begin(), pretty.end(), name) != pretty.end())
            return static_cast<int>(i);
    }
    return 0;
}

// Every native type that storage is made for, by its declared name, with the slot of its pointer.
class Elements {
  public:
    explicit Elements(const Model &model) {
        for (const auto &record : model.structs) {
            structures_.insert(record.slot);
            add(record.name, record.slot);
            for (const auto &field : record.fields) add_of(field);
        }
        for (const auto &function : model.functions)
            for (const auto &parameter : function.visible) add_of(parameter);
        for (const auto &value : opaque_values(model)) add(value.type, value.slot);
        for (const auto &helper : model.helpers)
            if (helper.form == Helper::Form::box) add(helper.element, helper.element_slot);
        add("char", slot_of(model, "_p_char"));  // room for texts that the SDK writes
    }

    const std::map<std::string, int> &all() const { return all_; }

    bool is_structure(int slot) const { return structures_.contains(slot); }

  private:
    void add(const std::string &name, int slot) {
        // What is counted or abstract is made by the platform alone.
        if (name != "void" && name.find("::Ptr") == std::string::npos &&
            name != "Hardware::ChipMemory") {
            all_.emplace(name, slot);
        }
    }

    void add_of(const Variable &variable) {
        const Conversion &conversion = variable.conversion;
        const std::string &text = conversion.text;
        if (conversion.kind == Kind::pointer || conversion.kind == Kind::pointer_field) {
            // "char **" points at a "char *", "uint8 const *" at a "uint8".
            const std::string name = text.substr(0, text.size() - (ends_with(text, "**") ? 1 : 2));
            add(ends_with(name, " const") ? name.substr(0, name.size() - 6) : name,
                conversion.result_slot);
        } else if (conversion.kind == Kind::fixed_array) {
            add_array(without_const(text), conversion.slot);
        }
    }

    // "uint16 [(2)][(4)]" is an array of "uint16 [4]".
    void add_array(const std::string &text, int slot) {
        const std::size_t second = text.find("][");
        std::string name = text.substr(0, text.find(" ["));
        if (name == "char") return;
        if (second != std::string::npos) {
            std::string bound = text.substr(second + 1);
            bound.erase(std::remove(bound.begin(), bound.end(), '('), bound.end());
            bound.erase(std::remove(bound.begin(), bound.end(), ')'), bound.end());
            name += " " + bound;
        }
        add(name, slot);
    }

    std::map<std::string, int> all_;
    std::set<int> structures_;
};

std::string native_of(const std::string &name) {
    return name.find("::") == std::string::npos ? name : "::" + name;
}

struct CallbackName {
    std::string name;
    std::string native;
    int slot = 0;  // of the function type; 0 for one that travels as an opaque value
};

std::vector<CallbackName> callback_names(const Model &model) {
    std::vector<CallbackName> names;
    for (const auto &row : model.kinds)
        if (row.used && row.kind == Kind::function_pointer)
            names.push_back({row.type, row.type, slot_of_pretty(model, row.type)});
        else if (row.used && row.kind == Kind::by_value && ends_with(row.type, "_cb_t"))
            names.push_back({row.type, row.type, 0});
    for (const auto &variable : model.variables)
        if (variable.kind == "function")
            names.push_back({variable.name, variable.type, variable.slot});
    return names;
}

std::string signature_of(const Model &model, int slot) {
    for (const auto &name : model.types[static_cast<std::size_t>(slot)].pretty)
        if (name.find("(*)") != std::string::npos) return name;
    return "";
}

}  // namespace

std::string emit_companion_elements(const Model &model) {
    const Elements elements(model);
    std::string text;
    for (const auto &[name, slot] : elements.all()) {
        const bool pointer = ends_with(name, "*");
        text +=
            fill(kElement, {{"form", elements.is_structure(slot) ? "structure_of" : "element_of"},
                            {"native", native_of(name)},
                            {"name", name},
                            {"slot", std::to_string(slot)},
                            {"inner", std::to_string(slot_of_pretty(
                                          model, pointer ? without_const(name) : name))}});
    }
    return fill(kElements, {{"banner", banner("all declarations", "emit_companion.cpp")},
                            {"headers", includes(model)},
                            {"elements", text}});
}

std::string emit_companion_callbacks(const Model &model) {
    std::string pointees;
    for (const auto &record : model.structs)
        pointees += fill(kPointee, {{"class", record.name}, {"slot", std::to_string(record.slot)}});
    std::string callbacks;
    std::string rows;
    std::string methods;
    std::size_t index = 0;
    for (const auto &callback : callback_names(model)) {
        const std::map<std::string, std::string> holes = {
            {"index", std::to_string(index++)},
            {"name", callback.name},
            {"native", callback.native},
            {"slot", std::to_string(callback.slot)},
            {"signature", signature_of(model, callback.slot)}};
        callbacks += fill(kCallback, holes);
        if (callback.slot != 0) {
            rows += fill(kRow, holes);
            methods += fill(kMethod, holes);
        }
    }
    return fill(kCallbacks, {{"banner", banner("all declarations", "emit_companion.cpp")},
                             {"headers", includes(model)},
                             {"pointees", pointees},
                             {"callbacks", callbacks},
                             {"rows", rows},
                             {"methods", methods}});
}

}  // namespace generator
