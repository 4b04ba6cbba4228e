// What g++ 12 calls and the C++ library of g++ 5 does not have, for the portable build alone. Not
// exported: each library that needs it carries its own.
#include <new>

namespace std {

[[gnu::visibility("hidden"), noreturn]] void __throw_bad_array_new_length();
void __throw_bad_array_new_length() { throw bad_array_new_length(); }

}  // namespace std
