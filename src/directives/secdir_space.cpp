// .align, .space and .bes: moving the location counter of the current section.
#include <algorithm>
#include <cstdint>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/directive_ids.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

namespace {

constexpr int MAX_ALIGN_LOG2 = 15;   // 32K

// The largest block .space and .bes reserve: what is left of the 32-bit
// address space above the current address. A negative size is refused
// outright: read as unsigned it would ask for gigabytes of zeros.
bool space_size_ok(instruct *ir, const INT128 &n) {
  const char *dir = DIR_id(ir) == DIR_BES ? ".bes" : ".space";
  if (n < 0) {
    error(ir->line, "E0004", "%s size must not be negative; found %s", dir, DIR_int_text(n).c_str());
    return false;
  }
  if (n > xi_from_uint(UINT32_C(0xFFFFFFFF) - SCN_address())) {
    error(ir->line, "E0004", "%s size %s goes beyond the 32-bit address space", dir, DIR_int_text(n).c_str());
    return false;
  }
  return true;
}

// Zeros in pass 2: through the field accumulator up to a word boundary,
// then whole words at once, then the rest.
void insert_zeros(uint64_t bits) {
  const INT128 zero{};
  if (const unsigned used = curseg->scn_field_bits % 32) {
    const auto head = static_cast<unsigned>(std::min<uint64_t>(bits, 32 - used));
    SCN_insert_field(head, zero, nullptr, 0, false);
    bits -= head;
  }
  SCN_insert_zero_words(bits / 32);
  if (bits % 32) SCN_insert_field(static_cast<unsigned>(bits % 32), zero, nullptr, 0, false);
}

}  // namespace

void DP_align(instruct *ir) {
  DIR_read_slot(ir, 0, DPS_ABSINT | DPS_OPTIONAL);
  skip_to_expected_eol(ir->line);
}

void DP_space(instruct *ir) {
  DIR_read_slot(ir, 0, DPS_ABSINT);
  skip_to_expected_eol(ir->line);
}

void GD_align(instruct *ir) {
  int32_t n = ir->oprnds[0] ? DIR_opnd_i32(ir->oprnds[0]) : 4;
  int log2 = ispowerof2(n);
  if (log2 < 0) {
    log2 = nextpowerof2(n);
    n = static_cast<int32_t>(UINT32_C(1) << (log2 & 31));
    warn(ir->line, "W0001", "Power of 2 required, %d assumed", n);
  }
  if (log2 > MAX_ALIGN_LOG2) {
    warn(ir->line, "W0001", "Maximum alignment is to 32K boundary - alignment ignored");
    LBL_define();
    return;
  }
  SCN_core_align(static_cast<unsigned long>(n) * 8, TRG_fill_pattern(cur_state), SCN_trg_align);
  LBL_define();
}

void GD_space(instruct *ir) {
  const bool bes = DIR_id(ir) == DIR_BES;
  SCN_align(8, 0);
  if (!bes) LBL_define();
  if (!ir->oprnds[0]) return;
  const INT128 &n = ir->oprnds[0]->value.v_val;
  if (!space_size_ok(ir, n)) return;

  const uint64_t bits = static_cast<uint64_t>(n.to_u32()) * 8;
  const uint32_t first = SCN_address();
  // After an error no object is written: then a block, however large, only
  // moves the counter, as in pass 1.
  if (pass1 || num_errors)
    SCN_space(bits);
  else
    insert_zeros(bits);
  // The last reserved byte: the next free bit rounded down to a byte, or
  // one byte less when the block ended on a byte boundary.
  const uint64_t next_bit = static_cast<uint64_t>(curpc) * 8 + curseg->scn_field_bits;
  const uint32_t last = static_cast<uint32_t>(next_bit % 8 ? next_bit / 8 : next_bit / 8 - 1);
  DIR_list_location(ir, bes ? last : first);

  if (!bes) return;
  // From a word boundary the label names the last reserved byte; otherwise
  // the next free one.
  if (curseg->scn_field_bits == 0 || curseg->scn_field_bits == 32) {
    --curpc;
    LBL_define();
    ++curpc;
  } else {
    LBL_define();
  }
}
