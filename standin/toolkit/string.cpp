// The shared body behind texts and names, and formatted texts.
#include "toolkit/string.h"

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace Lumo {

// One block: this head, then the bytes.
struct String::Body {
    std::atomic<std::uint32_t> count = 1;
    std::uint32_t length;

    explicit Body(std::uint32_t size) : length(size) {}

    char *bytes() { return reinterpret_cast<char *>(this + 1); }

    // A body for `length` bytes, not yet written; null for none.
    static Body *make(std::size_t length) {
        if (length == 0) return nullptr;
        if (length > std::numeric_limits<std::uint32_t>::max()) throw std::bad_alloc();
        return ::new (::operator new(sizeof(Body) + length))
            Body(static_cast<std::uint32_t>(length));
    }

    static Body *share(Body *body) noexcept {
        if (body) body->count.fetch_add(1, std::memory_order_relaxed);
        return body;
    }

    static void drop(Body *body) noexcept {
        if (body && body->count.fetch_sub(1, std::memory_order_acq_rel) == 1)
            ::operator delete(body);
    }
};

String::String() noexcept : body_(nullptr) {}
String::String(Body *body) noexcept : body_(body) {}
String::String(const String &other) noexcept : body_(Body::share(other.body_)) {}
String::String(String &&other) noexcept : body_(std::exchange(other.body_, nullptr)) {}

String::String(std::string_view text) : body_(Body::make(text.size())) {
    if (body_) std::copy(text.begin(), text.end(), body_->bytes());
}

String &String::operator=(String other) noexcept {
    std::swap(body_, other.body_);
    return *this;
}

String::~String() { Body::drop(body_); }

bool String::empty() const noexcept { return body_ == nullptr; }

std::string String::stdString() const {
    return body_ ? std::string(body_->bytes(), body_->length) : std::string();
}

Name::Name(String text) noexcept : text_(std::move(text)) {}
Name::Name(const Name &other) noexcept = default;
Name::Name(Name &&other) noexcept = default;
Name::~Name() = default;

String format(const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    char *text = nullptr;
    const int length = vasprintf(&text, format, arguments);
    va_end(arguments);
    if (length < 0) throw std::bad_alloc();
    struct Release {
        char *text;
        ~Release() { std::free(text); }
    } const release{text};
    return String(std::string_view(text, static_cast<std::size_t>(length)));
}

}  // namespace Lumo
