// The symbol table: look-up and creation, definition in each pass, the
// reset between the passes and the report of undefined symbols.
#include "expr/symbols.h"

#include <cstdio>
#include <cstring>
#include <strings.h>
#include <string_view>
#include <vector>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/expr.h"
#include "expr/symbols_internal.h"
#include "listing/listing.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "source/ophash.h"
#include "support/fhm.h"

symbol_record *names[NAME_BUCKETS + 1];
tag_record *tagnames[NAME_BUCKETS + 1];

std::vector<std::pair<symbol_record *, symbol_record *>> SYM_aliases;
std::map<std::string, std::vector<std::pair<std::string, std::string>>> symtab_meta_records;
std::map<std::string, uint32_t> sym_address_set;

namespace {

// A name as the table stores it, and whether it was written `||name||`.
struct normal_name {
  std::string text;
  bool escaped;
  uint32_t full_hash = 0;
  int bucket() const { return static_cast<int>(full_hash % NAME_BUCKETS); }
};

normal_name normalise(std::string_view given) {
  normal_name n{std::string(given), false};
  if (const std::string *sub = SYM_register_substitute(n.text)) n.text = *sub;
  // The escape test looks at the name as written, not at its substitute.
  n.escaped = given.size() >= 2 && given[0] == '|' && given[1] == '|';
  if (n.escaped) std::erase(n.text, '|');
  if (opt_on(OPT_SYMS_IGNORE_CASE)) strupper(n.text);
  n.full_hash = hash_full(n.text);
  return n;
}

// Plain look-ups (not escaped, not built-in) find the first record of the
// name in its chain. Chains grow long in large sources, so that record is
// also indexed by name; only SYM_find links records in and SYM_init frees them.
// Open addressing in one array: no node per name, and the stored hash is
// compared before any name.
class name_index {
public:
  symbol_record *find(std::string_view text, uint32_t hash) const {
    if (slots_.empty()) return nullptr;
    for (size_t i = home(hash);; i = (i + 1) & mask()) {
      const slot &sl = slots_[i];
      if (!sl.record) return nullptr;
      if (sl.hash == hash && sl.record->sym_name == text) return sl.record;
    }
  }

  // The record becomes the first of its name.
  void put(symbol_record *record) {
    if ((used_ + 1) * 2 > slots_.size()) grow();
    slot &sl = probe(record->sym_name, record->sym_hash);
    if (!sl.record) ++used_;
    sl = {record->sym_hash, record};
  }

  void clear() {
    std::vector<slot>().swap(slots_);
    used_ = 0;
  }

private:
  struct slot {
    uint32_t hash;
    symbol_record *record;
  };

  size_t mask() const { return slots_.size() - 1; }
  // The stored hash rotates and folds characters; a multiplication spreads
  // it over the high bits that pick the slot.
  size_t home(uint32_t hash) const {
    return static_cast<size_t>((static_cast<uint64_t>(hash) * 0x9E3779B97F4A7C15ull) >> 32) & mask();
  }
  slot &probe(std::string_view text, uint32_t hash) {
    for (size_t i = home(hash);; i = (i + 1) & mask()) {
      slot &sl = slots_[i];
      if (!sl.record || (sl.hash == hash && sl.record->sym_name == text)) return sl;
    }
  }
  void grow() {
    std::vector<slot> old(slots_.empty() ? 1024 : slots_.size() * 2);
    old.swap(slots_);
    for (const slot &sl : old)
      if (sl.record) probe(sl.record->sym_name, sl.hash) = sl;
  }

  std::vector<slot> slots_;
  size_t used_ = 0;
};

name_index first_of_name;

// The bucket walk shared by SYM_find and SYM_query. `after` receives the
// last built-in record of equal name that an escaped user search passed.
symbol_record *bucket_match(const normal_name &n, bool builtin, symbol_record **after) {
  if (!n.escaped && !builtin) {
    return first_of_name.find(n.text, n.full_hash);
  }
  for (symbol_record *s = names[n.bucket()]; s; s = s->sym_next) {
    if (s->sym_hash != n.full_hash || s->sym_name != n.text) continue;
    bool is_builtin = (s->sym_flags & SYMF_BUILTIN) != 0;
    if (!n.escaped) {
      if (!builtin || is_builtin) return s;
    } else if (builtin == is_builtin) {
      return s;
    } else if (is_builtin && after) {
      *after = s;
    }
  }
  return nullptr;
}

symbol_record *new_symbol(const std::string &name, bool builtin) {
  auto *s = new symbol_record{};
  s->sym_name = name;
  E_clrval(&s->sym_value);
  s->sym_value.v_type = VT_UNDEFSYM;
  s->sym_value.v_symbol = s;
  s->sym_storage = SYM_STOR_NONE;
  if (builtin) s->sym_flags |= SYMF_BUILTIN;
  return s;
}

bool xref_wanted(const symbol_record *s) {
  return pass1 && opt_on(OPT_CROSS_REFERENCE) && s->sym_value.v_type != VT_REG;
}

void free_symbol(symbol_record *s) {
  while (xref_record *x = s->sym_xref) {
    s->sym_xref = x->next;
    delete x;
  }
  E_freeparts(&s->sym_value);
  delete s;
}

}  // namespace

