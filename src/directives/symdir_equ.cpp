// .equ and .set, .label, and the absolute-listing pair .setsym and .setsect.
#include <cstdint>
#include <string>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "expr/expr.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"
#include "listing/listing.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

namespace {

// The value in the object column: four bytes of each non-zero 32-bit half.
void list_value(instruct *ir, const value_record &v) {
  linebuf *line = ir->line;
  if (!pass2 || !line) return;
  line->flags &= static_cast<uint16_t>(~LNF_ADDRESS);
  if (v.v_type == VT_FCON) {
    TRG_lst_flt_value(line, v.v_fval);
    return;
  }
  char mark = ' ';
  if (is_relocatable(v)) mark = v.v_section ? SCN_get_relch(v.v_section) : '!';
  const INT128 high = v.v_val >> 32;
  for (int half = 0; half < 2; ++half) {
    const uint32_t word = half ? high.to_u32() : v.v_val.to_u32();
    unsigned char bytes[4] = {static_cast<unsigned char>(word >> 24), static_cast<unsigned char>(word >> 16),
                              static_cast<unsigned char>(word >> 8), static_cast<unsigned char>(word)};
    LST_object(line, 0, bytes, mark, 4);
    if (high.to_u32() == 0) break;
  }
}

// The address a name gets under --absolute_listing, or the current one.
uint32_t load_address(const symbol_record *sym) {
  if (opt_on(OPT_ABSOLUTE_LISTING)) {
    auto fixed = sym_address_set.find(sym->sym_name);
    if (fixed != sym_address_set.end()) return fixed->second;
  }
  return SCN_address();
}

}  // namespace

// ---- Parse handlers -------------------------------------------------------------------

void DP_equ(instruct *ir) {
  IR_add_oprnd(ir, 0, DIR_get_oprnd({DPS_EXPR | DPS_FLOAT | DPS_REG, 32}));
  skip_to_expected_eol(ir->line);
}

void DP_label(instruct *ir) {
  DIR_read_slot(ir, 0, DPS_IDENT);
  skip_to_expected_eol(ir->line);
}

void DP_setsect(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_STRING)) DIR_read_slot(ir, 1, DPS_ABSINT);
  skip_to_expected_eol(ir->line);
}

void DP_setsym(instruct *ir) {
  DIR_read_slot(ir, 0, DPS_ABSINT);
  skip_to_expected_eol(ir->line);
}

// ---- .equ and .set ----------------------------------------------------------------------

void GD_equ(instruct *ir) {
  LBL_flushbuf(ir->line);
  const char *label = DIR_line_label(ir->line);
  if (!label) {
    error(ir->line, "E0100", "Label required");
    return;
  }
  operand *op = ir->oprnds[0];
  if (!op) return;
  value_record &v = op->value;
  symbol_record *sym = SYM_find(label);

  if (v.v_type == VT_COMMON)
    error(ir->line, "E0300", "Symbol cannot be defined in terms of a common symbol: \"%s\" (\"%s\" is common)",
          sym->sym_name.c_str(), v.v_symbol ? v.v_symbol->sym_name.c_str() : "");
  if (pass2 && (sym->sym_flags & SYMF_REF_THIS_PASS) && !is_relocatable(v) && sym->sym_value.v_forward)
    error(ir->line, "E0300",
          "Symbol '%s' is referenced before it is defined; its definition contains forward references to one "
          "or more constant symbols, so forward references to '%s' will not be properly resolved",
          sym->sym_name.c_str(), sym->sym_name.c_str());
  if (v.v_rel) {
    error(ir->line, "E0003", ".set/equ value cannot be a complex relocation expression");
    E_freeparts(&v);
    E_clrval(&v);
    v.v_type = 0;
    v.v_forward = 1;
  } else if (sym->sym_value.v_forward || is_relocatable(v)) {
    // The mark carries a forward value from pass 1 into pass 2.
    v.v_forward = 1;
  }
  SYM_define(sym, &v);

  if (pass2) {
    if (sym->sym_value.v_symbol == sym)
      error(ir->line, "E0300", "Symbol can't be defined in terms of itself: \"%s\"", sym->sym_name.c_str());
    else if (SYM_is_global(sym) && sym->sym_value.v_type == VT_UNDEFSYM)
      error(ir->line, "E0300", "Cannot equate an external symbol to an external symbol");
    if (SYM_is_global(sym) && sym->sym_value.v_type == VT_FCON)
      warn(ir->line, "E0300",
           "Cannot define an absolute symbol with a floating-point value; symbol's value will be encoded in "
           "floating-point format");
    if (!sym->sym_object && !SYM_is_global(sym)) {
      section_record *section = sym->sym_value.v_section;
      SYM_invent(sym, sym->sym_value.v_val.to_u32(), section, section ? 2 : 3, 3);
    }
  }
  LBL_free();
  list_value(ir, sym->sym_value);
}

