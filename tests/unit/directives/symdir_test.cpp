// Symbol directives: the flags, visibility and values they leave on the
// symbols, which the object shows only in part.
#include <string>

#include "directives/directives.h"
#include "driver/diag.h"
#include "secdir_fixture.h"

namespace {

TEST_F(SecdirTest, VisibilityNamesBothWays) {
  struct row {
    const char *name;
    uint32_t vis;
  };
  const row rows[] = {{".IMPORT", 1}, {".EXPORT", 2}, {".PROTECTED", 3}, {".HIDDEN", 4},
                      {".GLOBAL", 0}, {".hidden", 0}, {nullptr, 0}};
  for (const row &r : rows) {
    EXPECT_EQ(string_to_sym_visibility(r.name), r.vis) << (r.name ? r.name : "null");
    if (r.vis) {
      EXPECT_STREQ(sym_visibility_to_string(r.vis), r.name);
    }
  }
  EXPECT_STREQ(sym_visibility_to_string(0), "UNKNOWN");
  EXPECT_STREQ(sym_visibility_to_string(7), "UNKNOWN");
  object_format_chosen = 1;  // COFF has no visibility
  EXPECT_EQ(string_to_sym_visibility(".HIDDEN"), 0u);
}

TEST_F(SecdirTest, GlobalFamilyFlags) {
  const std::string screen = assemble(
      "        .weak w\n"
      "        .tls t\n"
      "        .system s\n"
      "        .hidden h\n"
      "        .protected h\n"
      "        .import i\n"
      "        .ref r\n"
      "        .data\n"
      "w:      .byte 1\n"
      "t:      .byte 1\n"
      "s:      .byte 1\n"
      "h:      .byte 1\n");
  EXPECT_TRUE(shown(screen, "E0300", ".HIDDEN cannot be specified for h, .PROTECTED has already been specified"));
  struct row {
    const char *name;
    uint32_t flags, vis, storage;
  };
  const row rows[] = {
      {"w", SYMF_WEAK, 0, SYM_STOR_GLOBAL},
      {"t", SYMF_TLS, 0, SYM_STOR_GLOBAL},
      {"s", SYMF_SYSTEM, 0, SYM_STOR_GLOBAL},
      {"h", 0, SYM_VIS_HIDDEN, SYM_STOR_GLOBAL},
      {"i", SYMF_REFERENCED, SYM_VIS_IMPORT, SYM_STOR_EXTERN},
      {"r", SYMF_REFERENCED, 0, SYM_STOR_EXTERN},
  };
  for (const row &r : rows) {
    const symbol_record *sym = SYM_query(r.name);
    ASSERT_NE(sym, nullptr) << r.name;
    EXPECT_EQ(sym->sym_flags & r.flags, r.flags) << r.name;
    EXPECT_EQ(SYM_get_vis(sym), r.vis) << r.name;
    EXPECT_EQ(sym->sym_storage, r.storage) << r.name;
    EXPECT_TRUE(sym->sym_flags & SYMF_DECLARED) << r.name;
  }
}

TEST_F(SecdirTest, EquCarriesTheForwardMark) {
  const std::string screen = assemble(
      "        .data\n"
      "        .byte X\n"
      "X       .set Y\n"
      "Y       .set 1\n"
      "a:      .byte 2\n"
      "R       .equ a\n"
      "C       .equ 7\n");
  EXPECT_TRUE(shown(screen, "E0300", "Symbol 'X' is referenced before it is defined;")) << screen;
  EXPECT_EQ(value_of("X"), 1u);
  EXPECT_TRUE(SYM_query("X")->sym_value.v_forward);
  // A relocatable value is always marked; a plain constant is not.
  EXPECT_TRUE(SYM_query("R")->sym_value.v_forward);
  EXPECT_EQ(SYM_query("R")->sym_value.v_type, VT_LABEL);
  EXPECT_FALSE(SYM_query("C")->sym_value.v_forward);
  EXPECT_EQ(LBL_current, nullptr);
}

TEST_F(SecdirTest, LoadTimeLabel) {
  const std::string screen = assemble(
      "        .data\n"
      "        .byte 1, 2\n"
      "        .label ld\n");
  EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  const symbol_record *ld = SYM_query("ld");
  ASSERT_NE(ld, nullptr);
  EXPECT_EQ(ld->sym_value.v_type, VT_LDLABEL);
  EXPECT_EQ(value_of("ld"), 2u);
  EXPECT_EQ(ld->sym_section, SCN_query(".data"));
  EXPECT_NE(ld->sym_object, nullptr);
}

TEST_F(SecdirTest, SymverRedirectsReferencesOfAnUndefinedSymbol) {
  const std::string screen = assemble(
      "        .global ext, def\n"
      "        .symver ext, ext@V1\n"
      "        .symver def, def@@V2\n"
      "        .data\n"
      "def:    .byte 1\n");
  EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  symbol_record *ext = SYM_query("ext");
  symbol_record *v1 = SYM_query("ext@V1");
  ASSERT_NE(v1, nullptr);
  EXPECT_EQ(ext->sym_value.v_symbol, v1);
  EXPECT_EQ(v1->sym_value.v_symbol, ext);
  EXPECT_TRUE(v1->sym_flags & SYMF_VERSIONED);
  EXPECT_EQ(v1->sym_storage, ext->sym_storage);
  const symbol_record *v2 = SYM_query("def@@V2");
  ASSERT_NE(v2, nullptr);
  EXPECT_EQ(v2->sym_section, SCN_query(".data"));
  EXPECT_EQ(v2->sym_value.v_type, VT_LABEL);
  EXPECT_EQ(SYM_query("def")->sym_value.v_symbol, SYM_query("def"));
}

TEST_F(SecdirTest, AliasesAndMetaInformationAreRecorded) {
  assemble(
      "        .symalias al, tg\n"
      "        .symmetainfo tg, \"SMK_RETAIN\", \"1\"\n"
      "        .sym_meta_info tg, \"SMK_NOINIT\", \"0\"\n"
      "        .data\n"
      "tg:     .byte 1\n"
      "al:     .byte 1\n");
  ASSERT_EQ(SYM_aliases.size(), 1u);
  EXPECT_EQ(SYM_aliases[0].first, SYM_query("al"));
  EXPECT_EQ(SYM_aliases[0].second, SYM_query("tg"));
  EXPECT_TRUE(SYM_is_global(SYM_query("al")));
  ASSERT_EQ(symtab_meta_records["tg"].size(), 2u);  // once: pass 1 only
  EXPECT_EQ(symtab_meta_records["tg"][1], (std::pair<std::string, std::string>{"SMK_NOINIT", "0"}));
}

}  // namespace
