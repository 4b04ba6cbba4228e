// Sizes and keys of the terminal, and the question of the pager.
#include "standin/shell/terminal.h"

#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "standin/base/scan.h"

namespace standin {
namespace {

constexpr int kWidth = 80;
constexpr int kHeight = 24;

winsize window() {
    winsize size{};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) size.ws_col = kWidth;
    if (size.ws_row == 0) size.ws_row = kHeight;
    return size;
}

bool has_colours() {
    const char *const off = std::getenv("NO_COLOR");
    const std::string_view kind = view_of(std::getenv("TERM"));
    return (off == nullptr || *off == '\0') && !kind.empty() && kind != "dumb";
}

// Keys come one by one and unseen while it lives; set before a question, so that no key that
// answers it is shown. Nothing waits in a buffer afterwards.
class KeyScope {
  public:
    KeyScope() : terminal_(::tcgetattr(STDIN_FILENO, &before_) == 0) {
        if (!terminal_) return;
        termios keys = before_;
        keys.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
        keys.c_cc[VMIN] = 1;
        keys.c_cc[VTIME] = 0;
        ::tcsetattr(STDIN_FILENO, TCSADRAIN, &keys);
    }
    ~KeyScope() {
        if (terminal_) ::tcsetattr(STDIN_FILENO, TCSADRAIN, &before_);
    }
    KeyScope(const KeyScope &) = delete;
    KeyScope &operator=(const KeyScope &) = delete;

    // Below 0 for an end or a signal.
    int read() const {
        unsigned char key = 0;
        return ::read(STDIN_FILENO, &key, 1) == 1 ? key : -1;
    }

  private:
    termios before_{};
    bool terminal_;
};

// A page for a blank, a line for return, no more for `q` and at the end.
int ask_more() {
    constexpr std::string_view kQuestion = "-- more: space, return, q --";
    const KeyScope keys;
    std::fwrite(kQuestion.data(), 1, kQuestion.size(), stdout);
    std::fflush(stdout);
    int lines = -1;
    while (lines < 0) {
        const int key = keys.read();
        if (key < 0 || key == 'q' || key == 'Q' || key == 3) lines = 0;
        if (key == ' ') lines = out_screen().lines;
        if (key == '\n' || key == '\r') lines = 1;
    }
    // Over the question, so that the page reads as one.
    std::fputs(('\r' + std::string(kQuestion.size(), ' ') + '\r').c_str(), stdout);
    std::fflush(stdout);
    return lines;
}

}  // namespace

bool on_terminal() { return ::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0; }

int terminal_width() { return window().ws_col; }

Screen terminal_screen(int lines) {
    Screen screen;
    const winsize size = window();
    screen.width = size.ws_col;
    screen.colours = has_colours();
    screen.lines = lines >= 0 ? lines : size.ws_row - 1;
    screen.more = ask_more;
    return screen;
}

}  // namespace standin
