// Symbol directives that speak to the ELF symbol table: .symalias, .symver,
// .symmetainfo, .elfsym, and .symdepend.
#include <cstdint>
#include <cstring>
#include <string>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/expr.h"
#include "expr/int128.h"
#include "expr/reloc.h"
#include "expr/symbols.h"
#include "ofe/object_file.h"
#include "ofe/of_machine.h"
#include "ofe/of_reloc_type.h"
#include "ofe/of_section.h"
#include "source/lexer.h"

namespace {

// The parts of a .symver text "name@VER", "name@@VER" or "name@@@VER". The
// first '@' starts the version; what follows the form's '@'s is the version.
struct version_text {
  std::string name;
  std::string version;
  int ats = 0;   // 1, 2 or 3
};

bool split_version(const std::string &text, version_text *out) {
  const size_t at = text.find('@');
  if (at == std::string::npos) return false;
  out->name = text.substr(0, at);
  size_t v = at + 1;
  out->ats = 1;
  while (out->ats < 3 && v < text.size() && text[v] == '@') {
    ++out->ats;
    ++v;
  }
  out->version = text.substr(v);
  return true;
}

// The symbol that .symdepend names: a symbol, else a section's own symbol.
symbol_record *depend_symbol(const char *name) {
  if (symbol_record *sym = SYM_query(name)) return sym;
  const section_record *s = SCN_query(name);
  return s ? s->scn_symbol : nullptr;
}

// The section of the symbol of that name, else the section of that name.
section_record *depend_section(const char *name) {
  if (const symbol_record *sym = SYM_query(name); sym && sym->sym_section) return sym->sym_section;
  return SCN_query(name);
}

}  // namespace

// ---- Parse handlers ----------------------------------------------------------------------

void DP_symalias(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_IDENT)) DIR_read_slot(ir, 1, DPS_IDENT);
  skip_to_expected_eol(ir->line);
}

void DP_symver(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_IDENT)) DIR_read_slot(ir, 1, DPS_RAW);
  skip_to_expected_eol(ir->line);
}

void DP_symdepend(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_STRING | DPS_IDENT)) DIR_read_slot(ir, 1, DPS_STRING | DPS_IDENT | DPS_OPTIONAL);
  skip_to_expected_eol(ir->line);
}

void DP_symmetainfo(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_IDENT) && DIR_read_slot(ir, 1, DPS_STRING)) DIR_read_slot(ir, 2, DPS_STRING);
  skip_to_expected_eol(ir->line);
}

void DP_elfsym(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_IDENT | DPS_OPTIONAL) && ir->oprnds[0]) {
    DIR_read_slot(ir, 1, DPS_ATTR | DPS_OPTIONAL);
    DIR_read_slot(ir, 2, DPS_ATTR | DPS_OPTIONAL);
  }
  skip_to_expected_eol(ir->line);
}

// ---- .symalias alias, target ----------------------------------------------------------------

void GD_symalias(instruct *ir) {
  const char *alias_name = DIR_opnd_text(ir->oprnds[0]);
  const char *target_name = DIR_opnd_text(ir->oprnds[1]);
  if (!DIR_elf() || !alias_name || !target_name) return;
  if (std::strcmp(alias_name, target_name) == 0) {
    warn(ir->line, "W0000", "%s cannot alias to itself\n", alias_name);
    return;
  }
  symbol_record *alias = SYM_find(alias_name);
  symbol_record *target = SYM_find(target_name);
  SYM_global(alias);
  SYM_global(target);
  if (!pass2) return;
  SYM_mark_referenced(alias);
  SYM_mark_referenced(target);
  SYM_add_alias(alias, target);
}

// ---- .symver name, name@VER ---------------------------------------------------------------

void GD_symver(instruct *ir) {
  const char *first_name = DIR_opnd_text(ir->oprnds[0]);
  const char *text = DIR_opnd_text(ir->oprnds[1]);
  if (!DIR_elf() || !first_name || !text) return;
  version_text vt;
  if (!split_version(text, &vt)) {
    error(ir->line, "E0300", "missing version name in '%s' for symbol '%s'", text, first_name);
    return;
  }
  symbol_record *first = SYM_query(first_name);
  if (!first) return;
  const bool defined = SYM_is_defined_here(first);
  // "@@@" is the default version of a definition, else a reference to one.
  // Pass 1 may not have met the definition yet: the choice waits for pass 2,
  // lest a reference to a version that pass 2 doesn't make be left behind.
  if (vt.ats == 3 && !defined && pass1) return;
  if (vt.ats == 3) vt.ats = defined ? 2 : 1;
  const std::string versioned_name = vt.name + (vt.ats == 2 ? "@@" : "@") + vt.version;

  if (vt.ats == 2 && !defined) {
    if (pass2)
      error(ir->line, "E0300", "undefined symbol '%s' cannot be used to declare default version name '%s'",
            first_name, versioned_name.c_str());
    return;
  }
  if (!defined) {
    // References to the symbol go to the versioned name.
    const symbol_record *other = first->sym_value.v_symbol;
    if (other && other != first && other->sym_name != versioned_name) {
      if (other->sym_flags & SYMF_VERSIONED)
        error(ir->line, "E0300", "multiple versions '%s and '%s' for symbol '%s'", other->sym_name.c_str(),
              versioned_name.c_str(), first_name);
      else
        error(ir->line, "E0300", "%s is defined in terms of '%s' and cannot have version", first_name,
              other->sym_name.c_str());
      return;
    }
  }
  symbol_record *versioned = SYM_find(versioned_name);
  if (!defined) {
    versioned->sym_flags |= SYMF_VERSIONED;
    SYM_mark_referenced(versioned);
    first->sym_value.v_symbol = versioned;
  }
  if (!pass2) return;

  versioned->sym_flags |= SYMF_VERSIONED;
  versioned->sym_storage = first->sym_storage;
  if (!defined) {
    SYM_mark_referenced(versioned);
    versioned->sym_value.v_symbol = first;
  } else {
    if (first->sym_value.v_symbol == versioned) first->sym_value.v_symbol = first;
    SYM_define(versioned, &first->sym_value);
    versioned->sym_section = first->sym_section;
  }
  if (!versioned->sym_object && !SYM_is_global(versioned))
    SYM_invent(versioned, versioned->sym_value.v_val.to_u32(), versioned->sym_section, defined ? 2 : 1, 3);
}

