// Made from all declarations by generator/emit/emit_rows.cpp. Do not edit.
#include "convert/frame_body.h"

namespace ombra {

template struct Call<Int32()>;
template struct Call<Int32(Int32, Pointer)>;
template struct Call<Int32(Value<8, 4>, Value<24, 4>, MacText, PortList)>;
template struct Call<Text(Int32)>;
template struct Call<Void(Int8, Int16, Int32, UInt8, UInt16, UInt32, UInt64, StrictBool)>;

}  // namespace ombra
