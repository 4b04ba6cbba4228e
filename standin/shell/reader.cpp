// Splitting lines into commands and words, with quotes, variables and units.
#include "standin/shell/reader.h"

#include "standin/base/number_text.h"
#include "standin/base/scan.h"

namespace standin {
namespace {

ShellFault open_quote(char quote) { return {std::string("no closing ") + quote}; }

bool name_sign(char sign) { return is_alnum(sign) || sign == '_'; }

// Reads one command's words; a small machine over the text.
class WordReader {
  public:
    WordReader(std::string_view text, const VariableLookup &lookup)
        : text_(text), lookup_(lookup) {}

    Words read() {
        Words out;
        while (at_ < text_.size() && !out.fault) {
            char sign = text_[at_];
            if (is_blank(sign)) {
                end_word(out);
                ++at_;
            } else if (sign == '#' && !open_) {
                break;
            } else {
                take(sign, out.fault);
            }
        }
        end_word(out);
        return out;
    }

  private:
    void end_word(Words &out) {
        if (open_) {
            bool plain = text_.substr(begin_, at_ - begin_) == word_;
            out.words.push_back(std::move(word_));
            out.places.push_back({begin_, at_, plain});
        }
        word_.clear();
        open_ = false;
    }

    // Takes one sign, quoted text or variable into the word.
    void take(char sign, std::optional<ShellFault> &fault) {
        if (!open_) begin_ = at_;
        open_ = true;
        if (sign == '\'')
            take_literal(fault);
        else if (sign == '"')
            take_quoted(fault);
        else
            take_sign();
    }

    void take_literal(std::optional<ShellFault> &fault) {
        std::size_t end = text_.find('\'', at_ + 1);
        if (end == std::string_view::npos) {
            fault = open_quote('\'');
            return;
        }
        word_ += text_.substr(at_ + 1, end - at_ - 1);
        at_ = end + 1;
    }

    void take_quoted(std::optional<ShellFault> &fault) {
        for (++at_; at_ < text_.size() && text_[at_] != '"';) take_sign();
        if (at_ >= text_.size()) {
            fault = open_quote('"');
            return;
        }
        ++at_;
    }

    void take_sign() {
        char sign = text_[at_++];
        if (sign == '\\' && at_ < text_.size())
            word_ += text_[at_++];
        else if (sign == '$')
            take_variable();
        else
            word_ += sign;
    }

    // Behind the '$'; a '$' that no name follows is itself.
    void take_variable() {
        std::string_view rest = text_.substr(at_);
        if (rest.starts_with('?')) {
            word_ += lookup_("?");
            ++at_;
            return;
        }
        bool braces = rest.starts_with('{');
        std::size_t end = braces ? 1 : 0;
        while (end < rest.size() && name_sign(rest[end])) ++end;
        std::string_view name = rest.substr(braces ? 1 : 0, end - (braces ? 1 : 0));
        bool closed = !braces || (end < rest.size() && rest[end] == '}');
        if (name.empty() || !closed) {
            word_ += '$';
            return;
        }
        word_ += lookup_(name);
        at_ += end + (braces ? 1 : 0);
    }

    std::string_view text_;
    const VariableLookup &lookup_;
    std::size_t at_ = 0;
    std::size_t begin_ = 0;  // of the word
    std::string word_;
    bool open_ = false;  // a word has begun, maybe an empty one in quotes
};

}  // namespace

SplitLine split_commands(std::string_view line) {
    SplitLine out;
    std::string command;
    char quote = '\0';
    for (std::size_t at = 0; at < line.size(); ++at) {
        char sign = line[at];
        bool word_start = at == 0 || is_blank(line[at - 1]) || line[at - 1] == ';';
        if (quote == '\0' && sign == ';') {
            out.commands.push_back(std::string(trim(command)));
            command.clear();
            continue;
        }
        out.comment = quote == '\0' && sign == '#' && word_start;
        if (out.comment) break;
        command += sign;
        if (sign == '\\' && quote != '\'' && at + 1 < line.size()) {
            command += line[++at];
        } else if (quote != '\0') {
            if (sign == quote) quote = '\0';
        } else if (sign == '"' || sign == '\'') {
            quote = sign;
        }
    }
    if (quote != '\0') out.fault = open_quote(quote);
    if (!trim(command).empty()) out.commands.push_back(std::string(trim(command)));
    return out;
}

std::optional<UnitPrefix> take_unit_prefix(std::string_view &command) {
    std::string_view head;
    std::string_view tail;
    if (!cut(command, ':', head, tail)) return std::nullopt;
    UnitPrefix prefix;
    prefix.every = head == "*";
    if (!prefix.every) {
        std::optional<std::int32_t> unit = read_i32(head);
        if (!unit || head.empty() || !is_digit(head.front())) return std::nullopt;
        prefix.unit = *unit;
    }
    command = trim_left(tail);
    return prefix;
}

Words read_command_words(std::string_view command, const VariableLookup &lookup) {
    return WordReader(command, lookup).read();
}

bool take_continuation(std::string &line) {
    std::size_t slashes = 0;
    while (slashes < line.size() && line[line.size() - 1 - slashes] == '\\') ++slashes;
    if (slashes % 2 == 0 || split_commands(line).comment) return false;
    line.pop_back();
    return true;
}

}  // namespace standin
