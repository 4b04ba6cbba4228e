// Completion: the commands before the cursor are read as they would be run, and asked what follows.
#include "standin/shell/complete.h"

#include <algorithm>

#include "standin/base/scan.h"
#include "standin/shell/fields.h"
#include "standin/shell/matcher.h"
#include "standin/shell/pipe.h"
#include "standin/shell/session.h"

namespace standin {
namespace {

// Where the last command of the line begins, its last word, and the quote that is open there.
struct Cursor {
    std::size_t command = 0;
    std::size_t word = 0;
    std::size_t inside = 0;  // behind the open quote
    char quote = '\0';
    bool comment = false;
};

Cursor cursor_of(std::string_view line) {
    Cursor cursor;
    bool in_word = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char sign = line[at];
        if (cursor.quote != '\0') {
            if (sign == '\\' && cursor.quote == '"') ++at;
            if (sign == cursor.quote) cursor.quote = '\0';
            continue;
        }
        if (is_blank(sign) || sign == ';') {
            in_word = false;
            cursor.word = at + 1;
            if (sign == ';') cursor.command = at + 1;
            continue;
        }
        if (sign == '#' && !in_word) {
            cursor.comment = true;
            return cursor;
        }
        in_word = true;
        if (sign == '\\') ++at;
        if (sign == '"' || sign == '\'') {
            cursor.quote = sign;
            cursor.inside = at + 1;
        }
    }
    cursor.word = std::min(cursor.word, line.size());
    return cursor;
}

void add_matching(std::vector<Candidate> &all, std::string_view begun, std::string word,
                  std::string help) {
    if (starts_with_word(word, begun)) all.push_back({std::move(word), std::move(help)});
}

// Behind `|` or `>`.
void complete_pipe(const Words &words, std::size_t from, std::string_view begun,
                   std::span<const RowColumn> columns, Completion &made) {
    std::size_t sign = words.words.size();
    while (sign > from && !(words.places[sign - 1].plain &&
                            (words.words[sign - 1] == "|" || words.words[sign - 1].front() == '>')))
        --sign;
    const std::string &last = words.words[sign - 1];
    if (last != "|") {
        made.candidates = candidates(place("FILE", Kind::kFile, "file"), begun, {});
        return;
    }
    if (sign == words.words.size()) {
        for (const Filter &filter : all_filters())
            add_matching(made.candidates, begun, filter.name, filter.help);
        return;
    }
    const std::string &filter = words.words[sign];
    if (filter != "columns" && filter != "sort") return;
    const std::size_t comma = begun.rfind(',');
    const std::string head(begun.substr(0, comma == std::string_view::npos ? 0 : comma + 1));
    for (const RowColumn &column : columns) {
        std::string_view heading = view_of(column.heading);
        if (heading.starts_with('>')) heading.remove_prefix(1);
        add_matching(made.candidates, begun, head + column.key, std::string(heading));
    }
}

// The variable that is being typed, if one is: `$na`, `${na`.
bool complete_variable(std::string_view word, Completion &made) {
    const std::size_t dollar = word.rfind('$');
    if (dollar == std::string_view::npos) return false;
    const bool braces = word.substr(dollar + 1).starts_with('{');
    const std::string head(word.substr(0, dollar + (braces ? 2 : 1)));
    const std::string_view name = word.substr(head.size());
    const bool inside = std::all_of(name.begin(), name.end(),
                                    [](char sign) { return is_alnum(sign) || sign == '_'; });
    if (!inside) return false;
    for (const auto &[variable, value] : Shell::instance().variables())
        add_matching(made.candidates, word, head + variable + (braces ? "}" : ""), value);
    add_matching(made.candidates, word, head + "unit" + (braces ? "}" : ""), "the unit");
    return true;
}

// One command up to the cursor; `text` is what stands before the word `begun`.
void complete_command(std::string_view text, std::string_view begun, int unit, Completion &made) {
    if (const std::optional<UnitPrefix> prefix = take_unit_prefix(text))
        if (!prefix->every) unit = prefix->unit;
    const Words words = read_command_words(
        text, [](std::string_view name) { return Shell::instance().variable(name); });
    if (words.words.empty()) {
        for (const Command *command : all_commands())
            add_matching(made.candidates, begun, command->name, command->help);
        return;
    }
    const Command *const first = find_command(words.words.front(), true);
    Pipe pipe = read_pipe(words, first != nullptr && first->compares, true);
    if (first != nullptr && takes_rest(*first)) pipe.words = words.words.size();
    Words own = words;
    own.words.resize(pipe.words);
    own.places.resize(pipe.words);
    if (own.words.empty()) return;
    const Match match(unit, true, own, text);
    if (match.form() != nullptr) {
        made.usage = usage_of(*match.command(), *match.form());
        if (match.rest_from()) {
            complete_command(text.substr(words.places[*match.rest_from()].begin), begun, unit,
                             made);
            return;
        }
    }
    if (pipe.words < words.words.size()) {
        complete_pipe(
            words, pipe.words, begun,
            match.form() == nullptr ? std::span<const RowColumn>() : columns_of(*match.form()),
            made);
        return;
    }
    if (match.fault()) {
        made.fault = match.fault()->text;
        // Words of a form that is not whole: `field entry`.
        made.candidates = match.forms_behind(begun);
        if (!made.candidates.empty()) made.fault.clear();
        return;
    }
    made.candidates = match.next(begun);
}

}  // namespace

