// Which fields of a record are its key. Declarations do not say it; catalogue/standin.txt does.

#include <sstream>

#include "generator/standin/plan.h"

namespace generator {

bool has_key_fields(const Shapes &shapes, const Shape &shape) {
    return shape.record != nullptr && shapes.known("key", shape.record->name) != nullptr;
}

std::vector<PlanColumn> key_columns(const Shapes &shapes, const Shape &shape) {
    const StandinRow *known =
        shape.record == nullptr ? nullptr : shapes.known("key", shape.record->name);
    std::vector<PlanColumn> columns;
    std::istringstream names(known == nullptr || known->details == "-" ? "" : known->details);
    for (std::string name; names >> name;) {
        const Variable *field = shapes.field(*shape.record, name, "");
        if (field == nullptr) continue;
        PlanColumn column{name, field->type, shapes.field_size(*field)};
        column.number = column.size <= 8 && field->bounds.empty();
        column.key = column.given = true;
        columns.push_back(column);
    }
    if (columns.empty()) {
        PlanColumn column{shape.name, shape.type, shape.size};
        column.number = shape.number;
        column.record = shape.record;
        column.key = column.given = true;
        columns.push_back(column);
    }
    return columns;
}

}  // namespace generator
