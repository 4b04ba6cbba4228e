// Any bytes as names of constants, and as references to registers and memories.
#include "fuzz.h"
#include "standin/text/identifier_text.h"
#include "standin/text/name_text.h"

using namespace standin;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::string_view text = fuzz::text_of(data, size);
    for (const NameFamily *names :
         {&field_qualifier_names(), &field_action_names(), &field_olp_header_names()}) {
        std::optional<std::int32_t> value = names->value(text);
        fuzz::must(!value || names->value(names->name(*value, true)) == value, "brief name");
        fuzz::must(!value || names->value(names->name(*value, false)) == value, "full name");
        auto members = read_name_list(*names, text, 961);
        for (std::int32_t member : members.value_or(std::vector<std::int32_t>()))
            fuzz::must(member >= 0 && member < 961, "a member is below the limit");
    }
    if (std::optional<MemoryRef> ref = read_memory_ref(text)) {
        std::optional<MemoryRef> back = read_memory_ref(memory_ref_text(*ref));
        fuzz::must(back && back->memory == ref->memory && back->copy == ref->copy &&
                       back->array_index == ref->array_index,
                   "memory");
    }
    if (std::optional<RegisterRef> ref = read_register_ref(text, {{1, "xe1"}, {2, "xe2"}}))
        fuzz::must(!ref->ports.empty() && ref->index.low <= ref->index.high, "register");
    read_cmic_register(text);
    return 0;
}
