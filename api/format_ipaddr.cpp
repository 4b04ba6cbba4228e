// format_ipaddr: its text argument is an inline array, which the row fills and the caller never
// sees again.

#include <array>

#include "api/hand_rows.h"
#include "convert/frame_body.h"
#include "native/values.h"
#include "sdk/diag/format.h"

namespace ombra {
namespace {

// At most 15 characters and the terminator, the rest of the array zero. Whatever is wrong with the
// argument, it is a TypeError.
class AddressText {
  public:
    using Native = char *;

    bool read(PyObject *object, const CallRow &row, unsigned index) {
        char *text = nullptr;
        std::size_t size = 0;
        int alloc = 0;
        const int status = SWIG_AsCharPtrAndSize(object, &text, &size, &alloc);
        if (status < 0 || size > buffer_.size()) return refuse(row, index, STATUS_TYPE);
        if (text != nullptr) std::memcpy(buffer_.data(), text, size);
        return true;
    }

    Native native() const { return const_cast<char *>(buffer_.data()); }

  private:
    std::array<char, IPADDR_STR_LEN> buffer_{};
};

}  // namespace

namespace rows {

PyObject *format_ipaddr(const CallRow &row, PyObject *args) {
    return call_with<AddressText, ByValue<sizeof(ip_addr_t), alignof(ip_addr_t)>>(
        row, args, [](char *text, Blob<sizeof(ip_addr_t), alignof(ip_addr_t)> bytes) {
            ip_addr_t address = 0;
            std::memcpy(&address, &bytes, sizeof address);
            ::format_ipaddr(text, address);
            Py_RETURN_NONE;
        });
}

}  // namespace rows
}  // namespace ombra
