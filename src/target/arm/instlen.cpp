// Bytes of an instruction statement.
#include "target/arm/instr.h"
#include "target/arm/trg.h"

namespace {
constexpr unsigned IC_T_B = 105;
}

uint32_t TRG_get_instlen(instruct *ir) {
  if (encode_state == STATE_ARM) return 4;
  if (encode_state != STATE_THUMB16) return 4;
  const inst_class *cls = ia_class(ir);
  const operand *target = ia_op(ir, 0);
  // Thumb BL and BLX to a label are two halfwords.
  if (cls && cls->ic_id == IC_T_B && (ir->ia_flags & IF_LINK) && target && target->kind != OP_REGISTER) return 4;
  return 2;
}
