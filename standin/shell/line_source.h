// Where the interactive shell gets its lines.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace standin {

enum class LineEnd {
    kLine,       // a line was read
    kEnd,        // the input has ended
    kInterrupt,  // a signal came first; the line is given up
};

class LineSource {
  public:
    virtual ~LineSource() = default;
    // Shows `prompt` where somebody sees it and reads a line, without its end.
    virtual LineEnd read(const std::string &prompt, std::string &line) = 0;
    // Whether a person types the lines.
    virtual bool terminal() const = 0;
};

// Standard input: with line editing and a history where it is a terminal and the build has the
// library for it; plain otherwise, without a prompt unless it is a terminal.
std::unique_ptr<LineSource> open_standard_input();

}  // namespace standin
