// One table of a family: its columns, found from all members, and each member's bindings to them.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "generator/standin/plan.h"

namespace generator {

// Where a form of a member takes or gives an array with a number of elements.
struct ListForm {
    std::size_t count = 0;  // parameters, 0 for none
    std::size_t max = 0;
    std::size_t filled = 0;
    std::vector<std::size_t> arrays;

    bool any() const { return !arrays.empty(); }
};

class Part {
  public:
    Part(const Shapes &shapes, std::string name, std::vector<Member> members);

    // The rows belong to those of another part, whose key theirs begins with.
    void belongs_to(const Part &owner);

    // Finds the columns. False if the members do not agree on a key.
    bool find_columns();

    // Fills the plans. Members that do not fit keep theirs; none fits if no row can come in.
    void bind_members(const std::string &layer);

    const std::vector<Member> &members() const { return members_; }
    const std::vector<PlanColumn> &columns() const { return columns_; }

  private:
    const Member *first(const std::string &verb, bool list) const;
    bool has(const std::string &verb) const;
    const ListForm &form(const Member &member) const { return forms_.at(member.function); }
    ListForm find_form(const Member &member) const;
    void find_forms();
    bool taken_as(const std::string &name, Shape::Form form) const;
    bool taken_alone(const std::string &name,
                     const std::map<const Function *, ListForm> &forms) const;
    void align_names();

    bool is_element(const Member &member, std::size_t parameter) const;
    bool is_control(const Member &member, std::size_t parameter) const;
    void add_key(const PlanColumn &column);
    void keys_of_removal(const Member &member);
    bool keys_of_pair(const Member *set, const Member *get);
    void key_of_listing(const Member &get);
    void add_values(const Member &member);
    void lay_out();
    void order_keys(const std::vector<PlanColumn> &first);

    std::string same_column(const std::string &name) const;
    PlanColumn *column_for(const Member &member, const Shape &shape);
    PlanColumn *column_for_element(const Shape &shape, const std::set<const PlanColumn *> &bound);
    const PlanColumn *column_of(const Member &member, std::size_t parameter,
                                const std::set<const PlanColumn *> &bound);
    const Variable *field_for(const Member &member, const Shape &shape,
                              const PlanColumn &column) const;
    bool bind(Member &member, Plan &plan);
    std::optional<bool> bind_aside(const Member &member, std::size_t parameter, Plan &plan);
    bool bind_parameter(const Member &member, std::size_t parameter, Plan &plan,
                        std::set<const PlanColumn *> &bound);
    void bind_by_field(const Member &member, std::size_t parameter, Plan &plan) const;
    void bind_embedded(const Member &member, Plan &plan, std::set<const PlanColumn *> &bound);
    std::string role_of(const Member &member, const Shape &shape, const PlanColumn &column,
                        bool element) const;
    bool sets_one_of_several(const Member &member) const;
    std::string operation_of(const Member &member, const Plan &plan) const;
    void bind_flags(const Member &member, Plan &plan) const;
    void drop_if_mute();
    bool keyed_by_arrays() const;
    bool given_back(const std::string &name) const;
    bool complete(const Member &member, const Plan &plan,
                  const std::set<const PlanColumn *> &bound) const;

    const Shapes &shapes_;
    std::string name_;
    std::vector<Member> members_;
    std::vector<PlanColumn> columns_;
    std::map<const Function *, ListForm> forms_;
    std::string owner_;
    std::vector<PlanColumn> owner_keys_;
    std::size_t key_ = 0;
    std::size_t row_ = 0;
    bool enumerates_ = false;  // each element of an array is a row of its own
};

}  // namespace generator
