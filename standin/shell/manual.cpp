// Texts made from the declarations.
#include "standin/shell/manual.h"

#include "standin/shell/pipe.h"
#include "standin/shell/values.h"

namespace standin {
namespace {

std::string usage_word(const Param &param) {
    std::string word = param.name;
    if (param.how == Param::How::kOption) word += '=' + placeholder(param);
    return param.repeats ? word + "..." : word;
}

// What can stand there, for a reader: the range, the words, or an example.
std::string what_of(const Param &param) {
    if (param.how == Param::How::kFlag) return "given or not";
    return right_there(param);
}

std::string join_keys(std::span<const RowColumn> columns) {
    std::string keys;
    for (const RowColumn &column : columns)
        keys += (keys.empty() ? "`" : ", `") + std::string(column.key) + '`';
    return keys;
}

std::string cell_of(std::string text) {
    for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2)
        text.insert(at, "\\");
    return text;
}

void add_form(std::string &page, const Command &command, const Form &form) {
    page += "\n`" + usage_of(command, form) + "`\n: " + form.help + ". Example: `" + form.example +
            "`\n";
    if (!form.columns.empty()) page += "  Columns: " + join_keys(form.columns) + ".\n";
    if (form.layout != nullptr) page += "  Fields: those of `" + std::string(form.layout) + "`.\n";
    if (form.params.empty()) return;
    page += "\n| word | what | values |\n|---|---|---|\n";
    for (const Param &param : form.params)
        page += "| `" + cell_of(usage_word(param)) + "` | " + cell_of(param.help) + " | " +
                cell_of(what_of(param)) + " |\n";
}

}  // namespace

std::string usage_of(const Command &command, const Form &form) {
    std::string usage = command.name;
    if (*form.name != '\0') usage += ' ' + std::string(form.name);
    char group = 0;
    std::string open;
    const auto end_group = [&] {
        if (!open.empty()) usage += open;
        open.clear();
        group = 0;
    };
    for (std::size_t at = 0; at < form.params.size(); ++at) {
        const Param &param = form.params[at];
        const std::string word = usage_word(param);
        if (param.group != 0 && param.group == group) {
            open.insert(open.size() - 1, " | " + word);
            continue;
        }
        end_group();
        const std::string whole = param.needed && param.group == 0 ? word
                                  : param.needed                   ? '(' + word + ')'
                                                                   : '[' + word + ']';
        group = param.group;
        open = ' ' + whole;
    }
    end_group();
    return usage;
}

std::string help_of(const Command &command, const Form &form) {
    static constexpr RowColumn kColumns[] = {{"word", "Word", CellKind::kText},
                                             {"help", "What it is", CellKind::kText},
                                             {"values", "What may stand there", CellKind::kText},
                                             {"example", "Example", CellKind::kText}};
    std::string text = std::string(form.help) + "\nusage: " + usage_of(command, form) +
                       "\nexample: " + form.example + '\n';
    if (form.params.empty()) return text;
    Rows rows(kColumns);
    for (const Param &param : form.params)
        rows.row({usage_word(param), param.help, what_of(param), example_of(param)});
    return text + rows.text(out_screen().width);
}

std::string help_of(const Command &command) {
    if (command.forms.size() == 1) {
        std::string text = help_of(command, command.forms.front());
        return command.more == nullptr ? text : text + command.more + '\n';
    }
    static constexpr RowColumn kColumns[] = {{"form", "Form", CellKind::kText},
                                             {"help", "What it does", CellKind::kText}};
    Rows rows(kColumns);
    for (const Form &form : command.forms) rows.row({usage_of(command, form), form.help});
    std::string text = std::string(command.help) + '\n' + rows.text(out_screen().width);
    if (command.more != nullptr) text += std::string(command.more) + '\n';
    return text + "'help " + command.name + " WORD' tells more of a form.\n";
}

std::string manual_text() {
    std::string page = "## Commands\n";
    for (const Command *command : all_commands()) {
        page += "\n### " + std::string(command->name) + "\n\n" + command->help + ".\n";
        if (command->more != nullptr) page += std::string(command->more) + '\n';
        for (const Form &form : command->forms) add_form(page, *command, form);
    }
    page += "\n## Filters\n\n| filter | what it keeps | example |\n|---|---|---|\n";
    for (const Filter &filter : all_filters()) {
        const std::string word = filter.word == nullptr ? "" : ' ' + std::string(filter.word);
        page += "| `" + std::string(filter.name) + word + "` | " + filter.help + " | `" +
                cell_of(filter.example) + "` |\n";
    }
    return page;
}

std::string prefixes_text() {
    std::string text;
    for (const Command *command : all_commands()) {
        const std::string name = command->name;
        std::size_t length = 1;
        while (length < name.size() && find_command(name.substr(0, length), true) != command)
            ++length;
        text += name.substr(0, length) +
                (length < name.size() ? '[' + name.substr(length) + ']' : "") + '\n';
    }
    return text;
}

}  // namespace standin
