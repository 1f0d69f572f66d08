#include <gtest/gtest.h>

#include "driver/diag_format.h"

TEST(DiagFormat, Headers) {
  struct Case {
    const char *file;
    int sev;
    unsigned line;
    bool has_line;
    const char *id;
    const char *want;
  } cases[] = {
      {"a.asm", 0, 7, true, "E0003", "\"a.asm\", ERROR!   at line 7: [E0003]"},
      {"a.asm", 1, 12, true, "W0001", "\"a.asm\", WARNING! at line 12: [W0001]"},
      {"a.asm", 2, 1, true, "R0001", "\"a.asm\", REMARK   at line 1: [R0001]"},
      {"a.asm", 1, 0, false, "W0004", "\"a.asm\", WARNING! at EOF: [W0004]"},
      {"a.asm", 4, 0, false, "E1000", "\"a.asm\", ERROR!  : [E1000]"},
      {"a.asm", 3, 0, false, nullptr, "\"a.asm\", INTERNAL ERROR!:"},
      {"a.asm", 0, 65535, true, "E0000", "\"a.asm\", ERROR!   at line >65534: [E0000]"},
      {"", 4, 0, false, "E0000", "ERROR!  : [E0000]"},
      {"a.asm", 9, 3, true, "E0000", "\"a.asm\", FATAL ERROR at line 3: [E0000]"},
  };
  for (const Case &c : cases) EXPECT_EQ(DIAG_header(c.file, c.sev, c.line, c.has_line, c.id, 80), c.want);
}

TEST(DiagFormat, LongFileNameBreaksHeaderAndBody) {
  std::string file(70, 'f');
  std::string h = DIAG_header(file.c_str(), 0, 3, true, "E0003", 80);
  EXPECT_EQ(h, "\"" + file + "\", ERROR!   at line 3:\n [E0003]");
  std::string s = DIAG_screen_text(h, "Invalid operand", 80);
  EXPECT_EQ(s, h + "\n         Invalid operand\n");
}

TEST(DiagFormat, WrapsAtBlanksAndBreaksLongWords) {
  std::string h = "\"a.asm\", ERROR!   at line 7: [E0003]";  // 36 characters
  std::string body = "one two three four five six seven eight nine ten eleven twelve";
  std::string s = DIAG_screen_text(h, body, 60);
  EXPECT_EQ(s, h + " one two three four five\n" + std::string(37, ' ') +
                   "six seven eight nine\n" + std::string(37, ' ') + "ten eleven twelve\n");
  std::string word(30, 'x');
  s = DIAG_screen_text(h, word, 60);
  EXPECT_EQ(s, h + " " + std::string(23, 'x') + "\n" + std::string(37, ' ') + std::string(7, 'x') + "\n");
}

TEST(DiagFormat, CaretLineKeepsTabs) {
  EXPECT_EQ(DIAG_caret_line("\tmov r0, #1\n", 5), "\t    ^     \n");
  EXPECT_EQ(DIAG_caret_line("ab", 4), "    ^\n");
  EXPECT_EQ(DIAG_caret_line("\t\t.x 1 2", 5), "\t\t    ^ \n");  // a run of tabs is one position
}
