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
                  "--root DIR --list-kinds | --root DIR --explain ROW\n");
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

// A row of every role is told from its declaration to who answers; an unknown one by its
// neighbours.
TEST(Options, ExplainTellsTheWayOfARow) {
    const Scratch scratch;
    copy_small(scratch.path());
    write_text(scratch.path() / "standin/one.cpp", "// One.\nint tiny_none() { return 0; }\n");
    const std::string method = "in method '";
    const std::pair<const char *, std::vector<std::string>> rows[] = {
        {"tiny_none",
         {"declared platform/sdk/bcm/tiny.h:7", "int tiny_none(void);",
          "docstring tiny_none() -> int", "result int, signed-32", "native tiny_none",
          "answers standin/one.cpp:2"}},
        {"tiny_speed_get",
         {"int tiny_speed_get(int unit, tiny_port_t port, int *speed);",
          "argument 3 speed: int *, pointer, slot _p_int",
          method + "tiny_speed_get', argument 3 of type 'int *'", "answers rule generic-pair",
          "family tiny_speed", "key port", "values speed"}},
        {"tiny_create",
         {"departure append-output, id (catalogue/departures.txt:2)",
          "the new id is what callers want", "and the value of 'id', in one list",
          "answers rule unavailable"}},
        {"Tiny::find",
         {"declared platform/helper/tiny_cxx.h:7", "declared platform/helper/tiny_cxx.h:8",
          "find(unit) -> int", "native Tiny::find, called by ombra::rows::find of api/"}},
        {"tiny_test", {"answers the module itself"}},
        {"tiny_all_t_vector_set",
         {"declared platform/sdk/bcm/tiny_types.h:24", "tiny_vector_t vector;",
          "invalid null reference " + method +
              "tiny_all_t_vector_set', argument 1 of type 'tiny_all_t *'",
          "invalid null reference in variable 'vector' of type 'unsigned int "
          "[_SHR_BITDCLSIZE(tinyLast)]'",
          "result none"}},
        {"new_tiny_pair_t", {"struct tiny_pair_s", "native none; class of 8 bytes"}},
        {"intp_value", {"declared catalogue/helpers.txt:3", "box intp of int", "native none"}}};
    const auto explained = [&](const std::string &row) {
        return run_generator({"--root", scratch.path().string(), "--explain", row});
    };
    for (const auto &[row, lines] : rows) {
        const Outcome run = explained(row);
        EXPECT_EQ(run.status, 0) << row << run.err;
        const std::string flat = std::regex_replace(run.out, std::regex(" +"), " ");
        for (const auto &line : lines)
            EXPECT_TRUE(count(flat, " " + line) == 1) << line << "\n" << run.out;
    }
    const Outcome unknown = explained("tiny_sped_set");
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.out, "");
    EXPECT_EQ(lines_of(unknown.err).at(1), "  near it: tiny_speed_set");
}

TEST(Options, SuccessIsOneLineOfTotals) {
    const Scratch scratch;
    const Outcome run = generate(tests_folder() / "small", scratch.path());
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "checked 21 functions, 3 classes with 25 fields, 14 types, 91 rows\n");
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
