// The captures of a thread, the pager and standard output behind them, and columns.
#include "standin/base/output.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

#include "standin/base/descriptor.h"
#include "standin/base/scan.h"

namespace standin {
namespace {

thread_local Capture *innermost = nullptr;

struct Pager {
    int lines = 0;
    bool (*more)() = nullptr;
    int printed = 0;
    bool stopped = false;
};
thread_local Pager pager;

// Drops what standard output cannot take, as wait_writable has it; what the program had written
// before goes first.
void print(std::string_view text) {
    int fd = ::fileno(stdout);
    if (!wait_writable(fd)) return;
    std::fflush(stdout);
    while (!text.empty() && wait_writable(fd)) {
        std::string_view piece = text.substr(0, kSureBytes);
        std::fwrite(piece.data(), 1, piece.size(), stdout);
        std::fflush(stdout);
        text.remove_prefix(piece.size());
    }
}

void page(std::string_view text) {
    while (!text.empty() && !pager.stopped) {
        std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end == std::string_view::npos ? end : end + 1);
        print(line);
        text.remove_prefix(line.size());
        if (end == std::string_view::npos || ++pager.printed < pager.lines) continue;
        pager.printed = 0;
        pager.stopped = !pager.more();
    }
}

std::string line_of(const std::vector<std::string> &cells, const std::vector<std::size_t> &widths,
                    const std::vector<bool> &right) {
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        std::string fill(widths[at] - std::min(widths[at], cells[at].size()), ' ');
        line += at == 0 ? "" : "  ";
        line += right[at] ? fill + cells[at] : cells[at] + fill;
    }
    return line.erase(line.find_last_not_of(' ') + 1) + '\n';
}

}  // namespace

void out(std::string_view text) {
    if (innermost != nullptr) {
        innermost->text_ += text;
        return;
    }
    if (pager.lines > 0 && pager.more != nullptr)
        page(text);
    else
        print(text);
}

void outf(const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    out(text_of_list(format, arguments));
    va_end(arguments);
}

Capture::Capture() : outer_(innermost) { innermost = this; }

Capture::~Capture() { innermost = outer_; }

void out_pager_set(int lines, bool (*more)()) { pager = Pager{lines, more, 0, false}; }

void out_pager_rewind() {
    pager.printed = 0;
    pager.stopped = false;
}

Table::Table(std::vector<std::string> headings) : headings_(std::move(headings)) {
    for (std::string &heading : headings_) {
        right_.push_back(heading.starts_with('>'));
        if (right_.back()) heading.erase(0, 1);
    }
}

void Table::row(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

std::string Table::text() const {
    std::vector<std::size_t> widths;
    std::vector<std::string> rules;
    for (std::size_t at = 0; at < headings_.size(); ++at) {
        std::size_t width = headings_[at].size();
        for (const auto &cells : rows_) width = std::max(width, cells[at].size());
        widths.push_back(width);
        rules.emplace_back(width, '-');
    }
    std::string text = line_of(headings_, widths, right_) + line_of(rules, widths, right_);
    for (const auto &cells : rows_) text += line_of(cells, widths, right_);
    return text;
}

void Table::print() const { out(text()); }

}  // namespace standin
