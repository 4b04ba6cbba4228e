// What the tests of the diagnostics share.
#pragma once
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <string>

#include "standin/base/config_file.h"

namespace standin {

// A directory of its own, gone at the end with the files in it that the test names.
class Directory {
  public:
    Directory() { path_ = ::mkdtemp(pattern_.data()); }
    ~Directory() {
        for (const std::string &file : files_) ::unlink(file.c_str());
        ::rmdir(path_.c_str());
    }
    Directory(const Directory &) = delete;
    Directory &operator=(const Directory &) = delete;

    std::string file(const std::string &name) {
        files_.push_back(path_ + '/' + name);
        return files_.back();
    }
    std::string file_with(const std::string &name, const std::string &text) {
        std::string at = file(name);
        EXPECT_TRUE(write_file(at, at + ".new", text));
        return at;
    }

  private:
    std::string pattern_ = "/tmp/ombra_diag_XXXXXX";
    std::string path_;
    std::vector<std::string> files_;
};

inline std::string content(const std::string &path) {
    std::string text;
    EXPECT_TRUE(read_file(path, text)) << path;
    return text;
}

// A text for a function that takes `char *`, as the storage of a string of the caller.
class Text {
  public:
    Text(const char *text) : text_(text) {}
    Text(std::string text) : text_(std::move(text)) {}
    operator char *() { return text_.data(); }

  private:
    std::string text_;
};

// Room for an output text, with a guard behind `size` bytes that nobody may touch.
class Room {
  public:
    explicit Room(std::size_t size) : bytes_(size + kGuard, kMark), size_(size) {}
    ~Room() {
        for (std::size_t at = size_; at < bytes_.size(); ++at)
            EXPECT_EQ(bytes_[at], kMark) << "byte " << at << " behind the buffer";
    }
    Room(const Room &) = delete;
    Room &operator=(const Room &) = delete;

    char *data() { return bytes_.data(); }
    int size() const { return static_cast<int>(size_); }
    std::string text() const { return bytes_.c_str(); }

  private:
    static constexpr std::size_t kGuard = 16;
    static constexpr char kMark = '\x5a';
    std::string bytes_;
    std::size_t size_;
};

// The same numbers in every run.
class Random {
  public:
    std::uint64_t next() {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return state_;
    }
    std::uint32_t word() { return static_cast<std::uint32_t>(next() >> 16); }
    std::uint32_t below(std::uint32_t limit) { return word() % limit; }

  private:
    std::uint64_t state_ = 0x9e3779b97f4a7c15;
};

}  // namespace standin
