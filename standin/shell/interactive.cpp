// The prompt, its loop over the lines of a person, and the end of input.
#include "standin/shell/interactive.h"

#include "sdk/variables.h"
#include "standin/base/output.h"
#include "standin/shell/interrupt.h"
#include "standin/shell/reader.h"
#include "standin/shell/terminal.h"

namespace standin {
namespace {

constexpr int kMostEnds = 3;  // in a row, before the input is taken to be gone

// A line with all that continues it.
LineEnd read_whole(LineSource &source, const std::string &prompt, std::string &line) {
    LineEnd end = source.read(prompt, line);
    while (end == LineEnd::kLine && take_continuation(line)) {
        std::string more;
        end = source.read("> ", more);
        line += more;
    }
    return end;
}

// The terminal is there for the time of one shell.
class ScreenScope {
  public:
    explicit ScreenScope(bool terminal) : on_(terminal) {}
    ~ScreenScope() { out_screen_set({}); }
    ScreenScope(const ScreenScope &) = delete;
    ScreenScope &operator=(const ScreenScope &) = delete;

    // Before each command, since the window and the setting may have changed.
    void renew() const { out_screen_set(on_ ? terminal_screen(sh_set_more_lines) : Screen{}); }

  private:
    bool on_;
};

}  // namespace

cmd_result_t interact(LineSource &source, int unit, const std::string &prefix, bool end_exits) {
    InterruptScope interrupts(true);
    ScreenScope screen(source.terminal());
    Shell &shell = Shell::instance();
    shell.unit_set(unit);
    for (int ends = 0; ends < kMostEnds;) {
        std::string line;
        LineEnd end = read_whole(source, prefix + '.' + std::to_string(shell.unit()) + "> ", line);
        if (end == LineEnd::kInterrupt) {
            interrupt_take();
            out("\n");
            continue;
        }
        if (end == LineEnd::kEnd) {
            if (end_exits || !source.terminal()) break;
            ++ends;
            out("\n'exit' leaves the shell\n");
            continue;
        }
        ends = 0;
        screen.renew();
        cmd_result_t result = shell.run_typed(shell.unit(), line);
        if (result == kExit) return kExit;
        // A signal that came too late for the command, or at its pager, is done with as well.
        if (interrupted() || result == kInterrupted) {
            interrupt_take();
            out_screen_set({});
            out("interrupted\n");
        }
    }
    return kOk;
}

}  // namespace standin
