// What each kind of generated call does to the table of its family.
#include <cstring>
#include <limits>
#include <set>
#include <string>
#include <string_view>

#include "standin/generic/selection.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/model/tables.h"

namespace standin {
namespace {

constexpr std::size_t kCapacity = 16'384;  // rows of a family

GenericTable &table_of(GenericTables &tables, const Call &call) {
    const auto found = tables.find(std::string_view(call.family));
    if (found != tables.end()) return found->second;
    GenericTable &table = tables[call.family];
    if (call.owner != nullptr) table.owner = call.owner;
    return table;
}

std::string_view key_of(const Call &call, const std::string &bytes) {
    return std::string_view(bytes).substr(0, call.key);
}

// A call on the table of its family.
struct Request {
    Switch &chip;
    const Invocation &invocation;
    const Call &call;
    GenericTable &table;
};

std::string noun_of(const Call &call) { return std::string(call.family).substr(4); }

int not_there(const Request &request) {
    return refused(BCM_E_NOT_FOUND, "there is no such " + noun_of(request.call));
}

// BCM_E_NOT_FOUND: the object that the row belongs to, or would, is not there.
int check_owner(const Request &request, const std::string &bytes) {
    const Call &call = request.call;
    if (call.owner == nullptr) return BCM_E_NONE;
    const auto owner = request.chip.generic.find(std::string_view(call.owner));
    const std::string_view key = std::string_view(bytes).substr(0, call.owner_key);
    if (owner != request.chip.generic.end() && owner->second.rows.contains(key)) return BCM_E_NONE;
    return refused(BCM_E_NOT_FOUND, std::string(call.owner).substr(4) + " is not there");
}

// BCM_E_NOT_FOUND where the object is gone whose rows are asked for.
int check_asked_owner(const Request &request) {
    if (request.call.owner == nullptr) return BCM_E_NONE;
    std::string bytes(request.call.row, '\0');
    std::size_t given = 0;
    request.invocation.each([&](const Binding &binding) {
        if (binding.role != Role::select || binding.row >= request.call.owner_key) return;
        std::memcpy(bytes.data() + binding.row, request.invocation.source(binding, 0),
                    binding.size);
        given += binding.size;
    });
    return given == request.call.owner_key ? check_owner(request, bytes) : int{BCM_E_NONE};
}

// The rows can go in: BCM_E_EXISTS for one that is there already, or comes twice, and BCM_E_FULL.
int check_room(const Request &request, const std::vector<GenericRow> &rows, bool replaces) {
    const auto &there = request.table.rows;
    std::set<std::string_view> fresh;
    for (const GenericRow &row : rows) {
        if (const int status = check_owner(request, row.bytes); status < 0) return status;
        const std::string_view key = key_of(request.call, row.bytes);
        const bool known = there.contains(key) || !fresh.insert(key).second;
        if (known && !replaces)
            return refused(BCM_E_EXISTS, noun_of(request.call) + " of that key is there");
    }
    const std::size_t capacity = table_capacity(request.call.family, kCapacity);
    if (fresh.empty() || there.size() + fresh.size() <= capacity) return BCM_E_NONE;
    return refused(BCM_E_FULL, noun_of(request.call) + " has " + std::to_string(there.size()) +
                                   " of " + std::to_string(capacity));
}

void put(const Request &request, GenericRow row) {
    const std::string key(key_of(request.call, row.bytes));
    put_row(request.chip, request.call.family, request.table, key, std::move(row));
}

// Writes the next unused id of the family to the caller; false when all numbers of its width are
// in use.
bool give_id(const Request &request, const Binding &id) {
    GenericTable &table = request.table;
    const std::uint64_t bits = id.size * 8;
    const std::uint64_t last = bits >= 32 ? std::uint64_t{std::numeric_limits<std::int32_t>::max()}
                                          : (std::uint64_t{1} << bits) - 1;
    const auto first = static_cast<std::uint64_t>(request.call.first_id);
    std::string bytes(request.call.row, '\0');
    request.invocation.fill(bytes, 0);
    for (std::uint64_t tried = 0; tried <= table.rows.size(); ++tried) {
        const bool again = table.last_id < first || table.last_id >= last;
        table.last_id = again ? first : table.last_id + 1;
        std::memcpy(bytes.data() + id.row, &table.last_id, id.size);
        if (table.rows.contains(key_of(request.call, bytes))) continue;
        std::memcpy(request.invocation.target(id, 0), &table.last_id, id.size);
        return true;
    }
    return false;
}

int create(const Request &request) {
    const Invocation &invocation = request.invocation;
    const bool replaces = (invocation.flags() & kReplace) != 0;
    const bool given = (invocation.flags() & kWithId) != 0 || replaces;
    const Binding *const id = invocation.find(Role::id);
    std::vector<GenericRow> rows{invocation.row(request.chip, 0)};
    if (!given) {
        if (const int status = check_owner(request, rows[0].bytes); status < 0) return status;
        const std::size_t capacity = table_capacity(request.call.family, kCapacity);
        if (request.table.rows.size() >= capacity || !give_id(request, *id))
            return refused(BCM_E_FULL, noun_of(request.call) + " has no room");
        rows[0] = invocation.row(request.chip, 0);  // its id may stand in a record that is kept
    }
    std::memcpy(rows[0].bytes.data() + id->row, invocation.source(*id, 0), id->size);
    const int status = check_room(request, rows, replaces);
    if (status == BCM_E_NONE) put(request, std::move(rows[0]));
    return status;
}

// A row for each element, or one row where the elements are a list that it keeps.
std::vector<GenericRow> rows_of(const Request &request) {
    const bool one = request.invocation.find(Role::list_in) != nullptr;
    std::vector<GenericRow> rows;
    for (int i = 0; i < (one ? 1 : request.invocation.count()); ++i)
        rows.push_back(request.invocation.row(request.chip, i));
    return rows;
}

int insert(const Request &request, bool replaces) {
    std::vector<GenericRow> rows = rows_of(request);
    const int status = check_room(request, rows, replaces);
    if (status != BCM_E_NONE) return status;
    for (GenericRow &row : rows) put(request, std::move(row));
    return BCM_E_NONE;
}

int add(const Request &request) {
    return insert(request, (request.invocation.flags() & kReplace) != 0);
}

// Whether the call overwrites what the row has there.
bool overwrites(const Request &request, const RowName &name) {
    const bool list = name.reference->list;
    bool over = false;
    request.invocation.each([&](const Binding &binding) {
        const bool in = list ? binding.role == Role::list_in
                             : binding.role == Role::write || binding.role == Role::select;
        const bool there = list ? name.reference->row == binding.row
                                : name.place >= binding.row &&
                                      name.place < std::size_t{binding.row} + binding.size;
        over = over || (in && there);
    });
    return over;
}

int update(const Request &request) {
    const GenericRow probe = request.invocation.row(request.chip, 0);
    const auto found = request.table.rows.find(key_of(request.call, probe.bytes));
    if (found == request.table.rows.end()) return not_there(request);
    GenericRow &row = found->second;
    request.invocation.fill(row.bytes, 0);
    if (!probe.lists.empty()) row.lists = probe.lists;
    std::vector<RowName> names = probe.names;
    for (const RowName &name : row.names)
        if (!overwrites(request, name)) names.push_back(name);
    rename_row(request.chip, row, std::move(names));
    return BCM_E_NONE;
}

int check_unused(const Request &request, const std::vector<RowPlace> &places) {
    for (const RowPlace &place : places)
        if (const int status = check_row_unused(request.chip, place->second); status < 0)
            return status;
    return BCM_E_NONE;
}

void erase(const Request &request, const std::vector<RowPlace> &places) {
    std::vector<std::string> keys;  // a row may take another along
    for (const RowPlace &place : places) keys.push_back(place->first);
    for (const std::string &key : keys)
        if (request.table.rows.contains(key)) erase_row(request.chip, request.call.family, key);
}

int remove(const Request &request, bool needed) {
    if (const int status = check_asked_owner(request); status < 0) return status;
    std::vector<RowPlace> places;
    for (int i = 0; i < request.invocation.count(); ++i) {
        const auto more = selected(request.invocation, request.table, i);
        if (more.empty() && needed) return not_there(request);
        places.insert(places.end(), more.begin(), more.end());
    }
    const int status = check_unused(request, places);
    if (status == BCM_E_NONE) erase(request, places);
    return status;
}

int replace(const Request &request) {
    std::string bytes(request.call.row, '\0');
    request.invocation.each([&](const Binding &binding) {
        if (binding.role == Role::select)
            std::memcpy(bytes.data() + binding.row, request.invocation.source(binding, 0),
                        binding.size);
    });
    if (const int status = check_owner(request, bytes); status < 0) return status;
    const auto places = selected(request.invocation, request.table, 0);
    if (const int status = check_unused(request, places); status < 0) return status;
    std::vector<GenericRow> rows = rows_of(request);
    if (const int status = check_room(request, rows, true); status < 0) return status;
    erase(request, places);
    for (GenericRow &row : rows) put(request, std::move(row));
    return BCM_E_NONE;
}

int read(const Request &request, bool needed) {
    const Invocation &invocation = request.invocation;
    if (const int status = check_asked_owner(request); status < 0) return status;
    const bool lists = invocation.find(Role::list_out) != nullptr;
    for (int i = 0; i < (lists ? 1 : invocation.count()); ++i) {
        const auto places = selected(invocation, request.table, i);
        if (places.empty() && needed) return not_there(request);
        const GenericRow *const row = places.empty() ? nullptr : &places.front()->second;
        invocation.give(row, i);
        if (lists) invocation.give_lists(row);
    }
    return BCM_E_NONE;
}

int list(const Request &request) {
    const Invocation &invocation = request.invocation;
    if (const int status = check_asked_owner(request); status < 0) return status;
    const auto places = selected(invocation, request.table, 0);
    const int count = static_cast<int>(places.size());
    for (int i = 0; i < count && i < invocation.max(); ++i)
        invocation.give(&places[static_cast<std::size_t>(i)]->second, i);
    invocation.give_count(count);
    return BCM_E_NONE;
}

int perform(Switch &chip, const Invocation &invocation) {
    const Call &call = invocation.call();
    if (call.operation == Operation::forget)
        return clear_chapter(chip, call.family, [](Switch &) { return int{BCM_E_NONE}; });
    const Request request{chip, invocation, call, table_of(chip.generic, call)};
    switch (call.operation) {
        case Operation::store:
            return insert(request, true);
        case Operation::update:
            return update(request);
        case Operation::create:
            return create(request);
        case Operation::add:
            return add(request);
        case Operation::replace:
            return replace(request);
        case Operation::read:
            return read(request, false);
        case Operation::find:
            return read(request, true);
        case Operation::list:
            return list(request);
        case Operation::remove:
            return remove(request, true);
        case Operation::remove_all:
            return remove(request, false);
        case Operation::forget:
            break;
    }
    return BCM_E_INTERNAL;
}

}  // namespace

int answer(const Call &call, int unit, const void *const *arguments) {
    return on_switch(call.name, unit, [&](Switch &chip) {
        const Invocation invocation(call, arguments);
        int status = invocation.check();
        if (status >= 0) status = invocation.check_names(chip);
        return status < 0 ? status : perform(chip, invocation);
    });
}

int unavailable(const char *name, int unit) {
    return on_switch(name, unit, [](Switch &) { return int{BCM_E_UNAVAIL}; });
}

int unavailable(const char *name) {
    const int fault = fault_check(name);
    return fault != BCM_E_NONE ? fault : BCM_E_UNAVAIL;
}

void clear_record(void *record, std::size_t size, std::span<const Binding> bindings,
                  const void *const *arguments) {
    if (record == nullptr) return;
    std::memset(record, 0, size);
    for (const Binding &binding : bindings) {
        const void *source = arguments[binding.argument];
        if (binding.memory) source = *static_cast<const void *const *>(source);
        if (source == nullptr) continue;
        std::memcpy(static_cast<char *>(record) + binding.row, source, binding.size);
    }
}

}  // namespace standin