symbol_record *SYM_find(std::string_view name, bool builtin) {
  normal_name n = normalise(name);
  symbol_record *after = nullptr;
  symbol_record *s = bucket_match(n, builtin, &after);
  if (!s) {
    s = new_symbol(n.text, builtin);
    s->sym_hash = n.full_hash;
    // Behind the built-in record, so plain look-ups keep finding it first;
    // at the head of the chain it is the first record of its name.
    symbol_record **link = after ? &after->sym_next : &names[n.bucket()];
    s->sym_next = *link;
    *link = s;
    if (!after) first_of_name.put(s);
  }
  if (xref_wanted(s)) {
    s->sym_xref = new xref_record{s->sym_xref, static_cast<uint16_t>(static_cast<unsigned char>(f_lchar)),
                                  static_cast<uint16_t>(f_lnum), 0, modified_op ? uint8_t{1} : uint8_t{0}};
  }
  return s;
}

symbol_record *SYM_query(std::string_view name) {
  normal_name n = normalise(name);
  return bucket_match(n, false, nullptr);
}

symbol_record *SYM_query(const char *name) {
  return name ? SYM_query(std::string_view(name)) : nullptr;
}

void SYM_define(symbol_record *sym, const value_record *value) {
  if (sym->sym_flags & SYMF_DEFINED) {
    // The first definition of the pass stands.
    if (pass2 && !SYM_value_eq(sym, value)) {
      error(curline, "E0300", "Redefinition of %s attempted", sym->sym_name.c_str());
    }
    return;
  }
  bool sectionless = value->v_type == VT_UNDEFSYM || value->v_type == VT_COMMON;
  sym->sym_section = sectionless ? nullptr : curseg;
  sym->sym_storage = SYM_is_global(sym) ? SYM_STOR_GLOBAL : SYM_STOR_LOCAL;
  // The given record may live in the expression zone: the symbol keeps copies.
  E_freeparts(&sym->sym_value);
  E_cpy2val(&sym->sym_value, value);
  if (xref_wanted(sym) && sym->sym_xref) sym->sym_xref->is_def = 1;
  sym->sym_flags |= SYMF_DECLARED | SYMF_DEFINED;
}

bool SYM_value_eq(const symbol_record *sym, const value_record *value) {
  const value_record &old = sym->sym_value;
  if (old.v_type == VT_FCON) {
    return value->v_type == VT_FCON && old.v_fval && value->v_fval && f_eq(old.v_fval, value->v_fval);
  }
  return old.v_type == value->v_type && !old.v_rel && !value->v_rel && old.v_section == value->v_section &&
         old.v_symbol == value->v_symbol && old.v_flags == value->v_flags && old.v_bits == value->v_bits &&
         std::memcmp(old.v_val.b, value->v_val.b, sizeof old.v_val.b) == 0 && old.v_fval == value->v_fval &&
         old.v_str == value->v_str;
}

void SYM_global(symbol_record *sym) {
  sym->sym_flags |= SYMF_DECLARED;
  sym->sym_storage = SYM_is_defined_here(sym) ? SYM_STOR_GLOBAL : SYM_STOR_EXTERN;
}

symbol_record *SYM_set_predef(std::string_view name, int64_t value, bool is_signed) {
  symbol_record *sym = SYM_find(name, false);
  if (!(sym->sym_flags & SYMF_DEFINED)) {
    sym->sym_value.v_type = VT_ICON;
    sym->sym_storage = SYM_is_global(sym) ? SYM_STOR_GLOBAL : SYM_STOR_LOCAL;
    sym->sym_flags |= SYMF_DECLARED | SYMF_DEFINED;
    if (xref_wanted(sym) && sym->sym_xref) {
      sym->sym_xref->is_def = 1;
      sym->sym_xref->file_letter = ' ';
      sym->sym_xref->line = 0;
    }
  }
  auto v = static_cast<uint32_t>(value);
  sym->sym_value.v_val = xi_from_uint(v);
  sym->sym_value.v_bits = static_cast<uint16_t>(widthchk(static_cast<int32_t>(v), is_signed ? 1 : 8));
  return sym;
}

