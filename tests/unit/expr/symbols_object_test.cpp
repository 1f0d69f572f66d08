// Symbols handed over to an ELF object: binding, type and visibility of one
// symbol, the globals at the end, aliases, meta information, the file symbol.
#include "symbols_fixture.h"

#include "ofe/elf_defs.h"
#include "ofe/elf_file.h"
#include "ofe/elf_symbol.h"
#include "ofe/elf_tables.h"
#include "ofe/object_file.h"

namespace {

class SymObject : public SymbolsTest {
 protected:
  void SetUp() override {
    SymbolsTest::SetUp();
    ofile = OFE::OBJECT_FILE::new_OBJECT_FILE(OFE::OFF_ELF, OFE::OFV_ELF1, OFE::OFC_32, OFE::OFM_ARM, nullptr,
                                              "symbols_test.obj");
    ASSERT_NE(ofile, nullptr);
    ofile->elf_api()->elf_symbol_table()->set_default_visibility(OFE::STV_HIDDEN);
  }
  void TearDown() override {
    delete ofile;
    ofile = nullptr;
    SymbolsTest::TearDown();
  }

  static OFE::ELF_SYMBOL *elf(symbol_record *s) { return static_cast<OFE::ELF_SYMBOL *>(s->sym_object); }

  static symbol_record *constant(const char *name, uint32_t value) {
    symbol_record *s = SYM_find(name);
    value_record v = icon(value);
    SYM_define(s, &v);
    return s;
  }

