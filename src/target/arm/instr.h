#pragma once
// An instruction statement as the parser leaves it for the encoders: the
// letters of its suffix, its condition, and the shapes of its operands.
#include <cstdint>

#include "driver/records.h"
#include "target/arm/opcodes.h"

// Letters of the mnemonic's suffix, in instruct::ia_flags.
enum : uint32_t {
  IF_B = 0x1,
  IF_H = 0x2,
  IF_SX = 0x4,          // S before H or B: signed load
  IF_L = 0x8,           // long coprocessor transfer
  IF_AM = 0xF0,         // addressing mode, AM_* << 4
  IF_S = 0x100,         // set flags
  IF_T = 0x200,         // user-mode transfer
  IF_LINK = 0x400,      // leading L of a branch
  IF_COND = 0x800,      // a condition was written
  IF_D = 0x1000,        // doubleword
  IF_X = 0x2000,        // X behind the link flag
  IF_SZEA = 0x4000,     // one of the six add-extend spellings
  IF_BE = 0x10000,      // SETEND BE
  IF_LE = 0x20000,      // SETEND LE
  IF_WIDE = 0x100000,   // .W
  IF_VL = 0x1000000,    // NEON L
  IF_VN = 0x2000000,    // NEON N
  IF_VW = 0x4000000,    // NEON W
  IF_FLT_IMM = 0x8000000,
  IF_FLT64_IMM = 0x10000000,
  IF_NS = 0x20000000,   // BXNS, BLXNS
  IF_TT_A = 0x40000000,
  IF_TT_T = 0x80000000,
};

// Addressing modes of a load/store multiple, in the IF_AM field.
enum : uint32_t { AM_NONE = 0, AM_FD, AM_ED, AM_FA, AM_EA, AM_IA, AM_IB, AM_DA, AM_DB };
constexpr uint32_t if_am(uint32_t flags) { return (flags & IF_AM) >> 4; }

// Condition codes (cond_codes); HS and LO are CS and CC.
enum : uint8_t {
  COND_EQ = 0, COND_NE, COND_CS, COND_CC, COND_MI, COND_PL, COND_VS, COND_VC,
  COND_HI, COND_LS, COND_GE, COND_LT, COND_GT, COND_LE, COND_AL, COND_NV,
};
constexpr uint8_t cond_reverse(uint8_t cond) { return static_cast<uint8_t>(cond ^ 1u); }

// Shift types of operand::op_shift.
enum : uint8_t { SHIFT_LSL = 0, SHIFT_LSR, SHIFT_ASR, SHIFT_ROR, SHIFT_RRX, SHIFT_NONE };

// Operand fields by kind, as the parser fills them and the encoders read them:
// - OP_REGISTER: op_reg. OP_SHIFTREGI: op_reg = op_reg2 = Rm, op_shift, the
//   amount in the value. OP_SHIFTREGR: op_reg = op_reg2 = Rm, op_shift, the
//   shift register's number in the value.
// - Addresses: op_reg the base. OP_INDPREE/OP_INDPOSTE: the offset in the
//   value. OP_INDPRES/OP_INDPOSTS: op_reg2 the offset register, op_shift (5 for
//   none) and the amount in the value; op_neg for "-Rm". OP_INDOPT: the option.
// - Lists: op_reg first, op_reg2 last, the mask of all in the value.
// - OP_PSRF/OP_APSRF: op_reg the register's number, op_mods the field mask.

// Bits of operand::op_mods.
enum : uint16_t { MOD_CARET = 0x1, MOD_WRITEBACK = 0x2 };

constexpr uint8_t REG_PC = 15, REG_LR = 14, REG_SP = 13;

// The statement's mnemonic row, and its class and base opcode in the slot of
// encode_state.
inline const mnemonic_row *ia_row(const instruct *ir) { return static_cast<const mnemonic_row *>(ir->record); }
inline const inst_class *ia_class(const instruct *ir) { return ia_row(ir)->slot[encode_state].cls; }
inline uint32_t ia_opcode(const instruct *ir) { return ia_row(ir)->slot[encode_state].opcode; }

// Operand n (0 based), or null.
inline operand *ia_op(const instruct *ir, int n) { return n < IR_MAX_SLOTS ? ir->oprnds[n] : nullptr; }

// The open IT block: "IT" and its letters right after the IT statement, then
// one letter for each instruction still in the block ("TTE" after ITTE's IT);
// empty outside a block. TRG_encode erases one character per instruction.
constexpr unsigned IT_STRING_SIZE = 16;
extern char cur_it_string[IT_STRING_SIZE];
extern uint8_t cur_it_cc;   // the IT condition

// Translation of a unified floating-point statement (VADD.F32 ...) to an old
// VFP row by its operand kinds and data types; false leaves it to NEON.
bool simd_to_vfp_rewrite(instruct *ir);
