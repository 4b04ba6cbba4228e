// One row's whole way, for people: declaration, kinds, messages, what it calls, and who answers.
#include <algorithm>
#include <numeric>
#include <sstream>

#include "generator/check/rows.h"
#include "generator/emit/emitters.h"

namespace generator {
namespace {

// Lines of text behind their label; without one they belong to the label before.
class Page {
  public:
    void add(const std::string &label, const std::string &text) {
        constexpr std::size_t width = 12;
        const std::string margin(width + 2, ' ');
        std::string first = "  " + label;
        first.resize(margin.size(), ' ');
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) {
            if (line.empty()) continue;  // the docstring of an overload begins on a line of its own
            text_ += first + line + "\n";
            first = margin;
        }
    }
    std::string text_;
};

// "pointer, slot _p_int"
std::string kind_text(const Model &model, const Conversion &conversion, int slot) {
    const KindTraits &kind = traits(conversion.kind);
    if (!kind.typed) return kind.name;
    return std::string(kind.name) + ", slot " + slot_name(model, slot).substr(7);
}

std::string prototype(const Function &function) {
    std::string parameters;
    for (const auto &parameter : function.parameters)
        parameters += (parameters.empty() ? "" : ", ") + declared(parameter, parameter.name);
    Variable result;
    result.type = function.result;
    return declared(result, function.native) + "(" + (parameters.empty() ? "void" : parameters) +
           ");";
}

void add_declaration(const Model &model, const Row &row, Page &page) {
    const auto add = [&](const Place &place, const std::string &text) {
        page.add("declared", text_of(place));
        page.add("", text);
    };
    for (const auto &function : model.functions)
        if (row.function != nullptr && function.row == row.name)
            add(function.place, prototype(function));
    if (row.field != nullptr)
        add(row.field->place, declared(*row.field, row.field->name) + ";");
    else if (row.record != nullptr)
        add(row.record->place,
            std::string(row.record->is_union ? "union " : "struct ") + row.record->tag);
    if (row.helper != nullptr)
        add(row.helper->place, std::string(traits(row.role).name) + " " + row.helper->name +
                                   " of " + row.helper->element);
}

void add_departures(const Model &model, const std::string &name, Page &page) {
    for (const auto &departure : model.departures) {
        if (departure.row != name) continue;
        page.add("departure", departure.word +
                                  (departure.details == "-" ? "" : ", " + departure.details) +
                                  " (" + text_of(departure.place) + ")");
        page.add("", departure.reason);
    }
}

void add_arguments(const Model &model, const Row &row, Page &page) {
    for (std::size_t i = 0; i < row.arguments.size(); ++i) {
        const RowArgument &argument = row.arguments[i];
        page.add("argument " + std::to_string(i + 1),
                 (argument.name.empty() ? "" : argument.name + ": ") + argument.type + ", " +
                     kind_text(model, argument.conversion, argument.conversion.slot));
        for (const auto &message : {argument.text, argument.null_text})
            if (!message.empty()) page.add("", message);
    }
    if (!row.field_null_text.empty()) page.add("", row.field_null_text);
}

void add_result(const Model &model, const Row &row, Page &page) {
    if (row.result_type.empty())
        page.add("result", "none");
    else if (row.function != nullptr && row.function->hand_written != "")
        page.add("result", row.result_type + ", made by hand");
    else
        page.add("result",
                 row.result_type + ", " + kind_text(model, row.result, row.result.result_slot));
    if (row.function != nullptr && !row.function->appended.empty())
        page.add("", "and the value of '" + row.function->appended + "', in one list");
}

std::string native_text(const Row &row) {
    if (row.field != nullptr) {
        return "none; field at offset " + std::to_string(row.field->offset) + " of '" +
               row.record->name + "'";
    }
    if (row.record != nullptr)
        return "none; class of " + std::to_string(row.record->size) + " bytes";
    if (row.function == nullptr) return "none";
    const std::string by_hand = row.function->hand_written.empty()
                                    ? ""
                                    : ", called by ombra::rows::" + row.name + " of api/";
    return row.function->native + by_hand;
}

void add_answer(const Model &model, const Function &function, Page &page) {
    if (function.module_native) {
        page.add("answers", "the module itself");
    } else if (!function.modelled.file.empty()) {
        page.add("answers", text_of(function.modelled));
    } else {
        const GeneratedAnswer answer = generated_answer(model, function);
        page.add("answers", "rule " + answer.rule);
        for (const auto &[label, value] : {std::pair("family ", &answer.family),
                                           {"key ", &answer.key},
                                           {"values ", &answer.values}})
            if (!value->empty()) page.add("", label + *value);
    }
}

// The number of letters to put in, take out or change.
std::size_t distance(const std::string &from, const std::string &to) {
    std::vector<std::size_t> costs(to.size() + 1);
    std::iota(costs.begin(), costs.end(), 0);
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = costs[0];
        costs[0] = i + 1;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t changed = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = costs[j + 1];
            costs[j + 1] = std::min({changed, costs[j] + 1, diagonal + 1});
        }
    }
    return costs.back();
}

}  // namespace

std::string explain(const Model &model, const std::string &name) {
    const std::vector<Row> rows = all_rows(model);
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row &one) {
        return one.name == name || (one.function != nullptr && one.function->native == name);
    });
    if (row == rows.end()) return "";
    Page page;
    page.text_ = row->name + "\n";
    add_declaration(model, *row, page);
    add_departures(model, row->name, page);
    page.add("docstring", row->doc.empty() ? "none" : row->doc);
    add_arguments(model, *row, page);
    add_result(model, *row, page);
    page.add("native", native_text(*row));
    if (row->function != nullptr) add_answer(model, *row->function, page);
    return page.text_;
}

std::vector<std::string> near_names(const Model &model, const std::string &name) {
    constexpr std::size_t most = 5;
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const auto &row : all_rows(model)) {
        const std::size_t away = distance(name, row.name);
        if (away <= name.size() / 3) near.emplace_back(away, row.name);
    }
    std::sort(near.begin(), near.end());
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::min(most, near.size()); ++i) names.push_back(near[i].second);
    return names;
}

}  // namespace generator
