// Where commands and dump functions print: into the innermost capture of this thread, or onto
// standard output when there is none.
#pragma once

#include <string>
#include <string_view>
#include <vector>

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

  private:
    friend void out(std::string_view);

    std::string text_;
    Capture *outer_;
};

// Pages what is printed onto a terminal: after each `lines` lines of one command `more` is asked
// whether to go on. 0 lines, or no function, turns it off.
void out_pager_set(int lines, bool (*more)());
void out_pager_rewind();  // a new command begins

// Rows in columns, each as wide as its widest cell, two blanks between:
//
//   Port  Link  Speed
//   ----  ----  -----
//   1     up    10000
class Table {
  public:
    // A heading that begins with '>' is a column of numbers, set to the right.
    explicit Table(std::vector<std::string> headings);

    // REQUIRES: as many cells as headings.
    void row(std::vector<std::string> cells);
    std::size_t size() const { return rows_.size(); }

    // The whole table, no blanks at line ends.
    std::string text() const;
    void print() const;

  private:
    std::vector<std::string> headings_;
    std::vector<bool> right_;
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace standin
