// Made from catalogue/constants.txt by generator/emit/emit_tables.cpp. Do not edit.
#pragma once

#ifdef __cplusplus
inline constexpr int tinyFirst = 0;
inline constexpr int tinyLast = 63;
inline constexpr int tinyLeast = -2147483647;
#else
enum {
    tinyFirst = 0,
    tinyLast = 63,
    tinyLeast = -2147483647,
};
#endif
