// The program's own manners: its options, its totals, and what it does when it cannot write.

#include <gtest/gtest.h>

#include <set>

#include "driver.h"

namespace {

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

// Every line of the kinds table with its group.
TEST(Options, KindsAreListedWithTheirTypes) {
    const fs::path small = tests_folder() / "small";
    std::multiset<std::string> expected;
    std::string kind;
    for (const auto &line : lines_of(read_text(small / "catalogue/kinds.txt")))
        if (line[0] == '[')
            kind = line.substr(1, line.find_first_of(" ]") - 1);
        else if (line[0] != '#')
            expected.insert(kind + "\t" + line);
    const Outcome run = run_generator({"--root", small.string(), "--list-kinds"});
    EXPECT_EQ(run.status, 0);
    const auto lines = lines_of(run.out);
    EXPECT_EQ(std::multiset<std::string>(lines.begin(), lines.end()), expected);
}

TEST(Options, SuccessIsOneLineOfTotals) {
    const Scratch scratch;
    const Outcome run = generate(tests_folder() / "small", scratch.path());
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "checked 21 functions, 3 classes with 25 fields, 19 types, 123 rows\n");
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

// Nothing below the root is no empty module: the helpers miss their types.
TEST(Options, ARootThatIsNotThere) {
    const Scratch scratch;
    const Outcome run = generate(scratch.path() / "nowhere", scratch.path() / "out");
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("[helper-type]"), std::string::npos) << run.err;
    EXPECT_FALSE(fs::exists(scratch.path() / "out"));
}

}  // namespace
