// Declarations that break a rule. Each file of bad/ is laid over a copy of the small catalogue:
//
//     # What is wrong.
//     expect: catalogue/kinds.txt:+2: error: the whole message [rule]
//     expect: 1 fault
//     file: PATH       the lines below are the file PATH, new or in place of small's
//     add: PATH        the lines below are added to the end of small's PATH
//     gone: PATH       small's PATH is not there
//
// A line number "+2" is the second line of what is added. The generator must end with status 1,
// print exactly these messages, and leave no output behind.

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "driver.h"

namespace {

fs::path bad_folder() { return tests_folder() / "bad"; }

struct BadFile {
    std::vector<std::string> expected;
    std::map<std::string, std::string> files;      // path -> text
    std::map<std::string, std::string> additions;  // path -> text
    std::vector<std::string> gone;
};

bool takes_prefix(const std::string &line, const std::string &prefix, std::string &rest) {
    if (line.rfind(prefix, 0) != 0) return false;
    rest = line.substr(prefix.size());
    return true;
}

BadFile read_bad_file(const std::string &name) {
    BadFile bad;
    std::string *section = nullptr;
    for (const auto &line : lines_of(read_text(bad_folder() / name))) {
        std::string rest;
        if (takes_prefix(line, "file: ", rest))
            section = &bad.files[rest];
        else if (takes_prefix(line, "add: ", rest))
            section = &bad.additions[rest];
        else if (takes_prefix(line, "gone: ", rest))
            bad.gone.push_back(rest);
        else if (section != nullptr)
            *section += line + "\n";
        else if (takes_prefix(line, "expect: ", rest))
            bad.expected.push_back(rest);
    }
    return bad;
}

// Replaces "PATH:+N" and, for the path that the message begins with, "line +N" by the line that
// the addition came to.
std::string with_lines(std::string message, const std::map<std::string, std::size_t> &lines) {
    static const std::regex place(R"(([\w/.]+):\+(\d+))");
    static const std::regex line(R"(line \+(\d+))");
    std::smatch match;
    const auto number = [&](const std::string &path, const std::string &added) {
        return std::to_string(lines.at(path) + std::stoul(added));
    };
    while (std::regex_search(message, match, place)) {
        message = match.prefix().str() + match[1].str() + ":" + number(match[1], match[2]) +
                  match.suffix().str();
    }
    const std::string path = message.substr(0, message.find(':'));
    while (std::regex_search(message, match, line))
        message = match.prefix().str() + "line " + number(path, match[1]) + match.suffix().str();
    return message;
}

std::vector<std::string> bad_files() { return files_below(bad_folder()); }

class Bad : public testing::TestWithParam<std::string> {};

TEST_P(Bad, IsRefusedWithTheWholeMessage) {
    const BadFile bad = read_bad_file(GetParam());
    ASSERT_FALSE(bad.expected.empty());
    const Scratch scratch;
    const fs::path root = scratch.path() / "root";
    const fs::path out = scratch.path() / "out";
    copy_small(root);
    for (const auto &[path, text] : bad.files) write_text(root / path, text);
    for (const auto &path : bad.gone) fs::remove(root / path);
    std::map<std::string, std::size_t> lines;
    for (const auto &[path, text] : bad.additions) {
        const std::string before = read_text(root / path);
        lines[path] = lines_of(before).size();
        write_text(root / path, before + text);
    }
    const Outcome run = generate(root, out);
    std::vector<std::string> expected;
    for (const auto &message : bad.expected) expected.push_back(with_lines(message, lines));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(lines_of(run.err), expected);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(files_below(out), std::vector<std::string>());
}

std::string test_name(const testing::TestParamInfo<std::string> &info) {
    const std::string stem = fs::path(info.param).stem().string();
    return std::regex_replace(stem, std::regex("-"), "_");
}

INSTANTIATE_TEST_SUITE_P(Files, Bad, testing::ValuesIn(bad_files()), test_name);

TEST(Rules, EachHasABadFile) {
    std::set<std::string> met;
    for (const auto &file : bad_files()) {
        for (const auto &message : read_bad_file(file).expected) {
            const auto open = message.rfind(" [");
            if (open != std::string::npos)
                met.insert(message.substr(open + 2, message.size() - open - 3));
        }
    }
    std::set<std::string> rules;
    for (const auto &line : lines_of(run_generator({"--list-rules"}).out))
        rules.insert(line.substr(0, line.find(':')));
    EXPECT_FALSE(rules.empty());
    EXPECT_EQ(met, rules);
}

}  // namespace
