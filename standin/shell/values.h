// Reading one word by the kind of its parameter, and what could stand in its place.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/shell/call.h"

namespace standin {

struct Context {
    int unit = 0;
    bool prompt = false;                // a person types: unique prefixes count
    const CommandCall *call = nullptr;  // what has been read before
};

struct ValueFault {
    std::string right;    // "1 to 4094", "no port 200"
    bool absent = false;  // it reads well, but there is no such thing
};

// Fills in `value`, or tells what is wrong with the word.
std::optional<ValueFault> read_value(const Param &param, std::string_view word,
                                     const Context &context, Value &value);

// What may stand there: "1 to 4094", "yes or no".
std::string right_there(const Param &param);
// "VLAN", for a usage line, and "1-4", for an example.
std::string placeholder(const Param &param);
std::string example_of(const Param &param);

// Words that begin with `begun`, without regard to case.
std::vector<Candidate> candidates(const Param &param, std::string_view begun,
                                  const Context &context);

// The member of a list that `word` means: itself or, with `prefix`, the only one that it begins.
std::optional<std::size_t> one_of(std::span<const char *const> words, std::string_view word,
                                  bool prefix);

// What a person may have meant: the nearest of the words, if one is near.
std::string nearest(std::string_view word, const std::vector<std::string> &words);

// "a, b or c"
std::string list_text(const std::vector<std::string> &words);

}  // namespace standin
