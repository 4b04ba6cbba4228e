// The values of a call by the names of their parameters.
#include "standin/shell/call.h"

#include "standin/text/unit_ports.h"

namespace standin {

CommandCall::CommandCall(int unit, const Command &command, const Form &form)
    : unit_(unit), form_(form), name_(command.name) {
    if (*form.name != '\0') name_ += ' ' + std::string(form.name);
}

const Value *CommandCall::find(std::string_view param) const {
    const Value *last = nullptr;
    for (const auto &[given, value] : values_)
        if (param == given->name) last = &value;
    return last;
}

const Value &CommandCall::operator[](std::string_view param) const {
    static const Value &none = *new Value;
    const Value *const found = find(param);
    return found == nullptr ? none : *found;
}

std::vector<const Value *> CommandCall::all(std::string_view param) const {
    std::vector<const Value *> every;
    for (const auto &[given, value] : values_)
        if (param == given->name) every.push_back(&value);
    return every;
}

int CommandCall::number(std::string_view param, int fallback) const {
    const Value *const found = find(param);
    return found == nullptr ? fallback : static_cast<int>(found->number);
}

std::string CommandCall::text(std::string_view param, const char *fallback) const {
    const Value *const found = find(param);
    return found == nullptr ? fallback : found->text;
}

PortSet CommandCall::ports(std::string_view param) const {
    if (has(param)) return given_ports(param);
    PortSet all;
    for (const PortName &one : unit_ports(unit_)) all.set(static_cast<std::size_t>(one.port));
    return all;
}

}  // namespace standin
