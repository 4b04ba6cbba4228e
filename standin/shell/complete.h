// What may stand at the cursor of a line that is being typed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "standin/shell/grammar.h"

namespace standin {

struct Completion {
    std::size_t begin = 0;              // of the word that a candidate takes the place of
    std::vector<Candidate> candidates;  // by their words; one without a word is advice alone
    std::string usage;                  // of the form, as far as one is chosen
    std::string fault;                  // why the words before cannot be understood
};

// `line` ends at the cursor.
Completion complete_line(std::string_view line, int unit);

// What the candidates have in common beyond what is typed: "rts " for `po`; a blank only where
// one candidate is left that is whole.
std::string common_end(const Completion &completion, std::string_view line);

// The candidates with their help, as `?` shows them.
std::string completion_text(const Completion &completion, int width);

}  // namespace standin
