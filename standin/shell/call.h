// One call of a command: its words, read. What the handlers of commands get.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standin/model/l3.h"
#include "standin/model/port_set.h"
#include "standin/shell/grammar.h"
#include "standin/text/address_text.h"
#include "standin/text/port_text.h"

namespace standin {

// A word by its parameter's kind: `text` always, the others where the kind has them.
struct Value {
    std::string text;
    std::int64_t number = 0;  // also of a truth, of a choice its place, of a port the global port
    PortSet ports;
    MacBytes mac{};
    IpAddress ip;
    std::vector<std::int32_t> numbers;  // of names
};

// The number of a local port, which may come as a global one.
constexpr int plain_port(std::int32_t port) {
    return gport_type(port) == kLocalGport.type ? port & kLocalGport.mask : port;
}

class CommandCall {
  public:
    CommandCall(int unit, const Command &command, const Form &form);

    int unit() const { return unit_; }
    const Form &form() const { return form_; }
    // "vlan create", before what is refused.
    const std::string &name() const { return name_; }

    void add(const Param &param, Value value) { values_.emplace_back(&param, std::move(value)); }

    // REQUIRES for each: the form has a parameter of that name.
    bool has(std::string_view param) const { return find(param) != nullptr; }
    // The last value given; an empty one where there is none.
    const Value &operator[](std::string_view param) const;
    std::vector<const Value *> all(std::string_view param) const;

    int number(std::string_view param, int fallback = 0) const;
    std::string text(std::string_view param, const char *fallback = "") const;
    bool flag(std::string_view param) const { return number(param) != 0; }
    // Every port of the unit when none are given.
    PortSet ports(std::string_view param) const;
    PortSet given_ports(std::string_view param) const { return (*this)[param].ports; }

  private:
    const Value *find(std::string_view param) const;

    int unit_;
    const Form &form_;
    std::string name_;
    std::vector<std::pair<const Param *, Value>> values_;
};

}  // namespace standin