Completion complete_line(std::string_view line, int unit) {
    const Cursor cursor = cursor_of(line);
    Completion made;
    if (cursor.comment) return made;
    // Commands in quotes are completed as if they stood alone.
    if (cursor.quote != '\0' && cursor.inside == cursor.word + 1) {
        made = complete_line(line.substr(cursor.inside), unit);
        made.begin += cursor.inside;
        return made;
    }
    made.begin = cursor.word;
    const std::string_view begun = line.substr(cursor.word);
    if (cursor.quote != '\'' && complete_variable(begun, made)) return made;
    if (cursor.quote != '\0') return made;
    complete_command(trim_left(line.substr(cursor.command, cursor.word - cursor.command)), begun,
                     unit, made);
    std::stable_sort(
        made.candidates.begin(), made.candidates.end(),
        [](const auto &one, const auto &other) { return one.word.empty() < other.word.empty(); });
    return made;
}

std::string common_end(const Completion &completion, std::string_view line) {
    std::vector<std::string_view> words;
    for (const Candidate &one : completion.candidates)
        if (!one.word.empty()) words.push_back(one.word);
    const std::size_t typed = line.size() - completion.begin;
    if (words.empty() || words.front().size() < typed) return {};
    std::string common(words.front());
    for (std::string_view word : words) {
        std::size_t same = 0;
        while (same < common.size() && same < word.size() &&
               to_lower(common[same]) == to_lower(word[same]))
            ++same;
        common.resize(same);
    }
    if (words.size() == 1 && !common.ends_with('=') && !common.ends_with('/')) common += ' ';
    return common.size() > typed ? common.substr(typed) : std::string();
}

std::string completion_text(const Completion &completion, int width) {
    constexpr std::size_t kMost = 200;
    static constexpr RowColumn kColumns[] = {{"word", "", CellKind::kText},
                                             {"help", "", CellKind::kText}};
    if (!completion.fault.empty()) return completion.fault + '\n';
    Rows rows(kColumns);
    std::string advice;
    for (const Candidate &one : completion.candidates)
        if (one.word.empty())
            advice += "  " + one.help + '\n';
        else if (rows.size() < kMost)
            rows.row({"  " + one.word, one.help});
    std::string text = rows.size() == 0 ? "" : rows.text(width);
    for (int line = 0; line < 2 && !text.empty(); ++line) text.erase(0, text.find('\n') + 1);
    if (completion.candidates.size() > kMost)
        text += "  ... " + std::to_string(completion.candidates.size()) + " in all\n";
    if (text.empty() && advice.empty()) text = "  <end of the command>\n";
    const std::string usage = completion.usage.empty() ? "" : "usage: " + completion.usage + '\n';
    return usage + text + advice;
}

}  // namespace standin
