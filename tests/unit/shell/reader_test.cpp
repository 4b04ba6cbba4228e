// From lines to words, and from words to options.
#include "standin/shell/reader.h"

#include "diag_fixture.h"
#include "sdk/constants.h"
#include "sdk/diag/parse.h"
#include "sdk/enums.h"
#include "standin/base/output.h"
#include "standin/shell/args.h"

namespace standin {
namespace {

using List = std::vector<std::string>;

std::string lookup(std::string_view name) {
    if (name == "?") return "-4";
    if (name == "a") return "one two";
    if (name == "b_1") return "B;#'";
    return "";
}

TEST(Reader, SplitsLinesOutsideOfQuotes) {
    struct Case {
        const char *line;
        List commands;
    };
    for (const Case &one :
         {Case{"", {}}, Case{"   ", {}}, Case{"a", {"a"}}, Case{"a;b ; c", {"a", "b", "c"}},
          Case{"a;;b;", {"a", "", "b"}}, Case{"a ';' \";\" \\;", {"a ';' \";\" \\;"}},
          Case{"a # b;c", {"a"}}, Case{"a#b", {"a#b"}}, Case{"#x", {}}, Case{"a;#x", {"a"}},
          Case{"'#' x", {"'#' x"}}, Case{"\"\\\";\";b", {"\"\\\";\"", "b"}},
          Case{"'\\';b", {"'\\'", "b"}}}) {
        SplitLine split = split_commands(one.line);
        EXPECT_FALSE(split.fault) << one.line;
        EXPECT_EQ(split.commands, one.commands) << one.line;
    }
    EXPECT_EQ(split_commands("a 'b;c").fault->text, "no closing '");
    EXPECT_EQ(split_commands("a \"b\\\"").fault->text, "no closing \"");
}

TEST(Reader, ReadsWords) {
    struct Case {
        const char *command;
        List words;
    };
    for (const Case &one :
         {Case{"", {}}, Case{" a  b\tc ", {"a", "b", "c"}}, Case{"'a b' \"c d\"", {"a b", "c d"}},
          Case{"a'b'\"c\"d", {"abcd"}}, Case{"'' \"\"", {"", ""}}, Case{"a\\ b", {"a b"}},
          Case{"$a", {"one two"}}, Case{"x$a-y", {"xone two-y"}},
          Case{"\"$a\" '$a'", {"one two", "$a"}}, Case{"${b_1}", {"B;#'"}},
          Case{"${a}b $ab", {"one twob", ""}}, Case{"$?", {"-4"}},
          Case{"\\$a $ a$", {"$a", "$", "a$"}}, Case{"${a ${}", {"${a", "${}"}},
          Case{"a #b c", {"a"}}, Case{"a#b \\# '#'", {"a#b", "#", "#"}}, Case{"a\\", {"a\\"}}}) {
        Words words = read_command_words(one.command, lookup);
        EXPECT_FALSE(words.fault) << one.command;
        EXPECT_EQ(words.words, one.words) << one.command;
    }
    EXPECT_TRUE(read_command_words("a 'b", lookup).fault);
    EXPECT_TRUE(read_command_words("\"b", lookup).fault);
}

TEST(Reader, TakesTheUnitOff) {
    struct Case {
        const char *text;
        bool every;
        int unit;
        const char *rest;
    };
    for (const Case &one : {Case{"0:ps", false, 0, "ps"}, Case{"12: l2 show", false, 12, "l2 show"},
                            Case{"*:ps", true, 0, "ps"}, Case{"3:", false, 3, ""}}) {
        std::string_view rest = one.text;
        std::optional<UnitPrefix> prefix = take_unit_prefix(rest);
        ASSERT_TRUE(prefix) << one.text;
        EXPECT_EQ(prefix->every, one.every);
        EXPECT_EQ(prefix->unit, one.unit);
        EXPECT_EQ(rest, one.rest);
    }
    for (const char *text :
         {"", "ps", "l2 add mac=1:2:3:4:5:6", "a:b", "-1:ps", ":ps", "+1:ps", "99999999999:ps"}) {
        std::string_view rest = text;
        EXPECT_FALSE(take_unit_prefix(rest)) << text;
        EXPECT_EQ(rest, text);
    }
}

TEST(Reader, ContinuesLinesThatEndInABackslash) {
    std::string line = "a \\";
    EXPECT_TRUE(take_continuation(line));
    EXPECT_EQ(line, "a ");
    for (const char *text : {"a\\\\", "a", "", "\\\\\\\\"}) {
        line = text;
        EXPECT_FALSE(take_continuation(line)) << text;
        EXPECT_EQ(line, text);
    }
}

TEST(Arguments, WhatIsLeftOrBadIsUsage) {
    Capture capture;
    cmd_result_t result{};
    args_s args{"cmd", {"frog=1"}, 0};
    parse_table_s good;
    parse_table_s bad{"bad value in 'vlan=x'"};
    EXPECT_EQ(parseEndOk(&args, &bad, &result), 0);
    EXPECT_EQ(result, CMD_USAGE);
    EXPECT_EQ(parseEndOk(&args, &good, nullptr), 0);
    EXPECT_EQ(parseEndOk(nullptr, &good, &result), 0);
    EXPECT_EQ(parseEndOk(&args, nullptr, &result), 0);
    EXPECT_EQ(parseEndOk(nullptr, nullptr, nullptr), 0);
    args.next = 1;
    EXPECT_NE(parseEndOk(&args, &good, &result), 0);
    EXPECT_EQ(result, CMD_OK);
    EXPECT_EQ(capture.text(), "cmd: bad value in 'vlan=x'\ncmd: unknown option 'frog=1'\n");
}

}  // namespace
}  // namespace standin
