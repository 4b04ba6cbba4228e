// Commands that put frames on ports, and ask what becomes of them.
#include <array>

#include "sdk/constants.h"
#include "standin/base/output.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/chapters/packet_hooks.h"
#include "standin/shell/commands.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

constexpr RowColumn kCopyColumns[] = {{"port", "Port", CellKind::kNumber},
                                      {"size", ">Bytes", CellKind::kNumber},
                                      {"frame", "Frame", CellKind::kText}};
constexpr RowColumn kReasonColumns[] = {{"reason", "Reason", CellKind::kText},
                                        {"outcome", "Outcome", CellKind::kText},
                                        {"count", ">Count", CellKind::kNumber},
                                        {"meaning", "Meaning", CellKind::kText}};

int digit_of(char c) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const auto at = kDigits.find(lower_case(std::string(1, c)));
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

// The bytes of pairs of hexadecimal digits, parted by colons or not; none for anything else.
std::vector<uint8> bytes_of(const std::string &text) {
    std::vector<uint8> bytes;
    for (std::size_t at = 0; at < text.size(); at += 2) {
        if (text[at] == ':') ++at;
        const int high = at < text.size() ? digit_of(text[at]) : -1;
        const int low = at + 1 < text.size() ? digit_of(text[at + 1]) : -1;
        if (high < 0 || low < 0) return {};
        bytes.push_back(static_cast<uint8>(high << 4 | low));
    }
    return bytes;
}

std::string hex_of(const uint8 *bytes, int size) {
    std::string text;
    for (int i = 0; i < size; ++i) text += text_of("%02x", bytes[i]);
    return text;
}

cmd_result_t packet_inject(CommandCall &call) {
    const std::vector<uint8> frame = bytes_of(call.text("FRAME"));
    if (frame.empty()) return refuse(call, "the frame is no pairs of hexadecimal digits");
    struct Copies {
        PortNames names;
        Rows rows = Rows(kCopyColumns);
    } copies{unit_ports(call.unit())};
    const auto show = [](void *context, int port, const uint8 *bytes, int size) {
        auto &all = *static_cast<Copies *>(context);
        all.rows.row({port_cell(port, all.names), size, hex_of(bytes, size)});
    };
    const int status =
        standin_packet_inject(call.unit(), plain_port(static_cast<int>(call["PORT"].number)),
                              frame.data(), static_cast<int>(frame.size()), show, &copies);
    if (status == BCM_E_NONE) copies.rows.show();
    return report(call, status);
}

cmd_result_t packet_trace(CommandCall &call) {
    const std::vector<uint8> frame = bytes_of(call.text("FRAME"));
    if (frame.empty()) return refuse(call, "the frame is no pairs of hexadecimal digits");
    int status = BCM_E_NONE;
    const char *const text = standin_packet_trace(
        call.unit(), plain_port(static_cast<int>(call["PORT"].number)), frame.data(),
        static_cast<int>(frame.size()), call.flag("data"), call.flag("real"), &status);
    if (text != nullptr) out(text);
    if (text != nullptr && call.flag("data")) out("\n");
    return report(call, status);
}

cmd_result_t packet_reasons(CommandCall &call) {
    Rows rows(kReasonColumns);
    for (int i = 0; const char *const row = standin_packet_reason(i); ++i) {
        std::array<std::string, 4> parts;  // name, outcome, stage, sentence
        std::size_t part = 0;
        for (const char *at = row; *at != '\0'; ++at)
            if (*at == '\t')
                ++part;
            else
                parts[part] += *at;
        unsigned long long count = 0;
        const int status = standin_packet_ended(call.unit(), parts[0].c_str(), &count);
        if (status != BCM_E_NONE) return report(call, status);
        if (count > 0 || call.flag("all")) rows.row({parts[0], parts[1], count, parts[3]});
    }
    rows.show();
    return kOk;
}

constexpr Param kPlaces[] = {
    place("PORT", Kind::kPort, "The port on which it arrives").need(),
    place("FRAME", Kind::kText, "Its bytes, from the address on, as hexadecimal digits").need()};
constexpr Param kTrace[] = {kPlaces[0], kPlaces[1], flag("data", "As data in place of lines"),
                            flag("real", "And let it go its way")};
constexpr Param kAll[] = {flag("all", "Those too for which none has ended")};
constexpr Form kForms[] = {
    {"inject", "A frame arrives on a port: the copies that leave",
     "packet inject xe1 02000000000202000000000188b50000", packet_inject, kPlaces, kCopyColumns},
    {"trace", "What would become of a frame, and why",
     "packet trace xe1 02000000000202000000000188b50000", packet_trace, kTrace},
    {"reasons", "For which reasons frames have ended", "packet reasons all", packet_reasons, kAll,
     kReasonColumns}};
constexpr Command kPacket = {"packet", "Frames on ports, and what becomes of them", kForms,
                             "reasons"};

constexpr const Command *kCommands[] = {&kPacket};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> packet_commands() { return kCommands; }

}  // namespace standin
