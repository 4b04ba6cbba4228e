// The notes on native memory that Python owns.

#include "runtime/native_notes.h"

#include <gtest/gtest.h>

#include <vector>

namespace ombra {
namespace {

TEST(NativeNotes, ByAddressAndType) {
    swig_type_info type = {};
    swig_type_info other = {};
    int object[2] = {};
    ASSERT_TRUE(note_owned(object, &type));
    EXPECT_TRUE(is_owned_anywhere(object, &type));
    EXPECT_FALSE(is_owned_anywhere(object + 1, &type));
    EXPECT_FALSE(forget_owned(object, &other));
    EXPECT_FALSE(forget_array(object));
    EXPECT_EQ(array_size(object), nullptr);
    EXPECT_TRUE(forget_owned(object, &type));
    EXPECT_FALSE(forget_owned(object, &type));
    note_array(object, 1);
    EXPECT_FALSE(forget_owned(object, &type));
    EXPECT_FALSE(forget_owned(object, nullptr));
    note_array(object, 3);  // the allocator gave the address out again
    EXPECT_EQ(*array_size(object), 3U);
    EXPECT_TRUE(forget_array(object));
    EXPECT_FALSE(forget_array(nullptr));
}

// The table grows, and stays whole when notes that were pushed past others go.
TEST(NativeNotes, Many) {
    std::vector<char> addresses(1000);
    for (std::size_t i = 0; i < addresses.size(); ++i) ASSERT_TRUE(note_array(&addresses[i], i));
    for (std::size_t i = 0; i < addresses.size(); i += 2) ASSERT_TRUE(forget_array(&addresses[i]));
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        const std::size_t *length = array_size(&addresses[i]);
        ASSERT_EQ(length != nullptr, i % 2 == 1);
        ASSERT_TRUE(length == nullptr || *length == i);
        ASSERT_EQ(forget_array(&addresses[i]), i % 2 == 1);
    }
}

}  // namespace
}  // namespace ombra
