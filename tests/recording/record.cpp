// The record of each call: its arguments, and the answers that were set for it.
#include "tests/recording/record.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace recorder {
namespace {

struct Callback {
    unsigned index = 0;
    const unsigned char *entries = nullptr;
    std::size_t stride = 0;
    std::size_t count = 0;
};

struct Answers {
    std::uint64_t bits = 0;
    std::map<std::string, std::uint64_t> bits_of;
    std::string text;
    std::string block;
    std::array<std::string, RECORDING_ARGUMENTS> fills;
    Callback callback;
    bool throws = false;
};

// Never destroyed: modules can call until the process is gone.
Answers &answers() {
    static auto *const set = new Answers;
    return *set;
}

Lumo::Ptr<Lumo::PtrInterface> &held() {
    static auto *const object = new Lumo::Ptr<Lumo::PtrInterface>;
    return *object;
}

struct recording last;

// The bytes of the arguments of the last call. Room for any of them, so that nothing is allocated
// while a test counts allocations.
constexpr std::size_t kRoom = 1U << 16;
std::array<unsigned char, kRoom> room;
std::size_t used = 0;

unsigned char *keep(const void *source, std::size_t size) {
    if (size > kRoom - used) throw std::length_error("the recording has no room for an argument");
    unsigned char *const place = room.data() + used;
    std::memcpy(place, source, size);
    used += size;
    return place;
}

void note(const char *name, std::initializer_list<Given> arguments) {
    used = 0;
    ++last.calls;
    last.name = name;
    last.count = arguments.size();
    auto *noted = last.arguments;
    for (const Given &argument : arguments) {
        const bool number = argument.what == RECORDING_NUMBER || argument.what == RECORDING_ADDRESS;
        const void *source = number ? &argument.value : argument.source;
        noted->what = argument.what;
        noted->size = static_cast<std::uint32_t>(argument.size);
        noted->value = argument.value;
        noted->bytes = nullptr;
        if (argument.what == RECORDING_OBJECT)
            noted->bytes = static_cast<const unsigned char *>(source);
        else if (source != nullptr)
            noted->bytes = keep(source, argument.size);
        ++noted;
    }
}

void fill(std::initializer_list<Given> arguments) {
    std::size_t index = 0;
    for (const Given &argument : arguments) {
        const std::string bytes = std::exchange(answers().fills[index++], {});
        if (!bytes.empty() && argument.value != 0 && argument.what != RECORDING_NUMBER)
            std::memcpy(reinterpret_cast<void *>(argument.value), bytes.data(), bytes.size());
    }
}

void call_back(std::initializer_list<Given> arguments) {
    const Callback callback = answers().callback;
    if (callback.count == 0 || callback.index + 1 >= arguments.size()) return;
    const Given *given = arguments.begin();
    const auto function =
        reinterpret_cast<int (*)(int, const void *, void *)>(given[callback.index].value);
    for (std::size_t i = 0; function != nullptr && i < callback.count; ++i) {
        const int status =
            function(static_cast<int>(given[0].value), callback.entries + i * callback.stride,
                     reinterpret_cast<void *>(given[callback.index + 1].value));
        if (status != 0)
            throw std::runtime_error("the callback returned " + std::to_string(status));
    }
}

// An accessor that answers nothing.
class SilentAccess : public MdioHamImpl::HamImpl {
  public:
    SilentAccess()
        : HamImpl(Lumo::Name(Lumo::String("recorded")), Hardware::Mdio::BusId(0),
                  Hardware::Mdio::PortAddr(0)) {}

    int read(unsigned, unsigned, std::uint16_t *) override { return statusFail; }
    int write(unsigned, unsigned, std::uint16_t) override { return statusFail; }
};

// A new object, held here as well, or null.
template <typename Pointer, typename Made>
Pointer hand_out(std::uint64_t bits, Made make) {
    if (bits == 0) return nullptr;
    const Pointer object = Pointer::adopt(make());
    held() = object;
    return object;
}

}  // namespace

Given given(const MdioHamImpl::HamImpl::Ptr &argument) {
    static std::string name;
    if (!argument) return {RECORDING_OBJECT, 0, 0, nullptr};
    const std::size_t references = argument->references();
    name = argument->name().string().stdString();
    held() = argument;
    return {RECORDING_OBJECT, references, reinterpret_cast<std::uint64_t>(argument.get()),
            name.c_str()};
}

Given text(const char *argument) {
    return {RECORDING_TEXT, argument == nullptr ? 0 : std::strlen(argument),
            reinterpret_cast<std::uint64_t>(argument), argument};
}

std::uint64_t record(const char *name, std::size_t size, std::initializer_list<Given> arguments) {
    note(name, arguments);
    fill(arguments);
    call_back(arguments);
    if (answers().throws) throw std::runtime_error("recorded");
    const auto &own = answers().bits_of;
    const auto found = own.empty() ? own.end() : own.find(name);
    const std::uint64_t bits = found == own.end() ? answers().bits : found->second;
    return size >= sizeof bits ? bits : bits | ~std::uint64_t{0} << (8 * size);
}

void copy_block(void *result, std::size_t size) {
    const std::string &bytes = answers().block;
    std::memset(result, 0, size);
    std::memcpy(result, bytes.data(), std::min(size, bytes.size()));
}

template <>
Lumo::String answer<Lumo::String>(std::uint64_t) {
    return Lumo::String(answers().text);
}

template <>
Hardware::HardwareShadow::Ptr answer<Hardware::HardwareShadow::Ptr>(std::uint64_t bits) {
    return hand_out<Hardware::HardwareShadow::Ptr>(bits,
                                                   [] { return new Hardware::HardwareShadow(0); });
}

template <>
Hardware::ChipMemory::Ptr answer<Hardware::ChipMemory::Ptr>(std::uint64_t bits) {
    return hand_out<Hardware::ChipMemory::Ptr>(bits,
                                               [] { return new Hardware::ChipMemory({}, true); });
}

template <>
MdioHamImpl::HamImpl::Ptr answer<MdioHamImpl::HamImpl::Ptr>(std::uint64_t bits) {
    return hand_out<MdioHamImpl::HamImpl::Ptr>(bits, [] { return new SilentAccess; });
}

}  // namespace recorder

using recorder::answers;

const struct recording *recording_last() { return &recorder::last; }

void recording_reset() {
    recorder::last = {};
    answers() = {};
    recorder::held() = nullptr;
}

void recording_set_result(std::uint64_t bits) { answers().bits = bits; }

void recording_set_result_of(const char *name, std::uint64_t bits) {
    answers().bits_of[name] = bits;
}

void recording_set_text(const char *text, std::size_t size) {
    answers().text.assign(text, size);
    answers().bits = reinterpret_cast<std::uint64_t>(answers().text.c_str());
}

void recording_set_block(const void *bytes, std::size_t size) {
    answers().block.assign(static_cast<const char *>(bytes), size);
}

void recording_fill_pointer(unsigned index, const void *bytes, std::size_t size) {
    answers().fills.at(index).assign(static_cast<const char *>(bytes), size);
}

void recording_call_back(unsigned index, const void *entries, std::size_t stride,
                         std::size_t count) {
    answers().callback = {index, static_cast<const unsigned char *>(entries), stride, count};
}

void recording_throw(void) { answers().throws = true; }

std::uint64_t recording_object_references() {
    return recorder::held() ? recorder::held()->references() : 0;
}
