// The families of constants, gathered once from the list of all constants.
#include "standin/text/name_text.h"

#include <algorithm>

#include "standin/base/number_text.h"
#include "standin/base/scan.h"
#include "standin/text/names.h"

namespace standin {
namespace {

bool name_sign(char sign) { return is_alnum(sign) || sign == '_'; }

// Whether a constant is one of the lists of identifiers: upper case but for its ending.
bool is_identifier(std::string_view name, char ending) {
    if (name.size() < 2 || name.back() != ending || name.front() < 'A' || name.front() > 'Z')
        return false;
    name.remove_suffix(1);
    return std::all_of(name.begin(), name.end(), [](char sign) {
        return (sign >= 'A' && sign <= 'Z') || is_digit(sign) || sign == '_';
    });
}

std::vector<IdentifierName> list_identifiers(char ending) {
    std::vector<IdentifierName> list;
    for (std::size_t at = 0; at < standin_constant_count; ++at) {
        std::string_view name = standin_constants[at].name;
        if (!is_identifier(name, ending)) continue;
        list.push_back({name.substr(0, name.size() - 1), standin_constants[at].value});
    }
    std::stable_sort(list.begin(), list.end(),
                     [](const auto &left, const auto &right) { return left.id < right.id; });
    return list;
}

}  // namespace

NameFamily::NameFamily(std::string_view prefix) : prefix_(prefix), longest_(11) {
    for (std::size_t at = 0; at < standin_constant_count; ++at) {
        std::string_view name = standin_constants[at].name;
        if (!name.starts_with(prefix)) continue;
        longest_ = std::max(longest_, name.size());
        name.remove_prefix(prefix.size());
        if (name.empty() || name == "Count") continue;
        values_.emplace(lower_case(name), standin_constants[at].value);
        names_.emplace(standin_constants[at].value, name);
    }
}

std::optional<std::int32_t> NameFamily::value(std::string_view text) const {
    text = trim(text);
    auto found = values_.find(lower_case(text));
    if (found == values_.end() && starts_with_word(text, prefix_))
        found = values_.find(lower_case(text.substr(prefix_.size())));
    return found != values_.end() ? found->second : read_i32(text);
}

std::string NameFamily::name(std::int32_t value, bool brief) const {
    auto found = names_.find(value);
    if (found == names_.end()) return std::to_string(value);
    return brief ? found->second : prefix_ + found->second;
}

const NameFamily &field_qualifier_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldQualify");
    return names;
}
const NameFamily &field_action_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldAction");
    return names;
}
const NameFamily &field_group_mode_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldGroupMode");
    return names;
}
const NameFamily &field_decap_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldDecap");
    return names;
}
const NameFamily &field_mpls_oam_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldMplsOamControlPktType");
    return names;
}
const NameFamily &field_oam_type_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldOamType");
    return names;
}
const NameFamily &field_olp_header_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldOlpHeaderType");
    return names;
}

const std::vector<IdentifierName> &identifiers(Identifier kind) {
    static const auto &registers = *new std::vector(list_identifiers('r'));
    static const auto &memories = *new std::vector(list_identifiers('m'));
    static const auto &fields = *new std::vector(list_identifiers('f'));
    if (kind == Identifier::kRegister) return registers;
    return kind == Identifier::kMemory ? memories : fields;
}

std::optional<std::int32_t> identifier_of(Identifier kind, std::string_view text) {
    text = trim(text);
    // The exact name goes first: one name may be another one and the ending.
    for (const IdentifierName &entry : identifiers(kind))
        if (same_word(entry.name, text)) return entry.id;
    if (!text.empty() && to_lower(text.back()) == static_cast<char>(kind)) {
        std::string_view bare = text.substr(0, text.size() - 1);
        for (const IdentifierName &entry : identifiers(kind))
            if (same_word(entry.name, bare)) return entry.id;
    }
    return read_i32(text);
}

std::string identifier_text(Identifier kind, std::int32_t id) {
    const std::vector<IdentifierName> &list = identifiers(kind);
    auto found =
        std::lower_bound(list.begin(), list.end(), id,
                         [](const auto &entry, std::int32_t key) { return entry.id < key; });
    if (found == list.end() || found->id != id) return std::to_string(id);
    return std::string(found->name);
}

std::optional<std::vector<std::int32_t>> read_name_list(const NameFamily &names,
                                                        std::string_view text, std::int32_t limit) {
    std::vector<std::int32_t> members;
    std::size_t words = 0;
    while (true) {
        auto start = std::find_if(text.begin(), text.end(), name_sign);
        auto end = std::find_if_not(start, text.end(), name_sign);
        if (start == end) break;
        std::string_view word(start, end);
        text = std::string_view(end, text.end());
        ++words;
        std::optional<std::int32_t> member = names.value(word);
        if (member && *member >= 0 && *member < limit)
            members.push_back(*member);
        else if (!same_word(word, "none"))
            return std::nullopt;
    }
    if (words == 0) return std::nullopt;
    return members;
}

}  // namespace standin
