// Section and symbol directives: what they leave on the object sections,
// section records and symbols beyond what the object file shows.
#include <cstdlib>
#include <string>

#include "directives/directives.h"
#include "driver/directive_ids.h"
#include "driver/options.h"
#include "ofe/elf_defs.h"
#include "ofe/of_machine.h"
#include "secdir_fixture.h"

namespace {

TEST_F(SecdirTest, VisibilityNamesBothWays) {
  const struct { const char *name; uint32_t vis; } rows[] = {
      {".IMPORT", 1}, {".EXPORT", 2}, {".PROTECTED", 3}, {".HIDDEN", 4}, {".GLOBAL", 0}, {".hidden", 0}, {nullptr, 0}};
  for (const auto &r : rows) {
    EXPECT_EQ(string_to_sym_visibility(r.name), r.vis) << (r.name ? r.name : "null");
    if (r.vis) {
      EXPECT_STREQ(sym_visibility_to_string(r.vis), r.name);
    }
  }
  EXPECT_STREQ(sym_visibility_to_string(7), "UNKNOWN");
  object_format_chosen = 1;  // COFF has no visibility
  EXPECT_EQ(string_to_sym_visibility(".HIDDEN"), 0u);
}

TEST_F(SecdirTest, SectAttributesShapeTheElfSection) {
  const struct { const char *attrs; bool alloc, write; } rows[] = {
      {"", true, false},           {", RW", true, true},          {", ro", true, false},
      {", NOALLOC", false, false}, {", RW, NOALLOC", false, true}, {", RW, RO", true, true},
      {", NOALLOC, ALLOC", false, false}, {", EXEC, RW", true, true},
  };
  std::string source;
  for (size_t i = 0; i < std::size(rows); ++i)
    source += "  .sect \"s" + std::to_string(i) + "\"" + rows[i].attrs + "\n  .byte 1\n";
  assemble(source);
  for (size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(rows[i].attrs);
    const uint64_t flags = sh_flags(("s" + std::to_string(i)).c_str());
    EXPECT_EQ((flags & OFE::SHF_ALLOC) != 0, rows[i].alloc);
    EXPECT_EQ((flags & OFE::SHF_WRITE) != 0, rows[i].write);
  }
}

TEST_F(SecdirTest, LinkDirectivesBoundAndBss) {
  const std::string screen = assemble(
      "  .noinit \"late\"\n  .sect \"keep\"\n  .retain\n  .clink\n"
      "  .sect \"refs\"\n  .retainrefs\n  .clink\n"
      "p: .byte 1\n  .elfsym p, SYM_PRESERVE(1)\n  .sect \"late\"\n"
      "  .bound \"fixed\", 1000h, 2\n  .sect \"fixed\"\n  .byte 1\n"
      "  .bss a, 3\n  .bss b, 4, 4\n  .bss c, 4, 0\n");
  EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  EXPECT_EQ(zq_flags("keep"), uint32_t{OFE::ZQ_SHF_RETAIN});
  EXPECT_EQ(zq_flags("refs"), uint32_t{OFE::ZQ_SHF_RETAINREFS | OFE::ZQ_SHF_PRESERVE});
  EXPECT_EQ(zq_flags("late"), uint32_t{OFE::ZQ_SHF_NOINIT});
  EXPECT_EQ(SCN_query("refs")->scn_link_type, uint32_t{DIR_CLINK});
  EXPECT_TRUE(SYM_query("p")->sym_flags & SYMF_PRESERVE);
  EXPECT_EQ(scn_address_set["fixed"], (std::pair<uint32_t, uint32_t>{0x1000, 2}));
  EXPECT_TRUE(zq_flags("fixed") & OFE::ZQ_SHF_BOUND);
  EXPECT_EQ(elf("fixed")->sh_addr(), 0x1000u);
  EXPECT_FALSE(SYM_query("a")->sym_flags & SYMF_BLOCKED);
  EXPECT_TRUE(SYM_query("b")->sym_flags & SYMF_BLOCKED);
  EXPECT_FALSE(SYM_query("c")->sym_flags & SYMF_BLOCKED);
}

TEST_F(SecdirTest, AbsoluteListingAddresses) {
  global_opts->setopt(OPT_ABSOLUTE_LISTING);
  const std::string screen =
      assemble("  .setsect \".data\", 100h\nfixed .setsym 2000h\n  .global fixed\n  .data\nd: .byte 1\n");
  EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  EXPECT_EQ(scn_address_set[".data"].first, 0x100u);
  EXPECT_EQ(sym_address_set["fixed"], 0x2000u);
  EXPECT_EQ(value_of("d"), 0x100u);
  EXPECT_EQ(value_of("fixed"), 0x2000u);
}

TEST_F(SecdirTest, EquCarriesTheForwardMark) {
  const std::string screen =
      assemble("  .data\n  .byte X\nX .set Y\nY .set 1\na: .byte 2\nR .equ a\nC .equ 7\n");
  EXPECT_TRUE(shown(screen, "E0300", "Symbol 'X' is referenced before it is defined;")) << screen;
  EXPECT_EQ(value_of("X"), 1u);
  EXPECT_TRUE(SYM_query("X")->sym_value.v_forward);
  // A relocatable value is always marked; a plain constant is not.
  EXPECT_TRUE(SYM_query("R")->sym_value.v_forward);
  EXPECT_FALSE(SYM_query("C")->sym_value.v_forward);
  EXPECT_EQ(LBL_current, nullptr);
}

TEST_F(SecdirTest, AliasesAndMetaInformationAreRecorded) {
  assemble("  .symalias al, tg\n  .symmetainfo tg, \"SMK_RETAIN\", \"1\"\n"
           "  .sym_meta_info tg, \"SMK_NOINIT\", \"0\"\n  .data\ntg: .byte 1\nal: .byte 1\n");
  ASSERT_EQ(SYM_aliases.size(), 1u);
  EXPECT_EQ(SYM_aliases[0], std::make_pair(SYM_query("al"), SYM_query("tg")));
  ASSERT_EQ(symtab_meta_records["tg"].size(), 2u);  // once: pass 1 only
  EXPECT_EQ(symtab_meta_records["tg"][1], (std::pair<std::string, std::string>{"SMK_NOINIT", "0"}));
}

}  // namespace
