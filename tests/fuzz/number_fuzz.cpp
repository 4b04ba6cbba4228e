// Any bytes as a number.
#include <array>

#include "fuzz.h"
#include "standin/base/number_text.h"

using namespace standin;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::string_view text = fuzz::text_of(data, size);
    std::optional<std::uint64_t> whole = read_u64(text);
    std::optional<std::uint32_t> word = read_u32(text);
    std::optional<std::int32_t> integer = read_i32(text);
    read_truth(text);
    if (whole) {
        fuzz::must(read_u64(decimal_text(*whole, true)) == whole, "decimal text with commas");
        fuzz::must(word.has_value() == (*whole <= 0xffffffffU), "one number, two widths");
    }
    fuzz::must(!integer || word == static_cast<std::uint32_t>(*integer), "signed and unsigned");
    std::array<std::uint32_t, 4> words{};
    std::array<std::uint32_t, 4> back{};
    if (!read_words(text, words)) {
        fuzz::must(!whole && !word, "a number is a long number");
        return 0;
    }
    fuzz::must(!whole || (std::uint64_t{words[1]} << 32 | words[0]) == *whole, "the same value");
    fuzz::must(read_words(words_text(words), back) && back == words, "long text");
    fuzz::must(read_words(spec_words_text(words), back) && back == words, "whole long text");
    return 0;
}
