// Made from all declarations by generator/emit/emit_rows.cpp. Do not edit.
#include "convert/frame_body.h"

namespace ombra {

template struct Call<ByValue<24, 4>(Signed32)>;
template struct Call<Signed32()>;
template struct Call<Signed32(Signed32, Signed32, Pointer)>;
template struct Call<Signed32(UnsignedLong)>;
template struct Call<Unsigned64(Address32)>;

}  // namespace ombra
