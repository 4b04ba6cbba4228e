// Tables: one model of rows behind text, JSON and everything that is asked of either.
//
//   Port  Link  Speed
//   ----  ----  -----
//   1     up    10000
//
// Each column is as wide as its widest cell, two blanks between. A column has a type, and each of
// its cells is of that type or of none; what a person reads may differ from the value.
#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "standin/base/output.h"

namespace standin {

enum class CellKind : std::uint8_t { kNumber, kText, kTruth, kNumbers };

struct RowColumn {
    const char *key;      // "vid": the field of the Python structure
    const char *heading;  // "VLAN"; with '>' before it set to the right; null: only when asked for
    CellKind kind;
};

class Cell {
  public:
    using Numbers = std::vector<std::int64_t>;
    using Value =
        std::variant<std::monostate, bool, std::int64_t, std::uint64_t, std::string, Numbers>;

    Cell() = default;  // nothing to tell: "-"
    template <std::integral T>
    Cell(T number) : value_(wide(number)) {}
    Cell(bool truth) : value_(truth) {}
    Cell(std::string text) : value_(std::move(text)) {}
    Cell(const char *text) : value_(std::string(text)) {}
    // A value with the words that a person reads for it.
    Cell(Value value, std::string words) : value_(std::move(value)), words_(std::move(words)) {}

    const Value &value() const { return value_; }
    // In one line: signs that would move the cursor are escaped.
    std::string text() const;

  private:
    template <class T>
    static Value wide(T number) {
        if constexpr (std::unsigned_integral<T>) return static_cast<std::uint64_t>(number);
        return static_cast<std::int64_t>(number);
    }

    Value value_;
    std::string words_;
};

class Rows {
  public:
    // With `line` each row is that line, `{key}` in it a cell, and there are no headings.
    // REQUIRES: both outlive the rows.
    explicit Rows(std::span<const RowColumn> columns, const char *line = nullptr);

    // REQUIRES: as many cells as columns, each of its column's kind.
    void row(std::vector<Cell> cells);
    // Sentences before and behind the table. They are for people: only a text has them.
    void before(std::string sentence) { before_.push_back(std::move(sentence)); }
    void note(std::string sentence) { notes_.push_back(std::move(sentence)); }
    // Stands for the whole table while it has no row.
    void instead(std::string sentence) { instead_ = std::move(sentence); }

    std::size_t size() const { return rows_.size(); }
    std::span<const RowColumn> columns() const { return columns_; }
    const std::vector<std::size_t> &chosen() const { return chosen_; }
    const std::vector<std::vector<Cell>> &rows() const { return rows_; }

    // Each false for a key that no column has.
    bool choose(std::span<const std::string> keys);
    bool sort(std::string_view key, bool downwards);
    // Keeps the rows whose line of text `wanted` takes, and no sentence.
    void keep(const std::function<bool(std::string_view)> &wanted);
    void append(const Rows &more);
    void drop_sentences();

    // No blanks at line ends. With a width, wide cells are cut so that a line fits; `bold` marks
    // the headings.
    std::string text(int width = 0, bool bold = false) const;

    // Hands the table to whoever catches rows on this thread, else prints it.
    void show() const;

  private:
    std::vector<std::size_t> shown() const;
    std::string line_of(const std::vector<Cell> &cells) const;

    std::span<const RowColumn> columns_;
    const char *line_;
    std::vector<std::size_t> chosen_;  // empty until choose
    std::vector<std::vector<Cell>> rows_;
    std::vector<std::string> before_;
    std::vector<std::string> notes_;
    std::string instead_;
};

// Takes what this thread prints while it lives, tables as they are. Dies in reverse order, as
// captures do.
class RowCatcher {
  public:
    using Item = std::variant<std::string, Rows>;

    RowCatcher();
    ~RowCatcher();
    RowCatcher(const RowCatcher &) = delete;
    RowCatcher &operator=(const RowCatcher &) = delete;

    std::vector<Item> take();

  private:
    friend class Rows;
    void take_text();

    Capture capture_;
    std::vector<Item> items_;
    RowCatcher *outer_;
};

// The columns that a text takes on a terminal: UTF-8, wide signs two, marks on others none.
std::size_t text_width(std::string_view text);
// The text with what would move the cursor, or is no UTF-8, as "\x1b".
std::string escaped(std::string_view text);

}  // namespace standin
