// What there is on a unit, by number: what completion offers where a number is wanted.
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/shell/commands.h"

namespace standin {
namespace {

template <class Table>
std::vector<Candidate> list_of(int unit, Table &&table) {
    std::vector<Candidate> all;
    on_switch("shell", unit, [&](Switch &chip) {
        for (const auto &one : table(chip)) all.push_back({std::to_string(one.first), ""});
        return BCM_E_NONE;
    });
    return all;
}

}  // namespace

std::vector<Candidate> list_vlans(int unit) {
    return list_of(unit, [](Switch &chip) -> auto & { return chip.vlans.vlans; });
}

std::vector<Candidate> list_stgs(int unit) {
    return list_of(unit, [](Switch &chip) -> auto & { return chip.vlans.stgs; });
}

std::vector<Candidate> list_trunks(int unit) {
    return list_of(unit, [](Switch &chip) -> auto & { return chip.groups.trunks; });
}

}  // namespace standin
