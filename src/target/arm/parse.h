#pragma once
// The instruction statement parser, split by topic: the statement's steps
// (parse_statement.cpp), the suffix letters (parse_suffix.cpp), the operands
// (parse_operands.cpp, parse_address.cpp) and the rewrites that follow them
// (parse_rewrites.cpp).
//
// Operand fields as the parser leaves them for the encoders:
// - OP_REGISTER, OP_SREG, OP_DREG, OP_QREG, OP_VFPSYS, OP_CPREG, OP_MSYSREG,
//   OP_CPID: op_reg is the number (four bits of a C register); the value is the
//   register symbol's value with that number.
// - OP_SHIFTREGI: op_reg = op_reg2 = Rm, op_shift the type, the value's
//   integer the amount (0 for RRX). OP_SHIFTREGR: the same with the value a
//   register value holding Rs.
// - OP_PSR, OP_PSRF, OP_APSRF: the value is the symbol's (0x100, 0x201, ...);
//   op_mods of the field kinds is the field mask.
// - Addresses: op_reg the base; OP_INDPREE/OP_INDPOSTE the offset in the
//   value; OP_INDPRES/OP_INDPOSTS op_reg2 the offset register, op_shift and
//   the value's integer its shift (SHIFT_NONE without), op_neg for '-';
//   OP_INDOPT the option in the value.
// - Lists: op_reg and op_reg2 the first and last element, op_lane the lane
//   of the elements, the value's integer the mask of the element numbers.
// - OP_CPSFLAGS: the letters as text in the value.
#include <cstdint>
#include <string>
#include <string_view>

#include "target/arm/instr.h"
#include "target/arm/tables.h"

struct token;

// The unified-name row that translated the statement's name (lookup_opcode), or null.
extern const ual_name_translation *cur_ual_translation;
// The parallel add/subtract prefix that lookup_opcode split off ("S", "UQ"...), or empty.
extern char cur_mext_prefix[3];

// ---- Names (parse_suffix.cpp, ual.cpp) ----------------------------------------

// In unified mode: *out gets the name with its longest unified prefix (for
// the state) replaced by the older form; cur_ual_translation the row. False,
// and out untouched, when the name stays as it is.
bool UAL_translate(std::string_view name, std::string *out);
// Fills ual_name_table, the unified names by name, all rows of a name in
// table order (start-up).
void UAL_init();

// True on v6 or higher when the name holds one of the parallel add/subtract
// stems (also ASX, SAX in unified mode) and none of the add-extend stems;
// *prefix_length gets the length of the text before the stem.
bool mext_paddsub_instruction(std::string_view name, size_t *prefix_length = nullptr);
// True on ARCH_V6 exactly for the six add-extend spellings (SADD8TO16 ...).
bool mext_szea_add_instruction(std::string_view name);
// The condition named by the first two characters of text (either case).
bool PRS_condition(std::string_view text, uint8_t *cond);
// Decodes the suffix letters behind the row name into ia_cond and ia_flags;
// IT statements keep their letters in cur_it_string.
void PRS_suffix(instruct *ir, std::string_view suffix);
// The class takes data-type suffixes (.F32, .I16 ...).
bool PRS_has_type_suffixes(const inst_class *cls);

// ---- Operands (parse_operands.cpp, parse_address.cpp) ------------------------

// An operand with no lane index and no shift.
operand *PRS_new_operand(uint16_t kind);
// A failed operand: kind 0 keeps the place of the operands behind it.
operand *PRS_failed();
// A core register operand.
operand *PRS_core_register(uint32_t number);
// One operand at curtk (its first token); curtk is left behind it. Null at
// the end of the line.
operand *PRS_operand(instruct *ir);
// `[...]` addresses; curtk is the '['.
operand *PRS_address();
// `{...}` register lists; curtk is the '{'.
operand *PRS_register_list();
// The register class and number of a register value; false for other values.
bool PRS_register_of(const value_record &v, uint8_t *reg_class, uint32_t *number);
// The shift behind a register: curtk is the comma after it. A shift name
// behind the comma is read with its amount into op; otherwise the comma stays
// and nothing changes. `in_address` refuses register amounts.
void PRS_shift(operand *op, bool in_address);
// `#expr` or an absolute expression as an immediate: OP_ICON or OP_FCON, else
// a failed operand after its message. curtk is the first token of the expression.
operand *PRS_absolute(bool floating, bool wide);
// Skips to the next comma or the line end.
void PRS_skip_operand();
// Skips past the next `close` token on the line (or to its end).
void PRS_skip_past(uint16_t close);

// ---- Rewrites (parse_rewrites.cpp) --------------------------------------------

// Operands present from the first on.
int PRS_count_operands(const instruct *ir);
// The rewrites behind the operands: shifts through MOV, CPY, the two-register
// ADD, the VFP translation, the shift pseudo-instructions.
void PRS_rewrites(instruct *ir);
// The unified-mode forms: PUSH/POP base, two operands for three, the folds
// of 16-bit encodings, their flag rule and the Thumb-2 register form.
void PRS_unified_forms(instruct *ir);
// The row of that name in the slot of encode_state, or null.
const mnemonic_row *PRS_row(std::string_view name);
