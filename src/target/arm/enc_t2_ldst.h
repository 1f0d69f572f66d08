#pragma once
// The Thumb-2 single transfer, which a multiple transfer of one register
// becomes.
#include "target/arm/instr.h"

// Rd (and Rd2 for LDRD, STRD), address, into the LDR or STR word already
// written: its bit 20 tells a load. `check_pc` refuses PC as the register of
// a store or of a load that writes back.
void T2_encode_transfer(instruct *ir, const operand *rd, operand *addr, const operand *rd2, bool check_pc);
