#pragma once
// What the 16-bit Thumb encoders share: the register checks, the field checks
// of immediates, offsets, branches and addresses, and the building of the
// long branch forms. A failed check gives its message and 0 for the field;
// the statement keeps its length.
#include <cstdint>

#include "target/arm/instr.h"

// Scratch immediate: the load and store encoders copy an address offset into
// it to run the immediate checks on it.
extern operand icon_op;

// Sets icon_op to the integer `value`, with the modifiers `mods`.
operand *T16_icon(int64_t value, uint16_t mods = 0);

// ---- Registers -------------------------------------------------------------------

// A core register operand; anything else is "Illegal operand".
bool T16_is_reg(const operand *op);
// The register of op when it is R0 to R7; otherwise `message` ("E0004", or
// "Illegal operand" for a non-register) and false.
bool T16_low_reg(instruct *ir, const operand *op, const char *message);
// Writes the four bits of a register whose high bit sits apart from its low
// three (the 0x44xx, 0x45xx, 0x46xx forms): low bits at `low_at`, high at `high_at`.
void T16_put_split_reg(instruct *ir, unsigned reg, unsigned low_at, unsigned high_at);

// ---- Field checks -------------------------------------------------------------------

// Immediate of `width` bits at `bit`, unsigned. With `swap`, a value whose
// negation fits turns ADD (top five bits 6) into SUB (7) and back.
uint32_t T16_unsigned_field(instruct *ir, operand *op, unsigned bit, unsigned width, bool swap = false);
// Word offset of `width` bits after scaling by 4, at `bit`.
uint32_t T16_word_field(instruct *ir, operand *op, unsigned bit, unsigned width);
// Signed halfword offset of a branch, `width` bits after scaling. A symbolic
// target is resolved against `pc` + 4 with the relocation `reloc` (0: none, and
// the target must then lie in this section); a plain number is the offset.
// Returns the scaled offset (0 after a message).
int32_t T16_branch_field(instruct *ir, operand *op, uint32_t pc, unsigned width, uint32_t reloc);
// Unsigned word offset of an address (ADR, LDR of a label) from (pc + 4) & ~3,
// eight bits after scaling, without relocation.
uint32_t T16_address_field(instruct *ir, operand *op);

// ---- Long branch forms ----------------------------------------------------------------

// The halfword that leads a long conditional branch: the inverted condition,
// jumping over the rest of a `length`-byte form.
uint16_t T16_skip_half(uint8_t cond, unsigned length);
// The two halfwords of a 22-bit branch with link (`exchange`: BLX), from the
// scaled offset.
void T16_link_halves(int32_t offset, bool exchange, uint16_t out[2]);
// Writes a halfword that goes ahead of the statement's own (the first parts
// of a long form) straight to the section, with the statement's listing mark;
// nothing in a trial encoding.
void T16_emit_leading_half(instruct *ir, uint16_t half);
