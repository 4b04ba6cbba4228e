// From the words of a command to the form that they mean, and how far they were understood.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/shell/call.h"
#include "standin/shell/reader.h"
#include "standin/shell/values.h"

namespace standin {

// Where the words stop being understood: "vlan create 5000: 1 to 4094".
struct MatchFault {
    std::string text;
    cmd_result_t result;
    const Command *command = nullptr;  // as far as one was found
    const Form *form = nullptr;
    bool usage = false;  // a usage line helps: a word is missing, or too many
};

// The words of a command, chosen and read as far as they go.
class Match {
  public:
    // `text` is what the words were read from. REQUIRES: there is a word.
    Match(int unit, bool prompt, const Words &words, std::string_view text);

    const Command *command() const { return command_; }
    const Form *form() const { return form_; }
    const std::optional<MatchFault> &fault() const { return fault_; }
    // The fault of the whole command, to which nothing is added any more.
    const std::optional<MatchFault> &whole();
    CommandCall &call() { return *call_; }

    // What may stand behind all of these words; without a fault only.
    std::vector<Candidate> next(std::string_view begun) const;
    // The words of forms that begin with all of these.
    std::vector<Candidate> forms_behind(std::string_view begun) const;
    // The first word of a command that stands at the end of this one, if such was given.
    std::optional<std::size_t> rest_from() const { return rest_from_; }

  private:
    void go_through_show();
    bool find_form(const std::vector<std::string> &words);
    void take(std::size_t at);
    bool take_option(std::size_t at);
    bool take_flag(std::size_t at, bool prefix);
    bool take_value(const Param &param, std::size_t at, std::string word);
    void fail(std::size_t at, const std::string &right, int result, bool usage = false);
    const Param *next_place() const;
    const Param *free_fields() const;
    const Param *named(std::string_view key, bool prefix) const;
    bool is_free(const Param &param) const;
    Context context() const;

    int unit_;
    bool prompt_;
    std::vector<std::string> words_;
    const Words &read_;
    std::string_view text_;
    std::size_t topic_ = 0;  // how many words chose the form
    const Command *command_ = nullptr;
    const Form *form_ = nullptr;
    std::optional<CommandCall> call_;
    std::vector<const Param *> given_;
    std::optional<std::size_t> rest_from_;
    std::optional<MatchFault> fault_;
};

// What `show` leads to.
std::vector<Candidate> show_topics();

}  // namespace standin
