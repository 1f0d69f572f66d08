// .field and .bits: packing within and across words, widths and truncation.
#include "sections_fixture.h"

#include "driver/diag.h"

#include <string>

#include "driver/driver.h"
#include "expr/symbols.h"
#include "ofe/of_section.h"

namespace {

std::string repeat(const char *line, int n) {
  std::string s;
  for (int i = 0; i < n; ++i) s += line;
  return s;
}

}  // namespace

TEST_F(SectionsTest, FieldsAndBitsPack) {
  struct row {
    std::string source;
    const char *bytes;
  };
  const row rows[] = {
      {" .field 1, 1\n .field 0, 1\n .field 3, 2", "0D"},
      {" .field 0x12345678", "78 56 34 12"},  // the width defaults to 32
      {" .field 1, 20\n .field 1, 20", "01 00 00 00 01 00 00"},
      {" .bits 1, 20\n .bits 1, 20", "01 00 10 00 00"},
      {repeat(" .field 1, 1\n", 33), "FF FF FF FF 01"},
      {repeat(" .bits 1, 1\n", 33), "FF FF FF FF 01"},
      {" .field -1, 64", "FF FF FF FF FF FF FF FF"},
      // Any byte-aligning directive closes the partial byte.
      {" .bits 1, 3\n .byte 0xAA", "01 AA"},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    const std::string screen = assemble(" .data\n" + r.source + "\n");
    EXPECT_EQ(hex(bytes(".data")), r.bytes) << r.source << "\n" << screen;
    EXPECT_EQ(num_errors + num_warnings, 0u) << r.source << "\n" << screen;
  }
}

TEST_F(SectionsTest, FieldRaisesTheSectionAlignment) {
  assemble(" .sect \".f\"\n .bits 1, 1\n");
  EXPECT_LE(SCN_query(".f")->scn_object->align(), 1u);
  assemble(" .sect \".g\"\n .field 1, 1\n");
  EXPECT_EQ(SCN_query(".g")->scn_object->align(), 4u);
}

TEST_F(SectionsTest, FieldWidthsAndValuesAreCut) {
  const std::string screen = assemble(" .data\n .field 5, 2\n .field 1, 65\n");
  EXPECT_TRUE(shown(screen, "W0001", "Value truncated to 0x01")) << screen;
  EXPECT_TRUE(shown(screen, "W0001", "Field width truncated to 64")) << screen;
  // 2 bits of 0b01, then a 64-bit field in the next word.
  EXPECT_EQ(hex(bytes(".data")), "01 00 00 00 01 00 00 00 00 00 00 00");
}

TEST_F(SectionsTest, FieldOperandErrors) {
  const std::string screen = assemble(
      " .data\n"
      " .field\n"
      " .field 1, 2, 3\n"
      " .field 1, undefined_width\n"
      "lab .byte 0xEE\n");
  EXPECT_TRUE(shown(screen, "E0005", "Missing field value operand")) << screen;
  EXPECT_TRUE(shown(screen, "E0003", "Unexpected trailing operand(s)")) << screen;
  EXPECT_TRUE(shown(screen, "E0004", "Absolute, well-defined integer value expected")) << screen;
  // The field with trailing text is kept; the one without its width is not.
  EXPECT_EQ(hex(bytes(".data")), "01 EE");
}

TEST_F(SectionsTest, LabelOnAFieldNamesItsWord) {
  assemble(" .data\n .field 1, 30\nf .field 2, 4\ng .bits 1, 4\n");
  EXPECT_EQ(SYM_query("f")->sym_value.v_val.to_u32(), 4u);
  EXPECT_EQ(SYM_query("g")->sym_value.v_val.to_u32(), 4u);
}
