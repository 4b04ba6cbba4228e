// The exception for a value outside its range, thrown out of line.
#include "toolkit/exception.h"

namespace Lumo {

void throwRangeException(const char *text) { throw RangeException(text); }

}  // namespace Lumo
