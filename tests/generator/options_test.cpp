// The program's own manners: its options, its totals, and what it does when it cannot write.

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

#include "driver.h"

namespace {

std::ptrdiff_t count(const std::string &text, const std::string &line) {
    const auto lines = lines_of(text);
    return std::count(lines.begin(), lines.end(), line);
}

TEST(Options, UsageErrors) {
    const std::vector<std::vector<std::string>> wrong = {{},
                                                         {"--root"},
                                                         {"--out", "somewhere"},
                                                         {"--root", "somewhere"},
                                                         {"--list-kinds"},
                                                         {"--root", "somewhere", "--out"},
                                                         {"--no-such-option"}};
    for (const auto &arguments : wrong) {
        const Outcome run = run_generator(arguments);
        EXPECT_EQ(run.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err,
                  "usage: generator --root DIR --out DIR | --list-rules | "
                  "--root DIR --list-kinds\n");
    }
}

TEST(Options, RulesAreListedOnceWithWhatTheySay) {
    const Outcome run = run_generator({"--list-rules"});
    EXPECT_EQ(run.status, 0);
    std::set<std::string> names;
    for (const auto &line : lines_of(run.out)) {
        const auto colon = line.find(": ");
        ASSERT_NE(colon, std::string::npos) << line;
        EXPECT_GT(line.size(), colon + 2) << line;
        EXPECT_TRUE(names.insert(line.substr(0, colon)).second) << line;
    }
    EXPECT_FALSE(names.empty());
}

// What a line gives and what a declaration gives, but nothing that crosses nowhere.
TEST(Options, KindsAreListedWithTheirTypes) {
    const Outcome run =
        run_generator({"--root", (tests_folder() / "small").string(), "--list-kinds"});
    EXPECT_EQ(run.status, 0);
    for (const char *line : {"signed-32\tint", "signed-32\ttiny_color_e", "unsigned-64\tuint64",
                             "text\tchar const *", "function-pointer\ttiny_cb"})
        EXPECT_EQ(count(run.out, line), 1) << line;
    EXPECT_EQ(count(run.out, "unsigned-16\tunsigned short"), 0);
}

TEST(Options, SuccessIsOneLineOfTotals) {
    const Scratch scratch;
    const Outcome run = generate(tests_folder() / "small", scratch.path());
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "checked 21 functions, 3 classes with 25 fields, 17 types, 91 rows\n");
}

TEST(Options, AnOutputThatCannotBeWritten) {
    const Scratch scratch;
    const fs::path taken = scratch.path() / "taken";
    write_text(taken, "no folder\n");
    const Outcome run = generate(tests_folder() / "small", taken);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, (taken / "generated/entries.h").string() + ": cannot be written\n");
}

// The examples beside the fields of a table's record are the words of one line of that table.
TEST(Model, ExamplesAreALineOfTheTable) {
    const fs::path project = tests_folder() / "../..";
    const std::string model = read_text(project / "generator/model/model.h");
    const std::regex field(R"((?:std::string|vector<std::string>) \w+;\s*// ([^\n]*))");
    const std::regex quoted("\"([^\"]*)\"");
    for (const auto &[record, table] : {std::pair{"TypeRow", "types"},
                                        {"KindRow", "kinds"},
                                        {"InstallRow", "constants"},
                                        {"GlobalVariable", "variables"},
                                        {"Helper", "helpers"},
                                        {"Departure", "departures"}}) {
        const auto begin = model.find("struct " + std::string(record) + " {");
        ASSERT_NE(begin, std::string::npos) << record;
        const std::string body = model.substr(begin, model.find("\n};", begin) - begin);
        std::vector<std::string> words;
        for (std::sregex_iterator at(body.begin(), body.end(), field), end; at != end; ++at) {
            const std::string comment = (*at)[1];
            for (std::sregex_iterator word(comment.begin(), comment.end(), quoted); word != end;
                 ++word)
                words.push_back((*word)[1]);
        }
        EXPECT_FALSE(words.empty()) << record;
        const auto lines =
            lines_of(read_text(project / "catalogue" / (std::string(table) + ".txt")));
        EXPECT_TRUE(std::any_of(
            lines.begin(), lines.end(),
            [&](const std::string &line) {
                const std::string bounded =
                    "|" + std::regex_replace(line, std::regex("\t"), "|") + "|";
                return std::all_of(words.begin(), words.end(), [&](const std::string &word) {
                    return bounded.find("|" + word + "|") != std::string::npos;
                });
            }))
            << record << ": " << testing::PrintToString(words);
    }
}

}  // namespace
