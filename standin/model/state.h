// The state of a unit as objects, each known by its kind and key: walked, saved, loaded, compared.
//
// A kind has the name by which its table is known among the faults ("vlan", "l3_route"), or that of
// a family of calls without a model ("bcm_vlan_control"). An object comes after those that it
// names. Of a structure only the fields are told that are not zero.
//
// The layers above take part with their slots (slots.h): a state of type T that is to be saved has
//
//     void visit_state(const T &state, StateVisitor &to);
//
// beside it in its header. What has none is neither saved nor loaded: it stays. So do parts of it,
// as callbacks, that this function takes over into a copy:
//
//     void keep_state(T &copy, const T &present);
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "native/values.h"
#include "standin/base/number_text.h"

namespace standin {

struct StructLayout;
struct Switch;

class StateVisitor {
  public:
    virtual ~StateVisitor() = default;

    // An object begins; the fields that follow are its own. No two have kind and key in common.
    virtual void object(std::string_view kind, std::string_view key) = 0;
    virtual void number(std::string_view field, std::int64_t value) = 0;
    virtual void text(std::string_view field, std::string_view value) = 0;
};

// "1-4,9"
std::string ports_text(const bcm_pbmp_t &ports);

// Tells the fields of a structure that are not zero, with `prefix` in front of their names.
void visit_struct(StateVisitor &to, const std::string &prefix, const StructLayout &layout,
                  const void *memory);

// All objects of a chip. REQUIRES: nobody else uses the chip.
void visit_state(Switch &chip, StateVisitor &to);

using StateValue = std::variant<std::int64_t, std::string>;

struct StateField {
    std::string name;
    StateValue value;

    bool operator==(const StateField &) const = default;
};

struct StateObject {
    std::string kind;
    std::string key;
    std::vector<StateField> fields;

    bool operator==(const StateObject &) const = default;
};

// A saved state is a chip that no unit has. It knows nothing of callbacks.
using SavedState = std::shared_ptr<Switch>;

// Null with a status: BCM_E_UNIT, BCM_E_INIT.
SavedState save_state(int unit, int &status);
// The state of a chip that was just started.
SavedState first_state();
// BCM_E_UNIT, BCM_E_INIT. What is registered for callbacks stays registered; nobody is called.
int load_state(int unit, const SavedState &saved);

// In the order of the references.
std::vector<StateObject> objects_of(const SavedState &saved);

// A number for the whole state of a unit: that of another state is another one, but for one chance
// in 2^64. Copies nothing. 0 for a unit that does not run.
std::uint64_t state_digest(int unit);

struct StateDifference {
    std::string kind;
    std::string key;
    bool was_there = false;
    bool is_there = false;
    struct Field {
        std::string name;
        StateValue was;  // 0 where a field was not told
        StateValue is;
    };
    std::vector<Field> fields;  // those that differ; all of an object that came or went
};

// What `after` has otherwise, object by object: what went, in the reverse of the order of the
// references, then what changed or came, in their order.
std::vector<StateDifference> compare_states(const SavedState &before, const SavedState &after);

}  // namespace standin
