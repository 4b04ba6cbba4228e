// Reading and writing memory by the layouts that the declarations give.
#include "standin/shell/fields.h"

#include <arpa/inet.h>

#include <algorithm>
#include <cstring>
#include <deque>
#include <functional>
#include <map>
#include <mutex>

#include "standin/base/number_text.h"
#include "standin/base/scan.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/shell/address_words.h"
#include "standin/shell/queue_rows.h"
#include "standin/shell/values.h"
#include "standin/text/address_text.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// Calls `visit(name, field, offset)` for each single value, until it answers true.
using Visit = std::function<bool(const std::string &, const LayoutField &, std::size_t)>;
bool each_value(LayoutFields fields, const std::string &prefix, std::size_t base,
                const Visit &visit) {
    for (const LayoutField &field : fields) {
        if (field.form == LayoutForm::kPointer) continue;
        for (std::uint32_t at = 0; at < field.count; ++at) {
            std::string name = prefix + field.name;
            if (field.count > 1) name += '[' + std::to_string(at) + ']';
            const std::size_t offset = base + field.offset + std::size_t{at} * field.size;
            const bool found =
                field.form == LayoutForm::kStruct
                    ? each_value(struct_layouts[field.inner].fields, name + '.', offset, visit)
                    : visit(name, field, offset);
            if (found) return true;
        }
    }
    return false;
}

std::int64_t number_at(const LayoutField &field, const char *memory) {
    std::uint64_t value = 0;
    std::memcpy(&value, memory, field.size);
    const unsigned unused = 64 - 8 * field.size;
    if (field.form == LayoutForm::kUnsigned) return static_cast<std::int64_t>(value);
    return static_cast<std::int64_t>(value << unused) >> unused;
}

bcm_pbmp_t ports_at(const char *memory) {
    bcm_pbmp_t ports;
    std::memcpy(&ports, memory, sizeof ports);
    return ports;
}

std::string value_text(const LayoutField &field, const char *memory, const PortNames &names) {
    switch (field.form) {
        case LayoutForm::kMac:
            return mac_text(reinterpret_cast<const std::uint8_t *>(memory));
        case LayoutForm::kPortSet:
            return port_list_text(port_set_of(ports_at(memory)), names);
        case LayoutForm::kBytes:
            return hex_text(memory, field.size);
        default: {
            const std::int64_t number = number_at(field, memory);
            return field.form == LayoutForm::kUnsigned
                       ? std::to_string(static_cast<std::uint64_t>(number))
                       : std::to_string(number);
        }
    }
}

std::optional<std::string> write_number(const LayoutField &field, std::string_view word,
                                        char *memory) {
    const bool minus = word.starts_with('-');
    std::optional<std::uint64_t> size = read_u64(minus ? word.substr(1) : word);
    if (!size && field.size == 4 && word.find('.') != std::string_view::npos) size = read_ip(word);
    const unsigned bits = 8 * field.size;
    const bool is_signed = field.form == LayoutForm::kSigned;
    const std::uint64_t most = ~std::uint64_t{0} >> (64 - bits);
    const std::uint64_t least = is_signed ? most / 2 + 1 : 0;  // the size of the smallest
    // A signed number may come as the bits that it is made of.
    if (!size || *size > (minus ? least : most))
        return (is_signed ? '-' + std::to_string(least) : "0") + " to " + std::to_string(most);
    const std::uint64_t value = minus ? 0 - *size : *size;
    if (memory != nullptr) std::memcpy(memory, &value, field.size);
    return std::nullopt;
}

std::optional<std::string> write_bytes(const LayoutField &field, std::string_view word,
                                       char *memory) {
    std::optional<std::string> bytes = bytes_of_hex(word);
    if (field.size == 16 && word.find(':') != std::string_view::npos) {
        bytes = std::string(16, '\0');
        if (::inet_pton(AF_INET6, std::string(word).c_str(), bytes->data()) != 1)
            return "an address, as fd00::1";
    }
    if (!bytes || bytes->size() != field.size)
        return text_of("%u bytes, two digits each", static_cast<unsigned>(field.size));
    if (memory != nullptr) std::memcpy(memory, bytes->data(), bytes->size());
    return std::nullopt;
}

