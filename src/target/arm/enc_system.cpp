// Exceptions, hints and system instructions: SWI, BKPT, SMI, UDF, NOP,
// CLREX, the barriers, the hints, SETEND, CPS, RFE, SRS, SG and TT.
#include <cstdint>

#include "driver/diag.h"
#include "driver/records.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

// ---- Split immediates ----------------------------------------------------------

// An immediate spread over fields of the word, listed from the value's high end.
struct imm_part {
  uint8_t width;
  uint8_t at;
};
struct imm_split {
  uint8_t count;
  imm_part part[3];
};

unsigned split_width(const imm_split &split) {
  unsigned width = 0;
  for (unsigned i = 0; i < split.count; ++i) width += split.part[i].width;
  return width;
}

void put_split(instruct *ir, uint32_t value, const imm_split &split) {
  unsigned low = split_width(split);
  for (unsigned i = 0; i < split.count; ++i) {
    const imm_part &part = split.part[i];
    low -= part.width;
    ENC_put(ir, part.at, part.width, (value >> low) & ((1u << part.width) - 1));
  }
}

// ---- CPS flags ---------------------------------------------------------------------

struct cps_flag_row {
  char letter;
  unsigned bit;
};
// Bits in ARM state; Thumb-2 has them one place lower.
constexpr cps_flag_row cps_flag_rows[] = {{'A', 8}, {'I', 7}, {'F', 6}};
constexpr unsigned CPS_MAX_FLAGS = 3;

// The letters of CPSIE/CPSID, either case, at most three; a message for
// the first letter that is no flag.
void put_cps_flags(instruct *ir, const char *text, unsigned down) {
  unsigned count = 0;
  for (const char *p = text ? text : ""; *p; ++p, ++count) {
    if (count == CPS_MAX_FLAGS) {
      error(ir->line, "E0003", "Unexpected trailing operand(s).");
      return;
    }
    const char upper = *p >= 'a' && *p <= 'z' ? static_cast<char>(*p - 'a' + 'A') : *p;
    const cps_flag_row *found = nullptr;
    for (const cps_flag_row &row : cps_flag_rows)
      if (row.letter == upper) found = &row;
    if (!found) {
      error(ir->line, "E0004", "Illegal flag specified: %c", *p);
      return;
    }
    if (found->letter == 'A' && down && arm_arch_types.is_cortex_m())
      error(ir->line, "E0004", "'A' flag invalid for Cortex M.");
    ENC_put(ir, found->bit - down, 1, 1);
  }
}

// ---- Immediate layouts by state -------------------------------------------------

constexpr imm_split SPLIT_12_4{2, {{12, 8}, {4, 0}, {0, 0}}};
constexpr imm_split SMI_THUMB2{3, {{4, 16}, {8, 4}, {4, 0}}};
constexpr imm_split UDF_THUMB16{1, {{8, 0}, {0, 0}, {0, 0}}};
constexpr imm_split UDF_THUMB2{2, {{4, 16}, {12, 0}, {0, 0}}};

// SWI, BKPT, SMI: an absolute constant, cut to the field with a warning.
bool comment_field(instruct *ir, const operand *op, uint32_t max, uint32_t *value) {
  if (op->kind != OP_ICON) {
    error(ir->line, "E0004", "Comment field value must be an absolute constant");
    return false;
  }
  *value = static_cast<uint32_t>(ENC_value(op));
  if (*value > max) {
    warn(ir->line, "W0002", "Comment field value truncated");
    *value &= max;
  }
  return true;
}

// A processor mode, five bits at 0.
void put_mode(instruct *ir, const operand *op) {
  const int64_t mode = op->kind == OP_ICON ? ENC_value(op) : -1;
  if (mode < 0 || mode > 31) {
    error(ir->line, "E0004", "Illegal operand");
    return;
  }
  ENC_put(ir, 0, 5, static_cast<uint32_t>(mode));
}

bool inside_it_block() { return cur_it_string[0] == 'T' || cur_it_string[0] == 'E'; }

// Thumb-2 SRS: the two bits at 23 by the addressing mode (IA when none).
struct srs_mode_row {
  uint32_t mode;
  uint32_t bits;
};
constexpr srs_mode_row srs_mode_rows[] = {
    {AM_NONE, 3}, {AM_EA, 3}, {AM_IA, 3}, {AM_FD, 0}, {AM_DB, 0},
};

}  // namespace

// ---- Exceptions ------------------------------------------------------------------

void encode_swi(instruct *ir) {
  uint32_t value = 0;
  if (comment_field(ir, ia_op(ir, 0), 0xFFFFFFu, &value)) ENC_put(ir, 0, 24, value);
}

void encode_bkpt(instruct *ir) {
  check_arch_v5(ir);
  uint32_t value = 0;
  if (comment_field(ir, ia_op(ir, 0), 0xFFFFu, &value)) put_split(ir, value, SPLIT_12_4);
}

void encode_smi(instruct *ir) {
  error_if_cortex_m(ir);
  uint32_t value = 0;
  if (comment_field(ir, ia_op(ir, 0), 0xFFFFu, &value))
    put_split(ir, value, encode_state == STATE_ARM ? SPLIT_12_4 : SMI_THUMB2);
}

