// What the declarations of the commands tell a reader: usage, help, the page of the manual.
#pragma once

#include <string>

#include "standin/shell/grammar.h"

namespace standin {

// What `help` prints for a command, or for one of its forms.
std::string help_of(const Command &command);
std::string help_of(const Command &command, const Form &form);

// All commands and filters as the chapter of a page.
std::string manual_text();

// The shortest beginning of each command that the prompt takes, one a line.
std::string prefixes_text();

}  // namespace standin
