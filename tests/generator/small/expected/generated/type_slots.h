// Made from catalogue/types.txt by generator/emit/emit_tables.cpp. Do not edit.
#pragma once

namespace slots {

inline constexpr unsigned _p_COMPILER_UINT64 = 0;
inline constexpr unsigned _p_a__4___uint16p = 1;
inline constexpr unsigned _p_a__4___unsigned_short = 2;
inline constexpr unsigned _p_f_int_p_void__int = 3;
inline constexpr unsigned _p_f_int_p_void__intp = 4;
inline constexpr unsigned _p_int = 5;
inline constexpr unsigned _p_intp = 6;
inline constexpr unsigned _p_tiny_all_t = 7;
inline constexpr unsigned _p_tiny_any = 8;
inline constexpr unsigned _p_tiny_opaque_t = 9;
inline constexpr unsigned _p_tiny_pair_s = 10;
inline constexpr unsigned _p_uint16p = 11;
inline constexpr unsigned _p_uintp = 12;
inline constexpr unsigned _p_unsigned_char = 13;
inline constexpr unsigned _p_unsigned_int = 14;
inline constexpr unsigned _p_unsigned_short = 15;
inline constexpr unsigned _p_void = 16;
inline constexpr unsigned any_pointer = 17;

}  // namespace slots
