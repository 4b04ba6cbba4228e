// Runs the generator, and compares what it wrote.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace fs = std::filesystem;

struct Outcome {
    int status = 0;  // exit status, -1 for a death by signal
    std::string out;
    std::string err;
};

Outcome run_generator(const std::vector<std::string> &arguments);

// The usual run: declarations below `root`, outputs to `out`.
Outcome generate(const fs::path &root, const fs::path &out);

// A folder of a test's own, empty at first and gone with the object.
class Scratch {
  public:
    Scratch();
    ~Scratch();
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;

    const fs::path &path() const { return path_; }

  private:
    fs::path path_;
};

// tests/generator
fs::path tests_folder();

// Copies the declarations of small/, without its expected outputs.
void copy_small(const fs::path &to);

std::string read_text(const fs::path &file);
void write_text(const fs::path &file, const std::string &text);
std::vector<std::string> lines_of(const std::string &text);

// Files below `folder`, as paths from there, sorted.
std::vector<std::string> files_below(const fs::path &folder);

// What differs between a golden file and an output, as `diff -u` tells it, with what to do about
// it. Empty if nothing does; a file that is not there counts as an empty one.
std::string difference(const fs::path &golden, const fs::path &output);
