// Finds the columns of one table from all members of its family, and binds each member to them.
#include "generator/standin/part.h"

#include <algorithm>
#include <sstream>

namespace generator {
namespace {

using Form = Shape::Form;

bool contains(const std::string &text, const char *part) {
    return text.find(part) != std::string::npos;
}

bool comes_in(const std::string &verb) {
    return verb == "set" || verb == "create" || verb == "add" || verb == "update";
}

bool goes_out(const std::string &verb) { return verb == "get" || verb == "find"; }

// Whether one of the words of a name is that word: "max" of "port_max".
bool has_word(const std::string &name, const std::set<std::string> &words) {
    std::istringstream rest(name);
    for (std::string word; std::getline(rest, word, '_');)
        if (words.contains(word)) return true;
    return false;
}

bool names_a_count(const std::string &name) {
    return has_word(name, {"count", "num", "len", "length", "actual", "nstat"});
}

bool names_a_limit(const std::string &name) {
    return has_word(name, {"max"}) || contains(name, "array_size") || contains(name, "dest_size");
}

bool is_flags(const std::string &name) {
    return name == "flags" || name == "options" || name == "create_flags" || name == "l3a_flags";
}

const Shape *named(const Member &member, const std::string &name) {
    for (std::size_t i = 1; i < member.shapes.size(); ++i)
        if (member.shapes[i].name == name) return &member.shapes[i];
    return nullptr;
}

bool is_number(const Shape &shape, Form form) {
    return shape.form == form && shape.number && shape.size <= 4 && !shape.array;
}

}  // namespace

bool Part::keyed_by_arrays() const { return shapes_.known("keyed-arrays", name_) != nullptr; }

// Whether a get form has a parameter of that name behind an address.
bool Part::given_back(const std::string &name) const {
    return std::any_of(members_.begin(), members_.end(), [&](const Member &member) {
        const Shape *shape = named(member, name);
        return member.verb == "get" && shape != nullptr && shape->form == Form::memory;
    });
}

// What another member of the family calls that column, or nothing.
std::string Part::same_column(const std::string &name) const {
    const StandinRow *row = shapes_.known("same-column", name_ + "." + name);
    return row == nullptr ? "" : row->details;
}

Part::Part(const Shapes &shapes, std::string name, std::vector<Member> members)
    : shapes_(shapes), name_(std::move(name)), members_(std::move(members)) {
    align_names();
    find_forms();
}

void Part::belongs_to(const Part &owner) {
    for (const auto &column : owner.columns())
        if (column.key) owner_keys_.push_back(column);
    owner_ = owner.name_;
}

bool Part::has(const std::string &verb) const {
    return std::any_of(members_.begin(), members_.end(),
                       [&](const Member &member) { return member.verb == verb; });
}

const Member *Part::first(const std::string &verb, bool list) const {
    for (const auto &member : members_)
        if (member.verb == verb && (form(member).filled != 0) == list) return &member;
    return nullptr;
}

// Where a get form names the parameters of its set form otherwise, the places decide.
void Part::align_names() {
    const auto by_verb = [&](const char *verb) {
        return std::find_if(members_.begin(), members_.end(),
                            [&](const Member &member) { return member.verb == verb; });
    };
    const auto set = by_verb("set");
    const auto get = by_verb("get");
    if (set == members_.end() || get == members_.end() || set->shapes.size() != get->shapes.size())
        return;
    for (std::size_t i = 1; i < get->shapes.size(); ++i) {
        Shape &shape = get->shapes[i];
        if (named(*set, shape.name) == nullptr && named(*get, set->shapes[i].name) == nullptr &&
            shape.size == set->shapes[i].size) {
            shape.name = set->shapes[i].name;
        }
    }
}

// A form with a limit, an array and the address of a number, or one with a number and an array.
ListForm Part::find_form(const Member &member) const {
    ListForm form;
    for (std::size_t i = 1; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        if (goes_out(member.verb) && is_number(shape, Form::memory) && names_a_count(shape.name)) {
            form.filled = i;
        } else if (goes_out(member.verb) && is_number(shape, Form::value) &&
                   names_a_limit(shape.name)) {
            form.max = i;
        } else if (is_number(shape, Form::value) &&
                   (names_a_count(shape.name) || names_a_limit(shape.name))) {
            form.count = i;
        }
    }
    if (goes_out(member.verb) && form.count == 0 && (form.max == 0 || form.filled == 0)) return {};
    for (std::size_t i = 1; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        if (shape.form == Form::memory && !shape.array && i != form.filled)
            form.arrays.push_back(i);
    }
    return form.max == 0 && form.filled == 0 && form.count == 0 ? ListForm{} : form;
}

// Whether a form that takes rows has a parameter of that name and form.
bool Part::taken_as(const std::string &name, Shape::Form form) const {
    return std::any_of(members_.begin(), members_.end(), [&](const Member &member) {
        const Shape *shape = named(member, name);
        return comes_in(member.verb) && shape != nullptr && shape->form == form;
    });
}

// Whether a form for one row at a time takes what the name's address points at.
bool Part::taken_alone(const std::string &name,
                       const std::map<const Function *, ListForm> &forms) const {
    return std::any_of(members_.begin(), members_.end(), [&](const Member &member) {
        const Shape *shape = named(member, name);
        return (member.verb == "add" || member.verb == "remove") && shape != nullptr &&
               shape->form == Form::memory && !forms.at(member.function).any();
    });
}

// A number counts an array only if the forms that take rows and those that give them agree on the
// array; otherwise it is a number like others.
void Part::find_forms() {
    std::map<const Function *, ListForm> found;
    for (const auto &member : members_) found[member.function] = find_form(member);
    std::set<std::string> taken;
    std::set<std::string> given;
    for (const auto &member : members_)
        for (const std::size_t i : found[member.function].arrays)
            (goes_out(member.verb) ? given : taken).insert(member.shapes[i].name);
    const bool told = std::any_of(members_.begin(), members_.end(),
                                  [](const Member &member) { return goes_out(member.verb); });
    for (const auto &member : members_) {
        ListForm form = found[member.function];
        const bool out = goes_out(member.verb);
        const bool limited = form.max != 0 && form.filled != 0;
        if (out && limited) {  // what others take as one value is no array, unless all is
            const std::size_t single = static_cast<std::size_t>(std::count_if(
                form.arrays.begin(), form.arrays.end(),
                [&](std::size_t i) { return taken_as(member.shapes[i].name, Form::value); }));
            std::erase_if(form.arrays, [&](std::size_t i) {
                return (single < form.arrays.size() &&
                        taken_as(member.shapes[i].name, Form::value)) ||
                       taken_alone(member.shapes[i].name, found);
            });
        } else {
            std::erase_if(form.arrays, [&](std::size_t i) {
                return told && !(out ? taken : given).contains(member.shapes[i].name);
            });
        }
        forms_[member.function] = form.any() ? form : ListForm{};
    }
}

bool Part::is_element(const Member &member, std::size_t parameter) const {
    const auto &arrays = form(member).arrays;
    return std::find(arrays.begin(), arrays.end(), parameter) != arrays.end();
}

bool Part::is_control(const Member &member, std::size_t parameter) const {
    const ListForm &list = form(member);
    return parameter == list.count || parameter == list.max || parameter == list.filled ||
           member.shapes[parameter].form == Form::text ||
           member.shapes[parameter].form == Form::context;
}

void Part::add_key(const PlanColumn &column) {
    for (auto &known : columns_) {
        if (known.name == column.name) {
            known.key = true;
            return;
        }
    }
    columns_.push_back(column);
    columns_.back().key = true;
}

// What a removal takes tells one row from another, except what a get form gives back.
void Part::keys_of_removal(const Member &member) {
    const Member *get = first("get", false);
    const bool several = name_.ends_with("_attach");  // one thing may have several attached
    const bool listed = std::any_of(members_.begin(), members_.end(), [&](const Member &other) {
        return other.verb == "get" && form(other).any();
    });
    for (std::size_t i = 1; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        if (is_control(member, i) || is_flags(shape.name) || shape.form == Form::opaque) continue;
        const Shape *twin = get == nullptr ? nullptr : named(*get, shape.name);
        if (shape.form == Form::memory && shape.record != nullptr &&
            !has_key_fields(shapes_, shape) && get != nullptr &&
            named(*get, shape.name) != nullptr && get->shapes.size() > 2) {
            for (std::size_t j = 1; j < get->shapes.size(); ++j) {  // the get form's own keys
                const Shape &other = get->shapes[j];
                if (other.form == Form::value || other.array) {
                    add_key(
                        {other.name, other.type, other.size, other.number, nullptr, true, true});
                }
            }
            continue;
        }
        if (shape.form == Form::memory && !shape.array) {
            for (const auto &column : key_columns(shapes_, shape)) add_key(column);
            continue;
        }
        if (!listed && !several && shape.form == Form::value && twin != nullptr &&
            twin->form == Form::memory && !twin->array) {
            continue;
        }
        add_key({shape.name, shape.type, shape.size, shape.number, shape.record, true});
    }
}

// Arguments that both forms take by value are keys, those that become addresses are values. False
// if the get form asks by something that the set form does not know.
bool Part::keys_of_pair(const Member *set, const Member *get) {
    const Member &asks = get != nullptr ? *get : *set;
    bool others = false;
    for (std::size_t i = 1; i < asks.shapes.size(); ++i) {
        const Shape &shape = asks.shapes[i];
        others = others ||
                 (shape.form == Form::memory && !shape.array && !has_key_fields(shapes_, shape));
        const Shape *twin = set == nullptr ? nullptr : named(*set, shape.name);
        others = others || (shape.array && (shape.constant || (twin != nullptr && twin->constant)));
    }
    for (std::size_t i = 1; i < asks.shapes.size(); ++i) {
        const Shape &shape = asks.shapes[i];
        const Shape *twin = set == nullptr ? &shape : named(*set, shape.name);
        if (is_control(asks, i)) continue;
        const bool by_value = shape.form == Form::value || shape.form == Form::callback;
        if (by_value && (twin == nullptr || twin->form != shape.form)) return false;
        const bool array_key = shape.array && others && twin != nullptr && !twin->constant;
        if (by_value || array_key) {
            add_key({shape.name, shape.type, shape.size, shape.number, shape.record, true, true});
        } else if (shape.form == Form::memory && has_key_fields(shapes_, shape) &&
                   twin != nullptr && twin->form == Form::memory) {
            const auto columns = key_columns(shapes_, shape);
            const bool whole = columns.size() == 1 && columns.front().record != nullptr;
            for (const auto &column : columns)
                if (!whole || others || asks.shapes.size() > 2) add_key(column);
        }
    }
    return true;
}

// Rows that are set one by one and got as arrays: the first array tells them apart.
void Part::key_of_listing(const Member &get) {
    const Shape &shape = get.shapes[form(get).arrays.front()];
    add_key({shape.name, shape.type, shape.size, shape.number, shape.record, true, true});
}

bool Part::find_columns() {
    const Member *remove = first("destroy", false);
    if (remove == nullptr || remove->shapes.size() < 2) remove = first("remove", false);
    if (remove != nullptr && remove->shapes.size() < 2) remove = nullptr;
    const Member *listing = first("get", true);
    const Member *set = first("set", false);
    const Member *get = first("get", false);
    if (remove == nullptr && std::any_of(members_.begin(), members_.end(), [](const auto &member) {
            return member.verb == "remove" && member.shapes.size() == 1;
        })) {
        return true;  // what is removed without a key is one thing for the unit
    }
    const bool set_by_ones = set != nullptr && !form(*set).any();
    enumerates_ = listing != nullptr && (has("add") || (has("set") && set_by_ones));
    if (remove != nullptr) {
        keys_of_removal(*remove);
        if (keyed_by_arrays()) return false;
    } else {
        const Member *in = set != nullptr ? set : first("add", false);
        in = in != nullptr ? in : first("create", false);
        const Member *out = get != nullptr ? get : listing;
        if ((in == nullptr && out == nullptr) || !keys_of_pair(in, out)) return false;
        if (enumerates_ || (keyed_by_arrays() && get != nullptr && form(*get).any())) {
            enumerates_ = listing != nullptr;
            key_of_listing(listing != nullptr ? *listing : *get);
        }
    }
    for (const char *verb : {"get", "set", "update", "create", "add"}) {
        for (const auto &member : members_)
            if (member.verb == verb && form(member).filled == 0) add_values(member);
    }
    if (listing != nullptr && !enumerates_) add_values(*listing);
    order_keys(owner_keys_);
    lay_out();
    return true;
}

void Part::add_values(const Member &member) {
    for (std::size_t i = 1; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        const bool kept_flags = given_back(shape.name);
        const bool known = shape.form == Form::value || shape.form == Form::memory;
        if (is_control(member, i) || !known || (is_flags(shape.name) && !kept_flags) ||
            column_for(member, shape) != nullptr || !same_column(shape.name).empty()) {
            continue;
        }
        const bool element = is_element(member, i);
        if ((member.verb == "get" && shape.form == Form::value) || (enumerates_ && element))
            continue;
        PlanColumn column{shape.name, shape.type, shape.size, shape.number, shape.record};
        column.list = element && !keyed_by_arrays();
        columns_.push_back(column);
    }
}

// Keys come first, those of the owner before the others.
void Part::order_keys(const std::vector<PlanColumn> &first) {
    const auto rank = [&](const PlanColumn &column) {
        if (!column.key) return 2;
        return std::any_of(first.begin(), first.end(),
                           [&](const PlanColumn &key) { return key.name == column.name; })
                   ? 0
                   : 1;
    };
    std::stable_sort(
        columns_.begin(), columns_.end(),
        [&](const PlanColumn &one, const PlanColumn &other) { return rank(one) < rank(other); });
    const auto owned = static_cast<std::size_t>(
        std::count_if(columns_.begin(), columns_.end(),
                      [&](const PlanColumn &column) { return rank(column) == 0; }));
    if (owned != first.size()) owner_.clear();
}

void Part::lay_out() {
    std::size_t lists = 0;
    for (auto &column : columns_) {
        if (column.list) {
            column.row = lists++;
            continue;
        }
        column.row = row_;
        row_ += column.size;
        key_ = column.key ? row_ : key_;
    }
}

// By name, else the only one of that struct.
PlanColumn *Part::column_for(const Member &member, const Shape &shape) {
    PlanColumn *found = nullptr;
    for (auto &column : columns_)
        if (column.name == shape.name || column.name == same_column(shape.name)) return &column;
    for (auto &column : columns_) {
        if (shape.record == nullptr || column.record != shape.record ||
            named(member, column.name) != nullptr) {
            continue;
        }
        if (found != nullptr) return nullptr;
        found = &column;
    }
    return found;
}

// The next column that an element of an array can be: of its struct or type, else of its size.
PlanColumn *Part::column_for_element(const Shape &shape,
                                     const std::set<const PlanColumn *> &bound) {
    for (const bool by_type : {true, false}) {
        for (auto &column : columns_) {
            const bool same = by_type ? column.type == shape.type
                                      : shape.number && column.number && column.size == shape.size;
            if (same && !bound.contains(&column)) return &column;
        }
    }
    return nullptr;
}

}  // namespace generator
