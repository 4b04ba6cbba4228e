// The shell for a person, or for a script on standard input.
#pragma once

#include <string>

#include "standin/shell/line_source.h"
#include "standin/shell/session.h"

namespace standin {

// Reads lines with the prompt "<prefix>.<unit>> " and runs them until `exit` (CMD_EXIT) or the
// end of the input (CMD_OK). On a terminal the end counts only with `end_exits`; without it a
// hint is printed, and the shell ends all the same when the input stays at its end. An interrupt
// ends the command that runs, or drops the line that is being typed.
cmd_result_t interact(LineSource &source, int unit, const std::string &prefix, bool end_exits);

}  // namespace standin
