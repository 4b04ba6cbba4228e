// Made from all declarations by generator/emit/emit_rows.cpp. Do not edit.
#include "convert/frame_body.h"

namespace ombra {

template struct AppendCall<Signed32(Signed32)>;
template struct Call<Pointer(Signed32)>;
template struct Call<Signed32(Signed32, Pointer, Pointer)>;
template struct Call<Signed32(Text, Pointer, Pointer, Pointer, FunctionPointer)>;
template struct Call<Unsigned32(Reference, Signed32)>;

}  // namespace ombra
