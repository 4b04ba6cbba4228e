// Toolkit: how a value outside its range is reported.
#pragma once

#include <exception>
#include <stdexcept>

namespace Lumo {

// What throwRangeException() throws. Defined here and not in the library, so that a catch clause
// needs no symbol of it: a toolkit that throws something else is still a std::exception.
class RangeException : public std::out_of_range {
  public:
    using std::out_of_range::out_of_range;
};

// Throws a RangeException whose what() is `text`, copied. Never returns.
[[noreturn]] void throwRangeException(const char *text);

// True for what throwRangeException() throws, and for nothing else: an index error inside a
// library is a std::out_of_range too, but no value that a caller gave.
inline bool isRangeException(const std::exception &exception) noexcept {
    return dynamic_cast<const RangeException *>(&exception) != nullptr;
}

}  // namespace Lumo
