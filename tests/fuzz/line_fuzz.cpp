// Any bytes as a line that is being typed, and as what stands behind a command.
#include "fuzz.h"
#include "helper/device.h"
#include "sdk/soc/init.h"
#include "standin/shell/complete.h"
#include "standin/shell/matcher.h"
#include "standin/shell/pipe.h"

using namespace standin;

namespace {

constexpr RowColumn kColumns[] = {{"number", ">Number", CellKind::kNumber},
                                  {"text", "Text", CellKind::kText}};

void complete(std::string_view line) {
    const Completion made = complete_line(line, 0);
    fuzz::must(made.begin <= line.size(), "the word begins in the line");
    const std::string more = common_end(made, line);
    if (!more.empty() && more.back() != ' ')
        for (const Candidate &one : made.candidates)
            fuzz::must(
                one.word.empty() || one.word.size() >= line.size() - made.begin + more.size(),
                "what is added belongs to every candidate");
    for (char sign : completion_text(made, 40))
        fuzz::must(sign == '\n' || static_cast<unsigned char>(sign) >= ' ',
                   "nothing moves the cursor");
}

void filter(const Words &words, std::string_view line) {
    Pipe pipe = read_pipe(words, false, true);
    pipe.file.clear();
    if (!pipe.fault.empty() || pipe.stages.empty()) return;
    Rows rows(kColumns);
    rows.row({1, "one"});
    rows.row({2, std::string(line)});
    Capture capture;
    const bool done = run_pipe(pipe, {rows});
    fuzz::must(done || !capture.text().empty(), "a stage that cannot be is told");
    for (char sign : capture.text())
        fuzz::must(sign == '\n' || static_cast<unsigned char>(sign) >= ' ', "cells are escaped");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const bool ready = addOmbraDevice(0, 1, 0, 0) >= 0 && soc_init(0) >= 0;
    fuzz::must(ready, "a switch");
    const std::string_view line = fuzz::text_of(data, size);
    complete(line);
    for (const std::string &command : split_commands(line).commands) {
        const Words words = read_command_words(command, [](std::string_view) { return "$"; });
        if (words.fault || words.words.empty()) continue;
        filter(words, line);
        Match match(0, true, words, command);
        fuzz::must(match.whole() || match.form() != nullptr, "a form or a fault");
    }
    return 0;
}
