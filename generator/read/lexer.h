// Tokens of a header: names, numbers, punctuation, and whole preprocessor lines.
#pragma once

#include <string>
#include <vector>

namespace generator {

struct Token {
    enum class Type { name, number, punctuation, directive, end } type = Type::end;
    std::string text;  // "bcm_port_t", "::", "#define X 4"
    int line = 0;
    std::size_t begin = 0;  // place in the source, so that array bounds can be taken verbatim
    std::size_t end = 0;
};

// Comments and blanks are dropped. The last token is of type `end`.
std::vector<Token> tokenize(const std::string &source);

}  // namespace generator
