// Made from all declarations by generator/emit/emit_rows.cpp. Do not edit.
#include "convert/frame_body.h"

namespace ombra {

template struct AppendCall<Int32(Int32)>;
template struct Call<Int32(Int32, Int32, Pointer, Pointer)>;
template struct Call<Int32(ULong)>;
template struct Call<StrictBool(Int32)>;
template struct Call<Value<24, 4>(Int32)>;

}  // namespace ombra
