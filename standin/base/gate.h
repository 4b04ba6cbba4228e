// What every call of the library passes: the gate of its function, a generated definition of the
// exported name. The function itself is `real_<name>` inside the library, which the sources call
// too, so that a call which the library makes of its own is nobody's.
//
// A closed gate is one load and a jump. All are open while a fault is set (faults.h) or calls are
// recorded (call_record.h): the call then has a place in which its arguments can be asked for.
#pragma once
#include <atomic>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <type_traits>

namespace standin {

struct GateRow {
    const char *name;
    const char *layer;       // who answers: a room of the stand-in, or a generic rule
    const char *parameters;  // "unit port value"
    bool takes_unit;         // as its first
};

// In the order of the declarations.
extern const std::span<const GateRow> gate_rows;
const GateRow *gate_row(std::string_view function);  // null for a name that is none

extern std::atomic<bool> gates_open;

// An argument as it arrived.
struct Given {
    enum class Form : std::uint8_t { kNumber, kAddress, kText, kMac, kOther };

    Form form = Form::kOther;
    std::int64_t number = 0;
    const void *address = nullptr;

    Given() = default;
    Given(Form what, const void *where) : form(what), address(where) {}
    template <class T>
    Given(const T &argument) {  // NOLINT: a conversion is what it is for
        if constexpr (std::is_integral_v<T> || std::is_enum_v<T>) {
            form = Form::kNumber;
            number = static_cast<std::int64_t>(argument);
        } else if constexpr (std::is_pointer_v<T>) {
            form = Form::kAddress;
            address = reinterpret_cast<const void *>(argument);
        }
    }
};

inline Given text(const char *argument) { return {Given::Form::kText, argument}; }
inline Given mac(const void *argument) { return {Given::Form::kMac, argument}; }

// A call of the caller's on its way, for as long as it runs.
class OpenCall {
  public:
    OpenCall(const GateRow &row, std::span<const Given> arguments, bool has_status);
    ~OpenCall();
    OpenCall(const OpenCall &) = delete;
    OpenCall &operator=(const OpenCall &) = delete;

    // What a fault answers in the place of the function; 0 for none.
    int fault() const { return fault_; }
    // What the function has answered, for the record.
    void close(std::int64_t result);

    const GateRow &row() const { return row_; }
    std::span<const Given> arguments() const { return arguments_; }
    // Whether the fault of the function was asked for: the function does not ask again.
    bool is_asked() const { return asked_; }

    // The innermost one of the thread, or null.
    static const OpenCall *current();

  private:
    const GateRow &row_;
    std::span<const Given> arguments_;
    OpenCall *outer_;
    bool asked_;
    int fault_ = 0;
    std::size_t recorded_ = 0;  // its number in the record, from 1
};

inline bool gates_shut() { return !gates_open.load(std::memory_order_relaxed); }

template <class R, class... A>
R pass(const GateRow &row, R (*real)(A...), std::initializer_list<Given> given,
       std::type_identity_t<A>... arguments) {
    constexpr bool kHasStatus = std::is_same_v<R, int>;
    OpenCall call(row, given, kHasStatus);
    if constexpr (kHasStatus)
        if (call.fault() != 0) return call.fault();
    if constexpr (std::is_void_v<R>) {
        real(arguments...);
    } else {
        R result = real(arguments...);
        if constexpr (std::is_integral_v<R> || std::is_enum_v<R>)
            call.close(static_cast<std::int64_t>(result));
        return result;
    }
}

}  // namespace standin
