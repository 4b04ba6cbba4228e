// How native parameters lie in memory: what the stand-in's defaults need to know of a declaration.
#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "generator/check/bounds.h"
#include "generator/model/model.h"

namespace generator {

struct Shape {
    enum class Form {
        value,     // the bytes of the argument
        memory,    // the argument is the address of `size` bytes
        text,      // char *
        callback,  // the address of a function
        context,   // void *
        opaque     // the address of something unknown
    };
    Form form = Form::opaque;
    std::string name;                // "port"
    std::string type;                // "bcm_port_t"; of what the address points at, for memory
    std::size_t size = 0;            // of the value, or of one element behind the address
    bool array = false;              // declared with bounds, by itself or by its type
    bool constant = false;           // what the address points at is not written
    bool number = false;             // an integer, by itself or behind the address
    const Struct *record = nullptr;  // the struct, by itself or behind the address
};

class Shapes {
  public:
    explicit Shapes(const Model &model);

    Shape of(const Variable &parameter) const;

    // The field of that name, or else the only one of that type. Null if there is none.
    const Variable *field(const Struct &record, const std::string &name,
                          const std::string &type) const;
    std::size_t field_size(const Variable &field) const;

    // What the table of the stand-in says of a name under that word, marked as used; null if it
    // says nothing.
    const StandinRow *known(const std::string &word, const std::string &name) const;
    // The same for a function; a name that ends in a star stands for all that begin with the rest.
    const StandinRow *known_pattern(const std::string &word, const std::string &name) const;
    // Whether it has a name that this one begins with.
    bool known_prefix(const std::string &word, const std::string &name) const;
    // Whether it says that an argument or a field of that type and name names nothing.
    bool is_plain_number(const std::string &type, const std::string &name) const;
    bool is_constant(const std::string &name) const { return names_.contains(name); }

  private:
    struct Layout {
        std::size_t size = 0;  // 0: unknown
        bool array = false;
        bool number = false;
        const Struct *record = nullptr;
    };
    Layout layout(const std::string &type) const;
    std::size_t elements(const std::vector<std::string> &bounds) const;

    const Model &model_;
    std::unordered_map<std::string, const Struct *> structs_;
    std::unordered_map<std::string, const Typedef *> typedefs_;
    std::unordered_map<std::string, const KindRow *> kinds_;
    std::map<std::pair<std::string, std::string>, const StandinRow *> known_;
    std::map<std::pair<std::string, std::string>, const StandinRow *> plain_;  // by type and name
    Names names_;
};

}  // namespace generator
