// The target's part in data and reservation directives: float words, the
// alignment operand of .bss and .usect, and what structures may hold.
#include <cstdio>
#include <cstdlib>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/records.h"
#include "expr/fval.h"
#include "listing/listing.h"
#include "source/lexer.h"
#include "target/arm/glue_pending.h"
#include "target/arm/state.h"
#include "target/arm/trg.h"

namespace {

// Exponent from which an alignment is ignored: 2^16 bytes and more.
constexpr int MAX_ALIGN_EXPONENT = 15;
// Exponents beyond this do not fit a 32-bit address.
constexpr int MAX_ADDRESS_EXPONENT = 31;

// VFP units keep doubles in memory as two little-endian words, low word first.
bool low_word_first() {
  switch (arm_float_support()) {
    case FLOAT_NONE:
    case FLOAT_VFPV2:
    case FLOAT_VFPV3:
    case FLOAT_VFPV3D16:
    case FLOAT_FPV4SPD16: return !big_endian_code;
    default: return false;
  }
}

void emit_word(instruct *ir, uint32_t word) {
  // The relocation's listing mark may already be in the record.
  IOR_write(&ir->ior, 32, 0, word);
  IOR_dump(&ir->ior, ir, 0);
}

// Smallest L with 2^L >= n; 0 for n below 1.
int ceil_log2(int64_t n) {
  if (n < 1) return 0;
  int l = 0;
  while (l < 63 && (uint64_t{1} << l) < static_cast<uint64_t>(n)) ++l;
  return l;
}

}  // namespace

void TRG_emit_flt(instruct *ir, trg_fval *value, short size) {
  switch (size) {
    case 0:
      emit_word(ir, value->word[0]);
      return;
    case 1: {
      // word[0] is the high word: sign and exponent.
      const bool low_first = low_word_first();
      emit_word(ir, value->word[low_first ? 1 : 0]);
      emit_word(ir, value->word[low_first ? 0 : 1]);
      return;
    }
    default:
      std::fflush(stderr);
      std::puts("Internal Error - Unrecognized float size");
      std::fflush(stdout);
      std::exit(1);
  }
}

uint32_t TRG_usect_align(unsigned long, instruct *ir, operand *align, operand *extra) {
  linebuf *line = ir ? ir->line : curline;
  if (align) {
    const int64_t n = align->value.v_val.to_i64();
    const int exponent = ceil_log2(n);
    const uint64_t rounded = uint64_t{1} << exponent;
    if (n < 1 || rounded != static_cast<uint64_t>(n))
      warn(line, "W0001", "Power of 2 required, %llu assumed", static_cast<unsigned long long>(rounded));
    if (exponent > MAX_ADDRESS_EXPONENT)
      warn(line, "W0000", "Specified alignment is outside accessible memory - ignored");
    else if (exponent > MAX_ALIGN_EXPONENT)
      warn(line, "W0001", "Maximum alignment is to 32K boundary - alignment ignored");
    else
      SCN_align(static_cast<unsigned long>(rounded * 8), 0);
  }
  if (extra) error(line, "E0003", "Unexpected trailing operand(s)");
  return curpc;
}

void TRG_lst_flt_value(linebuf *line, simul_fval *) { LST_object(line, 0, nullptr, 0, 0); }

bool TRG_dp_sumem(instruct *) { return false; }

bool TRG_su_mem(instruct *, unsigned int *, unsigned int *) { return false; }

node *TRG_simplify_expr(node *n) { return n; }
