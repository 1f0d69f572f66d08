// Alignment: gaps, their fill in each state, the section's alignment, and
// sections without contents.
#include "sections_fixture.h"

#include "driver/driver.h"
#include "ofe/of_section.h"
#include "target/arm/trg.h"

namespace {

// One byte, then an alignment to `bits`, in pass 2.
std::string gap_after_byte(unsigned long bits) {
  SCN_queue(SCN_KIND_DATA, ".data");
  SCN_insert_byte(0xEE, 0);
  SCN_align(bits, 0);
  SCN_flush();
  const DATA_MAP &map = SCN_query(".data")->scn_object->raw_data_nocheck();
  return hex(std::vector<uint8_t>(map.data(), map.data() + map.size()));
}

}  // namespace

TEST_F(SectionsTest, GapsAreFilledWithTheStatesPattern) {
  struct row {
    uint32_t state;
    unsigned long bits;
    const char *bytes;
  };
  const row rows[] = {
      {0, 32, "EE 00 00 A0"},        // low 24 bits of 0x01A00000
      {0, 16, "EE 00"},
      {1, 32, "EE C0 46 C0"},        // low 24 bits of 0x46C046C0
      {1, 16, "EE C0"},
      {2, 32, "EE C0 46 C0"},
      // The whole pattern word goes in while 32 bits remain.
      {0, 64, "EE 00 00 A0 01 00 00 A0"},
      {2, 64, "EE 4F EA 08 08 C0 46 C0"},
      {0, 8, "EE"},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    cur_state = r.state;
    start_pass2();
    EXPECT_EQ(gap_after_byte(r.bits), r.bytes) << "state " << r.state << ", " << r.bits << " bits";
  }
  cur_state = 0;
}

TEST_F(SectionsTest, AlignmentAgreesBetweenThePasses) {
  const unsigned long fields[] = {3, 8, 13, 1, 32, 5};
  const unsigned long aligns[] = {8, 16, 32, 64, 128};
  std::vector<uint32_t> pass1_at;
  SCN_queue(SCN_KIND_DATA, ".data");
  for (unsigned long f : fields)
    for (unsigned long a : aligns) {
      SCN_space(f);
      SCN_align(a, 0);
      pass1_at.push_back(SCN_address());
    }
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  size_t i = 0;
  for (unsigned long f : fields)
    for (unsigned long a : aligns) {
      SCN_insert_field(static_cast<unsigned>(f), xi_from_int(0), nullptr, 0, false);
      SCN_align(a, 0);
      EXPECT_EQ(SCN_address(), pass1_at[i]) << f << " bits then align " << a;
      EXPECT_EQ(SCN_address() * 8 % a, 0u);
      ++i;
    }
}

TEST_F(SectionsTest, SectionAlignmentIsTheGreatestAsked) {
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  OFE::OF_SECTION *os = curseg->scn_object;
  SCN_align(8, 0);  // already aligned: nothing moves
  EXPECT_LE(os->align(), 1u);
  EXPECT_EQ(curpc + curseg->scn_field_bits, 0u);
  SCN_align(64, 0);
  SCN_align(32, 0);
  EXPECT_EQ(os->align(), 8u);
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(SCN_align_flag(24), 2);  // 3 bytes: rounded up to 4
  EXPECT_TRUE(shown(::testing::internal::GetCapturedStderr(), "W0001", "Power of 2 required, 32 assumed"));
}

TEST_F(SectionsTest, BssAlignmentMovesTheCounterOnly) {
  start_pass2();
  SCN_queue(SCN_KIND_BSS, ".bss");
  SCN_space(8);
  SCN_align(32, 0);
  EXPECT_EQ(curpc, 4u);
  EXPECT_EQ(curseg->scn_field_bits, 0u);
  SCN_flush();
  EXPECT_TRUE(bytes(".bss").empty());
  EXPECT_EQ(SCN_query(".bss")->scn_saved_pc, 4u);
}
