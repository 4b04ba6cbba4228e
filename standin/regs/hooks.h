// What a test may do with registers and the shadow that no agent can.
#pragma once

extern "C" {

// Forgets what was set for all units, and every object of a shadow or a table that is kept for
// them. The words of a chip go when its device does, by standin_reset().
void standin_shadow_reset(void);

// How many words of the unit the shadow has now; -1 for no such unit.
int standin_shadow_words(int unit);

// `name` is one of configured, pci, forced, sim; 0 or 1, and -1 for another name.
int standin_shadow_value(const char *name);
}
