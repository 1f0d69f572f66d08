#pragma once
// The Thumb and Thumb-2 width machinery: lengths of label-dependent
// statements, the choice of the 16-bit encoding for a 32-bit row by a trial
// encoding, and the width statistics of the listing.
#include "target/arm/instr.h"
#include "target/arm/jumps.h"

// Pass 1: what jump expansion and the width choice record for the statement.
void TRG_encode_pass1(instruct *ir);
// A 32-bit Thumb-2 statement that has a 16-bit encoding, made ready for it.
bool conv_32t2_to_16t(instruct *ir);
// Counts the width choice for the Thumb-2 statistics of the listing.
void update_thumb2_lst(instruct *ir);

// ---- Parts of the decision (thumb2_width.cpp) ----------------------------------

// The class of the statement's Thumb-2 slot is a 32-bit one (in the Thumb-2
// state only; IT and CBZ/CBNZ are the 16-bit classes of those slots).
bool thumb_2_state_32bit_insn(const instruct *ir);
// Data processing whose 16-bit forms set the flags outside an IT block only.
bool is_thumb2_32bit_dp_ins(const inst_class *cls);
// Inside an open IT block (behind the IT statement itself).
bool in_it_block();
// The length depends on the distance to a label; *kind gets the jump kind.
bool variable_length_t2_ins(const instruct *ir, JUMP_LIST_TYPE *kind);
// encode_state for a length: the 16-bit slot for 2 where the row has one.
void modify_t2_instr(instruct *ir, uint32_t length);
// Bytes by the class alone (the pass-1 rules of TRG_get_instlen).
uint32_t instlen_by_class(const instruct *ir);

// ---- The trial (thumb2_trial.cpp) ----------------------------------------------------

// Data processing may take its 16-bit form, whose flag setting depends on
// the IT block (a two-register MOV becomes CPY).
bool ok_to_convert_to_thumb(instruct *ir);
// ADD Rd, Rs, Rn with Rd a source: the high-register form.
bool handle_add(instruct *ir);
// MOV Rd, Rm, <shift> #n of low registers: the 16-bit shift statement.
bool handle_movs_shift(instruct *ir);
// A three-operand statement may be tried as two; *kept gets the index (1 or 2)
// of the source that stays beside Rd.
bool try_2opnd_thumb_instr(const instruct *ir, int *kept);
// ADC, ADD, AND, EOR, ORR, MUL, SMULBB with two register sources.
bool commutative_instr(const instruct *ir);
// The suffix letters that a 16-bit encoding in the Thumb-2 state has none of.
void reset_irec_flags(instruct *ir);