std::optional<std::string> write_value(const LayoutField &field, std::string_view word,
                                       const PortNames &names, char *memory) {
    if (field.form == LayoutForm::kMac) {
        const std::optional<MacBytes> mac = read_mac(word);
        if (!mac) return "a MAC address, as 02:00:00:00:00:0a";
        if (memory != nullptr) std::memcpy(memory, mac->data(), mac->size());
        return std::nullopt;
    }
    if (field.form == LayoutForm::kPortSet) {
        std::string fault;
        const std::optional<PortSet> ports = read_port_list(word, names, fault);
        if (!ports) return fault;
        const bcm_pbmp_t set = pbmp_of(*ports);
        if (memory != nullptr) std::memcpy(memory, &set, sizeof set);
        return std::nullopt;
    }
    return field.form == LayoutForm::kBytes ? write_bytes(field, word, memory)
                                            : write_number(field, word, memory);
}

Cell cell_at(const LayoutField &field, const char *memory, const PortNames &names) {
    if (field.form == LayoutForm::kPortSet) {
        Cell::Numbers numbers;
        const PortSet ports = port_set_of(ports_at(memory));
        for (std::size_t at = 0; at < ports.size(); ++at)
            if (ports[at]) numbers.push_back(static_cast<std::int64_t>(at));
        return {std::move(numbers), port_list_text(ports, names)};
    }
    if (field.form == LayoutForm::kMac || field.form == LayoutForm::kBytes)
        return value_text(field, memory, names);
    if (field.form == LayoutForm::kUnsigned)
        return static_cast<std::uint64_t>(number_at(field, memory));
    return number_at(field, memory);
}

std::size_t extent_of(LayoutFields fields) {
    std::size_t extent = 0;
    for (const LayoutField &field : fields)
        extent =
            std::max<std::size_t>(extent, field.offset + std::size_t{field.size} * field.count);
    return extent;
}

// Of a structure, of the rows of a family, or of queues.
LayoutFields fields_named(std::string_view name) {
    if (const StructLayout *const found = struct_layout(name)) return found->fields;
    if (const QueueRows *const found = queue_rows_of(name)) return found->layout.fields;
    const FamilyLayout *const family = family_layout(name);
    return family == nullptr ? LayoutFields{} : family->fields;
}

CellKind kind_of(const LayoutField &field) {
    if (field.form == LayoutForm::kPortSet) return CellKind::kNumbers;
    const bool text = field.form == LayoutForm::kMac || field.form == LayoutForm::kBytes;
    return text ? CellKind::kText : CellKind::kNumber;
}

}  // namespace

LayoutFields fields_of(const CommandCall &call) {
    if (call.form().layout != nullptr) return fields_named(call.form().layout);
    return call.has("FAMILY") ? fields_named(call.text("FAMILY")) : LayoutFields{};
}

std::optional<std::string> write_field(LayoutFields fields, std::string_view word,
                                       const PortNames &names, void *memory) {
    std::string_view name;
    std::string_view value;
    if (!cut(word, '=', name, value))
        return "a field and its value, as " + std::string(word) + "=1";
    std::optional<std::string> fault;
    const bool found =
        each_value(fields, "", 0, [&](const std::string &one, const LayoutField &field, auto at) {
            if (!same_word(one, name)) return false;
            char *const to = memory == nullptr ? nullptr : static_cast<char *>(memory) + at;
            fault = write_value(field, value, names, to);
            return true;
        });
    if (found) return fault;
    std::vector<std::string> all;
    for (const LayoutField &field : fields) all.emplace_back(field.name);
    const std::string near = nearest(name, all);
    if (!near.empty()) return "unknown field; did you mean '" + near + "='?";
    constexpr std::size_t kMost = 24;
    if (all.size() > kMost) return "unknown field; '?' lists them";
    return "unknown field; there is " + list_text(all);
}

void write_fields(const CommandCall &call, std::string_view param, void *memory) {
    const LayoutFields fields = fields_of(call);
    const PortNames names = unit_ports(call.unit());
    for (const Value *word : call.all(param)) write_field(fields, word->text, names, memory);
}

std::string field_words(LayoutFields fields, const void *memory, const PortNames &names,
                        const void *base, std::span<const std::string_view> but,
                        std::size_t always) {
    std::string words;
    const char *const from = static_cast<const char *>(memory);
    const std::string zeros(extent_of(fields), '\0');
    const char *const plain = base == nullptr ? zeros.data() : static_cast<const char *>(base);
    each_value(fields, "", 0, [&](const std::string &name, const LayoutField &field, auto at) {
        const bool same = at >= always && std::memcmp(from + at, plain + at, field.size) == 0;
        const bool left_out = std::find(but.begin(), but.end(), name) != but.end();
        if (!same && !left_out) words += ' ' + name + '=' + value_text(field, from + at, names);
        return false;
    });
    return words;
}

