// Any bytes as a configuration file.
#include "fuzz.h"
#include "standin/base/config_file.h"

using namespace standin;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    ConfigText read = parse_config_text(fuzz::text_of(data, size));
    std::string text;
    for (const ConfigEntry &entry : read.entries) {
        fuzz::must(config_name_ok(entry.name) && entry.line > 0, "an entry has a name and a line");
        text += format_config_line(entry.name, entry.value);
    }
    for (const ConfigFault &fault : read.faults)
        fuzz::must(fault.line > 0 && !fault.text.empty(), "a fault has a line and a text");
    ConfigText again = parse_config_text(text);
    fuzz::must(again.faults.empty() && again.entries.size() == read.entries.size(),
               "what is written is read back");
    for (std::size_t at = 0; at < read.entries.size(); ++at) {
        fuzz::must(again.entries[at].name == read.entries[at].name &&
                       again.entries[at].value == read.entries[at].value,
                   "a setting survives its line");
    }
    return 0;
}
