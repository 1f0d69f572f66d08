// Bytes of an instruction statement. Pass 1 measures by class; pass 2 reads
// back, in the same statement order, the lengths that jump expansion decided
// for the statements that pass 1 recorded.
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "target/arm/arch.h"
#include "target/arm/thumb2_hooks.h"
#include "target/arm/trg.h"

namespace {

constexpr unsigned IC_T_B = 105, IC_T_BR = 114, IC_T_BT = 117, IC_T_BQ = 118;

// The 16-bit branches whose length pass 1 pushed (see TRG_encode_pass1).
bool pushed_branch_length(const instruct *ir) {
  const inst_class *cls = ia_class(ir);
  if (!cls) return false;
  switch (cls->ic_id) {
    case IC_T_BR: case IC_T_BT: case IC_T_BQ: return true;
    case IC_T_B: return (ir->ia_flags & (IF_COND | IF_LINK)) == IF_COND;
    default: return false;
  }
}

}  // namespace

uint32_t TRG_get_instlen(instruct *ir) {
  if (!pass1 && cur_state != STATE_ARM) {
    const operand *first = ia_op(ir, 0);
    if (first && first->kind == OP_SYMBOL && pushed_branch_length(ir)) return VLI_pop();
    const operand *x = ia_op(ir, 1) ? ia_op(ir, 1) : first;
    if (cur_state == STATE_THUMB2 && arm_arch_types.is_t2_capable() && x && x->kind == OP_SYMBOL &&
        variable_length_t2_ins(ir, nullptr)) {
      const uint32_t length = VLI_pop();
      modify_t2_instr(ir, length);
      return length;
    }
  }
  return instlen_by_class(ir);
}
