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

struct value_record {
  uint16_t v_flags;
  uint16_t v_bits;
  INT128 v_val;
  simul_fval *v_fval;
  char *v_str;
  uint32_t v_type;
  uint8_t v_known;
  uint8_t v_forward;
  uint8_t v_rel_count;
  uint8_t v_rel_cap;
  relrec *v_rel;
  const char *v_bif;
  section_record *v_section;
  symbol_record *v_symbol;
  symbol_record *v_symbol2;
  membrec *v_member;
};
