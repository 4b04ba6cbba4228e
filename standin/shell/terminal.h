// The terminal of a person: its size, its colours, and its pager.
#pragma once

#include "standin/base/output.h"

namespace standin {

// Whether a person sits there: input and output are terminals.
bool on_terminal();

// What the terminal is now; `lines` is the page, 0 for none, below 0 for what the window holds.
// No colours where NO_COLOR is set, or the terminal is dumb.
Screen terminal_screen(int lines);

// The signs in a line of the window, 80 where nobody tells.
int terminal_width();

}  // namespace standin
