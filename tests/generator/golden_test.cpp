// What the generator writes for the small catalogue, which meets every kind, result form and
// departure once. The outputs of expected/ are compared whole: the model, which tells all, and one
// of each sort whose faults the build and the suites of the module would show late or not at all.

#include <gtest/gtest.h>

#include <chrono>

#include "driver.h"

namespace {

TEST(Golden, SmallCatalogue) {
    const Scratch scratch;
    const Outcome run = generate(tests_folder() / "small", scratch.path());
    ASSERT_EQ(run.status, 0) << run.err;
    const fs::path expected = tests_folder() / "small" / "expected";
    const auto files = files_below(expected);
    ASSERT_FALSE(files.empty());
    for (const auto &file : files) {
        const std::string told = difference(expected / file, scratch.path() / file);
        EXPECT_TRUE(told.empty()) << told;
    }
}

// The outputs that a second run wrote again, after `change` to the declarations.
template <typename Change>
std::vector<std::string> rewritten(Change change) {
    const Scratch scratch;
    const fs::path root = scratch.path() / "root";
    const fs::path out = scratch.path() / "out";
    copy_small(root);
    EXPECT_EQ(generate(root, out).status, 0);
    const auto long_ago = fs::file_time_type::clock::now() - std::chrono::hours(1);
    for (const auto &file : files_below(out)) fs::last_write_time(out / file, long_ago);
    change(root, out);
    EXPECT_EQ(generate(root, out).status, 0);
    std::vector<std::string> files;
    for (const auto &file : files_below(out))
        if (fs::last_write_time(out / file) != long_ago) files.push_back(file);
    return files;
}

TEST(WrittenOnlyWhenItDiffers, NothingForTheSameDeclarations) {
    EXPECT_EQ(rewritten([](const fs::path &, const fs::path &) {}), std::vector<std::string>());
}

TEST(WrittenOnlyWhenItDiffers, NothingForAComment) {
    const auto files = rewritten([](const fs::path &root, const fs::path &) {
        const fs::path header = root / "platform/sdk/bcm/tiny.h";
        write_text(header, read_text(header) + "/* A remark. */\n");
    });
    EXPECT_EQ(files, std::vector<std::string>());
}

TEST(WrittenOnlyWhenItDiffers, WhatAnotherConstantTouches) {
    const auto files = rewritten([](const fs::path &root, const fs::path &) {
        const fs::path table = root / "catalogue/constants.txt";
        write_text(table, read_text(table) + "tinyMore\t7\n");
    });
    EXPECT_EQ(files,
              (std::vector<std::string>{"OmbraSdkV2Helper.pyi", "constant_names.cpp",
                                        "install_table.cpp", "model.json", "sdk/constants.h"}));
}

TEST(WrittenOnlyWhenItDiffers, WhatWasSpoiledOrRemoved) {
    const auto files = rewritten([](const fs::path &, const fs::path &out) {
        write_text(out / "type_table.cpp", "spoiled\n");
        fs::remove(out / "generated/entries.h");
    });
    EXPECT_EQ(files, (std::vector<std::string>{"generated/entries.h", "type_table.cpp"}));
}

}  // namespace
