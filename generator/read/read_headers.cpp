// The parser of the declarations.
#include "generator/read/read_headers.h"

#include <algorithm>
#include <array>
#include <utility>

#include "generator/read/lexer.h"

namespace generator {
namespace {

// Words that are part of a type and never the name of a parameter.
constexpr std::array<const char *, 9> kTypeWords = {"const", "unsigned", "signed", "int", "long",
                                                    "short", "char",     "void",   "bool"};

bool is_type_word(const std::string &text) {
    return std::find(kTypeWords.begin(), kTypeWords.end(), text) != kTypeWords.end();
}

struct SyntaxError {
    int line;
    std::string message;
};

class Parser {
  public:
    Parser(const std::string &file, const std::string &source, HeaderRole role, Model &model,
           Faults &faults)
        : file_(file),
          source_(source),
          role_(role),
          model_(model),
          faults_(faults),
          tokens_(tokenize(source)) {}

    void run() {
        if (role_ != HeaderRole::types_only) read_purpose();
        while (peek().type != Token::Type::end) {
            const std::size_t before = at_;
            try {
                statement();
            } catch (const SyntaxError &error) {
                if (role_ != HeaderRole::types_only)
                    faults_.add({file_, error.line}, "grammar", error.message);
                at_ = before;
                skip_statement();
            }
        }
    }

  private:
    const Token &peek(std::size_t ahead = 0) const {
        return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
    }

    bool next_is(const char *text) const { return peek().text == text; }

    Token take() {
        const Token token = peek();
        if (token.type != Token::Type::end) ++at_;
        return token;
    }

    bool accept(const char *text) {
        if (!next_is(text)) return false;
        take();
        return true;
    }

    void expect(const char *text) {
        if (!accept(text)) {
            throw SyntaxError{peek().line, "found '" + peek().text + "' where '" + text +
                                               "' is expected; see docs/declarations.md"};
        }
    }

    std::string expect_name() {
        if (peek().type != Token::Type::name) {
            throw SyntaxError{peek().line, "found '" + peek().text +
                                               "' where a name is expected; see "
                                               "docs/declarations.md"};
        }
        return take().text;
    }

    // To behind the next `;` that is not inside braces, or behind a body in braces.
    void skip_statement() {
        int depth = 0;
        while (peek().type != Token::Type::end) {
            const std::string text = take().text;
            depth += text == "{" ? 1 : 0;
            depth -= text == "}" ? 1 : 0;
            const bool body_ends = text == "}" && !next_is(";") && peek(1).text != ";";
            if (depth <= 0 && (text == ";" || body_ends)) return;
        }
    }

    Place here() const { return {file_, peek().line}; }

    void read_purpose() {
        if (source_.rfind("/*", 0) != 0 && source_.rfind("//", 0) != 0) {
            faults_.add({file_, 1}, "purpose",
                        "the first line is no comment; say there what the chapter is for");
            return;
        }
        // A comment of lines says it in its first paragraph.
        std::size_t last = source_.find(source_[1] == '/' ? "\n" : "*/", 2);
        while (source_[1] == '/' && source_.compare(last, 4, "\n// ") == 0)
            last = source_.find('\n', last + 1);
        std::string text = source_.substr(2, last - 2);
        text.erase(0, text.find_first_not_of(" *\n"));
        text.erase(text.find_last_not_of(" \n") + 1);
        for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n'))
            text.replace(end, text.find_first_not_of(" *\n/", end) - end, " ");
        model_.purposes[file_] = text;
    }

    // The comment of one line that stands alone above a line, at the start of its own; empty where
    // there is none between the purpose and that line.
    std::string section_above(int line) {
        for (; section_line_ < line && section_at_ < source_.size(); ++section_line_) {
            const std::size_t end = source_.find('\n', section_at_);
            const std::string text = source_.substr(section_at_, end - section_at_);
            const bool whole = text.rfind("/* ", 0) == 0 && text.find(" */") == text.size() - 3;
            if (whole && section_line_ > 1) section_ = text.substr(3, text.size() - 6);
            section_at_ = end == std::string::npos ? source_.size() : end + 1;
        }
        return section_;
    }

    void statement() {
        if (peek().type == Token::Type::directive) {
            directive(take().text);
        } else if (accept("OMBRA_BEGIN_DECLS") || accept("OMBRA_END_DECLS") || accept(";")) {
        } else if (next_is("OMBRA_ENUM")) {
            enumeration();
        } else if (next_is("namespace")) {
            take();
            namespaces_.push_back(expect_name());
            expect("{");
        } else if (next_is("}") && !namespaces_.empty()) {
            take();
            namespaces_.pop_back();
        } else if (accept("extern")) {
            skip_statement();  // variables are declared for the compiler; variables.txt binds them
        } else if (accept("typedef")) {
            type_definition();
        } else if ((next_is("struct") || next_is("union")) && peek(2).text == "{") {
            named_struct();
        } else if ((next_is("struct") || next_is("class")) && peek(2).text == ";") {
            skip_statement();
        } else {
            prototype();
        }
    }

    void directive(const std::string &line) {
        if (line.rfind("#define ", 0) != 0) return;
        const std::size_t name_end = line.find_first_of(" (", 8);
        if (name_end == std::string::npos || line[name_end] == '(')
            return;  // a marker or a macro with arguments
        model_.defines[line.substr(8, name_end - 8)] = line.substr(name_end + 1);
    }

    void enumeration() {
        take();
        expect("(");
        const Place place = here();
        const std::string tag = expect_name();
        expect(",");
        const std::string name = expect_name();
        expect(")");
        expect(";");
        model_.typedefs.push_back({tag, "int", {}, place});
        model_.typedefs.push_back({name, "int", {}, place});
    }

