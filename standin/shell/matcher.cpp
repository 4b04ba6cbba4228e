// Matching words against the declared forms, one word after the other.
#include "standin/shell/matcher.h"

#include <algorithm>

#include "sdk/constants.h"
#include "standin/base/scan.h"

namespace standin {
namespace {

// What `show` leads to that has no form of that name.
struct Topic {
    const char *word;
    const char *command;
    const char *help;
};
constexpr Topic kTopics[] = {
    {"units", "unit", "The units"},
    {"ports", "ps", "State of ports"},
    {"variables", "printenv", "Variables of the shell"},
    {"settings", "set", "Settings of the shell"},
    {"counters", "counters", "Counters of ports"},
    {"phy", "phy", "PHYs of ports"},
    {"version", "version", "Version of the library"},
    {"running", "running", "The state of the unit as commands"},
};

std::vector<std::string> form_words(const Form &form) {
    std::vector<std::string> words;
    for (std::string_view one : split(form.name, " ")) words.emplace_back(one);
    return words;
}

// Whether `words` begin with those of a form, or the form's with `words`.
bool agree(const std::vector<std::string> &form, const std::vector<std::string> &words,
           std::size_t from, std::size_t count, bool prefix) {
    for (std::size_t at = 0; at < count; ++at) {
        if (same_word(form[at], words[from + at])) continue;
        if (!prefix || words[from + at].empty() || !starts_with_word(form[at], words[from + at]))
            return false;
    }
    return true;
}

std::string shortened(const std::vector<std::string> &words, std::size_t count) {
    std::string text;
    for (std::size_t at = 0; at < count; ++at) text += (at == 0 ? "" : " ") + words[at];
    constexpr std::size_t kMost = 60;
    return text.size() <= kMost ? text
                                : text.substr(0, 40) + " ... " + text.substr(text.size() - 16);
}

}  // namespace

std::vector<Candidate> show_topics() {
    std::vector<Candidate> all;
    for (const Topic &topic : kTopics) all.push_back({topic.word, topic.help});
    for (const Command *one : all_commands())
        if (std::any_of(one->forms.begin(), one->forms.end(), [](const Form &form) {
                return std::string_view(form.name).ends_with("show");
            }))
            all.push_back({one->name, one->help});
    return all;
}

Match::Match(int unit, bool prompt, const Words &words, std::string_view text)
    : unit_(unit), prompt_(prompt), words_(words.words), read_(words), text_(text) {
    command_ = find_command(words_.front(), prompt);
    if (command_ == nullptr) {
        std::vector<std::string> names;
        for (const Command *one : all_commands()) names.emplace_back(one->name);
        std::vector<std::string> begun;
        std::copy_if(names.begin(), names.end(), std::back_inserter(begun),
                     [&](const std::string &name) {
                         return prompt && starts_with_word(name, words_.front());
                     });
        if (begun.size() > 1) {
            fault_ = MatchFault{escaped(words_.front()) + ": " + list_text(begun),
                                cmd_result_t{CMD_NFND}};
            return;
        }
        const std::string near = nearest(words_.front(), names);
        const std::string hint =
            near.empty() ? "'help' lists them" : "did you mean '" + near + "'?";
        fault_ = MatchFault{escaped(words_.front()) + ": no such command; " + hint,
                            cmd_result_t{CMD_NFND}};
        return;
    }
    words_.front() = command_->name;
    go_through_show();
    if (!find_form(words_)) return;
    call_.emplace(unit, *command_, *form_);
    for (std::size_t at = topic_; at < words_.size() && !fault_; ++at) {
        const Param *const open = next_place();
        if (open != nullptr && open->kind == Kind::kRest) {
            Value value;
            value.text = text_.substr(read_.places[at].begin);
            call_->add(*open, std::move(value));
            given_.push_back(open);
            rest_from_ = at;
            return;
        }
        take(at);
    }
}

// `show ports` is `ps`, `show l2 ...` is `l2 show ...`, `show l3 host` is `l3 host show`.
void Match::go_through_show() {
    if (std::string_view(command_->name) != "show" || words_.size() < 2) return;
    const auto rest = words_.begin() + 2;
    std::vector<const char *> topics;
    for (const Topic &topic : kTopics) topics.push_back(topic.word);
    if (const std::optional<std::size_t> at = one_of(topics, words_[1], prompt_)) {
        std::vector<std::string> led = {kTopics[*at].command};
        led.insert(led.end(), rest, words_.end());
        words_ = std::move(led);
    } else {
        const Command *const target = find_command(words_[1], prompt_);
        if (target == nullptr) return;
        const auto has = [&](const std::string &name) {
            return std::any_of(target->forms.begin(), target->forms.end(),
                               [&](const Form &form) { return name == form.name; });
        };
        const bool deeper = words_.size() > 2 && has(words_[2] + " show");
        if (!deeper && !has("show")) return;
        std::vector<std::string> led = {target->name};
        if (deeper) led.push_back(words_[2]);
        led.emplace_back("show");
        led.insert(led.end(), rest + (deeper ? 1 : 0), words_.end());
        words_ = std::move(led);
    }
    command_ = find_command(words_.front());
}

// Of the forms that agree with the words, the one with most words of its own.
bool Match::find_form(const std::vector<std::string> &words) {
    std::size_t furthest = 0;
    std::vector<std::string> right;
    for (bool prefix : {false, true}) {
        if (form_ != nullptr || (prefix && !prompt_)) break;
        const Form *found = nullptr;
        bool unique = true;
        for (const Form &form : command_->forms) {
            const std::vector<std::string> own = form_words(form);
            if (own.empty() || own.size() > words.size() - 1) continue;
            if (!agree(own, words, 1, own.size(), prefix)) continue;
            if (found != nullptr && form_words(*found).size() == own.size()) unique = false;
            if (found == nullptr || form_words(*found).size() <= own.size()) found = &form;
        }
        if (found != nullptr && unique) form_ = found;
    }
    if (form_ != nullptr) {
        const std::vector<std::string> own = form_words(*form_);
        topic_ = 1 + own.size();
        std::copy(own.begin(), own.end(), words_.begin() + 1);
        return true;
    }
    topic_ = 1;
    const Form *fallback = nullptr;
    for (const Form &form : command_->forms)
        if (same_word(form.name, command_->fallback)) fallback = &form;
    const bool plain = fallback != nullptr && *fallback->name == '\0';
    // A word that names no form may belong to the form that needs none.
    if (fallback != nullptr && (words.size() == 1 || plain)) {
        form_ = fallback;
        return true;
    }
    for (const Form &form : command_->forms) {
        const std::vector<std::string> own = form_words(form);
        std::size_t common = 0;
        while (common < own.size() && common + 1 < words.size() &&
               agree({own[common]}, words, common + 1, 1, prompt_))
            ++common;
        if (common > furthest) right.clear();
        furthest = std::max(furthest, common);
        if (common == furthest && common < own.size() &&
            std::find(right.begin(), right.end(), own[common]) == right.end())
            right.push_back(own[common]);
    }
    const std::size_t at = furthest + 1;
    // Words of the fallback without its name: `vlan 10`, `l2 static`.
    if (fallback != nullptr && at == 1) {
        form_ = fallback;
        const bool number = !words[1].empty() && is_digit(words[1].front());
        if (number || words[1].find('=') != std::string::npos || named(words[1], false) != nullptr)
            return true;
        form_ = nullptr;
    }
    const std::string near = at < words.size() ? nearest(words[at], right) : "";
    fail(at, list_text(right) + (near.empty() ? "" : "; did you mean '" + near + "'?"), CMD_USAGE);
    return false;
}

Context Match::context() const { return {unit_, prompt_, call_ ? &*call_ : nullptr}; }

void Match::fail(std::size_t at, const std::string &right, int result, bool usage) {
    std::string text = shortened(words_, std::min(at, words_.size()));
    if (at < words_.size()) text += ' ' + words_[at];
    fault_ = MatchFault{escaped(text + ": " + right), static_cast<cmd_result_t>(result), command_,
                        form_, usage};
}

bool Match::is_free(const Param &param) const {
    return param.repeats || std::find(given_.begin(), given_.end(), &param) == given_.end();
}

const Param *Match::next_place() const {
    for (const Param &param : form_->params)
        if (param.how == Param::How::kPlace && is_free(param)) return &param;
    return nullptr;
}

// Where fields of a structure may stand, which they may before other places are filled.
const Param *Match::free_fields() const {
    for (const Param &param : form_->params)
        if (param.kind == Kind::kStructField && is_free(param)) return &param;
    return nullptr;
}

const Param *Match::named(std::string_view key, bool prefix) const {
    const Param *found = nullptr;
    for (const Param &param : form_->params) {
        if (param.how == Param::How::kPlace) continue;
        if (same_word(param.name, key)) return &param;
        if (!prefix || key.empty() || !starts_with_word(param.name, key)) continue;
        if (found != nullptr) return nullptr;
        found = &param;
    }
    return found;
}

bool Match::take_value(const Param &param, std::size_t at, std::string word) {
    Value value;
    const std::optional<ValueFault> bad = read_value(param, word, context(), value);
    if (bad) {
        fail(at, bad->right, bad->absent ? CMD_FAIL : CMD_USAGE);
        return false;
    }
    for (const Param *other : given_) {
        if (param.group == 0 || other == &param || other->group != param.group) continue;
        fail(at, std::string("not with '") + other->name + '\'', CMD_USAGE);
        return false;
    }
    call_->add(param, std::move(value));
    given_.push_back(&param);
    return true;
}

// `key=value`, also of a flag; false when the word is none of the form's.
bool Match::take_option(std::size_t at) {
    std::string_view key;
    std::string_view value;
    if (!cut(words_[at], '=', key, value)) return false;
    const Param *const param = named(key, prompt_);
    if (param == nullptr) return false;
    take_value(*param, at, std::string(value));
    return true;
}

bool Match::take_flag(std::size_t at, bool prefix) {
    const Param *const param = named(words_[at], prefix);
    if (param == nullptr || param->how != Param::How::kFlag) return false;
    take_value(*param, at, "yes");
    return true;
}

void Match::take(std::size_t at) {
    if (take_option(at) || take_flag(at, false)) return;
    const Param *const place = next_place();
    if (words_[at].find('=') != std::string::npos) {
        if (const Param *const fields = free_fields()) {
            take_value(*fields, at, words_[at]);
            return;
        }
    }
    std::vector<std::string> names;
    for (const Param &param : form_->params)
        if (param.how != Param::How::kPlace)
            names.push_back(param.name + std::string(param.how == Param::How::kOption ? "=" : ""));
    const bool assignment =
        words_[at].find('=') != std::string::npos && !names.empty() &&
        (place == nullptr || (place->kind != Kind::kText && place->kind != Kind::kSettings &&
                              place->kind != Kind::kFieldValue));
    if (place != nullptr && !assignment) {
        take_value(*place, at, words_[at]);
        return;
    }
    if (prompt_ && take_flag(at, true)) return;
    if (names.empty()) {
        fail(at, "one word too many", CMD_USAGE, true);
        return;
    }
    std::string key = words_[at].substr(0, words_[at].find('='));
    if (named(key, false) != nullptr) {
        fail(at, "as " + example_of(*named(key, false)), CMD_USAGE);
        return;
    }
    if (words_[at].find('=') != std::string::npos) key += '=';
    const std::string near = nearest(key, names);
    fail(at,
         "unknown option; " +
             (near.empty() ? "there is " + list_text(names) : "did you mean '" + near + "'?"),
         CMD_USAGE);
}

const std::optional<MatchFault> &Match::whole() {
    if (fault_) return fault_;
    for (const Param &param : form_->params) {
        if (!param.needed) continue;
        std::vector<std::string> group;
        bool given = false;
        for (const Param &other : form_->params) {
            if (&other != &param && (param.group == 0 || other.group != param.group)) continue;
            given |= std::find(given_.begin(), given_.end(), &other) != given_.end();
            group.push_back(other.how == Param::How::kOption
                                ? std::string(other.name) + '=' + placeholder(other)
                                : other.name);
        }
        if (given) continue;
        std::string right = list_text(group) + (group.size() > 1 ? " are missing" : " is missing");
        if (group.size() == 1) right += ": " + right_there(param);
        fail(words_.size(), right, CMD_USAGE, true);
        break;
    }
    return fault_;
}

std::vector<Candidate> Match::forms_behind(std::string_view begun) const {
    std::vector<Candidate> all;
    if (command_ == nullptr) return all;
    const std::size_t depth = words_.size() - 1;
    for (const Form &form : command_->forms) {
        const std::vector<std::string> own = form_words(form);
        if (own.size() <= depth || !agree(own, words_, 1, depth, prompt_)) continue;
        const std::string &word = own[depth];
        if (!starts_with_word(word, begun)) continue;
        if (all.empty() || all.back().word != word)
            all.push_back({word, depth + 1 == own.size() ? form.help : "..."});
    }
    return all;
}

std::vector<Candidate> Match::next(std::string_view begun) const {
    std::vector<Candidate> all;
    if (fault_ || form_ == nullptr) return all;
    const auto add = [&](const std::string &word, const char *help) {
        if (starts_with_word(word, begun)) all.push_back({word, help});
    };
    if (std::string_view(command_->name) == "show" && words_.size() == 1)
        for (const Candidate &one : show_topics()) add(one.word, one.help.c_str());
    // `show l3` goes on with what `l3` can show.
    if (std::string_view(command_->name) == "show" && words_.size() == 2)
        if (const Command *const target = find_command(words_[1], prompt_))
            for (const Form &form : target->forms)
                if (const auto words = form_words(form); words.size() == 2 && words[1] == "show")
                    add(words[0], form.help);
    if (words_.size() == 1)
        for (Candidate &one : forms_behind(begun)) all.push_back(std::move(one));
    std::string_view key;
    std::string_view value;
    if (cut(begun, '=', key, value)) {
        if (const Param *const param = named(key, prompt_)) {
            for (Candidate one : candidates(*param, value, context()))
                all.push_back({std::string(key) + '=' + one.word, one.help});
            if (all.empty()) all.push_back({"", right_there(*param)});
            return all;
        }
    }
    if (const Param *const place = next_place()) {
        std::vector<Candidate> there = candidates(*place, begun, context());
        if (there.empty() && begun.empty())
            there.push_back({"", std::string(place->name) + ": " + right_there(*place)});
        all.insert(all.end(), there.begin(), there.end());
        const Param *const fields = free_fields();
        if (fields != nullptr && fields != place && !begun.empty())
            for (Candidate &one : candidates(*fields, begun, context()))
                all.push_back(std::move(one));
    }
    for (const Param &param : form_->params)
        if (param.how != Param::How::kPlace && is_free(param))
            add(param.name + std::string(param.how == Param::How::kOption ? "=" : ""), param.help);
    return all;
}

}  // namespace standin
