// The instruction output record: fields written into it, and its bytes put
// into the section, in whichever state the accumulator is.
#include "sections_fixture.h"

#include <cstdint>
#include <random>
#include <vector>

#include "directives/ior.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "ofe/of_section.h"

namespace {

// The record's bits as a little-endian word.
uint32_t word_of(const IOR_STRUCT &ior) {
  return uint32_t{ior.ior_data[0]} | uint32_t{ior.ior_data[1]} << 8 | uint32_t{ior.ior_data[2]} << 16 |
         uint32_t{ior.ior_data[3]} << 24;
}

}  // namespace

TEST_F(SectionsTest, RecordFieldsReplaceTheirBitsOnly) {
  std::mt19937 rng(7);
  for (int round = 0; round < 2000; ++round) {
    IOR_STRUCT ior;
    IOR_clear(&ior);
    uint32_t model = 0;
    unsigned length = 0;
    for (int k = 0; k < 6; ++k) {
      const unsigned offset = rng() % 33;
      const unsigned size = offset == 32 ? 0 : 1 + rng() % (32 - offset);
      const uint32_t value = static_cast<uint32_t>(rng());
      IOR_write(&ior, size, offset, value);
      for (unsigned b = 0; b < size; ++b)
        model = (model & ~(1u << (offset + b))) | (((value >> b) & 1u) << (offset + b));
      if (offset + size > length) length = offset + size;
      ASSERT_EQ(word_of(ior), model) << size << " bits at " << offset;
      ASSERT_EQ(ior.ior_length, length);
    }
  }
}

TEST_F(SectionsTest, RecordBytesGoOutAsSingleBytesWould) {
  // Before the records: 0 to 5 bytes, so the accumulator is empty, partly
  // filled or full; then records of 4, 2, 3 and 1 bytes, which cross words.
  for (bool big : {false, true}) {
    for (unsigned before = 0; before <= 5; ++before) {
      std::vector<uint8_t> expected;
      for (int way = 0; way < 2; ++way) {
        TearDown();
        SetUp();
        big_endian_data = big;
        start_pass2();
        SCN_queue(SCN_KIND_DATA, ".data");
        for (unsigned k = 0; k < before; ++k) SCN_insert_byte(0xA0 + k, 0);
        const uint32_t words[] = {0x12345678u, 0x9ABCu, 0xDEF012u, 0x34u};
        const unsigned sizes[] = {4, 2, 3, 1};
        for (unsigned w = 0; w < 4; ++w) {
          const unsigned n = sizes[w];
          if (way == 0) {
            IOR_STRUCT ior;
            IOR_clear(&ior);
            IOR_write(&ior, 8 * n, 0, words[w]);
            IOR_dump(&ior, nullptr, 0);
            EXPECT_EQ(ior.ior_length, 0u);
          } else {
            for (unsigned k = 0; k < n; ++k)
              SCN_insert_byte((words[w] >> (8 * (big ? n - 1 - k : k))) & 0xFF, 0);
          }
        }
        SCN_flush();
        if (way == 0) expected = bytes(".data");
        else EXPECT_EQ(hex(bytes(".data")), hex(expected)) << before << (big ? " big" : " little");
      }
      EXPECT_EQ(expected.size(), before + 10u);
    }
  }
}

TEST_F(SectionsTest, InstructionAlignmentOnAnAlignedAddressStillAlignsTheSection) {
  for (bool second_pass : {false, true}) {
    TearDown();
    SetUp();
    if (second_pass) start_pass2();
    else start_pass1();
    SCN_queue(SCN_KIND_SECT, ".code");
    EXPECT_LE(curseg->scn_object->align(), 1u);
    SCN_align(16, 0);  // at 0: no gap, but the section becomes 2-aligned
    EXPECT_EQ(curseg->scn_object->align(), 2u);
    SCN_insert_field(16, xi_from_int(0x1234), nullptr, 0, false);
    SCN_align(32, 0);  // at 2: a gap of two bytes
    EXPECT_EQ(curseg->scn_object->align(), 4u);
    EXPECT_EQ(SCN_address(), 4u);
    SCN_align(32, 0);  // at 4 already
    EXPECT_EQ(SCN_address(), 4u);
  }
}
