// Symbols handed over to an ELF object. Binding, type and visibility as
// readelf shows them are checked end to end; here what no object shows.
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
  }
  void TearDown() override {
    delete ofile;
    ofile = nullptr;
    SymbolsTest::TearDown();
  }
  static symbol_record *constant(const char *name, uint32_t value) {
    symbol_record *s = SYM_find(name);
    value_record v = icon(value);
    SYM_define(s, &v);
    return s;
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
    SCOPED_TRACE(r.storage);
    symbol_record *s = constant(("b" + std::to_string(n++)).c_str(), 0x1234);
    s->sym_flags |= r.flags;
    OFE::OF_SYMBOL *os = SYM_invent(s, 0x1234, nullptr, 3, r.storage);
    ASSERT_EQ(os, s->sym_object);
    EXPECT_EQ(os->binding(), r.binding);
  }
  EXPECT_EXIT(SYM_invent(constant("bad", 1), 1, nullptr, 3, 4), ::testing::ExitedWithCode(1),
              "Illegal storage class in SYM_invent_elf");
}

TEST_F(SymObject, GlobalsAtTheEndOnlyWhenUsedOrDefined) {
  symbol_record *used_ext = SYM_find("g_used");
  SYM_global(used_ext);
  SYM_mark_referenced(used_ext);
  SYM_global(SYM_find("g_unused"));
  symbol_record *early = constant("g_early", 3);
  SYM_global(early);
  OFE::OF_SYMBOL *first = SYM_invent(early, 3, nullptr, 3, 3);
  SYM_add_globs();
  ASSERT_NE(used_ext->sym_object, nullptr);
  EXPECT_EQ(used_ext->sym_object->kind(), OFE::OFK_UNDEFINED);
  EXPECT_EQ(early->sym_object, first);  // already in the object: not again
  EXPECT_EQ(ofile->symbol_table()->symbol_name("g_unused"), nullptr);
}

TEST_F(SymObject, MetaInformationAndAliasesOfMissingSymbols) {
  symbol_record *s = constant("meta", 1), *b = constant("b", 2), *lost = SYM_find("lost");
  SYM_invent(s, 1, nullptr, 3, 3);
  SYM_invent(b, 2, nullptr, 3, 3);
  SYM_add_alias(s, b);
  SYM_add_alias(lost, b);  // no object symbol: dropped without a message
  SYM_add_aliases();
  OFE::ELF_SYMALIAS_TABLE *table = ofile->elf_api()->symalias_table(false);
  ASSERT_NE(table, nullptr);
  ASSERT_EQ(table->alias_count(), 1u);
  EXPECT_EQ(table->alias(0), std::make_pair(s->sym_object->id(), b->sym_object->id()));

  symtab_meta_records["meta"] = {{"SMK_RETAIN", "1"},  {"SMK_LOCATION", "4096"},     {"SMK_NOINIT", "0"},
                                 {"SMK_OPTPRINTF_FORWARD", "x"}, {"SMK_UNKNOWN", "ignored"}, {"SMK_USER_SECTION_NAME", ".mine"}};
  symtab_meta_records["nowhere"] = {{"SMK_RETAIN", "1"}};
  pass1 = pass2 = 0;
  std::string out = screen([] { SYM_add_metainfo(); });
  EXPECT_TRUE(shown(out, "E0900", "nowhere is not defined in ELF symbol table")) << out;
  EXPECT_EQ(num_errors, 1u) << out;  // an unknown key is passed over
  auto *es = static_cast<OFE::ELF_SYMBOL *>(s->sym_object);
  EXPECT_TRUE(es->is_retained());
  EXPECT_EQ(es->location(), 4096u);
  EXPECT_FALSE(es->is_noinit());
  ASSERT_TRUE(es->has_optprintf_forward());
  EXPECT_EQ(es->optprintf_forward()->at(0), "x");
  EXPECT_STREQ(es->user_section_name(), ".mine");
}

TEST_F(SymObject, FileSymbolTakesTheOriginalName) {
  SYM_add_file("some/dir/source.asm");
  OFE::OF_SYMBOL *f = ofile->symbol_table()->symbol_name("source.asm");
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(f->type(), OFE::OFY_FILE);
  SYM_update_file("some/dir/source.asm", "/tmp/original.c");
  EXPECT_STREQ(f->name(), "original.c");
}

}  // namespace
