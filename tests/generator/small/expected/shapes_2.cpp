// Made from all declarations by generator/emit/emit_rows.cpp. Do not edit.
#include "convert/frame_body.h"

namespace ombra {

template struct Call<Nothing(Signed8, Signed16, Signed32, Unsigned8, Unsigned16, Unsigned32, Unsigned64, StrictBool)>;
template struct Call<Signed32(ByValue<8, 4>, ByValue<24, 4>, MacString, PortBitmap)>;
template struct Call<Signed32(Signed32, Signed32, Pointer, Pointer)>;
template struct Call<StrictBool(Signed32)>;

}  // namespace ombra
