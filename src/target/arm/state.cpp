// Target state: the architecture, the code state and the per-pass hooks.
#include "target/arm/state.h"

#include <cstdint>
#include <cstdio>
#include <strings.h>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/options.h"
#include "target/arm/arch.h"
#include "target/arm/glue_pending.h"
#include "target/arm/instr.h"
#include "target/arm/opcodes.h"
#include "target/arm/parse.h"
#include "target/arm/simd_vfp.h"
#include "target/arm/trg.h"

ARM_ARCH_TYPES arm_arch_types;

uint32_t cur_state = 0;
uint32_t def_state = 0;
uint32_t encode_state = 0;
uint8_t ual_mode = 1;
uint8_t signal_state_change = 0;
int32_t max_branch_chain_length = 10;
uint32_t instlen = 0;

namespace {

constexpr const char *version_texts[] = {"4", "5e", "6", "6M0", "7A8", "7M3", "7M4", "7R4", "7R5", "8M33"};

}  // namespace

void ARM_ARCH_TYPES::set(const char *text) {
  if (!text) {
    value = ARCH_NONE;
    return;
  }
  for (uint32_t i = 0; i < sizeof version_texts / sizeof version_texts[0]; ++i)
    if (strcasecmp(text, version_texts[i]) == 0) value = i + 1;
}

long arm_float_support() {
  return opt_on(OPT_FLOAT_SUPPORT) ? global_opts->getnumarg(OPT_FLOAT_SUPPORT, 0) : FLOAT_NONE;
}

bool arm_neon() { return opt_on(OPT_NEON); }

bool arch_is_v6_or_higher() { return arm_arch_types.is_v6_or_higher(); }
bool arch_is_v6m0() { return arm_arch() == ARCH_V6M0; }

void error_if_cortex_m(linebuf *line) {
  if (arm_arch_types.is_cortex_m()) error(line, "E0002", "Illegal Cortex-M instruction/directive");
}

// The architecture may come later on the command line; TRG_get_version then
// moves the pair between Thumb and Thumb-2.
void TRG_set_code_state(long bits) {
  cur_state = def_state = bits != 16 ? 0 : arm_arch_types.is_t2_capable() ? 2 : 1;
}

void TRG_set_ual_mode() { ual_mode = 1; }

uint32_t TRG_fill_pattern(uint32_t state) { return state == 0 ? ARM_FILL : THUMB_FILL; }

int TRG_get_version(const char *text) {
  // The option layer hands the item as written, possibly behind blanks.
  while (text && *text == ' ') ++text;
  arm_arch_types.set(text);
  if (arm_arch_types.is_t2_capable()) {
    if (cur_state == 1) cur_state = def_state = 2;
    ual_mode = 1;
  } else if (cur_state == 2) {
    cur_state = def_state = 1;
  }
  return static_cast<int>(arm_arch());
}

void TRG_verify_options() {
  if (!opt_on(OPT_FLOAT_SUPPORT)) global_opts->setopt(OPT_FLOAT_SUPPORT, FLOAT_NONE);
  max_branch_chain_length = 10;
  if (opt_on(OPT_MAX_BRANCH_CHAIN)) {
    const long n = global_opts->getnumarg(OPT_MAX_BRANCH_CHAIN, 0);
    if (n < 0) {
      fputs("Warning: Negative value specified for maximum branch chain length. Defaulting to zero\n", stderr);
      max_branch_chain_length = 0;
    } else {
      max_branch_chain_length = n > INT32_MAX ? INT32_MAX : static_cast<int32_t>(n);
    }
  }
}

void TRG_initialize() {
  UAL_init();
  simd_vfp_init();
  SCN_trg_align = ARM_trg_align;
}

// The syntax at the start of pass 1: pass 2 starts with it again, as with
// the code state, and without an IT block left open at the end of pass 1,
// so that both passes read the source alike.
static uint8_t pass_ual_mode = 1;

void TRG_initialize_pass1() { pass_ual_mode = ual_mode; }
void TRG_initialize_pass2() {}

void TRG_reset() {
  cur_state = def_state;
  ual_mode = pass_ual_mode;
  cur_it_string[0] = '\0';
  signal_state_change = 1;
}

void ARM_trg_align(unsigned long bits) {
  const uint32_t pattern = TRG_fill_pattern(cur_state);
  while (bits) {
    if (cur_state == 2 && bits >= 32) {
      // mov.w r8, r8
      SCN_insert_field(16, xi_from_uint(0xEA4F), nullptr, 2, false);
      SCN_insert_field(16, xi_from_uint(0x0808), nullptr, 2, false);
      bits -= 32;
      continue;
    }
    const unsigned n = bits < 32 ? static_cast<unsigned>(bits) : 32;
    const uint32_t mask = n >= 32 ? 0xFFFFFFFFu : (1u << n) - 1;
    SCN_insert_field(n, xi_from_uint(pattern & mask), nullptr, 2, false);
    bits -= n;
  }
}
