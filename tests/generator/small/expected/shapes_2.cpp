// Made from all declarations by generator/emit/emit_rows.cpp. Do not edit.
#include "convert/frame_body.h"

namespace ombra {

template struct Call<Int32(Int32, Int32, Int32)>;
template struct Call<Int32(Int32, Pointer, Pointer)>;
template struct Call<Object(Int32)>;
template struct Call<UInt32(Reference, Int32)>;

}  // namespace ombra