// ---- .symmetainfo sym, "key", "value" ----------------------------------------------------

void GD_symmetainfo(instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  const char *key = DIR_opnd_text(ir->oprnds[1]);
  const char *value = DIR_opnd_text(ir->oprnds[2]);
  if (!name || !key || !value) return;
  if (DIR_coff()) {
    error(ir->line, "E0900", ".sym_meta_info directive is only supported for ELF");
    return;
  }
  if (pass1) symtab_meta_records[name].emplace_back(key, value);
}

// ---- .elfsym sym[, SYM_SIZE(n)][, SYM_PRESERVE(n) | SYM_UPDATE(n)] ----------------------------

void GD_elfsym(instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name) {
    error(ir->line, "E0005", "Missing elfsym name operand");
    return;
  }
  const operand *size = nullptr;
  const operand *preserve = nullptr;
  const operand *update = nullptr;
  for (short slot = 1; slot <= 2; ++slot) {
    const operand *op = ir->oprnds[slot];
    if (!op) continue;
    switch (op->attribute) {
      case ATTR_SYM_SIZE: size = op; break;
      case ATTR_SYM_PRESERVE: preserve = op; break;
      case ATTR_SYM_UPDATE: update = op; break;
      default:
        error(ir->line, "E0004", "Wrong attr type in .elfsym");
        return;
    }
  }
  if (preserve && update) {
    error(ir->line, "E0004", "SYM_PRESERVE and SYM_UPDATE cannot be specified together in .elfsym");
    update = nullptr;
  }
  // Pass 1 only needs the size; preserve and update wait for pass 2.
  if (pass1 ? !size : !size && !preserve && !update) return;

  symbol_record *sym = pass1 ? SYM_find(name) : SYM_query(name);
  if (!sym) {
    error(ir->line, "E0004", "Symbol %s is not defined", name);
    return;
  }
  if (size) sym->sym_size = static_cast<uint32_t>(DIR_opnd_i64(size));
  if (!pass2 || (!preserve && !update) || !sym->sym_section) return;
  const operand *op = preserve ? preserve : update;
  const uint32_t flag = preserve ? SYMF_PRESERVE : SYMF_UPDATE;
  if (DIR_opnd_i64(op) & 1)
    sym->sym_flags |= flag;
  else
    sym->sym_flags &= ~flag;
  DIR_set_zq_flag(sym->sym_section, preserve ? OFE::ZQ_SHF_PRESERVE : OFE::ZQ_SHF_UPDATE);
}

// ---- .symdepend name[, name] -------------------------------------------------------------------

void GD_symdepend(instruct *ir) {
  if (!pass2) return;
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name) return;
  if (DIR_coff() && curseg && !curseg->scn_object->initialized()) {
    warn(ir->line, "W0006", ".symdepend directive ignored for uninitialized COFF sections");
    return;
  }
  symbol_record *sym = depend_symbol(name);
  if (!sym) {
    error(ir->line, "E0300", "Symbol %s not defined", name);
    return;
  }
  bool pushed = false;
  if (const char *place = DIR_opnd_text(ir->oprnds[1])) {
    section_record *s = depend_section(place);
    if (!s) {
      error(ir->line, "E0300", "Symbol %s not defined", place);
      return;
    }
    SCN_push();
    SCN_queue(s->scn_kind, s->name());
    pushed = true;
  }
  value_record v;
  E_clrval(&v);
  v.v_type = VT_LABEL;
  v.v_val = sym->sym_value.v_val;
  v.v_section = sym->sym_section;
  v.v_flags = sym->sym_value.v_flags;
  v.v_bits = sym->sym_value.v_bits;
  v.v_symbol = sym;
  RELOC_emit(nullptr, &v, curpc, ofile->reloc_type(OFE::OFR_NONE), 0, 0, 0);
  E_freeparts(&v);
  if (pushed) SCN_pop();
}
