#pragma once
// What the class encoders share: the statement's bits, the operations on
// immediates and pc-relative targets, and the state they report into.
#include <cstdint>

#include "target/arm/instr.h"

struct value_record;

// Branch kind of the instruction for debug information: 0 none, 1 call,
// 2 return, 3 C-return pseudo, 4 indirect jump, 5 a load or move into PC.
extern uint32_t br_type;
// Which instruction sets the object uses (build attributes).
extern uint8_t ba_arm_isa_use;
extern uint8_t ba_thumb_isa_use;
extern uint8_t ba_thumb2_isa_use;

// Builds the statement's bits in ir->ior: the dispatch by ic_id, the
// modifier and condition fields (TRG_encode calls it in pass 2).
void encode_krv616_ins(instruct *ir);

// ---- The statement's bits -----------------------------------------------------
// Every field goes in through ENC_put: a value wider than its field is a fault
// of the encoder (an internal error), never silently cut. Thumb-2 words are
// built as one 32-bit value with the first halfword in bits 16 to 31.

void ENC_put(instruct *ir, unsigned bit, unsigned width, uint32_t value);
// ORs bits into the word (for single flag bits and whole base words).
void ENC_set(instruct *ir, uint32_t bits);
// Clears bits of the word.
void ENC_clear(instruct *ir, uint32_t bits);
// The word built so far.
uint32_t ENC_word(const instruct *ir);

// ---- Shared operations ----------------------------------------------------------

// The 12-bit rotated form of an 8-bit immediate ((rotation / 2) << 8 | byte),
// with the smallest rotation; false when the value has none.
bool ENC_rotated_imm(uint32_t value, uint32_t *field);

// The field of a register shifted by an immediate (Rm, type, amount) for data
// processing and register offsets; reports a bad count and returns the field
// as far as it goes.
uint32_t ENC_shifted_reg_imm(instruct *ir, const operand *op);

// pc-relative resolution of a symbolic target at address pc. `reloc` is the
// generic relocation type (0 none). A relocation is emitted when one is given,
// else the value becomes the distance to pc. The value left in the operand is
// what goes into the field. False after a message.
bool ENC_pcrel(instruct *ir, operand *op, uint32_t pc, uint32_t reloc, short field_size,
               unsigned field_offset);

// Range check with scaling of op's value: low `shift` bits must be clear, the
// value must fit `width` bits after scaling (signed or not). On success the
// value is shifted right by `shift`. On failure the message is given and the
// value becomes 0. Returns the value.
int64_t ENC_range(instruct *ir, operand *op, unsigned shift, unsigned width, bool is_signed);

// Distance of a label in the current section from the pc the state reads: pc
// + 8 in ARM state, pc + 4 in Thumb-16, (pc + 4) & ~3 in a Thumb-2 slot. False
// (after "Address must be defined in the current section") when the label
// lies elsewhere.
bool ENC_label_offset(instruct *ir, const operand *op, int32_t *offset);

// Offset of a coprocessor or doubleword address: [-1023, 1023] in words; the
// absolute value / 4 is returned and *up tells the sign.
uint32_t compute_offset8pm(instruct *ir, operand *op, bool *up);

// The integer of an operand's value, as the encoders read it.
int64_t ENC_value(const operand *op);
