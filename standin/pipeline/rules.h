// What the rules of a stage do to a packet.
#pragma once
#include <string>
#include <vector>

#include "standin/pipeline/packet.h"

namespace standin {

struct RuleResult {
    int color = 0;
    bool drops = false;
    std::string text;  // for a trace: what was done
};

// Applies the first rule of each group that fits. True: one of them drops the packet, and `dropper`
// is its name where somebody traces.
bool apply_rules(Run &run, Packet &packet, RuleStage stage, int out, std::string &dropper);

// The actions of one rule, but for those that a group of higher priority has `taken`.
void apply_actions(Run &run, Packet &packet, const Match &match, std::vector<int> &taken,
                   RuleResult &result);

}  // namespace standin
