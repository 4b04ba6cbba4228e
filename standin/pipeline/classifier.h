// The rules of a switch in the form in which they are searched.
//
// Rules of a group that look at the same bits of the same qualifiers stand in one table by the
// values of those bits, so that a search costs the number of such tables and not that of rules:
//
//     group 1  ->  { SrcIp/255.0.0.0, IpProtocol }   "10...", 6  ->  rule 12, rule 40
//                  { DstMac }                        "01 80 .."  ->  rule 3
//
// What is no value with a mask (sets of ports, ranges, kinds of packets) is asked of each rule that
// was found so. Made anew when the chapter has changed.
#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "standin/model/field.h"

namespace standin {

struct Packet;
struct Switch;

// What is looked at: a packet, and at egress the port that it is about to leave.
struct Subject {
    const Switch &chip;
    const Packet &packet;
    int out = -1;
};

enum class RuleStage : std::uint8_t { kIngress, kEgress };

struct Match {
    bcm_field_group_t group = 0;
    bcm_field_entry_t id = 0;
    const FieldEntry *rule = nullptr;
};

class Classifier {
  public:
    // What the pipeline cannot do is told by `cannot`.
    void refresh(const Field &field, const std::function<void(const std::string &)> &cannot);

    // The first rule that fits in each group, by the priority of the groups. Valid until the rules
    // change.
    void find(const Subject &subject, RuleStage stage, std::vector<Match> &matches) const;

    bool has_rules(RuleStage stage) const { return rules_[static_cast<std::size_t>(stage)] != 0; }

  private:
    struct Place {  // of a value in the key of a table
        int qualifier;
        std::size_t size;
        std::vector<std::uint8_t> mask;
    };
    struct Condition {
        int qualifier;
        const std::vector<std::uint8_t> *bytes;
    };
    struct Candidate {
        Match match;
        std::vector<Condition> conditions;
    };
    struct Table {
        std::vector<Place> places;
        int priority = 0;  // the highest of its rules
        std::unordered_map<std::string, std::vector<Candidate>> rules;
    };
    struct Group {
        bcm_field_group_t id = 0;
        int priority = 0;
        RuleStage stage{};
        bcm_pbmp_t ports{};
        std::vector<Table> tables;  // highest priority first
    };

    static void add(Group &group, bcm_field_entry_t id, const FieldEntry &rule,
                    std::unordered_map<std::string, std::size_t> &places,
                    const std::function<void(const std::string &)> &cannot);
    static const Candidate *best(const Group &group, const Subject &subject, std::string &key);

    std::vector<Group> groups_;  // highest priority first
    std::uint64_t changes_ = ~std::uint64_t{0};
    std::size_t rules_[2] = {0, 0};
};

// The parts of a search that know single qualifiers.
enum class QualifierKind : std::uint8_t { kUnknown, kValue, kCondition };
QualifierKind kind_of(int qualifier);
// Writes the value of the packet, in the form in which the calls give it. False: it has none.
bool value_of(int qualifier, const Subject &subject, std::uint8_t *value, std::size_t size);
bool holds(int qualifier, const Subject &subject, const std::vector<std::uint8_t> &bytes);
// Whether a qualifier that takes ranges tests the numbers of TCP and UDP.
bool tests_ports(int qualifier);
// Whether the packet passes every range that the rule tests.
bool in_ranges(const Subject &subject, const FieldEntry &rule);

// The name of a qualifier or an action; set by what knows the names, numbers else.
extern std::string (*qualifier_name)(int qualifier);
extern std::string (*action_name)(int action);

}  // namespace standin
