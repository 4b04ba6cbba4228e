// Lines from an editor with history on a terminal, else from standard input.
#include "standin/shell/line_source.h"

#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/shell/complete.h"
#include "standin/shell/history.h"
#include "standin/shell/reader.h"
#include "standin/shell/session.h"
#include "standin/shell/terminal.h"

#ifdef OMBRA_LIBEDIT
#include <histedit.h>
#include <langinfo.h>
#include <locale.h>

#include <cstring>
#endif

namespace standin {
namespace {

void drop_line_end(std::string &line) {
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.pop_back();
}

class PlainInput : public LineSource {
  public:
    ~PlainInput() override { ::free(buffer_); }

    LineEnd read(const std::string &prompt, std::string &line) override {
        if (terminal()) std::fputs(prompt.c_str(), stdout);
        std::fflush(stdout);
        errno = 0;
        ssize_t got = ::getline(&buffer_, &size_, stdin);
        int error = errno;
        if (got >= 0) {
            line.assign(buffer_, static_cast<std::size_t>(got));
            drop_line_end(line);
            return LineEnd::kLine;
        }
        std::clearerr(stdin);
        return error == EINTR ? LineEnd::kInterrupt : LineEnd::kEnd;
    }

    bool terminal() const override { return on_terminal(); }

  private:
    char *buffer_ = nullptr;
    std::size_t size_ = 0;
};

#ifdef OMBRA_LIBEDIT

// What the editor asks back for; kept apart, since it comes back as a bare pointer.
struct Prompt {
    std::string text;
    int unit = 0;
};

Prompt *prompt_of(EditLine *editor) {
    void *data = nullptr;
    el_get(editor, EL_CLIENTDATA, &data);
    return static_cast<Prompt *>(data);
}

char *give_prompt(EditLine *editor) { return prompt_of(editor)->text.data(); }

std::string before_cursor(EditLine *editor) {
    const LineInfo *const info = el_line(editor);
    return {info->buffer, info->cursor};
}

// Lists what may stand at the cursor, below the line, which then stands there again.
unsigned char list_candidates(const Completion &completion) {
    std::fputs(("\n" + completion_text(completion, terminal_width())).c_str(), stdout);
    std::fflush(stdout);
    return CC_REDISPLAY;
}

unsigned char complete_here(EditLine *editor, int) {
    const std::string line = before_cursor(editor);
    const Completion completion = complete_line(line, prompt_of(editor)->unit);
    const std::string more = common_end(completion, line);
    if (!more.empty()) return el_insertstr(editor, more.c_str()) == 0 ? CC_REFRESH : CC_ERROR;
    return list_candidates(completion);
}

// `?` tells what may follow; in quotes, behind a backslash and in `$?` it is a sign like any other.
unsigned char help_here(EditLine *editor, int) {
    const std::string line = before_cursor(editor);
    const bool sign = line.ends_with('$') || line.ends_with('\\') || split_commands(line).fault;
    if (sign) return el_insertstr(editor, "?") == 0 ? CC_REFRESH : CC_ERROR;
    return list_candidates(complete_line(line, prompt_of(editor)->unit));
}

// The signs of the person's own locale while a line is read; UTF-8 where that has none but ASCII.
// Only this thread has it: the locale of the process is Python's.
class SignScope {
  public:
    SignScope() : own_(::newlocale(LC_CTYPE_MASK, "", nullptr)) {
        if (own_ != nullptr && std::strcmp(::nl_langinfo_l(CODESET, own_), "ANSI_X3.4-1968") != 0) {
            before_ = ::uselocale(own_);
            return;
        }
        if (own_ != nullptr) ::freelocale(own_);
        own_ = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        if (own_ != nullptr) before_ = ::uselocale(own_);
    }
    ~SignScope() {
        if (own_ == nullptr) return;
        ::uselocale(before_);
        ::freelocale(own_);
    }
    SignScope(const SignScope &) = delete;
    SignScope &operator=(const SignScope &) = delete;

  private:
    locale_t own_;
    locale_t before_ = nullptr;
};

class EditedInput : public LineSource {
  public:
    EditedInput() : history_(history_init()) {
        HistEvent event;
        ::history(history_, &event, H_SETSIZE, static_cast<int>(lines_.size()));
        for (const std::string &line : lines_.lines())
            ::history(history_, &event, H_ENTER, line.c_str());
        editor_ = el_init("ombra", stdin, stdout, stderr);
        el_set(editor_, EL_CLIENTDATA, &prompt_);
        el_set(editor_, EL_PROMPT, give_prompt);
        el_set(editor_, EL_EDITOR, "emacs");
        el_set(editor_, EL_SIGNAL, 0);
        el_set(editor_, EL_HIST, ::history, history_);
        el_set(editor_, EL_ADDFN, "ombra-complete", "complete the word", complete_here);
        el_set(editor_, EL_ADDFN, "ombra-help", "what may follow", help_here);
        el_set(editor_, EL_BIND, "^I", "ombra-complete", nullptr);
        el_set(editor_, EL_BIND, "?", "ombra-help", nullptr);
        el_set(editor_, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    }

    // The end of an editor throws away what was typed ahead, which is the next reader's; one that
    // does not edit leaves the terminal alone.
    ~EditedInput() override {
        el_reset(editor_);
        el_set(editor_, EL_EDITMODE, 0);
        el_end(editor_);
        history_end(history_);
    }

    LineEnd read(const std::string &prompt, std::string &line) override {
        prompt_.text = prompt;
        prompt_.unit = Shell::instance().unit();
        int count = 0;
        errno = 0;
        const char *text = el_gets(editor_, &count);
        if (text == nullptr || count <= 0) {
            bool signal = errno == EINTR;
            el_reset(editor_);
            return signal ? LineEnd::kInterrupt : LineEnd::kEnd;
        }
        line.assign(text, static_cast<std::size_t>(count));
        drop_line_end(line);
        if (const std::optional<std::string> whole = lines_.expand(line)) {
            line = *whole;
            std::fputs((escaped(line) + '\n').c_str(), stdout);
        }
        HistEvent event;
        if (lines_.add(line)) ::history(history_, &event, H_ENTER, line.c_str());
        return LineEnd::kLine;
    }

    bool terminal() const override { return true; }

  private:
    SignScope signs_;  // the editor asks at its start
    LineHistory lines_;
    History *history_;
    EditLine *editor_;
    Prompt prompt_;
};

#endif

}  // namespace

std::unique_ptr<LineSource> open_standard_input() {
#ifdef OMBRA_LIBEDIT
    if (on_terminal()) return std::make_unique<EditedInput>();
#endif
    return std::make_unique<PlainInput>();
}

}  // namespace standin
