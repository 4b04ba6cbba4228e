// Numbers, lines and bytes of packets as text.
#include "standin/base/number_text.h"

#include "diag_fixture.h"
#include "sdk/diag/format.h"
#include "sdk/diag/parse.h"
#include "sdk/diag/text.h"

namespace standin {
namespace {

TEST(NumberText, ReadsEveryForm) {
    struct Case {
        const char *text;
        std::uint32_t value;
    };
    for (const Case &one :
         {Case{"0", 0}, Case{"007", 7}, Case{" 42\t", 42}, Case{"+5", 5}, Case{"-1", 0xffffffff},
          Case{"-2147483648", 0x80000000}, Case{"4294967295", 0xffffffff}, Case{"0x1F", 31},
          Case{"0Xffff_ffff", 0xffffffff}, Case{"0b101", 5}, Case{"1,234,567", 1234567},
          Case{"-0x10", 0xfffffff0}, Case{"12,345", 12345}}) {
        EXPECT_EQ(isint(Text(one.text)), 1) << one.text;
        EXPECT_EQ(parse_integer(Text(one.text)), one.value) << one.text;
    }
}

TEST(NumberText, RefusesWhatIsNoNumber) {
    for (const char *text :
         {"",         " ",      "-",    "+",          "x",           "12x",  "1 2",    "0x",
          "0b",       "0b2",    "0xg",  "4294967296", "-2147483649", "1,23", "1,2345", ",123",
          "1234,567", "1,234,", "0x_1", "0x1_",       "0x1__2",      "1_0",  "--1",    "0x-1"}) {
        EXPECT_EQ(isint(Text(text)), 0) << text;
        EXPECT_EQ(parse_integer(Text(text)), 0u) << text;
    }
    EXPECT_EQ(isint(nullptr), 0);
    EXPECT_EQ(parse_uint64(nullptr), 0u);
}

TEST(NumberText, SixtyFourBitsAndTheirLowHalf) {
    EXPECT_EQ(parse_uint64(Text("18446744073709551615")), 0xffffffffffffffffu);
    EXPECT_EQ(parse_uint64(Text("18446744073709551616")), 0u);
    EXPECT_EQ(parse_uint64(Text("-1")), 0u);
    EXPECT_EQ(parse_address(Text("0x1_2345_6789")), 0x23456789u);
}

TEST(NumberText, FormattersParseBack) {
    Random random;
    std::vector<std::uint64_t> values = {0, 9, 10, 255, 999, 1000};
    for (int bit : {0, 32, 63})
        for (std::uint64_t less : {0U, 1U}) values.push_back((std::uint64_t{1} << bit) - less);
    values.push_back(~std::uint64_t{0});
    for (int at = 0; at < 200; ++at) values.push_back(random.next() >> random.below(64));
    for (std::uint64_t value : values) {
        Room hex(19);
        format_uint64(hex.data(), value);
        EXPECT_EQ(parse_uint64(hex.data()), value) << hex.text();
        for (int comma : {0, 1}) {
            Room decimal(27);
            format_uint64_decimal(decimal.data(), value, comma);
            EXPECT_EQ(parse_uint64(decimal.data()), value) << decimal.text();
        }
    }
    Room text(27);
    format_uint64(text.data(), 255);
    EXPECT_EQ(text.text(), "0xff");
    format_uint64_decimal(text.data(), 0xffffffffffffffff, ',');
    EXPECT_EQ(text.text(), "18,446,744,073,709,551,615");
}

TEST(NumberText, LongIntegersParseBack) {
    Random random;
    for (int nval : {1, 2, 3, 20}) {
        for (int at = 0; at < 50; ++at) {
            std::vector<uint32> words(static_cast<std::size_t>(nval));
            for (uint32 &word : words) word = at == 0 ? 0 : at == 1 ? 0xffffffff : random.word();
            if (at % 3 == 0) words.back() = 0;
            for (auto format : {format_long_integer, format_spec_long_integer}) {
                Room text(static_cast<std::size_t>(2 + 9 * nval));
                format(text.data(), words.data(), nval);
                std::vector<uint32> back(words.size(), 77);
                parse_long_integer(back.data(), nval, text.data());
                EXPECT_EQ(back, words) << text.text();
            }
        }
    }
    std::array<uint32, 2> words = {0x89abcdef, 0x1};
    Room text(32);
    format_long_integer(text.data(), words.data(), 2);
    EXPECT_EQ(text.text(), "0x189abcdef");
    format_spec_long_integer(text.data(), words.data(), 2);
    EXPECT_EQ(text.text(), "0x00000001_89abcdef");
}

TEST(NumberText, LongIntegersWrapLikeWords) {
    std::array<uint32, 2> words{};
    parse_long_integer(words.data(), 2, Text("18446744073709551617"));  // 2^64 + 1
    EXPECT_EQ(words, (std::array<uint32, 2>{1, 0}));
    parse_long_integer(words.data(), 2, Text("-1"));
    EXPECT_EQ(words, (std::array<uint32, 2>{0xffffffff, 0xffffffff}));
    parse_long_integer(words.data(), 2, Text("nothing"));
    EXPECT_EQ(words, (std::array<uint32, 2>{0, 0}));
}

TEST(NumberText, LongArithmeticMatchesSixtyFourBits) {
    Random random;
    auto split = [](std::uint64_t value) {
        return std::array<uint32, 2>{static_cast<uint32>(value), static_cast<uint32>(value >> 32)};
    };
    for (int at = 0; at < 100; ++at) {
        std::uint64_t left = at == 0 ? 0xffffffff : random.next();
        std::uint64_t right = at == 0 ? 1 : random.next();
        auto sum = split(left);
        auto difference = split(left);
        auto negative = split(left);
        auto other = split(right);
        add_long_integer(sum.data(), other.data(), 2);
        sub_long_integer(difference.data(), other.data(), 2);
        neg_long_integer(negative.data(), 2);
        EXPECT_EQ(sum, split(left + right));
        EXPECT_EQ(difference, split(left - right));
        EXPECT_EQ(negative, split(-left));
    }
    std::array<uint32, 2> same = {5, 6};
    sub_long_integer(same.data(), same.data(), 2);  // one array may be both
    EXPECT_EQ(same, (std::array<uint32, 2>{0, 0}));
}

TEST(NumberText, NullAndWildCountsAreHarmless) {
    std::array<uint32, 1> word = {7};
    Room text(4);
    format_long_integer(text.data(), nullptr, 3);
    EXPECT_EQ(text.text(), "0x0");
    format_long_integer(nullptr, word.data(), 1);
    format_uint64(nullptr, 1);
    parse_long_integer(word.data(), 0, Text("1"));
    parse_long_integer(word.data(), -5, Text("1"));
    parse_long_integer(nullptr, 1, Text("1"));
    add_long_integer(word.data(), nullptr, 1);
    sub_long_integer(nullptr, word.data(), 1);
    neg_long_integer(nullptr, 1);
    EXPECT_EQ(word[0], 7u);
}

TEST(LineText, Digits) {
    for (int digit = 0; digit < 16; ++digit) EXPECT_EQ(xdigit2i(i2xdigit(digit)), digit);
    EXPECT_EQ(xdigit2i('F'), 15);
    for (int sign : {int{'g'}, -1, 256, int{' '}}) EXPECT_EQ(xdigit2i(sign), -1);
    EXPECT_EQ(i2xdigit(16), '?');
    EXPECT_EQ(i2xdigit(-1), '?');
}

TEST(LineText, FindsWithoutRegardToCase) {
    EXPECT_STREQ(strcaseindex("Hello World", "WORLD"), "World");
    EXPECT_STREQ(strcaseindex("aaab", "AAB"), "aab");
    EXPECT_STREQ(strcaseindex("abc", ""), "abc");
    EXPECT_STREQ(strcaseindex("", ""), "");
    EXPECT_EQ(strcaseindex("abc", "abcd"), nullptr);
    EXPECT_EQ(strcaseindex(nullptr, "a"), nullptr);
    EXPECT_EQ(strcaseindex("a", nullptr), nullptr);
}

TEST(LineText, ReplacesInPlace) {
    struct Case {
        int start;
        int len;
        const char *text;
        const char *result;
    };
    for (const Case &one :
         {Case{0, 0, "X", "Xabcdef"}, Case{1, 2, "--", "a--def"}, Case{2, 99, "!", "ab!"},
          Case{6, 0, "gh", "abcdefgh"}, Case{0, 6, nullptr, ""}, Case{7, 0, "X", "abcdef"},
          Case{-1, 1, "X", "abcdef"}, Case{1, -1, "X", "abcdef"}}) {
        Room room(9);
        std::copy_n("abcdef", 7, room.data());
        EXPECT_EQ(strrepl(room.data(), one.start, one.len, one.text), room.data());
        EXPECT_EQ(room.text(), one.result);
    }
    EXPECT_EQ(strrepl(nullptr, 0, 0, "x"), nullptr);
}

TEST(LineText, PutsTabsForBlanks) {
    struct Case {
        const char *line;
        int width;
        const char *result;
    };
    for (const Case &one :
         {Case{"a       b", 8, "a\tb"}, Case{"a  b", 8, "a  b"}, Case{"        x", 8, "\tx"},
          Case{"        x", 4, "\t\tx"}, Case{"abc d", 4, "abc d"}, Case{"ab  cd  ", 4, "ab\tcd\t"},
          Case{"a\t    b", 4, "a\t\tb"}, Case{"", 8, ""}, Case{"a  b", 0, "a  b"}}) {
        Room room(std::string(one.line).size() + 1);
        tabify_line(room.data(), Text(one.line), one.width);
        EXPECT_EQ(room.text(), one.result) << one.line;
    }
}

TEST(PacketBytes, LoadStoreCompare) {
    std::array<uint8, 7> bytes{};
    EXPECT_EQ(packet_store(bytes.data(), 7, 0x01020304, 0x10), 0x01020324u);
    EXPECT_EQ(bytes, (std::array<uint8, 7>{1, 2, 3, 4, 1, 2, 3}));
    EXPECT_EQ(packet_load(bytes.data(), 4), 0x01020304u);
    EXPECT_EQ(packet_load(bytes.data(), 2), 0x0102u);
    EXPECT_EQ(packet_load(bytes.data(), 7), 0x01020304u);
    EXPECT_EQ(packet_load(nullptr, 4), 0u);
    std::array<uint8, 7> other = bytes;
    EXPECT_EQ(packet_compare(bytes.data(), other.data(), 7), 0);
    other[4] = 9;
    EXPECT_EQ(packet_compare(bytes.data(), other.data(), 7), 5);
    EXPECT_EQ(packet_compare(bytes.data(), other.data(), 4), 0);
    EXPECT_LT(packet_compare(nullptr, other.data(), 1), 0);
    EXPECT_LT(packet_compare(bytes.data(), other.data(), -1), 0);
}

TEST(PacketBytes, RandomFillStaysInside) {
    std::array<uint8, 10> bytes{};
    packet_random_store(bytes.data(), 8);
    EXPECT_NE(packet_load(bytes.data(), 4), packet_load(bytes.data() + 4, 4));
    EXPECT_EQ(bytes[8], 0);
    packet_random_store(nullptr, 8);
    packet_random_store(bytes.data(), -8);
}

}  // namespace
}  // namespace standin