void SYM_reset() {
  for (int h = 0; h < NAME_BUCKETS; ++h) {
    for (symbol_record *s = names[h]; s; s = s->sym_next) {
      uint32_t &f = s->sym_flags;
      if (f & SYMF_AUTO_IMPORT) {
        f &= ~SYMF_AUTO_IMPORT;
        // An external still undefined and without visibility becomes an import.
        if (!SYM_is_defined_here(s) && SYM_get_vis(s) == SYM_VIS_NONE) SYM_set_vis(s, SYM_VIS_IMPORT);
      }
      f &= ~(SYMF_DECLARED | SYMF_DEFINED);
      if (f & SYMF_REFERENCED) f &= ~SYMF_REF_THIS_PASS;
    }
  }
}

void SYM_checkdefs() {
  if (opt_on(OPT_PREPROCESS)) return;
  bool first = true;
  for (int h = 0; h < NAME_BUCKETS; ++h) {
    for (symbol_record *s = names[h]; s; s = s->sym_next) {
      if (s->sym_storage != SYM_STOR_NONE || s->sym_object) continue;
      if (first) {
        error(nullptr, "E0300", "The following symbols are undefined:");
        first = false;
      }
      std::fprintf(stderr, "  %s\n", s->sym_name.c_str());
      if (ASSY_LST) {
        if (LST_linesprinted >= LST_pagelen) LST_pagehdr();
        std::fprintf(ASSY_LST->fp(), "  %s\n", s->sym_name.c_str());
        ++LST_linesprinted;
      }
    }
  }
  std::fflush(stderr);
}

bool SYM_option_item_is(option_id id, const char *item) {
  if (!global_opts || !opt_on(id)) return false;
  const char *text = global_opts->getstrarg(id, 0);
  if (!text) return false;
  if (*text == ' ' || *text == '*') ++text;  // the marker of a stored item text
  return strcasecmp(text, item) == 0;
}

unsigned SYM_elf_visibility(const symbol_record *sym) {
  switch (SYM_get_vis(sym)) {
    case SYM_VIS_NONE:
      if (!SYM_is_global(sym) || !opt_on(OPT_VISIBILITY)) return 2;  // STV_HIDDEN
      if (SYM_option_item_is(OPT_VISIBILITY, "default")) return 0;
      if (SYM_option_item_is(OPT_VISIBILITY, "protected")) return 3;
      return 2;
    case SYM_VIS_IMPORT:
    case SYM_VIS_EXPORT: return 0;  // STV_DEFAULT
    case SYM_VIS_PROTECTED: return 3;
    case SYM_VIS_HIDDEN: return 2;
    default: return 4;
  }
}

bool is_imported_undef(const symbol_record *sym) {
  return sym->sym_storage == SYM_STOR_EXTERN && opt_on(OPT_IMPORT_UNDEF) &&
         SYM_option_item_is(OPT_IMPORT_UNDEF, "on");
}

void SYM_init() {
  first_of_name.clear();
  for (int h = 0; h <= NAME_BUCKETS; ++h) {
    while (symbol_record *s = names[h]) {
      names[h] = s->sym_next;
      free_symbol(s);
    }
    while (tag_record *t = tagnames[h]) {
      tagnames[h] = t->next;
      delete t;
    }
  }
  LBL_free();
  LOCLBL_init();
  SYM_aliases.clear();
  symtab_meta_records.clear();
  sym_address_set.clear();
}

tag_record *TAG_define(std::string_view name, uint16_t kind, uint16_t level) {
  std::string text(name);
  int h = hash(text);
  tagnames[h] = new tag_record{tagnames[h], std::move(text), nullptr, kind, level};
  return tagnames[h];
}

tag_record *TAG_find(std::string_view name, uint16_t kind, uint16_t level) {
  for (tag_record *t = tagnames[hash(std::string(name))]; t; t = t->next) {
    if (t->name == name && (t->kind == kind || t->kind == 0) && t->level <= level) return t;
  }
  return nullptr;
}
