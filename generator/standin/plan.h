// What the stand-in's default of each function does, derived from the declarations.
//
// Functions fall into families by their names (`bcm_x_set` and `bcm_x_get` are of the family
// `bcm_x`), and a family works on one table of rows; standin/generic/call.h says how. A plan names
// the operation of one function and ties its arguments to the columns of the table.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "generator/model/faults.h"
#include "generator/model/model.h"
#include "generator/standin/shapes.h"

namespace generator {

struct PlanBinding {
    std::size_t argument = 0;  // index of the parameter
    std::string role;          // "select", as standin::Role names it
    bool memory = false;
    std::size_t at = 0;
    std::size_t stride = 0;
    std::size_t row = 0;
    std::size_t size = 0;
};

// Where a row, or an element of one of its lists, names something.
struct PlanReference {
    std::string kind;   // "port", as catalogue/standin.txt has it
    std::string field;  // "port"
    std::string bond;   // "holds"
    bool list = false;
    bool optional = false;  // 0 and -1 name nothing
    std::size_t row = 0;    // or the number of the list
    std::size_t at = 0;     // in an element
    std::size_t stride = 0;
    std::size_t size = 0;
};

struct PlanColumn {
    std::string name;  // "port"
    std::string type;  // "bcm_port_t"
    std::size_t size = 0;
    bool number = false;
    const Struct *record = nullptr;
    bool key = false;
    bool given = false;   // of a key: the caller chooses it, it is no id that the SDK gives out
    bool list = false;    // an array that the row keeps whole; `size` is an element's
    std::size_t row = 0;  // offset in the row, or the number of the list
};

struct Plan {
    std::string layer = "unavailable";  // as docs and tests count it
    std::string operation;              // "store", as standin::Operation names it
    std::string family;
    std::string owner;
    std::size_t owner_key = 0;
    std::size_t key = 0;
    std::size_t row = 0;
    std::size_t count = 0;  // parameters, 0 for none
    std::size_t max = 0;
    std::size_t filled = 0;
    std::size_t callback = 0;
    std::size_t context = 0;
    std::vector<PlanBinding> bindings;
    std::vector<PlanColumn> columns;  // of the rows that a traversal hands out
    std::vector<PlanReference> references;
    std::string id_kind;  // of the rows' own id; empty for none
    std::size_t id = 0;
    std::size_t id_size = 0;
    std::size_t first_id = 1;
};

// One function of a family.
struct Member {
    const Function *function = nullptr;
    std::string verb;           // "get"
    std::vector<Shape> shapes;  // of the parameters, the unit included
    Plan *plan = nullptr;       // what is to be filled in
};

// Whether the first parameter is the unit.
bool takes_unit(const Function &function);

// Plans for the members of one family; those that fit no rule stay unavailable.
void plan_family(const Shapes &shapes, const std::string &family, std::vector<Member> members);

// The same for the forms of the statistic rule. False if the function is none of them.
bool plan_statistic(const Shapes &shapes, Member &member);

// The same for the qualifier rule; the family is the qualifier's constant. `rows` holds all
// functions by name.
bool plan_qualifier(const Shapes &shapes, const std::map<std::string, const Function *> &rows,
                    Member &member);

// A plan for a function that the table calls still: what it gives never changes. False if it is
// not.
bool plan_still(const Shapes &shapes, Member &member);

// The fields of a struct that tell one record from another, as columns; the whole struct as one
// column for a struct of whose fields nothing is known.
std::vector<PlanColumn> key_columns(const Shapes &shapes, const Shape &shape);
// Whether something is known of them.
bool has_key_fields(const Shapes &shapes, const Shape &shape);

// What the rows name, and by what they are named.
void plan_references(const Model &model, const Shapes &shapes, std::vector<Plan> &plans);

// A plan for each function of the model, in its order. The model does not change any more once it
// is resolved; all callers share the plans.
const std::vector<Plan> &plans_of(const Model &model);

// What the rows of a family call what a binding puts there: "port", or "map.gport" for a field
// behind an address.
std::string bound_name(const Shapes &shapes, const Function &function, const PlanBinding &binding);

// Looks at the stand-in's table: its words, the fields that it names, and that each line is needed.
void check_standin(const Model &model, Faults &faults);

}  // namespace generator
