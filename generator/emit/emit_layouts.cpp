// How the SDK's structures and the rows of the stand-in's generic tables lie in memory, as tables
// for those who show and compare the stand-in's state.
#include <algorithm>
#include <map>

#include "generator/emit/emitters.h"
#include "generator/emit/output.h"
#include "generator/standin/plan.h"

namespace generator {
namespace {

const std::string kFile = R"(@banner@
#include "standin/model/layouts.h"

namespace standin {
namespace {

@fields@
const StructLayout kStructs[] = {
@structs@};

const FamilyLayout kFamilies[] = {
@families@};

}  // namespace

const std::span<const StructLayout> struct_layouts(kStructs);
const std::span<const FamilyLayout> family_layouts(kFamilies);

}  // namespace standin
)";

std::string number(std::size_t value) { return std::to_string(value); }

class Layouts {
  public:
    explicit Layouts(const Model &model) : model_(model), shapes_(model) {
        for (const auto &record : model.structs) places_.emplace(record.name, 0);
        std::size_t place = 0;
        for (auto &[name, at] : places_) at = place++;
    }

    std::string text() {
        std::map<std::string, const Struct *> records;
        for (const auto &record : model_.structs) records.emplace(record.name, &record);
        std::string structs;
        for (const auto &[name, record] : records)
            structs += "    {" + quoted(name) + ", " + fields_of(*record) + "},\n";
        std::string families;
        for (const auto &[family, columns] : families_of())
            families += "    {" + quoted(family) + ", " + number(columns.key) + ", " +
                        array(columns.fields) + "},\n";
        return fill(kFile, {{"banner", banner("all declarations", "emit_layouts.cpp")},
                            {"fields", fields_},
                            {"structs", structs},
                            {"families", families}});
    }

  private:
    struct Family {
        std::size_t key = 0;
        std::map<std::size_t, std::string> fields;  // by offset
    };

    // "{"port", 8, 4, 1, LayoutForm::kSigned, 0}": `bytes` of a declared type at an offset. A
    // parameter that is an address stands for what lies there.
    std::string field(std::string type, bool parameter, const std::string &name, std::size_t offset,
                      std::size_t bytes) const {
        if (parameter && type.ends_with(" *") && type != "void *") type.resize(type.size() - 2);
        Variable element;
        element.type = type;
        const Shape shape = shapes_.of(element);
        const std::string native = native_of(type);
        std::string form = "kBytes";
        std::size_t size = bytes;
        std::size_t inner = 0;
        if (type == "bcm_mac_t") {
            form = "kMac";
        } else if (type == "bcm_pbmp_t") {
            form = "kPortSet";
            size = shape.size;
        } else if (native.find('*') != std::string::npos) {
            form = "kPointer";
        } else if (shape.record != nullptr && !shape.record->is_union) {
            form = "kStruct";
            size = shape.record->size;
            inner = places_.at(shape.record->name);
        } else if (shape.number && shape.size <= sizeof(std::int64_t)) {
            form = native.find("unsigned") != std::string::npos ? "kUnsigned" : "kSigned";
            size = shape.size;
        }
        if (size == 0 || bytes % size != 0) size = bytes;
        return "{" + quoted(name) + ", " + number(offset) + ", " + number(size) + ", " +
               number(bytes / size) + ", LayoutForm::" + form + ", " + number(inner) + "}";
    }

    // The C type behind names for it.
    std::string native_of(const std::string &type) const {
        for (const auto &known : model_.typedefs)
            if (known.name == type) return native_of(known.type);
        return type;
    }

    std::string fields_of(const Struct &record) {
        std::map<std::size_t, std::string> fields;
        for (const auto &one : record.fields)
            fields.emplace(one.offset,
                           field(one.type, false, one.name, one.offset, shapes_.field_size(one)));
        return array(fields);
    }

    // Where each binding of each function says what lies in the rows of its family.
    std::map<std::string, Family> families_of() const {
        std::map<std::string, Family> families;
        const std::vector<Plan> &plans = plans_of(model_);
        for (std::size_t i = 0; i < model_.functions.size(); ++i) {
            const Function &function = model_.functions[i];
            const Plan &plan = plans[i];
            if (!function.modelled.file.empty() || !plan.layer.starts_with("generic")) continue;
            Family &family = families[plan.family];
            family.key = std::max(family.key, plan.key);
            for (const auto &binding : plan.bindings) {
                const bool asked = binding.role == "select" && binding.row >= plan.key;
                if (!binding.role.starts_with("list") && binding.role != "flags" && !asked)
                    add_column(function, binding, family);
            }
        }
        return families;
    }

    void add_column(const Function &function, const PlanBinding &binding, Family &family) const {
        const Variable &parameter = function.parameters[binding.argument];
        const std::string name = bound_name(shapes_, function, binding);
        const Shape shape = shapes_.of(parameter);
        if (shape.record != nullptr && binding.size != shape.size) {
            for (const auto &one : shape.record->fields)
                if (one.offset == binding.at)
                    family.fields.emplace(binding.row,
                                          field(one.type, false, name, binding.row, binding.size));
        } else {
            family.fields.emplace(binding.row, field(parameter.type, binding.memory, name,
                                                     binding.row, binding.size));
        }
    }

    std::string array(const std::map<std::size_t, std::string> &fields) {
        if (fields.empty()) return "{}";
        const std::string name = "fields_" + number(arrays_++);
        fields_ += "const LayoutField " + name + "[] = {\n";
        for (const auto &[offset, text] : fields) fields_ += "    " + text + ",\n";
        fields_ += "};\n";
        return name;
    }

    const Model &model_;
    Shapes shapes_;
    std::map<std::string, std::size_t> places_;
    std::string fields_;
    std::size_t arrays_ = 0;
};

}  // namespace

std::string emit_layouts(const Model &model) { return Layouts(model).text(); }

}  // namespace generator
