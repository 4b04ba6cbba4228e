// Faults that a caller injects into the stand-in through the configuration store.
//
//     fault.<function>             what the next calls of that function answer
//     fault.callback.<function>    what the function given to that one answers, uncalled
//     fault.table.<name>           how many entries that table may hold
//
// The value of the first two is a list of items joined by commas:
//
//     status:<n>           the call answers <n> and changes nothing; 0 lets it go on
//     after:<n>            <n> calls pass first
//     count:<n>            the next <n> calls only; the setting counts down in the store and
//                          leaves it with the last of them; without it every call is met
//     delay_us:<n>         the call sleeps <n> microseconds first, at most ten seconds
//     unit:<n>             calls of that unit only
//     arg.<name>:<n>       calls with that number for the argument of that name only, 0 for an
//                          address that is null; of the user, and not of the library itself
//
// Calls that it is not about do not count. The value of `fault.table.<name>` is `full`, so that
// each new entry is refused, or a number of entries, of which there are no more yet. Tables: those
// of the model by their own names (tables.h of the model), those of other calls by their family.
//
// The store is the only state: what it shows is what is in force. It takes no setting of a fault
// that names no function, table or argument, or has a word in it which nobody understands.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

constexpr int kAnyUnit = -1;

// Whether any `fault.` setting is there; it costs an atomic load.
bool faults_armed();

// Status that the call of `function` has to answer, 0 when it runs as usual. Counts down and
// sleeps. A call whose gate has asked already is not met again. REQUIRES: the model's lock is not
// held.
int fault_check(std::string_view function, int unit = kAnyUnit);

// The same for the function that was given to `function`: a status other than 0 stands for its
// answer, and it is not called.
int callback_fault_check(std::string_view function, int unit = kAnyUnit);

// What is wrong with a setting as a fault, in words; nothing where all is well, or where `name`
// does not begin with `fault.`.
std::optional<std::string> fault_misread(std::string_view name, std::string_view value);

// `usual`, or what `fault.table.<name>` puts in its place.
std::size_t table_capacity(std::string_view name, std::size_t usual);

// How many entries the fullest table of that name has; nothing if there is no such table. The model
// gives it.
using TableLookup = std::optional<std::size_t> (*)(std::string_view name);
void set_table_lookup(TableLookup lookup);

// Opens or closes the gates, as faults and the record ask for; after each change of one of them.
void set_gates();

// For the store: a fault was set, all were taken back.
void note_fault(std::string_view name, std::string_view value);
// The faults set since forget_faults() that no call has met, as "bcm_l2_addr_add (status:-6)".
std::vector<std::string> faults_never_met();
void forget_faults();

}  // namespace standin
