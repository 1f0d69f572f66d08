#pragma once
// Thumb-2 modified constants: the 12-bit immediate of the data-processing
// instructions (i:imm3:imm8), which holds a byte, a byte repeated in one of
// three patterns, or a byte with its top bit set rotated by 8 to 31 places.
#include <cstdint>

// True if v has one of the forms of a modified constant.
bool is_modified_constant(uint32_t v);

// The rotated form alone: v is `byte` (0x80 to 0xFF) rotated right by
// `rotation` (8 to 31). False when v has no such form.
bool is_const_representable_in_mod_const(uint32_t v, uint32_t *byte, uint32_t *rotation);

// The 12-bit field of a modified constant (i:imm3:imm8, i on top); v must be
// one (is_modified_constant).
uint32_t t2_modified_constant_field(uint32_t v);
