// Made from all declarations by generator/emit/emit_rows.cpp. Do not edit.
#include "convert/frame_body.h"

namespace ombra {

template struct Call<Object(Signed32)>;
template struct Call<Signed32(Signed32, Pointer)>;
template struct Call<Signed32(Signed32, Signed32, Signed32)>;
template struct Call<Text(Signed32)>;

}  // namespace ombra
