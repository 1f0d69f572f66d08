#pragma once
// Register operands of the data-processing, multiply and media encoders: each
// encoder names its operands by role and field position (ARM state and Thumb-2
// slot) in a row, and these read, check and place them.
#include <cstdint>

#include "target/arm/instr.h"

// A register role: which words report an operand that is no core register.
enum class reg_role : uint8_t {
  RD,      // "Destination operand Rd must be a register"
  RN,      // "Operand Rn must be a register"
  RM,
  RS,
  RACC,    // "Operand Racc must be a register"
  RDLO,    // "Destination operand RdLo must be a register"
  RDHI,
  RDLO_V6, // "Destination operand Rdlo must be a register" (UMAAL, SMLALD)
  RDHI_V6,
};

constexpr uint8_t NO_FIELD = 0xFF;

// One register operand: its role and the bit of its four-bit field in ARM
// state and in a Thumb-2 slot.
struct reg_operand {
  reg_role role;
  uint8_t arm_bit;
  uint8_t t2_bit;
};

constexpr unsigned MAX_REG_OPERANDS = 4;

// True in the 32-bit Thumb-2 slots (immediate and register forms).
inline bool OPR_thumb2() { return encode_state == STATE_THUMB2 || encode_state == STATE_THUMB2_REG; }

inline bool OPR_is_reg(const operand *op) { return op && op->kind == OP_REGISTER; }

// Reads operands first..first+count-1 as registers of the given roles into
// regs[]; an operand that is not a core register gets its role's message and
// the number 0. False when any failed.
bool OPR_read(instruct *ir, const reg_operand *ops, unsigned count, unsigned first, unsigned regs[]);

// Writes regs[] into the fields of the state (a role without a field in the
// state is skipped).
void OPR_put(instruct *ir, const reg_operand *ops, unsigned count, const unsigned regs[]);

// Both of the above; false when any operand failed (nothing is then written
// for it).
bool OPR_encode(instruct *ir, const reg_operand *ops, unsigned count, unsigned regs[]);

// "R15 is an invalid operand", once, when any of regs[] is 15.
bool OPR_reject_pc(instruct *ir, const unsigned regs[], unsigned count);

// error_pc_op, once, when any of regs[] is 15 (an operand that was no
// register reads as 0).
void OPR_error_pc_once(instruct *ir, const unsigned regs[], unsigned count);

// The register of a register-specified shift (Rm, LSL Rs): the parser leaves
// the shift register's number as the operand's value.
unsigned OPR_shift_reg(const operand *op);

// A class that reached an encoder not made for it: a fault of the tables,
// not of the input.
void OPR_shape_fault();

// The mnemonic row of the name (upper case), found once per name by the caller.
const mnemonic_row *OPR_find_row(const char *name);


// The statement's mnemonic row has this name (upper case).
bool OPR_row_is(const instruct *ir, const char *name);

// The rotation of an extend's source (ROR #0, 8, 16 or 24) as two bits at
// `bit`, with its messages.
void OPR_put_rotation(instruct *ir, const operand *op, unsigned bit);