void encode_udf(instruct *ir) {
  if (inside_it_block()) warn(ir->line, "W0005", "Deprecated use of UDF inside an IT block");
  const imm_split &split = encode_state == STATE_ARM       ? SPLIT_12_4
                           : encode_state == STATE_THUMB16 ? UDF_THUMB16
                                                           : UDF_THUMB2;
  const operand *op = ia_op(ir, 0);
  if (op->kind != OP_ICON) {
    error(ir->line, "E0004", "Illegal operand");
    return;
  }
  const unsigned width = split_width(split);
  const int64_t value = ENC_value(op);
  if (value < 0 || value >= (int64_t{1} << width)) {
    error(ir->line, "E0200", "Offset out of range, must be %u bit immediate", width);
    return;
  }
  put_split(ir, static_cast<uint32_t>(value), split);
}

// ---- Base words with an architecture check ------------------------------------------

void encode_nop(instruct *) {}

void encode_clrex(instruct *ir) { check_arch_v7(ir); }

void encode_synch(instruct *ir) { check_arch_v7_or_m0(ir); }

// The Thumb-16 hints exist on v6-M as well.
void encode_hint(instruct *ir) {
  if (ia_class(ir)->ic_id == 147)
    check_arch_v7_or_m0(ir);
  else
    check_arch_v7(ir);
}

void encode_sg(instruct *ir) { check_arch_v8m33(ir); }

// ---- Processor state ---------------------------------------------------------------

void encode_setend(instruct *ir) {
  check_arch_v6(ir);
  error_if_cortex_m(ir);
  if (ir->ia_flags & IF_BE) ENC_put(ir, encode_state == STATE_ARM ? 9 : 3, 1, 1);
}

void encode_cps(instruct *ir) {
  error_if_cortex_m(ir);
  const operand *first = ia_op(ir, 0);
  const operand *mode = first;
  if (ia_class(ir)->ic_id == 48) {
    // CPSIE, CPSID: the flags, then an optional mode.
    mode = ia_op(ir, 1);
    if (first->kind != OP_CPSFLAGS) {
      error(ir->line, "E0004", "Invalid operand type for CPS.");
    } else {
      put_cps_flags(ir, first->value.v_str, 0);
    }
  }
  if (!mode) return;
  // The Thumb-2 word of CPS #mode has its mode bit (8) already.
  if (encode_state == STATE_ARM) ENC_put(ir, 17, 1, 1);
  put_mode(ir, mode);
}

// Thumb-2 CPSIE, CPSID: the flags, then an optional mode. M-profile cores
// have only the 16-bit form.
void encode_t2_cps(instruct *ir) {
  check_arch_v7(ir);
  if (arm_arch_types.is_cortex_m()) error(ir->line, "E0004", "This CPS form is illegal in the Cortex-M.");
  const operand *flags = ia_op(ir, 0);
  if (flags->kind != OP_CPSFLAGS)
    error(ir->line, "E0004", "Invalid operand type for CPS.");
  else
    put_cps_flags(ir, flags->value.v_str, 1);
  if (const operand *mode = ia_op(ir, 1)) {
    ENC_put(ir, 8, 1, 1);
    put_mode(ir, mode);
  }
}

// ---- Exception return and state save ------------------------------------------------

void encode_rfe(instruct *ir) {
  if (encode_state == STATE_ARM)
    check_arch_v6(ir);
  else
    check_arch_v7(ir);
  error_if_cortex_m(ir);
  const operand *rn = ia_op(ir, 0);
  if (!check_op_reg(ir, rn, "n")) return;
  ENC_put(ir, 16, 4, rn->op_reg);
  if (rn->op_mods & MOD_WRITEBACK) ENC_put(ir, 21, 1, 1);
}

void encode_srs(instruct *ir) {
  const bool arm = encode_state == STATE_ARM;
  if (arm) {
    check_arch_v6(ir);
  } else {
    check_arch_v7(ir);
    error_if_cortex_m(ir);
  }
  const operand *first = ia_op(ir, 0);
  const operand *mode = ia_op(ir, 1);
  if (!mode) {
    mode = first;
  } else if (first->kind != OP_REGISTER || first->op_reg != REG_SP) {
    error(ir->line, "E0004", "The destination must be the SP");
  }
  if (first->op_mods & MOD_WRITEBACK) ENC_put(ir, 21, 1, 1);
  put_mode(ir, mode);
  if (arm) return;
  const uint32_t am = if_am(ir->ia_flags);
  for (const srs_mode_row &row : srs_mode_rows)
    if (row.mode == am) {
      ENC_put(ir, 23, 2, row.bits);
      return;
    }
  error(ir->line, "E0004", "Illegal addressing mode");
}

// ---- Security extension -----------------------------------------------------------------

void encode_tt(instruct *ir) {
  check_arch_v8m33(ir);
  const operand *rd = ia_op(ir, 0);
  const operand *rn = ia_op(ir, 1);
  if (check_dest_op_reg(ir, rd)) ENC_put(ir, 8, 4, rd->op_reg);
  if (check_op_reg(ir, rn, "n")) ENC_put(ir, 16, 4, rn->op_reg);
  if (ir->ia_flags & IF_TT_A) ENC_put(ir, 7, 1, 1);
  if (ir->ia_flags & IF_TT_T) ENC_put(ir, 6, 1, 1);
}
