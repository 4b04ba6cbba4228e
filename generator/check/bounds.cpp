// Array bounds as integer expressions.
#include "generator/check/bounds.h"

#include <charconv>

#include "generator/read/lexer.h"

namespace generator {
namespace {

constexpr int kDeepest = 32;  // defines that name each other end here

using Value = std::optional<std::int64_t>;

// Nothing if a side is, or if the result does not fit.
Value combined(char operation, Value left, Value right) {
    std::int64_t result = 0;
    if (!left || !right) return std::nullopt;
    switch (operation) {
        case '+':
            return __builtin_add_overflow(*left, *right, &result) ? std::nullopt : Value(result);
        case '-':
            return __builtin_sub_overflow(*left, *right, &result) ? std::nullopt : Value(result);
        case '*':
            return __builtin_mul_overflow(*left, *right, &result) ? std::nullopt : Value(result);
        default:
            return *right == 0 || (*right == -1 && *left == INT64_MIN) ? std::nullopt
                                                                       : Value(*left / *right);
    }
}

// A whole decimal or hexadecimal number, without a suffix.
Value number(const std::string &text) {
    const bool hexadecimal = text.starts_with("0x");
    const char *const begin = text.data() + (hexadecimal ? 2 : 0);
    const char *const end = text.data() + text.size();
    std::int64_t value = 0;
    const auto [rest, error] = std::from_chars(begin, end, value, hexadecimal ? 16 : 10);
    return error == std::errc() && rest == end ? Value(value) : std::nullopt;
}

class Evaluator {
  public:
    Evaluator(const std::string &text, const Names &names, int depth)
        : tokens_(tokenize(text)), names_(names), depth_(depth) {}

    Value run() {
        const auto value = sum();
        return at_ + 1 == tokens_.size() ? value : std::nullopt;
    }

  private:
    bool accept(const char *text) {
        if (tokens_[at_].text != text || tokens_[at_].type == Token::Type::end) return false;
        ++at_;
        return true;
    }

    Value sum() {
        auto value = product();
        while (value) {
            const bool plus = accept("+");
            if (!plus && !accept("-")) break;
            value = combined(plus ? '+' : '-', *value, product());
        }
        return value;
    }

    Value product() {
        auto value = term();
        while (value) {
            const bool times = accept("*");
            if (!times && !accept("/")) break;
            value = combined(times ? '*' : '/', *value, term());
        }
        return value;
    }

    Value term() {
        if (accept("-")) return combined('-', 0, term());
        if (accept("(")) {
            const auto value = sum();
            return accept(")") ? value : std::nullopt;
        }
        if (accept("_SHR_BITDCLSIZE")) return combined('/', combined('+', term(), 31), 32);
        const Token &token = tokens_[at_];
        if (token.type == Token::Type::end) return std::nullopt;
        ++at_;
        if (token.type == Token::Type::number) return number(token.text);
        const auto found = names_.find(token.text);
        if (token.type != Token::Type::name || found == names_.end() || depth_ == kDeepest)
            return std::nullopt;
        return Evaluator(found->second, names_, depth_ + 1).run();
    }

    std::vector<Token> tokens_;
    const Names &names_;
    int depth_;
    std::size_t at_ = 0;
};

}  // namespace

std::optional<std::int64_t> evaluate(const std::string &text, const Names &names) {
    return Evaluator(text, names, 0).run();
}

}  // namespace generator
