// The recording SDK: a library in the place of the chip SDK and the helper library, whose every
// function notes how it was called and answers what a test has set. This is its face for tests, in
// C, so that ctypes can use it; the definitions of all functions are generated.
//
// There is one record, that of the last call, and one set of answers, which every function gives
// until recording_reset(). Tests run under the interpreter lock: nothing here is locked.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum { RECORDING_ARGUMENTS = 12 };

enum recording_what {
    RECORDING_NUMBER,   // value: the number, extended to 64 bits as the declared type says
    RECORDING_ADDRESS,  // value: the address
    RECORDING_TEXT,     // value: the address; bytes: a copy of the text, size without terminator
    RECORDING_BYTES,    // by-value structures and MAC addresses; value: where they lay
    RECORDING_OBJECT    // a counted pointer; value: the object; size: its references during the
                        // call, that of the argument included; bytes: its name
};

struct recording_argument {
    uint32_t what;
    uint32_t size;  // bytes of the native value
    uint64_t value;
    const unsigned char *bytes;  // the native value as it arrived; null behind a null address
};

struct recording {
    uint64_t calls;    // since recording_reset()
    const char *name;  // "bcm_l2_addr_add", "TesselApi::tableBaseAddr"; null before the first call
    uint64_t count;    // arguments of the last call
    struct recording_argument arguments[RECORDING_ARGUMENTS];
};

// The record, always at the same place.
const struct recording *recording_last(void);

// Forgets calls and answers, and drops the counted objects that are held. The answers are then: 0,
// null or a zeroed structure, nothing written through pointers, no callback, no exception.
void recording_reset(void);

// The bits of a result. A function whose result is narrower takes the low bits, and leaves every
// bit of the result register above them set: the caller may rely on none of them. For a text or a
// pointer this is the address, for a counted pointer whether there is an object.
void recording_set_result(uint64_t bits);

// The same for one function only, in the place of the bits for all.
void recording_set_result_of(const char *name, uint64_t bits);

// A text result: the bytes are copied, and a zero byte is put behind them.
void recording_set_text(const char *text, size_t size);

// The bytes of a by-value result that no register holds; behind them it is zero.
void recording_set_block(const void *bytes, size_t size);

// What the next call writes through its pointer argument `index` (from 0), unless that is null: an
// output that Python does not see, for instance. The bytes are copied. Only the next call does it:
// a row that calls a second function passes other pointers.
void recording_fill_pointer(unsigned index, const void *bytes, size_t size);

// Makes each call that has a callback of the form `int (*)(int, T *, void *)` at `index` call it
// `count` times, with the call's first argument, `entries` and so on by `stride` bytes, and the
// argument behind the callback. Its results have to be 0. The entries stay the caller's.
void recording_call_back(unsigned index, const void *entries, size_t stride, size_t count);

// Each call throws std::runtime_error("recorded") after it was recorded. What else may be thrown is
// tried by tests/echo.
void recording_throw(void);

// The counted object that was handed out or taken in last is held until recording_reset(): its
// references, or 0 when there is none.
uint64_t recording_object_references(void);

#ifdef __cplusplus
}
#endif
