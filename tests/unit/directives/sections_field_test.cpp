// The bit-field accumulator: packing, byte order, and the counter of pass 1
// that must end where pass 2's writing ends.
#include "sections_fixture.h"

#include "driver/driver.h"
#include "driver/options.h"
#include "ofe/of_section.h"

namespace {

struct field { unsigned bits; uint64_t value; };

// Writes the fields in pass 2 into .data and flushes.
std::vector<uint8_t> pack(const std::vector<field> &fields) {
  SCN_queue(SCN_KIND_DATA, ".data");
  for (const field &f : fields) SCN_insert_field(f.bits, xi_from_u64(f.value), nullptr, 0, false);
  SCN_flush();
  const section_record *s = SCN_query(".data");
  const DATA_MAP &map = s->scn_object->raw_data_nocheck();
  return std::vector<uint8_t>(map.data(), map.data() + map.size());
}

}  // namespace

TEST_F(SectionsTest, FieldsPackInTheSectionsByteOrder) {
  struct row {
    std::vector<field> fields;
    const char *little;
    const char *big;
  };
  const row rows[] = {
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
      // Values are cut to the width of the field.
      {{{8, 0x1FF}}, "FF", "FF"},
      // A partial last word gives only its used bytes, rounded up to a byte.
      {{{12, 0xFFF}}, "FF 0F", "FF F0"},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    start_pass2();
    EXPECT_EQ(hex(pack(r.fields)), r.little);
    TearDown();
    SetUp();
    big_endian_data = 1;
    start_pass2();
    EXPECT_EQ(hex(pack(r.fields)), r.big);
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
  EXPECT_EQ(hex(bytes(".data")), "01 02 00 00");
  SCN_flush();
  EXPECT_EQ(hex(bytes(".data")), "01 02 00 00 03");
  EXPECT_EQ(SCN_query(".data")->scn_saved_pc, 5u);
}

TEST_F(SectionsTest, PassOneSpaceEndsWherePassTwoFieldsEnd) {
  const unsigned widths[] = {1, 7, 8, 13, 32, 3, 64, 5, 40};
  std::vector<uint32_t> addresses;
  SCN_queue(SCN_KIND_DATA, ".data");
  for (unsigned w : widths) {
    SCN_space(w);
    addresses.push_back(SCN_address());
  }
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  for (size_t i = 0; i < std::size(widths); ++i) {
    SCN_insert_field(widths[i], xi_from_int(-1), nullptr, 0, false);
    EXPECT_EQ(SCN_address(), addresses[i]) << "after field " << i;
  }
}

TEST_F(SectionsTest, FieldAlignmentKeepsAFieldInOneWord) {
  // .field 1, 20 twice leaves 12 bits unused; in pass 1 the same place.
  SCN_queue(SCN_KIND_DATA, ".data");
  SCN_align_field(20);
  SCN_space(20);
  SCN_align_field(20);
  EXPECT_EQ(curpc, 4u);
  SCN_space(20);
  const uint32_t end1 = SCN_address();
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  for (int i = 0; i < 2; ++i) {
    SCN_align_field(20);
    SCN_insert_field(20, xi_from_int(1), nullptr, 0, false);
  }
  EXPECT_EQ(SCN_address(), end1);
  SCN_flush();
  EXPECT_EQ(hex(bytes(".data")), "01 00 00 00 01 00 00");
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
