// Dumps of a unit into files.
#pragma once
#include <cstdio>
#include <string>

#include "standin/regs/unit_state.h"

namespace standin {

// Writes in place, so that a device or a pipe will do. BCM_E_FAIL: not all of it was written.
inline int write_dump(const char *name, const std::string &text) {
    std::FILE *const file = std::fopen(name, "w");
    if (file == nullptr) return BCM_E_FAIL;
    const bool whole = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && whole ? BCM_E_NONE : BCM_E_FAIL;
}

// Writes what `make(unit)` gives, without the lock. BCM_E_PARAM: no name.
template <class Make>
int dump(const char *function, int unit, const char *name, Make &&make) {
    std::string text;
    const int status = on_unit(function, unit, Need::kDevice, [&](const Unit &view) {
        if (name == nullptr) return BCM_E_PARAM;
        text = make(view);
        return BCM_E_NONE;
    });
    return status < 0 ? status : write_dump(name, text);
}

}  // namespace standin
