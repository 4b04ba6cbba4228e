// The lines that a person typed, kept in a file across sessions.
//
// Each line is added to the file when it is entered, so two sessions at a time lose nothing. A file
// that has grown to twice the length that is kept is cut when it is opened.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace standin {

class LineHistory {
  public:
    // The setting `diag_shell_history_file`, else `.ombra_history` in the home of the person; no
    // file for an empty setting. `diag_shell_history` lines are kept.
    LineHistory();

    const std::vector<std::string> &lines() const { return lines_; }
    std::size_t size() const { return most_; }

    // Adds a line, but not one that is empty, begins with a blank or stands last already.
    bool add(const std::string &line);

    // The line with `!!` in it, outside of single quotes, put in as the last line; nothing, with
    // the line as it is, for a line without. An empty text where there is no last line.
    std::optional<std::string> expand(const std::string &line) const;

  private:
    std::string file_;
    std::size_t most_;
    std::vector<std::string> lines_;
};

}  // namespace standin
