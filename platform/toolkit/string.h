// Toolkit: text that is shared, not copied.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

namespace Lumo {

// Immutable text. Copies share one body, which begins with its 32-bit count; the empty text has
// none. Copies may be made and dropped on any thread.
class String {
  public:
    String() noexcept;
    // Copies `text`, which may hold zero bytes. Throws std::bad_alloc.
    explicit String(std::string_view text);
    String(const String &other) noexcept;
    String(String &&other) noexcept;
    String &operator=(String other) noexcept;
    ~String();

    bool empty() const noexcept;

    // The text as a string of its own, zero bytes included. Throws std::bad_alloc.
    std::string stdString() const;

  private:
    struct Body;

    explicit String(Body *body) noexcept;
    friend String format(const char *, ...);

    Body *body_;
};

// The name of an object: a text with a type of its own.
class Name {
  public:
    explicit Name(String text) noexcept;
    Name(const Name &other) noexcept;
    Name(Name &&other) noexcept;
    Name &operator=(const Name &) = delete;
    ~Name();

    const String &string() const noexcept { return text_; }

  private:
    String text_;
};

// printf into a new text. Throws std::bad_alloc.
[[gnu::format(printf, 1, 2)]] String format(const char *format, ...);

// One word, and not trivial: both are passed and returned by hidden address.
static_assert(sizeof(String) == sizeof(void *) && !std::is_trivially_copyable_v<String>);
static_assert(sizeof(Name) == sizeof(void *) && !std::is_trivially_copyable_v<Name>);

}  // namespace Lumo
