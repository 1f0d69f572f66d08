// Status register transfers, MRS and MSR: the PSRs of the A and R profiles,
// their field forms, the APSR flag forms and the M-profile system registers.
// The ARM rows and the Thumb-2 rows share the rule; only the field places differ.
#include <cstdint>

#include "driver/diag.h"
#include "driver/records.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

// Where the fields go in each state.
struct psr_layout {
  unsigned rd;     // MRS destination
  unsigned spsr;   // the bit that selects SPSR
  unsigned mask;   // four bits of the field mask
  unsigned rn;     // MSR source register
};
constexpr psr_layout ARM_LAYOUT{12, 22, 16, 0};
constexpr psr_layout THUMB2_LAYOUT{8, 20, 8, 16};

// Shapes: MRS (Rd, status register); the MSR shapes take field forms.
constexpr uint32_t SHAPE_MRS = 0x200;
constexpr uint32_t SHAPE_FIELDS = 0x1C00;

// The status register a PSR operand names: the high byte of its value.
enum : uint32_t { PSR_CPSR = 1, PSR_SPSR = 2, PSR_APSR = 3 };

// MSR to a PSR named without fields: the mask taken, and its letters for the warning.
struct plain_psr_row {
  uint32_t psr;
  uint32_t mask;
  const char *assumed;
};
constexpr plain_psr_row plain_psr_rows[] = {
    {PSR_CPSR, 9, "cf"},
    {PSR_SPSR, 9, "cf"},
    {PSR_APSR, 8, "nzcvq"},
};

// APSR_ letters (n 1, z 2, c 4, v 8, q 16, g 32) to the field mask.
struct apsr_mask_row {
  uint32_t letters;
  uint32_t mask;
};
constexpr apsr_mask_row apsr_mask_rows[] = {{63, 12}, {32, 4}, {31, 8}};

// M-profile registers that v6-M does not have.
constexpr uint32_t MSYS_BASEPRI = 0x11, MSYS_BASEPRI_MAX = 0x12, MSYS_FAULTMASK = 0x13;
constexpr uint32_t MSYS_MSR_MASK = 8;

bool is_status_kind(uint16_t kind) {
  return kind == OP_PSR || kind == OP_PSRF || kind == OP_MSYSREG || kind == OP_APSRF;
}
bool is_field_kind(uint16_t kind) { return kind == OP_PSRF || kind == OP_APSRF; }

// The system registers are the Cortex-M ones; of the PSRs, Cortex-M has APSR only.
bool status_supported(uint16_t kind, uint32_t psr) {
  const bool cortex_m = arm_arch_types.is_cortex_m();
  if (kind == OP_MSYSREG) return cortex_m;
  return !cortex_m || psr == PSR_APSR;
}

bool missing_on_v6m0(uint16_t kind, uint32_t number) {
  return kind == OP_MSYSREG && arm_arch() == ARCH_V6M0 &&
         (number == MSYS_FAULTMASK || number == MSYS_BASEPRI || number == MSYS_BASEPRI_MAX);
}

void encode_mrs_dest(instruct *ir, const operand *rd, const psr_layout &at) {
  if (!check_dest_op_reg(ir, rd)) return;
  if (rd->op_reg == REG_PC) warn(ir->line, "W0000", "R15 should not be used as a destination operand");
  ENC_put(ir, at.rd, 4, rd->op_reg);
}

// The field mask of an MSR target; false after a message that leaves it unwritten.
bool msr_field_mask(instruct *ir, const operand *status, uint32_t psr, uint32_t *mask) {
  switch (status->kind) {
    case OP_PSRF:
      *mask = status->op_mods & 0xFu;
      return true;
    case OP_APSRF:
      for (const apsr_mask_row &row : apsr_mask_rows)
        if (row.letters == status->op_mods) {
          *mask = row.mask;
          return true;
        }
      error(ir->line, "E0004", "Illegal APSR field bit mask");
      return false;
    case OP_MSYSREG:
      *mask = MSYS_MSR_MASK;
      return true;
    default:
      break;
  }
  for (const plain_psr_row &row : plain_psr_rows) {
    if (row.psr != psr) continue;
    *mask = row.mask;
    if (!arm_arch_types.is_cortex_m()) {
      if (encode_state == STATE_ARM)
        warn(ir->line, "W0000", "Deprecated use of PSR; flag bits not specified, \"%s\" assumed", row.assumed);
      else
        error(ir->line, "E0004", "Deprecated use of PSR; flag bits not specified");
    }
    return true;
  }
  error(ir->line, "E0004", "Illegal operand.");
  return false;
}

void encode_msr_source(instruct *ir, const operand *status, const operand *source, const psr_layout &at) {
  if (source->kind == OP_REGISTER) {
    if (source->op_reg == REG_PC) warn(ir->line, "W0000", "R15 should not be used as an operand");
    ENC_put(ir, at.rn, 4, source->op_reg);
    return;
  }
  if (source->kind != OP_ICON) {
    error(ir->line, "E0004", "Illegal operand");
    return;
  }
  if (encode_state != STATE_ARM) {
    error(ir->line, "E0004", "MSR immediate is only available in ARM mode");
    return;
  }
  if (!is_field_kind(status->kind)) {
    error(ir->line, "E0004", "Immediate value can be transferred to PSR flag bits only");
    return;
  }
  uint32_t field = 0;
  if (!ENC_rotated_imm(static_cast<uint32_t>(ENC_value(source)), &field)) {
    error(ir->line, "E0004", "Immediate not representable as a rotated 8 bit immediate");
    return;
  }
  ENC_put(ir, 25, 1, 1);
  ENC_put(ir, 0, 12, field);
}

}  // namespace

void encode_psr(instruct *ir) {
  const uint32_t shape = ia_class(ir)->ic_shape;
  const bool mrs = (shape & SHAPE_MRS) != 0;
  const psr_layout &at = encode_state == STATE_ARM ? ARM_LAYOUT : THUMB2_LAYOUT;
  const operand *status = ia_op(ir, mrs ? 1 : 0);
  const operand *other = ia_op(ir, mrs ? 0 : 1);

  if (!is_status_kind(status->kind)) {
    error(ir->line, "E0004", "Illegal operand.");
    return;
  }
  const uint32_t value = static_cast<uint32_t>(ENC_value(status));
  const uint32_t psr = status->kind == OP_MSYSREG ? 0 : (value >> 8) & 0xFu;
  const uint32_t number = value & 0xFFu;
  if (!status_supported(status->kind, psr)) {
    error(ir->line, "E0004", "Status register unsupported by this architecture.");
    return;
  }
  if (missing_on_v6m0(status->kind, number)) {
    error(ir->line, "E0004",
          "Invalid Operand, Cortex-M0 MSR/MRS instruction can not use FAULTMASK, BASEPRI, or BASEPRI_MAX");
    return;
  }
  if (is_field_kind(status->kind) && !(shape & SHAPE_FIELDS)) {
    error(ir->line, "E0004", "Invalid Operand, cannot use processor status register flags");
    return;
  }

  if (psr == PSR_SPSR) ENC_put(ir, at.spsr, 1, 1);
  if (status->kind == OP_MSYSREG) ENC_put(ir, 0, 8, number);
  if (mrs) {
    encode_mrs_dest(ir, other, at);
    return;
  }
  uint32_t mask = 0;
  if (msr_field_mask(ir, status, psr, &mask)) {
    // Replaces the flags field that the ARM base word names.
    ENC_put(ir, at.mask, 4, mask);
  }
  encode_msr_source(ir, status, other, at);
}
