// The symbol table: look-up rules, definitions, the reset
// between the passes and the end-of-run checks.
#include "symbols_fixture.h"

#include <tuple>

#include "directives/sections.h"

#include "source/copy.h"
#include "source/lexer.h"
#include "source/ophash.h"

namespace {

using SymTable = SymbolsTest;

TEST_F(SymTable, FindCreatesOnceQueryOnlyFinds) {
  EXPECT_EQ(SYM_query("abc"), nullptr);
  symbol_record *s = SYM_find("abc");
  ASSERT_NE(s, nullptr);
  EXPECT_EQ(SYM_find("abc"), s);
  EXPECT_EQ(SYM_query("abc"), s);
  EXPECT_EQ(SYM_query(std::string("abc")), s);
  EXPECT_EQ(SYM_query(static_cast<const char *>(nullptr)), nullptr);
  EXPECT_EQ(SYM_query("ABC"), nullptr);  // case counts without --syms_ignore_case
  EXPECT_EQ(s->sym_value.v_type, VT_UNDEFSYM);
  EXPECT_EQ(s->sym_value.v_symbol, s);
}

TEST_F(SymTable, IgnoreCaseStoresUpperCase) {
  global_opts->setopt(OPT_SYMS_IGNORE_CASE);
  symbol_record *s = SYM_find("MixedCase");
  EXPECT_EQ(s->sym_name, "MIXEDCASE");
  EXPECT_EQ(SYM_query("mixedcase"), s);
  EXPECT_EQ(SYM_find("MIXEDcase"), s);
  symbol_record *escaped = SYM_find("||mixed||");
  EXPECT_EQ(escaped->sym_name, "MIXED");
  EXPECT_EQ(SYM_query("Mixed"), escaped);
}

TEST_F(SymTable, EscapedNamesBesideBuiltins) {
  symbol_record *reg = SYM_find("r0", true);
  value_record v = icon(0);
  v.v_type = VT_REG;
  SYM_define(reg, &v);

  symbol_record *user = SYM_find("||r0||");
  EXPECT_NE(user, reg);
  EXPECT_EQ(user->sym_name, "r0");
  EXPECT_EQ(user->sym_flags & SYMF_BUILTIN, 0u);
  // The user symbol sits behind the register, so a plain name still finds it.
  EXPECT_EQ(reg->sym_next, user);
  EXPECT_EQ(SYM_find("r0"), reg);
  EXPECT_EQ(SYM_query("r0"), reg);
  EXPECT_EQ(SYM_query("||r0||"), user);
  EXPECT_EQ(SYM_find("||r0||"), user);
  EXPECT_EQ(SYM_find("r0", true), reg);
  EXPECT_EQ(SYM_find("||r0||", true), reg);

  // Every bar is dropped; a single leading bar is no escape.
  EXPECT_EQ(SYM_find("||a|b||")->sym_name, "ab");
  EXPECT_EQ(SYM_find("|c|")->sym_name, "|c|");

  // A built-in search skips a user record; a plain look-up takes the newer built-in.
  symbol_record *x = SYM_find("x"), *builtin = SYM_find("x", true);
  EXPECT_NE(x, builtin);
  EXPECT_EQ(SYM_find("x"), builtin);
  EXPECT_EQ(SYM_find("||x||"), x);
}

TEST_F(SymTable, StorageFollowsDefinitionAndGlobal) {
  struct row {
    const char *ops;  // d: define, g: global
    uint32_t storage;
  };
  const row rows[] = {{"", 0}, {"d", 1}, {"g", 2}, {"dg", 3}, {"gd", 3}, {"gg", 2}, {"dgg", 3}};
  int n = 0;
  for (const row &r : rows) {
    symbol_record *s = SYM_find("s" + std::to_string(n++));
    value_record v = icon(1);
    for (const char *op = r.ops; *op; ++op) {
      if (*op == 'd') SYM_define(s, &v);
      else SYM_global(s);
    }
    EXPECT_EQ(s->sym_storage, r.storage) << r.ops;
    EXPECT_EQ((s->sym_flags & SYMF_DECLARED) != 0, *r.ops != 0) << r.ops;
  }
}

TEST_F(SymTable, ValueEquality) {
  symbol_record *s = SYM_find("s");
  value_record v = icon(5);
  SYM_define(s, &v);
  struct row {
    const char *what;
    void (*change)(value_record &);
    bool equal;
  };
  const row rows[] = {
      {"same", [](value_record &) {}, true}, {"value", [](value_record &r) { r.v_val = xi_from_int(6); }, false},
      {"type", [](value_record &r) { r.v_type = VT_MMR; }, false},
      {"width", [](value_record &r) { r.v_bits = 8; }, false},
      {"flags", [](value_record &r) { r.v_flags = VF_SIGNED; }, false},
      {"section", [](value_record &r) { r.v_section = reinterpret_cast<section_record *>(8); }, false},
      {"symbol", [](value_record &r) { r.v_symbol = reinterpret_cast<symbol_record *>(8); }, false},
      {"relocation", [](value_record &r) { r.v_rel = reinterpret_cast<relrec *>(8); }, false},
  };
  for (const row &r : rows) {
    value_record w = v;
    r.change(w);
    EXPECT_EQ(SYM_value_eq(s, &w), r.equal) << r.what;
  }
  // A floating value gets a record of its own and compares by value.
  symbol_record *f = SYM_find("f");
  simul_fval fv{{0x8000, 0, 0, 0, 0, 0}, 1, 0}, other = fv;
  value_record fl = icon(0);
  fl.v_type = VT_FCON;
  fl.v_fval = &fv;
  SYM_define(f, &fl);
  ASSERT_NE(f->sym_value.v_fval, nullptr);
  EXPECT_NE(f->sym_value.v_fval, &fv);
  EXPECT_TRUE(SYM_value_eq(f, &fl));
  other.exponent = 2;
  fl.v_fval = &other;
  EXPECT_FALSE(SYM_value_eq(f, &fl));
  EXPECT_FALSE(SYM_value_eq(f, &v));
}

TEST_F(SymTable, PredefinedIntegers) {
  struct row {
    const char *name;
    int64_t value;
    bool is_signed;
    uint32_t stored;
    uint16_t bits;
  };
  const row rows[] = {
      {"P1", 1, false, 1, 5},          {"PNEG", -1, true, 0xFFFFFFFF, 5},
      {"P300", 300, false, 300, 9},    {"PBIG", 0x12345678, false, 0x12345678, 32},
      {"PM200", -200, true, 0xFFFFFF38, 9},
  };
  for (const row &r : rows) {
    symbol_record *s = SYM_set_predef(r.name, r.value, r.is_signed);
    EXPECT_EQ(s->sym_value.v_val, xi_from_uint(r.stored)) << r.name;
    EXPECT_EQ(s->sym_value.v_bits, r.bits) << r.name;
  }
  // A later setting in the same pass still stores its value.
  EXPECT_EQ(SYM_set_predef("P1", 7, false)->sym_value.v_val, xi_from_int(7));
}

TEST_F(SymTable, ResetClearsPassFlagsAndTurnsAutoImports) {
  struct row {
    uint32_t storage;
    uint32_t flags;
    uint32_t vis;
    uint32_t flags_after;
    uint32_t vis_after;
  };
  const uint32_t pass_bits = SYMF_DECLARED | SYMF_DEFINED;
  const row rows[] = {
      {1, pass_bits | SYMF_WEAK, 0, SYMF_WEAK, 0},
      {0, SYMF_REF_THIS_PASS, 0, SYMF_REF_THIS_PASS, 0},  // kept without the kept-across bit
      {0, SYMF_REFERENCED | SYMF_REF_THIS_PASS, 0, SYMF_REFERENCED, 0},
      {2, SYMF_AUTO_IMPORT | SYMF_DECLARED, 0, 0, SYM_VIS_IMPORT},
      {2, SYMF_AUTO_IMPORT, SYM_VIS_HIDDEN, 0, SYM_VIS_HIDDEN}, {3, SYMF_AUTO_IMPORT | pass_bits, 0, 0, 0},
  };
  int n = 0;
  for (const row &r : rows) {
    symbol_record *s = SYM_find("r" + std::to_string(n++));
    s->sym_storage = r.storage;
    s->sym_flags = r.flags;
    SYM_set_vis(s, r.vis);
    SYM_reset();
    EXPECT_EQ(s->sym_flags & ~SYMF_VIS, r.flags_after) << n;
    EXPECT_EQ(SYM_get_vis(s), r.vis_after) << n;
    EXPECT_EQ(s->sym_storage, r.storage);
  }
}

TEST_F(SymTable, CheckdefsQuietWhenAllDefinedOrPreprocessing) {
  SYM_global(SYM_find("external"));
  pass1 = pass2 = 0;
  std::string out = screen([] { SYM_checkdefs(); });
  EXPECT_EQ(out, "");
  SYM_find("missing");
  global_opts->setopt(OPT_PREPROCESS);
  out = screen([] { SYM_checkdefs(); });
  EXPECT_EQ(out, "");
  EXPECT_EQ(num_errors, 0u);
}

TEST_F(SymTable, Tags) {
  TAG_define("t", 1, 2);
  TAG_define("any", 0, 0);
  struct row {
    const char *name;
    uint16_t kind, level;
    bool found;
  };
  const row rows[] = {
      {"t", 1, 2, true},  {"t", 1, 5, true},   {"t", 1, 1, false}, {"t", 2, 2, false},
      {"T", 1, 2, false}, {"any", 7, 0, true}, {"none", 0, 9, false},
  };
  for (const row &r : rows) {
    tag_record *t = TAG_find(r.name, r.kind, r.level);
    EXPECT_EQ(t != nullptr, r.found) << r.name << " " << r.kind << " " << r.level;
    if (t) {
      EXPECT_EQ(t->name, r.name);
    }
  }
  // The newest definition of a name is found first.
  tag_record *newer = TAG_define("t", 1, 0);
  EXPECT_EQ(TAG_find("t", 1, 2), newer);
}

const sym_init keyword_rows[] = {{"KEYA", 3, VT_KEYWORD}, {"keyb", 4, VT_KEYWORD}, {nullptr, 0, 0}};
const sym_init predef_rows[] = {{"P5", 5, VT_COPRID}, {"DW_X", 300, VT_ICON}, {nullptr, 0, 0}};

TEST_F(SymTable, KeywordAndPredefinedRows) {
  init_keywords(keyword_rows);
  init_predefs(predef_rows);
  // Keywords are entered as written and in upper case.
  for (const char *n : {"KEYA", "keya", "keyb"}) ASSERT_NE(SYM_query(n), nullptr) << n;
  EXPECT_EQ(SYM_query("KEYB"), nullptr);
  EXPECT_EQ(SYM_query("keya")->sym_flags & SYMF_PREDEF, 0u);

  symbol_record *p = SYM_query("P5");
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(p->sym_flags & (SYMF_BUILTIN | SYMF_PREDEF | SYMF_DEFINED), SYMF_BUILTIN | SYMF_PREDEF | SYMF_DEFINED);
  EXPECT_EQ(SYM_query("DW_X")->sym_value.v_bits, 9);

  // Before pass 2 the rows are entered again and find their records.
  start_pass2();
  init_predefs(predef_rows);
  EXPECT_EQ(SYM_query("P5"), p);
  EXPECT_NE(p->sym_flags & SYMF_DEFINED, 0u);
  EXPECT_EQ(num_errors, 0u);
}

TEST_F(SymTable, KeywordsOnceUnderIgnoreCase) {
  global_opts->setopt(OPT_SYMS_IGNORE_CASE);
  init_keywords(keyword_rows);
  EXPECT_EQ(SYM_query("keyb"), SYM_query("KEYB"));
  int records = 0;
  for (symbol_record *s = names[hash("KEYB")]; s; s = s->sym_next) records += s->sym_name == "KEYB";
  EXPECT_EQ(records, 1);
}

TEST_F(SymTable, ElfVisibility) {
  struct row {
    uint32_t storage;
    uint32_t vis;
    const char *option;  // --visibility item, or null
    unsigned expected;
  };
  const row rows[] = {
      {3, 0, nullptr, 2},     {2, 0, nullptr, 2},         {1, 0, "default", 2},
      {3, 0, "default", 0},   {3, 0, "protected", 3},     {3, 0, "hidden", 2},
      {1, SYM_VIS_IMPORT, nullptr, 0}, {3, SYM_VIS_EXPORT, nullptr, 0},
      {3, SYM_VIS_PROTECTED, nullptr, 3}, {3, SYM_VIS_HIDDEN, "default", 2}, {3, 5, nullptr, 4},
  };
  symbol_record *s = SYM_find("v");
  for (const row &r : rows) {
    global_opts->clearopt(OPT_VISIBILITY);
    if (r.option) global_opts->setopt(OPT_VISIBILITY, r.option);
    s->sym_storage = r.storage;
    SYM_set_vis(s, r.vis);
    EXPECT_EQ(SYM_elf_visibility(s), r.expected) << r.storage << " " << r.vis << " " << (r.option ? r.option : "-");
  }
}

TEST_F(SymTable, ImportedUndefined) {
  symbol_record *s = SYM_find("e");
  SYM_global(s);
  EXPECT_FALSE(is_imported_undef(s));
  global_opts->setopt(OPT_IMPORT_UNDEF, "off");
  EXPECT_FALSE(is_imported_undef(s));
  global_opts->clearopt(OPT_IMPORT_UNDEF);
  global_opts->setopt(OPT_IMPORT_UNDEF, "on");
  EXPECT_TRUE(is_imported_undef(s));
  value_record one = icon(1);
  SYM_define(s, &one);
  EXPECT_FALSE(is_imported_undef(s));
}

TEST_F(SymTable, ReferencesAreRecordedInPass1Only) {
  global_opts->setopt(OPT_CROSS_REFERENCE);
  f_lchar = 'A';
  f_lnum = 7;
  modified_op = 1;
  symbol_record *s = SYM_find("x");
  modified_op = 0;
  f_lnum = 9;
  value_record one = icon(1);
  SYM_define(SYM_find("x"), &one);

  auto fields = [](const xref_record *x) { return std::make_tuple(x->file_letter, x->line, x->modified, x->is_def); };
  ASSERT_NE(s->sym_xref, nullptr);
  const xref_record *def = s->sym_xref, *use = def->next;
  ASSERT_NE(use, nullptr);
  EXPECT_EQ(use->next, nullptr);
  EXPECT_EQ(fields(use), std::make_tuple('A', 7, 1, 0));
  EXPECT_EQ(fields(def), std::make_tuple('A', 9, 0, 1));

  // Registers and pass 2 record nothing.
  symbol_record *r = SYM_find("r1", true);
  value_record reg = icon(1);
  reg.v_type = VT_REG;
  SYM_define(r, &reg);
  xref_record *before = r->sym_xref;
  SYM_find("r1");
  EXPECT_EQ(r->sym_xref, before);
  start_pass2();
  SYM_find("x");
  EXPECT_EQ(s->sym_xref, def);

  // A predefined symbol is defined on no line.
  pass1 = 1;
  pass2 = 0;
  symbol_record *p = SYM_set_predef("PD", 1, false);
  ASSERT_NE(p->sym_xref, nullptr);
  EXPECT_EQ(fields(p->sym_xref), std::make_tuple(' ', 0, 0, 1));
  f_lchar = ' ';
  f_lnum = 0;
}

}  // namespace
