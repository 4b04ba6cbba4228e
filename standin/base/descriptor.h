// Writing to a descriptor that a reader of this very process may never empty.
#pragma once

namespace standin {

// Bytes that a descriptor which wait_writable took is sure to take without a wait.
inline constexpr int kSureBytes = 4096;

// Waits until `fd` takes more. False when it is a full pipe whose reader is this process: what
// calls the library holds the interpreter lock, so that reader may well wait for the writer.
bool wait_writable(int fd);

}  // namespace standin
