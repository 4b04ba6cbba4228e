// Reading and running what stands behind a command.
#include "standin/shell/pipe.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "standin/base/config_file.h"
#include "standin/base/scan.h"
#include "standin/shell/commands.h"
#include "standin/shell/values.h"

namespace standin {
namespace {

constexpr Filter kFilters[] = {
    {"begin", "PATTERN", "Rows from the first that holds the pattern on", "ps | begin xe4"},
    {"columns", "KEYS", "These columns in this order", "ps | columns port,speed"},
    {"count", nullptr, "How many rows", "l2 | count"},
    {"exclude", "PATTERN", "Rows without the pattern", "ps | exclude down"},
    {"include", "PATTERN", "Rows with the pattern", "l2 | include xe3"},
    {"json", nullptr, "A list of objects, for programs", "l2 | json"},
    {"sort", "KEY", "Rows by a column, '-' before it for the greatest first", "ps | sort -speed"},
};
constexpr RowColumn kLines[] = {{"line", "Line", CellKind::kText}};

Rows table_of_lines(std::string_view text) {
    Rows lines(kLines, "{line}");
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.row({std::string(text.substr(0, end))});
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

// One table out of all that was printed; nothing where there are tables of several kinds.
std::optional<Rows> one_table(std::vector<RowCatcher::Item> &items) {
    std::optional<Rows> all;
    std::string text;
    for (RowCatcher::Item &item : items) {
        if (const std::string *const words = std::get_if<std::string>(&item)) {
            text += *words;
            continue;
        }
        Rows &rows = std::get<Rows>(item);
        if (!all) {
            all = std::move(rows);
            continue;
        }
        if (all->columns().data() != rows.columns().data()) return std::nullopt;
        all->append(rows);
    }
    return all ? all : table_of_lines(text);
}

// What the stages have made so far: a table, or a text that is no table any more.
struct Flow {
    Rows rows;
    std::optional<std::string> text;
};

std::string keys_of(const Rows &rows) {
    std::vector<std::string> keys;
    for (const RowColumn &column : rows.columns()) keys.emplace_back(column.key);
    return list_text(keys);
}

// Why the stage cannot be; empty when it has been.
std::string run_stage(const Stage &stage, Flow &flow) {
    const std::string_view name = stage.filter->name;
    Rows &rows = flow.rows;
    if (flow.text) return std::string(name) + ": nothing is left to filter";
    const auto holds = [&](std::string_view line) { return name_matches(line, stage.word); };
    if (name == "include") {
        rows.keep(holds);
    } else if (name == "exclude") {
        rows.keep([&](std::string_view line) { return !holds(line); });
    } else if (name == "begin") {
        bool begun = false;
        rows.keep([&](std::string_view line) { return begun = begun || holds(line); });
    } else if (name == "count") {
        flow.text = std::to_string(rows.size()) + '\n';
    } else if (name == "json") {
        flow.text = json_text(rows);
    } else if (name == "sort") {
        const bool down = stage.word.starts_with('-');
        if (!rows.sort(std::string_view(stage.word).substr(down ? 1 : 0), down))
            return "sort " + escaped(stage.word) + ": " + keys_of(rows);
    } else {
        std::vector<std::string> keys;
        for (std::string_view key : split(stage.word, ",")) keys.emplace_back(key);
        if (keys.empty() || !rows.choose(keys))
            return "columns " + escaped(stage.word) + ": " + keys_of(rows);
    }
    return {};
}

void tell(const RowCatcher::Item &item) {
    if (const std::string *const words = std::get_if<std::string>(&item))
        out(*words);
    else
        std::get<Rows>(item).show();
}

bool store(const Pipe &pipe, const std::string &text) {
    std::string before;
    if (pipe.append) read_file(pipe.file, before);
    if (write_file(pipe.file, {}, before + text)) return true;
    out_fault(pipe.file + ": " + std::strerror(errno));
    return false;
}

}  // namespace

std::span<const Filter> all_filters() { return kFilters; }

Pipe read_pipe(const Words &words, bool compares, bool prefix) {
    Pipe pipe;
    const auto is = [&](std::size_t at, std::string_view sign) {
        return words.places[at].plain && words.words[at] == sign;
    };
    const auto is_file = [&](std::size_t at) { return !compares && (is(at, ">") || is(at, ">>")); };
    std::size_t at = 0;
    while (at < words.words.size() && !is(at, "|") && !is_file(at)) ++at;
    pipe.words = at;
    std::vector<const char *> names;
    for (const Filter &filter : kFilters) names.push_back(filter.name);
    while (at < words.words.size()) {
        const bool file = is_file(at);
        pipe.append = is(at, ">>");
        if (++at == words.words.size()) {
            pipe.fault = file ? "'>' needs a file" : "| needs a filter";
            return pipe;
        }
        const std::string &word = words.words[at++];
        if (file) {
            pipe.file = word;
            if (at < words.words.size()) pipe.fault = "nothing may stand behind the file";
            return pipe;
        }
        const std::optional<std::size_t> which = one_of(names, word, prefix);
        if (!which) {
            const std::string near = nearest(word, {names.begin(), names.end()});
            pipe.fault = "| " + escaped(word) + ": " + list_text({names.begin(), names.end()}) +
                         (near.empty() ? "" : "; did you mean '" + near + "'?");
            return pipe;
        }
        Stage stage{&kFilters[*which], {}};
        while (stage.filter->word != nullptr && at < words.words.size() && !is(at, "|") &&
               !is_file(at))
            stage.word += (stage.word.empty() ? "" : " ") + words.words[at++];
        if (stage.filter->word != nullptr && stage.word.empty())
            pipe.fault = std::string("| ") + stage.filter->name + ": " + stage.filter->word +
                         " is missing, as " + stage.filter->example;
        else if (at < words.words.size() && !is(at, "|") && !is_file(at))
            pipe.fault = std::string("| ") + stage.filter->name + ' ' + escaped(words.words[at]) +
                         ": one word too many";
        if (!pipe.fault.empty()) return pipe;
        pipe.stages.push_back(std::move(stage));
    }
    return pipe;
}

bool run_pipe(const Pipe &pipe, std::vector<RowCatcher::Item> items) {
    if (pipe.stages.empty()) {
        std::string text;
        for (const RowCatcher::Item &item : items) {
            const std::string *const words = std::get_if<std::string>(&item);
            text += words != nullptr ? *words : std::get<Rows>(item).text();
        }
        return store(pipe, text);
    }
    std::optional<Rows> rows = one_table(items);
    if (!rows) {
        out_fault("| the tables differ: filter each command");
        return false;
    }
    Flow flow{*rows, std::nullopt};
    for (const Stage &stage : pipe.stages) {
        const std::string fault = run_stage(stage, flow);
        if (fault.empty()) continue;
        out_fault("| " + fault);
        return false;
    }
    if (!pipe.file.empty()) return store(pipe, flow.text ? *flow.text : flow.rows.text());
    if (flow.text)
        out(*flow.text);
    else
        tell(flow.rows);
    return true;
}

}  // namespace standin