// ---- .label: a load-time address ---------------------------------------------------------

void GD1_label(instruct *ir) {
  if (LBL_current) LBL_define();
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name) return;
  symbol_record *sym = SYM_find(name);
  if (SYM_is_defined_here(sym)) return;
  const uint32_t address = load_address(sym);
  value_record v;
  E_clrval(&v);
  v.v_type = VT_LDLABEL;
  v.v_val = xi_from_uint(address);
  v.v_section = curseg;
  v.v_symbol = sym;
  v.v_flags = VF_ADDRESS;
  v.v_bits = static_cast<uint16_t>(widthchk(static_cast<int32_t>(address), 48));
  SYM_define(sym, &v);
  if (!opt_on(OPT_DISABLE_BRANCH_PATCHING) && SYM_section_has_jumps()) SYM_record_label_jump(sym);
}

void GD2_label(instruct *ir) {
  if (LBL_current) LBL_define();
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name) return;
  symbol_record *sym = SYM_find(name);
  if ((sym->sym_flags & SYMF_DEFINED) || sym->sym_value.v_type != VT_LDLABEL) {
    error(ir->line, "E0900", "Invalid load-time label");
    return;
  }
  const uint32_t address = SCN_address();
  if (!opt_on(OPT_ABSOLUTE_LISTING) &&
      (sym->sym_value.v_val != xi_from_uint(address) || sym->sym_section != curseg))
    error(ir->line, "E9999", "Pass conflict");
  if (!sym->sym_object && !SYM_is_global(sym)) SYM_invent(sym, address, curseg, 2, 20);
  sym->sym_flags |= SYMF_DECLARED | SYMF_DEFINED;
}

// ---- Absolute listing ----------------------------------------------------------------------

void GD_setsect(instruct *ir) {
  if (LBL_current) LBL_define();
  if (!opt_on(OPT_ABSOLUTE_LISTING)) {
    error(ir->line, "E0900", ".setsect only valid if absolute listing produced (use -a option)");
    return;
  }
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name || !ir->oprnds[1]) return;
  if (ir->line) ir->line->flags &= static_cast<uint16_t>(~LNF_ADDRESS);
  // Pass 2 starts the section at the address already (section_start).
  if (!pass1) return;
  const uint32_t address = static_cast<uint32_t>(DIR_opnd_i64(ir->oprnds[1]));
  scn_address_set[name].first = address;
  if (section_record *s = SCN_query(name)) {
    s->scn_saved_pc += address;
    if (s == curseg) curpc += address;
  }
}

void GD_setsym(instruct *ir) {
  if (!opt_on(OPT_ABSOLUTE_LISTING))
    error(ir->line, "E0900", ".setsym only valid if absolute listing produced (use -a option)");
  LBL_flushbuf(ir->line);
  const char *label = DIR_line_label(ir->line);
  if (!label) {
    error(ir->line, "E0100", ".setsym requires a label");
    return;
  }
  if (ir->oprnds[0] && pass1) sym_address_set[label] = static_cast<uint32_t>(DIR_opnd_i64(ir->oprnds[0]));
  LBL_free();
}
