// Interim substitution symbols; the substitution symbols step makes them real.
#include "source/subsym.h"

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pending.h"

int16_t subsym_expand = 1;

// A text value given by --define would be a substitution symbol: refuse it
// rather than leave the name undefined.
void SUBSYM_define_predef(const std::string &name, const std::string &) {
  if (!pass1) return;
  error_user(nullptr, "E9999", "--define %s with a text value is not supported yet", name.c_str());
}

// Nothing was entered, so there is nothing to clear.
void SUBSYM_clear_all() {}

void DP_var(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_asg(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_unasg(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_eval(instruct *ir) { DIR_pass_over_operands(ir); }
void GD_var(instruct *ir) { DIR_not_supported(ir); }
void GD_asg(instruct *ir) { DIR_not_supported(ir); }
void GD_unasg(instruct *ir) { DIR_not_supported(ir); }
void GD_eval(instruct *ir) { DIR_not_supported(ir); }
