// The arguments of a command, and the table of options that reads them.
//
// These are the records behind args_t and parse_table_t. An option is given as `key=value`, a
// flag as its key alone or as `key=yes`. Keys are read without regard to case.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "native/values.h"
#include "standin/model/port_set.h"
#include "standin/text/address_text.h"
#include "standin/text/port_text.h"

struct args_s {
    std::string command;             // "l2", for messages
    std::vector<std::string> words;  // what stands behind it
    std::size_t next = 0;            // the first word that nobody has taken

    bool empty() const { return next >= words.size(); }
    // The next word, or nothing; `take` goes past it.
    std::optional<std::string> peek() const;
    std::optional<std::string> take();
    // Takes the next word if it is this one.
    bool take_word(std::string_view word);
    // Takes all that is left, joined by blanks.
    std::string take_rest();
};

namespace standin {

// The number of a local port, which may come as a global one.
constexpr int plain_port(std::int32_t port) {
    return gport_type(port) == kLocalGport.type ? port & kLocalGport.mask : port;
}

// A list of ports that are all among `names`; else nothing, with `fault` saying which is not. With
// no names at all any port will do.
std::optional<PortSet> read_ports_there(std::string_view text, const PortNames &names,
                                        std::string &fault);

}  // namespace standin

struct parse_table_s {
    // `unit` gives the names of ports.
    explicit parse_table_s(int unit);

    // Each adds an option; the variable must outlive `parse` and keeps its value when the option
    // is not given. A number may be given as yes (1) or no (0).
    void add(std::string key, std::optional<std::int32_t> &value);
    void add(std::string key, std::optional<std::string> &value);
    void add(std::string key, std::optional<standin::PortSet> &value);
    void add(std::string key, std::optional<standin::MacBytes> &value);
    void add_port(std::string key, std::optional<std::int32_t> &value);
    void add_flag(std::string key, bool &value);

    // Takes every option that it knows out of `args`; the other words stay, in their order.
    void parse(args_s &args);

    // Why parse was not content: "bad value in 'vlan=x'".
    const std::string &fault() const { return fault_; }

  private:
    struct Option {
        std::string key;
        bool flag;
        std::function<bool(std::string_view)> set;  // false for a bad value
    };
    // Whether the word was an option of this table.
    bool read(std::string_view word);

    standin::PortNames names_;
    std::vector<Option> options_;
    std::string fault_;
};
