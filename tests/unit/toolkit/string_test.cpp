// Strings: shared bodies, formatting, names.
#include "toolkit/string.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

#include "failing_new.h"

namespace {

using Lumo::format;
using Lumo::String;

// The count at the start of the body; 0 where there is no body.
std::uint32_t count_of(const String &string) {
    const std::uint32_t *body = nullptr;
    std::memcpy(&body, static_cast<const void *>(&string), sizeof body);
    return body ? *body : 0;
}

TEST(StringTest, TheLastHolderReleasesTheBody) {
    const long before = live_allocations;
    {
        const String first("text");
        const String second(first);
        EXPECT_EQ(live_allocations, before + 1);
    }
    EXPECT_EQ(live_allocations, before);
}

TEST(StringTest, CopiesShareOneBody) {
    std::optional<String> first(String("text"));
    EXPECT_EQ(count_of(*first), 1u);
    String second(*first);
    EXPECT_EQ(count_of(second), 2u);
    const Lumo::Name name(second);
    EXPECT_EQ(count_of(name.string()), 3u);
    {
        const String moved(std::move(second));
        EXPECT_EQ(count_of(moved), 3u);
        EXPECT_TRUE(second.empty());  // NOLINT(bugprone-use-after-move)
    }
    first.reset();
    EXPECT_EQ(count_of(name.string()), 1u);
    EXPECT_EQ(name.string().stdString(), "text");

    String assigned("other");
    assigned = name.string();
    assigned = *&assigned;
    EXPECT_EQ(count_of(assigned), 2u);
}

TEST(StringTest, EmptyTextHasNoBody) {
    EXPECT_EQ(count_of(String()), 0u);
    EXPECT_EQ(count_of(String("")), 0u);
    EXPECT_EQ(count_of(format("%s", "")), 0u);
    EXPECT_EQ(String().stdString(), "");
}

TEST(StringTest, TextComesBackWhole) {
    const std::string with_zero("a\0b", 3);
    EXPECT_EQ(String(with_zero).stdString(), with_zero);
    EXPECT_EQ(format("PythonAccess-%d-%d", 3, -17).stdString(), "PythonAccess-3--17");
    const std::string long_text(10'000, 'x');
    EXPECT_EQ(format("%s|", long_text.c_str()).stdString(), long_text + '|');
}

}  // namespace
