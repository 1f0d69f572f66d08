// Data directives through both passes: the corners the end-to-end cases
// leave out, above all what failed elements leave behind.
#include "sections_fixture.h"

#include <string>

#include "driver/diag.h"
#include "expr/symbols.h"
#include "ofe/of_section.h"

namespace {

std::string repeat(const char *line, int n) {
  std::string s;
  for (int i = 0; i < n; ++i) s += line;
  return s;
}

}  // namespace

TEST_F(SectionsTest, DataDirectiveCorners) {
  struct row {
    std::string source;
    const char *bytes;
    uint32_t errors, warnings;
    const char *label;  // null: none checked
    uint32_t at;
  };
  const row rows[] = {
      {" .field 1, 1\n .field 0, 1\n .field 3, 2", "0D", 0, 0, nullptr, 0},
      {repeat(" .field 1, 1\n", 33), "FF FF FF FF 01", 0, 0, nullptr, 0},
      {repeat(" .bits 1, 1\n", 33), "FF FF FF FF 01", 0, 0, nullptr, 0},
      {" .field -1, 64", "FF FF FF FF FF FF FF FF", 0, 0, nullptr, 0},
      // 2 bits of 0b01, then a 64-bit field in the next word.
      {" .field 5, 2\n .field 1, 65", "01 00 00 00 01 00 00 00 00 00 00 00", 0, 2, nullptr, 0},
      // The field with trailing text is kept; the one without its width is not.
      {" .field\n .field 1, 2, 3\n .field 1, undefined_width\n .byte 0xEE", "01 EE", 3, 0, nullptr, 0},
      {" .field 1, 30\nf .field 2, 4\n .bits 1, 4", "01 00 00 00 12", 0, 0, "f", 4},
      {" .float 1.0e39\n .float 1.0e-50\n .float ext", "00 00 80 7F 00 00 00 00 00 00 00 00", 3, 0, nullptr, 0},
      {" .float 1.0 2.0\nafter .byte 0xEE", "00 00 80 3F EE", 1, 0, "after", 4},
      {" .word 1,,2\n .byte 1.5, 3\nafter .byte 4", "01 00 00 00 02 00 00 00 03 04", 2, 0, "after", 9},
      {" .half 1, \"a\", 2", "01 00 61 00 02 00", 0, 0, nullptr, 0},
      // Octal is taken modulo 256; an unknown escape drops the character
      // behind the backslash.
      {R"( .cstring "\\\a\b\f\r\t\v", "\377\477", "", "\qxy", "\12x", "a\q")",
       "5C 07 08 0C 0D 09 0B 00 FF 3F 00 00 78 79 00 32 78 00 61 00", 0, 0, nullptr, 0},
      {" .cstring 1, \"a\"\n .cstring \"b\\\"\n .byte 0xEE", "61 00 EE", 2, 0, nullptr, 0},
      {" .byte 1\n .stream -64, 127, 128, 0x7FFFFFFF\nend .byte 0xEE", "01 40 FF 00 80 01 FF FF FF FF 07 EE", 0, 0,
       "end", 11},
  };
  for (const row &r : rows) {
    SCOPED_TRACE(r.source);
    TearDown();
    SetUp();
    const std::string screen = assemble(" .data\n" + r.source + "\n");
    EXPECT_EQ(hex(bytes(".data")), r.bytes) << screen;
    EXPECT_EQ(num_errors, r.errors) << screen;
    EXPECT_EQ(num_warnings, r.warnings) << screen;
    if (r.label) {
      ASSERT_NE(SYM_query(r.label), nullptr);
      EXPECT_EQ(SYM_query(r.label)->sym_value.v_val.to_u32(), r.at);
    }
  }
}

TEST_F(SectionsTest, FieldRaisesTheSectionAlignment) {
  assemble(" .sect \".f\"\n .bits 1, 1\n .sect \".g\"\n .field 1, 1\n");
  EXPECT_LE(SCN_query(".f")->scn_object->align(), 1u);
  EXPECT_EQ(SCN_query(".g")->scn_object->align(), 4u);
}
