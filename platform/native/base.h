/* Base: what every declaration stands on: fixed widths, linkage, enumerations, bit arrays. */
#pragma once

/* Declarations are plain C; under C++ they keep C linkage. */
#ifdef __cplusplus
#define OMBRA_BEGIN_DECLS extern "C" {
#define OMBRA_END_DECLS }
#else
#include <stdbool.h>
#define OMBRA_BEGIN_DECLS
#define OMBRA_END_DECLS
#endif

/*
 * OMBRA_ENUM(tag, name) declares an enumeration by its tag and its typedef. The enumerators are
 * constants of sdk/constants.h. Since codes come from outside and any 32-bit number may pass, the
 * width is fixed: a number beyond the known codes is a valid value.
 */
#ifdef __cplusplus
#define OMBRA_ENUM(tag, name) \
    enum tag : int;           \
    typedef enum tag name
#else
#define OMBRA_ENUM(tag, name) \
    typedef int tag;          \
    typedef int name
#endif

OMBRA_BEGIN_DECLS

typedef signed char int8;
typedef short int16;
typedef int int32;
typedef unsigned char uint8;
typedef unsigned short uint16;
typedef unsigned int uint32;

/* The compiler's own 64-bit integers, on x86-64 Linux. */
typedef long COMPILER_INT64;
typedef unsigned long COMPILER_UINT64;
typedef COMPILER_INT64 int64;
typedef COMPILER_UINT64 uint64;

/* A bit array is a row of these words: bit n is bit n % 32 of word n / 32. */
typedef uint32 SHR_BITDCL;

/* Words of a bit array of `bits` bits. */
#define _SHR_BITDCLSIZE(bits) (((bits) + 31) / 32)

OMBRA_END_DECLS
