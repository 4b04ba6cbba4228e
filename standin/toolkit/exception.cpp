#include "toolkit/exception.h"

namespace Lumo {

void throwRangeException(const char *text) { throw RangeException(text); }

}  // namespace Lumo
