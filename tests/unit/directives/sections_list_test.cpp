// The section list: creation, re-entry, kinds, the saved section, and what
// happens between and after the passes.
#include "sections_fixture.h"

#include "driver/diag.h"
#include "driver/options.h"

#include <cstring>

#include "driver/driver.h"
#include "expr/symbols.h"
#include "ofe/of_section.h"

TEST_F(SectionsTest, ReenteredSectionContinuesAtItsEnd) {
  SCN_queue(SCN_KIND_DATA, ".data");
  SCN_space(64);
  SCN_queue(SCN_KIND_CODE, ".text");
  EXPECT_EQ(curpc, 0u);
  SCN_space(32);
  SCN_queue(SCN_KIND_SECT, ".data");  // .sect ".data" is the same section
  EXPECT_STREQ(curseg->name(), ".data");
  EXPECT_EQ(curseg->scn_kind, SCN_KIND_DATA);
  EXPECT_EQ(curpc, 8u);
  SCN_queue(SCN_KIND_SECT, ".text");  // .sect ".text" re-enters .text
  EXPECT_EQ(curpc, 4u);
  // Order of first appearance.
  const char *order[] = {".text", ".data"};
  const section_record *s = seglist;
  for (const char *name : order) {
    ASSERT_NE(s, nullptr);
    EXPECT_STREQ(s->name(), name);
    s = s->scn_next;
  }
  EXPECT_EQ(s, nullptr);
}

TEST_F(SectionsTest, RedefiningASectionsKindIsRefused) {
  struct row {
    int first, again;
    const char *name;
    bool refused;
  };
  const row rows[] = {
      {SCN_KIND_BSS, SCN_KIND_SECT, ".b", true},    // .sect ".bss"
      {SCN_KIND_SECT, SCN_KIND_BSS, ".u", true},    // .usect on a .sect
      {SCN_KIND_CODE, SCN_KIND_SECT, ".t", false},
      {SCN_KIND_CODE, SCN_KIND_DATA, ".t2", false},
      {SCN_KIND_NOALLOC, SCN_KIND_SECT, ".n", true},
      {SCN_KIND_BSS, SCN_KIND_BSS, ".b2", false},
  };
  start_pass2();  // messages are shown in pass 2
  for (const row &r : rows) {
    SCN_queue(r.first, r.name);
    ::testing::internal::CaptureStderr();
    SCN_queue(r.again, r.name);
    const std::string out = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(shown(out, "E0300", "Cannot redefine this section name"), r.refused) << r.name;
    // The section is entered all the same, with its first kind.
    EXPECT_STREQ(curseg->name(), r.name);
    EXPECT_EQ(curseg->scn_kind, r.first);
  }
}

TEST_F(SectionsTest, KindsShapeTheObjectSection) {
  struct row {
    int kind;
    const char *name;
    bool exec, data, bss, allocated;
    char mark;
  };
  const row rows[] = {
      {SCN_KIND_CODE, ".c", true, false, false, true, '\''},
      {SCN_KIND_DATA, ".d", false, true, false, true, '"'},
      {SCN_KIND_SECT, ".s", false, true, false, true, '+'},
      {SCN_KIND_BSS, ".b", false, false, true, true, '-'},
      {SCN_KIND_NOALLOC, ".n", false, true, false, false, ' '},
  };
  for (const row &r : rows) {
    SCN_queue(r.kind, r.name);
    const OFE::OF_SECTION *os = curseg->scn_object;
    EXPECT_EQ(os->exec(), r.exec) << r.name;
    EXPECT_EQ(os->data(), r.data) << r.name;
    EXPECT_EQ(os->bss(), r.bss) << r.name;
    EXPECT_EQ(os->allocated(), r.allocated) << r.name;
    EXPECT_EQ(SCN_get_relch(curseg), r.mark) << r.name;
    // The section's own symbol is a label at 0 that the name table doesn't know.
    const symbol_record *sym = curseg->scn_symbol;
    EXPECT_EQ(sym->sym_name, r.name);
    EXPECT_EQ(sym->sym_value.v_type, VT_LABEL);
    EXPECT_EQ(sym->sym_value.v_section, curseg);
    EXPECT_EQ(sym->sym_section, curseg);
    EXPECT_EQ(SYM_query(r.name), nullptr);
  }
}

TEST_F(SectionsTest, PushAndPopRestoreOneSection) {
  SCN_queue(SCN_KIND_DATA, ".data");
  SCN_space(16);
  SCN_push();
  SCN_queue(SCN_KIND_DATA, ".encode");
  SCN_space(8);
  SCN_pop();
  EXPECT_STREQ(curseg->name(), ".data");
  EXPECT_EQ(SCN_address(), 2u);
}

TEST_F(SectionsTest, ResetRewindsAndClearsEverySection) {
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  SCN_insert_field(40, xi_from_int(-1), nullptr, 0, false);
  EXPECT_FALSE(bytes(".data").empty());
  SCN_reset();
  EXPECT_TRUE(bytes(".data").empty());
  EXPECT_EQ(curpc, 0u);
  EXPECT_EQ(curseg->scn_field_bits, 0u);
  EXPECT_EQ(curseg->scn_field_word, 0u);
}

TEST_F(SectionsTest, FlushDecidesWhetherTextHoldsCode) {
  start_pass2();
  SCN_queue(SCN_KIND_SECT, ".only_data");
  SCN_queue(SCN_KIND_CODE, ".words");
  SCN_insert_field(32, xi_from_int(1), nullptr, 0, false);
  SCN_queue(SCN_KIND_CODE, ".code");
  curseg->scn_has_code = 1;
  SCN_insert_field(32, xi_from_int(1), nullptr, 1, false);
  SCN_queue(SCN_KIND_CODE, ".vcode");
  SCN_setvcode();
  SCN_flush();
  EXPECT_TRUE(SCN_query(".text")->scn_object->exec());   // empty: as created
  EXPECT_FALSE(SCN_query(".words")->scn_object->exec());  // only data
  EXPECT_TRUE(SCN_query(".words")->scn_object->data());
  EXPECT_TRUE(SCN_query(".code")->scn_object->exec());
  EXPECT_TRUE(SCN_query(".vcode")->scn_object->exec());
  EXPECT_FALSE(SCN_query(".only_data")->scn_object->exec());
  EXPECT_EQ(SCN_query(".words")->scn_saved_pc, 4u);
  EXPECT_FALSE(SCN_iscomdat(SCN_query(".words")));
}

TEST_F(SectionsTest, AbsoluteListingStartsABoundSectionAtItsAddress) {
  global_opts->setopt(OPT_ABSOLUTE_LISTING);
  scn_address_set[".fixed"] = {0x1000, 2};
  SCN_queue(SCN_KIND_SECT, ".fixed");
  EXPECT_EQ(curpc, 0x1000u);
  SCN_space(32);
  start_pass2();
  SCN_queue(SCN_KIND_SECT, ".fixed");
  EXPECT_EQ(curpc, 0x1000u);
  EXPECT_EQ(curseg->scn_object->load_addr(), 0x1000u);
}
