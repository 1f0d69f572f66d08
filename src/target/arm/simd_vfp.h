#pragma once
// The translation of unified floating-point statements (VADD.F32 S0, S1, S2)
// to the older VFP rows (FADDS) by operand kinds and data types.
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>

#include "target/arm/opcodes.h"

struct instruct;

// Bits of a data-type suffix's type (simd_suffix::type, simd_type_slot::types).
enum : uint16_t {
  SIMD_T_ABSENT = 0x1, SIMD_T_BARE = 0x2, SIMD_T_I = 0x4, SIMD_T_F = 0x8,
  SIMD_T_P = 0x10, SIMD_T_S = 0x20, SIMD_T_U = 0x40, SIMD_T_ANY = 0x80,
};
// Size codes of a suffix (simd_suffix::size, simd_type_slot::sizes).
enum : uint32_t { SIMD_SZ_8 = 0x2, SIMD_SZ_16 = 0x4, SIMD_SZ_32 = 0x8, SIMD_SZ_64 = 0x10 };

// Runs on the statement once its row is the VFP one.
using simd_vfp_fixup = void (*)(instruct *);

struct simd_name_translation {
  const char *simd_name;      // unified name, upper case
  const char *vfp_name;       // the VFP row that takes the statement
  uint16_t op_kinds[4];       // operand kinds; 0 for an absent operand
  simd_type_slot slot[3];     // per suffix: types and sizes that match
  simd_vfp_fixup fixup;       // or null
};

constexpr size_t SIMD_VFP_ROW_COUNT = 80;
// Ending in a row with a null name.
extern const simd_name_translation simd_to_vfp_mnemonics[SIMD_VFP_ROW_COUNT + 1];

// A translation row with the mnemonic row of its vfp_name.
struct simd_vfp_entry {
  const simd_name_translation *row;
  const mnemonic_row *vfp_row;
};
// The rows by unified name; the rows of one name in table order.
extern std::multimap<std::string_view, simd_vfp_entry> simd_name_table;
// Fills simd_name_table (TRG_initialize); a second call changes nothing.
void simd_vfp_init();

// The fix-ups of the table.
void simd_vfp_fix_reg_pair(instruct *ir);     // FMRRS, FMSRR
void simd_vfp_fix_copy(instruct *ir);         // FCPYS, FCPYD
void simd_vfp_fix_compare(instruct *ir);      // FCMP*, FCMPE*, FCMPZ*, FCMPEZ*
void simd_vfp_fix_fixed_point(instruct *ir);  // VCVT with a fraction count

// The body of parse_simd_suffix: the data-type suffixes and alignment at the
// start of `text` into cur_suffixes, checked against `rule` (may be null),
// with messages on `line`; returns the count of characters they take.
size_t simd_parse_suffix_text(std::string_view text, const simd_type_rule *rule, struct linebuf *line);
