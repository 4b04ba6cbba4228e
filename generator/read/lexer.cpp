// Cuts the text of a header into tokens.
#include "generator/read/lexer.h"

#include <algorithm>
#include <cctype>

namespace generator {
namespace {

class Lexer {
  public:
    explicit Lexer(const std::string &source) : source_(source) {}

    std::vector<Token> run() {
        while (skip_blanks(), at_ < source_.size()) {
            const std::size_t begin = at_;
            const int line = line_;
            const Token::Type type = take();
            tokens_.push_back({type, source_.substr(begin, at_ - begin), line, begin, at_});
        }
        tokens_.push_back({Token::Type::end, "", line_, at_, at_});
        return std::move(tokens_);
    }

  private:
    bool starts(const char *text) const { return source_.compare(at_, 2, text) == 0; }

    void advance_to(std::size_t end) {
        line_ +=
            static_cast<int>(std::count(source_.begin() + static_cast<std::ptrdiff_t>(at_),
                                        source_.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
        at_ = end;
    }

    void skip_blanks() {
        while (at_ < source_.size()) {
            if (std::isspace(static_cast<unsigned char>(source_[at_])) != 0) {
                advance_to(at_ + 1);
            } else if (starts("//")) {
                advance_to(std::min(source_.find('\n', at_), source_.size()));
            } else if (starts("/*")) {
                const auto close = source_.find("*/", at_ + 2);
                advance_to(close == std::string::npos ? source_.size() : close + 2);
            } else {
                return;
            }
        }
    }

    Token::Type take() {
        const auto is_name = [](char c) {
            return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
        };
        const char first = source_[at_];
        if (first == '#') {
            std::size_t end = source_.find('\n', at_);
            while (end != std::string::npos && source_[end - 1] == '\\')
                end = source_.find('\n', end + 1);
            advance_to(std::min(end, source_.size()));
            return Token::Type::directive;
        }
        if (is_name(first)) {
            while (at_ < source_.size() && is_name(source_[at_])) ++at_;
            return std::isdigit(static_cast<unsigned char>(first)) != 0 ? Token::Type::number
                                                                        : Token::Type::name;
        }
        if (first == '"') {
            const auto close = source_.find('"', at_ + 1);
            advance_to(close == std::string::npos ? source_.size() : close + 1);
            return Token::Type::punctuation;
        }
        at_ += starts("::") ? 2U : 1U;
        return Token::Type::punctuation;
    }

    const std::string &source_;
    std::size_t at_ = 0;
    int line_ = 1;
    std::vector<Token> tokens_;
};

}  // namespace

std::vector<Token> tokenize(const std::string &source) { return Lexer(source).run(); }

}  // namespace generator