  static OFE::OF_SYMBOL *object_symbol(const char *name) {
    return ofile->symbol_table()->symbol_name(name);
  }
};

TEST_F(SymObject, BindingByStorageClass) {
  struct row {
    int storage;
    uint32_t flags;
    OFE::OF_SYM_BINDING binding;
  };
  const row rows[] = {
      {3, 0, OFE::OFB_LOCAL},  {6, 0, OFE::OFB_LOCAL},          {20, 0, OFE::OFB_LOCAL},
      {19, 0, OFE::OFB_WEAK},  {2, 0, OFE::OFB_GLOBAL},         {2, SYMF_WEAK, OFE::OFB_WEAK},
      {23, 0, OFE::OFB_GLOBAL}, {21, SYMF_WEAK, OFE::OFB_WEAK},
  };
  int n = 0;
  for (const row &r : rows) {
    symbol_record *s = constant(("b" + std::to_string(n++)).c_str(), 0x1234);
    s->sym_flags |= r.flags;
    s->sym_size = 8;
    OFE::OF_SYMBOL *os = SYM_invent(s, 0x1234, nullptr, 3, r.storage);
    ASSERT_EQ(os, s->sym_object);
    EXPECT_EQ(os->binding(), r.binding) << r.storage;
    EXPECT_EQ(os->kind(), OFE::OFK_ABSOLUTE);
    EXPECT_EQ(os->value(), 0x1234u);
    EXPECT_EQ(os->size(), 8u);
    EXPECT_STREQ(os->name(), s->sym_name.c_str());
  }
}

TEST_F(SymObject, IllegalStorageClassIsFatal) {
  symbol_record *s = constant("bad", 1);
  EXPECT_EXIT(SYM_invent(s, 1, nullptr, 3, 4), ::testing::ExitedWithCode(1), "Illegal storage class in SYM_invent_elf");
}

TEST_F(SymObject, VisibilityOfExternalLinkage) {
  symbol_record *plain = constant("plain", 1);
  SYM_global(plain);
  SYM_invent(plain, 1, nullptr, 3, 2);
  EXPECT_EQ(elf(plain)->visibility(), OFE::STV_HIDDEN);

  symbol_record *exported = constant("exported", 1);
  SYM_global(exported);
  SYM_set_vis(exported, SYM_VIS_EXPORT);
  SYM_invent(exported, 1, nullptr, 3, 2);
  EXPECT_EQ(elf(exported)->visibility(), OFE::STV_DEFAULT);

  global_opts->setopt(OPT_VISIBILITY, "protected");
  symbol_record *by_option = constant("by_option", 1);
  SYM_global(by_option);
  SYM_invent(by_option, 1, nullptr, 3, 2);
  EXPECT_EQ(elf(by_option)->visibility(), OFE::STV_PROTECTED);
}

TEST_F(SymObject, CommonAndTls) {
  symbol_record *c = SYM_find("comm");
  value_record v = icon(0);
  v.v_type = VT_COMMON;
  SYM_define(c, &v);
  SYM_global(c);
  c->sym_align = 8;
  c->sym_size = 64;
  SYM_invent(c, 0, nullptr, 4, 2);
  EXPECT_EQ(c->sym_object->kind(), OFE::OFK_COMMON);
  EXPECT_EQ(c->sym_object->type(), OFE::OFY_COMMON);
  EXPECT_EQ(c->sym_object->value(), 8u);
  EXPECT_EQ(c->sym_object->size(), 64u);

  symbol_record *t = SYM_find("tls");
  t->sym_flags |= SYMF_TLS;
  SYM_global(t);
  SYM_invent(t, 0, nullptr, 1, 2);
  EXPECT_EQ(t->sym_object->type(), OFE::OFY_TLS);
  EXPECT_EQ(t->sym_object->kind(), OFE::OFK_UNDEFINED);
}

TEST_F(SymObject, GlobalsAtTheEnd) {
  symbol_record *defined = constant("g_defined", 5);
  SYM_global(defined);
  symbol_record *used_ext = SYM_find("g_used");
  SYM_global(used_ext);
  SYM_mark_referenced(used_ext);
  SYM_global(SYM_find("g_unused"));
  constant("local_only", 1);
  symbol_record *system = constant("g_system", 2);
  SYM_global(system);
  system->sym_flags |= SYMF_SYSTEM;
  symbol_record *early = constant("g_early", 3);
  SYM_global(early);
  OFE::OF_SYMBOL *first = SYM_invent(early, 3, nullptr, 3, 3);

  SYM_add_globs();
  ASSERT_NE(defined->sym_object, nullptr);
  EXPECT_EQ(defined->sym_object->kind(), OFE::OFK_ABSOLUTE);
  EXPECT_EQ(defined->sym_object->binding(), OFE::OFB_GLOBAL);
  EXPECT_EQ(defined->sym_object->value(), 5u);
  ASSERT_NE(used_ext->sym_object, nullptr);
  EXPECT_EQ(used_ext->sym_object->kind(), OFE::OFK_UNDEFINED);
  ASSERT_NE(system->sym_object, nullptr);
  EXPECT_EQ(early->sym_object, first);  // already in the object: not again
  EXPECT_EQ(object_symbol("g_unused"), nullptr);
  EXPECT_EQ(object_symbol("local_only"), nullptr);
  EXPECT_EQ(object_symbol("g_early"), first);
}

TEST_F(SymObject, Aliases) {
  symbol_record *a = constant("a", 1), *b = constant("b", 2), *lost = SYM_find("lost");
  SYM_invent(a, 1, nullptr, 3, 3);
  SYM_invent(b, 2, nullptr, 3, 3);
  SYM_add_alias(a, b);
  SYM_add_alias(lost, b);  // no object symbol: dropped without a message
  SYM_add_aliases();
  OFE::ELF_SYMALIAS_TABLE *table = ofile->elf_api()->symalias_table(false);
  ASSERT_NE(table, nullptr);
  ASSERT_EQ(table->alias_count(), 1u);
  EXPECT_EQ(table->alias(0), std::make_pair(a->sym_object->id(), b->sym_object->id()));
}

TEST_F(SymObject, MetaInformation) {
  symbol_record *s = constant("meta", 1);
  SYM_invent(s, 1, nullptr, 3, 3);
  symtab_meta_records["meta"] = {{"SMK_RETAIN", "1"},       {"SMK_LOCATION", "4096"},
                                 {"SMK_NOINIT", "0"},       {"SMK_OPTPRINTF_FORWARD", "x"},
                                 {"SMK_UNKNOWN", "ignored"}, {"SMK_USER_SECTION_NAME", ".mine"}};
  pass1 = pass2 = 0;
  std::string out = screen([] { SYM_add_metainfo(); });
  EXPECT_EQ(out, "");
  OFE::ELF_SYMBOL *es = elf(s);
  EXPECT_TRUE(es->is_retained());
  EXPECT_TRUE(es->has_location());
  EXPECT_EQ(es->location(), 4096u);
  EXPECT_FALSE(es->is_noinit());
  ASSERT_TRUE(es->has_optprintf_forward());
  EXPECT_EQ(es->optprintf_forward()->at(0), "x");
  EXPECT_STREQ(es->user_section_name(), ".mine");
  EXPECT_NE(ofile->elf_api()->sym_meta_section(), nullptr);

  symtab_meta_records["nowhere"] = {{"SMK_RETAIN", "1"}};
  out = screen([] { SYM_add_metainfo(); });
  EXPECT_TRUE(shown(out, "E0900", "nowhere is not defined in ELF symbol table")) << out;
}

TEST_F(SymObject, FileSymbol) {
  SYM_add_file("some/dir/source.asm");
  OFE::OF_SYMBOL *f = object_symbol("source.asm");
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(f->type(), OFE::OFY_FILE);
  EXPECT_EQ(f->binding(), OFE::OFB_LOCAL);
  EXPECT_EQ(f->kind(), OFE::OFK_ABSOLUTE);
  EXPECT_EQ(f->value(), 0u);
  SYM_update_file("some/dir/source.asm", "/tmp/original.c");
  EXPECT_STREQ(f->name(), "original.c");
}

}  // namespace
