// The scanner of links.
//
// A port is scanned while the chip scans at all and the port has a mode. A scan compares the link
// with what it was at the last one, and raises an event where they differ. It happens as soon as
// the model changes something that the link depends on, so that nobody waits for a clock; on a port
// of the hardware's mode that takes an interrupt, which may be masked. Time that passes scans the
// ports of the software's mode, too: a handler that reads a link in our place sees what we do not.
#pragma once
#include <cstdint>

#include "sdk/bcm/port_types.h"
#include "standin/model/switch.h"

namespace standin {

enum class ScanCause : std::uint8_t {
    kChange,  // of the model
    kTime,    // that passes
    kCall     // a call asks for it, whatever the modes
};

void scan_link(Switch &chip, int port, ScanCause cause);

// Who reads the link of a port that has something outside the chip behind it, such as an external
// PHY: set by the layer that knows of it. `reads` is asked with the model's lock held, `read`
// without; a negative answer is a failure, after which the link is what it was.
struct OutsideLink {
    bool (*reads)(int unit, int port) = nullptr;
    int (*read)(int unit, int port, int *link) = nullptr;
    void (*note_down)(Switch &chip, int port) = nullptr;  // with the lock held
};
extern OutsideLink outside_link;

// To be called after whatever may have changed the link of a port.
inline void note_link(Switch &chip, int number) {
    const Port &port = *chip.ports.find(number);
    if (port.link() == 0 && outside_link.note_down != nullptr) outside_link.note_down(chip, number);
    if (port.link() != port.scanned_link) scan_link(chip, number, ScanCause::kChange);
}

// The scans that are due once the chip's clock has moved.
void scan_due_links(Switch &chip);

// What bcm_port_info_get tells.
bcm_port_info_t port_info(Switch &chip, int number);

}  // namespace standin
