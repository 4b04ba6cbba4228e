#include "generator/bounds.h"

#include "generator/lexer.h"

namespace generator {
namespace {

constexpr int kDeepest = 32;  // defines that name each other end here

class Evaluator {
   public:
    Evaluator(const std::string &text, const Names &names, int depth)
        : tokens_(tokenize(text)), names_(names), depth_(depth) {}

    std::optional<std::int64_t> run() {
        const auto value = sum();
        return at_ + 1 == tokens_.size() ? value : std::nullopt;
    }

   private:
    bool accept(const char *text) {
        if (tokens_[at_].text != text || tokens_[at_].type == Token::Type::end) {
            return false;
        }
        ++at_;
        return true;
    }

    std::optional<std::int64_t> sum() {
        auto value = product();
        while (value) {
            const bool plus = accept("+");
            if (!plus && !accept("-")) {
                break;
            }
            const auto right = product();
            value = right ? std::optional(plus ? *value + *right : *value - *right) : std::nullopt;
        }
        return value;
    }

    std::optional<std::int64_t> product() {
        auto value = term();
        while (value) {
            const bool times = accept("*");
            if (!times && !accept("/")) {
                break;
            }
            const auto right = term();
            if (!right || (!times && *right == 0)) {
                return std::nullopt;
            }
            value = times ? *value * *right : *value / *right;
        }
        return value;
    }

    std::optional<std::int64_t> term() {
        if (accept("-")) {
            const auto value = term();
            return value ? std::optional(-*value) : std::nullopt;
        }
        if (accept("(")) {
            const auto value = sum();
            return accept(")") ? value : std::nullopt;
        }
        if (accept("_SHR_BITDCLSIZE")) {
            const auto bits = term();
            return bits ? std::optional((*bits + 31) / 32) : std::nullopt;
        }
        const Token &token = tokens_[at_++];
        if (token.type == Token::Type::number) {
            return std::stoll(token.text, nullptr, 0);
        }
        const auto found = names_.find(token.text);
        if (token.type != Token::Type::name || found == names_.end() || depth_ == kDeepest) {
            return std::nullopt;
        }
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
