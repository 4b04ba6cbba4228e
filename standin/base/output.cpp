// The captures of a thread, the pager and standard output behind them.
#include "standin/base/output.h"

#include <cstdarg>
#include <cstdio>
#include <utility>

#include "standin/base/descriptor.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"

namespace standin {
namespace {

thread_local Capture *top = nullptr;

struct Page {
    int left = 0;  // lines that may be printed before the next question
    bool stopped = false;
};
thread_local Screen screen;
thread_local Page current;

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
    while (!text.empty() && !current.stopped) {
        if (current.left == 0) {
            current.left = screen.more();
            current.stopped = current.left == 0;
            continue;
        }
        std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end == std::string_view::npos ? end : end + 1);
        print(line);
        text.remove_prefix(line.size());
        if (end != std::string_view::npos) --current.left;
    }
}

}  // namespace

void out(std::string_view text) {
    if (top != nullptr) {
        top->text_ += text;
        return;
    }
    if (screen.lines > 0 && screen.more != nullptr)
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

Capture::Capture() : outer_(top) { top = this; }

Capture::~Capture() { top = outer_; }

bool Capture::innermost() const { return top == this; }

std::string Capture::drain() { return std::exchange(text_, {}); }

const Screen &out_screen() {
    static const Screen kNone;
    return top == nullptr ? screen : kNone;
}

void out_screen_set(const Screen &now) {
    screen = now;
    out_rewind();
}

void out_rewind() { current = Page{screen.lines, false}; }

void out_fault(std::string_view line) {
    const std::string text = escaped(line);
    out(out_screen().colours ? "\x1b[31m" + text + "\x1b[0m\n" : text + '\n');
}

}  // namespace standin