std::vector<Candidate> list_fields(LayoutFields fields) {
    constexpr std::size_t kMost = 400;
    std::vector<Candidate> all;
    each_value(fields, "", 0, [&](const std::string &name, const LayoutField &field, auto) {
        const bool number =
            field.form == LayoutForm::kSigned || field.form == LayoutForm::kUnsigned;
        const char *const help = field.form == LayoutForm::kMac       ? "a MAC address"
                                 : field.form == LayoutForm::kPortSet ? "ports"
                                                                      : "bytes";
        all.push_back({name + '=', number ? text_of("%u bits", 8 * field.size) : help});
        return all.size() == kMost;
    });
    return all;
}

std::span<const RowColumn> columns_of(LayoutFields fields, std::span<const RowColumn> own,
                                      bool shown) {
    struct Made {
        std::deque<std::string> names;
        std::vector<RowColumn> columns;
    };
    static std::mutex lock;
    // Never destroyed: a native thread may print a table while the process ends.
    static auto &all = *new std::map<std::pair<const void *, const void *>, Made>;
    const std::lock_guard<std::mutex> guard(lock);
    const auto [place, is_new] = all.try_emplace({fields.data(), own.data()});
    Made &made = place->second;
    if (!is_new) return made.columns;
    made.columns.assign(own.begin(), own.end());
    each_value(fields, "", 0, [&](const std::string &name, const LayoutField &field, auto) {
        const bool there = std::any_of(own.begin(), own.end(),
                                       [&](const RowColumn &one) { return name == one.key; });
        if (there || name.find('[') != std::string::npos) return false;
        const char *const key = made.names.emplace_back(name).c_str();
        made.columns.push_back({key, shown ? key : nullptr, kind_of(field)});
        return false;
    });
    return made.columns;
}

std::span<const RowColumn> columns_of(const Form &form) {
    if (form.layout == nullptr) return form.columns;
    return columns_of(fields_named(form.layout), form.columns, form.columns.empty());
}

std::vector<Cell> cells_of(std::span<const RowColumn> columns, LayoutFields fields,
                           const void *memory, const PortNames &names, std::vector<Cell> own) {
    std::vector<Cell> cells(columns.size());
    std::map<std::string_view, std::size_t> places;
    for (std::size_t at = own.size(); at < columns.size(); ++at) places[columns[at].key] = at;
    std::move(own.begin(), own.end(), cells.begin());
    const char *const base = static_cast<const char *>(memory);
    each_value(fields, "", 0, [&](const std::string &name, const LayoutField &field, auto at) {
        const auto place = places.find(name);
        if (place != places.end()) cells[place->second] = cell_at(field, base + at, names);
        return false;
    });
    return cells;
}

StructRows::StructRows(const CommandCall &call)
    : call_(call),
      fields_(fields_of(call)),
      names_(unit_ports(call.unit())),
      rows_(columns_of(call.form())) {}

void StructRows::row(std::vector<Cell> own, const void *memory) {
    rows_.row(cells_of(rows_.columns(), fields_, memory, names_, std::move(own)));
}

cmd_result_t StructRows::show(std::string_view param) const {
    if (call_.has(param) && rows_.size() == 0) return report(call_, BCM_E_NOT_FOUND);
    rows_.show();
    return kOk;
}

std::vector<std::pair<std::string, std::size_t>> families_of(int unit) {
    std::vector<std::pair<std::string, std::size_t>> all;
    on_switch("table show", unit, [&](Switch &chip) {
        for (const auto &[family, table] : chip.generic)
            if (!table.rows.empty()) all.emplace_back(family, table.rows.size());
        return BCM_E_NONE;
    });
    return all;
}

cmd_result_t show_family(const CommandCall &call, const std::string &family) {
    const FamilyLayout *const layout = family_layout(family);
    if (layout == nullptr) return refuse(call, "no family '" + family + '\'');
    const PortNames names = unit_ports(call.unit());
    const bool own = call.form().layout != nullptr;
    Rows rows(own ? columns_of(call.form()) : columns_of(layout->fields, {}, true));
    const int status = on_switch("table show", call.unit(), [&](Switch &chip) {
        const auto table = chip.generic.find(family);
        if (table == chip.generic.end()) return BCM_E_NONE;
        for (const auto &[key, row] : table->second.rows) {
            std::string bytes = row.bytes;
            bytes.resize(std::max(bytes.size(), extent_of(layout->fields)));
            rows.row(cells_of(rows.columns(), layout->fields, bytes.data(), names, {}));
        }
        return BCM_E_NONE;
    });
    if (status < 0) return report(call, status);
    rows.show();
    return kOk;
}

}  // namespace standin
