// The rules: the first that fits in each group, its counter, its policers, its actions.
#include "sdk/constants.h"
#include "standin/model/tables.h"
#include "standin/pipeline/rules.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

// Even kinds of a counter count bytes, odd ones packets; which frames, the kind says.
bool counts(int kind, const RuleResult &result) {
    const bool green = result.color == bcmColorGreen;
    const bool yellow = result.color == bcmColorYellow;
    const bool red = result.color == bcmColorRed;
    switch (kind / 2) {
        case bcmFieldStatBytes / 2:
            return true;
        case bcmFieldStatGreenBytes / 2:
            return green;
        case bcmFieldStatYellowBytes / 2:
            return yellow;
        case bcmFieldStatRedBytes / 2:
            return red;
        case bcmFieldStatNotGreenBytes / 2:
            return !green;
        case bcmFieldStatNotYellowBytes / 2:
            return !yellow;
        case bcmFieldStatNotRedBytes / 2:
            return !red;
        case bcmFieldStatAcceptedBytes / 2:
            return !result.drops;
        case bcmFieldStatAcceptedGreenBytes / 2:
            return !result.drops && green;
        case bcmFieldStatAcceptedYellowBytes / 2:
            return !result.drops && yellow;
        case bcmFieldStatAcceptedRedBytes / 2:
            return !result.drops && red;
        case bcmFieldStatDroppedBytes / 2:
            return result.drops;
        case bcmFieldStatDroppedGreenBytes / 2:
            return result.drops && green;
        case bcmFieldStatDroppedYellowBytes / 2:
            return result.drops && yellow;
        case bcmFieldStatDroppedRedBytes / 2:
            return result.drops && red;
        default:
            return false;
    }
}

void count(Run &run, const Match &match, const RuleResult &result, std::size_t size) {
    if (run.dry || !match.rule->stat) return;
    FieldStat *const counter = find_in(run.chip.field.stats, *match.rule->stat);
    if (counter == nullptr) return;
    for (auto &[kind, value] : counter->values)
        if (counts(kind, result)) value += kind % 2 == 0 ? size + kChecksumSize : 1;
}

// The worst colour of the policers of a rule.
int color_of(Run &run, const FieldEntry &rule, std::size_t size) {
    int color = bcmColorGreen;
    for (const auto &[level, id] : rule.policers) {
        const Policer *const policer = find_in(run.chip.groups.policers, id);
        if (policer == nullptr) continue;
        Meter &meter = run.state.meters[id];
        color = std::max(color,
                         meter.color(policer->config, run.chip.now, size + kChecksumSize, run.dry));
    }
    return color;
}

}  // namespace

bool apply_rules(Run &run, Packet &packet, RuleStage stage, int out, std::string &dropper) {
    Classifier &rules = run.state.rules;
    rules.refresh(run.chip.field, [&](const std::string &what) { run.cannot(what); });
    if (!rules.has_rules(stage)) return false;
    std::vector<Match> matches;
    rules.find({run.chip, packet, out}, stage, matches);
    bool drops = false;
    std::vector<int> taken;  // by groups of higher priority
    for (const Match &match : matches) {
        RuleResult result;
        if (!match.rule->policers.empty())
            packet.color = color_of(run, *match.rule, packet.frame.size());
        result.color = packet.color;
        apply_actions(run, packet, match, taken, result);
        count(run, match, result, packet.frame.size());
        run.step(
            "rules", [&] { return "matched" + result.text; },
            run.trace == nullptr ? std::string() : text_of(object(ObjectKind::kRule, match.id)));
        if (result.drops && !drops && run.trace != nullptr)
            dropper = text_of(object(ObjectKind::kRule, match.id));
        drops = drops || result.drops;
    }
    return drops;
}

void rule_stage(Run &run, Packet &packet) {
    std::string dropper;
    if (!apply_rules(run, packet, RuleStage::kIngress, -1, dropper)) return;
    packet.way = {.kind = Way::Kind::kEnd, .reason = Reason::kRuleDrop, .object = dropper};
}

}  // namespace standin
