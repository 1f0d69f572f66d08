#pragma once
// What the load/store encoders share: the bits of a transfer word and the
// address operand forms. Register transfers (LDR, STR, PLD), multiple and
// exclusive transfers, and the coprocessor transfers all read addresses
// through these.
#include <cstdint>

#include "target/arm/instr.h"

constexpr uint32_t LDST_P = 1u << 24;   // pre-indexed: the offset applies before the access
constexpr uint32_t LDST_U = 1u << 23;   // the offset is added
constexpr uint32_t LDST_W = 1u << 21;   // write-back
constexpr uint32_t LDST_L = 1u << 20;   // load

// [Rn], #e and [Rn], Rm{, shift}.
constexpr bool LDST_is_post(const operand *op) {
  return op->kind == OP_INDPOSTE || op->kind == OP_INDPOSTS;
}
// [Rn, #e] and [Rn, Rm{, shift}].
constexpr bool LDST_is_pre(const operand *op) {
  return op->kind == OP_INDPREE || op->kind == OP_INDPRES;
}
// The base is updated: a post-indexed form, or a pre-indexed one with '!'.
constexpr bool LDST_writes_back(const operand *op) {
  return LDST_is_post(op) || (LDST_is_pre(op) && (op->op_mods & MOD_WRITEBACK));
}

// Rn at 16; PC as a base that is written back is refused.
void LDST_put_base(instruct *ir, const operand *addr, bool writeback);

// The signed offset of an immediate address form; outside [-limit, limit]
// it is reported and taken as 0.
int32_t LDST_imm_offset(instruct *ir, const operand *addr, int32_t limit);

// U for an offset that is added: neither a negative value nor a '-' before
// the register or value.
void LDST_put_sign(instruct *ir, const operand *addr, int64_t offset);

// The offset of a pc-relative address: #e is the offset itself, a label in
// this section its distance from the pc the state reads. A label elsewhere
// is refused (false); an offset outside [-limit, limit] is reported and
// taken as 0.
bool LDST_pcrel_offset(instruct *ir, operand *addr, int32_t limit, int32_t *offset);
