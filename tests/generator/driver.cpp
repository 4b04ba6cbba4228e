// Starts the program, and tells how its outputs differ from golden ones.
#include "driver.h"

#include <stdlib.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

const char kAdvice[] =
    "Look at the difference. If it is meant, build the target accept-golden, and say why in the "
    "commit.\n";

std::string quoted(const std::string &argument) { return "'" + argument + "'"; }

int exit_status(int status) { return WIFEXITED(status) ? WEXITSTATUS(status) : -1; }

}  // namespace

Scratch::Scratch() {
    std::string name = (fs::temp_directory_path() / "generator_test.XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
}

Scratch::~Scratch() {
    std::error_code error;
    fs::remove_all(path_, error);
}

Outcome run_generator(const std::vector<std::string> &arguments) {
    const Scratch scratch;
    const fs::path out = scratch.path() / "out";
    const fs::path err = scratch.path() / "err";
    std::string command = quoted(GENERATOR);
    for (const auto &argument : arguments) command += " " + quoted(argument);
    command += " >" + quoted(out.string()) + " 2>" + quoted(err.string());
    const int status = std::system(command.c_str());
    return {exit_status(status), read_text(out), read_text(err)};
}

Outcome generate(const fs::path &root, const fs::path &out) {
    return run_generator({"--root", root.string(), "--out", out.string()});
}

fs::path tests_folder() { return GENERATOR_TESTS; }

void copy_small(const fs::path &to) {
    fs::create_directories(to);
    for (const char *folder : {"api", "catalogue", "platform"})
        fs::copy(tests_folder() / "small" / folder, to / folder, fs::copy_options::recursive);
}

std::string read_text(const fs::path &file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

void write_text(const fs::path &file, const std::string &text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

std::vector<std::string> lines_of(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::vector<std::string> files_below(const fs::path &folder) {
    std::vector<std::string> files;
    if (fs::exists(folder)) {
        for (const auto &entry : fs::recursive_directory_iterator(folder))
            if (entry.is_regular_file())
                files.push_back(fs::relative(entry.path(), folder).string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string difference(const fs::path &golden, const fs::path &output) {
    const bool both = fs::exists(golden) && fs::exists(output);
    if (both && read_text(golden) == read_text(output)) return "";
    const Scratch scratch;
    const fs::path told = scratch.path() / "difference";
    const std::string command = "diff -uN " + quoted(golden.string()) + " " +
                                quoted(output.string()) + " >" + quoted(told.string());
    if (exit_status(std::system(command.c_str())) > 1)
        return "the files differ, and diff could not run\n" + std::string(kAdvice);
    return read_text(told) + kAdvice;
}
