// Made from all declarations by generator/emit/emit_rows.cpp. Do not edit.
#include "convert/frame_body.h"

namespace ombra {

template struct Call<Int32(Int32, Int32, Pointer)>;
template struct Call<Int32(Text, Pointer, Pointer, Pointer, FunctionPointer)>;
template struct Call<Pointer(Int32)>;
template struct Call<UInt64(Address32)>;

}  // namespace ombra
