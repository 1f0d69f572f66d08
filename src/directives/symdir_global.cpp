// The .global family: .global, .def, .ref, .system, .export, .import, .weak,
// .tls, .protected and .hidden. Every one of them makes its symbols global;
// the handlers tell them apart by the row's name.
#include <cstdint>
#include <string_view>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "source/lexer.h"

namespace {

struct visibility_name {
  std::string_view name;
  uint32_t vis;
};
constexpr visibility_name visibility_names[] = {
    {".IMPORT", SYM_VIS_IMPORT},
    {".EXPORT", SYM_VIS_EXPORT},
    {".PROTECTED", SYM_VIS_PROTECTED},
    {".HIDDEN", SYM_VIS_HIDDEN},
};

// A value that a global symbol may stand for.
bool global_value_ok(const value_record &v) {
  switch (v.v_type) {
    case VT_ICON: case VT_FCON: case VT_REG: case VT_MMR: return true;
    default: return is_relocatable(v);
  }
}

}  // namespace

uint32_t string_to_sym_visibility(const char *name) {
  if (!name || !DIR_elf()) return SYM_VIS_NONE;
  for (const visibility_name &v : visibility_names)
    if (v.name == name) return v.vis;
  return SYM_VIS_NONE;
}

const char *sym_visibility_to_string(uint32_t vis) {
  for (const visibility_name &v : visibility_names)
    if (v.vis == vis) return v.name.data();
  return "UNKNOWN";
}

void DP_global(instruct *ir) {
  // At least one name; each read starts at the comma before its name.
  do {
    if (!DIR_read_slot(ir, 0, DPS_IDENT)) break;
  } while (curtk && curtk->kind == TK_COMMA);
  skip_to_expected_eol(ir->line);
}

void GD1_global(instruct *ir) {
  const std::string_view dir = DIR_name(ir);
  for (const operand *op = ir->oprnds[0]; op; op = op->next) {
    const char *name = DIR_opnd_text(op);
    if (!name) continue;
    symbol_record *sym = SYM_find(name);
    SYM_global(sym);
    if (opt_on(OPT_ABSOLUTE_LISTING) && !SYM_is_defined_here(sym)) {
      auto fixed = sym_address_set.find(sym->sym_name);
      if (fixed != sym_address_set.end()) {
        sym->sym_value.v_val = xi_from_uint(fixed->second);
        sym->sym_value.v_type = VT_LABEL;
      }
    }
    if (dir == ".REF") SYM_mark_referenced(sym);
    if (dir == ".GLOBAL" || dir == ".REF") {
      if (is_imported_undef(sym)) sym->sym_flags |= SYMF_AUTO_IMPORT;
    } else if (dir == ".WEAK") {
      sym->sym_flags |= SYMF_WEAK;
    } else if (dir == ".TLS") {
      sym->sym_flags |= SYMF_TLS;
    } else if (const uint32_t vis = string_to_sym_visibility(DIR_name(ir)); vis != SYM_VIS_NONE) {
      if (SYM_get_vis(sym) == SYM_VIS_NONE) {
        if (vis == SYM_VIS_IMPORT) SYM_mark_referenced(sym);
        SYM_set_vis(sym, vis);
      }
    }
  }
}

void GD2_global(instruct *ir) {
  const std::string_view dir = DIR_name(ir);
  const uint32_t vis = string_to_sym_visibility(DIR_name(ir));
  for (const operand *op = ir->oprnds[0]; op; op = op->next) {
    const char *name = DIR_opnd_text(op);
    symbol_record *sym = SYM_query(name);
    if (!sym) continue;
    sym->sym_flags |= SYMF_DECLARED;
    if (!global_value_ok(sym->sym_value)) {
      error(ir->line, "E0004", "Invalid identifier '%s' specified", name);
      continue;
    }
    if (dir == ".SYSTEM") {
      sym->sym_flags |= SYMF_SYSTEM;
    } else if (dir == ".DEF") {
      if (!SYM_is_defined_here(sym)) error(ir->line, "E0300", "'%s' is not defined in this source file", name);
    } else if (dir == ".REF") {
      if (SYM_is_defined_here(sym)) warn(ir->line, "W0000", "Defined symbol '%s' cannot have a .ref", name);
      SYM_mark_referenced(sym);
    } else if (vis != SYM_VIS_NONE) {
      const uint32_t had = SYM_get_vis(sym);
      if (had != SYM_VIS_NONE && had != vis)
        error(ir->line, "E0300", "%s cannot be specified for %s, %s has already been specified",
              sym_visibility_to_string(had), name, DIR_name(ir));
      if (vis == SYM_VIS_IMPORT) {
        if (SYM_is_defined_here(sym)) warn(ir->line, "W0000", "Defined symbol '%s' cannot have a .import", name);
        SYM_mark_referenced(sym);
      }
    }
  }
}
