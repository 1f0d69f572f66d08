// The section manager: the section list, alignment and its fill, and the
// bit-field accumulator whose pass 1 counter must end where pass 2 writes.
#include "sections_fixture.h"

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/symbols.h"
#include "ofe/of_section.h"
#include "target/arm/trg.h"

namespace {

struct field { unsigned bits; uint64_t value; };

// Writes the fields in pass 2 into .data and flushes.
void pack(const std::vector<field> &fields) {
  SCN_queue(SCN_KIND_DATA, ".data");
  for (const field &f : fields) SCN_insert_field(f.bits, xi_from_u64(f.value), nullptr, 0, false);
  SCN_flush();
}

}  // namespace

TEST_F(SectionsTest, FieldsPackInTheSectionsByteOrder) {
  const struct { std::vector<field> fields; const char *little, *big; } rows[] = {
      {{{8, 0x12}}, "12", "12"},
      {{{32, 0x12345678}}, "78 56 34 12", "12 34 56 78"},
      {{{16, 0x1234}, {16, 0x5678}}, "34 12 78 56", "12 34 56 78"},
      // Small fields fill from the low end, or from the top in big-endian.
      {{{4, 0xA}, {4, 0x5}}, "5A", "A5"},
      {{{1, 1}, {3, 0}, {1, 1}}, "11", "88"},
      // A field that crosses a word boundary: its low part goes first in
      // little-endian, its high part in big-endian.
      {{{24, 0xABCDEF}, {16, 0x1234}}, "EF CD AB 34 12", "AB CD EF 12 34"},
      {{{64, 0x1122334455667788ull}}, "88 77 66 55 44 33 22 11", "11 22 33 44 55 66 77 88"},
      {{{8, 0x1FF}}, "FF", "FF"},  // cut to the width
      {{{12, 0xFFF}}, "FF 0F", "FF F0"},  // a partial word gives its used bytes
  };
  for (const auto &r : rows) {
    for (bool big : {false, true}) {
      TearDown();
      SetUp();
      big_endian_data = big;
      start_pass2();
      pack(r.fields);
      EXPECT_EQ(hex(bytes(".data")), big ? r.big : r.little) << r.little;
    }
  }
}

TEST_F(SectionsTest, CounterMovesOnlyInWholeWordsUntilFlushed) {
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  SCN_insert_field(8, xi_from_int(1), nullptr, 0, false);
  EXPECT_EQ(curpc, 0u);
  EXPECT_EQ(SCN_address(), 1u);
  SCN_insert_field(24, xi_from_int(2), nullptr, 0, false);
  // The full word waits in the accumulator until the next field comes.
  EXPECT_EQ(curpc, 0u);
  EXPECT_EQ(SCN_address(), 4u);
  EXPECT_TRUE(bytes(".data").empty());
  SCN_insert_field(8, xi_from_int(3), nullptr, 0, false);
  EXPECT_EQ(curpc, 4u);
  SCN_flush();
  EXPECT_EQ(hex(bytes(".data")), "01 02 00 00 03");
  EXPECT_EQ(SCN_query(".data")->scn_saved_pc, 5u);
}

TEST_F(SectionsTest, PassOneSpaceAndAlignmentAgreeWithPassTwoFields) {
  const unsigned widths[] = {1, 3, 5, 7, 8, 13, 32, 40, 64};
  const unsigned long aligns[] = {8, 16, 32, 64, 128};
  std::vector<uint32_t> pass1;
  SCN_queue(SCN_KIND_DATA, ".data");
  for (unsigned w : widths)
    for (unsigned long a : aligns) {
      SCN_space(w);
      pass1.push_back(SCN_address());
      SCN_align(a, 0);
      pass1.push_back(SCN_address());
    }
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  size_t i = 0;
  for (unsigned w : widths)
    for (unsigned long a : aligns) {
      SCOPED_TRACE(std::to_string(w) + " bits then align " + std::to_string(a));
      SCN_insert_field(w, xi_from_int(-1), nullptr, 0, false);
      EXPECT_EQ(SCN_address(), pass1[i++]);
      SCN_align(a, 0);
      EXPECT_EQ(SCN_address(), pass1[i++]);
      EXPECT_EQ(SCN_address() * 8 % a, 0u);
    }
}

TEST_F(SectionsTest, GapsAreFilledWithTheStatesPattern) {
  const struct { uint32_t state; unsigned long bits; const char *bytes; } rows[] = {
      {0, 32, "EE 00 00 A0"}, {0, 16, "EE 00"}, {1, 32, "EE C0 46 C0"}, {1, 16, "EE C0"},
      {2, 32, "EE C0 46 C0"}, {0, 8, "EE"},
      // The whole pattern word goes in while 32 bits remain.
      {0, 64, "EE 00 00 A0 01 00 00 A0"}, {2, 64, "EE 4F EA 08 08 C0 46 C0"},
  };
  // The target installs its fill function at start-up.
  void (*saved_fill)(unsigned long) = SCN_trg_align;
  SCN_trg_align = ARM_trg_align;
  for (const auto &r : rows) {
    TearDown();
    SetUp();
    cur_state = r.state;
    start_pass2();
    SCN_queue(SCN_KIND_DATA, ".data");
    SCN_insert_byte(0xEE, 0);
    SCN_align(r.bits, 0);
    SCN_flush();
    EXPECT_EQ(hex(bytes(".data")), r.bytes) << "state " << r.state << ", " << r.bits << " bits";
  }
  cur_state = 0;
  SCN_trg_align = saved_fill;
}

