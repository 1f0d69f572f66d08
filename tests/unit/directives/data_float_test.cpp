// Floating data: IEEE words, word order of doubles, alignment and errors.
#include "sections_fixture.h"

#include "driver/diag.h"

#include "driver/driver.h"
#include "driver/options.h"
#include "expr/symbols.h"

TEST_F(SectionsTest, FloatsBecomeIeeeWords) {
  struct row {
    const char *source;
    const char *bytes;
  };
  const row rows[] = {
      {" .float 1", "00 00 80 3F"},
      {" .float -2.5", "00 00 20 C0"},
      {" .float 1.0, 0", "00 00 80 3F 00 00 00 00"},
      // Little-endian code with the default float unit: low word first.
      {" .double 1.0", "00 00 00 00 00 00 F0 3F"},
      {" .ldouble -1", "00 00 00 00 00 00 F0 BF"},
      // A .double is aligned to 4 bytes, not 8.
      {" .byte 1\n .double 0", "01 00 00 A0 00 00 00 00 00 00 00 00"},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    const std::string screen = assemble(std::string(" .data\n") + r.source + "\n");
    EXPECT_EQ(hex(bytes(".data")), r.bytes) << r.source << "\n" << screen;
    EXPECT_EQ(num_errors, 0u) << r.source << "\n" << screen;
  }
}

TEST_F(SectionsTest, FloatErrorsStillWriteTheConvertedValue) {
  const std::string screen = assemble(" .data\n .float 1.0e39\n .float 1.0e-50\n .float ext\n");
  EXPECT_TRUE(shown(screen, "E0201", "Floating-point overflow")) << screen;
  EXPECT_TRUE(shown(screen, "E0201", "Floating-point underflow")) << screen;
  EXPECT_TRUE(shown(screen, "E0201", "Illegal floating-point expression")) << screen;
  EXPECT_EQ(hex(bytes(".data")), "00 00 80 7F 00 00 00 00 00 00 00 00");
}

TEST_F(SectionsTest, FloatElementsNeedCommas) {
  const std::string screen = assemble(" .data\n .float 1.0 2.0\nafter .byte 0xEE\n");
  EXPECT_TRUE(shown(screen, "E0000", "Commas must separate directive elements")) << screen;
  EXPECT_EQ(hex(bytes(".data")), "00 00 80 3F EE");
  EXPECT_EQ(SYM_query("after")->sym_value.v_val.to_u32(), 4u);
}
