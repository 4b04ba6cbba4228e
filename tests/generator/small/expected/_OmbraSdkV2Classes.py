"""The classes and callbacks of the SDK, as tables.

Made from all declarations by generator/emit/emit_proxy.cpp. Do not edit.
"""

# Structures, each with a line "name: type" for every field.
CLASSES = (
    ('tiny_pair_t', '''\
first: int
second: uint16
'''),
    ('tiny_all_t', '''\
s8: int8
s16: int16
color: tiny_color_t
u8: uint8
u16: uint16
u32: uint32
u64: uint64
address: tiny_address_t
yes: bool
name: char *
label: char const *
mac: tiny_mac_t
ports: tiny_pbmp_t
vector: unsigned int [2]
tags: uint16 [2][4]
pair: tiny_pair_t
pairs: tiny_pair_t [4]
next: tiny_pair_t *
cookie: void *
callback: tiny_cb
opaque: tiny_opaque_t
'''),
    ('tiny_any', '''\
low: uint8
whole: uint64
'''),
)

# Boxes, each with the structure in it, or None for a number.
BOXES = (
    ('intp', None),
)

# Opaque values: the class, the type, and other names of the class.
VALUES = (
    ('tiny_opaque_t', 'tiny_opaque_t', ()),
)

# Counted pointers of the platform: the class and the type.
HOLDERS = (
)

# Functions that call back with a cookie: the callback, its place, and the place of the cookie.
CALLBACKS = {
}
