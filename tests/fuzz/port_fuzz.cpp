// Any bytes as ports: the first byte says with which names.
#include "fuzz.h"
#include "standin/phy/mode_text.h"
#include "standin/text/address_text.h"
#include "standin/text/port_text.h"

using namespace standin;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const PortNames named = {{0, "cpu0"}, {1, "xe1"},  {2, "xe2"},   {3, "xe3"},
                                    {9, "xe7"},  {10, "ce0"}, {64, "ce64"}, {570, "ge0"}};
    std::string_view text = fuzz::text_of(data, size);
    const PortNames names = fuzz::take_choice(text) % 2 == 0 ? named : PortNames();
    std::string fault;
    if (std::optional<PortSet> set = read_port_list(text, names, fault))
        fuzz::must(read_port_list(port_list_text(*set, names), names, fault) == set, "port list");
    else
        fuzz::must(!fault.empty(), "a refusal has a reason");
    if (std::optional<int> port = read_port(text, names))
        fuzz::must(read_port(port_text(*port, names), names) == port, "port");
    if (std::optional<ModPort> at = read_mod_port(text, names)) {
        std::optional<ModPort> back = read_mod_port(mod_port_text(*at, names), names);
        fuzz::must(back && back->mod == at->mod && back->port == at->port, "module and port");
    }
    if (std::optional<std::uint32_t> mode = read_port_mode(text))
        fuzz::must(read_port_mode(port_mode_text(*mode, true)) == mode, "port mode");
    if (std::optional<std::int32_t> ability = read_long_reach(text))
        fuzz::must(read_long_reach(long_reach_text(*ability)) == ability, "long reach ability");
    return 0;
}