TEST_F(SectionsTest, SectionAlignmentAndUninitialisedGaps) {
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  OFE::OF_SECTION *os = curseg->scn_object;
  SCN_align(8, 0);  // already aligned: nothing moves
  EXPECT_LE(os->align(), 1u);
  SCN_align(64, 0);
  SCN_align(32, 0);
  EXPECT_EQ(os->align(), 8u);
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(SCN_align_flag(24), 2);  // 3 bytes: rounded up to 4
  EXPECT_TRUE(shown(::testing::internal::GetCapturedStderr(), "W0001", "Power of 2 required, 32 assumed"));

  SCN_queue(SCN_KIND_BSS, ".bss");
  SCN_space(8);
  SCN_align(32, 0);
  EXPECT_EQ(curpc, 4u);
  SCN_flush();
  EXPECT_TRUE(bytes(".bss").empty());
  EXPECT_EQ(SCN_query(".bss")->scn_saved_pc, 4u);
}

TEST_F(SectionsTest, EmitRawWritesFromTheTopInBigEndian) {
  start_pass2();
  big_endian_data = 1;
  SCN_queue(SCN_KIND_DATA, ".be");  // a .sect takes the data order
  SCN_emit_raw(16, 0xAABBCCDD);
  big_endian_data = 0;
  SCN_queue(SCN_KIND_SECT, ".le");
  SCN_emit_raw(24, 0xAABBCCDD);
  EXPECT_EQ(hex(bytes(".be")), "AA BB");
  EXPECT_EQ(hex(bytes(".le")), "DD CC BB");
  EXPECT_EQ(curpc, 3u);
}

TEST_F(SectionsTest, RedefiningASectionsKindIsRefused) {
  const struct { int first, again; const char *name; bool refused; } rows[] = {
      {SCN_KIND_BSS, SCN_KIND_SECT, ".b", true},      {SCN_KIND_SECT, SCN_KIND_BSS, ".u", true},
      {SCN_KIND_CODE, SCN_KIND_SECT, ".t", false},    {SCN_KIND_CODE, SCN_KIND_DATA, ".t2", false},
      {SCN_KIND_NOALLOC, SCN_KIND_SECT, ".n", true},  {SCN_KIND_BSS, SCN_KIND_BSS, ".b2", false},
  };
  start_pass2();  // messages are shown in pass 2
  for (const auto &r : rows) {
    SCN_queue(r.first, r.name);
    ::testing::internal::CaptureStderr();
    SCN_queue(r.again, r.name);
    EXPECT_EQ(shown(::testing::internal::GetCapturedStderr(), "E0300", "Cannot redefine this section name"), r.refused)
        << r.name;
    // The section is entered all the same, with its first kind.
    EXPECT_STREQ(curseg->name(), r.name);
    EXPECT_EQ(curseg->scn_kind, r.first);
  }
}

TEST_F(SectionsTest, KindsShapeTheObjectSection) {
  const struct { int kind; const char *name; bool exec, data, bss, allocated; char mark; } rows[] = {
      {SCN_KIND_CODE, ".c", true, false, false, true, '\''},  {SCN_KIND_DATA, ".d", false, true, false, true, '"'},
      {SCN_KIND_SECT, ".s", false, true, false, true, '+'},   {SCN_KIND_BSS, ".b", false, false, true, true, '-'},
      {SCN_KIND_NOALLOC, ".n", false, true, false, false, ' '},
  };
  for (const auto &r : rows) {
    SCOPED_TRACE(r.name);
    SCN_queue(r.kind, r.name);
    const OFE::OF_SECTION *os = curseg->scn_object;
    EXPECT_EQ(os->exec(), r.exec);
    EXPECT_EQ(os->data(), r.data);
    EXPECT_EQ(os->bss(), r.bss);
    EXPECT_EQ(os->allocated(), r.allocated);
    EXPECT_EQ(SCN_get_relch(curseg), r.mark);
    // The section's own symbol is a label at 0 that the name table doesn't know.
    const symbol_record *sym = curseg->scn_symbol;
    EXPECT_EQ(sym->sym_name, r.name);
    EXPECT_EQ(sym->sym_value.v_type, VT_LABEL);
    EXPECT_EQ(sym->sym_value.v_section, curseg);
    EXPECT_EQ(SYM_query(r.name), nullptr);
  }
}

TEST_F(SectionsTest, PushPopAndReset) {
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  SCN_insert_field(16, xi_from_int(-1), nullptr, 0, false);
  SCN_push();
  SCN_queue(SCN_KIND_DATA, ".encode");
  SCN_space(8);
  SCN_pop();
  EXPECT_STREQ(curseg->name(), ".data");
  EXPECT_EQ(SCN_address(), 2u);
  SCN_insert_field(24, xi_from_int(-1), nullptr, 0, false);
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
  const struct { const char *name; bool exec; } rows[] = {
      {".text", true}, {".words", false}, {".code", true}, {".vcode", true}, {".only_data", false}};
  for (const auto &r : rows) EXPECT_EQ(SCN_query(r.name)->scn_object->exec(), r.exec) << r.name;
  EXPECT_EQ(SCN_query(".words")->scn_saved_pc, 4u);
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
