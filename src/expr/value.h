#pragma once
// The value of an expression, as symbols, operands and the expression engine hold it.
#include <cstdint>
#include "expr/int128.h"
#include "expr/fval.h"

struct relrec;
struct section_record;
struct symbol_record;
struct membrec;

enum : uint32_t {
  VT_ICON = 1, VT_FCON = 2, VT_FIXED = 3, VT_STRING = 4, VT_REG = 5,
  VT_STAG = 7, VT_SEND = 8, VT_UTAG = 9, VT_UEND = 10, VT_SUMEM = 11,
  VT_LABEL = 12, VT_LDLABEL = 13, VT_SCNREL = 14, VT_COPRID = 15, VT_ADDR = 16,
  VT_KEYWORD = 17, VT_MMR = 18, VT_UNDEFSYM = 19, VT_COMMON = 20,
};

// Bits of v_flags.
enum : uint16_t {
  VF_SIGNED = 0x01,
  VF_CHAR = 0x02,       // character constant
  VF_NEGBIT = 0x08,     // kept together with VF_NEGATIVE, read nowhere
  VF_ADDRESS = 0x10,    // label or section symbol
  VF_NEGATIVE = 0x20,
  VF_NEGCONST = VF_SIGNED | VF_NEGBIT | VF_NEGATIVE,   // 41: a negative constant
  VF_CHAROPND = VF_NEGATIVE | VF_CHAR,                // 34: a single-character operand
};

// Owned parts (v_fval, v_str, v_rel) of a heap record are malloc'ed; a
// record that lives in the expression zone owns nothing. v_bif is never
// owned: it points at a name in the table of built-in functions.
struct value_record {
  uint16_t v_flags;
  uint16_t v_bits;
  INT128 v_val;
  simul_fval *v_fval;
  char *v_str;          // string text, zero-terminated for convenience
  uint32_t v_type;      // 0: the evaluation failed
  uint8_t v_known;      // every symbol used was defined before this point in this pass
  uint8_t v_forward;    // a symbol not yet defined in this pass was used
  uint8_t v_rel_count;
  uint8_t v_rel_cap;
  relrec *v_rel;        // relocation expression (postfix), or null
  const char *v_bif;    // built-in relocation function that made the value (not owned)
  section_record *v_section;
  symbol_record *v_symbol;
  symbol_record *v_symbol2;
  membrec *v_member;
};

// The value types that the linker has to finish.
constexpr bool is_reloc_type(uint32_t type) {
  return type == VT_LABEL || type == VT_LDLABEL || type == VT_SCNREL ||
         type == VT_UNDEFSYM || type == VT_COMMON;
}

inline bool is_relocatable(const value_record *v) {
  return is_reloc_type(v->v_type) || v->v_rel != nullptr;
}
inline bool is_relocatable(const value_record &v) { return is_relocatable(&v); }

// Integer-like: a plain constant or a memory-mapped register.
constexpr bool is_int_type(uint32_t type) { return type == VT_ICON || type == VT_MMR; }
