// A Linux network interface as the other end of a port: every frame that comes in by it, and
// frames to send out of it.
//
// What stands between the frames of the wire and those of the kernel is undone here: the tag that
// it keeps in a control message, our own frames that it hands back, checksums that it left to a
// card, segments that it did not cut. On the interface itself its own protocols are silenced, and
// what they were set to comes back in the end.
#pragma once
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "standin/pipeline/bytes.h"

namespace standin {

class Wire {
  public:
    // Null with a status and a sentence: BCM_E_NOT_FOUND, there is no such interface; BCM_E_BUSY,
    // it has addresses or is part of a bridge, so that the kernel would forward beside the switch;
    // BCM_E_UNAVAIL, this process may not have it.
    static std::unique_ptr<Wire> open(const std::string &interface, int &status, std::string &why);
    ~Wire();
    Wire(const Wire &) = delete;
    Wire &operator=(const Wire &) = delete;

    // The next frames, without waiting; none if there are none. False: the interface is gone.
    bool receive(std::vector<Bytes> &frames);
    // Drops what the interface does not take at once.
    void send(View frame);

    int descriptor() const { return socket_; }
    const std::string &interface() const { return interface_; }

    // Gives the interface back to the kernel as it was.
    void restore();

  private:
    Wire(std::string interface, int socket) : interface_(std::move(interface)), socket_(socket) {}
    void silence();

    std::string interface_;
    int socket_;
    std::vector<std::pair<std::string, std::string>> before_;  // settings, as they were
    std::vector<std::uint8_t> buffer_ = std::vector<std::uint8_t>(70'000);
};

}  // namespace standin
