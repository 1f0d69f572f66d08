// Expressions at the limits: chains a million operators long must assemble to
// the right value, and nesting beyond the limit must give one message per
// statement instead of running out of stack. The sources are generated here.
#include <gtest/gtest.h>

#include <cstdio>
#include <regex>
#include <string>
#include <vector>

#include "zq_dir_fixture.h"

namespace {

// `count` terms joined by `op`: "t op t op ... t".
std::string chain(const std::string &term, const std::string &op, size_t count) {
  std::string s;
  s.reserve(count * (term.size() + op.size()));
  for (size_t i = 0; i < count; ++i) {
    if (i) s += op;
    s += term;
  }
  return s;
}

std::string repeat(const std::string &piece, size_t count) {
  std::string s;
  s.reserve(piece.size() * count);
  for (size_t i = 0; i < count; ++i) s += piece;
  return s;
}

struct LimitsRun {
  int status = -1;
  std::string err;
  std::string text;   // the .text bytes as "xx xx ..."
  // (line, id) of every message on stderr.
  std::vector<std::pair<int, std::string>> messages;
};

class ExprLimits : public ZqDirFixture {
 protected:
  LimitsRun assemble(const std::string &source) {
    put("t.asm", source);
    const ZqRun run = zq("--diag_wrap=off t.asm t.o");
    LimitsRun r{run.status, run.err, text_of("t.o"), {}};
    static const std::regex message(R"(at line (\d+): \[([EWR]\d{4})\])");
    for (auto it = std::sregex_iterator(r.err.begin(), r.err.end(), message); it != std::sregex_iterator(); ++it)
      r.messages.emplace_back(std::stoi((*it)[1]), (*it)[2]);
    return r;
  }
};

// The little-endian bytes of a 32-bit word, as hex_bytes spells them.
std::string word(uint32_t v) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "%02x %02x %02x %02x ", v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF, v >> 24);
  return buf;
}

TEST_F(ExprLimits, MillionTermChainAddsUp) {
  const LimitsRun r = assemble(" .word " + chain("1", "+", 1000000) + "\n");
  ASSERT_EQ(r.status, 0) << r.err.substr(0, 500);
  EXPECT_TRUE(r.messages.empty()) << r.err.substr(0, 500);
  EXPECT_EQ(r.text, word(1000000));
}

TEST_F(ExprLimits, LongChainsOfEveryKindFold) {
  constexpr size_t n = 200000;
  std::string src;
  src += " .word 0" + repeat("-1", n) + "\n";                        // -200000
  src += " .word 3" + repeat("*1", n) + "\n";                        // 3
  src += " .word 0" + repeat("|2", n) + "\n";                        // 2
  src += " .word 1" + repeat("<<0", n) + "\n";                       // 1
  src += " .word 1" + repeat("==1", n) + "\n";                       // 1
  src += " .word -1" + repeat("&-1", n) + "\n";                      // -1
  src += " .word a" + repeat("+b", n) + "\n";                        // forward in pass 1: 1 + 2n
  src += " .word x | (a" + repeat("|b", n) + ")\n";                  // 8 | 3
  src += " .word x - (a" + repeat("+a", n) + ")\n";                  // 8 - (n + 1)
  src += " .word x * (b" + repeat("*a", n) + ")\n";                  // 16
  src += "l1: .word l2 - (l1" + repeat("+1", n) + ")\n";             // 44 - 40 - n
  src += "l2: .byte 1" + repeat("+0", n) + ", 2, 3, 4\n";
  src += " .half 1" + repeat("+1", n / 10) + ", 7\n";
  src += "s .set 1" + repeat("+1", n) + "\n .word s\n";
  src += " .word 1" + repeat("+1", 20000) + ", 5" + repeat("*1", 10000) + "\n";  // a line the pass-1 skim reads
  src += "a .set 1\nb .set 2\nx .set 8\n";
  const LimitsRun r = assemble(src);
  ASSERT_EQ(r.status, 0) << r.err.substr(0, 500);
  EXPECT_TRUE(r.messages.empty()) << r.err.substr(0, 500);
  const std::string want = word(uint32_t(-200000)) + word(3) + word(2) + word(1) + word(1) + word(0xFFFFFFFF) +
                           word(1 + 2 * n) + word(11) + word(uint32_t(7 - int64_t(n))) + word(16) +
                           word(uint32_t(4 - int64_t(n))) + "01 02 03 04 " + "21 4e 07 00 " +
                           word(n + 1) + word(20001) + word(5);
  EXPECT_EQ(r.text, want);
}

TEST_F(ExprLimits, DeepNestingGivesOneMessageAndAssemblyGoesOn) {
  // 500 levels are allowed: parentheses, unary operators, or both mixed.
  const std::string ok = " .word " + repeat("(", 500) + "1" + repeat(")", 500) + "\n" +
                         " .word " + repeat("-(", 250) + "2" + repeat(")", 250) + "\n" +
                         " .word " + repeat("1+(", 500) + "0" + repeat(")", 500) + "\n";
  std::string src = ok;
  src += " .word " + repeat("(", 501) + "1" + repeat(")", 501) + "\n";             // line 4
  src += " .word " + repeat("~", 100000) + "1\n";                                  // line 5
  src += " .word " + repeat("-(", 300) + "1" + repeat(")", 300) + "\n";            // line 6
  src += " .word " + repeat("(", 100000) + "1" + repeat(")", 100000) + "\n";        // line 7
  src += " .word 1 + " + repeat("!", 600) + "0\n";                                 // line 8, skimmed in pass 1
  src += " .word 7\n";
  const LimitsRun r = assemble(src);
  EXPECT_EQ(r.status, 1);
  const std::vector<std::pair<int, std::string>> want = {
      {4, "E1300"}, {5, "E1300"}, {6, "E1300"}, {7, "E1300"}, {8, "E1300"}};
  EXPECT_EQ(r.messages, want) << r.err.substr(0, 2000);
  EXPECT_NE(r.err.find("[E1300] Expression nesting limit exceeded"), std::string::npos);

  // Without the failing lines, the allowed ones give their values.
  const LimitsRun good = assemble(ok + " .word 7\n");
  ASSERT_EQ(good.status, 0) << good.err.substr(0, 500);
  EXPECT_EQ(good.text, word(1) + word(2) + word(500) + word(7));
}

}  // namespace
