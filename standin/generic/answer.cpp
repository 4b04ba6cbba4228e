// What each kind of generated call does to the table of its family.
#include <cstring>
#include <limits>
#include <optional>
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

// BCM_E_NOT_FOUND: the object that the row would belong to is not there.
int check_owner(GenericTables &tables, const Call &call, const std::string &bytes) {
    if (call.owner == nullptr) return BCM_E_NONE;
    const auto owner = tables.find(std::string_view(call.owner));
    const std::string_view key = std::string_view(bytes).substr(0, call.owner_key);
    return owner != tables.end() && owner->second.rows.contains(key) ? BCM_E_NONE : BCM_E_NOT_FOUND;
}

// Takes a row out with all that belongs to it.
void erase(GenericTables &tables, const Call &call, GenericTable &table, RowPlace place) {
    const std::string key = place->first;
    table.rows.erase(place);
    for (auto &[family, other] : tables) {
        if (other.owner != call.family) continue;
        auto row = other.rows.lower_bound(key);
        while (row != other.rows.end() && row->first.starts_with(key)) row = other.rows.erase(row);
    }
}

// Puts a row in; one of the same key is there only if `replaces`. BCM_E_EXISTS, BCM_E_FULL.
int put(GenericTable &table, const Call &call, GenericRow row, bool replaces) {
    const auto found = table.rows.find(key_of(call, row.bytes));
    if (found != table.rows.end()) {
        if (!replaces) return BCM_E_EXISTS;
        row.order = found->second.order;
        found->second = std::move(row);
        return BCM_E_NONE;
    }
    if (table.rows.size() >= table_capacity(call.family, kCapacity)) return BCM_E_FULL;
    row.order = ++table.last_order;
    std::string key(key_of(call, row.bytes));
    table.rows.emplace(std::move(key), std::move(row));
    return BCM_E_NONE;
}

GenericRow new_row(const Invocation &invocation, int element) {
    GenericRow row{std::string(invocation.call().row, '\0'), invocation.lists(), 0};
    invocation.fill(row.bytes, element);
    return row;
}

// Writes the next unused id of the family to the caller; false when all numbers of its width are
// in use.
bool give_id(const Invocation &invocation, GenericTable &table, const Binding &id) {
    const Call &call = invocation.call();
    const std::uint64_t bits = id.size * 8;
    const std::uint64_t last = bits >= 32 ? std::uint64_t{std::numeric_limits<std::int32_t>::max()}
                                          : (std::uint64_t{1} << bits) - 1;
    std::string bytes = new_row(invocation, 0).bytes;
    for (std::uint64_t tried = 0; tried <= table.rows.size(); ++tried) {
        table.last_id = table.last_id >= last ? 1 : table.last_id + 1;
        std::memcpy(bytes.data() + id.row, &table.last_id, id.size);
        if (table.rows.contains(key_of(call, bytes))) continue;
        std::memcpy(invocation.target(id, 0), &table.last_id, id.size);
        return true;
    }
    return false;
}

int create(const Invocation &invocation, GenericTables &tables, GenericTable &table) {
    const Call &call = invocation.call();
    const bool replaces = (invocation.flags() & kReplace) != 0;
    const bool given = (invocation.flags() & kWithId) != 0 || replaces;
    const Binding *const id = invocation.find(Role::id);
    if (!given && table.rows.size() >= table_capacity(call.family, kCapacity)) return BCM_E_FULL;
    if (!given && !give_id(invocation, table, *id)) return BCM_E_FULL;
    GenericRow row = new_row(invocation, 0);
    std::memcpy(row.bytes.data() + id->row, invocation.source(*id, 0), id->size);
    if (const int status = check_owner(tables, call, row.bytes); status < 0) return status;
    return put(table, call, std::move(row), replaces);
}

// A row for each element, or one row where the elements are a list that it keeps.
int insert(const Invocation &invocation, GenericTables &tables, GenericTable &table,
           bool replaces) {
    const int rows = invocation.find(Role::list_in) != nullptr ? 1 : invocation.count();
    for (int i = 0; i < rows; ++i) {
        GenericRow row = new_row(invocation, i);
        int status = check_owner(tables, invocation.call(), row.bytes);
        if (status >= 0) status = put(table, invocation.call(), std::move(row), replaces);
        if (status < 0) return status;
    }
    return BCM_E_NONE;
}

