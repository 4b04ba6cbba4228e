// The end of the process at a condition that does not hold.
#include "runtime/assertions.h"

#include <cstdio>
#include <cstdlib>

namespace ombra {

void assertion_failed(const char *condition, const char *function) {
    std::fflush(stdout);
    std::fprintf(stderr, "TesselApiV2New_wrap: %s: Assertion `%s' failed.\n", function, condition);
    std::fflush(stderr);
    std::abort();
}

}  // namespace ombra
