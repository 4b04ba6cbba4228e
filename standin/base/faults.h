// Faults that a caller injects into the stand-in through the configuration store.
//
//     fault.<function>     what the next calls of that function answer
//     fault.table.<name>   how many entries that table may hold
//
// The value of `fault.<function>` is a list of items joined by commas:
//
//     status:<n>           the call answers <n> and changes nothing; 0 lets it go on
//     count:<n>            the next <n> calls only; the setting counts down in the store and
//                          leaves it with the last of them; without it every call is met
//     delay_us:<n>         the call sleeps <n> microseconds first, at most ten seconds
//
// The value of `fault.table.<name>` is `full`, so that each new entry is refused, or a number of
// entries. Tables: l2, vlan, stg, trunk, multicast, mirror, field_group, field_entry,
// field_stat, l3_intf, l3_egress, l3_multipath, l3_host, l3_route, policer.
//
// The store is the only state: what it shows is what is in force. It takes no setting of a fault
// that has a word in it which nobody understands.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace standin {

// Whether any `fault.` setting is there; asked again, it costs two atomic loads.
bool faults_armed();

// Status that the call of `function` has to answer, 0 when it runs as usual. Counts down and
// sleeps. REQUIRES: the model's lock is not held.
int fault_check(std::string_view function);

// The word of a setting that is not understood as a fault; nothing where all is, or where `name`
// does not begin with `fault.`.
std::optional<std::string> fault_misread(std::string_view name, std::string_view value);

// `usual`, or what `fault.table.<name>` puts in its place.
std::size_t table_capacity(std::string_view name, std::size_t usual);

}  // namespace standin
