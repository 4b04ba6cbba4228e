// Building the tables of the rules, and searching them.
#include "standin/pipeline/classifier.h"

#include <algorithm>

#include "sdk/constants.h"
#include "standin/model/rule_changes.h"
#include "standin/pipeline/packet.h"

namespace standin {
namespace {

std::string number_name(int number) { return std::to_string(number); }

bool in_words(const bcm_field_qset_t &set, int bit) {
    return (set.w[bit / 32] >> (bit % 32) & 1u) != 0;
}

RuleStage stage_of(const FieldGroup &group) {
    return in_words(group.qualifiers, bcmFieldQualifyStageEgress) ? RuleStage::kEgress
                                                                  : RuleStage::kIngress;
}

bool goes_before(const FieldEntry &rule, bcm_field_entry_t id, const Match &other) {
    return rule.priority != other.rule->priority ? rule.priority > other.rule->priority
                                                 : id < other.id;
}

// A port may be given as a gport; a packet has its local number.
void settle_port(int qualifier, std::vector<std::uint8_t> &data) {
    if (qualifier != bcmFieldQualifyInPort || data.size() != sizeof(bcm_port_t)) return;
    bcm_port_t port = 0;
    std::memcpy(&port, data.data(), sizeof port);
    port = local_port(port);
    std::memcpy(data.data(), &port, sizeof port);
}

}  // namespace

std::string (*qualifier_name)(int qualifier) = number_name;
std::string (*action_name)(int action) = number_name;

void Classifier::add(Group &group, bcm_field_entry_t id, const FieldEntry &rule,
                     std::unordered_map<std::string, std::size_t> &places,
                     const std::function<void(const std::string &)> &cannot) {
    Candidate candidate{{group.id, id, &rule}, {}};
    Table table;
    std::string form;
    std::string key;
    for (const auto &[name, bytes] : rule.qualifiers) {
        const QualifierKind kind = kind_of(name.first);
        if (kind == QualifierKind::kUnknown) {
            cannot("rules that qualify by " + qualifier_name(name.first) + " match nothing");
            return;
        }
        if (kind == QualifierKind::kCondition) {
            candidate.conditions.push_back({name.first, &bytes});
            continue;
        }
        const auto half = bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() / 2);
        std::vector<std::uint8_t> data(bytes.begin(), half);
        const std::vector<std::uint8_t> mask(half, bytes.end());
        if (std::ranges::all_of(mask, [](std::uint8_t byte) { return byte == 0; })) continue;
        settle_port(name.first, data);
        for (std::size_t i = 0; i < mask.size(); ++i) data[i] &= mask[i];
        form += std::to_string(name.first) + '/' + std::string(mask.begin(), mask.end());
        key.append(data.begin(), data.end());
        table.places.push_back({name.first, data.size(), mask});
    }
    for (const auto &[qualifier, checks] : rule.ranges)
        if (!tests_ports(qualifier)) {
            cannot("rules that qualify by " + qualifier_name(qualifier) + " match nothing");
            return;
        }
    const auto [found, is_new] = places.try_emplace(form, group.tables.size());
    if (is_new) {
        table.priority = rule.priority;
        group.tables.push_back(std::move(table));
    }
    Table &its = group.tables[found->second];
    its.priority = std::max(its.priority, rule.priority);
    std::vector<Candidate> &same = its.rules[key];
    const auto at = std::ranges::find_if(
        same, [&](const Candidate &one) { return goes_before(rule, id, one.match); });
    same.insert(at, std::move(candidate));
}

void Classifier::refresh(const Field &field,
                         const std::function<void(const std::string &)> &cannot) {
    if (rule_changes() == changes_) return;
    changes_ = rule_changes();
    groups_.clear();
    rules_[0] = rules_[1] = 0;
    std::unordered_map<bcm_field_group_t, std::vector<bcm_field_entry_t>> members;
    for (const auto &[id, rule] : field.entries)
        if (rule.installed && rule.enable != 0) members[rule.group].push_back(id);
    for (const auto &[id, one] : field.groups) {
        const auto found = members.find(id);
        if (one.enable == 0 || found == members.end()) continue;
        Group group{id, one.priority, stage_of(one), one.ports, {}};
        if (in_words(one.qualifiers, bcmFieldQualifyStageLookup))
            cannot("rules of the lookup stage are searched at ingress");
        std::unordered_map<std::string, std::size_t> places;
        for (const bcm_field_entry_t entry : found->second)
            add(group, entry, field.entries.at(entry), places, cannot);
        std::ranges::stable_sort(group.tables, std::greater<>{}, &Table::priority);
        rules_[static_cast<std::size_t>(group.stage)] += found->second.size();
        groups_.push_back(std::move(group));
    }
    std::ranges::stable_sort(groups_, std::greater<>{}, &Group::priority);
}

const Classifier::Candidate *Classifier::best(const Group &group, const Subject &subject,
                                              std::string &key) {
    const Candidate *found = nullptr;
    for (const Table &table : group.tables) {
        if (found != nullptr && found->match.rule->priority > table.priority) break;
        key.clear();
        bool whole = true;
        for (const Place &place : table.places) {
            const std::size_t at = key.size();
            key.resize(at + place.size);
            auto *const value = reinterpret_cast<std::uint8_t *>(key.data()) + at;
            whole = value_of(place.qualifier, subject, value, place.size);
            if (!whole) break;
            for (std::size_t i = 0; i < place.size; ++i) value[i] &= place.mask[i];
        }
        const auto rules = whole ? table.rules.find(key) : table.rules.end();
        if (rules == table.rules.end()) continue;
        for (const Candidate &one : rules->second) {
            if (found != nullptr && !goes_before(*one.match.rule, one.match.id, found->match))
                break;
            if (in_ranges(subject, *one.match.rule) &&
                std::ranges::all_of(one.conditions, [&](const Condition &condition) {
                    return holds(condition.qualifier, subject, *condition.bytes);
                })) {
                found = &one;
                break;
            }
        }
    }
    return found;
}

void Classifier::find(const Subject &subject, RuleStage stage, std::vector<Match> &matches) const {
    std::string key;
    const int port = stage == RuleStage::kEgress ? subject.out : subject.packet.port;
    for (const Group &group : groups_) {
        if (group.stage != stage || !has_port(group.ports, port)) continue;
        if (const Candidate *const one = best(group, subject, key)) matches.push_back(one->match);
    }
}

}  // namespace standin
