// Frames in and out of a switch in memory, and why they went where they did: what a test can do
// that no agent can. C linkage, so that `ctypes` reaches them too.
#pragma once
#include "sdk/scalars.h"

extern "C" {

// Takes one copy of a frame that left `port`.
typedef void (*standin_frame_f)(void *context, int port, const uint8 *frame, int size);

// A frame arrives on a port. It has gone its whole way when the call returns: listeners have heard
// of it, and `sent` (which may be null) was called for each copy that left a port, in the order in
// which they left. BCM_E_PORT, BCM_E_PARAM for no frame.
int standin_packet_inject(int unit, int port, const uint8 *frame, int size, standin_frame_f sent,
                          void *context);

// What would become of the frame: a tree as text, or as JSON with one object a node
//
//     {"title": ..., "steps": [{"stage", "object", "text"}], "children": [...],
//      "outcome": "dropped", "reason": "stp_state", "object": ..., "port": 2, "frame": "hex"}
//
// Nothing is learned, counted or sent unless `real` is not 0. Null with a status for a call that is
// refused; valid until the next call on this thread.
const char *standin_packet_trace(int unit, int port, const uint8 *frame, int size, int json,
                                 int real, int *status);

// What passes the port is kept as a capture file: bit 1 of `sides` what comes in, bit 2 what goes
// out; 0 ends it and forgets the file.
int standin_packet_capture(int unit, int port, int sides);
// The file so far; valid until the next call on this thread. BCM_E_NOT_FOUND: there is none.
int standin_packet_capture_get(int unit, int port, const uint8 **file, int *size,
                               unsigned long long *left_out);

// Joins a port to a Linux interface, from now on and until it is left: what comes in by the
// interface arrives on the port, what the port sends goes out by it. This starts a thread; nothing
// else here does. BCM_E_EXISTS: one of the two is joined already; BCM_E_NOT_FOUND: there is no such
// interface; BCM_E_BUSY: the kernel uses it; BCM_E_UNAVAIL: this process may not. Why, says
// standin_last_refusal.
int standin_port_join(int unit, int port, const char *interface);
// Ends it. Waits for nobody: a frame that is being delivered may still be.
int standin_port_leave(int unit, int port);

// How many frames and copies ended for a reason. BCM_E_NOT_FOUND for a name that is none.
int standin_packet_ended(int unit, const char *reason, unsigned long long *count);
// The reasons: name, outcome, stage and sentence of one, parted by tabs. Null behind the last.
const char *standin_packet_reason(int index);
// How many frames a queue of a port has sent.
int standin_packet_queued(int unit, int port, int queue, unsigned long long *count);
// What came of the packets for the processor: taken, owned by a listener, wanted by nobody.
int standin_packet_received(int unit, unsigned long long *handled, unsigned long long *owned,
                            unsigned long long *unclaimed);
// How many packets and buffers were handed out for a unit (-1: for all) and never freed.
void standin_packet_unfreed(int unit, int *packets, int *buffers);
}
