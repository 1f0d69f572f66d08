// The corpus runner's own reporting, on generated files of data directives:
// a right file gives no finding in either byte order, and every kind of wrong
// line is named with its line number, also when a line has the wrong size or
// draws an error, so that the lines after it are still compared.
#include <gtest/gtest.h>

#include "golden_corpus.h"
#include "zq_dir_fixture.h"

namespace {

class GoldenReport : public ZqDirFixture {
 protected:
  GoldenOutcome check(const std::string &name, const std::string &text) {
    spit(tmp_dir() / name, text);
    file_ = GOLD_read(tmp_dir() / name);
    return GOLD_check(file_, dir_, [this](const std::string &args) { return zq(args); }, name);
  }
  GoldenFile file_;
};

std::string joined_findings(const GoldenOutcome &o) {
  std::string s;
  for (const std::string &f : o.findings) s += f + "\n";
  return s;
}

TEST_F(GoldenReport, RightFileInBothByteOrders) {
  const std::string body =
      "        .word 0xe2411001     ;= e2411001\n"
      "lab     .word 0x00000000     ;= 00000000  ; note: a label of the line's own\n"
      "        .short 0x1840        ;= 1840\n"
      "        .short 0xf8d1, 0x0004 ;= f8d1 0004\n"
      "        .short 0x4770        ;= 4770\n";
  for (const char *run : {"", "; RUN: %s %o --endian=big\n", "; RUN: %s %o --endian=little\n"}) {
    const GoldenOutcome o = check("right.asm", run + body);
    EXPECT_TRUE(o.findings.empty()) << run << joined_findings(o);
    EXPECT_EQ(o.compared, 5u) << run;
  }
  EXPECT_EQ(file_.args, "%s %o --endian=little");
  ASSERT_EQ(file_.lines.size(), 5u);
  EXPECT_EQ(file_.lines[1].line, 3);
  EXPECT_EQ(file_.lines[1].statement, "lab     .word 0x00000000");
  EXPECT_EQ(GOLD_spell(file_.lines[3].units), "f8d1 0004");
  EXPECT_EQ(file_.lines[3].units[0].bytes, 2u);
}

TEST_F(GoldenReport, EveryWrongLineIsNamed) {
  const GoldenOutcome o = check("wrong.asm",
                                "; RUN: %s %o --endian=big\n"
                                "        .word 0xe2411001     ;= e2411001\n"
                                "        .word 0xe2411002     ;= e2411001\n"
                                "        .word 1, 2           ;= 00000001\n"
                                "        .word 3              ;= 00000003\n"
                                "        .word 4              ;= 00000005\n"
                                "        FOO     R0           ;= e1a00000\n"
                                "        .word 6              ;= 00000007\n"
                                "        .word 8              ;= 00000008 00000009\n"
                                "        .word 10\n");
  EXPECT_EQ(joined_findings(o),
            "wrong.asm:7: [E0002] Illegal mnemonic specified (FOO     R0)\n"
            "wrong.asm:3: expected e2411001, got e2411002 (.word 0xe2411002)\n"
            "wrong.asm:4: expected 00000001 (4 bytes), got 00000001 00000002 (8 bytes) "
            "(.word 1, 2)\n"
            "wrong.asm:6: expected 00000005, got 00000004 (.word 4)\n"
            "wrong.asm:8: expected 00000007, got 00000006 (.word 6)\n"
            "wrong.asm:9: expected 00000008 00000009, got 00000008 0000000a "
            "(.word 8)\n"
            "wrong.asm: 4 trailing bytes (40 in .text, 36 expected)\n");
  EXPECT_EQ(o.compared, 7u);
}

TEST_F(GoldenReport, TrailingAndMissingBytes) {
  GoldenOutcome o = check("long.asm",
                          "        .word 1 ;= 00000001\n"
                          "        .word 2 ;= 00000002\n"
                          "        .word 3\n");
  EXPECT_EQ(joined_findings(o),
            "long.asm:2: expected 00000002 (4 bytes), got 00000002 00000003 (8 bytes) (.word 2)\n"
            "long.asm: 4 trailing bytes (12 in .text, 8 expected)\n");
  o = check("short.asm",
            "        .word 1 ;= 00000001\n"
            "        .word 2 ;= 00000002 00000003\n");
  EXPECT_EQ(joined_findings(o),
            "short.asm:2: expected 00000002 00000003 (8 bytes), got 00000002 (4 bytes) "
            "(.word 2)\n"
            "short.asm: missing 4 bytes (8 in .text, 12 expected)\n");
}

TEST_F(GoldenReport, MessagesAndUnreadableLines) {
  const GoldenOutcome o = check("said.asm",
                                "; XFAIL: waiting for the encoders\n"
                                "        .byte 300, 1, 2, 3   ;= 2c010203\n"
                                "        .word 5              ;= 0005 zz\n"
                                "        .word 6              ;=\n"
                                "        .word 7              ;= 00000007\n");
  EXPECT_EQ(file_.xfail, "waiting for the encoders");
  EXPECT_EQ(joined_findings(o),
            "said.asm:3: unreadable expected bytes\n"
            "said.asm:4: unreadable expected bytes\n"
            "said.asm:2: [W0001] Constant value out of range, will be truncated to 8 bits "
            "(.byte 300, 1, 2, 3)\n"
            "said.asm:2: expected 2c010203 (4 bytes), got 0302012c 00000005 00000006 (12 bytes) "
            "(.byte 300, 1, 2, 3)\n"
            "said.asm: 8 trailing bytes (16 in .text, 8 expected)\n");
}

}  // namespace
