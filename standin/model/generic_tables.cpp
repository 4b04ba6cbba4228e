// What rows of functions without a model name, and what becomes of them when that goes.
#include "standin/model/generic_tables.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "standin/model/model.h"
#include "standin/model/named.h"
#include "standin/model/switch.h"

namespace standin {
namespace {

Object object_of(const GenericRow &row) {
    return object(ObjectKind::kRow, static_cast<std::int64_t>(row.serial));
}

Use use_of(Bond bond) {
    return bond == Bond::kHolds    ? Use::kRowHolds
           : bond == Bond::kLeaves ? Use::kRowLeaves
                                   : Use::kRowFalls;
}

Names names_of(const GenericRow &row) {
    Names names;
    for (const RowName &one : row.names) names.push_back({use_of(one.reference->bond), one.target});
    return names;
}

// A number of 4 bytes has a sign, as ports and interfaces do; a shorter one has none.
std::int64_t number_at(const char *bytes, std::size_t size) {
    std::uint64_t number = 0;
    std::memcpy(&number, bytes, size);
    return size == 4 ? static_cast<std::int32_t>(number) : static_cast<std::int64_t>(number);
}

bool names_nothing(const Reference &reference, std::int64_t number) {
    const std::int64_t ones = reference.size == 1 ? 0xff : reference.size == 2 ? 0xffff : -1;
    return reference.optional && (number == 0 || number == ones);
}

Object hop_object(std::int64_t number) {
    const ObjectKind kind = number >= kFirstMultipath ? ObjectKind::kMultipath
                            : number >= kFirstEgress  ? ObjectKind::kEgress
                                                      : ObjectKind::kInterface;
    return object(kind, number);
}

// What a port number in any form means. Ports of the system and the black hole are always there,
// and stand here for the processor's.
Object port_object(std::int64_t number) {
    const int gport = static_cast<int>(number);
    const int type = gport_type(gport);
    if (type == kTrunkGport.type) return object(ObjectKind::kTrunk, gport & kTrunkGport.mask);
    if (type == kMirrorGport.type) return object(ObjectKind::kMirror, gport);
    const bool elsewhere = type == kSystemGport.type || type == kBlackHoleGport.type;
    return object(ObjectKind::kPort, elsewhere ? kCpuPort : gport);
}

Object modelled_object(Sort sort, std::int64_t number) {
    switch (sort) {
        case Sort::kPort:
            return port_object(number);
        case Sort::kHop:
            return hop_object(number);
        case Sort::kVlan:
            return object(ObjectKind::kVlan, number);
        case Sort::kStg:
            return object(ObjectKind::kStg, number);
        case Sort::kTrunk:
            return object(ObjectKind::kTrunk, number);
        case Sort::kMulticast:
            return object(ObjectKind::kMulticast, number);
        case Sort::kMirror:
            return object(ObjectKind::kMirror, number);
        case Sort::kPolicer:
            return object(ObjectKind::kPolicer, number);
        case Sort::kGroup:
            return object(ObjectKind::kGroup, number);
        case Sort::kRule:
            return object(ObjectKind::kRule, number);
        default:
            return object(ObjectKind::kRange, number);
    }
}

// BCM_E_NONE with what the number names, or the status of a number that names nothing.
int find_target(Switch &chip, const Reference &reference, std::int64_t number, Object &target) {
    const NameKind &kind = *reference.kind;
    const std::string field = std::string("field ") + reference.field;
    if (kind.sort == Sort::kNumber) {
        if (within<std::int64_t>(number, kind.low, kind.high)) return BCM_E_NONE;
        return refused(BCM_E_PARAM, field + " is " + std::to_string(number) + ", outside " +
                                        std::to_string(kind.low) + " to " +
                                        std::to_string(kind.high));
    }
    const auto made = chip.row_index.ids.find({kind.name, number});
    if (made != chip.row_index.ids.end()) {
        target = object(ObjectKind::kRow, static_cast<std::int64_t>(made->second));
        return BCM_E_NONE;
    }
    if (kind.sort != Sort::kMade) {
        target = modelled_object(kind.sort, number);
        if (exists(chip, target)) return BCM_E_NONE;
        if (target.kind == ObjectKind::kPort)
            return refused_port(reference.field, static_cast<int>(number));
    }
    return refused(BCM_E_NOT_FOUND, field + " names " + kind.name + " " + std::to_string(number) +
                                        ", which is not there");
}

int find_name(Switch &chip, const Reference &reference, const char *bytes, std::size_t place,
              std::vector<RowName> &names) {
    const std::int64_t number = number_at(bytes + place, reference.size);
    if (names_nothing(reference, number)) return BCM_E_NONE;
    Object target{};
    const int status = find_target(chip, reference, number, target);
    if (status == BCM_E_NONE && target.kind != ObjectKind::kPort)
        names.push_back({&reference, place, target});
    return status;
}

GenericRow *find_row(Switch &chip, std::uint64_t serial) {
    const auto place = chip.row_index.rows.find(serial);
    if (place == chip.row_index.rows.end()) return nullptr;
    auto &rows = chip.generic.find(place->second.family)->second.rows;
    return &rows.find(place->second.key)->second;
}

std::pair<std::string, std::int64_t> id_of(const GenericRow &row) {
    return {row.id.kind->name, number_at(row.bytes.data() + row.id.row, row.id.size)};
}

void enter(Switch &chip, const std::string &family, std::string_view key, const GenericRow &row) {
    chip.row_index.rows[row.serial] = {family, std::string(key)};
    if (row.id.kind != nullptr) chip.row_index.ids.emplace(id_of(row), row.serial);
}

void strike(Switch &chip, const GenericRow &row) {
    chip.row_index.rows.erase(row.serial);
    if (row.id.kind == nullptr) return;
    const auto [first, last] = chip.row_index.ids.equal_range(id_of(row));
    const auto mine =
        std::find_if(first, last, [&](const auto &one) { return one.second == row.serial; });
    if (mine != last) chip.row_index.ids.erase(mine);
}

template <class Visit>
void each_row(Switch &chip, std::string_view prefix, Visit &&visit) {
    for (auto at = chip.generic.lower_bound(prefix);
         at != chip.generic.end() && at->first.starts_with(prefix); ++at)
        for (auto &[key, row] : at->second.rows) visit(row);
}

}  // namespace

int find_names(Switch &chip, std::span<const Reference> references, const GenericRow &row,
               std::vector<RowName> &names) {
    for (const Reference &one : references) {
        const bool list = one.list && one.row < row.lists.size();
        if (one.list && !list) continue;
        const std::string &bytes = list ? row.lists[one.row] : row.bytes;
        std::size_t place = list ? one.at : one.row;
        do {
            if (place + one.size > bytes.size()) break;
            const int status = find_name(chip, one, bytes.data(), place, names);
            if (status != BCM_E_NONE) return status;
            place += one.stride;
        } while (list);
    }
    return BCM_E_NONE;
}

int check_named(Switch &chip, const NameKind &kind, const char *field, std::int64_t number) {
    Object target{};
    return find_target(chip, {.kind = &kind, .field = field}, number, target);
}

void put_row(Switch &chip, const std::string &family, GenericTable &table, std::string_view key,
             GenericRow row) {
    const auto found = table.rows.find(key);
    if (found != table.rows.end()) {
        row.order = found->second.order;
        row.serial = found->second.serial;
        chip.references.unlink(object_of(row), names_of(found->second));
        found->second = std::move(row);
        chip.references.link(object_of(found->second), names_of(found->second));
        return;
    }
    row.order = ++table.last_order;
    row.serial = ++chip.row_index.last;
    chip.references.link(object_of(row), names_of(row));
    enter(chip, family, key, row);
    table.rows.emplace(std::string(key), std::move(row));
}

void rename_row(Switch &chip, GenericRow &row, std::vector<RowName> names) {
    chip.references.unlink(object_of(row), names_of(row));
    row.names = std::move(names);
    chip.references.link(object_of(row), names_of(row));
}

int check_row_unused(Switch &chip, const GenericRow &row) {
    return chip.references.check_unused(chip, object_of(row));
}

void erase_row(Switch &chip, const std::string &family, const std::string &key) {
    GenericTable &table = chip.generic.find(family)->second;
    const auto place = table.rows.find(key);
    chip.references.dissolve(chip, object_of(place->second));
    chip.references.unlink(object_of(place->second), names_of(place->second));
    strike(chip, place->second);
    table.rows.erase(place);
    for (auto &[other, members] : chip.generic) {
        if (members.owner != family) continue;
        for (auto row = members.rows.lower_bound(key);
             row != members.rows.end() && row->first.starts_with(key);
             row = members.rows.lower_bound(key))
            erase_row(chip, other, std::string(row->first));
    }
}

int check_forgettable(Switch &chip, std::string_view prefix) {
    suspend_rows(chip, prefix);
    int status = BCM_E_NONE;
    each_row(chip, prefix, [&](const GenericRow &row) {
        if (status == BCM_E_NONE) status = check_row_unused(chip, row);
    });
    resume_rows(chip, prefix);
    return status;
}

void suspend_rows(Switch &chip, std::string_view prefix) {
    each_row(chip, prefix,
             [&](const GenericRow &row) { chip.references.unlink(object_of(row), names_of(row)); });
}

void resume_rows(Switch &chip, std::string_view prefix) {
    each_row(chip, prefix,
             [&](const GenericRow &row) { chip.references.link(object_of(row), names_of(row)); });
}

void forget_rows(Switch &chip, std::string_view prefix) {
    std::vector<Object> gone;
    each_row(chip, prefix, [&](const GenericRow &row) {
        gone.push_back(object_of(row));
        strike(chip, row);
    });
    std::erase_if(chip.generic, [&](const auto &one) { return one.first.starts_with(prefix); });
    for (const Object &row : gone) chip.references.dissolve(chip, row);
}

void leave_row(Switch &chip, const Object &row, const Object &target) {
    GenericRow &one = *find_row(chip, row.number);
    std::vector<RowName> kept;
    for (const RowName &name : one.names) {
        if (name.target != target) {
            kept.push_back(name);
            continue;
        }
        const Reference &reference = *name.reference;
        std::string &bytes = reference.list ? one.lists[reference.row] : one.bytes;
        std::memset(bytes.data() + name.place, 0, reference.size);
    }
    rename_row(chip, one, std::move(kept));
}

void fall_row(Switch &chip, const Object &row) {
    const auto place = chip.row_index.rows.find(row.number);
    if (place == chip.row_index.rows.end()) return;
    const GenericIndex::Place gone = place->second;
    erase_row(chip, gone.family, gone.key);
}

std::string row_text(const Switch &chip, const Object &row) {
    const auto place = chip.row_index.rows.find(row.number);
    if (place == chip.row_index.rows.end()) return "a row";
    const auto &[family, key] = place->second;
    std::string text = family.substr(family.find('_') + 1);
    for (std::size_t at = 0; at < key.size() && at < 12; at += 4)
        text += " " + std::to_string(
                          number_at(key.data() + at, std::min<std::size_t>(4, key.size() - at)));
    return text;
}

}  // namespace standin
