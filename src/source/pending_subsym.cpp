// Interim substitution symbols; the substitution symbols step makes them real.
#include "source/subsym.h"

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pending.h"

[[gnu::weak]] int16_t subsym_expand = 1;

// A text value given by --define would be a substitution symbol: refuse it
// rather than leave the name undefined.
[[gnu::weak]] void SUBSYM_define_predef(const std::string &name, const std::string &) {
  if (!pass1) return;
  error_user(nullptr, "E9999", "--define %s with a text value is not supported yet", name.c_str());
}

// Nothing was entered, so there is nothing to clear.
[[gnu::weak]] void SUBSYM_clear_all() {}

[[gnu::weak]] void DP_var(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_asg(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_unasg(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_eval(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void GD_var(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_asg(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_unasg(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_eval(instruct *ir) { DIR_not_supported(ir); }
