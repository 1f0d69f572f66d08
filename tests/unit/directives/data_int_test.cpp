// Integer data directives run through both passes: bytes, alignment, labels,
// strings, ranges and byte order.
#include "sections_fixture.h"

#include "driver/diag.h"
#include "driver/options.h"

#include "driver/driver.h"
#include "expr/symbols.h"

namespace {

uint32_t label(const char *name) {
  const symbol_record *s = SYM_query(name);
  return s ? s->sym_value.v_val.to_u32() : 0xFFFFFFFF;
}

}  // namespace

TEST_F(SectionsTest, IntegerDirectivesWriteTheirBytes) {
  struct row {
    const char *source;
    const char *bytes;
  };
  const row rows[] = {
      {" .byte 1, 2, 3", "01 02 03"},
      {" .ubyte 0x80\n .char 1\n .uchar 2", "80 01 02"},
      {" .byte -1, 255", "FF FF"},
      {" .half 0x1234, -2", "34 12 FE FF"},
      {" .short 1\n .ushort 2\n .uhalf 3", "01 00 02 00 03 00"},
      {" .word 0x12345678", "78 56 34 12"},
      {" .int -1\n .uint 1\n .uword 2", "FF FF FF FF 01 00 00 00 02 00 00 00"},
      {" .long 0x01020304\n .ulong 5", "04 03 02 01 05 00 00 00"},
      {" .byte \"ab\"", "61 62"},
      {" .half \"ab\"", "61 00 62 00"},
      {" .word \"ab\"", "61 00 00 00 62 00 00 00"},
      {" .long \"a\"", "61 00 00 00"},
      {" .string \"ab\", 3", "61 62 03"},
      {" .vinstr 0xE1A00000", "00 00 A0 E1"},
      // Alignment: the gap after a byte is filled with the ARM pattern.
      {" .byte 1\n .word 2", "01 00 00 A0 02 00 00 00"},
      {" .byte 1\n .half 2", "01 00 02 00"},
      {" .byte 1\n .long 2", "01 00 00 A0 02 00 00 00"},
      // Each further element is aligned for .half and .word: a string's
      // characters are elements of the directive's size.
      {" .half 1, \"a\", 2", "01 00 61 00 02 00"},
      // A directive without an element does nothing.
      {" .byte 1\n .word\n .byte 2", "01 02"},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    const std::string screen = assemble(std::string(" .data\n") + r.source + "\n");
    EXPECT_EQ(hex(bytes(".data")), r.bytes) << r.source << "\n" << screen;
  }
}

TEST_F(SectionsTest, BigEndianDataKeepsTheValueOrder) {
  big_endian_data = 1;
  assemble(" .data\n .byte 1\n .half 0x1234\n .word 0x12345678\n .long 0xA1B2C3D4\n .byte \"xy\"\n");
  EXPECT_EQ(hex(bytes(".data")), "01 00 12 34 12 34 56 78 A1 B2 C3 D4 78 79");
}

TEST_F(SectionsTest, LabelsNameTheAlignedElement) {
  const std::string screen = assemble(
      " .data\n"
      "b1 .byte 1\n"
      "w1 .word 2\n"
      "h1 .half 3\n"
      "l1\n"
      " .long 4\n"
      "e1 .word\n"
      "x1 .byte 5\n");
  EXPECT_EQ(label("b1"), 0u);
  EXPECT_EQ(label("w1"), 4u);
  EXPECT_EQ(label("h1"), 8u);
  EXPECT_EQ(label("l1"), 12u);
  // A .word without its element leaves its label pending for the next statement.
  EXPECT_EQ(label("e1"), 16u);
  EXPECT_EQ(label("x1"), 16u);
  EXPECT_TRUE(shown(screen, "E0005", "Operand missing")) << screen;
  EXPECT_EQ(num_errors, 1u) << screen;
}

TEST_F(SectionsTest, OutOfRangeElementsWarnAndAreCut) {
  const std::string screen = assemble(" .data\n .byte 256\n .half 0x12345\n .byte -129\n");
  EXPECT_EQ(hex(bytes(".data")), "00 00 45 23 7F");
  EXPECT_TRUE(shown(screen, "W0001", "Constant value out of range, will be truncated to 8 bits")) << screen;
  EXPECT_TRUE(shown(screen, "W0001", "Constant value out of range, will be truncated to 16 bits")) << screen;
}

TEST_F(SectionsTest, FailedElementsAreLeftOutInBothPasses) {
  const std::string screen = assemble(" .data\n .word 1,,2\n .byte 1.5, 3\nafter .byte 4\n");
  EXPECT_EQ(hex(bytes(".data")), "01 00 00 00 02 00 00 00 03 04");
  EXPECT_EQ(label("after"), 9u);
  EXPECT_TRUE(shown(screen, "E0005", "Operand missing")) << screen;
}

TEST_F(SectionsTest, RelocatableDataIsRefusedUntilRelocationsExist) {
  const std::string screen = assemble(" .data\n .word ext\n .byte ext\n");
  EXPECT_GT(num_errors, 0u);
  EXPECT_NE(screen.find("ext"), std::string::npos) << screen;
}

TEST_F(SectionsTest, DifferenceOfLabelsNeedsNoRelocation) {
  const std::string screen = assemble(" .data\na .word b - a\nb .half b - a\n");
  EXPECT_EQ(num_errors, 0u) << screen;
  EXPECT_EQ(hex(bytes(".data")), "04 00 00 00 04 00");
}
