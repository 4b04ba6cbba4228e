// The prompt, its loop over the lines of a person, and the end of input.
#include "standin/shell/interactive.h"

#include <cstdio>

#include "sdk/variables.h"
#include "standin/base/output.h"
#include "standin/shell/interrupt.h"
#include "standin/shell/reader.h"

namespace standin {
namespace {

constexpr int kMostEnds = 3;  // in a row, before the input is taken to be gone

// Asks whether the rest of a long text is wanted.
bool ask_more() {
    std::fputs("-- more, 'q' to stop: ", stdout);
    std::fflush(stdout);
    int first = std::getc(stdin);
    for (int sign = first; sign != '\n' && sign != EOF;) sign = std::getc(stdin);
    std::clearerr(stdin);  // an end or a signal is the pager's, not the next line's
    return first != EOF && first != 'q' && first != 'Q';
}

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

// Turns the pager on for the time of one shell.
class PagerScope {
  public:
    explicit PagerScope(bool terminal) : on_(terminal) {}
    ~PagerScope() { out_pager_set(0, nullptr); }
    PagerScope(const PagerScope &) = delete;
    PagerScope &operator=(const PagerScope &) = delete;

    // Before each command, since the setting may have changed.
    void renew() const { out_pager_set(on_ ? sh_set_more_lines : 0, ask_more); }

  private:
    bool on_;
};

}  // namespace

cmd_result_t interact(LineSource &source, int unit, const std::string &prefix, bool end_exits) {
    InterruptScope interrupts(true);
    PagerScope pager(source.terminal());
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
        pager.renew();
        cmd_result_t result = shell.run(shell.unit(), line.c_str());
        if (result == kExit) return kExit;
        // A signal that came too late for the command, or at its pager, is done with as well.
        if (interrupted() || result == kInterrupted) {
            interrupt_take();
            out_pager_set(0, nullptr);
            out("interrupted\n");
        }
    }
    return kOk;
}

}  // namespace standin
