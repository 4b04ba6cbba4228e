// Any bytes as a line of the shell.
#include "fuzz.h"
#include "standin/shell/reader.h"

using namespace standin;

namespace {

// A word that stands for itself in a line.
std::string quoted(const std::string &word) {
    std::string text = "'";
    for (char sign : word) text += sign == '\'' ? std::string("'\\''") : std::string(1, sign);
    return text + '\'';
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    auto lookup = [](std::string_view name) { return '<' + std::string(name) + '>'; };
    std::string line(fuzz::text_of(data, size));
    while (take_continuation(line)) {
    }
    for (const std::string &command : split_commands(line).commands) {
        std::string_view rest = command;
        take_unit_prefix(rest);
        Words read = read_command_words(rest, lookup);
        if (read.fault) continue;
        std::string again;
        for (const std::string &word : read.words) again += quoted(word) + ' ';
        fuzz::must(read_command_words(again, lookup).words == read.words, "quoted words");
        SplitLine split = split_commands(again);
        fuzz::must(!split.fault && split.commands.size() == (read.words.empty() ? 0 : 1),
                   "quoted words are one command");
    }
    return 0;
}
