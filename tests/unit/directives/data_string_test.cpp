// Byte streams: .cstring escapes, .stream's LEB128 numbers, .encode's own section.
#include "sections_fixture.h"

#include "driver/diag.h"

#include "driver/driver.h"
#include "expr/symbols.h"

TEST_F(SectionsTest, CstringDecodesEscapesAndEndsInZero) {
  struct row {
    const char *source;
    const char *bytes;
  };
  const row rows[] = {
      {R"( .cstring "ab")", "61 62 00"},
      {R"( .cstring "a\n")", "61 0A 00"},
      {R"( .cstring "\\\a\b\f\r\t\v")", "5C 07 08 0C 0D 09 0B 00"},
      {R"( .cstring "\101\377\477")", "41 FF 3F 00"},  // octal, modulo 256
      {R"( .cstring "x\000y")", "78 00"},              // a decoded zero ends it
      {R"( .cstring "a", "bc")", "61 00 62 63 00"},
      {R"( .cstring "")", "00"},
      // An unknown escape drops the character behind the backslash.
      {R"( .cstring "\qxy")", "78 79 00"},
      {R"( .cstring "\12x")", "32 78 00"},
      {R"( .cstring "a\q")", "61 00"},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    const std::string screen = assemble(std::string(" .data\n") + r.source + "\nend .byte 0xEE\n");
    EXPECT_EQ(hex(bytes(".data")), std::string(r.bytes) + " EE") << r.source << "\n" << screen;
    EXPECT_EQ(num_errors, 0u) << r.source << "\n" << screen;
  }
}

TEST_F(SectionsTest, CstringRefusesWhatIsNoString) {
  const std::string screen = assemble(" .data\n .cstring 1, \"a\"\n .cstring \"b\\\"\n .byte 0xEE\n");
  EXPECT_TRUE(shown(screen, "E0004", "Invalid string")) << screen;
  EXPECT_TRUE(shown(screen, "E0000", "Invalid .cstring format")) << screen;
  EXPECT_EQ(hex(bytes(".data")), "61 00 EE");
}

TEST_F(SectionsTest, StreamWritesSignedLeb128) {
  struct row {
    const char *source;
    const char *bytes;
  };
  const row rows[] = {
      {" .stream 63, 64, -1", "3F C0 00 7F"},
      {" .stream -64, -65, 127, 128", "40 BF 7F FF 00 80 01"},
      {" .stream 0x7FFFFFFF", "FF FF FF FF 07"},
      {" .stream \"ab\", 1", "61 62 00 01"},
      {" .byte 1\n .stream 2", "01 02"},  // no alignment beyond a byte
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    const std::string screen = assemble(std::string(" .data\n") + r.source + "\nend .byte 0xEE\n");
    EXPECT_EQ(hex(bytes(".data")), std::string(r.bytes) + " EE") << r.source << "\n" << screen;
    const symbol_record *end = SYM_query("end");
    ASSERT_NE(end, nullptr);
    EXPECT_EQ(end->sym_value.v_val.to_u32() + 1, bytes(".data").size()) << r.source;
  }
}

TEST_F(SectionsTest, EncodeGoesToItsOwnSectionAndLeavesTheLabel) {
  const std::string screen = assemble(
      " .data\n"
      " .byte 1\n"
      "lab .encode 5, \"x\"\n"
      " .half 2\n"
      " .encode 6\n");
  EXPECT_EQ(hex(bytes(".encode")), "05 78 00 06");
  // The label waits for the next statement in the section that was current.
  const symbol_record *lab = SYM_query("lab");
  ASSERT_NE(lab, nullptr);
  EXPECT_EQ(lab->sym_value.v_val.to_u32(), 2u);
  EXPECT_STREQ(lab->sym_section->name(), ".data");
  EXPECT_EQ(hex(bytes(".data")), "01 00 02 00");
  EXPECT_EQ(num_errors, 0u) << screen;
}