int add(const Invocation &invocation, GenericTables &tables, GenericTable &table) {
    return insert(invocation, tables, table, (invocation.flags() & kReplace) != 0);
}

int update(const Invocation &invocation, GenericTable &table) {
    const GenericRow probe = new_row(invocation, 0);
    const auto found = table.rows.find(key_of(invocation.call(), probe.bytes));
    if (found == table.rows.end()) return BCM_E_NOT_FOUND;
    invocation.fill(found->second.bytes, 0);
    if (!probe.lists.empty()) found->second.lists = probe.lists;
    return BCM_E_NONE;
}

int remove(const Invocation &invocation, GenericTables &tables, GenericTable &table, bool needed) {
    for (int i = 0; i < invocation.count(); ++i) {
        const auto places = selected(invocation, table, i);
        if (places.empty() && needed) return BCM_E_NOT_FOUND;
        for (const RowPlace &place : places) erase(tables, invocation.call(), table, place);
    }
    return BCM_E_NONE;
}

int replace(const Invocation &invocation, GenericTables &tables, GenericTable &table) {
    std::string bytes(invocation.call().row, '\0');
    invocation.each([&](const Binding &binding) {
        if (binding.role == Role::select)
            std::memcpy(bytes.data() + binding.row, invocation.source(binding, 0), binding.size);
    });
    if (const int status = check_owner(tables, invocation.call(), bytes); status < 0) return status;
    for (const RowPlace &place : selected(invocation, table, 0))
        erase(tables, invocation.call(), table, place);
    for (int i = 0; i < invocation.count(); ++i) {
        const int status = put(table, invocation.call(), new_row(invocation, i), true);
        if (status < 0) return status;
    }
    return BCM_E_NONE;
}

int read(const Invocation &invocation, GenericTable &table, bool needed) {
    const bool lists = invocation.find(Role::list_out) != nullptr;
    for (int i = 0; i < (lists ? 1 : invocation.count()); ++i) {
        const auto places = selected(invocation, table, i);
        if (places.empty() && needed) return BCM_E_NOT_FOUND;
        const GenericRow *const row = places.empty() ? nullptr : &places.front()->second;
        invocation.give(row, i);
        if (lists) invocation.give_lists(row);
    }
    return BCM_E_NONE;
}

int list(const Invocation &invocation, GenericTable &table) {
    const auto places = selected(invocation, table, 0);
    const int count = static_cast<int>(places.size());
    for (int i = 0; i < count && i < invocation.max(); ++i)
        invocation.give(&places[static_cast<std::size_t>(i)]->second, i);
    invocation.give_count(count);
    return BCM_E_NONE;
}

int forget(GenericTables &tables, const Call &call) {
    std::erase_if(tables, [&](const auto &entry) { return entry.first.starts_with(call.family); });
    return BCM_E_NONE;
}

int perform(const Invocation &invocation, GenericTables &tables) {
    const Call &call = invocation.call();
    if (call.operation == Operation::forget) return forget(tables, call);
    GenericTable &table = table_of(tables, call);
    switch (call.operation) {
        case Operation::store:
            return insert(invocation, tables, table, true);
        case Operation::update:
            return update(invocation, table);
        case Operation::create:
            return create(invocation, tables, table);
        case Operation::add:
            return add(invocation, tables, table);
        case Operation::replace:
            return replace(invocation, tables, table);
        case Operation::read:
            return read(invocation, table, false);
        case Operation::find:
            return read(invocation, table, true);
        case Operation::list:
            return list(invocation, table);
        case Operation::remove:
            return remove(invocation, tables, table, true);
        case Operation::remove_all:
            return remove(invocation, tables, table, false);
        case Operation::forget:
            break;
    }
    return BCM_E_INTERNAL;
}

}  // namespace

int answer(const Call &call, int unit, const void *const *arguments) {
    return on_switch(call.name, unit, [&](Switch &chip) {
        const Invocation invocation(call, arguments);
        const int status = invocation.check();
        return status < 0 ? status : perform(invocation, chip.generic);
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
