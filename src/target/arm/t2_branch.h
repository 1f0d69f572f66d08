#pragma once
// Fields of the Thumb-2 branch and IT words that other steps build too.
#include <cstdint>

#include "target/arm/instr.h"

// The 24-bit offset (halfwords) of a B.W, BL or BLX word: S, J1, J2, imm10
// and imm11.
void ENC_put_t2_branch24(instruct *ir, uint32_t offset);

// The four-bit mask of an IT statement, from its letter groups in ia_flags
// and the low bit of its condition.
uint32_t thumb2_get_ifte_mask(const instruct *ir);

// Letters behind IT (ITTE: 2).
unsigned it_letter_count(const instruct *ir);
