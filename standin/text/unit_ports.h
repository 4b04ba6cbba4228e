// The ports of a unit, with their names, as the library's own calls tell them.
#pragma once

#include "native/values.h"
#include "standin/text/port_text.h"

namespace standin {

// Empty for a unit that is not attached or not initialised.
PortNames unit_ports(int unit);

inline PortSet port_set_of(const _shr_pbmp_t &pbmp) { return port_set(pbmp.pbits); }
inline _shr_pbmp_t pbmp_of(const PortSet &set) {
    _shr_pbmp_t pbmp{};
    port_words(set, pbmp.pbits);
    return pbmp;
}

}  // namespace standin