    void type_definition() {
        const bool is_union = next_is("union");
        if (is_union || next_is("struct")) {
            const Place place = here();
            if (peek(1).text == "{" || peek(2).text == "{") {
                take();
                const std::string tag = next_is("{") ? "" : expect_name();
                Struct record = struct_body(place);
                record.is_union = is_union;
                record.name = expect_name();
                record.tag = tag.empty() ? record.name : tag;
                add_struct(std::move(record));
                expect(";");
                return;
            }
            if (peek(3).text == ";" && peek(1).type == Token::Type::name) {
                take();
                const std::string tag = expect_name();
                const std::string name = expect_name();
                if (tag != name) model_.aliases[name] = tag;
                expect(";");
                return;
            }
        }
        if (const std::string name = callback_name(); !name.empty()) {
            model_.typedefs.push_back({name, "(*)", {}, here()});
            skip_statement();
            return;
        }
        const Variable declared = declarator();
        expect(";");
        if (declared.name.empty())
            throw SyntaxError{declared.place.line, "a typedef without a name"};
        model_.typedefs.push_back({declared.name, declared.type, declared.bounds, declared.place});
    }

    // typedef RESULT (*NAME)(...): the type table and the kinds know it by its name.
    std::string callback_name() const {
        for (std::size_t i = 0; peek(i).text != ";" && peek(i).type != Token::Type::end; ++i)
            if (peek(i).text == "(") return peek(i + 1).text == "*" ? peek(i + 2).text : "";
        return "";
    }

    void named_struct() {
        const Place place = here();
        const bool is_union = take().text == "union";
        const std::string tag = expect_name();
        Struct record = struct_body(place);
        record.is_union = is_union;
        record.name = tag;
        record.tag = tag;
        expect(";");
        add_struct(std::move(record));
    }

    void add_struct(Struct record) {
        if (role_ != HeaderRole::types_only) model_.structs.push_back(std::move(record));
    }

    Struct struct_body(const Place &place) {
        Struct record;
        record.place = place;
        expect("{");
        while (!accept("}")) {
            Variable field = declarator();
            if (field.name.empty()) throw SyntaxError{field.place.line, "a field without a name"};
            record.fields.push_back(std::move(field));
            expect(";");
        }
        return record;
    }

    // TYPE [NAME] {[BOUND]}
    Variable declarator() {
        Variable variable;
        variable.place = here();
        std::vector<std::string> words;
        while (peek().type == Token::Type::name || next_is("::") || next_is("*") || next_is("&"))
            words.push_back(take().text);
        if (words.empty()) {
            throw SyntaxError{peek().line, "found '" + peek().text +
                                               "' where a type is expected; see "
                                               "docs/declarations.md"};
        }
        if (has_name(words)) {
            variable.name = words.back();
            words.pop_back();
        }
        variable.type = joined(words);
        while (next_is("[")) variable.bounds.push_back(bound());
        return variable;
    }

    static bool has_name(const std::vector<std::string> &words) {
        const std::string &last = words.back();
        if (words.size() < 2 || last == "*" || last == "&" || is_type_word(last)) return false;
        const std::string &before = words[words.size() - 2];
        return before != "::" && before != "struct" && before != "enum";
    }

    static std::string joined(const std::vector<std::string> &words) {
        std::string text;
        std::string previous;
        for (const auto &word : words) {
            const bool tight = text.empty() || word == "::" || previous == "::" ||
                               (word == "*" && previous == "*");
            text += (tight ? "" : " ") + word;
            previous = word;
        }
        return text;
    }

    // The bound between brackets, letter for letter.
    std::string bound() {
        const Token open = take();
        int depth = 1;
        Token close = open;
        while (depth > 0) {
            if (peek().type == Token::Type::end || next_is(";"))
                throw SyntaxError{open.line, "an array bound without its closing bracket"};
            close = take();
            depth += close.text == "[" ? 1 : 0;
            depth -= close.text == "]" ? 1 : 0;
        }
        return source_.substr(open.end, close.begin - open.end);
    }

    void prototype() {
        const Variable head = declarator();
        if (head.name.empty() || !next_is("(")) {
            throw SyntaxError{head.place.line, "found '" + peek().text + "' behind '" + head.type +
                                                   "': no declaration of the grammar; see "
                                                   "docs/declarations.md"};
        }
        Function function;
        function.row = head.name;
        function.result = head.type;
        function.place = head.place;
        function.section = section_above(head.place.line);
        function.module_native = role_ == HeaderRole::module_native;
        for (const auto &name : namespaces_) function.native += name + "::";
        function.native += head.name;
        take();
        if (!(next_is("void") && peek(1).text == ")")) {
            while (!next_is(")")) {
                function.parameters.push_back(declarator());
                if (!accept(",")) break;
            }
        } else {
            take();
        }
        expect(")");
        expect(";");
        if (role_ == HeaderRole::types_only) return;
        if (const std::string types = "_types.h"; file_.ends_with(types)) {
            const std::string calls = file_.substr(0, file_.size() - types.size()) + ".h";
            faults_.add(
                function.place, "prototype-place",
                "'" + function.row + "' is a prototype in a header of types; move it to " + calls);
            return;
        }
        model_.functions.push_back(std::move(function));
    }

    std::string file_;
    const std::string &source_;
    HeaderRole role_;
    Model &model_;
    Faults &faults_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    std::size_t section_at_ = 0;  // how far section_above() has read
    int section_line_ = 1;
    std::string section_;
    std::vector<std::string> namespaces_;
};

}  // namespace

void read_header(const std::string &file, const std::string &source, HeaderRole role, Model &model,
                 Faults &faults) {
    Parser(file, source, role, model, faults).run();
}

}  // namespace generator
