// Section directives: what they leave on the object sections and in the
// section records, beyond the bytes and symbols the end-to-end tests see.
#include <cstdlib>
#include <string>

#include "driver/directive_ids.h"
#include "driver/options.h"
#include "ofe/elf_defs.h"
#include "ofe/of_machine.h"
#include "secdir_fixture.h"

namespace {

TEST_F(SecdirTest, SectAttributesShapeTheElfSection) {
  struct row {
    const char *attrs;
    bool alloc, write;
    const char *message;  // expected E0000 text, or null
  };
  const row rows[] = {
      {"", true, false, nullptr},
      {", RW", true, true, nullptr},
      {", ro", true, false, nullptr},
      {", NOALLOC", false, false, nullptr},
      {", RW, NOALLOC", false, true, nullptr},
      {", RW, RO", true, true, "Attribute RO cannot be combined with attribute RW"},
      {", NOALLOC, ALLOC", false, false, "Attribute ALLOC cannot be combined with attribute NOALLOC"},
      {", EXEC, RW", true, true, "Illegal section attribute EXEC is specified"},
  };
  int n = 0;
  for (const row &r : rows) {
    const std::string name = "s" + std::to_string(n++);
    const std::string screen = assemble("        .sect \"" + name + "\"" + r.attrs + "\n        .byte 1\n");
    SCOPED_TRACE(r.attrs);
    EXPECT_EQ((sh_flags(name.c_str()) & OFE::SHF_ALLOC) != 0, r.alloc);
    EXPECT_EQ((sh_flags(name.c_str()) & OFE::SHF_WRITE) != 0, r.write);
    if (r.message)
      EXPECT_TRUE(shown(screen, "E0000", r.message)) << screen;
    else
      EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  }
}

TEST_F(SecdirTest, VendorFlagsOfLinkDirectives) {
  const std::string screen = assemble(
      "        .noinit \"late\"\n"
      "        .sect \"keep\"\n"
      "        .retain\n"
      "        .clink\n"
      "        .sect \"refs\"\n"
      "        .retainrefs\n"
      "        .clink\n"
      "p:      .byte 1\n"
      "        .elfsym p, SYM_PRESERVE(1)\n"
      "        .sect \"late\"\n");
  EXPECT_TRUE(shown(screen, "W0000", "Section keep already has .RETAIN specified - ignoring .CLINK directive"));
  EXPECT_EQ(zq_flags("keep"), uint32_t{OFE::ZQ_SHF_RETAIN});
  EXPECT_EQ(zq_flags("refs"), uint32_t{OFE::ZQ_SHF_RETAINREFS | OFE::ZQ_SHF_PRESERVE});
  EXPECT_EQ(zq_flags("late"), uint32_t{OFE::ZQ_SHF_NOINIT});
  EXPECT_EQ(SCN_query("refs")->scn_link_type, uint32_t{DIR_CLINK});
  EXPECT_TRUE(SYM_query("p")->sym_flags & SYMF_PRESERVE);
}

TEST_F(SecdirTest, BoundRecordsTheAddressForTheSecondPass) {
  const std::string screen = assemble(
      "        .bound \"fixed\", 1000h, 2\n"
      "        .sect \"fixed\"\n"
      "        .byte 1\n");
  EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  ASSERT_EQ(scn_address_set.count("fixed"), 1u);
  EXPECT_EQ(scn_address_set["fixed"], (std::pair<uint32_t, uint32_t>{0x1000, 2}));
  EXPECT_TRUE(zq_flags("fixed") & OFE::ZQ_SHF_BOUND);
  EXPECT_EQ(elf("fixed")->sh_addr(), 0x1000u);
}

TEST_F(SecdirTest, GroupKeepsItsMembersNewestFirst) {
  const std::string screen = assemble(
      "        .sect \"m1\"\n"
      "        .sect \"m2\"\n"
      "        .group \"g\", 1\n"
      "        .gmember \"m1\"\n"
      "        .gmember m2\n"
      "        .endgroup\n"
      "after:  .byte 1\n");
  EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  const section_record *g = SCN_query("g");
  ASSERT_NE(g, nullptr);
  EXPECT_EQ(g->scn_kind, SCN_KIND_GROUP);
  EXPECT_EQ(g->scn_group_kind, 1u);
  EXPECT_EQ(elf("g")->sh_type(), OFE::SHT_GROUP);
  ASSERT_NE(g->scn_group_members, nullptr);
  EXPECT_STREQ(g->scn_group_members->name, "m2");
  ASSERT_NE(g->scn_group_members->next, nullptr);
  EXPECT_STREQ(g->scn_group_members->next->name, "m1");
  EXPECT_EQ(g->scn_group_members->next->next, nullptr);
  // The section current before the group is current again.
  EXPECT_EQ(SYM_query("after")->sym_section, SCN_query("m2"));
  // Object assembly would use the list up.
  for (section_record *s = seglist; s; s = s->scn_next) {
    while (scn_group_member *m = s->scn_group_members) {
      s->scn_group_members = m->next;
      free(m->name);
      delete m;
    }
  }
}

TEST_F(SecdirTest, CommonSymbolCarriesSizeAndAlignment) {
  const std::string screen = assemble(
      "        .common c, 12, 4\n"
      "        .common d, 2\n");
  EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  const symbol_record *c = SYM_query("c");
  ASSERT_NE(c, nullptr);
  EXPECT_EQ(c->sym_value.v_type, VT_COMMON);
  EXPECT_EQ(c->sym_size, 12u);
  EXPECT_EQ(c->sym_align, 4u);
  EXPECT_EQ(c->sym_section, nullptr);
  EXPECT_EQ(SYM_query("d")->sym_align, 1u);
  EXPECT_NE(c->sym_object, nullptr);
}

TEST_F(SecdirTest, BssBlockingAndSize) {
  assemble(
      "        .bss a, 3\n"
      "        .bss b, 4, 4\n"
      "        .bss c, 4, 0\n"
      "after:  .byte 1\n");
  EXPECT_FALSE(SYM_query("a")->sym_flags & SYMF_BLOCKED);
  EXPECT_TRUE(SYM_query("b")->sym_flags & SYMF_BLOCKED);
  EXPECT_FALSE(SYM_query("c")->sym_flags & SYMF_BLOCKED);
  EXPECT_EQ(value_of("b"), 4u);
  EXPECT_EQ(SYM_query("b")->sym_size, 4u);
  // .bss went back to the section that was current.
  EXPECT_EQ(SYM_query("after")->sym_section, SCN_query(".text"));
}

TEST_F(SecdirTest, AbsoluteListingAddresses) {
  global_opts->setopt(OPT_ABSOLUTE_LISTING);
  const std::string screen = assemble(
      "        .setsect \".data\", 100h\n"
      "fixed   .setsym 2000h\n"
      "        .global fixed\n"
      "        .data\n"
      "d:      .byte 1\n");
  EXPECT_EQ(screen.find("[E"), std::string::npos) << screen;
  EXPECT_EQ(scn_address_set[".data"].first, 0x100u);
  EXPECT_EQ(sym_address_set["fixed"], 0x2000u);
  EXPECT_EQ(value_of("d"), 0x100u);
  EXPECT_EQ(value_of("fixed"), 0x2000u);
}

}  // namespace
