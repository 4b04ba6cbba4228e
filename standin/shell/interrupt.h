// Interrupts (SIGINT) while commands run.
//
// A signal sets a mark; loops look at it between two commands and end with CMD_INTR. Nothing
// ever jumps: a jump out of a command would leave the frames of the interpreter that called it,
// so the return points of sh_push_ctrl_c are counted and not used.
#pragma once

#include <csignal>
#include <cstddef>

namespace standin {

// While the outermost one lives, SIGINT sets the mark. When it dies with the mark set, the signal
// is passed on to whoever had it before, unless the scope is interactive: then it is done with.
class InterruptScope {
  public:
    explicit InterruptScope(bool interactive = false);
    ~InterruptScope();
    InterruptScope(const InterruptScope &) = delete;
    InterruptScope &operator=(const InterruptScope &) = delete;

  private:
    bool outermost_;
    bool interactive_;
    struct sigaction before_ {};
};

// Whether a signal came that is neither taken nor blocked.
bool interrupted();

// Lets time pass; false as soon as there is an interrupt.
bool wait_seconds(int seconds);
// Takes it: true if there was one.
bool interrupt_take();
// A blocked signal waits until as many calls with false have come as with true.
void interrupt_block(bool block);

// Return points: pushed, popped, never jumped to.
void interrupt_push(const void *point);
bool interrupt_pop();
std::size_t interrupt_points();

}  // namespace standin
