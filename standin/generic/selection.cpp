// Bytes of keys and rows out of arguments, and the rows that these select.
#include "standin/generic/selection.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "sdk/constants.h"

namespace standin {
namespace {

constexpr int kMostElements = 1 << 20;  // no array of a caller is as long

bool selects(Role role) { return role == Role::select || role == Role::callback; }

bool goes_in(Role role) { return selects(role) || role == Role::write; }

bool is_list(Role role) { return role == Role::list_in || role == Role::list_out; }

}  // namespace

int Invocation::number(const Number &number, int otherwise) const {
    if (number.argument == 0) return otherwise;
    int value = 0;
    std::memcpy(&value, arguments_[number.argument], number.size);
    return value;
}

bool Invocation::is_null(const Binding &binding) const {
    return *static_cast<const void *const *>(arguments_[binding.argument]) == nullptr;
}

int Invocation::check() const {
    for (const int elements : {count(), max()})
        if (elements < 0 || elements > kMostElements) return BCM_E_PARAM;
    int status = BCM_E_NONE;
    each([&](const Binding &binding) {
        const bool address = binding.memory || binding.role == Role::callback;
        if (!address || binding.role == Role::flags || !is_null(binding)) return;
        const bool array = is_list(binding.role) || binding.stride != 0;
        const bool out = binding.role == Role::list_out || call_.operation == Operation::list;
        const int elements = !array ? 1 : out ? max() : count();
        if (elements > 0) status = BCM_E_PARAM;
    });
    if (call_.filled.argument != 0 &&
        *static_cast<const void *const *>(arguments_[call_.filled.argument]) == nullptr) {
        status = BCM_E_PARAM;
    }
    return status;
}

const char *Invocation::source(const Binding &binding, int element) const {
    const void *const argument = arguments_[binding.argument];
    if (!binding.memory) return static_cast<const char *>(argument);
    const char *const base = *static_cast<const char *const *>(argument);
    return base + binding.at + binding.stride * static_cast<std::size_t>(element);
}

char *Invocation::target(const Binding &binding, int element) const {
    char *const base = *static_cast<char *const *>(arguments_[binding.argument]);
    return base + binding.at + binding.stride * static_cast<std::size_t>(element);
}

const Binding *Invocation::find(Role role) const {
    const auto found = std::find_if(call_.bindings.begin(), call_.bindings.end(),
                                    [&](const Binding &binding) { return binding.role == role; });
    return found == call_.bindings.end() ? nullptr : &*found;
}

std::uint32_t Invocation::flags() const {
    std::uint32_t all = 0;
    each([&](const Binding &binding) {
        if (binding.role != Role::flags || (binding.memory && is_null(binding))) return;
        std::uint32_t flags = 0;
        std::memcpy(&flags, source(binding, 0), std::min<std::size_t>(binding.size, sizeof flags));
        all |= flags;
    });
    return all;
}

void Invocation::fill(std::string &bytes, int element) const {
    each([&](const Binding &binding) {
        if (!goes_in(binding.role)) return;
        std::memcpy(bytes.data() + binding.row, source(binding, element), binding.size);
    });
}

GenericRow Invocation::row(Switch &chip, int element) const {
    GenericRow made{std::string(call_.row, '\0'), lists()};
    fill(made.bytes, element);
    find_names(chip, call_.references, made, made.names);
    made.id = call_.id;
    return made;
}

int Invocation::check_names(Switch &chip) const {
    if (call_.references.empty()) return BCM_E_NONE;
    const bool lists_in = find(Role::list_in) != nullptr;
    const bool out = call_.operation == Operation::list;  // its elements are what it gives
    for (int i = 0; i < (lists_in || out ? 1 : count()); ++i) {
        GenericRow asked{std::string(call_.row, '\0'), lists()};
        fill(asked.bytes, i);
        std::vector<RowName> names;
        const int status = find_names(chip, call_.references, asked, names);
        if (status != BCM_E_NONE) return status;
    }
    return BCM_E_NONE;
}

std::vector<std::string> Invocation::lists() const {
    std::vector<std::string> lists;
    each([&](const Binding &binding) {
        if (binding.role != Role::list_in) return;
        if (lists.size() <= binding.row) lists.resize(binding.row + 1);
        const std::size_t length = binding.size * static_cast<std::size_t>(count());
        if (length > 0) lists[binding.row].assign(source(binding, 0), length);
    });
    return lists;
}

void Invocation::give(const GenericRow *row, int element) const {
    each([&](const Binding &binding) {
        if (binding.role != Role::read) return;
        if (row == nullptr)
            std::memset(target(binding, element), 0, binding.size);
        else
            std::memcpy(target(binding, element), row->bytes.data() + binding.row, binding.size);
    });
}

void Invocation::give_lists(const GenericRow *row) const {
    std::size_t most = 0;
    each([&](const Binding &binding) {
        if (binding.role != Role::list_out) return;
        const bool kept = row != nullptr && binding.row < row->lists.size();
        const std::string_view list = kept ? std::string_view(row->lists[binding.row]) : "";
        most = std::max(most, list.size() / binding.size);
        const std::size_t room = binding.size * static_cast<std::size_t>(max());
        if (room == 0) return;
        const std::size_t length = std::min(room, list.size());
        std::memcpy(target(binding, 0), list.data(), length);
        if (call_.filled.argument == 0)  // the caller takes all elements for filled
            std::memset(target(binding, 0) + length, 0, room - length);
    });
    give_count(static_cast<int>(most));
}

void Invocation::give_count(int count) const {
    if (call_.filled.argument == 0) return;
    const int written = max() == 0 ? count : std::min(count, max());
    void *const place = *static_cast<void *const *>(arguments_[call_.filled.argument]);
    std::memcpy(place, &written, call_.filled.size);
}

std::vector<RowPlace> selected(const Invocation &invocation, GenericTable &table, int element) {
    const Call &call = invocation.call();
    std::string probe(call.row, '\0');
    std::string mask(call.row, '\0');
    invocation.each([&](const Binding &binding) {
        if (!selects(binding.role)) return;
        std::memcpy(probe.data() + binding.row, invocation.source(binding, element), binding.size);
        std::memset(mask.data() + binding.row, 1, binding.size);
    });
    const std::size_t given = std::min<std::size_t>(mask.find('\0'), call.row);
    const std::string_view prefix =
        std::string_view(probe).substr(0, std::min<std::size_t>(given, call.key));
    std::vector<RowPlace> places;
    for (auto row = table.rows.lower_bound(prefix);
         row != table.rows.end() && row->first.starts_with(prefix); ++row) {
        bool meant = true;
        for (std::size_t i = prefix.size(); meant && i < call.row; ++i)
            meant = mask[i] == 0 || row->second.bytes[i] == probe[i];
        if (meant) places.push_back(row);
    }
    std::sort(places.begin(), places.end(), [](const RowPlace &one, const RowPlace &other) {
        return one->second.order < other->second.order;
    });
    return places;
}

}  // namespace standin
