// Lines from an editor with history on a terminal, else from standard input.
#include "standin/shell/line_source.h"

#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "standin/base/config_store.h"

#ifdef OMBRA_LIBEDIT
#include <histedit.h>
#endif

namespace standin {
namespace {

bool on_terminal() { return ::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0; }

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
};

char *give_prompt(EditLine *editor) {
    void *data = nullptr;
    el_get(editor, EL_CLIENTDATA, &data);
    return static_cast<Prompt *>(data)->text.data();
}

class EditedInput : public LineSource {
  public:
    EditedInput() : editor_(el_init("ombra", stdin, stdout, stderr)), history_(history_init()) {
        HistEvent event;
        int size = static_cast<int>(property_number("diag_shell_history", 0, -1, 200));
        history(history_, &event, H_SETSIZE, size);
        el_set(editor_, EL_CLIENTDATA, &prompt_);
        el_set(editor_, EL_PROMPT, give_prompt);
        el_set(editor_, EL_EDITOR, "emacs");
        el_set(editor_, EL_SIGNAL, 0);
        el_set(editor_, EL_HIST, history, history_);
    }

    ~EditedInput() override {
        el_end(editor_);
        history_end(history_);
    }

    LineEnd read(const std::string &prompt, std::string &line) override {
        prompt_.text = prompt;
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
        if (!line.empty()) {
            HistEvent event;
            history(history_, &event, H_ENTER, line.c_str());
        }
        return LineEnd::kLine;
    }

    bool terminal() const override { return true; }

  private:
    EditLine *editor_;
    History *history_;
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
