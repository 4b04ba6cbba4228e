// Where commands and dump functions print: into the innermost capture of this thread, or onto
// standard output when there is none.
#pragma once

#include <string>
#include <string_view>

namespace standin {

// What a full pipe does not take whose reader is this process is dropped.
void out(std::string_view text);
[[gnu::format(printf, 1, 2)]] void outf(const char *format, ...);

// Collects what this thread prints while it lives. Captures nest; they die in reverse order.
class Capture {
  public:
    Capture();
    ~Capture();
    Capture(const Capture &) = delete;
    Capture &operator=(const Capture &) = delete;

    const std::string &text() const { return text_; }
    // Whether what this thread prints comes here.
    bool innermost() const;
    std::string drain();  // the text, which is then empty

  private:
    friend void out(std::string_view);

    std::string text_;
    Capture *outer_;
};

// The terminal in front of this thread, if any: what is captured knows nothing of it.
struct Screen {
    int width = 0;  // signs in a line; 0: no terminal, nothing is cut
    bool colours = false;
    int lines = 0;            // after so many `more` tells how many lines may follow; 0: no pager
    int (*more)() = nullptr;  // 0 ends the output of the command
};
const Screen &out_screen();
void out_screen_set(const Screen &screen);
void out_rewind();  // a new command begins, on a fresh page

// A line that tells what went wrong, red on a terminal with colours; what it repeats of a caller
// cannot move the cursor.
void out_fault(std::string_view line);

}  // namespace standin
